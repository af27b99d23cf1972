// Arguments in their written form, and the lines that show them.

#include "tool/text/ArgumentText.h"
#include "tool/text/CannotRun.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Progress.h"

#include "base/Argument.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <sstream>
#include <string>

namespace zem::msglib::tool {
namespace {

struct Dumped {
    std::string operator()(const std::string& value) const { return "text [" + value + "]"; }
    std::string operator()(bool value) const { return value ? "bool true" : "bool false"; }
    std::string operator()(int value) const { return "int " + std::to_string(value); }
    std::string operator()(double value) const {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        text.precision(17);
        text << "double " << value;
        return text.str();
    }
    template <class Other>
    std::string operator()(const Other& value) const {
        if constexpr (std::is_integral_v<Other>) {
            return "wide " + std::to_string(value);
        } else {
            return "other";
        }
    }
};

/// Returns the kind and value of an argument, or "!" and the error.
std::string dumped(const std::string& text) {
    try {
        const WrittenArgument argument = readArgument(text);
        return visitArgument(argument.value, Dumped());
    } catch (const CannotRun& refusal) {
        return std::string("! ") + refusal.what();
    }
}

struct ArgumentCase {
    int line;
    const char* text;
    const char* dump;
};

TEST(ArgumentText, IsReadAsWritten) {
    const ArgumentCase cases[] = {
        {__LINE__, "7", "int 7"},
        {__LINE__, "-7", "int -7"},
        {__LINE__, "007", "int 7"},
        {__LINE__, "2147483647", "int 2147483647"},
        {__LINE__, "2147483648", "wide 2147483648"},
        {__LINE__, "-9223372036854775808", "wide -9223372036854775808"},
        {__LINE__, "18446744073709551615", "wide 18446744073709551615"},
        {__LINE__, "18446744073709551616",
         "! argument 18446744073709551616: an integer has 64 bits at most; a text has to be in "
         "quotation marks"},
        {__LINE__, "1.5", "double 1.5"},
        {__LINE__, "-.5", "double -0.5"},
        {__LINE__, "7.0", "double 7"},
        {__LINE__, "1e6", "double 1000000"},
        {__LINE__, "inf", "double inf"},
        {__LINE__, "1e999",
         "! argument 1e999: the number is out of range; a text has to be in quotation marks"},
        {__LINE__, "true", "bool true"},
        {__LINE__, "false", "bool false"},
        {__LINE__, "Büro", "text [Büro]"},
        {__LINE__, "", "text []"},
        {__LINE__, "\"7\"", "text [7]"},
        {__LINE__, "\"\"", "text []"},
        {__LINE__, "\"", "text [\"]"},
        {__LINE__, "\"a\" b", "text [\"a\" b]"},
        {__LINE__, "1.2.3", "text [1.2.3]"},
        {__LINE__, "0x10", "text [0x10]"},
        {__LINE__, "+7", "text [+7]"},
        {__LINE__, "1,5", "text [1,5]"},
        {__LINE__, "7 files", "text [7 files]"},
        {__LINE__, "infinite", "text [infinite]"},
        {__LINE__, "True", "text [True]"},
        {__LINE__, "-", "text [-]"},
        {__LINE__, "1970-01-01T00:00", "wide 0"},
        {__LINE__, "2026-11-23T13:30", "wide 1795440600"},
        {__LINE__, "2026-11-23T13:30:59Z", "wide 1795440659"},
        {__LINE__, "2026-11-23 13:30", "wide 1795440600"},
        {__LINE__, "2026-11-23", "wide 1795392000"},
        {__LINE__, "1601-01-01T00:00:01", "wide -11644473599"},
        {__LINE__, "2026-11-23T13", "text [2026-11-23T13]"},
        {__LINE__, "\"2026-11-23\"", "text [2026-11-23]"},
        {__LINE__, "2026-02-29T10:00",
         "! argument 2026-02-29T10:00: there is no such date or time of day, or it is before 1601; "
         "a text has to be in quotation marks"},
        {__LINE__, "2026-11-23T24:00",
         "! argument 2026-11-23T24:00: there is no such date or time of day, or it is before 1601; "
         "a text has to be in quotation marks"},
    };
    for (const ArgumentCase& row : cases) {
        EXPECT_EQ(dumped(row.text), row.dump) << "line " << row.line;
    }
}

// An argument as a table of samples shows it renders to the same text when it is read again.
TEST(ArgumentText, ReadsWhatItWrites) {
    for (const double value : {0.0, -0.0, 7.0, -1.0, 0.1, 1e15, 123456789012345.0, -1e300, 5e-324,
                               0.1 + 0.2, double(INFINITY), 1e-7}) {
        const WrittenArgument argument = numberArgument(value);
        EXPECT_EQ(visitArgument(readArgument(argument.text).value, Dumped()),
                  visitArgument(argument.value, Dumped()));
    }
    for (const char* const text : {"folder", "Büro", "7", "1.5", "true", "two words", "", "\"7\"",
                                   "-x", "2026-11-23", "inf", "a\nb", "it's", "{0}"}) {
        const WrittenArgument argument = textArgument(text);
        EXPECT_EQ(dumped(argument.text), "text [" + std::string(text) + "]");
    }
    EXPECT_EQ(textArgument("Büro").text, "Büro");
    for (const std::int64_t time : {std::int64_t{0}, std::int64_t{1795440659}, std::int64_t{-60}}) {
        const WrittenArgument argument = timeArgument(time);
        EXPECT_EQ(dumped(argument.text), "wide " + std::to_string(time));
    }
    EXPECT_EQ(timeArgument(1795440600).text, "2026-11-23T13:30");
}

TEST(VisibleLine, ShowsAnyBytesAsOneLine) {
    EXPECT_EQ(visibleLine("Büro\n\x1B[1m\ttab\xC3(\xFF"), "Büro↵�[1m�tab�(�");
}

Progress::Clock::time_point now; // of the tests below

void wait(int milliseconds) {
    now += std::chrono::milliseconds(milliseconds);
}

TEST(ProgressLine, AppearsAfterHalfASecondAndVanishes) {
    std::ostringstream out;
    {
        Progress progress("checking", 20, &out, [] { return now; });
        progress.step();
        wait(499);
        progress.step();
        EXPECT_EQ(out.str(), "");
        wait(1);
        progress.step();
        EXPECT_EQ(out.str(), "\rchecking 3 of 20");
        progress.step(); // too soon for another line
        wait(100);
        progress.step();
        EXPECT_EQ(out.str(), "\rchecking 3 of 20\rchecking 5 of 20");
    }
    EXPECT_EQ(out.str().substr(out.str().rfind("of 20") + 5), "\r" + std::string(16, ' ') + "\r");
}

TEST(ProgressLine, LeavesNothingAfterShortWork) {
    std::ostringstream out;
    Progress("checking", 1, &out, [] { return now; }).step();
    EXPECT_EQ(out.str(), "");
}

} // namespace
} // namespace zem::msglib::tool
