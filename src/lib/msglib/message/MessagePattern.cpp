#include "base/Extraction.h"
#include "base/Failure.h"
#include "message/FormatElement.h"
#include "msglib/MessageFormat.h"

#include <utility>

namespace zem::msglib {

namespace {

bool isQuoteAt(const std::string& pattern, std::size_t position) {
    return position < pattern.size() && pattern[position] == '\'';
}

} // namespace

void MessageFormat::applyPattern(const std::string& pattern) {
    elements_.clear();
    pattern_ = pattern;
    std::string scratch;
    std::size_t position = parseStatic(pattern, 0, prefix_);
    while (position < pattern.size()) {
        position = parsePattern(pattern, position, scratch, locale_);
    }
}

std::size_t MessageFormat::parseStatic(const std::string& pattern, std::size_t position,
                                       std::string& text) const {
    text.clear();
    while (position < pattern.size()) {
        const std::size_t syntax = pattern.find_first_of("'{}", position);
        if (syntax == std::string::npos) {
            text.append(pattern, position);
            return pattern.size();
        }
        text.append(pattern, position, syntax - position);
        position = syntax;
        const char c = pattern[position];
        if (c == '{') {
            return position;
        }
        if (c == '}') {
            raise(Failure::UnexpectedClosingBrace);
        }
        if (isQuoteAt(pattern, position + 2)) {
            text.push_back(pattern[position + 1]);
            position += 3;
        } else {
            text.push_back('\'');
            position += isQuoteAt(pattern, position + 1) ? 2 : 1;
        }
    }
    return position;
}

std::size_t MessageFormat::parsePatternElement(const std::string& pattern, std::size_t position,
                                               std::string& text, char endByte) const {
    text.clear();
    std::size_t depth = 1;
    while (position < pattern.size()) {
        const char c = pattern[position];
        if (c == '\'' && isQuoteAt(pattern, position + 2)) {
            text.append(pattern, position, 3);
            position += 3;
            continue;
        }
        if (c == '\'' && isQuoteAt(pattern, position + 1)) {
            text.push_back(c);
            position += 2;
            continue;
        }
        if (c == '{') {
            ++depth;
        } else if (c == '}') {
            --depth;
        }
        if (depth == 0 || (c == endByte && c != '}')) {
            return position;
        }
        text.push_back(c);
        ++position;
    }
    return position;
}

std::size_t MessageFormat::parsePattern(const std::string& pattern, std::size_t position,
                                        std::string& scratch, const std::locale& locale) {
    FormatElement& element = elements_.emplace_back();
    position = parsePatternElement(pattern, position + 1, scratch, ',');
    const auto index = extractInt(scratch);
    if (!index || position == pattern.size()) {
        raise(Failure::IllegalArgument);
    }
    element.argumentIndex_ = *index;
    if (pattern[position] == ',') {
        position = parsePatternElement(pattern, position + 1, element.type_, ',');
        if (position == pattern.size()) {
            raise(Failure::IllegalArgument);
        }
        if (pattern[position] == ',') {
            position = parsePatternElement(pattern, position + 1, element.style_, '}');
        }
    }
    if (position == pattern.size() || pattern[position] != '}') {
        raise(Failure::IllegalArgument);
    }
    // Text that fails is not stored.
    position = parseStatic(pattern, position + 1, scratch);
    element.suffix_ = std::move(scratch);
    element.buildFormat(locale);
    return position;
}

} // namespace zem::msglib
