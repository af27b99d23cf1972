#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace zem::msglib {

/// Everything that the library itself can fail with. Its fixed English words stand behind `raise`.
enum class Failure : std::uint8_t {
    InvalidMessageId,
    UnconvertibleMessage,
    UnexpectedClosingBrace,
    IllegalArgument,
    ArgumentIndexTooHigh,
    InvalidArgument,
    ChoiceStyleMissing,
    NotANumber,
    DigitMarkAfterZero,
    ZeroMarkAfterDigit,
    DigitMarkAfterZeroInExponent,
    MultiplierAlreadySet,
    SeparatorExpected,
    EndOfPatternExpected,
    ChoiceSyntax,
    InvalidDateArgument,
    AddressInNoModule,
    LongOutOfRange,
};

/// A failure to read a pattern, for tools that point at it. Callers of the library see no more than
/// a `std::runtime_error`.
class PatternFailure : public std::runtime_error {
public:
    PatternFailure(const char* words, std::size_t position)
        : std::runtime_error(words),
          position_(position) {}

    /// Returns the position in the pattern at which reading stopped; its size at the end.
    std::size_t position() const noexcept { return position_; }

private:
    std::size_t position_;
};

/// Throws the exception of `failure` with its words: `std::invalid_argument` for
/// `AddressInNoModule`, `std::out_of_range` for `LongOutOfRange` and `std::runtime_error` for every
/// other.
[[noreturn]] void raise(Failure failure);

/// Throws a `PatternFailure` with the words of `failure`.
[[noreturn]] void raise(Failure failure, std::size_t position);

} // namespace zem::msglib
