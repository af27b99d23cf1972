#pragma once

#include "msglib/NumberFormat.h"

#include <list>
#include <string>

namespace zem::msglib {

/// Picks one of a list of texts by a number, by a pattern such as "0#none|1#one|1<many".
///
///     pattern = segment { ( "|" | unmatched "}" ) segment }
///     segment = limit ( "#" | "<" | "+" ) text
///
/// A text is chosen from its limit up to, and not including, the next limit; with "<" or "+" the
/// limit is the next `double` above the number. The first text also serves what lies below its
/// limit, and NaN. Braces in a text must match; inside them a "|" is plain. In a text, "''" is one
/// apostrophe, and an apostrophe with at least two more bytes behind it takes the first of them
/// without a meaning of its own and drops the second.
///
/// A limit is read as formatted extraction from a stream reads a `double`, by the global
/// `std::locale`; what is no number counts as 0. Nothing sorts or checks the limits.
///
/// In a message, the chosen text is a message pattern of its own; by itself this class gives the
/// text as it is.
///
/// Assignment and `applyPattern` need the object alone; `format` operations only read it.
class MSGLIB_API ChoiceFormat : public NumberFormat {
public:
    /// Compiles `pattern`.
    ///
    /// @throws std::runtime_error as `applyPattern` does
    ChoiceFormat(const std::string& pattern);

    /// Copies the limits and texts.
    ChoiceFormat(const ChoiceFormat& other);

    /// The same by assignment; to itself it changes nothing.
    ChoiceFormat& operator=(const ChoiceFormat& other);

    ~ChoiceFormat() override;

    /// Compiles `pattern` in place of the present one.
    ///
    /// @throws std::runtime_error "Syntax error in choice format." at the first segment without a
    /// separator, such as the
    ///         empty one behind a "|" at the end. The segments in front of it stay.
    void applyPattern(const std::string& pattern);

    using NumberFormat::format;

    /// Appends the text chosen by `value`, taken as a `double`.
    ///
    /// @throws std::out_of_range outside the range of 32 bits, where `long` is wider than that
    std::string& format(long value, std::string& out) const override;

    /// Appends the text chosen by `value`; nothing if a failed `applyPattern` has left no text.
    ///
    ///     "0#none|1#one|1<many"    0.5 -> "none"    1 -> "one"    1.5 -> "many"    -1 -> "none"
    std::string& format(double value, std::string& out) const override;

    /// Returns the next `double` above `value`. NaN, the infinities and the largest finite value
    /// stay themselves.
    static double nextDouble(double value);

    /// Returns the next `double` below `value`. NaN, the infinities and the lowest finite value
    /// stay themselves.
    static double previousDouble(double value);

    /// Returns `nextDouble(value)` if `positive`, and otherwise `previousDouble(value)`.
    static double nextDouble(double value, bool positive);

private:
    struct ChoiceEntry;

    std::list<ChoiceEntry> choices_;
};

} // namespace zem::msglib
