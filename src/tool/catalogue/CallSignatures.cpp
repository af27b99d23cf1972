#include "tool/catalogue/CallSignatures.h"

#include "tool/catalogue/CommentDirectives.h"
#include "tool/catalogue/ReservedNames.h"
#include "tool/pattern/PatternTree.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Names.h"
#include "tool/text/Strings.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <set>

// The messages of a catalogue go in, the signatures of their typed calls come out. The text of a
// message decides which arguments its function has: `PatternTree` reads the text, and each
// placeholder adds what it asks of its argument. Then the comments of the message add names and
// descriptions, and narrow kinds. A comment that contradicts the text is reported and has no
// effect, so a function fits its message whatever the comments contain.

namespace zem::msglib::tool {

namespace {

// Compilers accept functions with more parameters, but such a call would be unreadable.
constexpr int mostArguments = 100;

/// What is known about one identifier from all of its heads.
struct MessageFacts {
    std::optional<Place> pattern; ///< in the language that is looked up
    std::vector<Place> comments;
};

/// Returns the kind that a placeholder asks for.
ValueKind kindOf(const Placeholder& placeholder) {
    switch (placeholder.kind) {
    case PlaceholderKind::Number:
    case PlaceholderKind::DecimalStyle:
    case PlaceholderKind::Choice: return ValueKind::number;
    case PlaceholderKind::Date:
    case PlaceholderKind::DateStyle: return ValueKind::time;
    default: return ValueKind::any;
    }
}

/// Returns the kind of an argument that two placeholders ask for.
ValueKind both(ValueKind one, ValueKind other) {
    if (one == other || other == ValueKind::any) {
        return one;
    }
    return one == ValueKind::any ? other : ValueKind::numberAndTime;
}

std::optional<ValueKind> kindOf(std::string_view word) {
    static const std::map<std::string_view, ValueKind> kinds = {{"text", ValueKind::text},
                                                                {"number", ValueKind::number},
                                                                {"time", ValueKind::time},
                                                                {"any", ValueKind::any}};
    const auto found = kinds.find(word);
    return found == kinds.end() ? std::nullopt : std::optional(found->second);
}

/// Returns whether a comment may declare a parameter as `said` if the text uses it as `used`.
bool fits(ValueKind said, ValueKind used) {
    return used == ValueKind::any || used == said ||
           (used == ValueKind::numberAndTime &&
            (said == ValueKind::number || said == ValueKind::time));
}

/// Returns what to write in a comment if the text uses the argument as `used`, which is not `any`.
const char* adviceFor(ValueKind used) {
    switch (used) {
    case ValueKind::number: return "write number";
    case ValueKind::time: return "write time";
    default: return "write number or time";
    }
}

/// Returns whether a word can name a parameter. Names like `argument0` are reserved for parameters
/// without a name.
bool isParameterName(std::string_view word) {
    constexpr std::string_view generated = "argument";
    const bool isGenerated =
        word.size() > generated.size() &&
        equalInAnyCase(word.substr(0, generated.size()), generated) &&
        word.find_first_not_of("0123456789", generated.size()) == std::string_view::npos;
    return isIdentifier(word) && !isKeywordOfCpp(word) && !isMacroOfC(word) &&
           !isReservedForCompilers(word) && !isGenerated;
}

/// Adds names, kinds and descriptions from the comments of a message to its parameters.
class AnnotationReader {
public:
    AnnotationReader(std::vector<Parameter>& parameters, Diagnostics& diagnostics)
        : parameters_(parameters),
          diagnostics_(diagnostics) {}

    void read(Place comment) {
        Place rest = contentOf(comment);
        const Place keyword = takeWord(rest);
        const Place index = takeWord(rest);
        if (Parameter* const parameter = find(index.length > 0 ? index : keyword)) {
            readName(takeWord(rest), index, *parameter);
            readKind(takeWord(rest), *parameter);
            parameter->description = trimmed(rest.text());
        }
    }

private:
    Parameter* find(const Place& index);
    void readName(const Place& name, const Place& index, Parameter& parameter);
    void readKind(const Place& kind, Parameter& parameter);

    void report(const Place& place, std::string message, std::vector<Note> notes = {}) {
        diagnostics_.report(rules::argumentAnnotation, place, std::move(message), std::move(notes));
    }

