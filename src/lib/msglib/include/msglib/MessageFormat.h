#pragma once

#include "msglib/Format.h"

#include <boost/any.hpp>

#include <cstddef>
#include <list>
#include <locale>
#include <string>

namespace zem::msglib {

struct FormatElement;

/// Renders a message: static text with numbered placeholders, against a list of arguments.
///
///     pattern     = text { placeholder text }
///     placeholder = "{" index [ "," type [ "," style ] ] "}"
///     type        = "number" | "date" | "time" | "choice"
///
/// Only the bytes ' { } and , have a meaning, so UTF-8 passes through. In text, an apostrophe, a
/// byte and an apostrophe are that byte; "''" is one apostrophe, and any other apostrophe stands
/// for itself. The index counts the arguments from 0; it is read as formatted extraction from a
/// stream reads an `int`, so blanks in front of it and anything behind it are ignored. Type and
/// style are compared as they stand, with case and blanks:
///
/// | Type     | Style                                          | Written by          |
/// |----------|------------------------------------------------|---------------------|
/// | "number" | none, "integer", "currency", "percent", or a decimal pattern | `DecimalFormat` |
/// | "date"   | none, "short", "medium", "long", "full", or a date pattern | `SimpleDateFormat` |
/// | "time"   | none, or a date pattern                        | `SimpleDateFormat`  |
/// | "choice" | a choice pattern                               | `ChoiceFormat`      |
/// | other    | ignored                                        | the argument's kind |
///
/// A date without a style is as "medium". The text that a choice picks is a message pattern for the
/// same arguments.
///
/// A placeholder of no such type goes by the kind of its argument (see `Format`): `std::string` as
/// it is, integers and `bool` by `NumberFormat::getIntegerInstance`, `float` and `double` by
/// `getNumberInstance`; any other kind adds nothing.
///
/// Compiled once, an object renders any number of lists. Copies share their formatters, which
/// nobody ever changes. `applyPattern`, `setLocale` and assignment need the object alone; `format`
/// operations only read it.
class MSGLIB_API MessageFormat : public Format {
public:
    /// Compiles `pattern`, for the global `std::locale`.
    ///
    /// @throws std::runtime_error as `applyPattern` does
    MessageFormat(const std::string& pattern);

    /// Copies texts and locale, and shares the formatters.
    MessageFormat(const MessageFormat& other);

    /// The same by assignment; to itself it changes nothing.
    MessageFormat& operator=(const MessageFormat& other);

    ~MessageFormat() override;

    /// Compiles `pattern` in place of the present one.
    ///
    /// A failure rolls nothing back: the object holds the new pattern as far as it was read.
    ///
    /// @throws std::runtime_error "unexpected closing brace" for a "}" in text, "Illegal argument
    /// in format string" for an
    ///         index that can't be read or a placeholder that doesn't end, "style_ required for
    ///         choice format", "Syntax error in choice format.", or a text of
    ///         `DecimalFormat::applyPattern`
    void applyPattern(const std::string& pattern);

    using Format::format;

    /// Appends the message with `args` to `out`, which keeps what it held, and returns `out`.
    ///
    /// Arguments that no placeholder names are ignored. `out` must not be the text of one of them.
    /// After a failure `out` keeps what was appended in front of it.
    ///
    ///     MessageFormat("{1} and {0}") with "a", "b" -> "b and a"
    ///
    /// @throws std::runtime_error "Argument index in format exceeds number of specified arguments"
    /// for an index that
    ///         names no argument, negative ones included; "Argument is not a number." or "Invalid
    ///         date argument type" for an argument that its placeholder's type doesn't read; and as
    ///         `applyPattern` for the text of a choice
    /// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
    std::string& format(const std::list<boost::any>& args, std::string& out) const;

    /// The same for a list that `value` points to by a `const std::list<boost::any>*`.
    ///
    /// @throws boost::bad_any_cast if `value` holds anything else
    /// @throws std::runtime_error  "Invalid argument" for a null pointer
    std::string& format(const boost::any& value, std::string& out) const override;

    /// Replaces the locale and makes every formatter anew for it, though no text depends on it.
    ///
    /// @throws nothing but `std::bad_alloc`, and what the platform's locale values lead to as a
    /// pattern; the placeholders in
    ///         front of the failing one have their new formatters then
    void setLocale(const std::locale& locale);

    /// Returns the locale; at first the one that was global when the object was made.
    const std::locale& getLocale() const;

private:
    friend class MessageRenderer;

    MessageFormat();

    void compile(const std::string& pattern);
    std::size_t parseStatic(const std::string& pattern, std::size_t position,
                            std::string& text) const;
    std::size_t parsePatternElement(const std::string& pattern, std::size_t position,
                                    std::string& text, char endByte) const;
    std::size_t parseIndex(const std::string& pattern, std::size_t position, std::string& scratch,
                           int& index) const;
    std::size_t parsePattern(const std::string& pattern, std::size_t position, std::string& scratch,
                             const std::locale& locale);

    std::list<FormatElement> elements_;
    std::locale locale_;
    std::string pattern_;
    std::string prefix_;
};

} // namespace zem::msglib
