#include "platform/LastError.h"
#include "platform/LocaleServices.h"
#include "support/Wine.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

namespace zem::msglib::platform {
namespace {

using Operation = int (*)(std::uint32_t, std::uint32_t, const SYSTEMTIME*, const char*, char*,
                          int) noexcept;

SYSTEMTIME dateFields(int year, int month, int day) {
    SYSTEMTIME fields = {};
    fields.wYear = static_cast<std::uint16_t>(year);
    fields.wMonth = static_cast<std::uint16_t>(month);
    fields.wDay = static_cast<std::uint16_t>(day);
    fields.wDayOfWeek = 99;
    fields.wHour = 99;
    return fields;
}

SYSTEMTIME timeFields(int hour, int minute, int second, int milliseconds = 0) {
    SYSTEMTIME fields = {};
    fields.wHour = static_cast<std::uint16_t>(hour);
    fields.wMinute = static_cast<std::uint16_t>(minute);
    fields.wSecond = static_cast<std::uint16_t>(second);
    fields.wMilliseconds = static_cast<std::uint16_t>(milliseconds);
    return fields;
}

/// Asks for the length, writes into exactly that many bytes, and then into one byte less, which
/// must fail.
std::string render(Operation operation, const SYSTEMTIME& fields, const std::string& picture) {
    const int length = operation(localeIdentifier, 0, &fields, picture.c_str(), nullptr, 0);
    if (length <= 0) {
        return "refused by " + std::to_string(GetLastError());
    }
    std::string text(static_cast<std::size_t>(length), '?');
    EXPECT_EQ(operation(localeIdentifier, 0, &fields, picture.c_str(), text.data(), length),
              length);
    if (length > 1) {
        std::string shorter(static_cast<std::size_t>(length) - 1, '?');
        EXPECT_EQ(
            operation(localeIdentifier, 0, &fields, picture.c_str(), shorter.data(), length - 1),
            0);
        EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
    }
    EXPECT_EQ(text.back(), '\0');
    text.pop_back();
    return text;
}

TEST(DateTimePictures, Dates) {
    struct {
        int line;
        int year, month, day;
        const char* picture;
        const char* text;
        const char* underWine = nullptr;
    } const rows[] = {
        {__LINE__, 1970, 1, 1, "d", "1"},
        {__LINE__, 1970, 1, 1, "dd", "01"},
        {__LINE__, 1970, 1, 1, "ddd", "Thu"},
        {__LINE__, 1970, 1, 1, "dddd", "Thursday"},
        {__LINE__, 1970, 1, 1, "dddddd", "Thursday"},
        {__LINE__, 2023, 5, 31, "d M y", "31 5 3", "31 5 23"},
        {__LINE__, 2023, 5, 31, "MM", "05"},
        {__LINE__, 2023, 5, 31, "MMM", "May"},
        {__LINE__, 2023, 9, 30, "MMM MMMM MMMMM", "Sep September September"},
        {__LINE__, 2007, 12, 3, "y yy yyy yyyy yyyyy", "7 07 2007 2007 2007",
         "07 07 2007 2007 2007"},
        {__LINE__, 30827, 12, 31, "yyyy-MM-dd", "30827-12-31"},
        {__LINE__, 2000, 1, 1, "g", "A.D.", "AD"},
        {__LINE__, 2000, 1, 1, "gg ggg", "A.D. A.D.", "ADAD ADADAD"},
        // week days around the ends of the range and odd leap days
        {__LINE__, 1601, 1, 1, "dddd", "Monday"},
        {__LINE__, 1900, 3, 1, "dddd", "Thursday"},
        {__LINE__, 2000, 2, 29, "dddd", "Tuesday"},
        {__LINE__, 2024, 2, 29, "dddd", "Thursday"},
        {__LINE__, 30827, 12, 31, "dddd", "Friday"},
        // everything but date letters and quotes stands as it is
        {__LINE__, 2001, 9, 8, "", ""},
        {__LINE__, 2001, 9, 8, "hh:HH:mm:ss tt DYG", "hh:HH:mm:ss tt DYG"},
        {__LINE__, 2001, 9, 8, "\xC3\xA9\xFF/d\n", "\xC3\xA9\xFF/8\n"},
        {__LINE__, 2001, 9, 8, "'day' d", "day 8"},
        {__LINE__, 2001, 9, 8, "d 'o''clock' M", "8 o'clock 9"},
        {__LINE__, 2001, 9, 8, "'d M", "d M"},
        {__LINE__, 2001, 9, 8, "d''M", "89"},
        {__LINE__, 2001, 9, 8, "d''''M", "8'9"},
        {__LINE__, 2001, 9, 8, "'", ""},
        {__LINE__, 2001, 9, 8, "''", ""},
        {__LINE__, 2001, 9, 8, "'''", "'"},
        {__LINE__, 2001, 9, 8, "'d''", "d'"},
        // days that do not exist
        {__LINE__, 2001, 0, 1, "d", "refused by 87"},
        {__LINE__, 2001, 13, 1, "d", "refused by 87"},
        {__LINE__, 2001, 1, 0, "d", "refused by 87"},
        {__LINE__, 2001, 4, 31, "d", "refused by 87"},
        {__LINE__, 2001, 2, 29, "d", "refused by 87", "1"},
        {__LINE__, 1900, 2, 29, "d", "refused by 87", "1"},
        {__LINE__, 1600, 12, 31, "d", "refused by 87"},
        {__LINE__, 30828, 1, 1, "d", "refused by 87", "1"},
        {__LINE__, 2001, 2, 29, "no letter", "refused by 87", "no letter"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const bool differs = row.underWine != nullptr && runsUnderWine();
        EXPECT_EQ(render(GetDateFormatA, dateFields(row.year, row.month, row.day), row.picture),
                  differs ? row.underWine : row.text);
    }
}

TEST(DateTimePictures, Times) {
    struct {
        int line;
        SYSTEMTIME time;
        const char* picture;
        const char* text;
    } const rows[] = {
        {__LINE__, timeFields(0, 0, 0), "h hh H HH tt", "12 12 0 00 AM"},
        {__LINE__, timeFields(1, 2, 3), "h hh H HH t", "1 01 1 01 A"},
        {__LINE__, timeFields(11, 59, 59, 999), "h:mm:ss tt", "11:59:59 AM"},
        {__LINE__, timeFields(12, 0, 0), "h HH tt", "12 12 PM"},
        {__LINE__, timeFields(13, 4, 5), "h hh H m mm s ss t", "1 01 13 4 04 5 05 P"},
        {__LINE__, timeFields(23, 59, 59), "hhh HHH mmm sss ttt", "11 23 59 59 PM"},
        {__LINE__, timeFields(9, 8, 7), "d M y g a T", "d M y g a T"},
        {__LINE__, timeFields(9, 8, 7), "h 'o''clock'", "9 o'clock"},
        {__LINE__, timeFields(9, 8, 7), "'h", "h"},
        {__LINE__, timeFields(24, 0, 0), "H", "refused by 87"},
        {__LINE__, timeFields(0, 60, 0), "H", "refused by 87"},
        {__LINE__, timeFields(0, 0, 60), "H", "refused by 87"},
        {__LINE__, timeFields(0, 0, 0, 1000), "H", "refused by 87"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(render(GetTimeFormatA, row.time, row.picture), row.text);
    }
}

TEST(DateTimePictures, RefusalsLeaveTheirReason) {
    SYSTEMTIME fields = dateFields(2001, 9, 8);
    fields.wHour = 0;
    char buffer[8];
    struct {
        int line;
        char* buffer;
        int size;
        std::uint32_t reason;
    } const rows[] = {
        {__LINE__, nullptr, 8, ERROR_INVALID_PARAMETER},
        {__LINE__, buffer, 1, ERROR_INSUFFICIENT_BUFFER},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        for (const Operation operation : {GetDateFormatA, GetTimeFormatA}) {
            EXPECT_EQ(operation(localeIdentifier, 0, &fields, "x", row.buffer, row.size), 0);
            EXPECT_EQ(GetLastError(), row.reason);
        }
    }
}

// Nothing but the failures may come in between: creating and joining threads can leave reasons too.
TEST(DateTimePictures, TheReasonBelongsToItsThread) {
    std::atomic<int> failures = 0;
    std::thread other([&failures] {
        while (failures < 1) {
        }
        char byte;
        EXPECT_EQ(GetLocaleInfoA(localeIdentifier, LOCALE_SCURRENCY, &byte, 1), 0);
        EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
        failures = 2;
    });
    const SYSTEMTIME noTime = timeFields(24, 0, 0);
    EXPECT_EQ(GetTimeFormatA(localeIdentifier, 0, &noTime, "h", nullptr, 0), 0);
    failures = 1;
    while (failures < 2) {
    }
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    other.join();
}

} // namespace
} // namespace zem::msglib::platform
