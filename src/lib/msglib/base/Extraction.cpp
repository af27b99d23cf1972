#include "base/Extraction.h"

#include <sstream>
#include <string_view>

namespace zem::msglib {

namespace {

// At most nine digits and nothing else; they fit an `int`, and no locale reads them in another way.
std::optional<int> plainDigits(std::string_view text) noexcept {
    if (text.empty() || text.size() > 9) {
        return std::nullopt;
    }
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        value = value * 10 + (c - '0');
    }
    return value;
}

} // namespace

std::optional<int> extractInt(const std::string& text) {
    if (const auto digits = plainDigits(text)) {
        return digits;
    }
    int value = 0;
    if (std::istringstream(text) >> value) {
        return value;
    }
    return std::nullopt;
}

double extractDouble(const std::string& text) {
    if (const auto digits = plainDigits(text)) {
        return *digits;
    }
    double value = 0.0;
    std::istringstream(text) >> value;
    return value;
}

} // namespace zem::msglib
