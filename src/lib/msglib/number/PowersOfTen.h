#pragma once

namespace zem::msglib {

/// Returns 10 to the power `exponent`, which may be any `double` that holds an integer.
///
/// The same bits as `std::pow(10.0, exponent)`. Small exponents come from a table, and a test
/// compares the two.
double powerOfTen(double exponent) noexcept;

} // namespace zem::msglib
