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

/// A fuzzer's target: checks what one input leads to, and ends the program on a find.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// What the fuzzers share: reading an input, and properties that hold for every formatter.
namespace zem::msglib::fuzzing {

using Arguments = std::list<boost::any>;

/// Inputs that a target has to stand one and all: up to five of the `bytes`, behind the `line`.
struct ShortInputs {
    std::string_view line;
    std::string_view bytes;
};
extern const ShortInputs shortInputs;

/// Ends the program, which is a find, unless `holds`.
inline void require(bool holds, const char* property) {
    if (!holds) {
        std::fprintf(stderr, "property violated: %s\n", property);
        std::abort();
    }
}

/// An input whose first line tells the values, and the rest the pattern.
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

/// Returns a pattern for `text`: each of the `syntax` bytes between quotes, and for a quote
/// `quoteForm`.
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

inline bool isDocumented(const std::string& words) {
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
    return documented.count(words) != 0;
}

/// Returns the words that `operation` fails with, empty if it succeeds. Any failure that is not
/// documented is a find.
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

/// A text, and the words of the failure that ended it.
using Outcome = std::pair<std::string, std::string>;

template <class Formatter, class Value>
Outcome rendered(const Formatter& formatter, const Value& value, const std::string& earlier) {
    std::string out = earlier;
    std::string failure = failureOf([&] { formatter.format(value, out); });
    require(out.compare(0, earlier.size(), earlier) == 0, "earlier bytes stay");
    return {out.substr(earlier.size()), std::move(failure)};
}

/// Renders a value, which has to come out the same behind other bytes and from a copy.
template <class Formatter, class Value>
Outcome steadilyRendered(const Formatter& formatter, const Value& value) {
    Outcome outcome = rendered(formatter, value, "");
    require(rendered(formatter, value, "1,234 {0}'") == outcome, "other bytes change nothing");
    require(rendered(Formatter(formatter), value, "") == outcome, "a copy renders the same");
    return outcome;
}

/// Compiles `pattern` in a formatter that had another one before. Even if it doesn't compile, it
/// must not matter which one that was.
///
/// @return the failure of the compilation
template <class Formatter, class Value>
std::string compile(const std::string& pattern, const Value& value, Formatter& formatter,
                    Formatter other) {
    std::string failure = failureOf([&] { formatter.applyPattern(pattern); });
    require(failureOf([&] { other.applyPattern(pattern); }) == failure, "compiles the same");
    const Outcome outcome = steadilyRendered(formatter, value);
    require(rendered(other, value, "") == outcome, "the former pattern is forgotten");
    return failure;
}

inline Outcome renderedAtOnce(const std::string& pattern, const Arguments& args) {
    std::string text;
    std::string failure =
        failureOf([&] { text = MessageLibrary::instance().formatMessage(pattern, args); });
    return {std::move(text), std::move(failure)};
}

/// Compiles and renders a message in every way there is, all with the same outcome.
inline void checkMessage(const std::string& pattern, const Arguments& args) {
    MessageFormat message("{0,number,#.00;(#)} {0,choice,0#{1}}.");
    const Outcome atOnce = renderedAtOnce(pattern, args);
    const std::string failure = compile(pattern, args, message, MessageFormat("former"));
    if (!failure.empty()) {
        require(atOnce == Outcome("", failure), "fails at once as in compiling");
        return;
    }
    const Outcome kept = rendered(message, args, "");
    message.setLocale(message.getLocale());
    require(rendered(message, args, "") == kept, "the same locale changes nothing");
    require(atOnce == (kept.second.empty() ? kept : Outcome("", kept.second)), "the same at once");
}

} // namespace zem::msglib::fuzzing
