#pragma once

#include "msglib/Export.h"

#include <boost/any.hpp>

#include <string>

namespace zem::msglib {

/// Base class of all formatters: renders one argument as text.
///
/// An argument is a `boost::any`. Its kind is the exact type that it holds: no value is converted
/// before its kind is tested. Formatters interpret the kinds as follows:
///
/// | Held type                                     | Number formats | Date formats          |
/// |-----------------------------------------------|----------------|-----------------------|
/// | `short`, `int`, `long`, `long long`           | the value      | seconds               |
/// | the same, `unsigned`                          | the value      | seconds               |
/// | `bool`                                        | 0 or 1         | 0 or 1 second         |
/// | `float`, `double`                             | the value      | seconds, fraction cut |
/// | `zem::geom::Angle`                            | degrees        | fails                 |
/// | `std::string`, any other type, an empty `any` | fails          | fails                 |
///
/// `MessageFormat` describes how a placeholder without a type renders each kind. `long` and
/// `unsigned long` are 32 bits wide in this library: a value outside that range throws
/// `std::out_of_range`.
///
/// Formatters are values: copies are independent. Copies of a `MessageFormat` share formatters,
/// which never change.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class MSGLIB_API Format {
public:
    Format() = default;
    Format(const Format&) = default;
    Format& operator=(const Format&) = default;
    virtual ~Format();

    /// Appends the text of `value` to `out` and returns `out`; earlier bytes are kept.
    ///
    /// @throws std::runtime_error if the formatter doesn't accept the kind; `out` is unchanged then
    /// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
    virtual std::string& format(const boost::any& value, std::string& out) const = 0;

    /// Returns the text of `value`. Throws what the virtual operation throws.
    ///
    ///     DecimalFormat("#,##0", symbols).format(1234) -> "1,234"
    std::string format(const boost::any& value);
};

} // namespace zem::msglib
