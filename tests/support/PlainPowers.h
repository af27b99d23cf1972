#pragma once

namespace zem::msglib {

/// Returns the double nearest to 10 to the power `exponent`, as the standard library parses it.
double plainPowerOfTen(int exponent);

/// Returns floor(log(x) / log(10.0)) for a positive finite `x`, with logarithms that are computed
/// to 50 digits and rounded to the nearest double.
int plainDecimalExponent(double x);

} // namespace zem::msglib
