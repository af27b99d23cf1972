#include "base/Failure.h"

namespace zem::msglib {

namespace {

const char* messageOf(Failure failure) noexcept {
    switch (failure) {
    case Failure::InvalidMessageId: return "Invalid message ID";
    case Failure::UnconvertibleMessage: return "Unable to convert message string";
    case Failure::UnexpectedClosingBrace: return "unexpected closing brace";
    case Failure::IllegalArgument: return "Illegal argument in format string";
    case Failure::ArgumentIndexTooHigh:
        return "Argument index in format exceeds number of specified arguments";
    case Failure::InvalidArgument: return "Invalid argument";
    case Failure::ChoiceStyleMissing: return "style_ required for choice format";
    case Failure::NotANumber: return "Argument is not a number.";
    case Failure::DigitMarkAfterZero: return "digit mark (#) following zero-index";
    case Failure::ZeroMarkAfterDigit: return "zero mark following digit";
    case Failure::DigitMarkAfterZeroInExponent: return "digit mark (#) following zero in exponent";
    case Failure::MultiplierAlreadySet: return "multiplier already set";
    case Failure::SeparatorExpected: return "separator character expected";
    case Failure::EndOfPatternExpected: return "end of pattern expected";
    case Failure::ChoiceSyntax: return "Syntax error in choice format.";
    case Failure::InvalidDateArgument: return "Invalid date argument type";
    case Failure::AddressInNoModule: return "Address is not inside a loaded module";
    case Failure::LongOutOfRange: return "Value of type long is outside its 32-bit range";
    }
    return "";
}

} // namespace

void raise(Failure failure) {
    const char* message = messageOf(failure);
    switch (failure) {
    case Failure::AddressInNoModule: throw std::invalid_argument(message);
    case Failure::LongOutOfRange: throw std::out_of_range(message);
    default: throw std::runtime_error(message);
    }
}

void raise(Failure failure, std::size_t position) {
    throw PatternFailure(messageOf(failure), position);
}

} // namespace zem::msglib
