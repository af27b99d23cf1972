#include "support/PlainPowers.h"

#include <boost/multiprecision/cpp_bin_float.hpp>

#include <cmath>
#include <cstdlib>
#include <string>

namespace zem::msglib {

namespace {

double nearestLogarithm(double x) {
    return static_cast<double>(log(boost::multiprecision::cpp_bin_float_50(x)));
}

} // namespace

// Clang's standard library has no `std::from_chars` for it. Without a decimal separator, no locale
// takes part.
double plainPowerOfTen(int exponent) {
    return std::strtod(("1e" + std::to_string(exponent)).c_str(), nullptr);
}

int plainDecimalExponent(double x) {
    // The last bits of the logarithms matter only next to whole quotients.
    const double quotient = std::log(x) / std::log(10.0);
    if (std::fabs(quotient - std::round(quotient)) > 1e-9) {
        return static_cast<int>(std::floor(quotient));
    }
    static const double logarithmOfTen = nearestLogarithm(10.0);
    return static_cast<int>(std::floor(nearestLogarithm(x) / logarithmOfTen));
}

} // namespace zem::msglib
