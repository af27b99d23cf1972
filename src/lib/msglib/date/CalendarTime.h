#pragma once

#include "platform/LocaleServices.h"

#include <boost/any.hpp>

#include <cstdint>
#include <optional>

namespace zem::msglib {

/// Returns an argument as whole seconds since 1970-01-01 00:00:00; nothing beyond 64 bits.
///
/// @throws std::runtime_error "Invalid date argument type" for a kind that isn't a point in time
/// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
std::optional<std::int64_t> readSeconds(const boost::any& argument);

/// Returns the calendar fields of a count of seconds; nothing for a time outside the platform's
/// range.
std::optional<platform::SYSTEMTIME> calendarTime(std::int64_t seconds) noexcept;

} // namespace zem::msglib
