#include "platform/LastError.h"
#include "platform/LocaleServices.h"
#include "support/Wine.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <ostream>
#include <string>
#include <thread>
#include <utility>

namespace zem::msglib::platform {

bool operator==(const SYSTEMTIME& left, const SYSTEMTIME& right) {
    return std::memcmp(&left, &right, sizeof left) == 0;
}

// Lets a failure show the fields.
void PrintTo(const SYSTEMTIME& time, std::ostream* out) {
    *out << time.wYear << '-' << time.wMonth << '-' << time.wDay << " day " << time.wDayOfWeek
         << ", " << time.wHour << ':' << time.wMinute << ':' << time.wSecond << '.'
         << time.wMilliseconds;
}

namespace {

using Operation = int (*)(std::uint32_t, std::uint32_t, const SYSTEMTIME*, const char*, char*,
                          int) noexcept;

// The fields of the other operation are invalid and must be ignored.
SYSTEMTIME date(std::uint16_t year, std::uint16_t month, std::uint16_t day) {
    return {year, month, 99, day, 99, 0, 0, 0};
}

SYSTEMTIME timeOfDay(std::uint16_t hour, std::uint16_t minute, std::uint16_t second,
                     std::uint16_t milliseconds = 0) {
    return {0, 0, 0, 0, hour, minute, second, milliseconds};
}

/// Queries the length, writes into exactly that many bytes, and then into one byte less, which must
/// fail. Returns the text.
std::string render(Operation operation, const SYSTEMTIME& fields, const char* picture) {
    const int length = operation(localeIdentifier, 0, &fields, picture, nullptr, 0);
    if (length <= 0) {
        return "fails with " + std::to_string(GetLastError());
    }
    std::string text(static_cast<std::size_t>(length), '?');
    EXPECT_EQ(operation(localeIdentifier, 0, &fields, picture, text.data(), length), length);
    if (length > 1) {
        std::string shorter(static_cast<std::size_t>(length) - 1, '?');
        EXPECT_EQ(operation(localeIdentifier, 0, &fields, picture, shorter.data(), length - 1), 0);
        EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
    }
    EXPECT_EQ(text.back(), '\0');
    text.pop_back();
    return text;
}

// Wine takes at most 128 characters.
const std::string longRun(127, 'd');
const std::string tooLongUnderWine(128, 'd');

TEST(DateTimePictures, EveryFieldAndQuotes) {
    struct {
        int line;
        Operation operation;
        SYSTEMTIME fields;
        const char* picture;
        const char* text;
        const char* underWine = nullptr;
    } const rows[] = {
        {__LINE__, GetDateFormatA, date(1970, 1, 1), "d dd ddd dddd dddddd",
         "1 01 Thu Thursday Thursday"},
        {__LINE__, GetDateFormatA, date(2023, 9, 30), "M MM MMM MMMM MMMMM",
         "9 09 Sep September September"},
        {__LINE__, GetDateFormatA, date(2007, 12, 3), "y yy yyy yyyy yyyyy", "7 07 2007 2007 2007",
         "07 07 2007 2007 2007"},
        {__LINE__, GetDateFormatA, date(2000, 2, 29), "g gg ggg", "A.D. A.D. A.D.",
         "AD ADAD ADADAD"},
        {__LINE__, GetDateFormatA, date(1601, 1, 1), longRun.c_str(), "Monday"},
        {__LINE__, GetDateFormatA, date(1601, 1, 1), tooLongUnderWine.c_str(), "Monday",
         "Monday\t"},
        {__LINE__, GetDateFormatA, date(1601, 1, 1), "dddd", "Monday"},
        {__LINE__, GetDateFormatA, date(30827, 12, 31), "dddd yyyy-MM-dd", "Friday 30827-12-31"},
        {__LINE__, GetDateFormatA, date(2001, 9, 8), "hH:ms tDYG\xC3\xA9\xFF/d\n",
         "hH:ms tDYG\xC3\xA9\xFF/8\n"},
        {__LINE__, GetDateFormatA, date(2001, 9, 8), "'day' d''M''''d 'd", "day 89'8 d"},
        {__LINE__, GetDateFormatA, date(2001, 9, 8), "'''", "'"},
        {__LINE__, GetDateFormatA, date(2001, 9, 8), "'", ""},
        {__LINE__, GetDateFormatA, date(2001, 9, 8), "", ""},
        {__LINE__, GetTimeFormatA, timeOfDay(0, 0, 0), "h hh H HH tt", "12 12 0 00 AM"},
        {__LINE__, GetTimeFormatA, timeOfDay(11, 59, 59, 999), "h:mm:ss t", "11:59:59 A"},
        {__LINE__, GetTimeFormatA, timeOfDay(12, 0, 0), "h HH tt", "12 12 PM"},
        {__LINE__, GetTimeFormatA, timeOfDay(13, 4, 5), "h hh HHH m mm mmm s ss sss t ttt",
         "1 01 13 4 04 04 5 05 05 P PM"},
        {__LINE__, GetTimeFormatA, timeOfDay(9, 8, 7), "dMy ga T 'o''clock' 'h",
         "dMy ga T o'clock h"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const bool differs = row.underWine != nullptr && runsUnderWine();
        EXPECT_EQ(render(row.operation, row.fields, row.picture),
                  differs ? row.underWine : row.text);
    }
}

// No other operation may come between the failures: creating and joining threads can set the last
// error too.
TEST(DateTimePictures, LastErrorBelongsToItsThread) {
    std::atomic<int> failures = 0;
    std::thread other([&failures] {
        while (failures < 1) {
        }
        char byte;
        EXPECT_EQ(GetLocaleInfoA(localeIdentifier, LOCALE_SCURRENCY, &byte, 1), 0);
        EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
        failures = 2;
    });
    EXPECT_EQ(render(GetTimeFormatA, timeOfDay(24, 0, 0), "h"), "fails with 87");
    failures = 1;
    while (failures < 2) {
    }
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    other.join();
}

FILETIME halves(std::uint64_t count) {
    return {static_cast<std::uint32_t>(count), static_cast<std::uint32_t>(count >> 32)};
}

TEST(FileTime, ConvertsCountsAndFieldsBothWays) {
    const std::pair<std::uint64_t, SYSTEMTIME> times[] = {
        {0, {1601, 1, 1, 1, 0, 0, 0, 0}},
        {94'354'847'990'000'000, {1899, 12, 0, 31, 23, 59, 59, 0}},
        {94'405'823'990'000'000, {1900, 2, 3, 28, 23, 59, 59, 0}},
        {94'405'824'000'010'000, {1900, 3, 4, 1, 0, 0, 0, 1}},
        {125'963'423'990'000'000, {2000, 2, 2, 29, 23, 59, 59, 0}},
        {125'963'424'000'000'000, {2000, 3, 3, 1, 0, 0, 0, 0}},
        {9'223'149'887'999'990'000, {30827, 12, 5, 31, 23, 59, 59, 999}},
    };
    for (const auto& [count, expected] : times) {
        SCOPED_TRACE(count);
        const FILETIME asHalves = halves(count);
        SYSTEMTIME fields = {};
        EXPECT_TRUE(FileTimeToSystemTime(&asHalves, &fields));
        EXPECT_EQ(fields, expected);
        fields.wDayOfWeek = 99;
        FILETIME back = {};
        EXPECT_TRUE(SystemTimeToFileTime(&fields, &back));
        EXPECT_EQ(std::uint64_t{back.dwHighDateTime} << 32 | back.dwLowDateTime, count);
    }
    SYSTEMTIME fields = {};
    FILETIME count = halves((std::uint64_t{1} << 63) - 1);
    EXPECT_TRUE(FileTimeToSystemTime(&count, &fields));
    EXPECT_EQ(fields, (SYSTEMTIME{30828, 9, 4, 14, 2, 48, 5, 477}));
    for (const std::uint64_t beyond : {std::uint64_t{1} << 63, ~std::uint64_t{0}}) {
        count = halves(beyond);
        EXPECT_FALSE(FileTimeToSystemTime(&count, &fields));
        EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    }
}

void expectRejected(Operation operation, const SYSTEMTIME& fields) {
    EXPECT_EQ(render(operation, fields, "no letter"), "fails with 87");
    FILETIME count = {};
    EXPECT_FALSE(SystemTimeToFileTime(&fields, &count));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
}

TEST(FileTime, InvalidFieldsAreRejected) {
    const SYSTEMTIME invalidDates[] = {{1600, 12, 0, 31, 0, 0, 0, 0}, {1970, 0, 0, 1, 0, 0, 0, 0},
                                       {1970, 13, 0, 1, 0, 0, 0, 0},  {1970, 1, 0, 0, 0, 0, 0, 0},
                                       {1970, 1, 0, 32, 0, 0, 0, 0},  {1970, 6, 0, 31, 0, 0, 0, 0}};
    const SYSTEMTIME invalidDatesExceptUnderWine[] = {{30828, 1, 0, 1, 0, 0, 0, 0},
                                                      {2100, 2, 0, 29, 0, 0, 0, 0}};
    const SYSTEMTIME invalidTimes[] = {{1970, 1, 0, 1, 24, 0, 0, 0},
                                       {1970, 1, 0, 1, 0, 60, 0, 0},
                                       {1970, 1, 0, 1, 0, 0, 60, 0},
                                       {1970, 1, 0, 1, 0, 0, 0, 1000}};
    for (const SYSTEMTIME& fields : invalidDates) {
        expectRejected(GetDateFormatA, fields);
    }
    for (const SYSTEMTIME& fields : invalidTimes) {
        expectRejected(GetTimeFormatA, fields);
    }
    for (const SYSTEMTIME& fields : invalidDatesExceptUnderWine) {
        if (!runsUnderWine()) {
            expectRejected(GetDateFormatA, fields);
        }
    }
}

} // namespace
} // namespace zem::msglib::platform
