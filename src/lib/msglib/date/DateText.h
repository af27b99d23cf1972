#pragma once

#include <boost/any.hpp>

#include <string_view>

namespace zem::msglib {

class TextOutput;

/// Appends `value` as a `SimpleDateFormat` of `pattern` formats it.
///
/// @throws what `SimpleDateFormat::format` throws; nothing is appended then
void appendDate(std::string_view pattern, const boost::any& value, TextOutput& out);

} // namespace zem::msglib
