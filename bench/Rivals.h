#pragma once

#include <cstddef>
#include <cstdio>
#include <locale>
#include <string>
#include <string_view>

/// What the rivals of the library share.
namespace bench {

/// Returns a locale that writes numbers as the library does: "1,234,567.89".
const std::locale& groupingLocale();

/// Puts what `snprintf` writes into `out`.
template <class... Values>
void print(std::string& out, const char* format, Values... values) {
    char buffer[256];
    const int size = std::snprintf(buffer, sizeof buffer, format, values...);
    out.assign(buffer, static_cast<std::size_t>(size));
}

/// Appends `value` with commas between groups of three digits.
void appendGrouped(int value, std::string& out);

/// The same with a fixed count of fraction digits.
void appendGrouped(double value, int fractionDigits, std::string& out);

/// Appends the digits of a whole number without grouping.
void appendPlain(int value, std::string& out);

} // namespace bench
