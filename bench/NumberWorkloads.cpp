#include "Bench.h"
#include "Rivals.h"

#include <msglib/DecimalFormat.h>
#include <msglib/MessageFormat.h>
#include <msglib/MessageLibrary.h>

#include <boost/format.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <iterator>
#include <random>
#include <sstream>
#include <vector>

// Each workload is a text with numbers. It is rendered by the library, one-shot and by a kept
// object, and by each rival that can write it. Rivals without separators write a shorter text.

namespace bench {

namespace {

using zem::msglib::DecimalFormat;
using zem::msglib::DecimalFormatSymbols;
using zem::msglib::MessageFormat;
using zem::msglib::MessageLibrary;

void addIntegers() {
    static const int done = 1234567;
    static const int total = 98765432;
    static const std::string pattern = "Copied {0} of {1} bytes.";
    constexpr std::string_view text = "Copied 1,234,567 of 98,765,432 bytes.";
    add("integers/one_shot", text, [list = arguments(done, total)](std::string& out) {
        out = MessageLibrary::instance().formatMessage(pattern, list);
    });
    add("integers/kept", text,
        [message = MessageFormat(pattern), list = arguments(done, total)](std::string& out) {
            out.clear();
            message.format(list, out);
        });
    static const auto store = fmt::make_format_args(done, total);
    add("integers/fmt", text, [locale = groupingLocale()](std::string& out) {
        out = fmt::vformat(locale, "Copied {0:L} of {1:L} bytes.", store);
    });
    add("integers/snprintf", "Copied 1234567 of 98765432 bytes.",
        [](std::string& out) { print(out, "Copied %d of %d bytes.", done, total); });
    add("integers/ostringstream", text, [locale = groupingLocale()](std::string& out) {
        std::ostringstream stream;
        stream.imbue(locale);
        stream << "Copied " << done << " of " << total << " bytes.";
        out = stream.str();
    });
    add("integers/boost_format", text, [locale = groupingLocale()](std::string& out) {
        out = (boost::format("Copied %1% of %2% bytes.", locale) % done % total).str();
    });
    add("integers/straight", text, [](std::string& out) {
        out = "Copied ";
        appendGrouped(done, out);
        out += " of ";
        appendGrouped(total, out);
        out += " bytes.";
    });
}

const double weight = 12345.5;
const double share = 0.125;
const double price = 9876.25;
constexpr std::string_view stylesText = "12,345.50 kg, 12.50% off: $9,876.25";

void addStyles() {
    static const std::string pattern = "{0,number} kg, {1,number,percent} off: {2,number,currency}";
    add("styles/one_shot", stylesText, [list = arguments(weight, share, price)](std::string& out) {
        out = MessageLibrary::instance().formatMessage(pattern, list);
    });
    add("styles/kept", stylesText,
        [message = MessageFormat(pattern),
         list = arguments(weight, share, price)](std::string& out) {
            out.clear();
            message.format(list, out);
        });
    // The rivals have neither percentages nor currencies, so the caller multiplies and writes the
    // signs.
    static const double percent = share * 100;
    static const auto store = fmt::make_format_args(weight, percent, price);
    add("styles/fmt", stylesText, [locale = groupingLocale()](std::string& out) {
        out = fmt::vformat(locale, "{0:.2Lf} kg, {1:.2Lf}% off: ${2:.2Lf}", store);
    });
}

void addStylesOfOthers() {
    add("styles/snprintf", "12345.50 kg, 12.50% off: $9876.25", [](std::string& out) {
        print(out, "%.2f kg, %.2f%% off: $%.2f", weight, share * 100, price);
    });
    add("styles/ostringstream", stylesText, [locale = groupingLocale()](std::string& out) {
        std::ostringstream stream;
        stream.imbue(locale);
        stream << std::fixed << std::setprecision(2) << weight << " kg, " << share * 100
               << "% off: $" << price;
        out = stream.str();
    });
    add("styles/boost_format", stylesText, [locale = groupingLocale()](std::string& out) {
        out = (boost::format("%.2f kg, %.2f%% off: $%.2f", locale) % weight % (share * 100) % price)
                  .str();
    });
    add("styles/straight", stylesText, [](std::string& out) {
        out.clear();
        appendGrouped(weight, 2, out);
        out += " kg, ";
        appendGrouped(share * 100, 2, out);
        out += "% off: $";
        appendGrouped(price, 2, out);
    });
}

// Each of these appends one number with at most three fraction digits, as "#,##0.###" does. The
// rivals also write trailing zeros.

auto byDecimalFormat() {
    return [decimal = DecimalFormat("#,##0.###", DecimalFormatSymbols(std::locale::classic()))](
               double value, std::string& out) { decimal.format(value, out); };
}

auto byFmt() {
    return [locale = groupingLocale()](double value, std::string& out) {
        fmt::vformat_to(std::back_inserter(out), locale, "{:.3Lf}", fmt::make_format_args(value));
    };
}

auto bySnprintf() {
    return [](double value, std::string& out) { print(out, "%.3f", value); };
}

auto byStream() {
    return [locale = groupingLocale()](double value, std::string& out) {
        std::ostringstream stream;
        stream.imbue(locale);
        stream << std::fixed << std::setprecision(3) << value;
        out += stream.str();
    };
}

auto byStraightCode() {
    return [](double value, std::string& out) { appendGrouped(value, 3, out); };
}

template <class Format>
void addDecimal(const std::string& name, std::string_view text, Format format) {
    add(name, text, [format, value = 1234567.891](std::string& out) {
        out.clear();
        format(value, out);
    });
}

/// Returns numbers of 1 to 17 digits with the decimal point at any position.
std::vector<double> randomNumbers() {
    constexpr std::size_t count = 10000;
    std::mt19937_64 random(20010909);
    std::uniform_int_distribution<int> digitCount(1, 17);
    std::uniform_real_distribution<double> leading(0.1, 1.0);
    std::vector<double> numbers;
    while (numbers.size() < count) {
        const int digits = digitCount(random);
        const int fraction = std::uniform_int_distribution<int>(0, digits)(random);
        const double whole = std::floor(leading(random) * std::pow(10.0, digits));
        numbers.push_back(whole / std::pow(10.0, fraction));
    }
    return numbers;
}

/// Ends the program unless `text` is `value` to three fraction digits. The last digit may differ,
/// since rivals round differently.
void requireNumber(const std::string& name, std::string text, double value) {
    text.erase(std::remove(text.begin(), text.end(), ','), text.end());
    const double tolerance = 0.0005 + std::abs(value) * 1e-15;
    if (std::abs(std::strtod(text.c_str(), nullptr) - value) > tolerance * 1.001) {
        requireText(name, text, std::to_string(value));
    }
}

template <class Format>
void addDecimals(const std::string& name, Format format) {
    static const std::vector<double> numbers = randomNumbers();
    for (const double number : numbers) {
        std::string text;
        format(number, text);
        requireNumber(name, text, number);
    }
    addUnchecked(name, [format](std::string& out) {
        for (const double number : numbers) {
            out.clear();
            format(number, out);
            benchmark::DoNotOptimize(out.data());
        }
    });
}

} // namespace

void addNumberWorkloads() {
    addIntegers();
    addStyles();
    addStylesOfOthers();
    addDecimal("decimal/kept", "1,234,567.891", byDecimalFormat());
    addDecimal("decimal/fmt", "1,234,567.891", byFmt());
    addDecimal("decimal/snprintf", "1234567.891", bySnprintf());
    addDecimal("decimal/ostringstream", "1,234,567.891", byStream());
    addDecimal("decimal/straight", "1,234,567.891", byStraightCode());
    addDecimals("decimals_10000/kept", byDecimalFormat());
    addDecimals("decimals_10000/fmt", byFmt());
    addDecimals("decimals_10000/snprintf", bySnprintf());
    addDecimals("decimals_10000/ostringstream", byStream());
    addDecimals("decimals_10000/straight", byStraightCode());
}

} // namespace bench
