#pragma once

#include "msglib/MessageFormatStream.h"

#include <chrono>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

/// What the functions of a generated header `<Name>Calls.h` share.
///
/// Such a function has the name of a message and takes its arguments:
///
///     AppMessages::MSG_COPIED(7, folder).toString()
///
/// It returns the `MessageFormatStream` of the message with these arguments. Each argument has a
/// kind, which follows from how the message uses it. A value of another type does not compile, and
/// neither does a wrong number of arguments; the error names message, argument and kind. What
/// compiles costs what the same stream costs when it is written by hand.
///
/// A kind is a class of two members: `accepts<Value>` is whether values of the type are of the
/// kind, and `add` appends one to a stream.
///
/// | Kind      | Values                                                                         |
/// |-----------|--------------------------------------------------------------------------------|
/// | `Number`  | arithmetic types, but of the character types only `signed` and `unsigned char` |
/// | `Time`    | `std::chrono::system_clock` times; seconds, as a number other than `bool`      |
/// | `Seconds` | numbers other than `bool`: for an argument that is used as number and as time  |
/// | `Text`    | what converts to `std::string_view`                                            |
/// | `Any`     | numbers, texts, and whatever else can be streamed, but no other stream         |
///
/// Enumerations are no numbers; unscoped ones can be streamed. `nullptr` is of no kind. A `const
/// char*` must not be null.
namespace zem::msglib::typed {

/// Whether a type holds a character, so that it is no number although it is arithmetic.
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

/// Whether a type is a time of the system's clock, of any precision.
template <class Value>
inline constexpr bool isSystemTime = false;
template <class Duration>
inline constexpr bool isSystemTime<std::chrono::time_point<std::chrono::system_clock, Duration>> =
    true;

/// Whether a stream of a message takes values of a type as arguments; other streams are none.
template <class Value, class = void>
inline constexpr bool isStreamable = false;
template <class Value>
inline constexpr bool isStreamable<Value, std::void_t<decltype(std::declval<MessageFormatStream&>()
                                                               << std::declval<const Value&>())>> =
    !std::is_base_of_v<MessageFormatStream, Value>;

/// A number. Integers keep their type, but `long` goes as `long long`, since the `long` of an
/// argument has 32 bits. Floating-point numbers go as `double`.
struct Number {
    /// Integers beyond 64 bits, which some compilers have, are none.
    template <class Value>
    static constexpr bool accepts = std::is_floating_point_v<Value> ||
                                    (std::is_integral_v<Value> && !isCharacter<Value> &&
                                     sizeof(Value) <= sizeof(long long));

    /// Adds a value that is accepted as an argument.
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
    /// Whether values of a type are accepted.
    template <class Value>
    static constexpr bool accepts = Number::accepts<Value> && !std::is_same_v<Value, bool>;

    /// Integers go as 64 bits, whatever width they have.
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
    /// Whether values of a type are accepted.
    template <class Value>
    static constexpr bool accepts = Seconds::accepts<Value> || isSystemTime<Value>;

    /// Adds a value that is accepted as an argument.
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

/// A text, of which the stream keeps a copy.
struct Text {
    /// Whether values of a type are accepted.
    template <class Value>
    static constexpr bool accepts =
        std::is_convertible_v<const Value&, std::string_view> && !std::is_null_pointer_v<Value>;

    /// Adds a value that is accepted as an argument.
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

/// A value that the message shows as it is.
struct Any {
    /// Whether values of a type are accepted.
    template <class Value>
    static constexpr bool accepts = Number::accepts<Value> || Text::accepts<Value> ||
                                    (isStreamable<Value> && !std::is_null_pointer_v<Value>);

    /// Adds a value that is accepted as an argument.
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

/// Adds a value as its kind does, or nothing if the kind does not accept it.
template <class Kind, class Value>
void addAccepted(MessageFormatStream& stream, const Value& value) {
    if constexpr (Kind::template accepts<Value>) {
        Kind::add(stream, value);
    }
}

/// False, but only known where a function is called: for functions that cannot be.
template <class... Values>
inline constexpr bool never = false;

/// Returns the stream of a message with its arguments, each added as its kind does.
///
/// A value that its kind does not accept adds nothing: the caller has refused it, and this gives no
/// second error.
template <class... Kinds, class... Values>
inline MessageFormatStream stream(unsigned int messageId, const Values&... values) {
    MessageFormatStream result(messageId); // returned in place; what << returns would be copied
    (addAccepted<Kinds>(result, values), ...);
    return result;
}

} // namespace zem::msglib::typed
