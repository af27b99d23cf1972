#include "base/Failure.h"
#include "base/Scanning.h"
#include "msglib/DecimalFormat.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zem::msglib {

namespace {

constexpr char currencySign = '\xA4';

// A count of marks as the field that keeps it; more than fit count as the most that do.
template <class Field>
Field countAs(std::size_t marks) {
    return static_cast<Field>(
        std::min(marks, static_cast<std::size_t>(std::numeric_limits<Field>::max())));
}

} // namespace

constexpr std::string_view DecimalFormat::patternChars_ = ".,#0E;%\xA4";

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

void DecimalFormat::applyPattern(const std::string& pattern) {
    reset();
    std::size_t pos = parseAffix(pattern, 0, positivePrefix_, false);
    pos = parsePattern(pattern, pos, false);
    pos = parseAffix(pattern, pos, positiveSuffix_, true);
    if (pos == pattern.size()) {
        return;
    }
    if (pattern[pos] != ';') {
        raise(Failure::SeparatorExpected);
    }
    pos = parseAffix(pattern, pos + 1, negativePrefix_, false);
    pos = parsePattern(pattern, pos, true);
    pos = parseAffix(pattern, pos, negativeSuffix_, true);
    if (pos != pattern.size()) {
        raise(Failure::EndOfPatternExpected);
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

// An affix that fails leaves the field as it was.
std::size_t DecimalFormat::parseAffix(const std::string& pattern, std::size_t pos,
                                      std::string& affix, bool suffix) {
    std::string text;
    pos = parseStatic(pattern, pos, text, suffix);
    affix = std::move(text);
    return pos;
}

std::size_t DecimalFormat::parseStatic(const std::string& pattern, std::size_t pos,
                                       std::string& text, bool suffix) {
    text.clear();
    bool percentSeen = false;
    while (pos < pattern.size()) {
        const char c = pattern[pos];
        if (c == quote && holdsAt(pattern, pos + 1, quote)) {
            text.push_back(quote);
            pos += 2;
        } else if (c == quote && holdsAt(pattern, pos + 2, quote)) {
            text.push_back(pattern[pos + 1]);
            pos += 3;
        } else if (c == currencySign && holdsAt(pattern, pos + 1, currencySign)) {
            text.append(symbols_.internationalCurrencySymbol_);
            monetary_ = true;
            pos += 2;
        } else if (c == currencySign) {
            text.append(symbols_.currencySymbol_);
            monetary_ = true;
            ++pos;
        } else if (suffix && c == '%') {
            if (percentSeen) {
                raise(Failure::MultiplierAlreadySet);
            }
            percentSeen = true;
            multiplier_ = 100;
            text.push_back(c);
            ++pos;
        } else if (patternChars_.find(c) != std::string_view::npos) {
            return pos;
        } else {
            text.push_back(c);
            ++pos;
        }
    }
    return pos;
}

std::size_t DecimalFormat::parsePattern(const std::string& pattern, std::size_t pos,
                                        bool negative) {
    pos = parseInteger(pattern, pos, negative);
    if (holdsAt(pattern, pos, '.')) {
        pos = parseFraction(pattern, pos + 1, negative);
    }
    if (holdsAt(pattern, pos, 'E')) {
        pos = parseExponent(pattern, pos + 1, negative);
    }
    return pos;
}

std::size_t DecimalFormat::parseInteger(const std::string& pattern, std::size_t pos,
                                        bool negative) {
    std::size_t marks = 0;
    std::size_t zeros = 0;
    bool comma = false;
    for (; pos < pattern.size(); ++pos) {
        const char c = pattern[pos];
        if (c == '#') {
            if (zeros > 0) {
                raise(Failure::DigitMarkAfterZero);
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
    return pos;
}

std::size_t DecimalFormat::parseFraction(const std::string& pattern, std::size_t pos,
                                         bool negative) {
    std::size_t hashes = 0;
    std::size_t zeros = 0;
    for (; pos < pattern.size(); ++pos) {
        const char c = pattern[pos];
        if (c == '0') {
            if (hashes > 0) {
                raise(Failure::ZeroMarkAfterDigit);
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
    return pos;
}

std::size_t DecimalFormat::parseExponent(const std::string& pattern, std::size_t pos,
                                         bool negative) {
    std::size_t zeros = 0;
    for (; pos < pattern.size(); ++pos) {
        const char c = pattern[pos];
        if (c == '0') {
            ++zeros;
        } else if (c != '#') {
            break;
        } else if (zeros > 0) {
            raise(Failure::DigitMarkAfterZeroInExponent);
        }
    }
    if (!negative) {
        useExponentialNotation_ = true;
        minimumExponentDigits_ = countAs<short>(zeros);
    }
    return pos;
}

} // namespace zem::msglib
