#include "number/DigitWriter.h"

#include "base/Compiler.h"
#include "base/TextOutput.h"
#include "number/DigitTriples.h"
#include "number/PowersOfTen.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <memory>

namespace zem::msglib {

namespace {

// Below this a double holds every integer, and the quotient of a division by ten has the right
// integer part, so that integers give the same digits as doubles.
constexpr double exactIntegers = 0x1p53;

// The most digits of any unsigned 64 bits, and of the largest finite double.
constexpr std::size_t mostDigitsOf64Bits = 20;
constexpr std::size_t mostIntegerDigits = 309;

// A fraction is a multiple of 2 to the power -1074. Each multiplication by ten takes one factor of
// two away, so nothing is left behind as many digits.
constexpr std::size_t mostFractionDigits = 1074;

// Nearly all numbers stand in groups of three or in none, have no digits to add or to leave out in
// front and few behind the point, and separators of one byte. What is written of such a number
// takes at most this room.
constexpr std::size_t usualRoom = 128;

bool isUsual(const DigitLayout& layout) noexcept {
    constexpr std::size_t fewDigits = 64;
    const bool isGroupedByThree = layout.groupSize == 3 && layout.groupingSeparator.size() == 1;
    return (isGroupedByThree || layout.groupSize == 0) && layout.minimumIntegerDigits <= 1 &&
           layout.maximumIntegerDigits >= mostDigitsOf64Bits &&
           layout.maximumFractionDigits <= fewDigits && layout.decimalSeparator.size() == 1;
}

// Writes a whole number of a usual layout. Its groups but the first wait in ten bits each.
char* writeThousands(std::uint64_t whole, const DigitLayout& layout, DigitTriples triples,
                     char* at) noexcept {
    if (whole == 0 && layout.minimumIntegerDigits == 0) {
        return at;
    }
    std::uint64_t groups = 0;
    int count = 0;
    for (; whole >= 1000; whole /= 1000) {
        groups = groups << 10 | whole % 1000;
        ++count;
    }
    const bool isGrouped = layout.groupSize != 0;
    const char separator = isGrouped ? layout.groupingSeparator.front() : '\0';
    at = triples.writeFirst(static_cast<unsigned int>(whole), at);
    for (; count > 0; --count) {
        *at = separator;
        at = triples.write(static_cast<unsigned int>(groups & 0x3FF), at + isGrouped);
        groups >>= 10;
    }
    return at;
}

// The digits of a whole number, without a zero in front.
class WholeDigits {
public:
    explicit WholeDigits(std::uint64_t whole) noexcept { begin(whole); }

    // Of a number that may be beyond `exactIntegers`, where each division by ten may round.
    explicit WholeDigits(double whole) noexcept {
        char* const end = std::end(digits_);
        char* first = end;
        for (; whole >= exactIntegers; whole = std::floor(whole / 10.0)) {
            const bool fits = whole < 0x1p63;
            const auto digit = fits ? static_cast<int>(static_cast<std::int64_t>(whole) % 10)
                                    : static_cast<int>(std::fmod(whole, 10.0));
            *--first = static_cast<char>('0' + digit);
        }
        begin(static_cast<std::uint64_t>(whole));
        end_ = std::copy(first, end, end_);
    }

    std::string_view text() const noexcept {
        return {digits_, static_cast<std::size_t>(end_ - digits_)};
    }

private:
    void begin(std::uint64_t whole) noexcept {
        end_ = whole == 0 ? digits_ : std::to_chars(digits_, std::end(digits_), whole).ptr;
    }

    char digits_[mostIntegerDigits];
    char* end_;
};

// A whole number in any layout.
class IntegerPart {
public:
    IntegerPart(std::string_view digits, const DigitLayout& layout) noexcept
        : digits_(digits),
          layout_(layout) {
        const std::size_t most = layout.maximumIntegerDigits;
        if (digits_.size() > most) {
            digits_.remove_prefix(digits_.size() - most);
        }
        count_ = std::max(digits_.size(), std::min(layout.minimumIntegerDigits, most));
        separators_ = layout.groupSize > 0 && count_ > 0 ? (count_ - 1) / layout.groupSize : 0;
    }

    std::size_t size() const noexcept {
        return count_ + separators_ * layout_.groupingSeparator.size();
    }

    char* writeTo(char* at) const noexcept {
        const std::string_view separator = layout_.groupingSeparator;
        std::size_t leftInGroup = count_ - separators_ * layout_.groupSize;
        for (std::size_t left = count_; left > 0; --left) {
            if (leftInGroup == 0) {
                at = std::copy(separator.begin(), separator.end(), at);
                leftInGroup = layout_.groupSize;
            }
            const int digit = left > digits_.size() ? 0 : digits_[digits_.size() - left] - '0';
            *at++ = static_cast<char>(layout_.zeroDigit + digit);
            --leftInGroup;
        }
        return at;
    }

private:
    std::string_view digits_;
    const DigitLayout& layout_;
    std::size_t count_;
    std::size_t separators_;
};

constexpr unsigned int tens[] = {1, 10, 100, 1000};

// The digits of a fraction whose multiples by ten are exact: a multiple of 2 to the power -50.
class ExactFraction {
public:
    explicit ExactFraction(double fraction) noexcept
        : rest_(static_cast<std::uint64_t>(static_cast<std::int64_t>(fraction * 0x1p50))) {}

