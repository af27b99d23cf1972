#include "tool/table/TableListing.h"

#include "tool/catalogue/Catalogue.h"
#include "tool/text/Colours.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Strings.h"

#include <nlohmann/json.hpp>

#include <algorithm>

// Tables go in, a listing comes out, for people or as JSON: for each message its identifier, the
// parts of the identifier, and the text.

namespace zem::msglib::tool {

namespace {

using Json = nlohmann::ordered_json;

constexpr int indentation = 2;
constexpr std::uint32_t codeBits = 0xFFFF;

std::uint32_t facilityOf(std::uint32_t id) noexcept {
    return id >> 16 & facilityBits;
}

/// Returns a text with blanks up to a width.
std::string padded(std::string text, std::size_t width) {
    text.resize(std::max(text.size(), width), ' ');
    return text;
}

/// The widths of the columns that differ between messages.
struct Widths {
    explicit Widths(const TableTexts& texts) {
        for (const auto& [id, text] : texts) {
            severity = std::max(severity, std::string_view(severityOf(id)).size());
            facility = std::max(facility, std::to_string(facilityOf(id)).size());
        }
    }
    std::size_t severity = 0;
    std::size_t facility = 0;
};

void appendMessage(std::string& out, std::uint32_t id, const std::string& text,
                   const Widths& widths, const Colours& colours) {
    out += '\n' + colours.title(hexadecimal(id)) + "  " + padded(severityOf(id), widths.severity) +
           "  facility " + padded(std::to_string(facilityOf(id)), widths.facility) + "  code " +
           std::to_string(id & codeBits) + '\n';
    for (const std::string_view line : linesOf(text)) {
        out += "    " + visible(line) + '\n';
    }
}

} // namespace

const char* severityOf(std::uint32_t id) noexcept {
    constexpr const char* names[] = {"success", "informational", "warning", "error"};
    return names[id >> 30];
}

std::string textOf(const std::vector<LanguageTable>& tables, bool isColoured) {
    const Colours colours(isColoured);
    std::string out;
    for (const LanguageTable& table : tables) {
        const std::size_t count = table.texts.size();
        out += out.empty() ? "" : "\n";
        out += table.language ? "Language " + languageText(*table.language) + ": " : "";
        out += std::to_string(count) + (count == 1 ? " message\n" : " messages\n");
        const Widths widths(table.texts);
        for (const auto& [id, text] : table.texts) {
            appendMessage(out, id, text, widths, colours);
        }
    }
    return out;
}

std::string jsonOf(const std::vector<LanguageTable>& tables) {
    Json all = Json::array();
    for (const LanguageTable& table : tables) {
        Json messages = Json::array();
        for (const auto& [id, text] : table.texts) {
            messages.push_back({{"id", hexadecimal(id)},
                                {"severity", severityOf(id)},
                                {"facility", facilityOf(id)},
                                {"code", id & codeBits},
                                {"text", text}});
        }
        Json object = {{"language", nullptr}, {"messages", std::move(messages)}};
        if (table.language) {
            object["language"] = *table.language;
        }
        all.push_back(std::move(object));
    }
    return all.dump(indentation) + '\n';
}

} // namespace zem::msglib::tool
