#pragma once

#include "msglib/DateFormat.h"

#include <locale>
#include <string>
#include <string_view>

namespace zem::msglib {

class TextOutput;

/// Writes a point in time by a pattern such as "yyyy-MM-dd HH:mm:ss".
///
/// A run of one letter of "dMyg" (day, month, year, era) or "hHmst" (hour of 12, hour of 24,
/// minute, second, marker) is a field, whose form its length decides: "d", "dd", "ddd" and "dddd"
/// are "1", "01", "Thu" and "Thursday". Text between apostrophes stands as it is, and so does every
/// other byte; "''" is an apostrophe inside quoted text, and nothing outside it. A pattern can't be
/// wrong: an apostrophe without a partner quotes the rest.
///
/// A point in time is a count of whole seconds since 1970-01-01 00:00:00, and the fields are those
/// of that count, as in UTC. From year 1601 to 30827 there is a field for it; outside, fields are
/// left out and the other text stands.
///
/// Assignment and `applyPattern` need the object alone; `format` only reads it.
class MSGLIB_API SimpleDateFormat : public DateFormat {
public:
    /// Keeps `pattern` and `locale`. The locale selects nothing: month names and the like are those
    /// of one fixed locale.
    SimpleDateFormat(const std::string& pattern, const std::locale& locale);

    /// The same with a pattern that the caller gives away.
    SimpleDateFormat(std::string&& pattern, const std::locale& locale);

    /// Copies pattern and locale.
    SimpleDateFormat(const SimpleDateFormat& other);

    /// The same by assignment; to itself it changes nothing.
    SimpleDateFormat& operator=(const SimpleDateFormat& other);

    ~SimpleDateFormat() override;

    /// Replaces the pattern.
    void applyPattern(const std::string& pattern);

    using DateFormat::format;

    /// Appends the text of a count of seconds, held in any of the kinds that `Format` lists. The
    /// fraction of a `float` or `double` is cut off towards zero, and an `unsigned long long` with
    /// the top bit set counts as negative.
    ///
    ///     "yyyy-MM-dd HH:mm:ss"    1000000000 -> "2001-09-09 01:46:40"    -1 -> "1969-12-31
    ///     23:59:59" "h 'o''clock'"           0 -> "12 o'clock"
    ///
    /// @throws std::runtime_error "Invalid date argument type" for any other kind
    /// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
    std::string& format(const boost::any& value, std::string& out) const override;

private:
    friend class MessageRenderer;
    friend class PlaceholderRenderer;

    void write(const boost::any& value, TextOutput& out) const;
    static void render(std::string_view pattern, const boost::any& value, TextOutput& out);

    static const std::string_view datePatternChars_;
    static const std::string_view timePatternChars_;

    std::string pattern_;
    std::locale locale_;
};

} // namespace zem::msglib
