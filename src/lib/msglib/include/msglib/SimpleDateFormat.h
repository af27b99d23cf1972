#pragma once

#include "msglib/DateFormat.h"

#include <locale>
#include <string>
#include <string_view>

namespace zem::msglib {

class TextOutput;

/// Formats a point in time by a pattern such as "yyyy-MM-dd HH:mm:ss".
///
///     pattern = { run | "'" text "'" | other }
///     run     = one letter of d M y g h H m s t, any number of times
///
/// | Letter | Field       | Forms, by the length of the run                     |
/// |--------|-------------|-----------------------------------------------------|
/// | d      | day         | d "1", dd "01", ddd "Thu", dddd "Thursday"          |
/// | M      | month       | M "1", MM "01", MMM "Jan", MMMM "January"           |
/// | y      | year        | y "0", yy "70", yyyy "1970"                         |
/// | g      | era         | g "A.D."                                            |
/// | h, H   | hour        | h "1", hh "01" of 12 hours; H, HH of 24 hours       |
/// | m      | minute      | m "5", mm "05"                                      |
/// | s      | second      | s "5", ss "05"                                      |
/// | t      | marker      | t "A", tt "AM"                                      |
///
/// Text between apostrophes and every other byte are appended unchanged. "''" is an apostrophe
/// inside quoted text, and nothing outside it. Every pattern is valid: an apostrophe without a
/// partner quotes the rest.
///
/// A point in time is a count of whole seconds since 1970-01-01 00:00:00 UTC, and the fields are in
/// UTC. For a count outside the years 1601 to 30827 the fields are left out.
///
/// Rendering takes time linear in the length of the pattern. A run appends at most 9 bytes.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class MSGLIB_API SimpleDateFormat : public DateFormat {
public:
    /// Stores `pattern` and `locale`. The locale doesn't affect the text: names of days and months
    /// are those of one fixed locale.
    SimpleDateFormat(const std::string& pattern, const std::locale& locale);

    /// Stores `pattern`, moved into the object, and `locale`.
    SimpleDateFormat(std::string&& pattern, const std::locale& locale);

    /// Copies everything; the copy is independent.
    SimpleDateFormat(const SimpleDateFormat& other);

    /// Copies everything; the copy is independent. Assigning an object to itself changes nothing.
    SimpleDateFormat& operator=(const SimpleDateFormat& other);

    ~SimpleDateFormat() override;

    /// Replaces the pattern.
    void applyPattern(const std::string& pattern);

    using DateFormat::format;

    /// Appends the text of a count of seconds, of any of the kinds that `Format` lists. The
    /// fraction of a `float` or `double` is cut off towards zero. An `unsigned long long` with the
    /// top bit set is a negative count.
    ///
    ///     "yyyy-MM-dd HH:mm:ss"  1000000000 -> "2001-09-09 01:46:40"  -1 -> "1969-12-31 23:59:59"
    ///     "h 'o''clock'"         0          -> "12 o'clock"
    ///
    /// @throws std::runtime_error "Invalid date argument type" for any other kind
    /// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
    std::string& format(const boost::any& value, std::string& out) const override;

private:
    friend class MessageRenderer;
    friend void appendDate(std::string_view pattern, const boost::any& value, TextOutput& out);

    void write(const boost::any& value, TextOutput& out) const;

    static const std::string_view datePatternChars_;
    static const std::string_view timePatternChars_;

    std::string pattern_;
    std::locale locale_;
};

} // namespace zem::msglib
