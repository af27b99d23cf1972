#include "base/Scanning.h"

#include "base/Compiler.h"

#include <algorithm>
#include <cstring>
#include <iterator>

// Microsoft's compiler has no macro for SSE2, which every 64-bit x86 processor has.
#if defined(__SSE2__) || defined(_M_X64)
#define MSGLIB_HAS_SSE2
#include <emmintrin.h>
#endif
#if defined(_MSC_VER)
#include <intrin.h>
#endif

// `findSyntax` returns the first of four bytes in a text. Most texts between two syntax bytes are
// short, so it compares the first bytes vector by vector (byte by byte on a processor without SSE2)
// and uses `memchr`, which is faster on long texts, only after that.

namespace zem::msglib {

namespace {

const char* findByBytes(const char* at, const char* end, char delimiter) noexcept {
    while (at != end && *at != quote && *at != '{' && *at != '}' && *at != delimiter) {
        ++at;
    }
    return at;
}

#if defined(MSGLIB_HAS_SSE2)

constexpr std::ptrdiff_t vectorSize = 16;

// Returns the index of the lowest bit that is set. One must be set.
std::ptrdiff_t lowestBit(unsigned int bits) noexcept {
#if defined(_MSC_VER)
    unsigned long index = 0;
    _BitScanForward(&index, bits);
    return static_cast<std::ptrdiff_t>(index);
#else
    return __builtin_ctz(bits);
#endif
}

// Returns a mask with a bit for each byte of a vector, the lowest for the first. Syntax bytes have
// theirs set.
unsigned int syntaxIn(const char* vector, char delimiter) noexcept {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(vector));
    const auto are = [bytes](char c) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); };
    const __m128i found =
        _mm_or_si128(_mm_or_si128(are('{'), are('}')), _mm_or_si128(are(quote), are(delimiter)));
    return static_cast<unsigned int>(_mm_movemask_epi8(found));
}

// Finds the first syntax byte from `at` on. The last bytes, fewer than a vector, are compared in a
// vector that begins earlier.
const char* findIn(std::string_view text, const char* at, const char* end,
                   char delimiter) noexcept {
    for (; end - at >= vectorSize; at += vectorSize) {
        if (const unsigned int found = syntaxIn(at, delimiter)) {
            return at + lowestBit(found);
        }
    }
    if (end - text.data() < vectorSize) {
        return findByBytes(at, end, delimiter);
    }
    const unsigned int found = syntaxIn(end - vectorSize, delimiter) >> (vectorSize - (end - at));
    return found != 0 ? at + lowestBit(found) : end;
}

#else

const char* findIn(std::string_view, const char* at, const char* end, char delimiter) noexcept {
    return findByBytes(at, end, delimiter);
}

#endif

// Finds the first syntax byte of a long text by one `memchr` for each of the four. A match for one
// byte is the end of the search for the next. Windows limit how far it searches for a rare byte.
MSGLIB_NOINLINE const char* findByWindows(const char* at, const char* end,
                                          char delimiter) noexcept {
    constexpr std::ptrdiff_t windowSize = 8192;
    const char bytes[] = {quote, '{', '}', delimiter};
    const bool isDuplicate = delimiter == quote || delimiter == '}';
    const char* const lastByte = std::end(bytes) - (isDuplicate ? 1 : 0);
    while (at != end) {
        const char* const windowEnd = at + std::min(windowSize, end - at);
        const char* found = windowEnd;
        for (const char* byte = bytes; byte != lastByte; ++byte) {
            const void* const first = std::memchr(at, *byte, static_cast<std::size_t>(found - at));
            found = first != nullptr ? static_cast<const char*>(first) : found;
        }
        if (found != windowEnd) {
            return found;
        }
        at = windowEnd;
    }
    return end;
}

} // namespace

std::size_t findSyntax(std::string_view text, std::size_t position, char delimiter) noexcept {
    constexpr std::ptrdiff_t shortText = 128;
    const char* const end = text.data() + text.size();
    const char* const begin = text.data() + position;
    const char* const soon = begin + std::min(shortText, end - begin);
    const char* at = findIn(text, begin, soon, delimiter);
    if (at == soon && soon != end) {
        at = findByWindows(soon, end, delimiter);
    }
    return static_cast<std::size_t>(at - text.data());
}

} // namespace zem::msglib
