#include "msglib/ChoiceFormat.h"
#include "msglib/DecimalFormat.h"
#include "support/Rendering.h"

#include <climits>
#include <cstdint>
#include <utility>

namespace zem::msglib {
namespace {

TEST(DecimalPattern, FailureKeepsTheCompiledParts) {
    const PatternCase rows[] = {
        {__LINE__, "0;(0#", "digit mark (#) following zero-index; 1.0-0 | 0 | 1234568 | (1235"},
        {__LINE__, "#,#.#0", "zero mark following digit; 0.0-0, |  | 1,2,3,4,5,6,8 | -1,2,3,5"},
        {__LINE__, "x0%a%", "multiplier already set; 1.0-0 | x0 | x123456789 | -x123450"},
        {__LINE__, "%0", "separator character expected; 0.0-0 | % | 123456789% | -123450%"},
        {__LINE__, "0.0.0", "separator character expected; 1.1-1 | 0.0 | 1234567.9 | -1234.5"},
        {__LINE__, "EUR 0", "separator character expected; 0.0-0 | EUR  | 1E6UR  | -1E3UR "},
        {__LINE__, "0;[0)0", "end of pattern expected; 1.0-0 | 0 | 1234568 | [1235)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        DecimalFormat format("(#,#00.00E00%;[#]", {});
        const std::string words = failureOf([&] { format.applyPattern(row.pattern); });
        EXPECT_EQ(words + "; " + dump(format), row.expected);
        EXPECT_EQ(failureOf([&] { DecimalFormat(row.pattern, {}); }), words);
    }
}

TEST(DecimalFormat, FormatsEdgeCases) {
    const auto write = [](const char* pattern, auto number) {
        const DecimalFormatSymbols symbols;
        return textOf(DecimalFormat(pattern, symbols), number);
    };
    EXPECT_EQ(write("#.000", 0.0), ".000");
    EXPECT_EQ(write("#.000", 0L), ".000");
    EXPECT_EQ(write("0", 0.49999999999999994), "1");
    EXPECT_EQ(write("0.0E0%", -1e307), "-1.#INF%");
    EXPECT_EQ(write("000.#E0", 5e-324), "494.1E-326");
    DecimalFormat format("#,##0", {});
    format.setGroupingUsed(false);
    EXPECT_EQ(textOf(format, 12345L), "12345");
    format.setMaximumIntegerDigits(3);
    EXPECT_EQ(textOf(format, 12345L) + textOf(format, 1e23), "345002");
}

using Setter = void (NumberFormat::*)(int);
using Step = std::pair<Setter, int>;

const Setter maxInt = &NumberFormat::setMaximumIntegerDigits;
const Setter minInt = &NumberFormat::setMinimumIntegerDigits;
const Setter maxFrac = &NumberFormat::setMaximumFractionDigits;
const Setter minFrac = &NumberFormat::setMinimumFractionDigits;

TEST(NumberFormat, SettersAdjustTheOtherLimit) {
    struct {
        int line;
        const char* pattern;
        Step first, second;
        const char* form; ///< the dump, and the text of the whole number 7
    } const rows[] = {
        {__LINE__, "#,##0", {maxInt, 9}, {maxInt, 4}, "1-4.0-0, | 0 | 4,568 | -1,235 | 7"},
        {__LINE__, "0", {maxInt, 1}, {maxInt, 0}, "0-0.0-0 |  |  | - | "},
        {__LINE__, "0", {maxInt, 3}, {minInt, 5}, "5-5.0-0 | 00000 | 34568 | -01235 | 00007"},
        {__LINE__, "0", {minInt, 5}, {maxInt, 3}, "3-3.0-0 | 000 | 568 | -235 | 007"},
        {__LINE__, "0", {maxFrac, 1}, {minFrac, 2}, "1.2-2 | 0.00 | 1234567.89 | -1234.50 | 7.00"},
        {__LINE__, "0", {minFrac, 2}, {maxFrac, 1}, "1.1-1 | 0.0 | 1234567.9 | -1234.5 | 7.0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const DecimalFormat original(row.pattern, {});
        const std::string before = dump(original);
        DecimalFormat changed = original;
        for (const auto& [setter, value] : {row.first, row.second}) {
            (changed.*setter)(value);
        }
        EXPECT_EQ(dump(changed) + " | " + textOf(changed, 7L), row.form);
        changed.applyPattern(row.pattern);
        EXPECT_EQ(dump(changed), before);
        EXPECT_EQ(dump(original), before);
    }
}

TEST(NumberFormat, LongBeyond32BitsThrows) {
    if (sizeof(long) == sizeof(std::int32_t)) {
        GTEST_SKIP() << "long has no values beyond 32 bits";
    }
    const DecimalFormat decimal("(0)", {});
    const DecimalFormat exponential("(0E0)", {});
    const ChoiceFormat choice("0#a");
    const std::string words = "!Value of type long is outside its 32-bit range";
    for (const long long value : {2147483648LL, -2147483649LL, LLONG_MAX, LLONG_MIN}) {
        const long beyond = static_cast<long>(value);
        EXPECT_EQ(textOf(decimal, beyond), words);
        EXPECT_EQ(textOf(exponential, beyond), words);
        EXPECT_EQ(textOf(choice, beyond), words);
    }
}

} // namespace
} // namespace zem::msglib
