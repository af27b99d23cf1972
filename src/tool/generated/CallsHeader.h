#pragma once

#include "tool/catalogue/CallSignatures.h"
#include "tool/generated/GeneratedSources.h"

#include <string>
#include <vector>

namespace zem::msglib::tool {

/// Returns the header with the typed calls of a catalogue: for each symbolic name, a function of
/// that name, documented with the text and the arguments of the message.
///
/// A call with wrong arguments fails to compile with one error, which names message, argument and
/// kind. For that, one overload has as many parameters as the message has arguments, and checks
/// their types. Another overload takes any other number of arguments, and never compiles.
std::string callsHeaderText(const CatalogueName& name,
                            const std::vector<CallSignature>& signatures);

} // namespace zem::msglib::tool
