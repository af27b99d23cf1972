#include "base/Scanning.h"

#include <algorithm>
#include <array>

namespace zem::msglib {

namespace {

constexpr std::size_t blockSize = 64;

// Of a fixed length and without an early exit, so that the compiler tests many bytes at once.
bool blockHasSyntax(const char* block, char another) noexcept {
    unsigned char found = 0;
    for (std::size_t i = 0; i < blockSize; ++i) {
        const char c = block[i];
        const bool isSyntax = (c == quote) | (c == '{') | (c == '}') | (c == another);
        found |= static_cast<unsigned char>(isSyntax);
    }
    return found != 0;
}

constexpr std::array<bool, 256> quotesAndBraces() noexcept {
    std::array<bool, 256> marks{};
    for (const char c : {quote, '{', '}'}) {
        marks[static_cast<unsigned char>(c)] = true;
    }
    return marks;
}

const char* findByBytes(const char* at, const char* end, char another) noexcept {
    static constexpr std::array<bool, 256> marks = quotesAndBraces();
    while (at != end && !marks[static_cast<unsigned char>(*at)] && *at != another) {
        ++at;
    }
    return at;
}

} // namespace

// Most texts between two marks are short, so blocks are worth their while only behind some bytes.
std::size_t findSyntax(std::string_view text, std::size_t position, char another) noexcept {
    constexpr std::ptrdiff_t shortText = 24;
    const char* const end = text.data() + text.size();
    const char* const begin = text.data() + position;
    const char* const soon = begin + std::min(shortText, end - begin);
    const char* at = findByBytes(begin, soon, another);
    if (at == soon) {
        while (end - at >= static_cast<std::ptrdiff_t>(blockSize) && !blockHasSyntax(at, another)) {
            at += blockSize;
        }
        at = findByBytes(at, end, another);
    }
    return static_cast<std::size_t>(at - text.data());
}

} // namespace zem::msglib
