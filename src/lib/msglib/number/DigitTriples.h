#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zem::msglib {

/// Writes digits three at a time, from a table.
class DigitTriples {
public:
    /// The most bytes that one call may overwrite.
    static constexpr std::size_t writeSize = 4;

    /// @param zeroDigit  the byte of the digit zero; the other digits are the nine bytes after it
    explicit DigitTriples(char zeroDigit) noexcept
        : low_((static_cast<unsigned char>(zeroDigit) & 0x7FU) * 0x01010101U),
          high_((static_cast<unsigned char>(zeroDigit) & 0x80U) * 0x01010101U) {}

    /// Writes all three digits of a number below 1,000 and returns where they end.
    char* write(unsigned int number, char* at) const noexcept {
        put(table_.rows[number], at);
        return at + 3;
    }

    /// Writes the number without leading zeros, 0 as one digit, and returns where it ends.
    char* writeFirst(unsigned int number, char* at) const noexcept {
        const std::size_t zeros = (number < 100 ? 1U : 0U) + (number < 10 ? 1U : 0U);
        put(table_.rows[number] + zeros, at);
        return at + 3 - zeros;
    }

    /// Returns how many of the three digits remain without trailing zeros.
    static std::size_t significantDigits(unsigned int number) noexcept {
        return static_cast<std::size_t>(table_.rows[number][3]);
    }

private:
    // Adds the zero digit to all bytes at once. No byte carries into the next: those of the table
    // are below ten, and the highest bits are added without carry.
    void put(const char* digits, char* at) const noexcept {
        std::uint32_t bytes = 0;
        std::memcpy(&bytes, digits, sizeof bytes);
        bytes = (bytes + low_) ^ high_;
        std::memcpy(at, &bytes, sizeof bytes);
    }

    // A row has the three digits of a number below 1,000 as bytes from 0 to 9, and the result of
    // `significantDigits`.
    struct Table {
        char rows[1000][4];
    };
    static constexpr Table makeTable() noexcept;
    static const Table table_;

    std::uint32_t low_;
    std::uint32_t high_;
};

} // namespace zem::msglib
