#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/diagnostics/Diagnostics.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// What a value has to be so that a message can use it.
enum class ValueKind { any, text, number, time, numberAndTime };

/// Returns the name of a kind: any, text, number, time, or number and time.
const char* nameOf(ValueKind kind) noexcept;

/// A parameter of a typed call.
struct Parameter {
    ValueKind kind = ValueKind::any;
    std::string_view name;        ///< empty if no comment names it
    std::string_view description; ///< the same, in one line
};

/// The function that a message with a symbolic name becomes. Its texts lie in the catalogue.
struct CallSignature {
    std::string_view symbol;
    std::string_view text;             ///< in the language that is looked up; empty if it has none
    std::vector<Parameter> parameters; ///< by the index of the argument
    std::string refusal;               ///< why the function cannot be called; empty if it can
};

/// Finds the functions of all messages in the order of the file: how many arguments there are, and
/// of which kinds, follows from the text in English (United States).
///
/// Names, descriptions and narrower kinds come from comments before a message or in its head:
///
///     ; // @arg INDEX NAME [KIND [DESCRIPTION]]
///
/// The "//" may be left out; KIND is `text`, `number`, `time` or `any`. A comment that is wrong or
/// does not fit the text is reported, and counts only as far as it fits.
std::vector<CallSignature> readSignatures(const Catalogue& catalogue, Diagnostics& diagnostics);

/// Finds the same for all messages by their identifiers, also for those without a symbolic name.
/// The names are left out.
std::map<std::uint32_t, CallSignature> readSignaturesById(const Catalogue& catalogue,
                                                          Diagnostics& diagnostics);

/// Finds what a text in English (United States) asks for by itself, without comments and name.
CallSignature readSignature(const Place& pattern);

} // namespace zem::msglib::tool
