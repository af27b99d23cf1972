#include "message/Outcome.h"

#include <locale>
#include <stdexcept>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

TEST(MessagePattern, StaticTextInEveryPosition) {
    struct {
        int line;
        std::string pattern, text;
    } const rows[] = {
        {__LINE__, "no arguments", "no arguments"},
        {__LINE__, "a,b %1 %n\r\n", "a,b %1 %n\r\n"},
        {__LINE__, "\xFF\xC3 a\0b"s, "\xFF\xC3 a\0b"s},
        {__LINE__, "it's", "it's"},
        {__LINE__, "it''s", "it's"},
        {__LINE__, "'a'", "a"},
        {__LINE__, "'a'b'c'", "abc"},
        {__LINE__, "'", "'"},
        {__LINE__, "''", "'"},
        {__LINE__, "'''", "'"},
        {__LINE__, "''''", "''"},
        {__LINE__, "'''''", "''"},
        {__LINE__, "'x", "'x"},
        {__LINE__, "'{'0'}'", "{0}"},
        {__LINE__, "'}''{'", "}{"},
        {__LINE__, "the dogs' 'bone", "the dogs bone"},
        {__LINE__, "'\xC3\xA9'", "'\xC3\xA9'"},
        {__LINE__, "'\0'"s, "\0"s},
    };
    const Arguments args = {"|"s};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(outcome(row.pattern, {}), row.text);
        EXPECT_EQ(outcome(row.pattern + "{0}", args), row.text + "|");
        EXPECT_EQ(outcome("{0}" + row.pattern, args), "|" + row.text);
        EXPECT_EQ(outcome("{0}" + row.pattern + "{0}", args), "|" + row.text + "|");
    }
}

TEST(MessagePattern, Placeholders) {
    const Arguments two = {"a"s, "b"s};
    expectOutcomes({
        {__LINE__, "{1}{0}{1}{1}{0}", two, "babba"},
        {__LINE__, "{0}", {"{1} '' '{' }"s}, "{1} '' '{' }"},
        {__LINE__, "{0}\xE2\x82\xAC{1}", {"\xC3\xA9"s, "\0"s}, "\xC3\xA9\xE2\x82\xAC\0"s},
        {__LINE__, "'{0}'", two, "'a'"},
        {__LINE__, "[{0}{1}]", {boost::any(), geom::Angle(1.0)}, "[]"},
        {__LINE__, "[{0}{1}{2}]", {'c', 1.0L, static_cast<const char*>("c")}, "[]"},
        // forms of the index
        {__LINE__, "{1x}{ 1 }{+1}{01}{1 0}{\t\n1}", two, "bbbbbb"},
        {__LINE__, "{0x1}{-0}{000000000000}", two, "aaa"},
        {__LINE__, "{0{1}}{1'}'}{0'''}", two, "aba"},
        // types and styles that name no formatter
        {__LINE__, "{0,}{0,,}{0,foo,bar}{0,x{y}z}", two, "aaaa"},
        {__LINE__, "{0,Number}{0, number}{0,number }{0,date x}", two, "aaaa"},
        // what reaches the formatter of a segment
        {__LINE__, "{0,date,x{d}z}", {0}, "x{1}z"},
        {__LINE__, "{0,date,,,d}", {0}, ",,1"},
        {__LINE__, "{0,date,'y'}", {0}, "y"},
        {__LINE__, "{0,date,'}'d'{'}", {0}, "}1{"},
        {__LINE__, "{0,date,d''d}", {0}, "1d"},
        {__LINE__, "{0,date,d'}", {0}, "1"},
        // failures while rendering
        {__LINE__, "before {1} after", {"a"s}, "before !" + indexTooHigh},
        {__LINE__, "a{0}b{2}", two, "aab!" + indexTooHigh},
        {__LINE__, "{0}", {}, "!" + indexTooHigh},
        {__LINE__, "a{-1}", two, "a!" + indexTooHigh},
        {__LINE__, "{-2147483648}", two, "!" + indexTooHigh},
        {__LINE__, "{2147483647}", two, "!" + indexTooHigh},
        {__LINE__, "a{0,number}b", {"x"s}, "a!" + notANumber},
        {__LINE__, "{1}-{0,date,'x'}b", two, "b-!" + notADate},
    });
}

