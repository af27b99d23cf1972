#pragma once

#include "msglib/MessageFormat.h"
#include "msglib/MessageLibrary.h"

#include <boost/any.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <list>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

/// The entry point of a fuzzer: checks the properties for one input and aborts if one is violated.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Shared by the fuzzers: reading an input, and properties that hold for every formatter.
namespace zem::msglib::fuzzing {

using Arguments = std::list<boost::any>;

/// Inputs that the replay program generates: the `line`, followed by every text of up to five of
/// the `bytes`.
struct ShortInputs {
    std::string_view line;
    std::string_view bytes;
};
extern const ShortInputs shortInputs;

/// Aborts the program unless `holds`.
inline void require(bool holds, const char* property) {
    if (!holds) {
        std::fprintf(stderr, "property violated: %s\n", property);
        std::abort();
    }
}

/// An input: the values in the first line, the pattern after it.
struct Input {
    Input(const std::uint8_t* data, std::size_t size) : whole(data, data + size) {
        const std::size_t end = std::min(whole.find('\n'), size);
        line = whole.substr(0, end);
        rest = whole.substr(std::min(end + 1, size));
    }

    double number() const { return std::strtod(line.c_str(), nullptr); }

    std::string whole;
    std::string line;
    std::string rest;
};

/// Returns a pattern for `text`: each of the `syntax` bytes is quoted, and each apostrophe is
/// replaced by `quoteForm`.
inline std::string quoted(const std::string& text, std::string_view syntax,
                          std::string_view quoteForm) {
    std::string pattern;
    for (const char c : text) {
        const bool isSyntax = syntax.find(c) != std::string_view::npos;
        pattern += c == '\''  ? std::string(quoteForm)
                   : isSyntax ? std::string{'\'', c, '\''}
                              : std::string(1, c);
    }
    return pattern;
}

inline bool isDocumented(const std::string& message) {
    static const std::set<std::string> documented = {
        "unexpected closing brace",
        "Illegal argument in format string",
        "Argument index in format exceeds number of specified arguments",
        "style_ required for choice format",
        "Syntax error in choice format.",
        "Argument is not a number.",
        "Invalid date argument type",
        "separator character expected",
        "end of pattern expected",
        "multiplier already set",
        "zero mark following digit",
        "digit mark (#) following zero-index",
        "digit mark (#) following zero in exponent"};
    return documented.count(message) != 0;
}

/// Returns the text of the failure of `operation`, or nothing if it succeeds. An undocumented
/// failure violates a property.
template <class Operation>
std::string failureOf(const Operation& operation) {
    try {
        operation();
    } catch (const std::out_of_range& failure) {
        require(failure.what() == std::string("Value of type long is outside its 32-bit range"),
                "a long is out of range");
        return failure.what();
    } catch (const std::runtime_error& failure) {
        require(isDocumented(failure.what()), "failure is documented");
        return failure.what();
    }
    return {};
}

/// A text, and the text of the failure that ended it.
using Outcome = std::pair<std::string, std::string>;

template <class Formatter, class Value>
Outcome rendered(const Formatter& formatter, const Value& value, const std::string& earlier) {
    std::string out = earlier;
    std::string failure = failureOf([&] { formatter.format(value, out); });
    require(out.compare(0, earlier.size(), earlier) == 0, "earlier bytes are kept");
    return {out.substr(earlier.size()), std::move(failure)};
}

/// Renders a value. The text must be the same after other bytes and from a copy.
template <class Formatter, class Value>
Outcome steadilyRendered(const Formatter& formatter, const Value& value) {
    Outcome outcome = rendered(formatter, value, "");
    require(rendered(formatter, value, "1,234 {0}'") == outcome, "other bytes change nothing");
    require(rendered(Formatter(formatter), value, "") == outcome, "a copy renders the same");
    return outcome;
}

/// Compiles `pattern` in a formatter that had another pattern before. The former pattern must not
/// matter, even if `pattern` doesn't compile.
///
/// @return the failure of compiling
template <class Formatter, class Value>
std::string compile(const std::string& pattern, const Value& value, Formatter& formatter,
                    Formatter other) {
    std::string failure = failureOf([&] { formatter.applyPattern(pattern); });
    require(failureOf([&] { other.applyPattern(pattern); }) == failure, "compiles the same");
    const Outcome outcome = steadilyRendered(formatter, value);
    require(rendered(other, value, "") == outcome, "the former pattern is forgotten");
    return failure;
}

inline Outcome directlyRendered(const std::string& pattern, const Arguments& args) {
    std::string text;
    std::string failure =
        failureOf([&] { text = MessageLibrary::instance().formatMessage(pattern, args); });
    return {std::move(text), std::move(failure)};
}

/// Compiles and renders a message in every way. All must have the same outcome.
inline void checkMessage(const std::string& pattern, const Arguments& args) {
    MessageFormat message("{0,number,#.00;(#)} {0,choice,0#{1}}.");
    const Outcome direct = directlyRendered(pattern, args);
    const std::string failure = compile(pattern, args, message, MessageFormat("former"));
    if (!failure.empty()) {
        require(direct == Outcome("", failure), "rendering directly fails as compiling does");
        return;
    }
    const Outcome kept = rendered(message, args, "");
    message.setLocale(message.getLocale());
    require(rendered(message, args, "") == kept, "the same locale changes nothing");
    require(direct == (kept.second.empty() ? kept : Outcome("", kept.second)),
            "rendering directly gives the same");
}

} // namespace zem::msglib::fuzzing
