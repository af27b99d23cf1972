#include "base/Extraction.h"
#include "base/Failure.h"
#include "message/FormatElement.h"
#include "message/PatternText.h"
#include "msglib/MessageFormat.h"

#include <utility>

namespace zem::msglib {

void MessageFormat::applyPattern(const std::string& pattern) {
    pattern_ = pattern;
    compile(pattern);
}

void MessageFormat::compile(const std::string& pattern) {
    elements_.clear();
    std::string scratch;
    std::size_t position = parseStatic(pattern, 0, prefix_);
    while (position < pattern.size()) {
        position = parsePattern(pattern, position, scratch, locale_);
    }
}

std::size_t MessageFormat::parseStatic(const std::string& pattern, std::size_t position,
                                       std::string& text) const {
    text.clear();
    position = scanStatic(pattern, position, [&text](std::string_view piece) { text += piece; });
    if (holdsAt(pattern, position, '}')) {
        raise(Failure::UnexpectedClosingBrace);
    }
    return position;
}

std::size_t MessageFormat::parsePatternElement(const std::string& pattern, std::size_t position,
                                               std::string& text, char endByte) const {
    text.clear();
    return scanElement(pattern, position, endByte,
                       [&text](std::string_view piece) { text += piece; });
}

// Plain digits, by far the most frequent index, are read where they stand.
std::size_t MessageFormat::parseIndex(const std::string& pattern, std::size_t position,
                                      std::string& scratch, int& index) const {
    const std::size_t digits = readDigits(pattern, position, index);
    const std::size_t end = position + digits;
    if (digits > 0 && end < pattern.size() && (pattern[end] == ',' || pattern[end] == '}')) {
        return end;
    }
    position = parsePatternElement(pattern, position, scratch, ',');
    if (!extractInt(scratch, index)) {
        raise(Failure::IllegalArgument);
    }
    return position;
}

std::size_t MessageFormat::parsePattern(const std::string& pattern, std::size_t position,
                                        std::string& scratch, const std::locale& locale) {
    FormatElement& element = elements_.emplace_back();
    position = parseIndex(pattern, position + 1, scratch, element.argumentIndex_);
    if (position == pattern.size()) {
        raise(Failure::IllegalArgument);
    }
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
