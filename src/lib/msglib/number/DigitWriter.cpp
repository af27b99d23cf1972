#include "number/DigitWriter.h"

#include "number/PowersOfTen.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>

namespace zem::msglib {

namespace {

// Below this a double holds every integer, and the quotient of a division by ten has the right
// integer part, so that integers give the same digits as doubles.
constexpr double exactIntegers = 0x1p53;

// The most digits of such an integer, of any unsigned 64 bits, and of the largest finite double.
constexpr std::size_t mostDigitsOf64Bits = 20;
constexpr std::size_t mostIntegerDigits = 309;

// A fraction is a multiple of 2 to the power -1074. Each multiplication by ten takes one factor of
// two away, so nothing is left behind as many digits.
constexpr std::size_t mostFractionDigits = 1074;

// Room for the digits of one number: those of the integer grow down from the point, those of the
// fraction up.
class DigitRoom {
public:
    DigitRoom(std::size_t before, std::size_t behind) {
        char* begin = local_;
        if (before + behind > sizeof local_) {
            large_.reset(new char[before + behind]);
            begin = large_.get();
        }
        first_ = last_ = begin + before;
    }

    void pushFront(char c) noexcept { *--first_ = c; }
    void pushFront(std::string_view text) noexcept {
        first_ = std::copy_backward(text.begin(), text.end(), first_);
    }

    void pushBack(char c) noexcept { *last_++ = c; }
    void pushBack(std::string_view text) noexcept {
        last_ = std::copy(text.begin(), text.end(), last_);
    }

    char* back() noexcept { return last_; }
    void truncate(char* back) noexcept { last_ = back; }

    void appendTo(std::string& out) const {
        out.append(first_, static_cast<std::size_t>(last_ - first_));
    }

private:
    char local_[512];
    std::unique_ptr<char[]> large_;
    char* first_;
    char* last_;
};

// The digits of a fraction whose multiples by ten are exact: a multiple of 2 to the power -50.
class ExactFraction {
public:
    explicit ExactFraction(double fraction) noexcept
        : rest_(static_cast<std::uint64_t>(fraction * 0x1p50)) {}

    bool isZero() const noexcept { return rest_ == 0; }
    char nextDigit() noexcept {
        rest_ *= 10;
        const auto digit = static_cast<char>(rest_ >> 50);
        rest_ &= (std::uint64_t{1} << 50) - 1;
        return digit;
    }

private:
    std::uint64_t rest_;
};

// The digits of any fraction, where each step may round.
class AnyFraction {
public:
    explicit AnyFraction(double fraction) noexcept : rest_(fraction) {}

    bool isZero() const noexcept { return rest_ == 0.0; }
    char nextDigit() noexcept {
        rest_ *= 10.0;
        const int digit = static_cast<int>(rest_);
        rest_ -= digit;
        return static_cast<char>(digit);
    }

private:
    double rest_;
};

// Writes digits from the units upward, with group separators between them.
class IntegerWriter {
public:
    IntegerWriter(const DigitLayout& layout, DigitRoom& room) noexcept
        : layout_(layout),
          room_(room),
          leftInGroup_(layout.groupSize) {}

    void write(double whole) noexcept {
        for (; whole >= exactIntegers && !isFull(); whole = std::floor(whole / 10.0)) {
            push(static_cast<char>(std::fmod(whole, 10.0)));
        }
        if (whole < exactIntegers) {
            write(static_cast<std::uint64_t>(whole));
        }
    }

    void write(std::uint64_t whole) noexcept {
        for (; whole > 0 && !isFull(); whole /= 10) {
            push(static_cast<char>(whole % 10));
        }
        while (count_ < layout_.minimumIntegerDigits && !isFull()) {
            push(0);
        }
    }

private:
    bool isFull() const noexcept { return count_ >= layout_.maximumIntegerDigits; }

    void push(char digit) noexcept {
        if (leftInGroup_ == 0 && count_ > 0 && layout_.groupSize > 0) {
            room_.pushFront(layout_.groupingSeparator);
            leftInGroup_ = layout_.groupSize;
        }
        room_.pushFront(static_cast<char>(layout_.zeroDigit + digit));
        --leftInGroup_;
        ++count_;
    }

    const DigitLayout& layout_;
    DigitRoom& room_;
    std::size_t leftInGroup_;
    std::size_t count_ = 0;
};

// Digits up to the last one that isn't zero, and on to the minimum. Without any there is no
// separator either.
template <class Fraction>
void writeFraction(Fraction fraction, const DigitLayout& layout, DigitRoom& room) noexcept {
    char* const point = room.back();
    room.pushBack(layout.decimalSeparator);
    char* const first = room.back();
    const std::size_t least = std::min(layout.minimumFractionDigits, layout.maximumFractionDigits);
    char* significant = least > 0 ? first : point;
    std::size_t count = 0;
    for (; count < layout.maximumFractionDigits && !fraction.isZero(); ++count) {
        const char digit = fraction.nextDigit();
        room.pushBack(static_cast<char>(layout.zeroDigit + digit));
        if (digit != 0 || count < least) {
            significant = room.back();
        }
    }
    room.truncate(significant);
    for (; count < least; ++count) {
        room.pushBack(layout.zeroDigit);
    }
}

std::size_t roomBefore(std::size_t digits, const DigitLayout& layout) {
    const std::size_t count =
        std::min(std::max(digits, layout.minimumIntegerDigits), layout.maximumIntegerDigits);
    return count * (1 + (layout.groupSize > 0 ? layout.groupingSeparator.size() : 0));
}

std::size_t roomBehind(std::size_t digits, const DigitLayout& layout) {
    return layout.decimalSeparator.size() +
           std::max(std::min(digits, layout.maximumFractionDigits), layout.minimumFractionDigits);
}

} // namespace

double roundingOf(int maximumFractionDigits) noexcept {
    constexpr double usual[] = {1e-1 * 5.0, 1e-2 * 5.0, 1e-3 * 5.0, 1e-4 * 5.0, 1e-5 * 5.0};
    if (maximumFractionDigits >= 0 && maximumFractionDigits < static_cast<int>(std::size(usual))) {
        return usual[maximumFractionDigits];
    }
    return powerOfTen(-static_cast<double>(maximumFractionDigits) - 1.0) * 5.0;
}

void appendDigits(double x, const DigitLayout& layout, std::string& out) {
    if (x >= exactIntegers) {
        DigitRoom room(roomBefore(mostIntegerDigits, layout), roomBehind(0, layout));
        IntegerWriter(layout, room).write(x);
        writeFraction(AnyFraction(0.0), layout, room);
        room.appendTo(out);
        return;
    }
    const auto whole = static_cast<std::uint64_t>(x);
    const double fraction = x - static_cast<double>(whole);
    DigitRoom room(roomBefore(mostDigitsOf64Bits, layout), roomBehind(mostFractionDigits, layout));
    IntegerWriter(layout, room).write(whole);
    // From 4 on the last bit of x is worth 2 to the power -50 or more.
    if (whole >= 4) {
        writeFraction(ExactFraction(fraction), layout, room);
    } else {
        writeFraction(AnyFraction(fraction), layout, room);
    }
    room.appendTo(out);
}

void appendDigits(std::uint64_t whole, const DigitLayout& layout, std::string& out) {
    DigitRoom room(roomBefore(mostDigitsOf64Bits, layout), roomBehind(0, layout));
    IntegerWriter(layout, room).write(whole);
    writeFraction(AnyFraction(0.0), layout, room);
    room.appendTo(out);
}

} // namespace zem::msglib
