#pragma once

#include <cstddef>
#include <cstdint>

namespace zem::msglib::platform {

/// A view of untrusted bytes: every access is checked, and none requires alignment.
///
/// The bytes must outlive the view. Numbers are read in little-endian order; a number that isn't
/// wholly inside the view is 0.
class Bytes {
public:
    constexpr Bytes() noexcept = default;
    Bytes(const void* data, std::size_t size) noexcept
        : data_(static_cast<const unsigned char*>(data)),
          size_(size) {}

    const unsigned char* data() const noexcept { return data_; }
    std::size_t size() const noexcept { return size_; }

    /// Returns whether `count` bytes from `offset` on are inside the view.
    bool holds(std::size_t offset, std::size_t count) const noexcept {
        return offset <= size_ && count <= size_ - offset;
    }

    /// Returns `count` bytes from `offset` on, or none if they aren't all inside.
    Bytes part(std::size_t offset, std::size_t count) const noexcept {
        return holds(offset, count) ? Bytes(data_ + offset, count) : Bytes();
    }

    /// Returns the bytes from `offset` on, or none if that is outside.
    Bytes from(std::size_t offset) const noexcept {
        return offset <= size_ ? Bytes(data_ + offset, size_ - offset) : Bytes();
    }

    std::uint16_t u16(std::size_t offset) const noexcept {
        if (!holds(offset, 2)) {
            return 0;
        }
        return static_cast<std::uint16_t>(data_[offset] | data_[offset + 1] << 8);
    }

    std::uint32_t u32(std::size_t offset) const noexcept {
        if (!holds(offset, 4)) {
            return 0;
        }
        const unsigned char* at = data_ + offset;
        return at[0] | std::uint32_t{at[1]} << 8 | std::uint32_t{at[2]} << 16 |
               std::uint32_t{at[3]} << 24;
    }

private:
    const unsigned char* data_ = nullptr;
    std::size_t size_ = 0;
};

} // namespace zem::msglib::platform
