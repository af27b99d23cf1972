#include "message/Outcome.h"
#include "msglib/DateFormat.h"
#include "platform/LocaleServices.h"
#include "support/FakeLocale.h"

#include <memory>

namespace zem::msglib {
namespace {

std::string dateOfEpoch(int style) {
    const std::unique_ptr<DateFormat> format(
        DateFormat::getDateInstance(static_cast<DateFormat::Style>(style), std::locale()));
    return textOf(*format, boost::any(0));
}

TEST(DateFactory, DatesFollowTheLocaleValues) {
    const FakeLocale locale({{platform::LOCALE_SSHORTDATE, "yyyy-MM-dd"},
                             {platform::LOCALE_SLONGDATE, "dddd d'. of 'MMMM"}});
    struct {
        int line;
        std::string order;
        const char* text;
    } const rows[] = {
        {__LINE__, "0", "Jan 01 70"},   {__LINE__, "1", "01 Jan 70"}, {__LINE__, "2", "70 Jan 01"},
        {__LINE__, "1;0", "01 Jan 70"}, {__LINE__, "7", ""},          {__LINE__, "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        FakeLocale::values[platform::LOCALE_ILDATE] = row.order;
        EXPECT_EQ(dateOfEpoch(DateFormat::Medium), row.text);
        EXPECT_EQ(outcome("{0,date,medium}", {0}), row.text);
        EXPECT_EQ(outcome("[{0,date}]", {0}), "[" + std::string(row.text) + "]");
    }
    EXPECT_EQ(dateOfEpoch(DateFormat::Short), "1970-01-01");
    EXPECT_EQ(dateOfEpoch(DateFormat::ShortAlternate), "1970-01-01");
    EXPECT_EQ(dateOfEpoch(DateFormat::Long), "Thursday 1. of January");
    EXPECT_EQ(outcome("{0,date,short} {0,date,full}", {0}), "1970-01-01 Thursday 1. of January");
    EXPECT_EQ(dateOfEpoch(4), "");
    EXPECT_EQ(dateOfEpoch(-1), "");
}

TEST(DateFactory, TimesFollowTheLocaleValue) {
    const FakeLocale locale({{platform::LOCALE_STIMEFORMAT, "HH.mm"}});
    const std::unique_ptr<DateFormat> format(DateFormat::getTimeInstance(std::locale()));
    EXPECT_EQ(textOf(*format, boost::any(60)), "00.01");
    EXPECT_EQ(outcome("{0,time}", {60}), "00.01");
}

TEST(DateFactory, MissingValuesAreEmptyPatterns) {
    const FakeLocale locale;
    for (int style = 0; style < 4; ++style) {
        EXPECT_EQ(dateOfEpoch(style), "") << style;
    }
    EXPECT_EQ(outcome("[{0,time}{0,date,short}{0,date,long}{0,date}]", {0}), "[]");
}

TEST(DateFactory, SetLocaleReadsTheValuesAnewAndLeavesCopiesAlone) {
    const FakeLocale locale({{platform::LOCALE_SSHORTDATE, "yyyy"}});
    const MessageFormat format("{0,date,short}{0,foo}{0,number,0.0} {0,number}");
    MessageFormat copy(format);
    FakeLocale::values[platform::LOCALE_SSHORTDATE] = "M";
    FakeLocale::values[platform::LOCALE_SDECIMAL] = ",";
    copy.setLocale(std::locale::classic());
    EXPECT_EQ(textOf(format, Arguments{5}), "197055.0 5.00");
    EXPECT_EQ(textOf(copy, Arguments{5}), "155,0 5,00");
}

} // namespace
} // namespace zem::msglib
