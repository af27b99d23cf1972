#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/diagnostics/Diagnostics.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// The kind of value that a message needs as an argument.
enum class ValueKind { any, text, number, time, numberAndTime };

/// Returns the name of a kind: any, text, number, time, or number and time.
const char* nameOf(ValueKind kind) noexcept;

/// A parameter of a typed call.
struct Parameter {
    ValueKind kind = ValueKind::any;
    std::string_view name;        ///< empty if no comment names it
    std::string_view description; ///< in one line; empty if no comment has one
};

/// The function that is generated for a message with a symbolic name. Its views refer to the
/// catalogue.
struct CallSignature {
    std::string_view symbol;
    std::string_view text;             ///< in the language that is looked up; empty if it has none
    std::vector<Parameter> parameters; ///< by the index of the argument
    std::string refusal;               ///< why the function cannot be called; empty if it can
};

/// Returns the functions of all messages with symbolic names, in the order of the file. The number
/// and the kinds of the arguments follow from the text in English (United States).
///
/// Names, descriptions and narrower kinds come from comments before a message or in its head:
///
///     ; // @arg INDEX NAME [KIND [DESCRIPTION]]
///
/// The "//" may be left out; KIND is `text`, `number`, `time` or `any`. A comment that is wrong or
/// does not fit the text is reported. Only its correct parts are used.
std::vector<CallSignature> readSignatures(const Catalogue& catalogue, Diagnostics& diagnostics);

/// Returns the functions of all messages by identifier, also of those without a symbolic name.
/// `symbol` is left empty.
std::map<std::uint32_t, CallSignature> readSignaturesById(const Catalogue& catalogue,
                                                          Diagnostics& diagnostics);

/// Returns the signature that follows from a text in English (United States) alone, without
/// comments and name.
CallSignature readSignature(const Place& pattern);

} // namespace zem::msglib::tool
