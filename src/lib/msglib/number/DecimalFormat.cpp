#include "msglib/DecimalFormat.h"

#include "base/Argument.h"
#include "base/Failure.h"
#include "base/Scanning.h"
#include "base/TextOutput.h"
#include "number/DecimalForm.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

// The compiler turns a pattern into the fields of a `DecimalFormat`. It scans the bytes once:
// prefix, integer, fraction, exponent and suffix, and after a ";" the same for negative numbers, of
// which only the affixes are kept. `DecimalForm` renders a number from the fields.

namespace zem::msglib {

namespace {

constexpr char currencySign = '\xA4';

// Converts a count of marks to the type of its field. A count that doesn't fit becomes the largest
// value.
template <class Field>
Field countAs(std::size_t marks) {
    return static_cast<Field>(
        std::min(marks, static_cast<std::size_t>(std::numeric_limits<Field>::max())));
}

} // namespace

const std::string_view DecimalFormat::patternChars_ = ".,#0E;%\xA4";

DecimalFormat::DecimalFormat(const std::string& pattern, const DecimalFormatSymbols& symbols)
    : symbols_(symbols) {
    applyPattern(pattern);
}

DecimalFormat::DecimalFormat(const std::string& pattern, DecimalFormatSymbols&& symbols)
    : symbols_(std::move(symbols)) {
    applyPattern(pattern);
}

DecimalFormat::DecimalFormat(const DecimalFormat& other) = default;

DecimalFormat& DecimalFormat::operator=(const DecimalFormat& other) = default;

DecimalFormat::~DecimalFormat() = default;

std::string& DecimalFormat::format(double value, std::string& out) const {
    return TextOutput::to(out, [&](TextOutput& text) { DecimalForm(*this).append(value, text); });
}

std::string& DecimalFormat::format(long value, std::string& out) const {
    const long number = checkedLong(value);
    if (useExponentialNotation_) {
        return format(static_cast<double>(number), out);
    }
    return TextOutput::to(out,
                          [&](TextOutput& text) { DecimalForm(*this).appendWhole(number, text); });
}

void DecimalFormat::applyPattern(const std::string& pattern) {
    reset();
    std::size_t position = parseAffix(pattern, 0, positivePrefix_, false);
    position = parsePattern(pattern, position, false);
    position = parseAffix(pattern, position, positiveSuffix_, true);
    if (position == pattern.size()) {
        return;
    }
    if (pattern[position] != ';') {
        raise(Failure::SeparatorExpected, position);
    }
    position = parseAffix(pattern, position + 1, negativePrefix_, false);
    position = parsePattern(pattern, position, true);
    position = parseAffix(pattern, position, negativeSuffix_, true);
    if (position != pattern.size()) {
        raise(Failure::EndOfPatternExpected, position);
    }
}

void DecimalFormat::reset() {
    positivePrefix_.clear();
    positiveSuffix_.clear();
    negativePrefix_.clear();
    negativeSuffix_.clear();
    multiplier_ = 1;
    groupingSize_ = 0;
    minimumExponentDigits_ = 0;
    groupingUsed_ = false;
    maximumFractionDigits_ = 0;
    minimumFractionDigits_ = 0;
    maximumIntegerDigits_ = 309;
    minimumIntegerDigits_ = 1;
    useExponentialNotation_ = false;
    monetary_ = false;
}

// A failure leaves the field unchanged.
std::size_t DecimalFormat::parseAffix(const std::string& pattern, std::size_t position,
                                      std::string& affix, bool suffix) {
    std::string text;
    position = parseStatic(pattern, position, text, suffix);
    affix = std::move(text);
    return position;
}

std::size_t DecimalFormat::parseStatic(const std::string& pattern, std::size_t position,
                                       std::string& text, bool suffix) {
    text.clear();
    bool percentSeen = false;
    while (position < pattern.size()) {
        const char c = pattern[position];
        if (c == quote && holdsAt(pattern, position + 1, quote)) {
            text.push_back(quote);
            position += 2;
        } else if (c == quote && holdsAt(pattern, position + 2, quote)) {
            text.push_back(pattern[position + 1]);
            position += 3;
        } else if (c == currencySign && holdsAt(pattern, position + 1, currencySign)) {
            text.append(symbols_.internationalCurrencySymbol_);
            monetary_ = true;
            position += 2;
        } else if (c == currencySign) {
            text.append(symbols_.currencySymbol_);
            monetary_ = true;
            ++position;
        } else if (suffix && c == '%') {
            if (percentSeen) {
                raise(Failure::MultiplierAlreadySet, position);
            }
            percentSeen = true;
            multiplier_ = 100;
            text.push_back(c);
            ++position;
        } else if (patternChars_.find(c) != std::string_view::npos) {
            return position;
        } else {
            text.push_back(c);
            ++position;
        }
    }
    return position;
}

std::size_t DecimalFormat::parsePattern(const std::string& pattern, std::size_t position,
                                        bool negative) {
    position = parseInteger(pattern, position, negative);
    if (holdsAt(pattern, position, '.')) {
        position = parseFraction(pattern, position + 1, negative);
    }
    if (holdsAt(pattern, position, 'E')) {
        position = parseExponent(pattern, position + 1, negative);
    }
    return position;
}

std::size_t DecimalFormat::parseInteger(const std::string& pattern, std::size_t position,
                                        bool negative) {
    std::size_t marks = 0;
    std::size_t zeros = 0;
    bool comma = false;
    for (; position < pattern.size(); ++position) {
        const char c = pattern[position];
        if (c == '#') {
            if (zeros > 0) {
                raise(Failure::DigitMarkAfterZero, position);
            }
            ++marks;
        } else if (c == '0') {
            ++zeros;
            ++marks;
        } else if (c == ',') {
            marks = 0;
            comma = true;
        } else {
            break;
        }
    }
    if (!negative) {
        groupingSize_ = countAs<short>(marks);
        minimumIntegerDigits_ = countAs<int>(zeros);
        groupingUsed_ = comma;
    }
    return position;
}

std::size_t DecimalFormat::parseFraction(const std::string& pattern, std::size_t position,
                                         bool negative) {
    std::size_t hashes = 0;
    std::size_t zeros = 0;
    for (; position < pattern.size(); ++position) {
        const char c = pattern[position];
        if (c == '0') {
            if (hashes > 0) {
                raise(Failure::ZeroMarkAfterDigit, position);
            }
            ++zeros;
        } else if (c == '#') {
            ++hashes;
        } else {
            break;
        }
    }
    if (!negative) {
        minimumFractionDigits_ = countAs<int>(zeros);
        maximumFractionDigits_ = countAs<int>(zeros + hashes);
    }
    return position;
}

std::size_t DecimalFormat::parseExponent(const std::string& pattern, std::size_t position,
                                         bool negative) {
    std::size_t zeros = 0;
    for (; position < pattern.size(); ++position) {
        const char c = pattern[position];
        if (c == '0') {
            ++zeros;
        } else if (c != '#') {
            break;
        } else if (zeros > 0) {
            raise(Failure::DigitMarkAfterZeroInExponent, position);
        }
    }
    if (!negative) {
        useExponentialNotation_ = true;
        minimumExponentDigits_ = countAs<short>(zeros);
    }
    return position;
}

} // namespace zem::msglib
