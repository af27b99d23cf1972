#pragma once

#include "msglib/Format.h"

#include <boost/any.hpp>

#include <cstddef>
#include <list>
#include <locale>
#include <string>

namespace zem::msglib {

struct FormatElement;

/// Renders a message: static text with numbered placeholders, which a list of arguments fills.
///
///     pattern     = text { placeholder text }
///     placeholder = "{" index [ "," type [ "," style ] ] "}"
///     type        = "number" | "date" | "time" | "choice"
///
/// Only the bytes ' { } and , are syntax, so UTF-8 passes through. In text, an apostrophe, any byte
/// and an apostrophe are that byte as plain text; "''" is one apostrophe, and any other apostrophe
/// is plain text. In a style, braces must match.
///
/// The index counts the arguments from 0. It is read as formatted extraction from a stream reads an
/// `int`: leading blanks are skipped, and whatever follows the number is ignored. Type and style
/// are compared byte for byte, case and blanks included:
///
/// | Type     | Style                                              | Rendered by         |
/// |----------|----------------------------------------------------|---------------------|
/// | "number" | none, "integer", "currency", "percent"             | `DecimalFormat`     |
/// | "number" | any other: a decimal pattern                       | `DecimalFormat`     |
/// | "date"   | none or "medium", "short", "long" or "full"        | `SimpleDateFormat`  |
/// | "date"   | any other: a date pattern                          | `SimpleDateFormat`  |
/// | "time"   | none, or a date pattern                            | `SimpleDateFormat`  |
/// | "choice" | a choice pattern                                   | `ChoiceFormat`      |
/// | other    | ignored                                            | the argument's kind |
///
/// The text that a choice selects is a message pattern for the same arguments.
///
/// A placeholder of another type, or without a type, depends on its argument's kind: a
/// `std::string` is appended unchanged, integers and `bool` are rendered by
/// `NumberFormat::getIntegerInstance`, `float` and `double` by `NumberFormat::getNumberInstance`.
/// Any other kind adds nothing.
///
/// Compiling takes time linear in the length of the pattern. Rendering takes time linear in the
/// lengths of the pattern and of the text, plus, for each placeholder, the distance of its index
/// from the one before it.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class MSGLIB_API MessageFormat : public Format {
public:
    /// Compiles `pattern`. The object's locale is the global `std::locale`.
    ///
    /// @throws std::runtime_error as `applyPattern` does
    MessageFormat(const std::string& pattern);

    /// Copies texts and locale, and shares the formatters.
    MessageFormat(const MessageFormat& other);

    /// Copies texts and locale, and shares the formatters. Assigning an object to itself changes
    /// nothing.
    MessageFormat& operator=(const MessageFormat& other);

    ~MessageFormat() override;

    /// Compiles `pattern` in place of the present one.
    ///
    /// After a failure, the object holds the parts of `pattern` before the failing one.
    ///
    /// @throws std::runtime_error with one of these texts:
    ///         "unexpected closing brace" for a "}" in text,
    ///         "Illegal argument in format string" for an index that isn't a number, or a
    ///         placeholder without its closing brace,
    ///         "style_ required for choice format",
    ///         or as `ChoiceFormat::applyPattern` and `DecimalFormat::applyPattern` for a style
    void applyPattern(const std::string& pattern);

    using Format::format;

    /// Appends the message with `args` to `out` and returns `out`; earlier bytes are kept.
    ///
    /// Arguments that no placeholder uses are ignored. `out` must not be one of the arguments.
    /// After a failure, `out` keeps the text before the failing placeholder.
    ///
    ///     MessageFormat("{1} and {0}") with "a", "b" -> "b and a"
    ///
    /// @throws std::runtime_error with one of these texts:
    ///         "Argument index in format exceeds number of specified arguments", also for a
    ///         negative index,
    ///         "Argument is not a number." or "Invalid date argument type" for an argument that
    ///         the placeholder's type doesn't accept,
    ///         or as `applyPattern` for the text of a choice
    /// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
    std::string& format(const std::list<boost::any>& args, std::string& out) const;

    /// Appends the message with the argument list that `value` points to. `value` holds a
    /// `const std::list<boost::any>*`.
    ///
    /// @throws boost::bad_any_cast if `value` holds anything else
    /// @throws std::runtime_error  "Invalid argument" for a null pointer
    std::string& format(const boost::any& value, std::string& out) const override;

    /// Replaces the locale and creates every formatter again. No text depends on the locale.
    ///
    /// @throws std::bad_alloc
    /// @throws std::runtime_error as `DecimalFormat::applyPattern` does, if the platform's locale
    ///         values form no valid pattern; the placeholders before the failing one then have new
    ///         formatters
    void setLocale(const std::locale& locale);

    /// Returns the locale: that of the last `setLocale`, or the global one at construction.
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