    std::vector<Parameter>& parameters_;
    Diagnostics& diagnostics_;
    std::set<std::size_t> described_;
    std::set<std::string_view> names_;
};

/// Returns the parameter that an annotation is about; null if that has been reported.
Parameter* AnnotationReader::find(const Place& index) {
    const std::string_view digits = index.text();
    std::size_t value = std::string_view::npos; // unchanged if the number is out of range
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::invalid_argument || end != digits.data() + digits.size()) {
        report(index, "the index of an argument is missing",
               {{"write @arg, index, name, kind and description, as in "
                 "\"@arg 0 files number How many were copied\""}});
    } else if (value >= parameters_.size()) {
        report(
            index, "the message has no argument " + std::string(digits),
            {{"its text in English (United States) uses " +
              (parameters_.empty() ? "none" : "0 to " + std::to_string(parameters_.size() - 1))}});
    } else if (!described_.insert(value).second) {
        report(index, "argument " + std::string(digits) + " already has such a comment");
    } else {
        return &parameters_[value];
    }
    return nullptr;
}

void AnnotationReader::readName(const Place& name, const Place& index, Parameter& parameter) {
    if (name.length == 0) {
        report(index, "the name of argument " + std::string(index.text()) + " is missing");
    } else if (!isParameterName(name.text())) {
        report(name, code(name.text()) + " cannot be the name of a parameter");
    } else if (!names_.insert(name.text()).second) {
        report(name, "another argument of the message has this name");
    } else {
        parameter.name = name.text();
    }
}

void AnnotationReader::readKind(const Place& kind, Parameter& parameter) {
    const std::optional<ValueKind> said = kindOf(kind.text());
    if (kind.length == 0) {
        return;
    }
    if (!said) {
        report(kind, code(kind.text()) + " is not a kind of argument",
               {{"the kinds are text, number, time and any"}});
    } else if (!fits(*said, parameter.kind)) {
        report(kind, "the text does not use this argument as " + std::string(kind.text()),
               {{adviceFor(parameter.kind)}});
    } else if (parameter.kind == ValueKind::any) {
        parameter.kind = *said;
    }
}

/// Adds to a signature the parameters that its text uses, or the reason why it cannot be called.
void readParameters(const PatternTree& tree, CallSignature& signature) {
    for (const PatternText& text : tree.texts()) {
        if (!text.errors.empty()) { // the pattern checks report them
            signature.refusal = "has a text that does not compile";
            return;
        }
        for (const Placeholder& placeholder : text.placeholders) {
            if (placeholder.index >= mostArguments) {
                signature.refusal = "uses argument " + std::to_string(placeholder.index) +
                                    ", and a call has " + std::to_string(mostArguments) +
                                    " arguments at most";
                return;
            }
            if (placeholder.index >= 0) { // no argument has a negative index
                const auto index = static_cast<std::size_t>(placeholder.index);
                auto& parameters = signature.parameters;
                parameters.resize(std::max(parameters.size(), index + 1));
                parameters[index].kind = both(parameters[index].kind, kindOf(placeholder));
            }
        }
    }
}

CallSignature readSignature(const MessageFacts& facts, Diagnostics& diagnostics) {
    if (!facts.pattern) {
        CallSignature signature;
        signature.refusal = "has no text in English (United States)";
        return signature;
    }
    CallSignature signature = tool::readSignature(*facts.pattern);
    if (signature.refusal.empty()) {
        AnnotationReader annotations(signature.parameters, diagnostics);
        for (const Place& comment : facts.comments) {
            if (isAnnotation(comment)) {
                annotations.read(comment);
            }
        }
    }
    return signature;
}

/// Collects the text and the comments of each identifier from all of its heads: a message may have
/// one head for each language.
std::map<std::uint32_t, MessageFacts> collectFacts(const Catalogue& catalogue) {
    std::map<std::uint32_t, MessageFacts> facts;
    for (const Message& message : catalogue.messages) {
        if (!message.isIdentified) {
            continue;
        }
        MessageFacts& known = facts[message.id];
        known.comments.insert(known.comments.end(), message.comments.begin(),
                              message.comments.end());
        for (const MessageText& text : message.texts) {
            if (text.language == lookedUpLanguage) {
                known.pattern = text.pattern;
            }
        }
    }
    return facts;
}

} // namespace

const char* nameOf(ValueKind kind) noexcept {
    switch (kind) {
    case ValueKind::text: return "text";
    case ValueKind::number: return "number";
    case ValueKind::time: return "time";
    case ValueKind::numberAndTime: return "number and time";
    case ValueKind::any: break;
    }
    return "any";
}

CallSignature readSignature(const Place& pattern) {
    CallSignature signature;
    signature.text = pattern.text();
    readParameters(PatternTree(pattern), signature);
    return signature;
}

std::map<std::uint32_t, CallSignature> readSignaturesById(const Catalogue& catalogue,
                                                          Diagnostics& diagnostics) {
    std::map<std::uint32_t, CallSignature> byId;
    for (const auto& [id, facts] : collectFacts(catalogue)) {
        byId.emplace(id, readSignature(facts, diagnostics));
    }
    return byId;
}

std::vector<CallSignature> readSignatures(const Catalogue& catalogue, Diagnostics& diagnostics) {
    const auto byId = readSignaturesById(catalogue, diagnostics);
    std::vector<CallSignature> signatures;
    std::set<std::string_view> symbols;
    for (const Message& message : catalogue.messages) {
        if (message.isIdentified && message.symbol.file != nullptr &&
            symbols.insert(message.symbol.text()).second) {
            signatures.push_back(byId.at(message.id));
            signatures.back().symbol = message.symbol.text();
        }
    }
    return signatures;
}

} // namespace zem::msglib::tool
