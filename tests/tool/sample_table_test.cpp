// Tables of samples: for known patterns, for random ones in comparison with the library, and for
// huge ones.

#include "tool/preview/SampleTable.h"

#include "msglib/ChoiceFormat.h"
#include "msglib/MessageFormat.h"

#include <boost/any.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <list>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace zem::msglib::tool {
namespace {

SampleTable tableOf(const std::string& pattern, const std::vector<Parameter>& parameters = {}) {
    const SourceFile file("pattern", pattern);
    return sampleTableOf(PatternTree({&file, 0, file.text().size()}), parameters);
}

/// Returns the rows as `arguments: text`, with a vertical bar after each, and the notes.
std::string dump(const SampleTable& table) {
    std::string text;
    for (const SampleRow& row : table.rows) {
        for (const WrittenArgument& argument : row.arguments) {
            text += argument.text + " ";
        }
        text += (row.rendering.isFailure ? "fails: " : ": ") + row.rendering.text + " | ";
    }
    for (const std::string& note : table.notes) {
        text += "note: " + note;
    }
    return text;
}

struct TableCase {
    int line;
    const char* pattern;
    const char* rows;
};

TEST(SampleTable, FollowsHowArgumentsAreUsed) {
    const TableCase cases[] = {
        {__LINE__, "no argument", ": no argument | "},
        {__LINE__, "", ":  | "},
        {__LINE__, "{0}{1}", // distinct, so that their order is seen
         "text0 text1 : text0text1 | 1234 text1 : 1,234text1 | 1234.5 text1 : 1,234.50text1 | "
         "text0 1234 : text01,234 | text0 1234.5 : text01,234.50 | "},
        {__LINE__, "{1,number,0.0}",
         "unused 1234.567 : 1234.6 | unused 0 : 0.0 | unused 1 : 1.0 | unused -1 : -1.0 | "
         "unused 0.25 : 0.3 | unused 1234567 : 1234567.0 | "},
        {__LINE__, "{0,number,0%}",
         "0.25 : 25% | 1234.567 : 123457% | 0 : 0% | 1 : 100% | -1 : -100% | "
         "1234567 : 123456700% | "},
        {__LINE__, "{0,date,d.M. h tt}",
         "2026-11-23T09:05:07 : 23.11. 9 AM | 2026-01-04T15:30 : 4.1. 3 PM | "},
        {__LINE__, "{0,choice,0#none|1#one|1<many}", "0 : none | 1 : one | 2 : many | "},
        {__LINE__, "{0,choice,0.9#a|0.95#b|1#c}", "0.9 : a | 0.95 : b | 1 : c | "},
        {__LINE__, "{0,choice,0#a|1<{0}}",
         "0 : a | 2 : 2 | 7 : 7 | 1234567 : 1,234,567 | 1234.5 : 1,234.50 | "},
        {__LINE__, "{0,choice,5#a|1#b|3#c}", "1 : a | 5 : c | "}, // limits that don't ascend
        {__LINE__, "{0,choice,1#a|1#b}", "1 : b | 0 : a | "},
        {__LINE__, "{0,choice,0#a|1#{0,choice,0#never|1#b|2#c}}", "0 : a | 1 : b | 2 : c | "},
        {__LINE__, "{0,choice,0#a|1#b}{1,choice,0#c|1#d}",
         "0 0 : ac | 0 1 : ad | 1 0 : bc | 1 1 : bd | "},
        {__LINE__, "{0,choice,0#{1,date,yyyy}|1#{1,date,tt}}",
         "0 2026-11-23T09:05:07 : 2026 | 1 2026-11-23T09:05:07 : AM | "
         "1 2026-01-04T15:30 : PM | "},
        {__LINE__, "{0,choice,0#a|1#b{x}}",
         "0 : a | 1 fails: Illegal argument in format string | "},
        {__LINE__, "{-1}",
         "fails: Argument index in format exceeds number of specified arguments | "},
        {__LINE__, "{99999999}",
         "fails: Argument index in format exceeds number of specified arguments | "},
        {__LINE__, "a}", "fails: unexpected closing brace | "},
    };
    for (const TableCase& row : cases) {
        EXPECT_EQ(dump(tableOf(row.pattern)), row.rows) << "line " << row.line;
    }
}

TEST(SampleTable, TakesKindsAndNamesFromComments) {
    const std::vector<Parameter> parameters = {{ValueKind::text, "folder", ""},
                                               {ValueKind::number, "files", ""}};
    EXPECT_EQ(dump(tableOf("{0}", parameters)), "folder : folder | ");
    EXPECT_EQ(dump(tableOf("{1}", parameters)),
              "unused 7 : 7 | unused 0 : 0 | unused 1 : 1 | unused -1 : -1 | "
              "unused 1234567 : 1,234,567 | unused 1234.5 : 1,234.50 | ");
    EXPECT_EQ(dump(tableOf("{0,choice,0#a|1#b}", parameters)), "0 : a | 1 : b | ");
}

/// Generates patterns of nested choices, in which each text has its own mark.
class PatternMaker {
public:
    explicit PatternMaker(unsigned seed) : random_(seed) {}

