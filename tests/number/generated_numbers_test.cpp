#include "msglib/DecimalFormat.h"
#include "support/Emulation.h"
#include "support/PlainDecimal.h"
#include "support/PlainPowers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <ios>
#include <random>

namespace zem::msglib {
namespace {

// Returns doubles of the kinds that break number formatting, one kind after the other. Numbers with
// hundreds of digits take long, so they are rare.
double someDouble(int count, std::mt19937_64& random) {
    const std::uint64_t bits = random();
    const double sign = bits % 2 == 0 ? 1.0 : -1.0;
    const auto small = static_cast<double>(bits % 2000000);
    const int exponent = static_cast<int>(bits % 48) - 24;
    const double neighbour = sign * (count % 3 == 0 ? 1.0 : 1.0 + std::ldexp(count % 3 - 1.5, -52));
    if (count % 64 < 3) { // any bits, subnormal numbers, and those of few bits
        const std::uint64_t some = bits >> (count % 64 == 0 ? 0U : count % 64 == 1 ? 12U : 58U);
        double value = 0.0;
        std::memcpy(&value, &some, sizeof value);
        return value;
    }
    switch (count % 5) {
    case 0: return neighbour * (small + 0.5);
    case 1: return neighbour * (small + 0.5) / 1000.0;
    case 2: return neighbour * plainPowerOfTen(exponent);
    case 3: return sign * std::ldexp(0.5 + static_cast<double>(bits >> 11U) * 0x1p-53, 53);
    default: return sign * std::ldexp(static_cast<double>(bits >> 11U), exponent - 52);
    }
}

TEST(GeneratedNumbers, AgreeWithExactArithmetic) {
    const struct {
        int line;
        const char* pattern;
        PlainDecimal plain;
    } rows[] = {
        {__LINE__, "0", {"", "", "", "", 1, 0, 1, 0, 0, -1}},
        {__LINE__, "#,##0.00#", {"", "", "", "", 1, 3, 1, 2, 3, -1}},
        {__LINE__, "#.##%", {"", "%", "", "", 100, 0, 0, 0, 2, -1}},
        {__LINE__, "00.0###E00;#-", {"", "", "", "-", 1, 0, 2, 1, 4, 2}},
        {__LINE__, "\xA4#,##0.00;(\xA4#)", {"$", "", "($", ")", 1, 3, 1, 2, 2, -1}},
    };
    constexpr int numbers = runsUnderEmulator ? 10'000 : 200'000;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const DecimalFormat format(row.pattern, {});
        std::mt19937_64 random(20);
        for (int count = 0; count < numbers; ++count) {
            const double value = someDouble(count, random);
            std::string text;
            ASSERT_EQ(format.format(value, text), row.plain.text(value)) << std::hexfloat << value;
        }
    }
}

} // namespace
} // namespace zem::msglib
