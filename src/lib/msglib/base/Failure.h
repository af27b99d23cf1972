#pragma once

#include <cstdint>

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

/// Throws the exception of `failure` with its words: `std::invalid_argument` for
/// `AddressInNoModule`, `std::out_of_range` for `LongOutOfRange` and `std::runtime_error` for every
/// other.
[[noreturn]] void raise(Failure failure);

} // namespace zem::msglib
