#include "base/Scanning.h"

#include <algorithm>
#include <cstdint>

namespace zem::msglib {

namespace {

constexpr std::size_t blockSize = 128;
constexpr std::size_t wordSize = sizeof(std::uint64_t);
constexpr std::uint64_t everyByte = 0x0101010101010101;

// The same on every machine: the first byte is the lowest. Compilers make one load of it.
std::uint64_t wordAt(const char* at) noexcept {
    const auto byte = [at](int index) {
        return std::uint64_t{static_cast<unsigned char>(at[index])} << 8 * index;
    };
    return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

// Has the highest bit of the lowest byte that is `mark`, and none below it; what is above doesn't
// count. After "Determine if a word has a byte equal to n" of Sean Anderson's Bit Twiddling Hacks.
constexpr std::uint64_t marked(std::uint64_t word, char mark) noexcept {
    const std::uint64_t differing = word ^ everyByte * static_cast<unsigned char>(mark);
    return (differing - everyByte) & ~differing & everyByte << 7;
}

constexpr std::uint64_t markedSyntax(std::uint64_t word, char another) noexcept {
    return marked(word, quote) | marked(word, '{') | marked(word, '}') | marked(word, another);
}

// The number of bytes below the lowest bit that is set.
std::size_t bytesBelow(std::uint64_t bits) noexcept {
#if defined(__GNUC__)
    return static_cast<std::size_t>(__builtin_ctzll(bits)) / 8;
#else
    const std::uint64_t lowest = bits >> 7;
    return ((lowest - 1) & ~lowest & everyByte) * everyByte >> 56;
#endif
}

// Tells whether a block may have quotes or braces: every brace is above "z", and hardly anything
// else is. Of a fixed length and without an early exit, so that the compiler tests many bytes at
// once.
bool mayHaveQuoteOrBrace(const char* block) noexcept {
    signed char found = 0;
    for (std::size_t i = 0; i < blockSize; ++i) {
        const auto c = static_cast<signed char>(block[i]);
        found = static_cast<signed char>(found | -(c == quote) | -(c > 'z'));
    }
    return found != 0;
}

const char* findByBytes(const char* at, const char* end, char another) noexcept {
    while (at != end && *at != quote && *at != '{' && *at != '}' && *at != another) {
        ++at;
    }
    return at;
}

// Returns the first syntax in whole words of [at, end), or where what is left is no whole word.
const char* findByWords(const char* at, const char* end, char another) noexcept {
    for (; end - at >= static_cast<std::ptrdiff_t>(wordSize); at += wordSize) {
        if (const std::uint64_t bits = markedSyntax(wordAt(at), another)) {
            return at + bytesBelow(bits);
        }
    }
    return findByBytes(at, end, another);
}

// Its constants take time to load, which short texts must not pay for by inlining.
[[gnu::noinline]] const char* skipBlocks(const char* at, const char* end) noexcept {
    while (end - at >= static_cast<std::ptrdiff_t>(blockSize) && !mayHaveQuoteOrBrace(at)) {
        at += blockSize;
    }
    return at;
}

} // namespace

// Most texts between two marks are short, so blocks are worth their while only behind some bytes.
std::size_t findSyntax(std::string_view text, std::size_t position, char another) noexcept {
    const bool skips = another == quote || another > 'z';
    const char* const end = text.data() + text.size();
    const char* at = text.data() + position;
    std::ptrdiff_t step = skips ? 32 : end - at;
    for (;;) {
        const char* const soon = at + std::min(step, end - at);
        at = findByWords(at, soon, another);
        if (at != soon || at == end) {
            return static_cast<std::size_t>(at - text.data());
        }
        at = skipBlocks(at, end);
        step = blockSize;
    }
}

} // namespace zem::msglib
