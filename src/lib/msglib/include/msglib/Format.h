#pragma once

#include "msglib/Export.h"

#include <boost/any.hpp>

#include <string>

namespace zem::msglib {

/// Root of all formatters: renders one argument as text.
///
/// An argument is a `boost::any`. Its kind is the exact type that it holds: no value is converted
/// before its kind is tested. Formatters read the kinds like this:
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
/// `MessageFormat` describes what a placeholder without a type makes of each kind. `long` and
/// `unsigned long` are 32 bits wide in this library: a value outside that range throws
/// `std::out_of_range`.
///
/// Formatters are values: copies are independent. Copies of a `MessageFormat` share formatters that
/// never change.
///
/// Threads: const operations may run at once on one object; every other operation needs it alone.
class MSGLIB_API Format {
public:
    Format() = default;
    Format(const Format&) = default;
    Format& operator=(const Format&) = default;
    virtual ~Format();

    /// Appends the text of `value` to `out` and returns `out`, which keeps what it held.
    ///
    /// @throws std::runtime_error if the formatter doesn't read this kind; `out` is unchanged then
    /// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
    virtual std::string& format(const boost::any& value, std::string& out) const = 0;

    /// Returns the text of `value` alone. Fails as the virtual operation does.
    ///
    ///     DecimalFormat("#,##0", symbols).format(1234) -> "1,234"
    std::string format(const boost::any& value);
};

} // namespace zem::msglib
