// Spellings of texts in patterns: the library must show the text, and if none is found, none may
// exist.

#include "tool/Program.h"
#include "tool/pattern/Quoter.h"

#include "msglib/MessageFormat.h"

#include <boost/any.hpp>

#include <algorithm>
#include <functional>
#include <list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {
namespace {

std::string render(const std::string& pattern) {
    std::string shown;
    try {
        MessageFormat(pattern).format(std::list<boost::any>{0, 150.0}, shown);
    } catch (const std::runtime_error& failure) {
        return std::string("fails: ") + failure.what();
    }
    return shown;
}

/// The text around a spelling, in the pattern and in the shown text.
struct Surroundings {
    const char* before;
    const char* after;
    const char* shownBefore;
    const char* shownAfter;
};

std::vector<Surroundings> surroundingsOf(TextPlace place) {
    switch (place) {
    case TextPlace::message:
        return {{"", "", "", ""}, {"one ", " two", "one ", " two"}, {"{0}", "{0}", "0", "0"}};
    case TextPlace::number:
        return {{"x {1,number,0", "} y", "x 150", " y"}, {"{1,number,", "0}", "", "150"}};
    case TextPlace::date: break;
    }
    return {{"x {0,date,", "} y", "x ", " y"}, {"{0,date,d ", " d}", "1 ", " 1"}};
}

/// Returns whether the library shows a text for a spelling, between other texts and choices.
bool isRight(const std::string& spelling, const std::string& text, TextPlace place,
             std::size_t depth) {
    for (const Surroundings& around : surroundingsOf(place)) {
        for (const bool isLast : {true, false}) {
            std::string pattern = around.before + spelling + around.after;
            for (std::size_t level = 0; level < depth; ++level) {
                pattern.insert(0, "{0,choice,-5#none|0#").append(isLast ? "}" : "|7#many}");
            }
            if (render(pattern) != around.shownBefore + text + around.shownAfter) {
                return false;
            }
        }
    }
    return true;
}

bool bracesMatch(std::string_view text) {
    int open = 0;
    for (const char byte : text) {
        open += byte == '{' ? 1 : byte == '}' ? -1 : 0;
        if (open < 0) {
            return false;
        }
    }
    return open == 0;
}

/// Returns whether at most `most` apostrophes, put between the other characters of a text, show the
/// text.
bool hasSpelling(const std::string& text, TextPlace place, std::size_t depth, std::size_t most) {
    std::string others = text;
    others.erase(std::remove(others.begin(), others.end(), '\''), others.end());
    const std::function<bool(std::size_t, std::size_t, const std::string&)> exists =
        [&](std::size_t at, std::size_t left, const std::string& begun) {
            if (at == others.size()) {
                return isRight(begun + std::string(left, '\''), text, place, depth);
            }
            for (std::size_t count = 0; count <= left; ++count) {
                if (exists(at + 1, left - count, begun + std::string(count, '\'') + others[at])) {
                    return true;
                }
            }
            return false;
        };
    for (std::size_t count = 0; count <= most; ++count) {
        if (exists(0, count, "")) {
            return true;
        }
    }
    return false;
}

std::vector<std::string> textsOf(std::string_view bytes, std::size_t longest) {
    std::vector<std::string> texts = {""};
    for (std::size_t first = 0, length = 0; length < longest; ++length) {
        const std::size_t end = texts.size();
        for (; first < end; ++first) {
            for (const char byte : bytes) {
                texts.push_back(texts[first] + byte);
            }
        }
    }
    texts.erase(texts.begin()); // an empty style has a meaning of its own
    return texts;
}

TEST(QuoterTest, ShowsEachShortTextAsItIs) {
    const struct {
        int line;
        TextPlace place;
        std::size_t depth;
        std::string_view bytes;
        std::size_t longest;
        std::size_t most; ///< apostrophes of other spellings that are tried
    } rows[] = {
        {__LINE__, TextPlace::message, 0, "'{}|#a", 3, 10},
        {__LINE__, TextPlace::message, 1, "'{}|", 3, 12},
        {__LINE__, TextPlace::message, 2, "'{}|<", 2, 18},
        {__LINE__, TextPlace::message, 3, "'{}|0", 2, 24},
        {__LINE__, TextPlace::number, 0, "'{}E", 3, 9},
        {__LINE__, TextPlace::number, 1, "'{}0;", 2, 10},
        {__LINE__, TextPlace::number, 2, "'{}.a", 2, 14},
        {__LINE__, TextPlace::number, 3, "'{},E", 2, 18},
        {__LINE__, TextPlace::date, 0, "'{}d", 3, 9},
        {__LINE__, TextPlace::date, 1, "'{}|ys", 2, 10},
        {__LINE__, TextPlace::date, 2, "'{}|da", 2, 14},
        {__LINE__, TextPlace::date, 3, "'{}|da", 2, 18},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const Quoter quoter(row.place, row.depth);
        for (const std::string& text : textsOf(row.bytes, row.longest)) {
            const auto spelling = quoter.quote(text);
            if (spelling) {
                EXPECT_TRUE(isRight(*spelling, text, row.place, row.depth))
                    << text << " as " << *spelling;
            } else if (bracesMatch(text)) {
                EXPECT_FALSE(hasSpelling(text, row.place, row.depth, row.most)) << text;
            }
        }
    }
}

TEST(QuoterTest, FindsShortSpellings) {
    const struct {
        int line;
        TextPlace place;
        std::size_t depth;
        std::string text;
        const char* spelling; ///< null if there is none
    } rows[] = {
        {__LINE__, TextPlace::message, 0, "Größe: it's 😀\nfull", "Größe: it's 😀\nfull"},
        {__LINE__, TextPlace::message, 0, "use {0}", "use '{'0'}'"},
        {__LINE__, TextPlace::message, 0, "the dogs' 'bone", "the dogs'' 'bone"},
        {__LINE__, TextPlace::message, 0, "''", "''''"},
        {__LINE__, TextPlace::message, 1, "it's fine", "it''''s fine"},
        {__LINE__, TextPlace::message, 1, "a|b", "a'|'b"},
        {__LINE__, TextPlace::message, 1, "{a}", "'''{'''a'''}'''"},
        {__LINE__, TextPlace::message, 1, "{", nullptr},
        {__LINE__, TextPlace::message, 2, "it's", "it''''''''''s"},
        {__LINE__, TextPlace::message, 8, "it's", nullptr},
        {__LINE__, TextPlace::message, 8, "it’s", "it’s"},
        {__LINE__, TextPlace::number, 0, " EUR", " 'E'UR"},
        {__LINE__, TextPlace::number, 0, "%", "'%'"},
        {__LINE__, TextPlace::number, 0, "ä", nullptr}, // has the byte of the currency symbol
        {__LINE__, TextPlace::date, 0, "on the day", "'on the day'"},
        {__LINE__, TextPlace::date, 0, "full", "'full'"}, // by itself it is a word for a style
        {__LINE__, TextPlace::date, 0, "Uhr", "'Uhr'"},
        {__LINE__, TextPlace::date, 0, "day’s end", "'day’s end'"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const auto spelling = Quoter(row.place, row.depth).quote(row.text);
        EXPECT_EQ(spelling.value_or("none"), row.spelling != nullptr ? row.spelling : "none");
    }
    const std::string text = std::string(20000, 'x') + "it's {0}";
    EXPECT_EQ(Quoter(TextPlace::message, 0).quote(text), std::string(20000, 'x') + "it's '{'0'}'");
}

class QuoteCommandTest : public FolderTest {};

TEST_F(QuoteCommandTest, PrintsTheSpellingAlone) {
    const struct {
        int line;
        const char* arguments;
        int status;
        const char* output;
    } rows[] = {
        {__LINE__, "'use {0}'", 0, "use '{'0'}'\n"},
        {__LINE__, "\"it's fine\" --in choice", 0, "it''''s fine\n"},
        {__LINE__, "\"it's fine\" --in choice --depth 2", 0, "it''''''''''s fine\n"},
        {__LINE__, "--in number -- -E", 0, "-'E'\n"},
        {__LINE__, "'{' --in choice", 1,
         "msglib: no spelling was found that shows this text there; pass it as an argument\n"},
        {__LINE__, "ä --in number", 1,
         "msglib: no spelling was found that shows this text there; write it before or after the "
         "placeholder\n"},
        {__LINE__, "\"it's\" --depth 8", 1,
         "msglib: no spelling was found that shows this text there; write ’ (U+2019) for an "
         "apostrophe: "
         "it’s\n"},
        {__LINE__, "\"$(printf 'a\\n.\\nb')\"", 0,
         "a\n.\nb\nmsglib: note: in a message text file, a line with \".\" alone ends the text\n"},
        {__LINE__, "\"$(printf 'a\\rb')\"", 0,
         "a\rb\nmsglib: note: a message text file cannot have a carriage return or Ctrl-Z in a "
         "text\n"},
        {__LINE__, "\"$(printf '\\344')\"", 2, "msglib: error: the text is not UTF-8\n"},
        {__LINE__, "x --in choice --depth 0", 2,
         "msglib: error: the text of a choice is in 1 choice at least\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const Outcome outcome = run(std::string("msglib quote ") + row.arguments);
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_EQ(outcome.output, row.output);
    }
}

} // namespace
} // namespace zem::msglib::tool
