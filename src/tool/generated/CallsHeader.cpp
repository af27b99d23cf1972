#include "tool/generated/CallsHeader.h"

#include "tool/catalogue/Catalogue.h"
#include "tool/text/Unicode.h"

#include <algorithm>
#include <string_view>

// The signatures of a catalogue go in, a header with one function for each symbolic name comes out.
// Each function has a comment with its text and parameters, an overload for the right number of
// arguments, which checks their types, and an overload for any other number, which never compiles.
// Texts and descriptions are written so that they cannot end the comment.

namespace zem::msglib::tool {

namespace {

constexpr std::size_t usualFunctionSize = 1536;

constexpr const char* streamType = "::zem::msglib::MessageFormatStream";

/// The names of a kind: in the included header, and in error messages.
struct KindNames {
    const char* type;
    const char* words;
};

KindNames namesOf(ValueKind kind) {
    switch (kind) {
    case ValueKind::text: return {"Text", "a text"};
    case ValueKind::number: return {"Number", "a number"};
    case ValueKind::time: return {"Time", "a point in time"};
    case ValueKind::numberAndTime: return {"Seconds", "a number of seconds"};
    case ValueKind::any: break;
    }
    return {"Any", "a number or a text"};
}

std::string typeOf(const Parameter& parameter) {
    return std::string("::zem::msglib::typed::") + namesOf(parameter.kind).type;
}

std::string typeParameter(std::size_t index) {
    return "Argument" + std::to_string(index);
}

std::string nameOf(const Parameter& parameter, std::size_t index) {
    return parameter.name.empty() ? "argument" + std::to_string(index)
                                  : std::string(parameter.name);
}

/// Returns the results of `itemAt` for all indexes below `count`, separated by commas.
template <class ItemAt>
std::string list(std::size_t count, ItemAt itemAt) {
    std::string out;
    for (std::size_t index = 0; index < count; ++index) {
        out += (index == 0 ? "" : ", ") + itemAt(index);
    }
    return out;
}

/// Returns whether a character in a comment changes how compilers or editors read its line: control
/// characters, and characters that change the direction of writing.
bool isInvisible(char32_t character) {
    return (character < 0x20 && character != '\t') || (character >= 0x7F && character <= 0x9F) ||
           (character >= 0x200E && character <= 0x200F) ||
           (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

/// Returns the length of the printable ASCII at the start of a text, which is nearly all of most.
std::size_t plainLength(std::string_view text) {
    const auto isPlain = [](char byte) { return byte >= ' ' && byte <= '~'; };
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) -
                                    text.begin());
}

/// Appends a line of a comment, without characters that could end the line or continue the comment
/// on the next one.
void appendComment(std::string& out, std::string_view line) {
    out += "///";
    out += line.empty() ? "" : " ";
    while (true) {
        const std::size_t plain = plainLength(line);
        out += line.substr(0, plain);
        line.remove_prefix(plain);
        if (line.empty()) {
            break;
        }
        const std::string_view before = line;
        const char32_t character = takeCharacter(line);
        if (isInvisible(character)) {
            out += "<U+" + hexadecimal(character).substr(character > 0xFFFF ? 2 : 6) + ">";
        } else {
            out += before.substr(0, before.size() - line.size());
        }
    }
    // A backslash at the end would make the next line a part of the comment.
    const std::size_t last = out.find_last_not_of(" \t");
    out.erase(last + 1);
    out += out.back() == '\\' ? " <line end>\n" : "\n";
}

void appendText(std::string& out, std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        appendComment(out, "    " + std::string(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void appendDocumentation(std::string& out, const CallSignature& signature) {
    if (!signature.refusal.empty()) {
        appendComment(out, "Not callable: the message " + signature.refusal + ".");
        return;
    }
    appendText(out, signature.text);
    const auto& parameters = signature.parameters;
    if (!parameters.empty()) {
        appendComment(out, "");
    }
    for (std::size_t index = 0; index < parameters.size(); ++index) {
        const Parameter& parameter = parameters[index];
        std::string line =
            "@param " + nameOf(parameter, index) + "  " + namesOf(parameter.kind).words;
        if (!parameter.description.empty()) {
            line += ": " + std::string(parameter.description);
        }
        appendComment(out, line);
    }
}

/// Returns the required arguments of a call: "2 arguments: files (a number), folder (a text)".
std::string demand(const std::vector<Parameter>& parameters) {
    const std::size_t count = parameters.size();
    const std::string counted = (count == 0 ? "no" : std::to_string(count)) +
                                (count == 1 ? " argument" : " arguments") +
                                (count == 0 ? "" : ": ");
    return counted + list(count, [&](std::size_t index) {
               const Parameter& parameter = parameters[index];
               const std::string name = parameter.name.empty() ? "argument " + std::to_string(index)
                                                               : std::string(parameter.name);
               return name + " (" + namesOf(parameter.kind).words + ")";
           });
}

void appendCheck(std::string& out, const std::string& condition, const std::string& words) {
    out += "    static_assert(";
    out += condition;
    out += ", \"";
    out += words;
    out += "\");\n";
}

/// Appends the overload for the right number of arguments.
void appendCall(std::string& out, const std::string& qualified, const CallSignature& signature) {
    const auto& parameters = signature.parameters;
    const std::size_t count = parameters.size();
    const std::string symbol(signature.symbol);
    if (count > 0) {
        out += "template <" +
               list(count, [](std::size_t index) { return "class " + typeParameter(index); }) +
               ">\n";
    }
    out +=
        std::string("[[nodiscard]] inline ") + streamType + " " + symbol + "(" +
        list(count,
             [&](std::size_t index) {
                 return "const " + typeParameter(index) + "& " + nameOf(parameters[index], index);
             }) +
        ") {\n";
    for (std::size_t index = 0; index < count; ++index) {
        const Parameter& parameter = parameters[index];
        std::string words = qualified + ": argument " + std::to_string(index);
        if (!parameter.name.empty()) {
            words += " (" + std::string(parameter.name) + ")";
        }
        words += std::string(" must be ") + namesOf(parameter.kind).words;
        appendCheck(out, typeOf(parameter) + "::accepts<" + typeParameter(index) + ">", words);
    }
    out += "    return ::zem::msglib::typed::stream<" +
           list(count, [&](std::size_t index) { return typeOf(parameters[index]); }) +
           ">(::" + symbol;
    for (std::size_t index = 0; index < count; ++index) {
        out += ", " + nameOf(parameters[index], index);
    }
    out += ");\n}\n";
}

/// Appends the overload for wrong calls, which never compiles.
void appendRefusal(std::string& out, const CallSignature& signature, const std::string& condition,
                   const std::string& words) {
    const std::string symbol(signature.symbol);
    out += std::string("template <class... Arguments>\n") + streamType + " " + symbol +
           "(const Arguments&...) {\n";
    appendCheck(out, condition, words);
    out += "    return ::" + symbol + ";\n}\n";
}

void appendFunction(std::string& out, const std::string& space, const CallSignature& signature) {
    const std::string qualified = space + "::" + std::string(signature.symbol);
    out += "\n";
    appendDocumentation(out, signature);
    if (!signature.refusal.empty()) {
        appendRefusal(out, signature, "::zem::msglib::typed::never<Arguments...>",
                      qualified + " " + signature.refusal);
        return;
    }
    appendCall(out, qualified, signature);
    appendRefusal(out, signature,
                  "sizeof...(Arguments) == " + std::to_string(signature.parameters.size()),
                  qualified + " takes " + demand(signature.parameters));
}

} // namespace

std::string callsHeaderText(const CatalogueName& name,
                            const std::vector<CallSignature>& signatures) {
    std::string out = "// Generated from " + name.file +
                      ": edit that file, not this one.\n"
                      "#pragma once\n\n"
                      "#include \"" +
                      name.stem +
                      ".h\"\n\n"
                      "#include <msglib/TypedCalls.h>\n\n"
                      "namespace " +
                      name.calls + " {\n";
    out.reserve(signatures.size() * usualFunctionSize);
    for (const CallSignature& signature : signatures) {
        appendFunction(out, name.calls, signature);
    }
    out += "\n} // namespace " + name.calls + "\n";
    return out;
}

} // namespace zem::msglib::tool