    bool isZero() const noexcept { return rest_ == 0; }

    // The next digits, at most three, as a number.
    unsigned int next(std::size_t digits) noexcept {
        rest_ *= tens[digits];
        const auto number = static_cast<unsigned int>(rest_ >> 50);
        rest_ &= (std::uint64_t{1} << 50) - 1;
        return number;
    }

private:
    std::uint64_t rest_;
};

// The same for any fraction, where each step may round.
class AnyFraction {
public:
    explicit AnyFraction(double fraction) noexcept : rest_(fraction) {}

    bool isZero() const noexcept { return rest_ == 0.0; }
    unsigned int next(std::size_t digits) noexcept {
        unsigned int number = 0;
        for (; digits > 0; --digits) {
            rest_ *= 10.0;
            const int digit = static_cast<int>(rest_);
            rest_ -= digit;
            number = number * 10 + static_cast<unsigned int>(digit);
        }
        return number;
    }

private:
    double rest_;
};

class NoFraction {
public:
    bool isZero() const noexcept { return true; }
    unsigned int next(std::size_t) const noexcept { return 0; }
};

// Writes the digits behind a separator up to the last one that isn't zero, and on to the minimum.
// Without any the number ends at the point, in front of the separator.
template <class Fraction>
char* writeFraction(Fraction fraction, const DigitLayout& layout, DigitTriples triples, char* point,
                    char* at) noexcept {
    const std::size_t most = layout.maximumFractionDigits;
    const std::size_t least = std::min(layout.minimumFractionDigits, most);
    char* end = least > 0 ? at + least : point;
    for (std::size_t left = most; left > 0 && !fraction.isZero();) {
        const std::size_t digits = std::min<std::size_t>(left, 3);
        const unsigned int number = fraction.next(digits) * tens[3 - digits];
        triples.write(number, at);
        const std::size_t significant = DigitTriples::withoutTrailingZeros(number);
        end = significant > 0 ? std::max(end, at + significant) : end;
        at += digits;
        left -= digits;
    }
    for (; at < end; ++at) {
        *at = layout.zeroDigit;
    }
    return end;
}

template <class Fraction>
void appendInAnyLayout(std::string_view whole, Fraction fraction, std::size_t fractionDigits,
                       const DigitLayout& layout, TextOutput& out) {
    const IntegerPart integer(whole, layout);
    const std::string_view separator = layout.decimalSeparator;
    const std::size_t most = integer.size() + separator.size() + DigitTriples::room +
                             std::max(std::min(fractionDigits, layout.maximumFractionDigits),
                                      layout.minimumFractionDigits);
    const bool fits = most <= TextOutput::largestRoom;
    const std::unique_ptr<char[]> large(fits ? nullptr : new char[most]);
    char* const begin = fits ? out.room(most) : large.get();
    char* const point = integer.writeTo(begin);
    char* const end = writeFraction(fraction, layout, DigitTriples(layout.zeroDigit), point,
                                    std::copy(separator.begin(), separator.end(), point));
    if (fits) {
        out.advanceTo(end);
    } else {
        out.append({begin, static_cast<std::size_t>(end - begin)});
    }
}

template <class Fraction>
MSGLIB_NOINLINE void appendInAnyLayout(std::uint64_t whole, Fraction fraction,
                                       const DigitLayout& layout, TextOutput& out) {
    appendInAnyLayout(WholeDigits(whole).text(), fraction, mostFractionDigits, layout, out);
}

template <class Fraction>
void append(std::uint64_t whole, Fraction fraction, const DigitLayout& layout, TextOutput& out) {
    if (!isUsual(layout)) {
        appendInAnyLayout(whole, fraction, layout, out);
        return;
    }
    const DigitTriples triples(layout.zeroDigit);
    char* const point = writeThousands(whole, layout, triples, out.room(usualRoom));
    *point = layout.decimalSeparator.front();
    out.advanceTo(writeFraction(fraction, layout, triples, point, point + 1));
}

} // namespace

double roundingOf(int maximumFractionDigits) noexcept {
    static constexpr double usual[] = {1e-1 * 5.0, 1e-2 * 5.0, 1e-3 * 5.0, 1e-4 * 5.0, 1e-5 * 5.0};
    if (maximumFractionDigits >= 0 && maximumFractionDigits < static_cast<int>(std::size(usual))) {
        return usual[maximumFractionDigits];
    }
    return powerOfTen(-std::int64_t{maximumFractionDigits} - 1) * 5.0;
}

void appendDigits(double x, const DigitLayout& layout, TextOutput& out) {
    if (x >= exactIntegers) {
        appendInAnyLayout(WholeDigits(x).text(), NoFraction(), 0, layout, out);
        return;
    }
    const auto whole = static_cast<std::int64_t>(x);
    const double fraction = x - static_cast<double>(whole);
    // From 4 on the last bit of x is worth 2 to the power -50 or more.
    if (whole >= 4) {
        append(static_cast<std::uint64_t>(whole), ExactFraction(fraction), layout, out);
    } else {
        append(static_cast<std::uint64_t>(whole), AnyFraction(fraction), layout, out);
    }
}

void appendDigits(std::uint64_t whole, const DigitLayout& layout, TextOutput& out) {
    append(whole, NoFraction(), layout, out);
}

} // namespace zem::msglib
