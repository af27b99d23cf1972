#pragma once

#include "msglib/NumberFormat.h"

#include <gtest/gtest.h>

#include <exception>
#include <sstream>
#include <string>

namespace zem::msglib {

/// A row of a table: a pattern and what is expected of it.
struct PatternCase {
    int line;
    const char* pattern;
    const char* expected;
};

/// Renders into an empty string and behind earlier text, which has to stay and change nothing.
template <class Formatter, class Value>
std::string textOf(const Formatter& formatter, const Value& value) {
    const std::string kept = "kept 1,234.5: ";
    std::string alone;
    std::string behind = kept;
    EXPECT_EQ(&formatter.format(value, alone), &alone);
    EXPECT_EQ(formatter.format(value, behind), kept + alone);
    return alone;
}

/// Returns the words that `operation` fails with, or "no failure".
template <class Operation>
std::string failureOf(Operation operation) {
    try {
        operation();
    } catch (const std::exception& caught) {
        return caught.what();
    }
    return "no failure";
}

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
