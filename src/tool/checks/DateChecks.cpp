#include "tool/checks/PatternChecks.h"
#include "tool/checks/StyleKeywords.h"
#include "tool/pattern/Spelling.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Strings.h"

#include "base/Scanning.h"
#include "date/DateReader.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A pattern tree goes in, diagnostics come out: for date patterns that show something else than
// they seem to. The library accepts every date pattern, since characters that are not fields are
// shown as they are. So the pattern is first split into fields, words and quoted text as the
// library reads it. Then each check looks for signs of another language of date patterns, or of a
// word without quotes.

namespace zem::msglib::tool {

namespace {

/// A letter that is a field in other languages of date patterns.
struct ForeignLetter {
    char letter;
    char field;         ///< the field to write instead; none if there is no such field
    std::size_t fewest; ///< letters in a run; a shorter run is probably text
    std::string_view advice;
    std::size_t shortest = 1;
    std::size_t longest = 1;
};

constexpr std::string_view noZone = "fields are those of UTC, and there is no time zone";
constexpr std::string_view noFraction = "there are no fractions of a second";
constexpr std::string_view noWeek = "there are no weeks";

constexpr ForeignLetter foreignLetters[] = {
    {'a', 't', 1, "the marker is ", 2, 2},
    {'E', 'd', 1, "the day's name is ", 3, 4},
    {'e', 'd', 3, "the day's name is ", 3, 4},
    {'c', 'd', 3, "the day's name is ", 3, 4},
    {'Y', 'y', 1, "the year is ", 1, 4},
    {'u', 'y', 4, "the year is ", 4, 4},
    {'D', 'd', 1, "the day of the month is ", 1, 2},
    {'L', 'M', 1, "the month is ", 1, 4},
    {'k', 'H', 1, "the hour of 24 is ", 1, 2},
    {'K', 'h', 1, "the hour of 12 is ", 1, 2},
    {'G', 'g', 1, "the era is ", 1, 1},
    {'S', '\0', 1, noFraction},
    {'f', '\0', 2, noFraction},
    {'F', '\0', 2, noFraction},
    {'z', '\0', 1, noZone},
    {'Z', '\0', 1, noZone},
    {'X', '\0', 1, noZone},
    {'x', '\0', 2, noZone},
    {'w', '\0', 1, noWeek},
    {'W', '\0', 1, noWeek},
    {'Q', '\0', 1, "there are no quarters"},
};

/// Returns what to write in place of a run of a foreign letter, or why no field can replace it.
std::string adviceFor(const ForeignLetter& foreign, std::string_view run) {
    const std::size_t length = std::clamp(run.size(), foreign.shortest, foreign.longest);
    return std::string(foreign.advice) +
           (foreign.field == '\0' ? "" : code(std::string(length, foreign.field)));
}

const ForeignLetter* foreignLetter(std::string_view run) {
    const auto* const found = std::find_if(
        std::begin(foreignLetters), std::end(foreignLetters), [run](const ForeignLetter& foreign) {
            return foreign.letter == run.front() && run.size() >= foreign.fewest;
        });
    return found == std::end(foreignLetters) ? nullptr : found;
}

bool isField(DatePiece piece) noexcept {
    return piece == DatePiece::Date || piece == DatePiece::Time;
}

/// A run of one letter outside of quotes.
struct Run {
    std::string_view text;
    bool isField;
};

/// A date pattern, split as the library reads it.
struct DatePattern {
    std::vector<std::string_view> fields;
    std::vector<std::vector<Run>> words; ///< runs of letters with nothing between them
    std::vector<std::string_view> quoted;
    std::vector<std::string_view> conversions; ///< `%` and a letter
};

bool touches(std::string_view one, std::string_view next) noexcept {
    return one.data() + one.size() == next.data();
}

class DatePatternReader {
public:
    void operator()(DatePiece piece, std::string_view text) {
        const bool isLetterPiece =
            isField(piece) || (piece == DatePiece::Literal && isLetter(text.front()));
        if (piece == DatePiece::Quoted) {
            pattern_.quoted.push_back(text);
        }
        if (isField(piece)) {
            pattern_.fields.push_back(text);
        }
        if (isLetterPiece && percent_ != nullptr && percent_ + 1 == text.data()) {
            pattern_.conversions.emplace_back(percent_, 2);
        } else if (isLetterPiece) {
            addLetters(text, isField(piece));
        }
        percent_ = piece == DatePiece::Literal && text == "%" ? text.data() : nullptr;
    }

