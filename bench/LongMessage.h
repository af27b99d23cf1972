#pragma once

#include <boost/any.hpp>
#include <fmt/args.h>
#include <fmt/format.h>

#include <list>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// What a placeholder of a long message asks for.
enum class Kind { Text, Integer, Number, Percent, Currency };

/// One argument of a long message; its kind tells which member counts.
struct LongArgument {
    Kind kind;
    std::string text;
    int integer;
    double number;
};

/// A message of any length, in the form of each rival.
///
/// Make it piece by piece; `finish` comes last. The formatting library's store refers to the
/// arguments, so nobody copies it.
class LongMessage {
public:
    LongMessage() = default;
    LongMessage(const LongMessage&) = delete;
    LongMessage& operator=(const LongMessage&) = delete;

    /// Appends text that has no meaning to any of the rivals.
    void appendText(std::string_view text);

    /// Appends a placeholder for the next argument, which becomes one of this kind.
    void appendPlaceholder(Kind kind);

    /// Makes the lists of arguments.
    void finish();

    /// Writes the message into `out` by straight-line code, as fast as it gets.
    void write(std::string& out) const;

    std::string pattern;
    std::string fmtPattern;
    std::list<boost::any> list;
    fmt::dynamic_format_arg_store<fmt::format_context> store;

private:
    std::vector<LongArgument> arguments_;
    std::vector<std::string> texts_; // texts_[i] stands in front of arguments_[i]
    std::string lastText_;
};

} // namespace bench
