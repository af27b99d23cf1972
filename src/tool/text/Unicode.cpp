#include "tool/text/Unicode.h"

#include <boost/locale/utf.hpp>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace zem::msglib::tool {

namespace {

using Utf8 = boost::locale::utf::utf_traits<char>;

/// Returns the length of an ASCII prefix of `bytes`, a multiple of eight.
std::size_t asciiStart(std::string_view bytes) noexcept {
    std::size_t length = 0;
    for (std::uint64_t word = 0; bytes.size() - length >= sizeof word; length += sizeof word) {
        std::memcpy(&word, bytes.data() + length, sizeof word);
        if ((word & 0x8080'8080'8080'8080) != 0) {
            break;
        }
    }
    return length;
}

} // namespace

std::size_t characterCount(std::string_view utf8) noexcept {
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](char byte) { return Utf8::is_lead(byte); }));
}

std::size_t utf16UnitCount(std::string_view utf8) noexcept {
    const auto pairs = std::count_if(utf8.begin(), utf8.end(), [](char byte) {
        return static_cast<unsigned char>(byte) >= 0xF0; // the lead byte of a sequence of four
    });
    return characterCount(utf8) + static_cast<std::size_t>(pairs);
}

std::size_t validUtf8Length(std::string_view bytes) noexcept {
    std::size_t length = 0;
    while (length < bytes.size()) {
        length += asciiStart(bytes.substr(length));
        const char* position = bytes.data() + length;
        const char* const end = bytes.data() + bytes.size();
        if (position == end ||
            !boost::locale::utf::is_valid_codepoint(Utf8::decode(position, end))) {
            return length;
        }
        length = static_cast<std::size_t>(position - bytes.data());
    }
    return length;
}

char32_t takeCharacter(std::string_view& utf8) noexcept {
    const char* position = utf8.data();
    const char32_t character = Utf8::decode_valid(position);
    utf8.remove_prefix(static_cast<std::size_t>(position - utf8.data()));
    return character;
}

} // namespace zem::msglib::tool
