#include "msglib/ChoiceFormat.h"

#include "base/Argument.h"
#include "base/Extraction.h"
#include "base/Scanning.h"

#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace zem::msglib {

namespace {

constexpr bool isSeparator(char c) noexcept {
    return c == '#' || c == '<' || c == '+';
}

std::size_t findSeparator(const std::string& pattern, std::size_t pos) noexcept {
    while (pos < pattern.size() && !isSeparator(pattern[pos])) {
        ++pos;
    }
    return pos;
}

// Collects a result text from `pos` and returns the position of the terminator, or the pattern's
// end.
std::size_t parseText(const std::string& pattern, std::size_t pos, std::string& text) {
    std::size_t depth = 1;
    std::size_t copied = pos; // what stands in front of it needs no more care
    while ((pos = findSyntax(pattern, pos, '|')) < pattern.size()) {
        const char c = pattern[pos];
        if (c == quote && holdsAt(pattern, pos + 1, quote)) {
            text.append(pattern, copied, pos + 1 - copied);
            pos += 2;
            copied = pos;
            continue;
        }
        if (c == quote && pattern.size() - pos > 2) {
            text.append(pattern, copied, pos - copied).push_back(pattern[pos + 1]);
            pos += 3;
            copied = pos;
            continue;
        }
        if (c == '{') {
            ++depth;
        } else if (c == '}') {
            --depth;
        }
        if (depth == 0 || (c == '|' && depth == 1)) {
            break;
        }
        ++pos;
    }
    text.append(pattern, copied, pos - copied);
    return pos;
}

} // namespace

ChoiceFormat::ChoiceFormat(const std::string& pattern) {
    applyPattern(pattern);
}

ChoiceFormat::~ChoiceFormat() = default;

void ChoiceFormat::applyPattern(const std::string& pattern) {
    choices_.clear();
    std::size_t pos = 0;
    for (;;) {
        const std::size_t separator = findSeparator(pattern, pos);
        if (separator == pattern.size()) {
            raise(Failure::ChoiceSyntax);
        }
        const std::string_view limit = std::string_view(pattern).substr(pos, separator - pos);
        ChoiceEntry entry{extractDouble(limit), {}};
        if (pattern[separator] != '#') {
            entry.limit = nextDouble(entry.limit);
        }
        pos = parseText(pattern, separator + 1, entry.text);
        choices_.push_back(std::move(entry));
        if (pos == pattern.size()) {
            return;
        }
        ++pos;
    }
}

std::string& ChoiceFormat::format(long value, std::string& out) const {
    return format(static_cast<double>(checkedLong(value)), out);
}

std::string& ChoiceFormat::format(double value, std::string& out) const {
    if (choices_.empty()) {
        return out;
    }
    auto chosen = choices_.begin();
    if (std::isnan(value) || value < chosen->limit) {
        return out += chosen->text;
    }
    for (auto next = std::next(chosen); next != choices_.end(); chosen = next++) {
        if (value >= chosen->limit && next->limit > value) {
            break;
        }
    }
    return out += chosen->text;
}

double ChoiceFormat::nextDouble(double value) {
    return std::isfinite(value) ? std::nextafter(value, std::numeric_limits<double>::max()) : value;
}

double ChoiceFormat::previousDouble(double value) {
    return std::isfinite(value) ? std::nextafter(value, std::numeric_limits<double>::lowest())
                                : value;
}

double ChoiceFormat::nextDouble(double value, bool positive) {
    return positive ? nextDouble(value) : previousDouble(value);
}

} // namespace zem::msglib
