#pragma once

#include "msglib/NumberFormat.h"

#include <gtest/gtest.h>

#include <exception>
#include <locale>
#include <sstream>
#include <string>

namespace zem::msglib {

/// A row of a table: a pattern and its expected result.
struct PatternCase {
    int line;
    const char* pattern;
    const char* expected;
};

/// Returns `mark` and the text of the failure of `operation`, or nothing if it succeeds.
template <class Operation>
std::string failureOf(const Operation& operation, const std::string& mark = "") {
    try {
        operation();
    } catch (const std::exception& caught) {
        return mark + caught.what();
    }
    return "";
}

/// Renders into a string that isn't empty; its bytes must be kept and must not affect the text.
///
/// Returns the text, followed by "!" and the text of the failure if there is one.
template <class Formatter, class Value>
std::string textOf(const Formatter& formatter, const Value& value) {
    const std::string kept = "kept 1,234.5 {0}'";
    std::string out = kept;
    const std::string failure =
        failureOf([&] { EXPECT_EQ(&formatter.format(value, out), &out); }, "!");
    EXPECT_EQ(out.substr(0, kept.size()), kept);
    return out.substr(kept.size()) + failure;
}

/// Numbers with a decimal comma and a point before every two digits.
class CommaForms : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\2"; }
};

/// Returns a formatter as one text: its digit limits except the default 309, "," if it groups, and
/// the texts of three values.
inline std::string dump(const NumberFormat& format) {
    std::ostringstream text;
    text << format.getMinimumIntegerDigits();
    if (format.getMaximumIntegerDigits() != 309) {
        text << '-' << format.getMaximumIntegerDigits();
    }
    text << '.' << format.getMinimumFractionDigits() << '-' << format.getMaximumFractionDigits()
         << (format.getGroupingUsed() ? "," : "");
    for (const double value : {0.0, 1234567.891, -1234.5}) {
        text << " | " << textOf(format, value);
    }
    return text.str();
}

} // namespace zem::msglib
