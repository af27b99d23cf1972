#include "tool/catalogue/Catalogue.h"

#include <array>
#include <cstdio>

namespace zem::msglib::tool {

namespace {

std::string hexadecimal(std::uint32_t number, int digits) {
    std::array<char, 16> text;
    const int length = std::snprintf(text.data(), text.size(), "0x%0*X", digits, number);
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::string hexadecimal(std::uint32_t id) {
    return hexadecimal(id, 8);
}

std::string languageText(std::uint32_t language) {
    return hexadecimal(language, 4);
}

std::string describe(const Message& message) {
    if (message.symbol.file == nullptr) {
        return hexadecimal(message.id);
    }
    return std::string(message.symbol.text()) + " (" + hexadecimal(message.id) + ")";
}

} // namespace zem::msglib::tool
