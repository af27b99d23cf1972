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

    char* front() noexcept { return first_; }
    char* back() noexcept { return last_; }
    void growTo(char* front, char* back) noexcept {
        first_ = front;
        last_ = back;
    }

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
        : rest_(static_cast<std::uint64_t>(static_cast<std::int64_t>(fraction * 0x1p50))) {}

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

// The digits of a whole number from the units upward.
class ExactWhole {
public:
    explicit ExactWhole(std::uint64_t whole) noexcept : rest_(whole) {}

    bool isZero() const noexcept { return rest_ == 0; }
    char nextDigit() noexcept {
        const auto digit = static_cast<char>(rest_ % 10);
        rest_ /= 10;
        return digit;
    }

private:
    std::uint64_t rest_;
};

// The same for a number that may be beyond `exactIntegers`, where each step may round.
class AnyWhole {
public:
    explicit AnyWhole(double whole) noexcept : rest_(whole), exactRest_(0) {}

    bool isZero() const noexcept { return rest_ == 0.0 && exactRest_.isZero(); }
    char nextDigit() noexcept {
        if (rest_ == 0.0) {
            return exactRest_.nextDigit();
        }
        const bool fits = rest_ < 0x1p63;
        const auto digit = fits ? static_cast<char>(static_cast<std::int64_t>(rest_) % 10)
                                : static_cast<char>(std::fmod(rest_, 10.0));
        rest_ = std::floor(rest_ / 10.0);
        if (rest_ < exactIntegers) {
            exactRest_ = ExactWhole(static_cast<std::uint64_t>(rest_));
            rest_ = 0.0;
        }
        return digit;
    }

private:
    double rest_; // 0 from where the other is used
    ExactWhole exactRest_;
};

// Writes digits from the units upward, with group separators between them, and on to the minimum.
// What is read in each step is in locals, since the bytes written might be anything's.
template <class Whole>
char* writeInteger(Whole whole, const DigitLayout& layout, char* front) noexcept {
    const std::size_t most = layout.maximumIntegerDigits;
    const std::size_t least = std::min(layout.minimumIntegerDigits, most);
    const std::string_view separator = layout.groupingSeparator;
    const std::size_t group = layout.groupSize > 0 ? layout.groupSize : most;
    const char zero = layout.zeroDigit;
    std::size_t leftInGroup = group;
    for (std::size_t count = 0; count < least || (count < most && !whole.isZero()); ++count) {
        if (leftInGroup == 0) {
            for (std::size_t i = separator.size(); i > 0; --i) {
                *--front = separator[i - 1];
            }
            leftInGroup = group;
        }
        *--front = static_cast<char>(zero + whole.nextDigit());
        --leftInGroup;
    }
    return front;
}

// Digits up to the last one that isn't zero, and on to the minimum. Without any there is no
// separator either.
template <class Fraction>
char* writeFraction(Fraction fraction, const DigitLayout& layout, char* const point) noexcept {
    const std::size_t most = layout.maximumFractionDigits;
    const std::size_t least = std::min(layout.minimumFractionDigits, most);
    const char zero = layout.zeroDigit;
    char* back = point;
    for (const char c : layout.decimalSeparator) {
        *back++ = c;
    }
    char* significant = least > 0 ? back : point;
    std::size_t count = 0;
    for (; count < most && !fraction.isZero(); ++count) {
        const char digit = fraction.nextDigit();
        *back++ = static_cast<char>(zero + digit);
        if (digit != 0 || count < least) {
            significant = back;
        }
    }
    return count < least ? std::fill_n(significant, least - count, zero) : significant;
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
    static constexpr double usual[] = {1e-1 * 5.0, 1e-2 * 5.0, 1e-3 * 5.0, 1e-4 * 5.0, 1e-5 * 5.0};
    if (maximumFractionDigits >= 0 && maximumFractionDigits < static_cast<int>(std::size(usual))) {
        return usual[maximumFractionDigits];
    }
    return powerOfTen(-static_cast<double>(maximumFractionDigits) - 1.0) * 5.0;
}

void appendDigits(double x, const DigitLayout& layout, std::string& out) {
    if (x >= exactIntegers) {
        DigitRoom room(roomBefore(mostIntegerDigits, layout), roomBehind(0, layout));
        room.growTo(writeInteger(AnyWhole(x), layout, room.front()),
                    writeFraction(AnyFraction(0.0), layout, room.back()));
        room.appendTo(out);
        return;
    }
    const auto whole = static_cast<std::int64_t>(x);
    const double fraction = x - static_cast<double>(whole);
    DigitRoom room(roomBefore(mostDigitsOf64Bits, layout), roomBehind(mostFractionDigits, layout));
    char* const front =
        writeInteger(ExactWhole(static_cast<std::uint64_t>(whole)), layout, room.front());
    // From 4 on the last bit of x is worth 2 to the power -50 or more.
    char* const back = whole >= 4 ? writeFraction(ExactFraction(fraction), layout, room.back())
                                  : writeFraction(AnyFraction(fraction), layout, room.back());
    room.growTo(front, back);
    room.appendTo(out);
}

void appendDigits(std::uint64_t whole, const DigitLayout& layout, std::string& out) {
    DigitRoom room(roomBefore(mostDigitsOf64Bits, layout), roomBehind(0, layout));
    room.growTo(writeInteger(ExactWhole(whole), layout, room.front()),
                writeFraction(AnyFraction(0.0), layout, room.back()));
    room.appendTo(out);
}

} // namespace zem::msglib
