#pragma once

#include "msglib/NumberFormat.h"

namespace zem::msglib {

class TextOutput;

/// Appends `value` straight from the platform's locale values, as the formatter of the public
/// factory of `type` would, without making one.
///
/// @return false, with nothing appended, for what only a formatter can tell: negative amounts, NaN
///         and infinity, and a locale that the platform doesn't know or has no symbols for
bool appendPlainLocaleNumber(double value, NumberFormat::FormatType type, TextOutput& out);

} // namespace zem::msglib
