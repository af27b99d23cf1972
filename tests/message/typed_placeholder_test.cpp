#include "message/Outcome.h"

#include <cstdint>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

const double quarterTurn = 3.141592653589793 / 2.0;

TEST(TypedPlaceholder, EveryStyleWithEveryKind) {
    const std::string number = "!" + notANumber;
    const std::string date = "!" + notADate;
    const std::string epoch = "Jan 01 70";
    const std::string longEpoch = "Thursday, January 1, 1970";
    const std::string choice = "{0,choice,0#few|7#seven|7<{0,number}}";
    struct {
        int line;
        std::string pattern;
        std::string seven;        ///< any integer of 7
        std::string yes;          ///< `bool`
        std::string sevenAndHalf; ///< `float` and `double`
        std::string angle;        ///< 90 degrees
        std::string text;
        std::string other;
    } const rows[] = {
        {__LINE__, "{0}", "7", "1", "7.50", "", "x", ""},
        {__LINE__, "{0,integer}", "7", "1", "7.50", "", "x", ""},
        {__LINE__, "{0,Number}", "7", "1", "7.50", "", "x", ""},
        {__LINE__, "{0, number}", "7", "1", "7.50", "", "x", ""},
        {__LINE__, "{0,number}", "7.00", "1.00", "7.50", "90.00", number, number},
        {__LINE__, "{0,number,integer}", "7", "1", "8", "90", number, number},
        {__LINE__, "{0,number,currency}", "$7.00", "$1.00", "$7.50", "$90.00", number, number},
        {__LINE__, "{0,number,percent}", "700.00%", "100.00%", "750.00%", "9,000.00%", number,
         number},
        {__LINE__, "{0,number,#.#}", "7", "1", "7.5", "90", number, number},
        {__LINE__, "{0,number,'{'0'}'}", "{7}", "{1}", "{8}", "{90}", number, number},
        {__LINE__, "{0,date}", epoch, epoch, epoch, date, date, date},
        {__LINE__, "{0,date,medium}", epoch, epoch, epoch, date, date, date},
        {__LINE__, "{0,date,short}", "1/1/1970", "1/1/1970", "1/1/1970", date, date, date},
        {__LINE__, "{0,date,long}", longEpoch, longEpoch, longEpoch, date, date, date},
        {__LINE__, "{0,date,full}", longEpoch, longEpoch, longEpoch, date, date, date},
        {__LINE__, "{0,date,Short}", "S12orA", "S12orA", "S12orA", date, date, date},
        {__LINE__, "{0,date,d s}", "1 7", "1 1", "1 7", date, date, date},
        {__LINE__, "{0,time}", "12:00:07 AM", "12:00:01 AM", "12:00:07 AM", date, date, date},
        {__LINE__, "{0,time,short}", "712orA", "112orA", "712orA", date, date, date},
        {__LINE__, "{0,time,HHmmss}", "000007", "000001", "000007", date, date, date},
        {__LINE__, choice, "seven", "few", "7.50", "90.00", number, number},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const MessageFormat format(row.pattern);
        const Arguments sevens = {short{7}, 7,   7L,  7LL, static_cast<unsigned short>(7),
                                  7U,       7UL, 7ULL};
        for (const boost::any& seven : sevens) {
            EXPECT_EQ(textOf(format, Arguments{seven}), row.seven) << seven.type().name();
        }
        EXPECT_EQ(textOf(format, Arguments{true}), row.yes);
        EXPECT_EQ(textOf(format, Arguments{7.5}), row.sevenAndHalf);
        EXPECT_EQ(textOf(format, Arguments{7.5F}), row.sevenAndHalf);
        EXPECT_EQ(textOf(format, Arguments{geom::Angle(quarterTurn)}), row.angle);
        EXPECT_EQ(textOf(format, Arguments{"x"s}), row.text);
        const Arguments others = {boost::any(), 'c', static_cast<unsigned char>(7), 7.0L, "x"};
        for (const boost::any& other : others) {
            EXPECT_EQ(textOf(format, Arguments{other}), row.other) << other.type().name();
        }
    }
}

