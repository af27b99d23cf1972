#include "platform/MessageTables.h"
#include "platform/portable/LastError.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <cstring>

// Converts UTF-16 to UTF-8: one code point at a time, except that runs of ASCII are copied in
// blocks. Measuring takes the same steps without writing.

namespace zem::msglib::platform {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

bool isHighSurrogate(char32_t unit) noexcept {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isLowSurrogate(char32_t unit) noexcept {
    return unit >= 0xDC00 && unit < 0xE000;
}

/// Reads one code point from the front of `text`, which isn't empty, and advances `text` past it.
char32_t nextCodePoint(const char16_t*& text, const char16_t* end) noexcept {
    const char32_t unit = *text++;
    if (isHighSurrogate(unit) && text != end && isLowSurrogate(*text)) {
        return 0x10000 + ((unit - 0xD800) << 10) + (*text++ - char32_t{0xDC00});
    }
    return isHighSurrogate(unit) || isLowSurrogate(unit) ? replacementCharacter : unit;
}

constexpr std::size_t blockSize = 16;

/// Returns whether all units of a block are ASCII; tests four units at a time.
bool isAscii(const char16_t* block) noexcept {
    constexpr std::uint64_t otherBits = 0xFF80'FF80'FF80'FF80;
    std::uint64_t words[blockSize * sizeof *block / sizeof(std::uint64_t)];
    std::memcpy(words, block, sizeof words);
    return ((words[0] | words[1] | words[2] | words[3]) & otherBits) == 0;
}

/// The UTF-8 bytes of one code point.
struct Sequence {
    std::array<char, 4> bytes;
    std::size_t size;
};

Sequence encode(char32_t code) noexcept {
    const auto lead = [code](unsigned mark, int shift) {
        return static_cast<char>(mark | code >> shift);
    };
    const auto trail = [code](int shift) {
        return static_cast<char>(0x80 | (code >> shift & 0x3F));
    };
    if (code < 0x80) {
        return {{lead(0, 0)}, 1};
    }
    if (code < 0x800) {
        return {{lead(0xC0, 6), trail(0)}, 2};
    }
    if (code < 0x10000) {
        return {{lead(0xE0, 12), trail(6), trail(0)}, 3};
    }
    return {{lead(0xF0, 18), trail(12), trail(6), trail(0)}, 4};
}

/// Copies ASCII from the front of `text` to `output`, at most `capacity` bytes, and advances `text`
/// past it. Returns the number of bytes.
std::size_t copyAscii(const char16_t*& text, const char16_t* end, char* output,
                      std::size_t capacity) noexcept {
    const std::size_t most = std::min(static_cast<std::size_t>(end - text), capacity);
    std::size_t count = 0;
    for (; most - count >= blockSize && isAscii(text + count); count += blockSize) {
        for (std::size_t i = 0; i < blockSize; ++i) {
            output[count + i] = static_cast<char>(text[count + i]);
        }
    }
    while (count < most && text[count] < 0x80) {
        output[count] = static_cast<char>(text[count]);
        ++count;
    }
    text += count;
    return count;
}

} // namespace

int WideCharToMultiByte(std::uint32_t codePage, std::uint32_t, const char16_t* text, int count,
                        char* output, int size, const char*, bool*) noexcept {
    const bool measuring = size == 0;
    if (codePage != CP_UTF8 || text == nullptr || count <= 0 || size < 0 ||
        (output == nullptr && !measuring)) {
        setLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    const auto capacity = static_cast<std::size_t>(measuring ? INT_MAX : size);
    std::size_t written = 0;
    for (const char16_t* end = text + count; text != end;) {
        if (!measuring) {
            written += copyAscii(text, end, output + written, capacity - written);
        }
        if (text == end) {
            break;
        }
        const Sequence sequence = encode(nextCodePoint(text, end));
        if (sequence.size > capacity - written) {
            setLastError(ERROR_INSUFFICIENT_BUFFER);
            return 0;
        }
        if (!measuring) {
            std::memcpy(output + written, sequence.bytes.data(), sequence.size);
        }
        written += sequence.size;
    }
    return static_cast<int>(written);
}

} // namespace zem::msglib::platform
