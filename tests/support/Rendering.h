#pragma once

#include "msglib/NumberFormat.h"

#include <gtest/gtest.h>

#include <exception>
#include <locale>
#include <sstream>
#include <string>

namespace zem::msglib {

/// A row of a table: a pattern and what is expected of it.
struct PatternCase {
    int line;
    const char* pattern;
    const char* expected;
};

/// Returns `mark` and the words that `operation` fails with, or nothing if it succeeds.
template <class Operation>
std::string failureOf(const Operation& operation, const std::string& mark = "") {
    try {
        operation();
    } catch (const std::exception& caught) {
        return mark + caught.what();
    }
    return "";
}

/// Renders behind bytes that are already there, which have to stay and change nothing.
///
/// Returns the text, and behind it "!" and the words of the failure if there is one.
template <class Formatter, class Value>
std::string textOf(const Formatter& formatter, const Value& value) {
    const std::string kept = "kept 1,234.5 {0}'";
    std::string out = kept;
    const std::string failure =
        failureOf([&] { EXPECT_EQ(&formatter.format(value, out), &out); }, "!");
    EXPECT_EQ(out.substr(0, kept.size()), kept);
    return out.substr(kept.size()) + failure;
}

/// Numbers with a decimal comma, and a point in front of each two digits.
class CommaForms : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\2"; }
};

/// A formatter as one text: its digit limits but for the usual 309, "," if it groups, and the texts
/// of three values.
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
