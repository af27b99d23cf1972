// Checks every row of the marked tables in the documentation against the library.

#include "support/CheckedTables.h"
#include "support/Rendering.h"
#include "support/Wine.h"

#include <msglib/ChoiceFormat.h>
#include <msglib/DecimalFormat.h>
#include <msglib/MessageFormat.h>
#include <msglib/SimpleDateFormat.h>

#include <geom/Angle.h>

#include <boost/algorithm/string/predicate.hpp>

#include <cstdlib>
#include <iomanip>
#include <list>
#include <set>
#include <sstream>
#include <vector>

namespace zem::msglib {
namespace {

using Arguments = std::list<boost::any>;

boost::any valueOf(const std::string& text) {
    if (text == "empty") {
        return {};
    }
    if (text == "true") {
        return true;
    }
    if (text.find_first_not_of("-0123456789") == std::string::npos) {
        return std::stoll(text);
    }
    const bool isAngle = boost::starts_with(text, "radians ");
    char* end = nullptr;
    const double number = std::strtod(text.c_str() + (isAngle ? 8 : 0), &end);
    EXPECT_EQ(*end, '\0') << text;
    return isAngle ? boost::any(geom::Angle(number)) : boost::any(number);
}

Arguments argumentsOf(const std::string& list) {
    Arguments arguments;
    std::istringstream in(list);
    for (std::string text; in >> std::ws && !in.eof();) {
        if (in.peek() == '"') {
            in >> std::quoted(text);
            arguments.emplace_back(text);
            in.ignore(1, ',');
        } else {
            std::getline(in, text, ',');
            arguments.push_back(valueOf(text));
        }
    }
    return arguments;
}

std::string render(const std::string& kind, const std::string& pattern, const Arguments& args) {
    const boost::any value = args.empty() ? boost::any() : args.front();
    std::string out;
    if (kind == "message") {
        MessageFormat(pattern).format(args, out);
    } else if (kind == "decimal") {
        DecimalFormat(pattern, {}).format(value, out);
    } else if (kind == "long") {
        const auto whole = static_cast<long>(boost::any_cast<long long>(value));
        DecimalFormat(pattern, {}).format(whole, out);
    } else if (kind == "choice") {
        ChoiceFormat(pattern).format(value, out);
    } else if (kind == "date") {
        SimpleDateFormat(pattern, std::locale()).format(value, out);
    } else {
        out = "unknown kind of table: " + kind;
    }
    return out;
}

// Rows, by pattern and arguments, for which operations of Wine differ from the documentation.
const std::set<std::pair<std::string, std::string>> differentUnderWine = {
    {"`y yy yyyy g`", "`0`"},
    {"`yyyy-MM-dd`", "`910670515200`"},
    {"`today`", "`0`"},
    {"`ggg`", "`0`"},
};

void checkRow(const std::string& kind, const std::vector<std::string>& cells) {
    ASSERT_GE(cells.size(), 3U);
    if (differentUnderWine.count({cells[0], cells[1]}) != 0 && runsUnderWine()) {
        return;
    }
    std::string text;
    const std::string failure = failureOf(
        [&] { text = render(kind, bytesOf(cells[0]), argumentsOf(bytesOf(cells[1]))); }, "fails: ");
    EXPECT_EQ(text + failure, bytesOf(cells[2])) << cells[0];
}

/// Checks the marked tables of one page and returns their number of rows.
std::size_t checkPage(const std::string& path) {
    const std::vector<CheckedRow> rows = checkedRowsOf(path);
    for (const CheckedRow& row : rows) {
        const testing::ScopedTrace trace(path.c_str(), row.line, "");
        checkRow(row.kind, row.cells);
    }
    return rows.size();
}

TEST(Docs, CheckedTablesAreTrue) {
    const std::pair<const char*, std::size_t> fewestRows[] = {
        {"/message-patterns.md", 60}, {"/decimal-patterns.md", 60}, {"/choice-patterns.md", 25},
        {"/date-patterns.md", 30},    {"/failures.md", 14},
    };
    for (const auto& [page, fewest] : fewestRows) {
        EXPECT_GE(checkPage(std::string(MSGLIB_DOCS_FOLDER) + page), fewest) << page;
    }
}

} // namespace
} // namespace zem::msglib
