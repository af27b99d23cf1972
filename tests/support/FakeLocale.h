#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace zem::msglib {

/// Locale values by the number of their query.
using LocaleValues = std::map<std::uint32_t, std::string>;

/// Stands in for the platform's locale values, one at a time, and checks how it is asked.
struct FakeLocale {
    /// Starts with those of an English locale with another currency, but for `changes`.
    explicit FakeLocale(const LocaleValues& changes = {});

    static inline LocaleValues values;   ///< a query for anything else fails
    static inline bool installed = true; ///< what the platform says of the locale
};

} // namespace zem::msglib
