#pragma once

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// Reads the decimal digits from `position` on into `value`: at most nine, which every `int` holds.
///
/// @return the number of digits, or 0, with `value` unchanged, for none and for more than nine
std::size_t readDigits(std::string_view text, std::size_t position, int& value) noexcept;

/// Reads the number at the beginning of `text` exactly as formatted extraction from a stream does,
/// with the global `std::locale`: leading white space is skipped, and everything after the number
/// is ignored.
///
/// One to nine ASCII digits without anything else have their decimal value under every locale. A
/// stream differs only if a facet of the global locale redefines plain digits.
///
/// @return whether `text` begins with a number in the range of `int`; `value` is unchanged if not
bool extractInt(std::string_view text, int& value);

/// Reads a `double` in the same way. Without a number, returns what extraction leaves in a variable
/// that was 0.0.
double extractDouble(std::string_view text);

} // namespace zem::msglib
