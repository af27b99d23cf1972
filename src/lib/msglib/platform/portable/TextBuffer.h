#pragma once

#include "platform/portable/LastError.h"

#include <cstddef>
#include <limits>
#include <string_view>

namespace zem::msglib::platform {

/// Writes text into a caller's buffer and counts its bytes, so that querying a length and writing
/// share their code.
///
/// Bytes that don't fit are counted and dropped. Size 0 is a query: no byte fits, and the buffer
/// may be null.
class TextBuffer {
public:
    /// Returns whether `buffer` and `size` are a query or a buffer that can be written to.
    static constexpr bool accepts(const char* buffer, int size) noexcept {
        return size == 0 || (size > 0 && buffer != nullptr);
    }

    /// `accepts(buffer, size)` must be true.
    TextBuffer(char* buffer, int size) noexcept
        : buffer_(buffer),
          size_(static_cast<std::size_t>(size)) {}

    void append(char byte) noexcept {
        if (length_ < size_) {
            buffer_[length_] = byte;
        }
        ++length_;
    }

    void append(std::string_view text) noexcept {
        const std::size_t space = length_ < size_ ? size_ - length_ : 0;
        std::size_t at = length_;
        for (const char byte : text.substr(0, space)) {
            buffer_[at++] = byte;
        }
        length_ += text.size();
    }

    /// Appends the terminator and returns the length with it; 0 for a buffer that was too short
    /// (122) and for a length beyond `int` (87).
    int finish() noexcept {
        append('\0');
        if (size_ != 0 && length_ > size_) {
            setLastError(ERROR_INSUFFICIENT_BUFFER);
            return 0;
        }
        if (length_ > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
            setLastError(ERROR_INVALID_PARAMETER);
            return 0;
        }
        return static_cast<int>(length_);
    }

private:
    char* buffer_;
    std::size_t size_;
    std::size_t length_ = 0;
};

} // namespace zem::msglib::platform
