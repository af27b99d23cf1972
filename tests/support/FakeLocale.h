#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace zem::msglib {

/// Locale values by the number of their query.
using LocaleValues = std::map<std::uint32_t, std::string>;

/// Replaces the platform's locale values and checks the arguments of every query. At most one
/// object exists at a time.
struct FakeLocale {
    /// Begins with the values of an English locale with another currency, except for `changes`.
    explicit FakeLocale(const LocaleValues& changes = {});

    static inline LocaleValues values;   ///< every other query fails
    static inline bool installed = true; ///< whether the platform has the locale
};

} // namespace zem::msglib
