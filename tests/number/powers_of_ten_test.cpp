#include "number/DigitWriter.h"
#include "number/PowersOfTen.h"
#include "support/PlainPowers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <ios>
#include <limits>

namespace zem::msglib {
namespace {

double doubleOf(std::int64_t bits) {
    double x = 0.0;
    std::memcpy(&x, &bits, sizeof x);
    return x;
}

std::int64_t bitsOf(double x) {
    std::int64_t bits = 0;
    std::memcpy(&bits, &x, sizeof bits);
    return bits;
}

// Finds the lowest double with the exponent, by a binary search around the power of ten.
double leastWithExponent(int exponent) {
    std::int64_t low = std::max(bitsOf(plainPowerOfTen(exponent)) - 4096, std::int64_t{1});
    std::int64_t high = low + 8192;
    while (low < high) {
        const std::int64_t middle = low + (high - low) / 2;
        if (plainDecimalExponent(doubleOf(middle)) < exponent) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return doubleOf(low);
}

TEST(PowersOfTen, AreTheNearestDoubles) {
    for (int exponent = -400; exponent <= 400; ++exponent) {
        EXPECT_EQ(powerOfTen(exponent), plainPowerOfTen(exponent)) << exponent;
        EXPECT_EQ(roundingOf(exponent), plainPowerOfTen(-exponent - 1) * 5.0) << exponent;
    }
    EXPECT_EQ(powerOfTen(std::numeric_limits<std::int64_t>::min()), 0.0);
    EXPECT_EQ(powerOfTen(std::numeric_limits<std::int64_t>::max()), HUGE_VAL);
}

TEST(PowersOfTen, DecimalExponentsChangeWhereExactLogarithmsChangeThem) {
    for (int exponent = -323; exponent <= 308; ++exponent) {
        const double least = leastWithExponent(exponent);
        EXPECT_EQ(decimalExponent(least), exponent) << std::hexfloat << least;
        EXPECT_EQ(decimalExponent(std::nextafter(least, 0.0)), exponent - 1) << exponent;
    }
}

TEST(PowersOfTen, DecimalExponentsAtBothEndsOfEveryBinaryExponent) {
    for (int exponent = -1074; exponent <= 1023; ++exponent) {
        const double first = std::ldexp(1.0, exponent);
        const double last = std::nextafter(first * 2.0, 0.0);
        EXPECT_EQ(decimalExponent(first), plainDecimalExponent(first)) << exponent;
        EXPECT_EQ(decimalExponent(last), plainDecimalExponent(last)) << exponent;
    }
}

} // namespace
} // namespace zem::msglib
