#pragma once

#include "msglib/NumberFormat.h"

#include <list>
#include <string>
#include <string_view>

namespace zem::msglib {

/// Chooses one of several texts by a number, as a pattern describes: "0#none|1#one|1<many".
///
///     pattern = segment { ( "|" | unmatched "}" ) segment }
///     segment = limit ( "#" | "<" | "+" ) text
///
/// A text is chosen for the numbers from its limit up to, and not including, the next limit. With
/// "#" the limit is the number as written, with "<" or "+" the next `double` above it. The first
/// text is also chosen for NaN and for every number below its limit.
///
/// A limit is read as formatted extraction from a stream reads a `double`, by the global
/// `std::locale`. Characters that aren't a number count as 0. Nothing sorts or checks the limits.
///
/// Braces in a text must match, and a "|" between them is plain text. "''" is one apostrophe. Any
/// other apostrophe with at least two more bytes after it makes the first of them plain text and
/// drops the second: "'{'" is a brace, and "it's here" becomes "itshere".
///
/// In a message, the chosen text is a message pattern. This class alone appends it unchanged.
///
/// Compiling takes time linear in the length of the pattern, choosing in the number of texts. The
/// text appended is at most as long as the pattern.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class MSGLIB_API ChoiceFormat : public NumberFormat {
public:
    /// Compiles `pattern`.
    ///
    /// @throws std::runtime_error as `applyPattern` does
    ChoiceFormat(const std::string& pattern);

    /// Copies everything; the copy is independent.
    ChoiceFormat(const ChoiceFormat& other);

    /// Copies everything; the copy is independent. Assigning an object to itself changes nothing.
    ChoiceFormat& operator=(const ChoiceFormat& other);

    ~ChoiceFormat() override;

    /// Compiles `pattern` in place of the present one.
    ///
    /// After a failure, the object holds the segments before the failing one.
    ///
    /// @throws std::runtime_error "Syntax error in choice format." for a segment without a
    ///         separator, such as the empty one after a trailing "|"
    void applyPattern(const std::string& pattern);

    using NumberFormat::format;

    /// Appends the text chosen by `value`, taken as a `double`.
    ///
    /// @throws std::out_of_range outside the range of 32 bits, where `long` is wider than that
    std::string& format(long value, std::string& out) const override;

    /// Appends the text chosen by `value`, or nothing if a failed `applyPattern` left no text.
    ///
    ///     "0#none|1#one|1<many"    0.5 -> "none"    1 -> "one"    1.5 -> "many"    -1 -> "none"
    std::string& format(double value, std::string& out) const override;

    /// Returns the next `double` above `value`. NaN, the infinities and the largest finite value
    /// are returned unchanged.
    static double nextDouble(double value);

    /// Returns the next `double` below `value`. NaN, the infinities and the lowest finite value
    /// are returned unchanged.
    static double previousDouble(double value);

    /// Returns `nextDouble(value)` if `positive`, and otherwise `previousDouble(value)`.
    static double nextDouble(double value, bool positive);

private:
    friend class MessageRenderer;

    struct ChoiceEntry {
        double limit;
        std::string text;
    };

    std::string_view choose(double value) const noexcept;

    std::list<ChoiceEntry> choices_;
};

} // namespace zem::msglib
