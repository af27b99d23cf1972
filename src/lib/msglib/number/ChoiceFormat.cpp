#include "msglib/ChoiceFormat.h"

#include "base/Argument.h"
#include "number/ChoiceReader.h"

#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

namespace zem::msglib {

ChoiceFormat::ChoiceFormat(const std::string& pattern) {
    applyPattern(pattern);
}

ChoiceFormat::ChoiceFormat(const ChoiceFormat& other) = default;

ChoiceFormat& ChoiceFormat::operator=(const ChoiceFormat& other) = default;

ChoiceFormat::~ChoiceFormat() = default;

void ChoiceFormat::applyPattern(const std::string& pattern) {
    choices_.clear();
    ChoiceReader reader(pattern);
    for (bool more = true; more;) {
        ChoiceEntry entry{reader.readLimit(), {}};
        more = reader.readText([&entry](std::string_view piece) { entry.text += piece; });
        choices_.push_back(std::move(entry));
    }
}

std::string& ChoiceFormat::format(long value, std::string& out) const {
    return format(static_cast<double>(checkedLong(value)), out);
}

std::string& ChoiceFormat::format(double value, std::string& out) const {
    return out += choose(value);
}

std::string_view ChoiceFormat::choose(double value) const noexcept {
    ChoiceSearch search(value);
    std::string_view chosen;
    for (const ChoiceEntry& entry : choices_) {
        if (search.accepts(entry.limit)) {
            chosen = entry.text;
        }
    }
    return chosen;
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
