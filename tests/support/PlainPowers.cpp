#include "support/PlainPowers.h"

#include <boost/multiprecision/cpp_bin_float.hpp>

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

namespace zem::msglib {

namespace {

double nearestLogarithm(double x) {
    return static_cast<double>(log(boost::multiprecision::cpp_bin_float_50(x)));
}

} // namespace

double plainPowerOfTen(int exponent) {
    const std::string digits = "1e" + std::to_string(exponent);
    double power = 0.0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), power);
    if (read.ec == std::errc::result_out_of_range) {
        return exponent < 0 ? 0.0 : std::numeric_limits<double>::infinity();
    }
    return power;
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
