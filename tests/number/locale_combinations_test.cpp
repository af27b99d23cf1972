#include "msglib/DecimalFormat.h"
#include "msglib/MessageLibrary.h"
#include "number/LocaleNumber.h"
#include "platform/LocaleServices.h"
#include "support/Emulation.h"
#include "support/FakeLocale.h"
#include "support/Rendering.h"

#include <boost/any.hpp>

#include <cmath>
#include <limits>
#include <list>
#include <memory>

// A number can be rendered in three ways: directly by a message, by the formatter of a factory, and
// by compiling the pattern. All must agree, whatever the platform's locale values are.

namespace zem::msglib {
namespace {

using namespace platform;

struct Kind {
    NumberFormat::FormatType type;
    NumberFormat* (*factory)(const std::locale&);
    const char* message;
};

const Kind number = {NumberFormat::Number, NumberFormat::getNumberInstance, "{0,number}"};
const Kind percent = {NumberFormat::Percent, NumberFormat::getPercentInstance,
                      "{0,number,percent}"};
const Kind amount = {NumberFormat::Currency, NumberFormat::getCurrencyInstance,
                     "{0,number,currency}"};

const double infinity = std::numeric_limits<double>::infinity();
const double largest = std::numeric_limits<double>::max();
const double values[] = {0.0,     -0.0,    0.5,      -0.5,     -0.004,    1234567.891,
                         -1234.5, largest, -largest, infinity, -infinity, std::nan("")};

std::string directText(const std::string& message, const boost::any& argument) {
    return MessageLibrary::instance().formatMessage(message, {argument});
}

void compare(const Kind& kind) {
    const std::unique_ptr<NumberFormat> byFactory(kind.factory(std::locale()));
    const DecimalFormat compiled(LocaleNumber(kind.type).pattern(), DecimalFormatSymbols());
    for (const double value : values) {
        const std::string text = textOf(*byFactory, value);
        EXPECT_EQ(directText(kind.message, value), text) << kind.message << ' ' << value;
        EXPECT_EQ(textOf(compiled, value), text) << kind.message << ' ' << value;
    }
}

void compareWholeNumbers() {
    const std::unique_ptr<NumberFormat> integer(NumberFormat::getIntegerInstance(std::locale()));
    for (const int value : {0, 7, 1234567, -1234}) {
        EXPECT_EQ(directText("{0}", value), textOf(*integer, boost::any(value))) << value;
    }
    const std::unique_ptr<NumberFormat> rounded(NumberFormat::getNumberInstance(std::locale()));
    rounded->setMaximumFractionDigits(0);
    for (const double value : values) {
        EXPECT_EQ(directText("{0,number,integer}", value), textOf(*rounded, value)) << value;
    }
}

void comparePlainNumbers() {
    compare(number);
    compare(percent);
    compareWholeNumbers();
}

void compareAll() {
    comparePlainNumbers();
    compare(amount);
}

// Compares with all values, with each value missing in turn, and with the locale unknown.
void compareWithout(const LocaleValues& changes) {
    const FakeLocale locale(changes);
    compareAll();
    const LocaleValues all = FakeLocale::values;
    for (const auto& missing : all) {
        SCOPED_TRACE(missing.first);
        FakeLocale::values.erase(missing.first);
        compareAll();
        FakeLocale::values = all;
    }
    FakeLocale::installed = false;
    compareAll();
}

// Calls `compareWith` with `others` and every layout of the digits.
template <class Compare>
void forEachLayout(const LocaleValues& others, Compare compareWith) {
    for (const char* grouping : {"0", "1", "3;0"}) {
        for (const char* zero : {"0", "1"}) {
            for (const char* digits : {"0", "1", "2"}) {
                LocaleValues all = others;
                all.insert({{LOCALE_SGROUPING, grouping},
                            {LOCALE_SMONGROUPING, grouping},
                            {LOCALE_ILZERO, zero},
                            {LOCALE_IDIGITS, digits},
                            {LOCALE_ICURRDIGITS, digits}});
                SCOPED_TRACE(std::string(grouping) + " " + zero + " " + digits);
                compareWith(all);
            }
        }
    }
}

const LocaleValues symbols[] = {
    {},
    {{LOCALE_SCURRENCY, ""}, {LOCALE_SNEGATIVESIGN, ""}, {LOCALE_SDECIMAL, ""}},
    {{LOCALE_SCURRENCY, "\xE2\x82\xAC"}, {LOCALE_SMONDECIMALSEP, "%#"}, {LOCALE_STHOUSAND, ""}},
};

TEST(LocaleCombinations, PlainNumbers) {
    for (LocaleValues others : symbols) {
        for (const char* negative : {"0", "1", "2", "3", "4", "5"}) {
            SCOPED_TRACE(negative);
            others[LOCALE_INEGNUMBER] = negative;
            forEachLayout(others, [](const LocaleValues& all) {
                const FakeLocale locale(all);
                comparePlainNumbers();
            });
        }
    }
}

TEST(LocaleCombinations, Amounts) {
    if (runsUnderEmulator) {
        GTEST_SKIP() << "the combinations take minutes";
    }
    for (LocaleValues others : symbols) {
        for (const char* positive : {"0", "1", "2", "3", "4"}) {
            for (int negative = 0; negative <= 16; ++negative) {
                SCOPED_TRACE(positive + (" " + std::to_string(negative)));
                others[LOCALE_ICURRENCY] = positive;
                others[LOCALE_INEGCURR] = std::to_string(negative);
                forEachLayout(others, [](const LocaleValues& all) {
                    const FakeLocale locale(all);
                    compare(amount);
                });
            }
        }
    }
}

TEST(LocaleCombinations, OneValueMissing) {
    if (runsUnderEmulator) {
        GTEST_SKIP() << "the combinations take minutes";
    }
    forEachLayout({}, compareWithout);
    forEachLayout({{LOCALE_ICURRENCY, "3"}, {LOCALE_INEGCURR, "11"}}, compareWithout);
    forEachLayout({{LOCALE_ICURRENCY, "none"}, {LOCALE_INEGCURR, "16"}}, compareWithout);
}

TEST(LocaleCombinations, OddValues) {
    const std::string longest(63, '.');
    const struct {
        int line;
        LocaleValues changes;
    } rows[] = {
        {__LINE__, {{LOCALE_SGROUPING, "4096"}, {LOCALE_IDIGITS, "4096"}}},
        {__LINE__, {{LOCALE_SGROUPING, "4097"}, {LOCALE_IDIGITS, "-1"}}},
        {__LINE__, {{LOCALE_SMONGROUPING, " 2x"}, {LOCALE_ICURRDIGITS, "+3"}}},
        {__LINE__, {{LOCALE_ICURRENCY, "12"}, {LOCALE_INEGCURR, "1x"}, {LOCALE_ILZERO, "10"}}},
        {__LINE__, {{LOCALE_ICURRENCY, ""}, {LOCALE_INEGCURR, "-1"}, {LOCALE_INEGNUMBER, "/"}}},
        {__LINE__, {{LOCALE_ICURRENCY, "\xB1"}, {LOCALE_INEGCURR, ""}, {LOCALE_INEGNUMBER, ""}}},
        {__LINE__, {{LOCALE_SNATIVEDIGITS, ""}, {LOCALE_SCURRENCY, "\xA4"}}},
        {__LINE__, {{LOCALE_SNATIVEDIGITS, "\xF8"}, {LOCALE_SCURRENCY, longest}}},
        {__LINE__, {{LOCALE_STHOUSAND, longest}, {LOCALE_SDECIMAL, longest + "."}}},
        {__LINE__, {{LOCALE_SMONTHOUSANDSEP, longest}, {LOCALE_SNEGATIVESIGN, longest}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        compareWithout(row.changes);
    }
}

} // namespace
} // namespace zem::msglib
