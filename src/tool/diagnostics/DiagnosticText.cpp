#include "tool/diagnostics/DiagnosticText.h"

#include "tool/text/Colours.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Unicode.h"

#include <algorithm>

// Diagnostics go in, text comes out in one of two forms. The form of compilers shows the line of
// each diagnostic with a caret below: `Excerpt` cuts long lines around the place, and counts
// characters so that the caret is below the right one. The other form has one line for each
// diagnostic and note.

namespace zem::msglib::tool {

namespace {

// The number of characters of a line that are shown, and how many of them at most are before the
// place.
constexpr std::size_t shownCharacters = 140;
constexpr std::size_t shownBefore = 100;
constexpr std::size_t longestShown = 4 * shownCharacters; // in bytes

constexpr std::size_t numberWidth = 5;
constexpr const char* ellipsis = "…";

std::string coloured(const std::string& text, Severity severity, const Colours& colours) {
    return severity == Severity::error     ? colours.error(text)
           : severity == Severity::warning ? colours.warning(text)
                                           : colours.note(text);
}

/// Returns the position that is `most` characters before `position`, or 0 if there are fewer.
std::size_t charactersBack(std::string_view text, std::size_t position, std::size_t most) {
    for (std::size_t count = 0; count < most && position > 0; ++count) {
        do {
            --position;
        } while (position > 0 && (static_cast<unsigned char>(text[position]) & 0xC0) == 0x80);
    }
    return position;
}

/// The part of a line that is shown, and the blanks and carets below it.
class Excerpt {
public:
    explicit Excerpt(const Place& place) {
        const std::string_view line = place.file->lineAt(place.offset);
        const std::size_t begin = place.offset - place.file->lineStart(place.offset);
        const std::size_t first = charactersBack(line, begin, shownBefore);
        const std::size_t column = characterCount(line.substr(first, begin - first));
        const std::size_t marked = std::max<std::size_t>(
            characterCount(line.substr(begin, std::min(place.length, longestShown))), 1);
        if (first > 0) {
            line_ += ellipsis;
            below_ += ' ';
        }
        std::string_view rest = line.substr(first);
        for (std::size_t index = 0; index < shownCharacters && !rest.empty(); ++index) {
            const std::string_view before = rest;
            const char32_t character = takeCharacter(rest);
            line_ += visible(before.substr(0, before.size() - rest.size()));
            if (index < column) {
                below_ += character == '\t' ? '\t' : ' ';
            }
        }
        if (!rest.empty()) {
            line_ += ellipsis;
        }
        caret_ = '^' + std::string(std::min(marked, shownCharacters - column) - 1, '~');
    }

    void appendTo(std::string& out, std::size_t lineNumber, const Colours& colours) const {
        const std::string number = std::to_string(lineNumber);
        const std::size_t width = std::max(numberWidth, number.size());
        out += std::string(width - number.size(), ' ') + number + " | " + line_ + '\n';
        out += std::string(width, ' ') + " | " + below_ + colours.good(caret_) + '\n';
    }

private:
    std::string line_;
    std::string below_;
    std::string caret_;
};

void appendHead(std::string& out, const Place& place, Severity severity, const std::string& message,
                const Colours& colours) {
    const auto position = place.file->positionOf(place.offset);
    out += colours.title(place.file->name() + ':' + std::to_string(position.line) + ':' +
                         std::to_string(position.column) + ": ") +
           coloured(std::string(nameOf(severity)) + ": ", severity, colours) + message;
}

void appendExcerpt(std::string& out, const Place& place, const Colours& colours) {
    Excerpt(place).appendTo(out, place.file->positionOf(place.offset).line, colours);
}

void appendMsvc(std::string& out, const Place& place, const std::string& what,
                const std::string& message) {
    const auto position = place.file->positionOf(place.offset);
    out += place.file->name() + '(' + std::to_string(position.line) + ',' +
           std::to_string(position.column) + "): " + what + ": " + message + '\n';
}

const Place& placeOf(const Note& note, const Diagnostic& diagnostic) {
    return note.place.file != nullptr ? note.place : diagnostic.place;
}

} // namespace

std::string textOf(const std::vector<Diagnostic>& diagnostics, bool isColoured) {
    const Colours colours(isColoured);
    std::string out;
    for (const Diagnostic& diagnostic : diagnostics) {
        appendHead(out, diagnostic.place, diagnostic.severity, diagnostic.message, colours);
        out += " [" + std::string(diagnostic.rule->name) + "]\n";
        appendExcerpt(out, diagnostic.place, colours);
        for (const Note& note : diagnostic.notes) {
            appendHead(out, placeOf(note, diagnostic), Severity::note, note.message, colours);
            out += '\n';
            if (note.place.file != nullptr) {
                appendExcerpt(out, note.place, colours);
            }
        }
    }
    return out;
}

std::string msvcTextOf(const std::vector<Diagnostic>& diagnostics) {
    std::string out;
    for (const Diagnostic& diagnostic : diagnostics) {
        appendMsvc(out, diagnostic.place,
                   nameOf(diagnostic.severity) + (' ' + std::string(diagnostic.rule->name)),
                   diagnostic.message);
        for (const Note& note : diagnostic.notes) {
            appendMsvc(out, placeOf(note, diagnostic), "note", note.message);
        }
    }
    return out;
}

const char* nameOf(Severity severity) noexcept {
    switch (severity) {
    case Severity::error: return "error";
    case Severity::warning: return "warning";
    case Severity::note: return "note";
    case Severity::off: break;
    }
    return "off";
}

} // namespace zem::msglib::tool
