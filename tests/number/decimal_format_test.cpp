#include "msglib/DecimalFormat.h"
#include "support/Rendering.h"

#include <cmath>
#include <limits>

namespace zem::msglib {
namespace {

// The plain dump, and behind it a whole number with grouping switched on, which shows the group
// size.
std::string compiledForm(const DecimalFormat& format) {
    DecimalFormat grouped = format;
    grouped.setGroupingUsed(true);
    return dump(format) + " | " + textOf(grouped, 12345L);
}

TEST(DecimalPattern, CompilesToItsFields) {
    const PatternCase rows[] = {
        {__LINE__, "", "0.0-0 |  | 1234568 | -1235 | 12345"},
        {__LINE__, "##00.", "2.0-0 | 00 | 1234568 | -1235 | 1,2345"},
        {__LINE__, ".0##", "0.1-3 | .0 | 1234567.891 | -1234.5 | 12345.0"},
        {__LINE__, "#,#,##0.###", "1.0-3, | 0 | 1,234,567.891 | -1,234.5 | 12,345"},
        {__LINE__, "#,##", "0.0-0, |  | 1,23,45,68 | -12,35 | 1,23,45"},
        {__LINE__, "0,0", "2.0-0, | 0,0 | 1,2,3,4,5,6,8 | -1,2,3,5 | 1,2,3,4,5"},
        {__LINE__, "0,", "1.0-0, | 0 | 1234568 | -1235 | 12345"},
        {__LINE__, "%", "0.0-0 | % | 123456789% | -123450% | 12345%"},
        {__LINE__, "0;0%", "1.0-0 | 0 | 123456789 | 123450% | 1,2,3,4,5"},
        {__LINE__, "0%;-%", "1.0-0 | 0% | 123456789% | -123450% | 1,2,3,4,5%"},
        {__LINE__, "$0.00;($#,#)", "1.2-2 | $0.00 | $1234567.89 | ($1234.50) | $1,2,3,4,5.00"},
        {__LINE__, "\xA4\xA4 0", "1.0-0 | USD 0 | USD 1234568 | -USD 1235 | USD 1,2,3,4,5"},
        {__LINE__, "0\xA4\xA4\xA4", "1.0-0 | 0USD$ | 1234568USD$ | -1235USD$ | 1,2,3,4,5USD$"},
        {__LINE__, "$0 kg;(#", "1.0-0 | $0 kg | $1234568 kg | (1235 kg | $1,2,3,4,5 kg"},
        {__LINE__, "$0 kg;#-", "1.0-0 | $0 kg | $1234568 kg | $1235- | $1,2,3,4,5 kg"},
        {__LINE__, "0;#0.0##E#0", "1.0-0 | 0 | 1234568 | -1235 | 1,2,3,4,5"},
        {__LINE__, "1#2", "0.0-0 | 12 | 112345682 | -112352 | 11,2,3,4,52"},
        {__LINE__, "'%'0';'", "1.0-0 | %0; | %1234568; | -%1235; | %1,2,3,4,5;"},
        {__LINE__, "'ab'''0'", "0.0-0 | 'ab'0 | 'ab'01234568 | -'ab'01235 | 'ab'012345"},
        {__LINE__, "00.#E00", "2.0-1 | 00E00 | 12.3E05 | -12.3E02 | 12.3E03"},
        {__LINE__, "0E##0", "1.0-0 | 0E0 | 1E6 | -1E3 | 1E4"},
        {__LINE__, "#.##E", "0.0-2 | E | 1.23E6 | -1.23E3 | 1.23E4"},
        {__LINE__, "0.##E0%", "1.0-2 | 0E0% | 1.23E8% | -1.23E5% | 1.23E6%"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(compiledForm(DecimalFormat(row.pattern, {})), row.expected);
    }
    const DecimalFormat wide(std::string(400, '0') + "." + std::string(2000, '0'), {});
    EXPECT_EQ(textOf(wide, 0.5), std::string(309, '0') + ".5" + std::string(1999, '0'));
    EXPECT_EQ(textOf(wide, 5L), std::string(308, '0') + "5." + std::string(2000, '0'));
}

TEST(DecimalPattern, FailsAndKeepsWhatWasCompiled) {
    const PatternCase rows[] = {
        {__LINE__, "a#,0#", "digit mark (#) following zero-index; 1.0-0 | a0 | a1234568 | -a1235"},
        {__LINE__, "0,#", "digit mark (#) following zero-index; 1.0-0 | 0 | 1234568 | -1235"},
        {__LINE__, "0;(0#", "digit mark (#) following zero-index; 1.0-0 | 0 | 1234568 | (1235"},
        {__LINE__, "#,#.#0", "zero mark following digit; 0.0-0, |  | 1,2,3,4,5,6,8 | -1,2,3,5"},
        {__LINE__, "0;#.#0", "zero mark following digit; 1.0-0 | 0 | 1234568 | -1235"},
        {__LINE__, ".0E0#",
         "digit mark (#) following zero in exponent; 0.1-1 | .0 | 1234567.9 | -1234.5"},
        {__LINE__, "x0%a%", "multiplier already set; 1.0-0 | x0 | x123456789 | -x123450"},
        {__LINE__, "0;(0)%%", "multiplier already set; 1.0-0 | 0 | 123456789 | (123450"},
        {__LINE__, "%0", "separator character expected; 0.0-0 | % | 123456789% | -123450%"},
        {__LINE__, "0.0.0", "separator character expected; 1.1-1 | 0.0 | 1234567.9 | -1234.5"},
        {__LINE__, "0 EUR", "separator character expected; 1.0-0 | 0  | 1234568  | -1235 "},
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

TEST(DecimalFormat, WritesNumbers) {
    const double infinity = std::numeric_limits<double>::infinity();
    struct {
        int line;
        const char* pattern;
        double value;
        const char* text;
        const char* longText = nullptr; ///< of a whole number, if it isn't the same
    } const rows[] = {
        {__LINE__, "#,##0.###", 0.0005, "0.001"},
        {__LINE__, "#.##", -0.0001, "-"},
        {__LINE__, "#.000", 0.0, ".000"},
        {__LINE__, "0,000,000", 12.0, "0,000,012"},
        {__LINE__, "0", -2.5, "-3"},
        {__LINE__, "0", 0.49999999999999994, "1"},
        {__LINE__, "0.00", 1.005, "1.00"},
        {__LINE__, "#,##0.##", 0.125, "0.13"},
        {__LINE__, "0.0%", 0.12345, "12.3%"},
        {__LINE__, "0.00%;#-", -5.0, "500.00-", "5.00-"},
        {__LINE__, "#,##0", -2147483648.0, "-2,147,483,648"},
        {__LINE__, "(0%)", NAN, "1.#NaN"},
        {__LINE__, "$0.0E0;(#)", -infinity, "(1.#INF)"},
        {__LINE__, "(0%)", 1e307, "(1.#INF%)"},
        {__LINE__, "0.0E0%", -1e307, "-1.#INF%"},
        {__LINE__, "#,##0.###", 1e23, "100,000,000,000,000,000,000,002"},
        {__LINE__, "0", 0x1p52 + 1, "4503599627370498"},
        {__LINE__, "0.####################", 1.0 / 3.0, "0.33333333333333330372"},
        {__LINE__, "0.##E0%", 5.0, "5E2%"},
        {__LINE__, "0.###E0", 1000.0, "10E2"},
        {__LINE__, "0.###E00", -0.00000015, "-1.5E-07"},
        {__LINE__, "0.00E0", 9.9999, "10.00E0"},
        {__LINE__, "000.#E0", 5e-324, "494.1E-326"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const DecimalFormat format(row.pattern, {});
        EXPECT_EQ(textOf(format, row.value), row.text);
        if (std::fabs(row.value) < 0x1p32 && std::floor(row.value) == row.value) {
            const char* const text = row.longText != nullptr ? row.longText : row.text;
            EXPECT_EQ(textOf(format, static_cast<long>(row.value)), text);
        }
    }
    DecimalFormat endless("0.#", {});
    endless.setMaximumFractionDigits(std::numeric_limits<int>::max());
    EXPECT_EQ(textOf(endless, 5e-324).substr(0, 335), "0." + std::string(323, '0') + "4940656458");
}

} // namespace
} // namespace zem::msglib
