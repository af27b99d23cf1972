#include "msglib/ChoiceFormat.h"

#include "base/Extraction.h"
#include "support/Rendering.h"

#include <cmath>
#include <iomanip>
#include <limits>
#include <locale>

namespace zem::msglib {
namespace {

using Limits = std::numeric_limits<double>;

// The choice for NaN, and every other one that rising numbers meet, behind the first number that
// meets it.
std::string choicesOf(const ChoiceFormat& format) {
    std::string last = textOf(format, Limits::quiet_NaN());
    std::ostringstream choices;
    choices << std::setprecision(17) << last;
    for (const double probe :
         {-Limits::infinity(), -1.0, -Limits::denorm_min(), 0.0, Limits::denorm_min(), 1.0,
          1.0 + Limits::epsilon(), 2.0, 3.0, 5.0, 9.0, 10.0, Limits::max(), Limits::infinity()}) {
        if (const std::string text = textOf(format, probe); text != last) {
            choices << "; " << probe << ":" << text;
            last = text;
        }
    }
    return choices.str();
}

TEST(ChoiceFormat, CompilesAndChooses) {
    const PatternCase rows[] = {
        {__LINE__, "0#none|1#one|1<many", "none; 1:one; 1.0000000000000002:many"},
        {__LINE__, "-1#neg|0#zero|0+pos", "neg; 0:zero; 4.9406564584124654e-324:pos"},
        {__LINE__, "0#a|0#b", "a; 0:b"},
        {__LINE__, "5#five|1#one|3#three", "five; 5:three"},
        {__LINE__, "1#a|9#b|3#c", "a; 9:c"},
        {__LINE__, "0#o| 2 # b ", "o; 2: b "},
        {__LINE__, "0#o|1e1#x", "o; 10:x"},
        {__LINE__, "0#o|1e+1#x", "o; 4.9406564584124654e-324:1#x"},
        {__LINE__, "0#o|1e999#x", "o; 1.7976931348623157e+308:x"},
        {__LINE__, "-1#n|#x", "n; 0:x"},
        {__LINE__, "-1#n|inf#x", "n; 0:x"},
        {__LINE__, "-1#a||1#b", "a; 0:b"},
        {__LINE__, "0#|1#a#b<c", "; 1:a#b<c"},
        {__LINE__, "0#it''s|1#'{'x'}'", "it's; 1:{x}"},
        {__LINE__, "0#'abc'|1#'x'", "ac|#x"},
        {__LINE__, "0#'", "'"},
        {__LINE__, "0#{a|b}|1#{c,{0#x|1#y}}|2#z", "{a|b}; 1:{c,{0#x|1#y}}; 2:z"},
        {__LINE__, "0#{'}'|}a}1#b", "{}|}a; 1:b"},
        {__LINE__, "0#{a|1#b", "{a|1#b"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(choicesOf(ChoiceFormat(row.pattern)), row.expected);
    }
}

TEST(ChoiceFormat, FailsAndKeepsCompleteSegments) {
    const PatternCase rows[] = {
        {__LINE__, "", ""},      {__LINE__, "abc", ""},    {__LINE__, "|", ""},
        {__LINE__, "0#a|", "a"}, {__LINE__, "0#a|b", "a"}, {__LINE__, "0#a|1#b}2", "a; 1:b"},
    };
    const std::string words = "Syntax error in choice format.";
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        ChoiceFormat format("7#former|8#pattern");
        const ChoiceFormat copy(format);
        EXPECT_EQ(failureOf([&] { format.applyPattern(row.pattern); }), words);
        EXPECT_EQ(choicesOf(format), row.expected);
        EXPECT_EQ(choicesOf(copy), "former; 9:pattern");
        EXPECT_EQ(failureOf([&] { ChoiceFormat(row.pattern); }), words);
    }
}

TEST(ChoiceFormat, NeighboursOfDoubles) {
    EXPECT_EQ(ChoiceFormat::nextDouble(1.0), 1.0000000000000002);
    EXPECT_EQ(ChoiceFormat::previousDouble(1.0), 0.9999999999999999);
    EXPECT_EQ(ChoiceFormat::nextDouble(0.0, true), 5e-324);
    EXPECT_EQ(ChoiceFormat::nextDouble(0.0, false), -5e-324);
    for (const double end : {Limits::max(), Limits::infinity()}) {
        EXPECT_EQ(ChoiceFormat::nextDouble(end), end);
        EXPECT_EQ(ChoiceFormat::previousDouble(-end), -end);
    }
    EXPECT_EQ(ChoiceFormat::previousDouble(Limits::infinity()), Limits::infinity());
    EXPECT_TRUE(std::isnan(ChoiceFormat::nextDouble(NAN)));
}

// Numbers as written in much of Europe.
class CommaForms : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Extraction, ReadsWhatStandsInFrontByTheGlobalLocale) {
    constexpr int none = -99;
    const struct {
        int line;
        bool commaForms;
        const char* text;
        int whole; ///< none for what is no `int`
        double real;
    } rows[] = {
        {__LINE__, false, "", none, 0.0},
        {__LINE__, false, "x1", none, 0.0},
        {__LINE__, false, "1e", 1, 0.0},
        {__LINE__, false, " \t+7 and more", 7, 7.0},
        {__LINE__, false, "-1.5", -1, -1.5},
        {__LINE__, false, "123456789", 123456789, 123456789.0},
        {__LINE__, false, "0000000001", 1, 1.0},
        {__LINE__, false, "2147483647", 2147483647, 2147483647.0},
        {__LINE__, false, "2147483648", none, 2147483648.0},
        {__LINE__, true, "1234567", 1234567, 1234567.0},
        {__LINE__, true, "1.234.567", 1234567, 1234567.0},
        {__LINE__, true, "1.234,5", 1234, 1234.5},
    };
    const std::locale former;
    const std::locale comma(former, new CommaForms);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        std::locale::global(row.commaForms ? comma : former);
        int whole = none;
        EXPECT_EQ(extractInt(row.text, whole), row.whole != none);
        EXPECT_EQ(whole, row.whole);
        EXPECT_EQ(extractDouble(row.text), row.real);
    }
    EXPECT_EQ(choicesOf(ChoiceFormat("0#few|0,5#some|1,5#many")), "few; 1:some; 2:many");
    std::locale::global(former);
}

} // namespace
} // namespace zem::msglib
