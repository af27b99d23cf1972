#include "message/Outcome.h"

#include <cstdint>
#include <locale>
#include <stdexcept>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

TEST(MessagePattern, StaticTextInEveryPosition) {
    const std::pair<std::string, std::string> texts[] = {{"a,b %1 %n\r\n", "a,b %1 %n\r\n"},
                                                         {"\xFF\xC3 a\0b"s, "\xFF\xC3 a\0b"s},
                                                         {"'a'", "a"},
                                                         {"'", "'"},
                                                         {"''", "'"},
                                                         {"'''", "'"},
                                                         {"'''''", "''"},
                                                         {"'}''{'", "}{"},
                                                         {"'\xC3\xA9'", "'\xC3\xA9'"},
                                                         {"'\0'"s, "\0"s}};
    for (const auto& [pattern, text] : texts) {
        EXPECT_EQ(outcome(pattern, {}), text);
        EXPECT_EQ(outcome("{0}" + pattern + "{0}", {"|"s}), "|" + text + "|");
    }
}

TEST(MessagePattern, Placeholders) {
    const Arguments two = {"a"s, "b"s};
    expectOutcomes({
        {__LINE__, "{0}\xE2\x82\xAC{1}", {"\xC3\xA9"s, "\0"s}, "\xC3\xA9\xE2\x82\xAC\0"s},
        // forms of the index
        {__LINE__, "{+1}{1 0}{\t\n1}{-0}{000000000000}", two, "bbbaa"},
        {__LINE__, "{0{1}}{1'}'}{0'''}", two, "aba"},
        // types and styles without a formatter
        {__LINE__, "{0,}{0,,}{0,foo,bar}{0,x{y}z}", two, "aaaa"},
        // the style as the formatter receives it
        {__LINE__, "{0,date,x{d}z}", {0}, "x{1}z"},
        {__LINE__, "{0,date,'}'d'{'}", {0}, "}1{"},
        // failures while rendering
        {__LINE__, "a{0}b{2}", two, "aab!" + indexTooHigh},
        {__LINE__, "{-2147483648}", two, "!" + indexTooHigh},
        {__LINE__, "{2147483647}", two, "!" + indexTooHigh},
        {__LINE__, "{1}-{0,date,'x'}b", two, "b-!" + notADate},
    });
}

// Texts are searched in blocks of bytes; those above "z" differ from braces in few bits.
TEST(MessagePattern, SyntaxAtAnyDistance) {
    for (const char byte : {'z', '~', '|', '\xC3'}) {
        for (std::size_t distance = 0; distance < 300; ++distance) {
            const std::string text(distance, byte == '|' ? 'a' : byte);
            ASSERT_EQ(outcome(std::string(distance, byte) + "{0}'{'", {"x"s}),
                      std::string(distance, byte) + "x{");
            ASSERT_EQ(outcome("{0,choice,0#" + text + "{0}|1#b}", {0}), text + "0");
        }
    }
}

TEST(MessagePattern, ChoicesInChoices) {
    std::string pattern = "x";
    std::string text = "x";
    for (int depth = 1; depth < 12; ++depth) {
        pattern.insert(0, "a{0,choice,0#").append("}b");
        text.insert(0, "a").append("b");
        EXPECT_EQ(outcome(pattern, {0}), text);
    }
}

TEST(MessagePattern, CompileFailures) {
    for (const char* pattern : {"{0}}", "'{'0}", "{0}'}"}) {
        EXPECT_EQ(outcome(pattern, {0}), "compile!" + unexpectedBrace) << pattern;
    }
    for (const char* pattern : {"{", "{0", "{0,", "{0,date,'}'", "{0,date,{}", "{}", "{,number}",
                                "{'0'}", "{{0}}", "{2147483648}"}) {
        EXPECT_EQ(outcome(pattern, {0}), "compile!" + illegalArgument) << pattern;
        EXPECT_EQ(outcome("it''s {0} "s + pattern, {0}), "compile!" + illegalArgument);
    }
}

TEST(MessagePattern, FailedCompilationKeepsTheCompiledParts) {
    struct {
        int line;
        const char* pattern;
        const char* text;
        const char* rebuilt; ///< the text after `setLocale`
    } const rows[] = {
        {__LINE__, "new}", "new", "new"},
        {__LINE__, "{1,date,yyyy", "2", "1970"},
        {__LINE__, "{1,choice,x}s{0}", "2s", nullptr},
    };
    const Arguments args = {1, 2};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        MessageFormat format("old {0} {0} {0}");
        EXPECT_THROW(format.applyPattern(row.pattern), std::runtime_error);
        EXPECT_EQ(textOf(format, args), row.text);
        if (row.rebuilt != nullptr) {
            format.setLocale(std::locale::classic());
            EXPECT_EQ(textOf(format, args), row.rebuilt);
        } else {
            EXPECT_THROW(format.setLocale(std::locale::classic()), std::runtime_error);
            EXPECT_EQ(format.getLocale(), std::locale::classic());
        }
        format.applyPattern("{0}.");
        EXPECT_EQ(textOf(format, args), "1.");
    }
}

const double quarterTurn = 3.141592653589793 / 2.0;

