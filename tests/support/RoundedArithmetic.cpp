#include "support/RoundedArithmetic.h"

#include <boost/multiprecision/cpp_int.hpp>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zem::msglib {

namespace {

using boost::multiprecision::cpp_int;

constexpr int doubleDigits = 53;
constexpr int lowestExponent = -1074; // of the last bit of any double

/// The number `significand` times 2 to the power `exponent`.
struct Binary {
    cpp_int significand;
    int exponent;
};

Binary binaryOf(double x) {
    int exponent = 0;
    const double fraction = std::frexp(x, &exponent);
    const auto significand = static_cast<std::int64_t>(std::ldexp(fraction, doubleDigits));
    return {significand, exponent - doubleDigits};
}

int bitsOf(const cpp_int& number) {
    return number == 0 ? 0 : static_cast<int>(msb(number)) + 1;
}

/// Returns `dividend` by `divisor`, times 2 to the power `exponent`, as the nearest double.
double nearest(cpp_int dividend, const cpp_int& divisor, int exponent) {
    // Two more bits than a double has show on which side of a tie the quotient is.
    const int shift = std::max(0, doubleDigits + 2 - (bitsOf(dividend) - bitsOf(divisor)));
    dividend <<= shift;
    cpp_int quotient;
    cpp_int remainder;
    divide_qr(dividend, divisor, quotient, remainder);
    exponent -= shift;
    const int excess = std::max(bitsOf(quotient) - doubleDigits, lowestExponent - exponent);
    if (excess > 0) {
        const cpp_int half = cpp_int(1) << (excess - 1);
        const cpp_int dropped = quotient & (2 * half - 1);
        quotient >>= excess;
        exponent += excess;
        const bool isOdd = (quotient & 1) == 1;
        if (dropped > half || (dropped == half && (remainder != 0 || isOdd))) {
            ++quotient;
        }
    }
    return std::ldexp(static_cast<double>(static_cast<std::uint64_t>(quotient)), exponent);
}

} // namespace

double roundedSum(double left, double right) {
    Binary a = binaryOf(left);
    Binary b = binaryOf(right);
    const int exponent = std::min(a.exponent, b.exponent);
    a.significand <<= a.exponent - exponent;
    b.significand <<= b.exponent - exponent;
    return nearest(a.significand + b.significand, 1, exponent);
}

double roundedProduct(double left, double right) {
    const Binary a = binaryOf(left);
    const Binary b = binaryOf(right);
    return nearest(a.significand * b.significand, 1, a.exponent + b.exponent);
}

double roundedQuotient(double dividend, double divisor) {
    const Binary a = binaryOf(dividend);
    const Binary b = binaryOf(divisor);
    return nearest(a.significand, b.significand, a.exponent - b.exponent);
}

double roundedQuotientByPowerOfTen(double dividend, int exponent) {
    const Binary a = binaryOf(dividend);
    const cpp_int power = pow(cpp_int(10), static_cast<unsigned int>(std::abs(exponent)));
    return exponent < 0 ? nearest(a.significand * power, 1, a.exponent)
                        : nearest(a.significand, power, a.exponent);
}

} // namespace zem::msglib
