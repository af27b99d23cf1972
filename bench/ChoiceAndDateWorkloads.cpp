#include "Bench.h"
#include "Rivals.h"

#include <msglib/MessageFormat.h>
#include <msglib/MessageLibrary.h>

#include <boost/format.hpp>
#include <fmt/chrono.h>
#include <fmt/format.h>

#include <ctime>
#include <iomanip>
#include <sstream>

// A message with a choice, and one with a date and a time, rendered by the library and its rivals.
// Rivals have no choices: the caller selects one of three patterns.

namespace bench {

namespace {

using zem::msglib::MessageFormat;
using zem::msglib::MessageLibrary;

const int files = 1234;
const std::string folder = "Backup";
constexpr std::string_view choiceText = "1,234 files were copied to Backup.";

/// Returns the text for a count, as callers must choose it if messages have no choices.
template <class Text>
const Text& choose(int count, const Text& none, const Text& one, const Text& many) {
    if (count <= 0) {
        return none;
    }
    return count == 1 ? one : many;
}

void addChoice() {
    static const std::string pattern =
        "{0,choice,0#No file was|1#One file was|1<{0} files were} copied to {1}.";
    add("choice/one_shot", choiceText, [list = arguments(files, folder)](std::string& out) {
        out = MessageLibrary::instance().formatMessage(pattern, list);
    });
    add("choice/kept", choiceText,
        [message = MessageFormat(pattern), list = arguments(files, folder)](std::string& out) {
            out.clear();
            message.format(list, out);
        });
    static const auto store = fmt::make_format_args(files, folder);
    add("choice/fmt", choiceText, [locale = groupingLocale(), count = files](std::string& out) {
        constexpr std::string_view none = "No file was copied to {1}.";
        constexpr std::string_view one = "One file was copied to {1}.";
        constexpr std::string_view many = "{0:L} files were copied to {1}.";
        out = fmt::vformat(locale, choose(count, none, one, many), store);
    });
}

void addChoiceOfOthers() {
    add("choice/snprintf", "1234 files were copied to Backup.", [](std::string& out) {
        const char* const none = "No file was copied to %2$s.";
        const char* const one = "One file was copied to %2$s.";
        const char* const many = "%1$d files were copied to %2$s.";
        print(out, choose(files, none, one, many), files, folder.c_str());
    });
    add("choice/ostringstream", choiceText,
        [locale = groupingLocale(), count = files](std::string& out) {
            std::ostringstream stream;
            stream.imbue(locale);
            if (count <= 0) {
                stream << "No file was";
            } else if (count == 1) {
                stream << "One file was";
            } else {
                stream << count << " files were";
            }
            stream << " copied to " << folder << '.';
            out = stream.str();
        });
    add("choice/straight", choiceText, [count = files](std::string& out) {
        out.clear();
        if (count <= 0) {
            out += "No file was";
        } else if (count == 1) {
            out += "One file was";
        } else {
            appendGrouped(count, out);
            out += " files were";
        }
        out.append(" copied to ").append(folder).append(".");
    });
}

// A point in time whose day and hour have two digits, since the rivals write leading zeros.
const int seconds = 1234567890;
constexpr std::string_view dateText = "Friday, February 13, 2009, 11:31:30 PM";

std::tm calendarTime(std::time_t time) {
    std::tm result;
    gmtime_r(&time, &result);
    return result;
}

/// Appends the date and the time of day without any pattern.
void appendStraight(const std::tm& time, std::string& out) {
    static const char* const days[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                       "Thursday", "Friday", "Saturday"};
    static const char* const months[] = {"January",   "February", "March",    "April",
                                         "May",       "June",     "July",     "August",
                                         "September", "October",  "November", "December"};
    const auto appendPair = [&out](int value) {
        out += static_cast<char>('0' + value / 10);
        out += static_cast<char>('0' + value % 10);
    };
    out.append(days[time.tm_wday]).append(", ").append(months[time.tm_mon]).append(" ");
    appendPlain(time.tm_mday, out);
    out += ", ";
    appendPlain(1900 + time.tm_year, out);
    out += ", ";
    appendPlain((time.tm_hour + 11) % 12 + 1, out);
    out += ':';
    appendPair(time.tm_min);
    out += ':';
    appendPair(time.tm_sec);
    out += time.tm_hour < 12 ? " AM" : " PM";
}

void addDate() {
    static const std::string pattern = "{0,date,long}, {0,time}";
    add("date/one_shot", dateText, [list = arguments(seconds)](std::string& out) {
        out = MessageLibrary::instance().formatMessage(pattern, list);
    });
    add("date/kept", dateText,
        [message = MessageFormat(pattern), list = arguments(seconds)](std::string& out) {
            out.clear();
            message.format(list, out);
        });
    add("date/fmt", dateText, [](std::string& out) {
        const std::tm time = fmt::gmtime(std::time_t{seconds});
        out = fmt::vformat("{0:%A, %B %d, %Y, %I:%M:%S %p}", fmt::make_format_args(time));
    });
    static const char* const format = "%A, %B %d, %Y, %I:%M:%S %p";
    add("date/strftime", dateText, [](std::string& out) {
        const std::tm time = calendarTime(seconds);
        char buffer[128];
        out.assign(buffer, std::strftime(buffer, sizeof buffer, format, &time));
    });
    add("date/ostringstream", dateText, [](std::string& out) {
        const std::tm time = calendarTime(seconds);
        std::ostringstream stream;
        stream << std::put_time(&time, format);
        out = stream.str();
    });
    add("date/straight", dateText, [](std::string& out) {
        out.clear();
        appendStraight(calendarTime(seconds), out);
    });
}

} // namespace

void addChoiceAndDateWorkloads() {
    addChoice();
    addChoiceOfOthers();
    addDate();
}

} // namespace bench
