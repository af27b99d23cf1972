#include "platform/LastError.h"
#include "platform/LocaleServices.h"
#include "support/Wine.h"

#include <gtest/gtest.h>

#include <cstring>

namespace zem::msglib::platform {

bool operator==(const SYSTEMTIME& left, const SYSTEMTIME& right) {
    return std::memcmp(&left, &right, sizeof left) == 0;
}

namespace {

constexpr std::uint64_t unitsPerSecond = 10'000'000;
constexpr std::uint64_t unitsPerDay = 86'400 * unitsPerSecond;
constexpr std::uint64_t unixEpoch = 116'444'736'000'000'000;

FILETIME halves(std::uint64_t count) {
    return {static_cast<std::uint32_t>(count), static_cast<std::uint32_t>(count >> 32)};
}

std::uint64_t whole(const FILETIME& count) {
    return std::uint64_t{count.dwHighDateTime} << 32 | count.dwLowDateTime;
}

TEST(FileTime, CountsAndFieldsTurnIntoEachOther) {
    struct {
        int line;
        std::uint64_t count;
        SYSTEMTIME fields; // year, month, week day, day, hour, minute, second, milliseconds
    } const rows[] = {
        {__LINE__, 0, {1601, 1, 1, 1, 0, 0, 0, 0}},
        {__LINE__, 10'000, {1601, 1, 1, 1, 0, 0, 0, 1}},
        {__LINE__, unixEpoch, {1970, 1, 4, 1, 0, 0, 0, 0}},
        {__LINE__, unixEpoch - unitsPerSecond, {1969, 12, 3, 31, 23, 59, 59, 0}},
        {__LINE__, unixEpoch + 1'000'000'000 * unitsPerSecond, {2001, 9, 0, 9, 1, 46, 40, 0}},
        {__LINE__, unixEpoch + 11'016 * unitsPerDay, {2000, 2, 2, 29, 0, 0, 0, 0}},
        {__LINE__, unixEpoch + 11'017 * unitsPerDay, {2000, 3, 3, 1, 0, 0, 0, 0}},
        {__LINE__, 109'207 * unitsPerDay, {1900, 1, 1, 1, 0, 0, 0, 0}},
        {__LINE__, 109'266 * unitsPerDay, {1900, 3, 4, 1, 0, 0, 0, 0}},
        {__LINE__, 9'223'149'887'999'990'000, {30827, 12, 5, 31, 23, 59, 59, 999}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const FILETIME count = halves(row.count);
        SYSTEMTIME fields = {};
        EXPECT_TRUE(FileTimeToSystemTime(&count, &fields));
        EXPECT_TRUE(fields == row.fields);
        fields.wDayOfWeek = 99;
        FILETIME back = {};
        EXPECT_TRUE(SystemTimeToFileTime(&fields, &back));
        EXPECT_EQ(whole(back), row.count);
    }
}

TEST(FileTime, EveryDayFollowsTheDayBefore) {
    SYSTEMTIME before = {1600, 12, 0, 31, 0, 0, 0, 0};
    for (std::uint64_t day = 0; day < 800 * 365; ++day) {
        const FILETIME count = halves(day * unitsPerDay);
        SYSTEMTIME fields = {};
        ASSERT_TRUE(FileTimeToSystemTime(&count, &fields));
        ASSERT_EQ(fields.wDayOfWeek, (before.wDayOfWeek + 1) % 7) << day;
        const bool sameMonth = fields.wMonth == before.wMonth && fields.wDay == before.wDay + 1;
        const bool nextMonth = fields.wMonth == before.wMonth % 12 + 1 && fields.wDay == 1;
        ASSERT_TRUE(sameMonth || nextMonth) << day;
        ASSERT_EQ(fields.wYear, before.wYear + (nextMonth && fields.wMonth == 1 ? 1 : 0)) << day;
        FILETIME back = {};
        ASSERT_TRUE(SystemTimeToFileTime(&fields, &back));
        ASSERT_EQ(whole(back), whole(count));
        before = fields;
    }
}

TEST(FileTime, TheLastCountIsBelowTheSixtyFourthBit) {
    SYSTEMTIME fields = {};
    FILETIME count = halves((std::uint64_t{1} << 63) - 1);
    EXPECT_TRUE(FileTimeToSystemTime(&count, &fields));
    EXPECT_TRUE((fields == SYSTEMTIME{30828, 9, 4, 14, 2, 48, 5, 477}));
    for (const std::uint64_t refused : {std::uint64_t{1} << 63, ~std::uint64_t{0}}) {
        count = halves(refused);
        EXPECT_FALSE(FileTimeToSystemTime(&count, &fields));
        EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    }
}

TEST(FileTime, RefusesFieldsThatNameNoTime) {
    struct {
        int line;
        SYSTEMTIME fields;
        bool acceptedByWine = false;
    } const rows[] = {
        {__LINE__, {1600, 12, 0, 31, 0, 0, 0, 0}}, {__LINE__, {30828, 1, 0, 1, 0, 0, 0, 0}, true},
        {__LINE__, {1970, 0, 0, 1, 0, 0, 0, 0}},   {__LINE__, {1970, 13, 0, 1, 0, 0, 0, 0}},
        {__LINE__, {1970, 1, 0, 0, 0, 0, 0, 0}},   {__LINE__, {1970, 1, 0, 32, 0, 0, 0, 0}},
        {__LINE__, {1970, 6, 0, 31, 0, 0, 0, 0}},  {__LINE__, {2100, 2, 0, 29, 0, 0, 0, 0}, true},
        {__LINE__, {1970, 1, 0, 1, 24, 0, 0, 0}},  {__LINE__, {1970, 1, 0, 1, 0, 60, 0, 0}},
        {__LINE__, {1970, 1, 0, 1, 0, 0, 60, 0}},  {__LINE__, {1970, 1, 0, 1, 0, 0, 0, 1000}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const bool accepts = row.acceptedByWine && runsUnderWine();
        FILETIME count = {};
        EXPECT_EQ(SystemTimeToFileTime(&row.fields, &count), accepts);
        if (!accepts) {
            EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
        }
    }
}

} // namespace
} // namespace zem::msglib::platform
