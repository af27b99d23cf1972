#pragma once

// Reads the example tables of the documentation, which tests check against the library.
//
// A line `<!-- checked: kind -->` marks the table after it. The first three columns are a pattern,
// the arguments and the result: text in code quotes, the word nothing, or `fails: ` and the text of
// the failure.

#include <boost/algorithm/string.hpp>

#include <fstream>
#include <string>
#include <vector>

namespace zem::msglib {

/// Returns the cells of a table row. Inside a cell, "|" is written "\\|".
inline std::vector<std::string> cellsOf(const std::string& row) {
    const std::string masked = boost::replace_all_copy(row.substr(1), "\\|", "\1");
    std::vector<std::string> cells;
    boost::split(cells, masked, [](char byte) { return byte == '|'; });
    for (std::string& cell : cells) {
        boost::trim(cell);
        boost::replace_all(cell, "\1", "|");
    }
    return cells;
}

/// Returns a cell without its code quotes, with escapes such as "\\xA4" replaced by their bytes.
inline std::string bytesOf(const std::string& cell) {
    std::string text = cell == "nothing" ? "" : boost::erase_all_copy(cell, "`");
    for (std::size_t at = 0; (at = text.find("\\x", at)) != std::string::npos; ++at) {
        const int byte = std::stoi(text.substr(at + 2, 2), nullptr, 16);
        text.replace(at, 4, 1, static_cast<char>(byte));
    }
    return text;
}

/// A row of a marked table.
struct CheckedRow {
    int line;
    std::string section; ///< the heading before the table
    std::string kind;    ///< the kind in the mark
    std::vector<std::string> cells;
};

/// Returns the rows of the marked tables of a page.
inline std::vector<CheckedRow> checkedRowsOf(const std::string& path) {
    const std::string mark = "<!-- checked: ";
    std::ifstream page(path);
    std::vector<CheckedRow> rows;
    std::string section;
    std::string kind;
    int tableLine = 0;
    int line = 1;
    for (std::string text; std::getline(page, text); ++line) {
        if (boost::starts_with(text, mark)) {
            kind = text.substr(mark.size(), text.find(" -->") - mark.size());
            tableLine = 0;
        } else if (!boost::starts_with(text, "|")) {
            section = boost::starts_with(text, "## ") ? text.substr(3) : section;
            kind.clear();
        } else if (!kind.empty() && ++tableLine > 2) { // after the head and its rule
            rows.push_back({line, section, kind, cellsOf(text)});
        }
    }
    return rows;
}

} // namespace zem::msglib