TEST(MessagePattern, CompileFailures) {
    struct {
        int line;
        const char* pattern;
        const std::string& words;
    } const rows[] = {
        {__LINE__, "a}b", unexpectedBrace},
        {__LINE__, "{0}}", unexpectedBrace},
        {__LINE__, "'{'0}", unexpectedBrace},
        {__LINE__, "{0}'}", unexpectedBrace},
        {__LINE__, "{0,a{b,c}}", unexpectedBrace},
        {__LINE__, "{0,choice}}", unexpectedBrace},
        {__LINE__, "{", illegalArgument},
        {__LINE__, "{0", illegalArgument},
        {__LINE__, "{0,", illegalArgument},
        {__LINE__, "{0,number,#", illegalArgument},
        {__LINE__, "{0,date,'}'", illegalArgument},
        {__LINE__, "{0,date,{}", illegalArgument},
        {__LINE__, "{}", illegalArgument},
        {__LINE__, "{,number}", illegalArgument},
        {__LINE__, "{x}", illegalArgument},
        {__LINE__, "{'0'}", illegalArgument},
        {__LINE__, "{{0}}", illegalArgument},
        {__LINE__, "{2147483648}", illegalArgument},
        {__LINE__, "{99999999999}", illegalArgument},
        {__LINE__, "{0,choice}", styleRequired},
        {__LINE__, "{0,choice,x}", choiceSyntax},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(outcome(row.pattern, {0}), "compile!" + row.words) << row.pattern;
        EXPECT_EQ(outcome("it''s {0} "s + row.pattern, {0}), "compile!" + row.words);
    }
}

TEST(MessagePattern, FailedCompilationKeepsWhatWasRead) {
    struct {
        int line;
        const char* pattern;
        const char* text;
        const char* rebuilt; ///< the text after `setLocale`
    } const rows[] = {
        {__LINE__, "new}", "new", "new"},
        {__LINE__, "p{x}", "p1", "p1"},
        {__LINE__, "{1}a{1,", "2a2", "2a2"},
        {__LINE__, "{0}{1,date,s", "12", "12"},
        {__LINE__, "{1,date,yyyy", "2", "1970"},
        {__LINE__, "{1,number}}", "2", "2.00"},
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

TEST(MessageFormatObject, CopiesAndAssignmentsStandAlone) {
    const Arguments args = {1234.5};
    MessageFormat format("a {0,number,#,##0.0} b");
    MessageFormat copy(format);
    const MessageFormat& itself = format;
    format = itself;
    copy.setLocale(std::locale::classic());
    EXPECT_EQ(textOf(format, args), "a 1,234.5 b");
    EXPECT_EQ(textOf(copy, args), "a 1,234.5 b");
    format.applyPattern("x");
    EXPECT_EQ(textOf(copy, args), "a 1,234.5 b");
    copy = format;
    EXPECT_EQ(textOf(copy, args), "x");
}

TEST(MessageFormatObject, TakesItsListByPointerOnly) {
    const MessageFormat format("a{0}");
    const Arguments args = {"x"s};
    Arguments changeable = args;
    const std::string badCast = "!boost::bad_any_cast: failed conversion using boost::any_cast";
    using Pointer = const Arguments*;
    EXPECT_EQ(textOf(format, boost::any(Pointer(&args))), "ax");
    EXPECT_EQ(textOf(format, boost::any(Pointer())), "!Invalid argument");
    EXPECT_EQ(textOf(format, boost::any(&changeable)), badCast);
    EXPECT_EQ(textOf(format, boost::any(args)), badCast);
    EXPECT_EQ(textOf(format, boost::any()), badCast);
    EXPECT_THROW(MessageFormat("").format(boost::any("x"s)), boost::bad_any_cast);
    EXPECT_EQ(MessageFormat(format).format(boost::any(Pointer(&args))), "ax");
}

class GroupsByPoint : public std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(MessageFormatObject, GlobalLocaleReadsTheIndexAndIsKept) {
    const std::locale grouping(std::locale::classic(), new GroupsByPoint);
    const Arguments args = {"a"s, "b"s};
    const std::locale before = std::locale::global(grouping);
    const MessageFormat format("{0.001}{1}{0.000}x");
    const std::string badlyGrouped = outcome("{0.01}", args);
    std::locale::global(std::locale::classic());
    const std::string plain = outcome("{0.001}", args);
    std::locale::global(before);
    EXPECT_EQ(format.getLocale(), grouping);
    EXPECT_EQ(badlyGrouped, "compile!" + illegalArgument);
    EXPECT_EQ(textOf(format, args), "bbax");
    EXPECT_EQ(plain, "a");
}

} // namespace
} // namespace zem::msglib
