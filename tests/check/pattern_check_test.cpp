// The diagnostics of patterns and their places, and similar patterns without diagnostics.

#include "check/Checking.h"

#include <gtest/gtest.h>

namespace zem::msglib::tool {
namespace {

struct ReportCase {
    int line;
    const char* pattern;
    const char* diagnostics;
};

TEST(PatternCheck, PointsAtMistakes) {
    const ReportCase cases[] = {
        {__LINE__, "{0,choice,0#none|1#{1,choice,0#it''s free|1#that''s {2,Number}}}",
         "1:34-38 choice-quote: in a choice, this apostrophe takes \"s\" and drops the blank after "
         "it: shows \"itsfree\" (write ’ (U+2019), or 10 apostrophes at this depth)\n"
         "1:49-53 choice-quote: in a choice, this apostrophe takes \"s\" and drops the blank after "
         "it: shows \"thats\" (write ’ (U+2019), or 10 apostrophes at this depth)\n"
         "1:56-62 unknown-type: `Number` is not a type: this shows what `{2}` shows (did you mean "
         "`number`?)\n"},
        {__LINE__, "a{0",
         "1:4-4 syntax: Illegal argument in format string (1:2-3 this brace is not closed)\n"},
        {__LINE__, "{0}}",
         "1:4-5 syntax: unexpected closing brace (to show the brace, write `'}'`)\n"},
        {__LINE__, "ü{x} {99999999999}",
         "1:3-4 syntax: Illegal argument in format string (arguments have numbers, counted from 0: "
         "`{0}`) (to show the brace, write `'{'`)\n"
         "1:7-18 syntax: Illegal argument in format string (the number is too large)\n"},
        {__LINE__, "{0,choice}",
         "1:1-11 syntax: style_ required for choice format (write what to choose from, as in "
         "`{0,choice,0#none|1#one|1<many}`)\n"},
        {__LINE__, "{0,choice,0#a|1#b|}",
         "1:19-19 syntax: Syntax error in choice format (after the last `|`, another choice is "
         "expected)\n"},
        {__LINE__, "{0,choice,0#a|x}",
         "1:15-16 syntax: Syntax error in choice format (a choice is a number, `#` or `<`, and a "
         "text, as in `0#none`)\n"},
        {__LINE__, "{0,choice,0#a|1#{0,number,0 EUR}}",
         "1:29-30 syntax: separator character expected (an `E` begins an exponent; for the letter "
         "write `0 '''E'''UR`)\n"},
        {__LINE__, "{0,number,0%%}",
         "1:13-14 syntax: multiplier already set (one `%` after the digits multiplies by 100, as "
         "in `0%`)\n"},
        {__LINE__, "{0,number,0.0.0}", "1:14-15 syntax: separator character expected\n"},
        {__LINE__, "{0,choice,0#{1,choice,0#{x}|1#''}}",
         "1:26-27 syntax: Illegal argument in format string (arguments have numbers, counted from "
         "0: `{0}`) (braces in a choice have to match; to show one alone, pass it as an "
         "argument)\n"},
        {__LINE__, "{0,choice,1#one|0#none}",
         "1:17-18 choice-order: this limit is lower than the one before it: limits have to ascend "
         "(1:11-12 the limit before it)\n"},
        {__LINE__, "{0,choice,0#it's ä|1#'é x}",
         "1:15-18 choice-quote: in a choice, this apostrophe takes \"s\" and drops the blank after "
         "it: shows \"itsä\" (write ’ (U+2019), or 4 apostrophes at this depth)\n"
         "1:22-24 invalid-encoding: in a choice, this apostrophe drops a part of the character "
         "after it: what is shown is not UTF-8 (write ’ (U+2019), or 4 apostrophes at this "
         "depth)\n"},
        {__LINE__, "{0,date,d de MMMM}",
         "1:11-13 date-word: in `de`, `d` is a field (for the word write `'de'`)\n"},
        {__LINE__, "{0,choice,0#{1,date,d 'de' MMMM, HH:mm Uhr}}",
         "1:23-26 choice-quote: in a choice, this apostrophe takes \"d\" and drops \"e\" after it: "
         "shows \"d\" (write ’ (U+2019), or 4 apostrophes at this depth)\n"
         "1:26-29 choice-quote: in a choice, this apostrophe takes the blank and drops \"M\" after "
         "it: shows \"d\" (write ’ (U+2019), or 4 apostrophes at this depth)\n"
         "1:40-43 date-word: in `Uhr`, `h` is a field (for the word write `''''Uhr''''`)\n"},
        {__LINE__, "{0,number,0 Plätze}",
         "1:15-16 invalid-encoding: \"ä\" has the byte A4, which is the currency sign in a decimal "
         "pattern: what is shown is not UTF-8 (write the text after the placeholder)\n"},
        {__LINE__, "{0,number,#.##}",
         "1:11-15 zero-vanishes: this shows nothing for 0 (`0` is a digit that is always shown, as "
         "in `#,##0`)\n"},
        {__LINE__, "{0:N2}",
         "1:3-6 index-trailing: `:N2` after the index 0 is ignored (a type comes after a comma, as "
         "in `{0,number,0.00}`)\n"},
        {__LINE__, "{0,number} {0,choice,0#a|1#b}",
         "1:1-11 implicit-decimals: this counts something, but shows 1 as \"1.00\" (for whole "
         "numbers write `{0}` or `{0,number,integer}`)\n"},
    };
    for (const ReportCase& row : cases) {
        EXPECT_EQ(diagnosed(row.pattern), row.diagnostics) << "line " << row.line;
    }
}

struct RuleCase {
    int line;
    const char* pattern;
    const char* rules;
};

void expectRules(const RuleCase& row) {
    EXPECT_EQ(rulesOf(row.pattern), row.rules) << "line " << row.line << ": " << row.pattern;
}

TEST(PatternCheck, AcceptsCorrectPatterns) {
    const RuleCase cases[] = {
        {__LINE__, "", ""},
        {__LINE__, "{0} { 1 }{+2}{03}{4 }", ""},
        {__LINE__, "{0,}{1,date,}{2,time,}", ""},
        {__LINE__, "it's the dogs' day, it''s '{'0'}' '''", ""},
        {__LINE__, "50% of {0}, {1}% and %20, 100 %, 5%0 %TEMP% %name %%i", ""},
        {__LINE__, "{0,choice,-1#minus|0#zero|0<plus|1e3#many}", ""},
        {__LINE__, "{0,choice, 0 #it''''s so|1#’tis|2#it''s}", ""},
        {__LINE__, "{0,choice,0#a'|'b|1#'''{'''x'''}'''}", ""},
        {__LINE__, "{0,choice,0#{1,number,0 '''E'''UR}|1#{1,number,0} ä}", ""},
        {__LINE__, "{0,number,0.##}{0,number,#,##0}{0,number,0%}{0,number,'#'0}{0,number,00E0}",
         ""},
        {__LINE__, "{0,number,0 m2}{0,number,CO2: 0}{0,number,0 Äpfel}", ""},
        {__LINE__, "{0,choice,0#none|1#{0,number,#} files}", ""},
        {__LINE__, "{0,date,dddd, d. MMMM yyyy}{0,date,yyyy-MM-ddTHH:mm:ssZ}{0,date,yyyy年M月d日}",
         ""},
        {__LINE__, "{0,time,HH:mm}{0,time,h:mm tt}{0,time,mm}{0,date,MMMM}{0,date,d 'de' MMMM}",
         ""},
        {__LINE__,
         "{0,time,mm:ss}{0,time,kl. HH:mm}{0,date,d/M HH:mm}{0,date,HH:mm dd.MM.yyyy}{0,date,MMMM "
         "HH:mm}",
         ""},
        {__LINE__, "{0,date,short}{0,date,full}{0,number,percent} {0,time}", ""},
        {__LINE__, "{0,choice,0#{1,date,d ''''de'''' MMMM}}{0,number,0 o'clock}{0,number,''0''}",
         ""},
        {__LINE__, "{0}{2}", ""},
    };
    for (const RuleCase& row : cases) {
        expectRules(row);
    }
}

TEST(PatternCheck, NamesTheRule) {
    const RuleCase cases[] = {
        {__LINE__, "{0,integer}{0,string}{0,plural}{0,nubmer}{0,}{0,,x}{0,foo}",
         "unknown-type unknown-type unknown-type unknown-type unknown-type unknown-type "},
        {__LINE__, "{0,number,Percent}{0,time,full}{0,number,short}{0,date, long}{0,date,integer}",
         "time-style time-style time-style time-style time-style "},
        {__LINE__, "{1x}{0x1}{0[]}", "index-trailing index-trailing index-trailing "},
        {__LINE__, "{0,choice,x#a|1,5#b|2#c||3#d}", "choice-limit choice-limit choice-limit "},
        {__LINE__, "{0,choice,0≤a|1#b}", "choice-limit "},
        {__LINE__, "{0,choice,1#a|1e+3#b|9#c|inf#d}", "choice-limit choice-limit "},
        {__LINE__, "{0,choice,0#a|0#b|-1#c|-1<d|5#e|5<f}", "choice-order choice-order "},
        {__LINE__, "{0,choice,0<a|0#b}", "choice-order "},
        {__LINE__, "{0,number,N2}{0,number,%d}{0,number,%}",
         "no-digit-mark no-digit-mark no-digit-mark "},
        {__LINE__, "{0,number,#}{0,number,#.##}{0,number,#%}{0,number,#,###}",
         "zero-vanishes zero-vanishes zero-vanishes zero-vanishes "},
        {__LINE__, "{0,choice,0#{0,number,#}|1#{1,number,#}}", "zero-vanishes zero-vanishes "},
        {__LINE__, "{0,number,0 'kg'}", "decimal-quote "},
        {__LINE__, "{0,number,1,000.00}{0,number,0.5}{0,number,#,##0.09}",
         "decimal-digit decimal-digit decimal-digit "},
        {__LINE__, "{0,number,0%}%{1,number,percent}%", "percent-twice percent-twice "},
        {__LINE__, "{0,choice,0.5#a|1#{0,number}}{1,number,integer}", "implicit-decimals "},
        {__LINE__, "{0,date,E a S DD YYYY uuuu z kk}",
         "date-letter date-letter date-letter date-letter date-letter date-letter date-letter "
         "date-letter "},
        {__LINE__, "{0,date,%d.%m.%Y}", "date-letter "},
        {__LINE__, "{0,date,today}{0,time,ha}{0,date,dMMMMyyyy hhmma}",
         "date-word date-letter date-letter "},
        {__LINE__, "{0,date,'day''s end'}{0,date,d 'a}", "date-word date-quote date-quote "},
        {__LINE__, "{0,date,dd/mm/yy}{0,date,m/d}{0,time,HH:MM}{0,date,yyyy-mm-dd HH:mm}",
         "minute-for-month minute-for-month minute-for-month minute-for-month "},
        {__LINE__, "{0,time,h:mm}", "hour-marker "},
        {__LINE__, "%1!s! %n", "foreign-insert "},
        {__LINE__, "Done %0\n", "foreign-insert "},
        {__LINE__, "dogs' 'bone 'x'", "quote-vanishes quote-vanishes "},
        {__LINE__, "{0,choice,0#the 'e' key|1#'''b''' and c}", "quote-vanishes "},
        {__LINE__, "{0,choice,0#''a'}'1#b}", "choice-closing "},
        {__LINE__, "{0,choice,0#a'é|1#b}", "invalid-encoding "},
        {__LINE__, "{0,number,0 ¤}{0,number,0ä}", "invalid-encoding invalid-encoding "},
        {__LINE__, "{-1}{-2x}", "negative-index negative-index index-trailing "},
    };
    for (const RuleCase& row : cases) {
        expectRules(row);
    }
}

TEST(PatternCheck, ReportsUnusedArgumentsOnlyIfDenied) {
    EXPECT_EQ(rulesOf("{0}{2}", {{}, {"unused-argument"}}), "unused-argument ");
    EXPECT_EQ(rulesOf("{1,choice,0#{0}|1#{2}}", {{}, {"unused-argument"}}), "");
}

TEST(PatternCheck, CountsApostrophesByTrying) {
    const std::string lost = ": in a choice, this apostrophe takes \"s\" and drops the blank after "
                             "it: shows \"itsx\" (write ’ (U+2019)";
    EXPECT_NE(diagnosed("{0,choice,0#it's x}").find(lost + ", or 4 apostrophes"),
              std::string::npos);
    std::string deep = "it's x";
    for (int level = 0; level < 12; ++level) {
        deep.insert(0, "{0,choice,0#").append("}");
    }
    EXPECT_NE(diagnosed(deep).find("(write ’ (U+2019))"), std::string::npos) << diagnosed(deep);
}

// Hostile input: deep nesting must not exhaust the machine stack, nor take much time.
TEST(PatternCheck, AcceptsAnyNesting) {
    std::string opened;
    for (int level = 0; level < 20000; ++level) {
        opened += "{0,choice,0#it's |1#";
    }
    EXPECT_NE(rulesOf(opened).find("syntax "), std::string::npos);
    EXPECT_EQ(rulesOf(opened + std::string(20000, '}')).find("syntax "), std::string::npos);
    EXPECT_NE(rulesOf(std::string(200000, '{')).find("syntax "), std::string::npos);
    EXPECT_EQ(rulesOf(std::string(200000, '\'')), "");
}

} // namespace
} // namespace zem::msglib::tool
