#pragma once

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// Reads the decimal digits from `position` on into `value`, at most nine, which any `int` holds.
///
/// @return how many there are; `value` is unchanged if there are none or more than nine
std::size_t readDigits(std::string_view text, std::size_t position, int& value) noexcept;

/// Reads the number that `text` begins with exactly as formatted extraction from a stream would, by
/// the global `std::locale`: leading white space is skipped, and what follows the number is
/// ignored.
///
/// A text of one to nine ASCII digits and nothing else is their decimal value under every locale. A
/// stream reads another one only if a facet of the global locale redefines plain digits.
///
/// @return whether there is a number in the range of `int`; `value` is unchanged if not
bool extractInt(std::string_view text, int& value);

/// The same for a `double`; what extraction leaves in a variable that was 0.0, if there is no
/// number.
double extractDouble(std::string_view text);

} // namespace zem::msglib
