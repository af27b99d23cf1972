#include "tool/catalogue/Catalogue.h"

#include <array>
#include <cstdio>

namespace zem::msglib::tool {

std::string hexadecimal(std::uint32_t id) {
    std::array<char, 16> text;
    const int length = std::snprintf(text.data(), text.size(), "0x%08X", id);
    return {text.data(), static_cast<std::size_t>(length)};
}

std::string describe(const Message& message) {
    if (message.symbol.file == nullptr) {
        return hexadecimal(message.id);
    }
    return std::string(message.symbol.text()) + " (" + hexadecimal(message.id) + ")";
}

} // namespace zem::msglib::tool
