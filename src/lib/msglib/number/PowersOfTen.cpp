#include "number/PowersOfTen.h"

#include "number/PowersOfTenTables.h"

#include <cstddef>
#include <cstring>
#include <iterator>
#include <limits>

namespace zem::msglib {

// The last bits of `pow` and `log` depend on the C library and the processor, and the digits would
// too. These tables replace both. The index of an entry is its exponent minus the first exponent.
static_assert(std::size(powersOfTen) == lastPowerOfTen - firstPowerOfTen + 1);
static_assert(std::size(exponentDistances) == std::size(powersOfTen));

namespace {

// Positive doubles have the same order as their bits.
std::int64_t bitsOf(double x) noexcept {
    std::int64_t bits = 0;
    static_assert(sizeof bits == sizeof x);
    std::memcpy(&bits, &x, sizeof bits);
    return bits;
}

std::int64_t lowestBitsWithExponentAt(std::size_t index) noexcept {
    return bitsOf(powersOfTen[index]) + exponentDistances[index];
}

} // namespace

double powerOfTen(std::int64_t exponent) noexcept {
    if (exponent < firstPowerOfTen) {
        return 0.0;
    }
    if (exponent > lastPowerOfTen) {
        return std::numeric_limits<double>::infinity();
    }
    return powersOfTen[exponent - firstPowerOfTen];
}

int decimalExponent(double x) noexcept {
    // For each binary exponent, two decimal exponents are possible, and a few more if x is
    // subnormal. The search begins at the highest. With f for the exponent field, x is less than 2
    // to the power f - 1022, so the index is at most (f - 1022) * log10(2) + 324. Both constants
    // are in units of 2 to the power -20 and rounded up.
    constexpr std::int64_t log10Of2 = 315653;
    constexpr std::int64_t indexOfLeastNormal = 17141434;
    const std::int64_t bits = bitsOf(x);
    auto index = static_cast<std::size_t>(((bits >> 52) * log10Of2 + indexOfLeastNormal) >> 20);
    while (bits < lowestBitsWithExponentAt(index)) {
        --index;
    }
    return static_cast<int>(index) + firstPowerOfTen;
}

} // namespace zem::msglib
