#pragma once

#include "base/Binary64.h"

#include <cstdint>

namespace zem::msglib {

/// Returns the double nearest to 10 to the power `exponent`: 0 below -323, infinity above 308.
double powerOfTen(std::int64_t exponent) noexcept;

/// Returns floor(log(x) / log(10.0)) for a positive finite `x`, where `log` and the division round
/// to the nearest double.
///
/// This is not always the exponent of the first digit: 1000 has 2, since the quotient is
/// 2.9999999999999996.
int decimalExponent(double x) noexcept;

} // namespace zem::msglib
