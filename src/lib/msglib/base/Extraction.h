#pragma once

#include <optional>
#include <string>

namespace zem::msglib {

/// Reads the number that `text` begins with exactly as formatted extraction from a stream would, by
/// the global `std::locale`: leading white space is skipped, and what follows the number is
/// ignored.
///
/// Plain digits take a short way to the same value.
///
/// @return nothing if there is no number, or none in the range of `int`
std::optional<int> extractInt(const std::string& text);

/// The same for a `double`; what extraction leaves in a variable that was 0.0, if there is no
/// number.
double extractDouble(const std::string& text);

} // namespace zem::msglib