TEST(TypedPlaceholder, EveryStyleWithEveryKind) {
    const std::string number = "!" + notANumber;
    const std::string date = "!" + notADate;
    const std::string epoch = "Jan 01 70";
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
        {__LINE__, "{0,number}", "7.00", "1.00", "7.50", "90.00", number, number},
        {__LINE__, "{0,number,percent}", "700.00%", "100.00%", "750.00%", "9,000.00%", number,
         number},
        {__LINE__, "{0,number,#.#}", "7", "1", "7.5", "90", number, number},
        {__LINE__, "{0,date}", epoch, epoch, epoch, date, date, date},
        {__LINE__, "{0,date,short}", "1/1/1970", "1/1/1970", "1/1/1970", date, date, date},
        {__LINE__, "{0,time}", "12:00:07 AM", "12:00:01 AM", "12:00:07 AM", date, date, date},
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

TEST(TypedPlaceholder, IntegersKeepTheirWidth) {
    expectOutcomes({
        {__LINE__, "{0,number,0}", {static_cast<short>(-32768)}, "-32768"},
        {__LINE__, "{0,number,0}", {static_cast<unsigned short>(65535)}, "65535"},
        {__LINE__, "{0,number,0}", {4294967295U}, "4294967295"},
        {__LINE__, "{0,number,0}", {-9007199254740993LL}, "-9007199254740992"},
        {__LINE__, "{0}", {2147483647L}, "2,147,483,647"},
        {__LINE__, "{0}", {-2147483647L - 1}, "-2,147,483,648"},
        {__LINE__, "{0}", {4294967295UL}, "4,294,967,295"},
    });
    if (sizeof(long) == sizeof(std::int32_t)) {
        GTEST_SKIP() << "long has no values beyond 32 bits";
    }
    const Arguments arguments = {static_cast<long>(2147483648LL), static_cast<long>(-2147483649LL),
                                 static_cast<unsigned long>(4294967296ULL),
                                 static_cast<unsigned long>(-1LL)};
    for (const char* pattern : {"{0}", "{0,number}", "{0,date}", "{0,choice,0#a}"}) {
        for (const boost::any& argument : arguments) {
            EXPECT_EQ(outcome(pattern, {argument}), "!" + longOutOfRange) << pattern;
        }
    }
}

TEST(TypedPlaceholder, ChosenTextIsAMessage) {
    const std::string inner = "{0,choice,0#x|1#<{1,choice,0#p|1#q{2}}>}{2}";
    expectOutcomes({
        {__LINE__, inner, {1, 1, "r"s}, "<qr>r"},
        {__LINE__, "{0,choice,0#a{1}b{1}c}d{1}", {0, "-"s}, "a-b-cd-"},
        {__LINE__, "{0,choice,0#}{0,choice,0#{1}}", {0, "{0}"s}, "{0}"},
        {__LINE__, "a{0,choice,0#b'}'c}", {0}, "a!" + unexpectedBrace},
        {__LINE__, "a{0,choice,0#b{3}}c", {0}, "ab!" + indexTooHigh},
        {__LINE__, "a{0,choice,0#b{1,choice,0#c{0,date,'}'}", {0, 0}, "compile!" + illegalArgument},
        {__LINE__, "a{0,choice,0#b{1,choice,x}}c", {0, 0}, "a!" + choiceSyntax},
        {__LINE__, "a{0,choice,0#b{1,choice,0#c{1,date}}}d", {0, "x"s}, "ab!" + notANumber},
        {__LINE__, "a{0,choice,0#b{1,choice,0#c{2,date}}}d", {0, 0, "x"s}, "abc!" + notADate},
    });
}

TEST(MessageFormatObject, CopiesAndAssignmentsAreIndependent) {
    const Arguments args = {1234.5};
    MessageFormat format("a {0,number,#,##0.0} b");
    MessageFormat copy(format);
    const MessageFormat& itself = format;
    format = itself;
    copy.setLocale(std::locale::classic());
    EXPECT_EQ(textOf(format, args), "a 1,234.5 b");
    format.applyPattern("x");
    EXPECT_EQ(textOf(copy, args), "a 1,234.5 b");
    copy = format;
    EXPECT_EQ(textOf(copy, args), "x");
}

TEST(MessageFormatObject, AcceptsItsListOnlyByPointer) {
    const MessageFormat format("a{0}");
    const Arguments args = {"x"s};
    Arguments changeable = args;
    const std::string badCast = "!boost::bad_any_cast: failed conversion using boost::any_cast";
    using Pointer = const Arguments*;
    EXPECT_EQ(textOf(format, boost::any(Pointer(&args))), "ax");
    EXPECT_EQ(textOf(format, boost::any(Pointer())), "!Invalid argument");
    EXPECT_EQ(textOf(format, boost::any(&changeable)), badCast);
    EXPECT_EQ(textOf(format, boost::any(args)), badCast);
    EXPECT_THROW(MessageFormat("").format(boost::any("x"s)), boost::bad_any_cast);
    EXPECT_EQ(MessageFormat(format).format(boost::any(Pointer(&args))), "ax");
}

TEST(MessageFormatObject, GlobalLocaleReadsTheIndexAndIsStored) {
    const std::locale grouping(std::locale::classic(), new CommaForms);
    const Arguments args = {"a"s, "b"s};
    const std::locale before = std::locale::global(grouping);
    const MessageFormat format("{0.01}{1}{0.00}x");
    const std::string badlyGrouped = outcome("{0.001}", args);
    std::locale::global(std::locale::classic());
    const std::string plain = outcome("{0.01}", args);
    std::locale::global(before);
    EXPECT_EQ(format.getLocale(), grouping);
    EXPECT_EQ(badlyGrouped, "compile!" + illegalArgument);
    EXPECT_EQ(textOf(format, args), "bbax");
    EXPECT_EQ(plain, "a");
}

} // namespace
} // namespace zem::msglib