    std::string make(int depth = 0) {
        std::string pattern = "<" + std::to_string(++marks_) + ">";
        for (int choice = pick(depth == 0 ? 3 : 2); depth < 4 && choice >= 0; --choice) {
            pattern += "{" + std::to_string(pick(2)) + ",choice,";
            for (int entry = pick(3); entry >= 0; --entry) {
                const double limit = (pick(8) - 2) * (pick(1) == 0 ? 1 : 0.5);
                std::string text = numberArgument(limit).text + (pick(1) == 0 ? '#' : '<');
                pattern += text + make(depth + 1) + (entry > 0 ? "|" : "");
            }
            pattern += "}";
        }
        return pattern;
    }

    int marks() const { return marks_; }

private:
    int pick(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }

    std::mt19937 random_;
    int marks_ = 0;
};

std::string renderedBy(const MessageFormat& format, const std::list<boost::any>& arguments) {
    std::string text;
    format.format(arguments, text);
    return text;
}

std::set<std::string> marksIn(const std::string& text) {
    std::set<std::string> marks;
    for (std::size_t at = 0; (at = text.find('<', at)) != std::string::npos; ++at) {
        marks.insert(text.substr(at, text.find('>', at) + 1 - at));
    }
    return marks;
}

// The library renders the pattern with all combinations of limits and their neighbours.
TEST(SampleTable, ReachesEveryTextThatTheLibraryReaches) {
    std::vector<double> values;
    for (double limit = -3; limit <= 7; limit += 0.5) {
        values.insert(values.end(), {limit, ChoiceFormat::nextDouble(limit)});
    }
    bool hadManyCombinations = false;
    for (unsigned seed = 0; seed < 60; ++seed) {
        const std::string pattern = PatternMaker(seed).make();
        if (pattern.size() > 3000) {
            continue;
        }
        const SampleTable table = tableOf(pattern);
        hadManyCombinations |= !table.notes.empty();
        std::set<std::string> shown;
        for (const SampleRow& row : table.rows) {
            shown.merge(marksIn(row.rendering.text));
        }
        const MessageFormat format(pattern);
        std::mt19937 random(seed);
        std::set<std::string> reached;
        for (const double first : values) {
            for (const double second : values) {
                const double third = values[random() % values.size()];
                reached.merge(marksIn(renderedBy(format, {first, second, third})));
            }
        }
        EXPECT_TRUE(std::includes(shown.begin(), shown.end(), reached.begin(), reached.end()))
            << pattern;
    }
    EXPECT_TRUE(hadManyCombinations);
}

/// Returns what is wrong with a table; empty if each row is what the library renders for the
/// arguments as they are written, and no text comes twice.
std::string violationOf(const std::string& pattern, const SampleTable& table) {
    std::set<std::string> texts;
    for (const SampleRow& row : table.rows) {
        std::list<boost::any> arguments;
        for (const WrittenArgument& argument : row.arguments) {
            arguments.push_back(readArgument(argument.text).value);
        }
        std::string expected;
        bool fails = false;
        try {
            expected = renderedBy(MessageFormat(pattern), arguments);
        } catch (const std::runtime_error& failure) {
            expected = failure.what();
            fails = true;
        }
        if (expected != row.rendering.text || fails != row.rendering.isFailure) {
            return "not as the library: " + row.rendering.text;
        }
        if (!texts.insert((fails ? "!" : "=") + expected).second) {
            return "twice: " + expected;
        }
    }
    return table.rows.empty() ? "no row" : "";
}

TEST(SampleTable, ShowsWhatTheLibraryRendersForAnyPattern) {
    const std::string parts[] = {
        "{",  "}",     "'",       ",",    "|", "#",    "<",      "0",          "1",
        "{0", "{1",    "choice",  "{0}",  "ä", "date", "number", "{0,choice,", "{1,choice,0#",
        "-1", "1e999", "percent", "yyyy", "%", "E",    "."};
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        std::string pattern;
        for (std::size_t count = random() % 12; count > 0; --count) {
            pattern += parts[random() % std::size(parts)];
        }
        EXPECT_EQ(violationOf(pattern, tableOf(pattern)), "") << pattern;
    }
    for (unsigned seed = 0; seed < 20; ++seed) {
        const std::string pattern = PatternMaker(seed).make();
        EXPECT_EQ(violationOf(pattern, tableOf(pattern)), "") << pattern;
    }
}

TEST(SampleTable, EndsForHugePatterns) {
    constexpr int levels = 10000;
    std::string deep;
    for (int level = 0; level < levels; ++level) {
        deep += "{0,choice,0#a|" + std::to_string(level) + "#b";
    }
    const SampleTable deepTable = tableOf(deep + "{0}" + std::string(levels, '}'));
    EXPECT_EQ(deepTable.notes.front(), "too many texts to show all of them");
    std::size_t size = 0;
    for (const SampleRow& row : deepTable.rows) {
        size += row.rendering.text.size();
    }
    EXPECT_LT(size, std::size_t{32} << 20);

    std::string wide = "{0,choice,0#none";
    for (int entry = 1; entry < 20000; ++entry) {
        wide += "|" + std::to_string(entry) + "#text {0}";
    }
    const SampleTable wideTable = tableOf(wide + "}");
    EXPECT_EQ(wideTable.notes.front(), "too many texts to show all of them");
    EXPECT_LT(wideTable.rows.size(), 2000);

    std::string many;
    for (int index = 0; index < 500; ++index) {
        many += "{" + std::to_string(index) + ",choice,0#a|1#b|2#c}";
    }
    const SampleTable manyTable = tableOf(many);
    EXPECT_EQ(manyTable.rows.size(), 1 + 500 * 2);
    EXPECT_EQ(manyTable.notes.size(), 1);
}

} // namespace
} // namespace zem::msglib::tool
