#include "message/Outcome.h"
#include "msglib/SimpleDateFormat.h"
#include "support/Wine.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <ctime>
#include <limits>
#include <random>

namespace zem::msglib {
namespace {

using namespace std::string_literals;
using Seconds = long long;

std::string textOfTime(const std::string& pattern, const boost::any& value) {
    return textOf(SimpleDateFormat(pattern, std::locale()), value);
}

TEST(SimpleDateFormat, Patterns) {
    const std::string iso = "yyyy-MM-dd HH:mm:ss";
    struct {
        int line;
        std::string pattern;
        Seconds seconds;
        std::string text;
        std::string underWine = {};
    } const rows[] = {
        {__LINE__, iso, 86399, "1970-01-01 23:59:59"},
        {__LINE__, "ddMMyyy g gg", 1000000000, "09092001 A.D. A.D.", "09092001 AD ADAD"},
        {__LINE__, "MMMM" + std::string(100, 'd'), 0, "JanuaryThursday"},
        {__LINE__, "YYYY DaSTzGE 0{}#,\xC3\xA9", 5, "YYYY DaSTzGE 0{}#,\xC3\xA9"},
        {__LINE__, "s\0s"s, 5, "5\0"s + "5"},
        {__LINE__, "d''d'''d''''d'd", 0, "11'd''d1"},
        {__LINE__, "'", 0, ""},
        {__LINE__, "'abc", 0, "abc"},
        // both ends of the calendar
        {__LINE__, iso, -11644473600, "1601-01-01 00:00:00"},
        {__LINE__, iso, -11644473601, "-- ::"},
        {__LINE__, iso, 910670515199, "30827-12-31 23:59:59"},
        // pictures end with 30827
        {__LINE__, iso, 910692730085, "-- 02:48:05", "30828-09-14 02:48:05"},
        {__LINE__, iso, 910692730086, "-- ::"},
        {__LINE__, "'d'd.", INT64_MAX, "d."},
        {__LINE__, "'d'd.", INT64_MIN, "d."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const bool differs = !row.underWine.empty() && runsUnderWine();
        EXPECT_EQ(textOfTime(row.pattern, row.seconds), differs ? row.underWine : row.text)
            << row.pattern;
    }
}

TEST(SimpleDateFormat, ReadsEveryKindAsSeconds) {
    const std::pair<boost::any, const char*> times[] = {
        {short{-1}, "1969 23:59:59"},
        {static_cast<unsigned short>(65535), "1970 18:12:15"},
        {4294967295U, "2106 06:28:15"},
        {4294967295UL, "2106 06:28:15"},
        {static_cast<unsigned long long>(-1LL), "1969 23:59:59"},
        {-1.9F, "1969 23:59:59"},
        {16777217.9, "1970 04:20:17"}};
    for (const auto& [value, text] : times) {
        EXPECT_EQ(textOfTime("yyyy HH:mm:ss", value), text);
    }
    const Arguments withoutDay = {
        NAN, static_cast<float>(NAN), HUGE_VAL, -HUGE_VAL, 0x1p63, -0x1p63, 1ULL << 63};
    for (const boost::any& value : withoutDay) {
        EXPECT_EQ(textOfTime("yyyy HH:mm:ss", value), " ::");
    }
    EXPECT_EQ(textOfTime("", geom::Angle(1.0)), "!" + notADate);
}

// The years that the system's C library knows, from 1601 to 9999 at most, as far as it counts.
#if defined(_WIN32)
constexpr Seconds yearsBegin = 0;         // 1970
constexpr Seconds yearsEnd = 32503680000; // 3000
#else
using TimeLimits = std::numeric_limits<std::time_t>;
constexpr Seconds yearsBegin = std::max<Seconds>(-11644473600, TimeLimits::min()); // 1601
constexpr Seconds yearsEnd = std::min<Seconds>(253402300800, TimeLimits::max());   // 10000
#endif

TEST(SimpleDateFormat, AgreesWithTheCLibrary) {
    std::mt19937_64 random(20010909); // NOLINT: the same seconds in every run
    std::uniform_int_distribution<Seconds> secondsOfYears(yearsBegin, yearsEnd - 1);
    const SimpleDateFormat format("yyyy yy MM MMM MMMM dd ddd dddd HH hh mm ss tt",
                                  std::locale::classic());
    for (int round = 0; round < 20'000; ++round) {
        const Seconds seconds = secondsOfYears(random);
        const auto time = static_cast<std::time_t>(seconds);
        const std::tm* fields = std::gmtime(&time);
        ASSERT_NE(fields, nullptr);
        char expected[128];
        ASSERT_NE(std::strftime(expected, sizeof expected, "%Y %y %m %b %B %d %a %A %H %I %M %S %p",
                                fields),
                  0U);
        std::string text;
        ASSERT_EQ(format.format(seconds, text), expected) << seconds;
    }
}

TEST(SimpleDateFormat, CopiesKeepTheirPattern) {
    SimpleDateFormat format("yyyy", std::locale::classic());
    SimpleDateFormat copy(format);
    format.applyPattern("MMM");
    EXPECT_EQ(format.format(boost::any(0)), "Jan");
    EXPECT_EQ(copy.format(boost::any(0)), "1970");
    copy = format;
    EXPECT_EQ(copy.format(boost::any(0)), "Jan");
}

} // namespace
} // namespace zem::msglib
