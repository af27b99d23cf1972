#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace zem::msglib {

/// All failures that the library itself reports. `raise` has their fixed English texts.
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

/// A syntax error in a pattern, with its position for tools. Callers of the library only see a
/// `std::runtime_error`.
class PatternFailure : public std::runtime_error {
public:
    PatternFailure(const char* message, std::size_t position)
        : std::runtime_error(message),
          position_(position) {}

    /// Returns the position in the pattern at which parsing stopped, at most its size.
    std::size_t position() const noexcept { return position_; }

private:
    std::size_t position_;
};

/// Throws the exception of `failure` with its text: `std::invalid_argument` for
/// `AddressInNoModule`, `std::out_of_range` for `LongOutOfRange` and `std::runtime_error` for every
/// other.
[[noreturn]] void raise(Failure failure);

/// Throws a `PatternFailure` with the text of `failure`.
[[noreturn]] void raise(Failure failure, std::size_t position);

} // namespace zem::msglib
