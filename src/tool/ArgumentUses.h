#pragma once

#include <map>
#include <string_view>

namespace zem::msglib::tool {

/// How a message uses one of its arguments. One that is neither a number nor a time is shown as it
/// is.
struct ArgumentUse {
    bool isNumber = false; ///< in a placeholder of type `number` or `choice`
    bool isTime = false;   ///< in a placeholder of type `date` or `time`
};

/// Returns the arguments that a pattern uses in any text of any choice, by their index. Negative
/// indexes, for which there is never an argument, are left out.
///
/// It takes time in proportion to the pattern's size times the depth of its choices.
///
/// @throws std::runtime_error with the library's words if the pattern does not compile; styles of
///         numbers and dates are not read
std::map<int, ArgumentUse> argumentUses(std::string_view pattern);

} // namespace zem::msglib::tool
