#include "base/Extraction.h"

#include <algorithm>
#include <limits>
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

namespace {

// Reads a text that consists of plain digits.
bool readWhole(std::string_view text, int& value) noexcept {
    const std::size_t digits = readDigits(text, 0, value);
    return digits > 0 && digits == text.size();
}

// Without the exception mask, extraction reports a failed allocation as a bad stream.
template <class Number>
bool extract(std::string_view text, Number& number) {
    std::istringstream stream{std::string(text)};
    stream.exceptions(std::ios_base::badbit);
    return static_cast<bool>(stream >> number);
}

} // namespace

bool extractInt(std::string_view text, int& value) {
    int number = 0;
    if (!readWhole(text, number) && !extract(text, number)) {
        return false;
    }
    value = number;
    return true;
}

double extractDouble(std::string_view text) {
    if (int whole = 0; readWhole(text, whole)) {
        return whole;
    }
    double number = 0.0;
#if defined(__GLIBCXX__)
    extract(text, number);
    return number;
#else
    // Other libraries than GNU's read names of numbers, hexadecimal numbers and infinity. GNU's stops
    // at any letter but that of an exponent, and reads the largest number in place of a larger one.
    constexpr double largest = std::numeric_limits<double>::max();
    extract(
        text.substr(0, text.find_first_of("abcdfghijklmnopqrstuvwxyzABCDFGHIJKLMNOPQRSTUVWXYZ")),
        number);
    return std::clamp(number, -largest, largest);
#endif
}

} // namespace zem::msglib
