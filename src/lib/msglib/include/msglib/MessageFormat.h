#pragma once

#include "msglib/Format.h"

#include <boost/any.hpp>

#include <cstddef>
#include <list>
#include <locale>
#include <string>

namespace zem::msglib {

struct FormatElement;

/// Renders a message: static text with numbered placeholders, and a list of arguments for them.
///
///     pattern     = text { placeholder text }
///     placeholder = "{" index [ "," type [ "," style ] ] "}"
///     type        = "number" | "date" | "time" | "choice"
///
/// Only the bytes ' { } and , have a meaning, so UTF-8 passes through. In text, an apostrophe, any
/// byte and an apostrophe stand for that byte; "''" is one apostrophe, and any other apostrophe
/// stands for itself. In a style, braces must match.
///
/// The index counts the arguments from 0. It is read as formatted extraction from a stream reads an
/// `int`: leading blanks are skipped, and whatever follows the number is ignored. Type and style
/// are compared byte for byte, case and blanks included:
///
/// | Type     | Style                                              | Written by          |
/// |----------|----------------------------------------------------|---------------------|
/// | "number" | none, "integer", "currency", "percent"             | `DecimalFormat`     |
/// | "number" | any other: a decimal pattern                       | `DecimalFormat`     |
/// | "date"   | none or "medium", "short", "long" or "full"        | `SimpleDateFormat`  |
/// | "date"   | any other: a date pattern                          | `SimpleDateFormat`  |
/// | "time"   | none, or a date pattern                            | `SimpleDateFormat`  |
/// | "choice" | a choice pattern                                   | `ChoiceFormat`      |
/// | other    | ignored                                            | the argument's kind |
///
/// The text that a choice picks is a message pattern for the same arguments.
///
/// A placeholder of another type, or of none, goes by its argument's kind: a `std::string` is
/// appended as it is, integers and `bool` are written by `NumberFormat::getIntegerInstance`,
/// `float` and `double` by `NumberFormat::getNumberInstance`. Any other kind adds nothing.
///
/// Compiling and rendering take time linear in the pattern, the arguments that it uses and the
/// text, except that arguments in an order that jumps are looked for in the list.
///
/// Threads: const operations may run at once on one object; every other operation needs it alone.
class MSGLIB_API MessageFormat : public Format {
public:
    /// Compiles `pattern`. The object takes the global `std::locale`.
    ///
    /// @throws std::runtime_error as `applyPattern` does
    MessageFormat(const std::string& pattern);

    /// Copies texts and locale, and shares the formatters.
    MessageFormat(const MessageFormat& other);

    /// Copies texts and locale, and shares the formatters. Assigning an object to itself changes
    /// nothing.
    MessageFormat& operator=(const MessageFormat& other);

    ~MessageFormat() override;

    /// Replaces the compiled pattern by that of `pattern`.
    ///
    /// A failure rolls nothing back: the object then holds the new pattern as far as it was read.
    ///
    /// @throws std::runtime_error with one of these texts:
    ///         "unexpected closing brace" for a "}" in text,
    ///         "Illegal argument in format string" for an index that isn't a number, or a
    ///         placeholder that doesn't end,
    ///         "style_ required for choice format",
    ///         or as `ChoiceFormat::applyPattern` and `DecimalFormat::applyPattern` for a style
    void applyPattern(const std::string& pattern);

    using Format::format;

    /// Appends the message with `args` to `out` and returns `out`, which keeps what it held.
    ///
    /// Arguments that no placeholder names are ignored. `out` must not be one of the arguments.
    /// After a failure, `out` keeps what was appended before it.
    ///
    ///     MessageFormat("{1} and {0}") with "a", "b" -> "b and a"
    ///
    /// @throws std::runtime_error with one of these texts:
    ///         "Argument index in format exceeds number of specified arguments", also for a
    ///         negative index,
    ///         "Argument is not a number." or "Invalid date argument type" for an argument that
    ///         the placeholder's type doesn't read,
    ///         or as `applyPattern` for the text of a choice
    /// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
    std::string& format(const std::list<boost::any>& args, std::string& out) const;

    /// Appends the message with the list that `value` points to, by a
    /// `const std::list<boost::any>*`.
    ///
    /// @throws boost::bad_any_cast if `value` holds anything else
    /// @throws std::runtime_error  "Invalid argument" for a null pointer
    std::string& format(const boost::any& value, std::string& out) const override;

    /// Replaces the locale and makes every formatter anew. No text depends on the locale.
    ///
    /// @throws std::bad_alloc
    /// @throws std::runtime_error as `DecimalFormat::applyPattern` does, if the platform's locale
    ///         values make no pattern; the placeholders before the failing one have new formatters
    ///         then
    void setLocale(const std::locale& locale);

    /// Returns the locale. It is at first the one that was global when the object was made.
    const std::locale& getLocale() const;

private:
    MessageFormat();

    std::size_t parseStatic(const std::string& pattern, std::size_t position,
                            std::string& text) const;
    std::size_t parsePattern(const std::string& pattern, std::size_t position, std::string& scratch,
                             const std::locale& locale);

    std::list<FormatElement> elements_;
    std::locale locale_;
    std::string pattern_;
    std::string prefix_;
};

} // namespace zem::msglib
