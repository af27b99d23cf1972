#include "number/PowersOfTen.h"

#include <cmath>
#include <cstddef>
#include <iterator>

namespace zem::msglib {

namespace {

constexpr int least = -18;
constexpr double table[] = {1e-18, 1e-17, 1e-16, 1e-15, 1e-14, 1e-13, 1e-12, 1e-11, 1e-10, 1e-9,
                            1e-8,  1e-7,  1e-6,  1e-5,  1e-4,  1e-3,  1e-2,  1e-1,  1e0,   1e1,
                            1e2,   1e3,   1e4,   1e5,   1e6,   1e7,   1e8,   1e9,   1e10,  1e11,
                            1e12,  1e13,  1e14,  1e15,  1e16,  1e17,  1e18};

} // namespace

double powerOfTen(double exponent) noexcept {
    if (exponent >= least && exponent < least + static_cast<int>(std::size(table))) {
        return table[static_cast<int>(exponent) - least];
    }
#if defined(__MINGW32__)
    // Its pow for double is off by many bits: 28 units in the last place at 1e-30, 282 at 1e-292.
    return static_cast<double>(std::pow(10.0L, static_cast<long double>(exponent)));
#else
    return std::pow(10.0, exponent);
#endif
}

} // namespace zem::msglib
