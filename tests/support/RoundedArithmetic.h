#pragma once

namespace zem::msglib {

/// Binary64 operations on non-negative finite numbers, computed without any binary64 operation: the
/// exact result is a quotient of whole numbers of any size, which is rounded to the nearest double,
/// a tie to the one with an even last bit.

/// Returns the rounded sum.
double roundedSum(double left, double right);

/// Returns the rounded product.
double roundedProduct(double left, double right);

/// Returns the rounded quotient. `divisor` must not be 0.
double roundedQuotient(double dividend, double divisor);

/// Returns the quotient of `dividend` by 10 to the power `exponent`, which is exact and need not be
/// a double, rounded once.
double roundedQuotientByPowerOfTen(double dividend, int exponent);

} // namespace zem::msglib
