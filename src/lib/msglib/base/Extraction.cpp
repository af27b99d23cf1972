#include "base/Extraction.h"

#include <sstream>
#include <string>

namespace zem::msglib {

std::size_t readDigits(std::string_view text, std::size_t position, int& value) noexcept {
    constexpr std::size_t most = 9;
    int number = 0;
    std::size_t count = 0;
    for (; position < text.size() && text[position] >= '0' && text[position] <= '9'; ++position) {
        if (++count > most) {
            return 0;
        }
        number = number * 10 + (text[position] - '0');
    }
    if (count > 0) {
        value = number;
    }
    return count;
}

bool extractInt(std::string_view text, int& value) {
    if (const std::size_t digits = readDigits(text, 0, value);
        digits > 0 && digits == text.size()) {
        return true;
    }
    int extracted = 0;
    if (!(std::istringstream(std::string(text)) >> extracted)) {
        return false;
    }
    value = extracted;
    return true;
}

double extractDouble(std::string_view text) {
    int whole = 0;
    if (const std::size_t digits = readDigits(text, 0, whole);
        digits > 0 && digits == text.size()) {
        return whole;
    }
    double value = 0.0;
    std::istringstream(std::string(text)) >> value;
    return value;
}

} // namespace zem::msglib
