#pragma once

#include "msglib/MessageFormatStream.h"

#include <chrono>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

/// What the functions of a generated header `<Name>Calls.h` share.
///
/// Each function has the symbol of a message as its name and takes the message's arguments:
///
///     AppMessages::MSG_COPIED(7, folder).toString()
///
/// It returns the `MessageFormatStream` of the message with these arguments. Each argument has a
/// kind, which follows from how the message uses it. A value of another kind does not compile, and
/// neither does a wrong number of arguments; the error names message, argument and kind. A call
/// costs as much as the same stream written by hand.
///
/// A kind is a class with two members: `accepts<Value>` is true if values of that type are of the
/// kind, and `add` adds one to a stream.
///
/// | Kind      | Values                                                                         |
/// |-----------|--------------------------------------------------------------------------------|
/// | `Number`  | arithmetic types; of the character types only `signed` and `unsigned char`     |
/// | `Time`    | `std::chrono::system_clock` times; seconds, as a number other than `bool`      |
/// | `Seconds` | numbers other than `bool`, for an argument that is both a number and a time    |
/// | `Text`    | what converts to `std::string_view`                                            |
/// | `Any`     | numbers, texts, and any other type that can be streamed, except streams        |
///
/// Enumerations aren't numbers, but unscoped ones can be streamed. `nullptr` is of no kind. A
/// `const char*` must not be null.
namespace zem::msglib::typed {

/// True for an arithmetic type that holds a character and is therefore not a number.
template <class Value>
inline constexpr bool isCharacter = false;
/// A character type.
template <>
inline constexpr bool isCharacter<char> = true;
/// A character type.
template <>
inline constexpr bool isCharacter<wchar_t> = true;
/// A character type.
template <>
inline constexpr bool isCharacter<char16_t> = true;
/// A character type.
template <>
inline constexpr bool isCharacter<char32_t> = true;
#if defined(__cpp_char8_t)
/// A character type.
template <>
inline constexpr bool isCharacter<char8_t> = true;
#endif

/// True for a time of the system's clock, of any precision.
template <class Value>
inline constexpr bool isSystemTime = false;
template <class Duration>
inline constexpr bool isSystemTime<std::chrono::time_point<std::chrono::system_clock, Duration>> =
    true;

/// True if a message stream accepts values of the type as arguments; false for message streams.
template <class Value, class = void>
inline constexpr bool isStreamable = false;
template <class Value>
inline constexpr bool isStreamable<Value, std::void_t<decltype(std::declval<MessageFormatStream&>()
                                                               << std::declval<const Value&>())>> =
    !std::is_base_of_v<MessageFormatStream, Value>;

/// A number. Integers keep their type, except that `long` becomes `long long`, since a `long`
/// argument has 32 bits. Floating-point numbers become `double`.
struct Number {
    /// Some compilers have integers of more than 64 bits, which are not accepted.
    template <class Value>
    static constexpr bool accepts = std::is_floating_point_v<Value> ||
                                    (std::is_integral_v<Value> && !isCharacter<Value> &&
                                     sizeof(Value) <= sizeof(long long));

    /// Adds an accepted value as an argument.
    template <class Value>
    static void add(MessageFormatStream& stream, Value value) {
        if constexpr (std::is_floating_point_v<Value>) {
            stream << static_cast<double>(value);
        } else if constexpr (std::is_same_v<Value, long>) {
            stream << static_cast<long long>(value);
        } else if constexpr (std::is_same_v<Value, unsigned long>) {
            stream << static_cast<unsigned long long>(value);
        } else {
            stream << value;
        }
    }
};

/// A point in time as seconds since 1970-01-01 00:00:00, which may also be used as a number.
struct Seconds {
    /// True for the types whose values are accepted.
    template <class Value>
    static constexpr bool accepts = Number::accepts<Value> && !std::is_same_v<Value, bool>;

    /// Adds an accepted value. Integers of any width become 64 bits wide.
    template <class Value>
    static void add(MessageFormatStream& stream, Value value) {
        if constexpr (std::is_floating_point_v<Value>) {
            stream << static_cast<double>(value);
        } else if constexpr (std::is_signed_v<Value>) {
            stream << static_cast<long long>(value);
        } else {
            stream << static_cast<unsigned long long>(value);
        }
    }
};

/// A point in time: `Seconds`, or a time of the system's clock in any unit, rounded down to whole
/// seconds.
struct Time {
    /// True for the types whose values are accepted.
    template <class Value>
    static constexpr bool accepts = Seconds::accepts<Value> || isSystemTime<Value>;

    /// Adds an accepted value as an argument.
    template <class Value>
    static void add(MessageFormatStream& stream, const Value& value) {
        if constexpr (isSystemTime<Value>) {
            using WholeSeconds = std::chrono::duration<long long>;
            stream << std::chrono::floor<WholeSeconds>(value).time_since_epoch().count();
        } else {
            Seconds::add(stream, value);
        }
    }
};

/// A text. The stream stores a copy.
struct Text {
    /// True for the types whose values are accepted.
    template <class Value>
    static constexpr bool accepts =
        std::is_convertible_v<const Value&, std::string_view> && !std::is_null_pointer_v<Value>;

    /// Adds an accepted value as an argument.
    template <class Value>
    static void add(MessageFormatStream& stream, const Value& value) {
        if constexpr (std::is_same_v<Value, std::string> || !std::is_class_v<Value>) {
            stream << value;
        } else {
            const std::string_view text = value;
            stream << text;
        }
    }
};

/// A value of any kind, for a placeholder without a type.
struct Any {
    /// True for the types whose values are accepted.
    template <class Value>
    static constexpr bool accepts = Number::accepts<Value> || Text::accepts<Value> ||
                                    (isStreamable<Value> && !std::is_null_pointer_v<Value>);

    /// Adds an accepted value as an argument.
    template <class Value>
    static void add(MessageFormatStream& stream, const Value& value) {
        if constexpr (Number::accepts<Value>) {
            Number::add(stream, value);
        } else if constexpr (Text::accepts<Value>) {
            Text::add(stream, value);
        } else {
            stream << value;
        }
    }
};

/// Adds a value by its kind, or nothing if the kind doesn't accept it.
template <class Kind, class Value>
void addAccepted(MessageFormatStream& stream, const Value& value) {
    if constexpr (Kind::template accepts<Value>) {
        Kind::add(stream, value);
    }
}

/// Always false, but dependent: for a `static_assert` in an overload that rejects every call.
template <class... Values>
inline constexpr bool never = false;

/// Returns the stream of a message with its arguments, each added by its kind.
///
/// A value that its kind doesn't accept adds nothing: the caller has already reported the error,
/// and a second one would hide it.
template <class... Kinds, class... Values>
inline MessageFormatStream stream(unsigned int messageId, const Values&... values) {
    MessageFormatStream result(messageId); // the reference that << returns would be copied
    (addAccepted<Kinds>(result, values), ...);
    return result;
}

} // namespace zem::msglib::typed
