#include "tool/diagnostics/DiagnosticJson.h"

#include "tool/diagnostics/DiagnosticText.h"
#include "tool/diagnostics/Version.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>

// Diagnostics go in, JSON comes out in one of two forms: an array of objects, or a SARIF log that
// also lists all rules. Places become lines and columns, and a note without a place of its own has
// the place of its diagnostic.

namespace zem::msglib::tool {

namespace {

// Keeps the order in which members are added.
using Json = nlohmann::ordered_json;

constexpr int indentation = 2;

/// Returns the JSON text. Bytes that are not UTF-8, which only the name of a file may contain, are
/// replaced.
std::string dump(const Json& json) {
    return json.dump(indentation, ' ', false, Json::error_handler_t::replace) + '\n';
}

Json positionOf(const Place& place) {
    const auto begin = place.file->positionOf(place.offset);
    const auto end = place.file->positionOf(place.end());
    return {{"file", place.file->name()},
            {"line", begin.line},
            {"column", begin.column},
            {"endLine", end.line},
            {"endColumn", end.column}};
}

Json withMessage(Json object, const std::string& message) {
    object["message"] = message;
    return object;
}

const Place& placeOf(const Note& note, const Diagnostic& diagnostic) {
    return note.place.file != nullptr ? note.place : diagnostic.place;
}

/// Returns a path as a reference of a URI, with forward slashes.
std::string uriOf(const std::string& path) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string uri = path.substr(0, 1) == "/" ? "file://" : "";
    for (const char byte : path) {
        const auto value = static_cast<unsigned char>(byte);
        if (std::isalnum(value) != 0 || std::string_view("/-._~").find(byte) < 5) {
            uri += byte;
        } else {
            uri += {'%', digits[value >> 4], digits[value & 0xF]};
        }
    }
    return uri;
}

Json locationOf(const Place& place) {
    const auto begin = place.file->positionOf(place.offset);
    const auto end = place.file->positionOf(place.end());
    return {{"physicalLocation",
             {{"artifactLocation", {{"uri", uriOf(place.file->name())}}},
              {"region",
               {{"startLine", begin.line},
                {"startColumn", begin.column},
                {"endLine", end.line},
                {"endColumn", end.column}}}}}};
}

Json describe(const Rule& rule) {
    const char* const level = rule.severity == Severity::off ? "none" : nameOf(rule.severity);
    return {{"id", rule.name},
            {"shortDescription", {{"text", rule.summary}}},
            {"fullDescription", {{"text", rule.explanation}}},
            {"defaultConfiguration", {{"level", level}}}};
}

Json resultOf(const Diagnostic& diagnostic) {
    const auto& rules = allRules();
    const auto index = std::find(rules.begin(), rules.end(), diagnostic.rule) - rules.begin();
    Json result = {{"ruleId", diagnostic.rule->name},
                   {"ruleIndex", index},
                   {"level", nameOf(diagnostic.severity)},
                   {"message", {{"text", diagnostic.message}}},
                   {"locations", Json::array({locationOf(diagnostic.place)})}};
    for (const Note& note : diagnostic.notes) {
        Json location = locationOf(placeOf(note, diagnostic));
        location["message"] = {{"text", note.message}};
        result["relatedLocations"].push_back(location);
    }
    return result;
}

} // namespace

std::string jsonOf(const std::vector<Diagnostic>& diagnostics) {
    Json all = Json::array();
    for (const Diagnostic& diagnostic : diagnostics) {
        Json object = positionOf(diagnostic.place);
        object["severity"] = nameOf(diagnostic.severity);
        object["rule"] = diagnostic.rule->name;
        object["message"] = diagnostic.message;
        object["notes"] = Json::array();
        for (const Note& note : diagnostic.notes) {
            object["notes"].push_back(
                withMessage(positionOf(placeOf(note, diagnostic)), note.message));
        }
        all.push_back(std::move(object));
    }
    return dump(all);
}

std::string sarifOf(const std::vector<Diagnostic>& diagnostics) {
    Json rules = Json::array();
    for (const Rule* const rule : allRules()) {
        rules.push_back(describe(*rule));
    }
    Json results = Json::array();
    for (const Diagnostic& diagnostic : diagnostics) {
        results.push_back(resultOf(diagnostic));
    }
    const Json driver = {
        {"name", "msglib"}, {"version", versionText()}, {"rules", std::move(rules)}};
    const Json run = {{"tool", {{"driver", driver}}},
                      {"columnKind", "unicodeCodePoints"},
                      {"results", std::move(results)}};
    return dump({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                 {"version", "2.1.0"},
                 {"runs", Json::array({run})}});
}

} // namespace zem::msglib::tool
