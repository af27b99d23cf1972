#include "msglib/ChoiceFormat.h"

#include "base/Extraction.h"
#include "support/Rendering.h"

#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace zem::msglib {
namespace {

using Limits = std::numeric_limits<double>;

// Returns the choices for NaN and for ascending numbers.
std::string choicesOf(const ChoiceFormat& format) {
    std::string choices = textOf(format, Limits::quiet_NaN());
    for (const double number : {-Limits::infinity(), -1.0, 0.0, Limits::denorm_min(), 1.0, 9.0,
                                Limits::max(), Limits::infinity()}) {
        choices += ' ' + textOf(format, number);
    }
    return choices;
}

TEST(ChoiceFormat, CompilesAndChooses) {
    const PatternCase rows[] = {
        {__LINE__, "-1#neg|0#zero|0+pos", "neg neg neg zero pos pos pos pos pos"},
        {__LINE__, "0#o|1e999#x", "o o o o o o o x x"},
        {__LINE__, "0x9#o|1e-0x1p9#x", "o o o o o x x x x"},
        {__LINE__, "0#{'}'|}a}1#b", "{}|}a {}|}a {}|}a {}|}a {}|}a b b b b"},
        {__LINE__, "0#{a|{1#b}|}|1#c",
         "{a|{1#b}|} {a|{1#b}|} {a|{1#b}|} {a|{1#b}|} {a|{1#b}|} c c c c"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(choicesOf(ChoiceFormat(row.pattern)), row.expected);
    }
}

TEST(ChoiceFormat, FailsAndKeepsCompleteSegments) {
    const PatternCase rows[] = {{__LINE__, "", "        "},
                                {__LINE__, "abc", "        "},
                                {__LINE__, "0#a|b", "a a a a a a a a a"},
                                {__LINE__, "0#a|1#b}2", "a a a a a b b b b"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        ChoiceFormat format("0#former|1#pattern");
        const ChoiceFormat copy(format);
        EXPECT_EQ(failureOf([&] { format.applyPattern(row.pattern); }),
                  "Syntax error in choice format.");
        EXPECT_EQ(choicesOf(format), row.expected);
        EXPECT_EQ(textOf(copy, 0.0) + textOf(copy, 9.0), "formerpattern");
        EXPECT_THROW(ChoiceFormat(row.pattern), std::runtime_error);
    }
}

TEST(ChoiceFormat, NeighboursOfDoubles) {
    EXPECT_EQ(ChoiceFormat::nextDouble(1.0), 1.0000000000000002);
    EXPECT_EQ(ChoiceFormat::previousDouble(1.0), 0.9999999999999999);
    EXPECT_EQ(ChoiceFormat::nextDouble(0.0, false), -5e-324);
    EXPECT_EQ(ChoiceFormat::nextDouble(-5e-324, true), 0.0);
    for (const double end : {Limits::max(), Limits::infinity()}) {
        EXPECT_EQ(ChoiceFormat::nextDouble(end), end);
        EXPECT_EQ(ChoiceFormat::previousDouble(-end), -end);
    }
    EXPECT_TRUE(std::isnan(ChoiceFormat::nextDouble(NAN)));
}

TEST(Extraction, ReadsTheLeadingNumberByTheGlobalLocale) {
    constexpr int none = -99;
    const struct {
        int line;
        bool commaForms;
        const char* text;
        int whole; ///< `none` if the text isn't an `int`
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
    EXPECT_EQ(textOf(ChoiceFormat("0#few|0,5#some|1,5#many"), 1.0), "some");
    std::locale::global(former);
}

// A facet that reads every number as 42.
struct Always42 : std::num_get<char> {
    iter_type do_get(iter_type, iter_type end, std::ios_base&, std::ios_base::iostate& state,
                     long& value) const override {
        value = 42;
        state |= std::ios_base::eofbit;
        return end;
    }
};

// A facet whose group separator is a digit.
struct DigitBetweenGroups : std::numpunct<char> {
    char do_thousands_sep() const override { return '2'; }
    std::string do_grouping() const override { return "\1"; }
};

// A facet for which a digit is white space.
struct BlankDigit : std::ctype<char> {
    BlankDigit() : std::ctype<char>(masks()) {}
    static const mask* masks() {
        static const std::vector<mask> changed = [] {
            std::vector<mask> masks(classic_table(), classic_table() + table_size);
            masks['1'] = space;
            return masks;
        }();
        return changed.data();
    }
};

TEST(Extraction, PlainDigitsAreDecimalUnderEveryGlobalLocale) {
    const std::locale former;
    const struct {
        int line;
        std::locale locale;
        int signedNumber; ///< "+123" as the locale reads it
        int plainNumber;  ///< "123" as a stream reads it
    } rows[] = {
        {__LINE__, std::locale(former, new Always42), 42, 42},
        {__LINE__, std::locale(former, new DigitBetweenGroups), 13, 13},
        {__LINE__, std::locale(former, new BlankDigit), 123, 23},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        std::locale::global(row.locale);
        int streamed = 0;
        std::istringstream("123") >> streamed;
        EXPECT_EQ(streamed, row.plainNumber);
        int plain = 0;
        int withSign = 0;
        EXPECT_TRUE(extractInt("123", plain));
        EXPECT_TRUE(extractInt("+123", withSign));
        EXPECT_EQ(plain, 123);
        EXPECT_EQ(withSign, row.signedNumber);
        EXPECT_EQ(extractDouble("123"), 123.0);
    }
    std::locale::global(former);
}

} // namespace
} // namespace zem::msglib
