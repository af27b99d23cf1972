#pragma once

#include "msglib/DateFormat.h"

#include <string>

namespace zem::msglib {

/// Returns the platform's pattern for dates in `style`; the empty text for a value outside the
/// enumeration, and for one that the platform doesn't have.
std::string localeDatePattern(DateFormat::Style style);

/// Returns the platform's pattern for the time of day.
std::string localeTimePattern();

} // namespace zem::msglib
