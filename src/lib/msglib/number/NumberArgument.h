#pragma once

#include <boost/any.hpp>

namespace zem::msglib {

/// Returns an argument of any numeric kind as a `double`, an `Angle` in degrees.
///
/// @throws std::runtime_error "Argument is not a number." for any other kind
/// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
double readNumber(const boost::any& argument);

} // namespace zem::msglib