    const DatePattern& pattern() const noexcept { return pattern_; }

private:
    void addLetters(std::string_view text, bool isFieldRun) {
        auto& words = pattern_.words;
        if (words.empty() || !touches(words.back().back().text, text)) {
            words.push_back({{text, isFieldRun}});
            return;
        }
        Run& last = words.back().back();
        if (!isFieldRun && last.text.back() == text.front()) {
            last.text = {last.text.data(), last.text.size() + 1};
        } else {
            words.back().push_back({text, isFieldRun});
        }
    }

    DatePattern pattern_;
    const char* percent_ = nullptr; // the last piece, if it is a percent sign
};

/// The checks of one date pattern.
class DateStyleCheck {
public:
    DateStyleCheck(const TracedText& style, std::size_t depth, Diagnostics& diagnostics)
        : style_(style),
          depth_(depth),
          diagnostics_(diagnostics) {
        DatePatternReader reader;
        readDatePattern(style.text(), reader);
        pattern_ = reader.pattern();
    }

    void check() {
        if (!pattern_.conversions.empty()) {
            reportConversion();
            return;
        }
        checkWords();
        checkQuotes();
        checkMinutes();
        checkMarker();
    }

private:
    /// Returns whether a word is part of a pattern: made of fields and of letters that are fields
    /// in other languages, with `T` and `Z` as in ISO 8601. Several letters that all differ are
    /// probably a word of a human language, except hour and marker.
    static bool isPatternLike(const std::vector<Run>& word) {
        const bool isMixed =
            word.size() > 1 && std::all_of(word.begin(), word.end(),
                                           [](const Run& run) { return run.text.size() == 1; });
        if (isMixed && textOf(word) != "ha") {
            return false;
        }
        return std::all_of(word.begin(), word.end(), [&word](const Run& run) {
            return run.isField || foreignLetter(run.text) != nullptr || isIsoLetter(word, run);
        });
    }

    static std::string_view textOf(const std::vector<Run>& word) {
        const char* const begin = word.front().text.data();
        const std::string_view last = word.back().text;
        return {begin, static_cast<std::size_t>(last.data() + last.size() - begin)};
    }

    static bool isIsoLetter(const std::vector<Run>& word, const Run& run) {
        const bool isLast = &run == &word.back();
        return run.text == "T" || (run.text == "Z" && isLast && word.size() > 1);
    }

    void checkWords() {
        for (const std::vector<Run>& word : pattern_.words) {
            const auto fields =
                std::count_if(word.begin(), word.end(), [](const Run& run) { return run.isField; });
            const bool isText = fields < static_cast<std::ptrdiff_t>(word.size());
            if (isPatternLike(word)) {
                checkLetters(word);
            } else if (fields > 0 && isText) {
                reportWord(word);
            }
        }
    }

    void checkLetters(const std::vector<Run>& word) {
        for (const Run& run : word) {
            const ForeignLetter* const foreign = foreignLetter(run.text);
            if (run.isField || foreign == nullptr || isIsoLetter(word, run)) {
                continue;
            }
            isForeign_ = true;
            diagnostics_.report(rules::dateLetter, style_.placeOf(run.text),
                                code(run.text) + " is not a date letter; " +
                                    adviceFor(*foreign, run.text));
        }
    }

