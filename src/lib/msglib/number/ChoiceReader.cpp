#include "number/ChoiceReader.h"

#include "base/Extraction.h"
#include "base/Failure.h"
#include "msglib/ChoiceFormat.h"

#include <cmath>

namespace zem::msglib {

namespace {

constexpr bool isSeparator(char c) noexcept {
    return c == '#' || c == '<' || c == '+';
}

} // namespace

double ChoiceReader::readLimit() {
    const std::size_t begin = position_;
    while (position_ < pattern_.size() && !isSeparator(pattern_[position_])) {
        ++position_;
    }
    if (position_ >= pattern_.size()) {
        raise(Failure::ChoiceSyntax, begin);
    }
    const double limit = extractDouble(pattern_.substr(begin, position_ - begin));
    return pattern_[position_++] == '#' ? limit : ChoiceFormat::nextDouble(limit);
}

bool ChoiceSearch::accepts(double limit) noexcept {
    if (!hasChosen_) {
        hasChosen_ = true;
        isDecided_ = std::isnan(value_) || value_ < limit;
    } else if (isDecided_ || (value_ >= limit_ && limit > value_)) {
        isDecided_ = true;
        return false;
    }
    limit_ = limit;
    return true;
}

ScannedText chooseText(std::string_view pattern, double value, const BraceIndex* braces) {
    ChoiceReader reader(pattern, braces);
    ChoiceSearch search(value);
    ScannedText chosen;
    for (bool more = true; more;) {
        if (search.accepts(reader.readLimit())) {
            chosen = ScannedText();
            more = reader.readText(chosen);
        } else {
            more = reader.readText([](std::string_view) {});
        }
    }
    return chosen;
}

} // namespace zem::msglib
