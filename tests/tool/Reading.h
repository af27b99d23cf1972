#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/catalogue/CatalogueReader.h"
#include "tool/checks/CatalogueRules.h"
#include "tool/diagnostics/Diagnostics.h"

#include <string>
#include <utility>
#include <vector>

namespace zem::msglib::tool {

/// The results of catalogues that are read and checked together.
struct Reading {
    std::vector<Catalogue> catalogues;
    std::vector<Diagnostic> diagnostics;
};

/// Reads and checks files that are named 0.mc, 1.mc and so on.
inline Reading readAll(const std::vector<std::string>& files, const SeverityPolicy& policy = {},
                       const std::string& encoding = "") {
    Diagnostics diagnostics(policy);
    Reading reading;
    for (const std::string& bytes : files) {
        const std::size_t number = reading.catalogues.size();
        reading.catalogues.push_back(readCatalogue(
            readSource(std::to_string(number) + ".mc", bytes, encoding, number, diagnostics),
            diagnostics));
    }
    checkIdentifiers(reading.catalogues, diagnostics);
    reading.diagnostics = diagnostics.take();
    return reading;
}

/// Returns diagnostics as `file:line:column-endColumn rule: message`, each with a line end. The
/// name of the first file is left out, and notes follow in parentheses.
inline std::string dump(const std::vector<Diagnostic>& diagnostics) {
    std::string out;
    const auto add = [&out](const Place& place) {
        const auto begin = place.file->positionOf(place.offset);
        const auto end = place.file->positionOf(place.end());
        out += place.file->number() == 0 ? "" : place.file->name() + ":";
        out += std::to_string(begin.line) + ":" + std::to_string(begin.column) + "-" +
               std::to_string(end.column);
    };
    for (const Diagnostic& diagnostic : diagnostics) {
        add(diagnostic.place);
        out += " " + std::string(diagnostic.rule->name) + ": " + diagnostic.message;
        for (const Note& note : diagnostic.notes) {
            out += " (";
            if (note.place.file != nullptr) {
                add(note.place);
                out += " ";
            }
            out += note.message + ")";
        }
        out += "\n";
    }
    return out;
}

} // namespace zem::msglib::tool
