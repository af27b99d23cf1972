#pragma once

#include <boost/any.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// An argument of a message, and its written form.
struct WrittenArgument {
    std::string text; ///< `readArgument` reads it as `value`
    boost::any value;
};

/// Reads an argument from its written form:
///
///     7                  an integer: `int` if it fits, else 64 bits
///     1.5  1e6  inf      a `double`
///     true  false        a `bool`
///     2026-11-23T13:30   a point in time, seconds since 1970 began; with or without seconds, a "Z"
///                        or the time of day
///     Büro               a text, like everything else
///     "7"                a text, without its quotation marks
///
/// @throws CannotRun for a number out of range, and for a date or time of day that does not exist
///         or is before 1601
WrittenArgument readArgument(const std::string& text);

/// Returns a number, as an integer if it is a whole number below 10 to the power 15.
WrittenArgument numberArgument(double value);

/// Returns a text, written in quotation marks if it could be read as another kind.
WrittenArgument textArgument(std::string_view text);

/// Returns a point in time.
///
/// @param seconds  since 1970 began; of a year from 1601 to 9999
WrittenArgument timeArgument(std::int64_t seconds);

} // namespace zem::msglib::tool