TEST(TypedPlaceholder, Numbers) {
    expectOutcomes({
        {__LINE__, "{0}{1}{2}", {1234567, 1234.5, -3}, "1,234,5671,234.50-3"},
        {__LINE__, "{0,number,currency}", {1234.5}, "$1,234.50"},
        {__LINE__, "{0,number,currency}", {-1234.5}, "($1,234.50)"},
        {__LINE__, "{0,number,#,##0.00}", {1234.5}, "1,234.50"},
        {__LINE__, "{0,number,0}", {9007199254740993ULL}, "9007199254740992"},
        {__LINE__, "{0,choice,0#small|1e18#huge}", {1ULL << 63}, "huge"},
        {__LINE__, "x{0,number,0.0.0}", {0}, "compile!separator character expected"},
    });
}

TEST(TypedPlaceholder, LongKeepsIts32Bits) {
    expectOutcomes({
        {__LINE__, "{0}", {2147483647L}, "2,147,483,647"},
        {__LINE__, "{0}", {-2147483647L - 1}, "-2,147,483,648"},
        {__LINE__, "{0}", {4294967295UL}, "4,294,967,295"},
    });
    if (sizeof(long) == sizeof(std::int32_t)) {
        GTEST_SKIP() << "long has no values beyond 32 bits";
    }
    const auto above = static_cast<long>(2147483648LL);
    const auto below = static_cast<long>(-2147483649LL);
    const auto unsignedAbove = static_cast<unsigned long>(4294967296ULL);
    for (const char* pattern : {"{0}", "{0,number}", "{0,date}", "{0,choice,0#a}"}) {
        for (const boost::any& argument : Arguments{above, below, unsignedAbove}) {
            EXPECT_EQ(outcome(pattern, {argument}), "!" + longOutOfRange) << pattern;
            EXPECT_THROW(MessageFormat(pattern).format(boost::any(argument)), std::exception);
        }
    }
}

TEST(TypedPlaceholder, ChosenTextIsAMessage) {
    const std::string items = "{0,choice,0#none|1#one|2#{0} items}.";
    const std::string inner = "{0,choice,0#x|1#<{1,choice,0#p|1#q{2}}>}{2}";
    expectOutcomes({
        {__LINE__, items, {1}, "one."},
        {__LINE__, items, {7}, "7 items."},
        {__LINE__, "{1} {0,choice,0#none|1#one {1}}", {1, "z"s}, "z one z"},
        {__LINE__, inner, {1, 0, "r"s}, "<p>r"},
        {__LINE__, inner, {1, 1, "r"s}, "<qr>r"},
        {__LINE__, "{0,choice,0#a{1}b{1}c}d{1}", {0, "-"s}, "a-b-cd-"},
        {__LINE__, "{0,choice,0#}{0,choice,0#{1}}", {0, "{0}"s}, "{0}"},
        {__LINE__, "{0,choice,0#it''s}", {0}, "it's"},
        {__LINE__, "{0,choice,0#it''s fine}", {0}, "itsfine"},
        {__LINE__, "a{0,choice,0#b'{'c}", {0}, "a!" + illegalArgument},
        {__LINE__, "a{0,choice,0#b'}'c}", {0}, "a!" + unexpectedBrace},
        {__LINE__, "a{0,choice,0#b{3}}c", {0}, "ab!" + indexTooHigh},
        {__LINE__, "a{0,choice,0#b{1,choice,0#c{0,date,'}'}", {0, 0}, "compile!" + illegalArgument},
        {__LINE__, "a{0,choice,0#b{1,choice,x}}c", {0, 0}, "a!" + choiceSyntax},
        {__LINE__, "a{0,choice,0#b{1,choice,0#c{1,date}}}d", {0, "x"s}, "ab!" + notANumber},
        {__LINE__, "a{0,choice,0#b{1,choice,0#c{2,date}}}d", {0, 0, "x"s}, "abc!" + notADate},
    });
}

} // namespace
} // namespace zem::msglib
