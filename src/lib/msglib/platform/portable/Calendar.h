#pragma once

#include "platform/LocaleServices.h"

#include <cstddef>
#include <cstdint>

/// Gregorian calendar arithmetic without a loop, after Howard Hinnant's chrono-Compatible low-level
/// date algorithms.
///
/// Years begin in March, so the leap day is the last day of its year, and form eras of 400 years.
/// The first era begins on 1600-03-01, 306 days before day 0, so no number is ever negative.
namespace zem::msglib::platform {

/// The years that can be converted and formatted.
constexpr std::uint32_t firstYear = 1601;
constexpr std::uint32_t lastYear = 30827;

// The length of an era, the year in which the first one begins, and the days from then to day 0.
constexpr std::uint32_t eraDays = 146097;
constexpr std::uint32_t eraStartYear = 1600;
constexpr std::uint32_t eraStartToDayZero = 306;

constexpr std::uint32_t monthDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// A day of the calendar; month and day count from 1.
struct CalendarDate {
    std::uint32_t year;
    std::uint32_t month;
    std::uint32_t day;
};

/// Returns the number of days in a month.
constexpr std::uint32_t daysIn(std::uint32_t month, std::uint32_t year) noexcept {
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && leap ? 29 : monthDays[static_cast<std::size_t>(month) - 1];
}

/// Returns whether the year is in range and the day exists.
constexpr bool isCalendarDate(const CalendarDate& date) noexcept {
    constexpr std::uint32_t shortest = 28;
    return date.year >= firstYear && date.year <= lastYear && date.month >= 1 && date.month <= 12 &&
           date.day >= 1 && (date.day <= shortest || date.day <= daysIn(date.month, date.year));
}

/// Returns the days from 1601-01-01 to `date`, which `isCalendarDate` accepts.
constexpr std::uint32_t daysOfDate(const CalendarDate& date) noexcept {
    const bool beforeMarch = date.month <= 2;
    const std::uint32_t year = date.year - eraStartYear - (beforeMarch ? 1 : 0);
    const std::uint32_t month = beforeMarch ? date.month + 9 : date.month - 3;
    const std::uint32_t dayOfYear = (153 * month + 2) / 5 + date.day - 1;
    return year * 365 + year / 4 - year / 100 + year / 400 + dayOfYear - eraStartToDayZero;
}

/// Returns the date `days` days, at most a billion, after 1601-01-01.
///
/// Years and months come from multiplications that give quotient and remainder together, after
/// "Euclidean affine functions and their application to calendar algorithms" of Cassio Neri and
/// Lorenz Schneider.
constexpr CalendarDate dateOfDays(std::uint32_t days) noexcept {
    const std::uint32_t quarters = 4 * (days + eraStartToDayZero) + 3;
    const std::uint32_t century = quarters / eraDays;
    const std::uint64_t yearOfCentury = std::uint64_t{2939745} * (quarters % eraDays | 3);
    const std::uint32_t dayOfYear = static_cast<std::uint32_t>(yearOfCentury) / 2939745 / 4;
    const std::uint32_t month = 2141 * dayOfYear + 197913;
    const bool beforeMarch = dayOfYear >= 306;
    return {eraStartYear + 100 * century + static_cast<std::uint32_t>(yearOfCentury >> 32) +
                (beforeMarch ? 1 : 0),
            (month >> 16) - (beforeMarch ? 12 : 0), (month & 0xFFFF) / 2141 + 1};
}

/// Returns the week day `days` days after 1601-01-01, which was a Monday; Sunday is 0.
constexpr std::uint32_t weekDayOfDays(std::uint32_t days) noexcept {
    return (days + 1) % 7;
}

/// Returns the date of `time`, whether it exists or not.
constexpr CalendarDate dateOf(const SYSTEMTIME& time) noexcept {
    return {time.wYear, time.wMonth, time.wDay};
}

/// Returns whether hour, minute, second and milliseconds are in range, without leap seconds.
constexpr bool isTimeOfDay(const SYSTEMTIME& time) noexcept {
    return time.wHour <= 23 && time.wMinute <= 59 && time.wSecond <= 59 &&
           time.wMilliseconds <= 999;
}

} // namespace zem::msglib::platform
