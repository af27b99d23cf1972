#include "tool/changes/ChangeListing.h"

#include "tool/text/Colours.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Strings.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cassert>

// A list of changes goes in, text or JSON comes out. In text, each change has one line, with its
// columns aligned over all changes, and the old and new texts below. A summary comes last.

namespace zem::msglib::tool {

namespace {

using Json = nlohmann::ordered_json;

constexpr int indentation = 2;
constexpr std::size_t kindWidth = 10;

std::size_t symbolWidth(const std::vector<Change>& changes) {
    std::size_t width = 0;
    for (const Change& change : changes) {
        width = std::max(width, change.message().symbol.size());
    }
    return width;
}

std::string padded(std::string text, std::size_t width) {
    text.resize(std::max(text.size(), width), ' ');
    return text;
}

/// Appends the lines of a text, each after a mark.
///
/// @param colour  of `Colours`, for these lines
template <class Colour>
void appendLines(std::string& out, const std::optional<std::string>& text, char mark,
                 Colour colour) {
    for (const std::string_view line : linesOf(text ? *text : std::string_view())) {
        out += colour(std::string("  ") + mark + ' ' + visible(line)) + '\n';
    }
}

/// Returns the text after the message of a change: whether callers break, and the details.
std::string remarkOf(const Change& change, const Colours& colours) {
    const std::string words = change.words.empty() ? "" : ": " + change.words;
    if (!change.breaks) {
        return change.words;
    }
    return colours.error("breaks callers") + words;
}

void appendChange(std::string& out, const Change& change, std::size_t width,
                  const Colours& colours) {
    const VersionedMessage& message = change.message();
    std::string head =
        colours.title(padded(nameOf(change.kind), kindWidth)) + "  " + hexadecimal(message.id);
    const std::string remark = remarkOf(change, colours);
    if (!message.symbol.empty() || (width > 0 && !remark.empty())) {
        head += "  " + (remark.empty() ? message.symbol : padded(message.symbol, width));
    }
    out += head + (remark.empty() ? "" : "  " + remark) + '\n';
    const bool isInOne = change.texts.size() == 1;
    for (const TextChange& text : change.texts) {
        if (!isInOne || text.language != lookedUpLanguage) {
            out += "  " + languageText(text.language) + ":\n";
        }
        appendLines(out, text.before, '-',
                    [&](const std::string& line) { return colours.error(line); });
        appendLines(out, text.after, '+',
                    [&](const std::string& line) { return colours.good(line); });
    }
}

std::string summaryOf(const std::vector<Change>& changes) {
    const auto breaking = std::count_if(changes.begin(), changes.end(),
                                        [](const Change& change) { return change.breaks; });
    return std::to_string(changes.size()) + (changes.size() == 1 ? " change, " : " changes, ") +
           (breaking == 0 ? "none" : std::to_string(breaking)) +
           (breaking < 2 ? " breaks callers\n" : " break callers\n");
}

Json kindsOf(const CallSignature& signature) {
    Json kinds = Json::array();
    for (const Parameter& parameter : signature.parameters) {
        kinds.push_back(nameOf(parameter.kind));
    }
    return kinds;
}

Json textsOf(const Change& change) {
    Json texts = Json::array();
    for (const TextChange& text : change.texts) {
        Json object = {{"language", text.language}};
        if (text.before) {
            object["old"] = *text.before;
        }
        if (text.after) {
            object["new"] = *text.after;
        }
        texts.push_back(std::move(object));
    }
    return texts;
}

Json objectOf(const Change& change) {
    Json object = {{"change", nameOf(change.kind)}, {"breaks", change.breaks}};
    if (change.before != nullptr) {
        object["id"] = hexadecimal(change.before->id);
    }
    if (change.after != nullptr) {
        object["newId"] = hexadecimal(change.after->id);
    }
    if (!change.message().symbol.empty()) {
        object["symbol"] = change.message().symbol;
    }
    if (!change.words.empty()) {
        object["message"] = change.words;
    }
    if (change.kind == ChangeKind::arguments) {
        assert(change.before != nullptr && change.after != nullptr);
        object["arguments"] = kindsOf(change.before->signature);
        object["newArguments"] = kindsOf(change.after->signature);
    }
    if (!change.texts.empty()) {
        object["texts"] = textsOf(change);
    }
    return object;
}

} // namespace

std::string textOf(const std::vector<Change>& changes, bool isColoured) {
    const Colours colours(isColoured);
    if (changes.empty()) {
        return "no changes\n";
    }
    const std::size_t width = symbolWidth(changes);
    std::string out;
    for (const Change& change : changes) {
        appendChange(out, change, width, colours);
    }
    return out + '\n' + summaryOf(changes);
}

std::string jsonOf(const std::vector<Change>& changes) {
    Json all = Json::array();
    for (const Change& change : changes) {
        all.push_back(objectOf(change));
    }
    return all.dump(indentation) + '\n';
}

} // namespace zem::msglib::tool
