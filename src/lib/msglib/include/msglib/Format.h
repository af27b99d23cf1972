#pragma once

#include "msglib/Export.h"

#if !defined(__cpp_rtti) && !defined(__GXX_RTTI) && !defined(_CPPRTTI)
#error "msglib needs run-time type information, by which it tells the type of an argument"
#endif

#include <boost/any.hpp>

#include <string>

namespace zem::msglib {

/// Root of all formatters: renders one argument as text.
///
/// An argument is a `boost::any`, and its kind is the exact type that it holds; nothing is
/// converted before the kind is tested. The kinds, and how each formatter reads them:
///
/// | Held type                                   | Number formats        | Date formats          |
/// |---------------------------------------------|-----------------------|-----------------------|
/// | `short`, `int`, `long`, `long long`, and their unsigned twins | as `double` | whole seconds |
/// | `bool`                                      | 0 or 1                | 0 or 1 seconds        |
/// | `float`, `double`                           | the value             | seconds, fraction cut |
/// | `zem::geom::Angle`                          | the value in degrees  | fails                 |
/// | `std::string`, any other, an empty `any`    | fails                 | fails                 |
///
/// `MessageFormat` tells what a placeholder without a type does with each. `long` and `unsigned
/// long` are 32 bits wide in this library: a value outside that range fails with
/// `std::out_of_range`, and nothing is cut off.
///
/// Formatters are values of their own: copies are independent, but for `MessageFormat`, whose
/// copies share formatters that nobody changes. `format` operations only read the object, so one
/// formatter may serve several threads as long as nobody changes it.
class MSGLIB_API Format {
public:
    Format() = default;
    Format(const Format&) = default;
    Format& operator=(const Format&) = default;
    virtual ~Format();

    /// Appends the text of `value` to `out`, which keeps what it held, and returns `out`.
    ///
    /// @throws std::runtime_error if the formatter doesn't read arguments of this kind; nothing is
    /// appended then
    /// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
    virtual std::string& format(const boost::any& value, std::string& out) const = 0;

    /// Returns the text of `value` alone; fails as the virtual operation does.
    std::string format(const boost::any& value);
};

} // namespace zem::msglib
