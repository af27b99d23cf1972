#include "Rivals.h"

#include <charconv>

namespace bench {

namespace {

class Grouping : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return '.'; }
    char do_thousands_sep() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
};

/// Appends the text of a number with commas. Its first `whole` bytes are sign and integer digits.
void appendGrouped(std::string_view number, std::size_t whole, std::string& out) {
    const std::size_t first = number.front() == '-' ? 1 : 0;
    std::size_t next = first + (whole - first - 1) % 3 + 1;
    out.append(number, 0, next);
    for (; next < whole; next += 3) {
        out += ',';
        out.append(number, next, 3);
    }
    out.append(number, whole, std::string_view::npos);
}

} // namespace

const std::locale& groupingLocale() {
    static const std::locale locale(std::locale::classic(), new Grouping);
    return locale;
}

void appendGrouped(int value, std::string& out) {
    char buffer[16];
    const char* end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    const std::string_view digits(buffer, static_cast<std::size_t>(end - buffer));
    appendGrouped(digits, digits.size(), out);
}

void appendGrouped(double value, int fractionDigits, std::string& out) {
    char buffer[400];
    const char* end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed,
                                    fractionDigits)
                          .ptr;
    const std::string_view digits(buffer, static_cast<std::size_t>(end - buffer));
    appendGrouped(digits, digits.size() - static_cast<std::size_t>(fractionDigits) - 1, out);
}

void appendPlain(int value, std::string& out) {
    char buffer[16];
    out.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

} // namespace bench
