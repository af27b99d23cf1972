#include "base/TextOutput.h"
#include "msglib/DecimalFormat.h"
#include "number/LocaleNumber.h"
#include "platform/LocaleServices.h"
#include "support/FakeLocale.h"
#include "support/Rendering.h"

#include <cmath>
#include <limits>
#include <memory>

namespace zem::msglib {
namespace {

using namespace platform;

const LocaleValues otherSymbols = {{LOCALE_SDECIMAL, ","},       {LOCALE_STHOUSAND, "."},
                                   {LOCALE_SMONDECIMALSEP, ":"}, {LOCALE_SMONTHOUSANDSEP, "'"},
                                   {LOCALE_SCURRENCY, "EUR"},    {LOCALE_SINTLSYMBOL, "XYZ"},
                                   {LOCALE_SNEGATIVESIGN, "~"},  {LOCALE_SNATIVEDIGITS, "ABC"}};

// Returns the symbols as one text, except those that are always the same.
std::string dump(const DecimalFormatSymbols& symbols) {
    EXPECT_EQ(symbols.getInfinity() + symbols.getNaN(), "1.#INF1.#NaN");
    EXPECT_EQ((std::string{symbols.getPercent(), symbols.getExponential()}), "%E");
    return symbols.getCurrencySymbol() + " " + symbols.getInternationalCurrencySymbol() + " " +
           symbols.getMinusSign() + symbols.getDecimalSeparator() +
           symbols.getMonetaryDecimalSeparator() + symbols.getGroupingSeparator() +
           symbols.getMonetaryGroupingSeparator() + symbols.getZeroDigit();
}

TEST(LocaleSymbols, EachComesFromItsOwnQuery) {
    const struct {
        int line;
        std::uint32_t lctype;
        const char* failing; ///< symbols if this query fails
        const char* empty;   ///< symbols if it succeeds with an empty text
    } rows[] = {
        {__LINE__, LOCALE_SCURRENCY, "$ XYZ ~,:.'A", " XYZ ~,:.'A"},
        {__LINE__, LOCALE_SINTLSYMBOL, "EUR $ ~,:.'A", "EUR  ~,:.'A"},
        {__LINE__, LOCALE_SNEGATIVESIGN, "EUR XYZ -,:.'A", "EUR XYZ ,:.'A"},
        {__LINE__, LOCALE_SDECIMAL, "EUR XYZ ~.:.'A", "EUR XYZ ~:.'A"},
        {__LINE__, LOCALE_SMONDECIMALSEP, "EUR XYZ ~,..'A", "EUR XYZ ~,.'A"},
        {__LINE__, LOCALE_STHOUSAND, "EUR XYZ ~,:,'A", "EUR XYZ ~,:'A"},
        {__LINE__, LOCALE_SMONTHOUSANDSEP, "EUR XYZ ~,:.,A", "EUR XYZ ~,:.A"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const FakeLocale locale(otherSymbols);
        FakeLocale::values[row.lctype] = "";
        EXPECT_EQ(dump(DecimalFormatSymbols(std::locale::classic())), row.empty);
        FakeLocale::values.erase(row.lctype);
        EXPECT_EQ(dump(DecimalFormatSymbols()), row.failing);
    }
    const std::string longest(63, 'k');
    const FakeLocale wordy({{LOCALE_STHOUSAND, longest},
                            {LOCALE_SDECIMAL, longest},
                            {LOCALE_SCURRENCY, longest},
                            {LOCALE_SINTLSYMBOL, longest + "k"}});
    EXPECT_EQ(dump(DecimalFormatSymbols()), longest + " $ -" + longest + "." + longest + ",0");
    const std::string text = textOf(DecimalFormat("#,0.0", {}), 1.7976931348623157e308);
    EXPECT_EQ(text.size(), 309 + 309 * longest.size() + 1);
}

TEST(LocaleSymbols, AppearInTexts) {
    LocaleValues digits = otherSymbols;
    digits[LOCALE_SNATIVEDIGITS] = "0";
    const LocaleValues highDigits = {{LOCALE_SNATIVEDIGITS, "\xF0"}};
    const LocaleValues wide = {
        {LOCALE_SNATIVEDIGITS, "|"}, {LOCALE_STHOUSAND, ", "}, {LOCALE_SDECIMAL, "::"}};
    const LocaleValues none = {
        {LOCALE_STHOUSAND, ""}, {LOCALE_SDECIMAL, ""}, {LOCALE_SNEGATIVESIGN, ""}};
    const struct {
        int line;
        const LocaleValues& values;
        const char* pattern;
        double value;
        const char* text;
        const char* longText; ///< of the whole part
    } rows[] = {
        {__LINE__, digits, "\xA4#,##0.00", 1234.5, "EUR1'234:50", "EUR1'234:00"},
        {__LINE__, digits, "$#,##0.00", 1234.5, "$1.234,50", "$1.234,00"},
        {__LINE__, digits, "'\xA4'0.0", 1.5, "\xA4\x31,5", "\xA4\x31,0"},
        {__LINE__, digits, "#,##0.0 \xA4\xA4", -1234.5, "~1'234:5 XYZ", "~1'234:0 XYZ"},
        {__LINE__, digits, "#,##0.0;#\xA4", 1234.5, "1'234:5", "1'234:0"},
        {__LINE__, digits, "0.###E0", -0.00123, "~1,23E~3", "0E0"},
        {__LINE__, none, "#,##0.0", -1234567.5, "12345675", "12345670"},
        {__LINE__, highDigits, "#,##0.###", 1234567.5, "\xF1,\xF2\xF3\xF4,\xF5\xF6\xF7.\xF5",
         "\xF1,\xF2\xF3\xF4,\xF5\xF6\xF7"},
        {__LINE__, wide, "#,##0.0###", 1024.0625, "}, |~\x80::|\x82~\x81", "}, |~\x80::|"},
        {__LINE__, otherSymbols, "00,000.0E00", 1230.0, "BC.DAA,AE~AB", "BC.DAA,AE~AB"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const FakeLocale locale(row.values);
        DecimalFormat format("\xA4", DecimalFormatSymbols());
        FakeLocale::values.clear();
        format.applyPattern(row.pattern);
        EXPECT_EQ(textOf(format, row.value), row.text);
        EXPECT_EQ(textOf(format, static_cast<long>(row.value)), row.longText);
    }
}

using Factory = NumberFormat* (*)(const std::locale&);

const Factory number = NumberFormat::getNumberInstance;
const Factory integer = NumberFormat::getIntegerInstance;
const Factory currency = NumberFormat::getCurrencyInstance;
const Factory percent = NumberFormat::getPercentInstance;

// Renders as a message does without compiling.
std::string directText(const LocaleNumber& form, double value) {
    std::string text;
    return TextOutput::to(text, [&](TextOutput& out) { form.appendArgument(value, out); });
}

// Returns the dump of the factory's formatter, and checks that rendering directly agrees with it.
std::string formOf(Factory factory) {
    const std::locale locale;
    const std::unique_ptr<NumberFormat> format(factory(locale));
    const std::unique_ptr<NumberFormat> rounded(NumberFormat::getNumberInstance(locale));
    rounded->setMaximumFractionDigits(0);
    const auto type = factory == number     ? NumberFormat::Number
                      : factory == integer  ? NumberFormat::Integer
                      : factory == currency ? NumberFormat::Currency
                                            : NumberFormat::Percent;
    const double largest = std::numeric_limits<double>::max();
    for (const double value : {0.0, -0.0, 0.5, -0.004, 4.005, 1234567.891, 1e23, largest, -1234.5,
                               HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        EXPECT_EQ(directText(LocaleNumber(type), value), textOf(*format, value)) << value;
        EXPECT_EQ(directText(LocaleNumber::rounded(), value), textOf(*rounded, value)) << value;
    }
    return dump(*format);
}

TEST(LocalePatterns, FollowTheLocaleValues) {
    const struct {
        int line;
        Factory factory;
        const char *grouping, *zero, *digits, *mark, *negative;
        const char* form;
    } rows[] = {
        {__LINE__, number, "3;2;0", "1", "3", "", "4",
         "1.3-3, | 0.000 | 1,234,567.891 | 1,234.500 -"},
        {__LINE__, number, "3;0", "0", "2", "", "2", "0.2-2, | .00 | 1,234,567.89 | - 1,234.50"},
        {__LINE__, number, "0", "0", "0", "", "0", "0.0-0 |  | 1234568 | (1235)"},
        {__LINE__, number, "1", "1", "1", "", "3", "1.1-1, | 0.0 | 1,2,3,4,5,6,7.9 | 1,2,3,4.5-"},
        {__LINE__, number, "", "10", " 1x", "", "3x", "1.1-1 | 0.0 | 1234567.9 | 1234.5-"},
        {__LINE__, number, "10", "1", "4097", "", "/", "1.0-0, | 0 | 1234568 | -1235"},
        {__LINE__, integer, "-1", "1", "2", "", "5", "1.0-0 | 0 | 1234568 | -1235"},
        {__LINE__, percent, "3", "1", "1", "", "0",
         "1.1-1, | 0.0% | 123,456,789.1% | (123,450.0%)"},
        {__LINE__, percent, "0", "1", "0", "", "2", "1.0-0 | 0% | 123456789% | - 123450%"},
        {__LINE__, percent, "0", "0", "0", "", "4", "0.0-0 | % | 123456789% | 123450% -"},
        {__LINE__, currency, "3", "1", "2", "0", "0",
         "1.2-2, | kr0.00 | kr1,234,567.89 | (kr1,234.50)"},
        {__LINE__, currency, "3", "1", "0", "1", "5", "1.0-0, | 0kr | 1,234,568kr | -1,235kr"},
        {__LINE__, currency, "3", "1", "0", "2", "9", "1.0-0, | kr 0 | kr 1,234,568 | -kr 1,235"},
        {__LINE__, currency, "3", "1", "0", "3", "8", "1.0-0, | 0 kr | 1,234,568 kr | -1,235 kr"},
        {__LINE__, currency, "2", "1", "0", "7", "16", "1.0-0, | 0 | 1,23,45,68 | -12,35"},
        {__LINE__, currency, "0", "0", "0", "1", "5", "0.0-0 | kr | kr1234568 | -1235kr"},
        {__LINE__, currency, "0", "0", "0", "3", "16", "0.0-0 |  kr |  kr1234568 | - kr1235"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const bool amount = row.factory == currency;
        const FakeLocale locale({{amount ? LOCALE_SMONGROUPING : LOCALE_SGROUPING, row.grouping},
                                 {LOCALE_ILZERO, row.zero},
                                 {amount ? LOCALE_ICURRDIGITS : LOCALE_IDIGITS, row.digits},
                                 {LOCALE_ICURRENCY, row.mark},
                                 {amount ? LOCALE_INEGCURR : LOCALE_INEGNUMBER, row.negative}});
        EXPECT_EQ(formOf(row.factory), row.form);
    }
}

TEST(LocalePatterns, SixteenFormsOfNegativeCurrency) {
    const char* const forms[] = {"(kr1)", "-kr1",  "kr-1",   "kr1-",  "(1kr)", "-1kr",
                                 "1-kr",  "1kr-",  "-1 kr",  "-kr 1", "1 kr-", "kr 1-",
                                 "kr -1", "1- kr", "(kr 1)", "(1 kr)"};
    for (std::size_t form = 0; form < std::size(forms); ++form) {
        SCOPED_TRACE(form);
        const FakeLocale locale({{LOCALE_ICURRDIGITS, "0"},
                                 {LOCALE_ICURRENCY, "none"},
                                 {LOCALE_INEGCURR, std::to_string(form)}});
        const std::unique_ptr<NumberFormat> format(currency(std::locale()));
        EXPECT_EQ(textOf(*format, -1.0), forms[form]);
    }
}

TEST(LocalePatterns, WithoutLocaleValues) {
    const struct {
        int line;
        Factory factory;
        const char* absent;  ///< form if the locale isn't installed
        const char* failing; ///< form if every query fails
    } rows[] = {
        {__LINE__, number, "1.0-3, | 0 | 1,234,567.891 | -1,234.5", "0.0-0 |  | 1234568 | -1235"},
        {__LINE__, integer, "1.0-3, | 0 | 1,234,567.891 | -1,234.5", "0.0-0 |  | 1234568 | -1235"},
        {__LINE__, currency, "1.2-2, | $0.00 | $1,234,567.89 | ($1,234.50)",
         "0.0-0 |  | 1234568 | ($1235)"},
        {__LINE__, percent, "1.0-0, | 0% | 123,456,789% | -123,450%",
         "0.0-0 | % | 123456789% | -123450%"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const FakeLocale locale;
        FakeLocale::installed = false;
        EXPECT_EQ(formOf(row.factory), row.absent);
        FakeLocale::installed = true;
        const LocaleValues all = FakeLocale::values;
        for (const auto& value : all) {
            FakeLocale::values.erase(value.first);
            EXPECT_NE(formOf(row.factory), row.failing) << value.first;
            FakeLocale::values = all;
        }
        FakeLocale::values.clear();
        EXPECT_EQ(formOf(row.factory), row.failing);
    }
    const FakeLocale other(otherSymbols);
    EXPECT_EQ(formOf(number), "1.2-2, | A,AA | B.CDE.FGH,IJ | -B.CDE,FA");
}

// An explicit instantiation may name private members.
template <class Operation, Operation Private>
struct Access {
    friend Operation privateOperation(Operation) { return Private; }
};
using CreateInstance = NumberFormat* (*)(const std::locale&, NumberFormat::FormatType, const char*);
CreateInstance privateOperation(CreateInstance);
template struct Access<CreateInstance, &NumberFormat::createInstance>;

TEST(LocalePatterns, InvalidTypeHasAnEmptyPattern) {
    const FakeLocale locale(otherSymbols);
    const auto none = static_cast<NumberFormat::FormatType>(4);
    const auto create = privateOperation(CreateInstance());
    const std::unique_ptr<NumberFormat> format(create(std::locale(), none, "0.0"));
    EXPECT_EQ(dump(*format), "0.0-0 |  | BCDEFGI | ~BCDF");
}

TEST(LocalePatterns, Texts) {
    using Type = NumberFormat::FormatType;
    const struct {
        int line;
        Type type;
        LocaleValues values;
        const char* pattern;
    } rows[] = {
        {__LINE__, Type::Number, {}, "#,##0.00;-#"},
        {__LINE__, Type::Integer, {}, "#,##0;-#"},
        {__LINE__, Type::Percent, {}, "#,##0.00%;-#%"},
        {__LINE__, Type::Currency, {}, "\xA4#,##0.00;(\xA4#)"},
        {__LINE__, Type::Number, {{LOCALE_ILZERO, "0"}}, "#,###.00;-#"},
        {__LINE__, Type::Number, {{LOCALE_SGROUPING, "1"}, {LOCALE_INEGNUMBER, "5"}}, "#,0.00"},
        {__LINE__, Type::Integer, {{LOCALE_SGROUPING, "0"}, {LOCALE_ILZERO, "0"}}, ";-#"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const FakeLocale locale(row.values);
        EXPECT_EQ(LocaleNumber(row.type).pattern(), row.pattern);
    }
}

} // namespace
} // namespace zem::msglib
