#pragma once

#include <cstddef>
#include <cstdio>
#include <locale>
#include <string>
#include <string_view>

/// Shared by the rivals of the library.
namespace bench {

/// Returns a locale that formats numbers as the library does: "1,234,567.89".
const std::locale& groupingLocale();

/// Replaces the contents of `out` by the output of `snprintf`.
template <class... Values>
void print(std::string& out, const char* format, Values... values) {
    char buffer[256];
    const int size = std::snprintf(buffer, sizeof buffer, format, values...);
    out.assign(buffer, static_cast<std::size_t>(size));
}

/// Appends `value` with commas between groups of three digits.
void appendGrouped(int value, std::string& out);

/// Appends `value` with commas and a fixed number of fraction digits.
void appendGrouped(double value, int fractionDigits, std::string& out);

/// Appends the digits of a whole number without grouping.
void appendPlain(int value, std::string& out);

} // namespace bench
