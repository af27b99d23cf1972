// Descriptions of patterns, and the intervals of choices.

#include "tool/pattern/ChoiceIntervals.h"
#include "tool/preview/Explanation.h"

#include "msglib/ChoiceFormat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <string>

namespace zem::msglib::tool {
namespace {

std::string explained(const std::string& pattern) {
    const SourceFile file("pattern", pattern);
    return explanationOf(PatternTree({&file, 0, file.text().size()}), Colours());
}

struct ExplanationCase {
    int line;
    const char* pattern;
    const char* words;
};

const std::string byKind =
    "by its kind: 1234 shows \"1,234\", 1234.5 shows \"1,234.50\", a text stays as it is\n";

TEST(Explanation, DescribesEveryStyle) {
    const ExplanationCase cases[] = {
        {__LINE__, "{0,number}",
         "argument 0: a number, which is `#,##0.00;-#`\n"
         "  groups of 3 digits, 2 decimals\n"
         "  1234.5 shows \"1,234.50\", -0.25 shows \"-0.25\"\n"},
        {__LINE__, "{1,number,integer}",
         "argument 1: a number in the style `integer`, which is `#,##0;-#`\n"
         "  groups of 3 digits, no decimals\n"
         "  1234.5 shows \"1,235\", -0.25 shows \"-0\"\n"},
        {__LINE__, "{0,number,percent}",
         "argument 0: a number in the style `percent`, which is `#,##0.00%;-#%`\n"
         "  groups of 3 digits, 2 decimals, multiplied by 100\n"
         "  1234.5 shows \"123,450.00%\", -0.25 shows \"-25.00%\"\n"},
        {__LINE__, "{0,number,currency}",
         "argument 0: a number in the style `currency`, which is `¤#,##0.00;(¤#)`\n"
         "  groups of 3 digits, 2 decimals\n"
         "  1234.5 shows \"$1,234.50\", -0.25 shows \"($0.25)\"\n"},
        {__LINE__, "{0,number,#,#.0##}",
         "argument 0: a number by `#,#.0##`\n"
         "  groups of 1 digit, no digit before the point for numbers below 1, 1 to 3 decimals\n"
         "  1234.5 shows \"1,2,3,4.5\", -0.25 shows \"-.25\"\n"},
        {__LINE__, "{0,number,00.#E0}",
         "argument 0: a number by `00.#E0`\n"
         "  no groups, at least 2 digits before the point, up to 1 decimal, with an exponent\n"
         "  1234.5 shows \"12.3E2\", -0.25 shows \"-25E-2\"\n"},
        {__LINE__, "{0,number,0.#0}",
         "argument 0: a number by `0.#0`\n"
         "  does not compile: zero mark following digit\n"
         "does not compile: zero mark following digit\n"},
        {__LINE__, "{0,date}",
         "argument 0: a date, which is `MMM dd yy`\n"
         "  2026-11-23T15:30:45 shows \"Nov 23 26\"\n"
         "  `MMM` name of the month, short: \"Nov\"\n"
         "  text \" \"\n"
         "  `dd` day of the month, two digits: \"23\"\n"
         "  text \" \"\n"
         "  `yy` last two digits of the year: \"26\"\n"},
        {__LINE__, "{0,date,full}",
         "argument 0: a date in the style `full`, which is `dddd, MMMM d, yyyy`\n"
         "  2026-11-23T15:30:45 shows \"Monday, November 23, 2026\"\n"
         "  `dddd` day of the week: \"Monday\"\n"
         "  text \", \"\n"
         "  `MMMM` name of the month: \"November\"\n"
         "  text \" \"\n"
         "  `d` day of the month: \"23\"\n"
         "  text \", \"\n"
         "  `yyyy` year: \"2026\"\n"},
        {__LINE__, "{0,time}",
         "argument 0: a time of day, which is `h:mm:ss tt`\n"
         "  2026-11-23T15:30:45 shows \"3:30:45 PM\"\n"
         "  `h` hour of 12: \"3\"\n"
         "  text \":\"\n"
         "  `mm` minute, two digits: \"30\"\n"
         "  text \":\"\n"
         "  `ss` second, two digits: \"45\"\n"
         "  text \" \"\n"
         "  `tt` marker of morning or afternoon: \"PM\"\n"},
        {__LINE__, "{0,date,short}",
         "argument 0: a date in the style `short`, which is `M/d/yyyy`\n"
         "  2026-11-23T15:30:45 shows \"11/23/2026\"\n"
         "  `M` month: \"11\"\n"
         "  text \"/\"\n"
         "  `d` day of the month: \"23\"\n"
         "  text \"/\"\n"
         "  `yyyy` year: \"2026\"\n"},
        {__LINE__, "{0,time,Short}", // not a style word
         "argument 0: a date or time by `Short`\n"
         "  2026-11-23T15:30:45 shows \"S3orP\"\n"
         "  text \"S\"\n"
         "  `h` hour of 12: \"3\"\n"
         "  text \"or\"\n"
         "  `t` first letter of the marker of morning or afternoon: \"P\"\n"},
        {__LINE__, "", "nothing\n"},
    };
    for (const ExplanationCase& row : cases) {
        EXPECT_EQ(explained(row.pattern), row.words) << "line " << row.line;
    }
    EXPECT_EQ(explained("{2}"), "argument 2 " + byKind);
    EXPECT_EQ(explained("{0,Number,0}"), "argument 0: `Number` is not a type\n  " + byKind);
}

TEST(Explanation, NamesIntervals) {
    const ExplanationCase cases[] = {
        {__LINE__, "0#a", "every number"},
        {__LINE__, "0#a|1#b|1<c", "from 0, below 1, and everything lower; exactly 1; above 1"},
        {__LINE__, "0<a|0.5<b|3#c",
         "above 0, up to 0.5, and everything lower; above 0.5, below 3; from 3"},
        {__LINE__, "5#a|1#b|3#c", "below 5; never chosen; from 5"},
        {__LINE__, "1#a|1#b", "from 1, below 1, and everything lower; from 1"},
        {__LINE__, "x#a|1e3#b", "from 0, below 1000, and everything lower; from 1000"},
    };
    for (const ExplanationCase& row : cases) {
        const SourceFile file("pattern", "{0,choice," + std::string(row.pattern) + "}");
        const PatternTree tree({&file, 0, file.text().size()});
        std::string words;
        const std::string text = explanationOf(tree, Colours());
        for (std::size_t at = 0; (at = text.find("\n  ", at)) != std::string::npos; ++at) {
            if (text[at + 3] != ' ') {
                words += (words.empty() ? "" : "; ") +
                         text.substr(at + 3, text.find(":\n", at) - at - 3);
            }
        }
        EXPECT_EQ(words, row.words) << "line " << row.line;
    }
}

// Each number is only in the interval of the text that the library chooses.
TEST(Explanation, HasTheIntervalsOfTheLibrary) {
    std::mt19937 random(3);
    for (int round = 0; round < 500; ++round) {
        std::string style;
        const std::size_t count = 1 + random() % 4;
        for (std::size_t entry = 0; entry < count; ++entry) {
            style += (entry > 0 ? "|" : "") + std::to_string(random() % 5) +
                     (random() % 2 == 0 ? "#" : "<") + std::to_string(entry);
        }
        const SourceFile file("pattern", "{0,choice," + style + "}");
        const PatternTree tree({&file, 0, file.text().size()});
        const auto intervals = intervalsOf(tree.texts().front().placeholders.front());
        const ChoiceFormat format(style);
        for (double value = -1; value < 6; value += 0.5) {
            for (const double number : {value, ChoiceFormat::nextDouble(value)}) {
                std::string found;
                for (std::size_t entry = 0; entry < count; ++entry) {
                    found += intervals[entry].numbers.contains(number) ? std::to_string(entry) : "";
                }
                std::string chosen;
                format.format(number, chosen);
                EXPECT_EQ(found, chosen) << style << " for " << number;
            }
        }
    }
}

TEST(NumberInterval, IntersectsAndHasASample) {
    std::mt19937 random(5);
    const auto bound = [&random] {
        const auto half = static_cast<double>(random() % 12) / 2;
        return random() % 4 == 0 ? std::nullopt : std::optional(half);
    };
    for (int round = 0; round < 2000; ++round) {
        const NumberInterval one{bound(), bound()};
        const NumberInterval other{bound(), bound()};
        const NumberInterval both = one.within(other);
        for (double value = -1; value < 7; value += 0.25) {
            EXPECT_EQ(both.contains(value), one.contains(value) && other.contains(value));
        }
        EXPECT_TRUE(both.isEmpty() || both.contains(both.sample()));
    }
    const double next = ChoiceFormat::nextDouble(1);
    EXPECT_EQ((NumberInterval{1, next}.sample()), 1);
    EXPECT_EQ((NumberInterval{next, 5}.sample()), 2);
    EXPECT_EQ((NumberInterval{next, 1.5}.sample()), 1.1);
    EXPECT_EQ((NumberInterval{next, ChoiceFormat::nextDouble(next)}.sample()), next);
    EXPECT_LT((NumberInterval{std::nullopt, -1e300}.sample()), -1e300);
}

TEST(Explanation, ShowsEffectsOfQuoting) {
    const ExplanationCase cases[] = {
        {__LINE__, "it's", "text \"it's\"\n"},
        {__LINE__, "it''s '{'",
         "text \"it's {\"\n"
         "  written `it''s '{'`; quoting takes away ' (1:4), ' (1:7), ' (1:9)\n"},
        {__LINE__, "''''", // a quoted apostrophe, and a plain one
         "text \"''\"\n  written `''''`; quoting takes away ' (1:1), ' (1:3)\n"},
        {__LINE__, "{0,choice,0#it''s free|1#'a'b}",
         "argument 0 decides:\n"
         "  from 0, below 1, and everything lower:\n"
         "    text \"itsfree\"\n"
         "      written `it''s free`; quoting takes away ' (1:15), ' (1:16), a blank (1:18)\n"
         "  from 1:\n"
         "    text \"ab\"\n"
         "      written `'a'b`; quoting takes away ' (1:26), ' (1:28)\n"},
        {__LINE__, "{0,choice,0#{1,choice,0#x''''y}z}",
         "argument 0 decides:\n"
         "  every number:\n"
         "    argument 1 decides:\n"
         "      every number:\n"
         "        text \"x'y\"\n"
         "          written `x''''y`; quoting takes away ' (1:27), ' (1:28), ' (1:29)\n"
         "    text \"z\"\n"},
        {__LINE__, "{0,choice,0#a{0,number,0 '''E'''}}",
         "argument 0 decides:\n"
         "  every number:\n"
         "    text \"a\"\n"
         "    argument 0: a number by `0 'E'`, written `0 '''E'''`\n"
         "      no groups, no decimals\n"
         "      1234.5 shows \"1235 E\", -0.25 shows \"-0 E\"\n"},
        {__LINE__, "a{0,choice}b",
         "text \"a\"\n"
         "argument 0 decides:\n"
         "text \"b\"\n"
         "does not compile: style_ required for choice format\n"},
        {__LINE__, "a{x}b",
         "text \"ab\"\n"
         "does not compile: Illegal argument in format string\n"},
    };
    for (const ExplanationCase& row : cases) {
        EXPECT_EQ(explained(row.pattern), row.words) << "line " << row.line;
    }
}

TEST(Explanation, EndsForAnyPattern) {
    const std::string parts[] = {
        "{", "}", "'",    ",",      "|",   "#",    "<", "{0", "{0,choice,0#",
        "1", "ä", "date", "number", "{0}", "yyyy", ",0"};
    std::mt19937 random(11);
    for (int round = 0; round < 5000; ++round) {
        std::string pattern;
        for (std::size_t count = random() % 14; count > 0; --count) {
            pattern += parts[random() % std::size(parts)];
        }
        const std::string words = explained(pattern);
        EXPECT_EQ(words.back(), '\n') << pattern;
    }
}

TEST(Explanation, IsLinearForDeepNesting) {
    const auto nested = [](int levels) {
        std::string pattern;
        for (int level = 0; level < levels; ++level) {
            pattern += "{0,choice,0#a|1#b";
        }
        return pattern + "{0}" + std::string(static_cast<std::size_t>(levels), '}');
    };
    const std::string half = explained(nested(5000));
    const std::string whole = explained(nested(10000));
    EXPECT_LT(whole.size(), half.size() * 21 / 10);
    EXPECT_NE(whole.find("[level 10000] argument 0 by its kind"), std::string::npos);
    EXPECT_LT(whole.size() / static_cast<std::size_t>(std::count(whole.begin(), whole.end(), '\n')),
              100);
}

} // namespace
} // namespace zem::msglib::tool
