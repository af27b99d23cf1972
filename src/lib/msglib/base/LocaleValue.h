#pragma once

#include "platform/LocaleServices.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zem::msglib {

/// One value of the platform's fixed locale, in a buffer of `Size` bytes. After a failed query, the
/// text is empty.
template <int Size>
class LocaleValue {
public:
    /// Queries the value `lctype`.
    explicit LocaleValue(std::uint32_t lctype) noexcept
        : length_(platform::GetLocaleInfoA(platform::localeIdentifier, lctype, buffer_, Size) - 1) {
        if (!found()) {
            buffer_[0] = '\0';
        }
    }

    /// Returns whether the platform has the value.
    bool found() const noexcept { return length_ >= 0; }

    /// Returns the bytes before the terminator, which are valid as long as this object.
    std::string_view text() const noexcept {
        return {buffer_, static_cast<std::size_t>(found() ? length_ : 0)};
    }

    /// Returns the text as a C string.
    const char* c_str() const noexcept { return buffer_; }

    /// Returns the first byte, NUL for the empty text.
    char first() const noexcept { return buffer_[0]; }

private:
    char buffer_[Size];
    int length_; // -1 for a failed query
};

using LocaleNumberValue = LocaleValue<64>;
using LocaleDateValue = LocaleValue<81>;

} // namespace zem::msglib
