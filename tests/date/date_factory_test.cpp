#include "message/Outcome.h"
#include "msglib/DateFormat.h"
#include "platform/LocaleServices.h"
#include "support/FakeLocale.h"

#include <memory>

namespace zem::msglib {
namespace {

using namespace platform;
using namespace std::string_literals;

std::string dateOfEpoch(int style) {
    const std::unique_ptr<DateFormat> format(
        DateFormat::getDateInstance(static_cast<DateFormat::Style>(style), std::locale()));
    return textOf(*format, boost::any(0));
}

TEST(DateFactory, FollowsTheLocaleValues) {
    const FakeLocale locale;
    const std::unique_ptr<DateFormat> withoutValue(DateFormat::getTimeInstance(std::locale()));
    EXPECT_EQ(textOf(*withoutValue, boost::any(60)), "");
    EXPECT_EQ(outcome("[{0,time}{0,date,short}{0,date,long}{0,date}]", {0}), "[]");
    for (int style = -1; style <= 4; ++style) {
        EXPECT_EQ(dateOfEpoch(style), "") << style;
    }
    FakeLocale::values.insert({{LOCALE_SSHORTDATE, "yyyy-MM-dd"},
                               {LOCALE_SLONGDATE, "dddd d'. of 'MMMM"},
                               {LOCALE_STIMEFORMAT, "HH.mm"}});
    const std::pair<const char*, const char*> orders[] = {{"0", "Jan 01 70"}, {"1", "01 Jan 70"},
                                                          {"2", "70 Jan 01"}, {"1;0", "01 Jan 70"},
                                                          {"7", ""},          {"", ""}};
    for (const auto& [order, text] : orders) {
        FakeLocale::values[LOCALE_ILDATE] = order;
        EXPECT_EQ(dateOfEpoch(DateFormat::Medium), text) << order;
        EXPECT_EQ(outcome("{0,date,medium}[{0,date}]", {0}), text + "["s + text + "]") << order;
    }
    EXPECT_EQ(dateOfEpoch(DateFormat::Short), "1970-01-01");
    EXPECT_EQ(dateOfEpoch(DateFormat::ShortAlternate), "1970-01-01");
    EXPECT_EQ(dateOfEpoch(DateFormat::Long), "Thursday 1. of January");
    EXPECT_EQ(dateOfEpoch(4), "");
    EXPECT_EQ(outcome("{0,date,short} {0,date,full}", {0}), "1970-01-01 Thursday 1. of January");
    const std::unique_ptr<DateFormat> time(DateFormat::getTimeInstance(std::locale()));
    EXPECT_EQ(textOf(*time, boost::any(60)) + outcome(" {0,time}", {60}), "00.01 00.01");
}

TEST(DateFactory, SetLocaleReadsTheValuesAgainAndLeavesCopiesUnchanged) {
    const FakeLocale locale({{LOCALE_SSHORTDATE, "yyyy"}});
    const MessageFormat format("{0,date,short}{0,foo}{0,number,0.0} {0,number}");
    MessageFormat copy(format);
    FakeLocale::values[LOCALE_SSHORTDATE] = "M";
    FakeLocale::values[LOCALE_SDECIMAL] = ",";
    copy.setLocale(std::locale::classic());
    EXPECT_EQ(textOf(format, Arguments{5}), "197055.0 5.00");
    EXPECT_EQ(textOf(copy, Arguments{5}), "155,0 5,00");
}

} // namespace
} // namespace zem::msglib
