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
        {__LINE__, "-1#neg|0#zero|0+pos", "neg; 0:zero; 4.9406564584124654e-324:pos"},
        {__LINE__, "0#o|1e999#x", "o; 1.7976931348623157e+308:x"},
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
    EXPECT_EQ(ChoiceFormat::nextDouble(0.0, false), -5e-324);
    for (const double end : {Limits::max(), Limits::infinity()}) {
        EXPECT_EQ(ChoiceFormat::nextDouble(end), end);
        EXPECT_EQ(ChoiceFormat::previousDouble(-end), -end);
    }
    EXPECT_EQ(ChoiceFormat::previousDouble(Limits::infinity()), Limits::infinity());
    EXPECT_TRUE(std::isnan(ChoiceFormat::nextDouble(NAN)));
}

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
        {__LINE__, false, "1e", 1, 0.0},
        {__LINE__, false, " \t+7 and more", 7, 7.0},
        {__LINE__, false, "2147483647", 2147483647, 2147483647.0},
        {__LINE__, false, "2147483648", none, 2147483648.0},
        {__LINE__, true, "1.23.45.67", 1234567, 1234567.0},
        {__LINE__, true, "12.34,5", 1234, 1234.5},
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
