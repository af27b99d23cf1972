#include "base/Scanning.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zem::msglib {

namespace {

constexpr std::ptrdiff_t blockSize = 128;

// Tells whether a block may have quotes or braces: every brace is above "z", and hardly anything
// else is. Of a fixed length and without an early exit, so that the compiler tests many bytes at
// once, each into a place of its own.
bool mayHaveQuoteOrBrace(const char* block) noexcept {
    constexpr std::ptrdiff_t places = 16;
    signed char found[places] = {};
    for (std::ptrdiff_t row = 0; row < blockSize; row += places) {
        for (std::ptrdiff_t i = 0; i < places; ++i) {
            const auto c = static_cast<signed char>(block[row + i]);
            found[i] = static_cast<signed char>(found[i] | -(c == quote) | -(c > 'z'));
        }
    }
    std::uint64_t words[places / sizeof(std::uint64_t)];
    std::memcpy(words, found, sizeof words);
    return (words[0] | words[1]) != 0;
}

const char* findByBytes(const char* at, const char* end, char another) noexcept {
    while (at != end && *at != quote && *at != '{' && *at != '}' && *at != another) {
        ++at;
    }
    return at;
}

#if defined(__SSE2__)

constexpr std::ptrdiff_t vectorSize = 16;

// Returns a bit for each byte of a vector, the lowest for the first, that is set for syntax.
unsigned int syntaxIn(const char* vector, char another) noexcept {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(vector));
    const auto are = [bytes](char c) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); };
    const __m128i found =
        _mm_or_si128(_mm_or_si128(are('{'), are('}')), _mm_or_si128(are(quote), are(another)));
    return static_cast<unsigned int>(_mm_movemask_epi8(found));
}

// Finds the first syntax of a text from `at` on. What is no whole vector at its end is part of one
// that begins earlier.
const char* findIn(std::string_view text, const char* at, const char* end, char another) noexcept {
    for (; end - at >= vectorSize; at += vectorSize) {
        if (const unsigned int found = syntaxIn(at, another)) {
            return at + __builtin_ctz(found);
        }
    }
    if (end - text.data() < vectorSize) {
        return findByBytes(at, end, another);
    }
    const unsigned int found = syntaxIn(end - vectorSize, another) >> (vectorSize - (end - at));
    return found != 0 ? at + __builtin_ctz(found) : end;
}

#else

const char* findIn(std::string_view, const char* at, const char* end, char another) noexcept {
    return findByBytes(at, end, another);
}

#endif

// Its constants take time to load, which short texts must not pay for by inlining.
[[gnu::noinline]] const char* findByBlocks(std::string_view text, const char* at, const char* end,
                                           char another) noexcept {
    while (end - at > blockSize) {
        const char* const next = at + blockSize;
        if (mayHaveQuoteOrBrace(at)) {
            const char* const found = findIn(text, at, next, another);
            if (found != next) {
                return found;
            }
        }
        at = next;
    }
    return findIn(text, at, end, another);
}

} // namespace

// Most texts between two marks are short, so blocks are worth their while only behind some bytes.
std::size_t findSyntax(std::string_view text, std::size_t position, char another) noexcept {
    constexpr std::ptrdiff_t shortText = 32;
    const char* const end = text.data() + text.size();
    const char* const begin = text.data() + position;
    const char* const soon = begin + std::min(shortText, end - begin);
    const char* at = findIn(text, begin, soon, another);
    if (at == soon && soon != end) {
        const bool blocksTellIt = another == quote || another > 'z';
        at = blocksTellIt ? findByBlocks(text, soon, end, another)
                          : findIn(text, soon, end, another);
    }
    return static_cast<std::size_t>(at - text.data());
}

} // namespace zem::msglib