    void reportWord(const std::vector<Run>& word) {
        const std::string_view text = textOf(word);
        std::string fields;
        for (const Run& run : word) {
            if (run.isField) {
                fields += (fields.empty() ? "" : ", ") + code(run.text);
            }
        }
        std::vector<Note> notes;
        if (const std::string quoted = quotedInStyle("date", text, depth_); !quoted.empty()) {
            notes.push_back({"for the word write " + code(quoted)});
        }
        diagnostics_.report(
            rules::dateWord, style_.placeOf(text),
            "in " + code(text) + ", " + fields +
                (fields.find(',') == std::string::npos ? " is a field" : " are fields"),
            std::move(notes));
    }

    void reportConversion() {
        const std::string_view first = pattern_.conversions.front();
        diagnostics_.report(rules::dateLetter, style_.placeOf(first),
                            code(first) +
                                " is not a field; write fields as in `yyyy-MM-dd HH:mm:ss`");
    }

    void checkQuotes() {
        for (const std::string_view text : pattern_.quoted) {
            const auto begin = static_cast<std::size_t>(text.data() - style_.text().data());
            const bool isOpen = begin + text.size() == style_.size();
            if (isOpen || (text.empty() && !holdsAt(style_.text(), begin - 2, quote))) {
                diagnostics_.report(rules::dateQuote, style_.place(begin - 1, begin),
                                    isOpen ? "this apostrophe has no partner: it quotes the rest "
                                             "of the pattern and is not shown"
                                           : "outside of quoted text, two apostrophes show "
                                             "nothing",
                                    {{"write ’ (U+2019) for an apostrophe that is shown"}});
                return;
            }
        }
    }

    bool isFieldOf(std::size_t position, std::string_view letters) const {
        return position < pattern_.fields.size() &&
               letters.find(pattern_.fields[position].front()) != std::string_view::npos;
    }

    /// Reports minutes beside days and years, and months beside hours and seconds.
    void checkMinutes() {
        for (std::size_t at = 0; at < pattern_.fields.size(); ++at) {
            const std::string_view field = pattern_.fields[at];
            const auto isBeside = [this, at](std::string_view letters) {
                return isFieldOf(at - 1, letters) || isFieldOf(at + 1, letters);
            };
            if (field.front() == 'm' && isBeside("dy") && !isBeside("hHst")) {
                diagnostics_.report(rules::minuteForMonth, style_.placeOf(field),
                                    code(field) + " is the minute; the month is " +
                                        code(std::string(field.size(), 'M')));
            } else if (field.front() == 'M' && field.size() <= 2 && isBeside("hHs") &&
                       !isBeside("dMyg")) {
                diagnostics_.report(rules::minuteForMonth, style_.placeOf(field),
                                    code(field) + " is the month; the minute is " +
                                        code(std::string(field.size(), 'm')));
            }
        }
    }

    /// Reports hours of 12 without a marker, except beside letters that are a marker in other
    /// languages.
    void checkMarker() {
        std::string_view hour;
        for (const std::string_view field : pattern_.fields) {
            if (field.front() == 't' || field.front() == 'H') {
                return;
            }
            hour = field.front() == 'h' ? field : hour;
        }
        if (!hour.empty() && !isForeign_) {
            diagnostics_.report(rules::hourMarker, style_.placeOf(hour),
                                code(hour) + " counts to 12, and nothing distinguishes morning "
                                             "from afternoon",
                                {{"add `tt`, or write " + code(std::string(hour.size(), 'H'))}});
        }
    }

    const TracedText& style_;
    std::size_t depth_;
    Diagnostics& diagnostics_;
    DatePattern pattern_;
    bool isForeign_ = false;
};

} // namespace

void checkDateStyles(const PatternTree& tree, Diagnostics& diagnostics) {
    for (const PatternText& text : tree.texts()) {
        for (const Placeholder& placeholder : text.placeholders) {
            if (placeholder.kind == PlaceholderKind::DateStyle &&
                misreadStyleKeyword(placeholder).empty()) {
                DateStyleCheck(placeholder.style, text.depth, diagnostics).check();
            }
        }
    }
}

} // namespace zem::msglib::tool
