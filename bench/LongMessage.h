#pragma once

#include <boost/any.hpp>
#include <fmt/args.h>
#include <fmt/format.h>

#include <list>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// The kinds of placeholders in a long message.
enum class Kind { Text, Integer, Number, Percent, Currency };

/// One argument of a long message. Its kind determines which member is used.
struct LongArgument {
    Kind kind;
    std::string text;
    int integer;
    double number;
};

/// A message of any length, in the form of each rival.
///
/// Call `appendText` and `appendPlaceholder` in any order and `finish` at the end. Not copyable:
/// {fmt}'s argument store refers to the arguments.
class LongMessage {
public:
    LongMessage() = default;
    LongMessage(const LongMessage&) = delete;
    LongMessage& operator=(const LongMessage&) = delete;

    /// Appends text that isn't syntax for any rival.
    void appendText(std::string_view text);

    /// Appends a placeholder for a new argument of this kind.
    void appendPlaceholder(Kind kind);

    /// Makes the lists of arguments.
    void finish();

    /// Appends the message to `out` without any pattern, as a lower bound for all rivals.
    void write(std::string& out) const;

    std::string pattern;
    std::string fmtPattern;
    std::list<boost::any> list;
    fmt::dynamic_format_arg_store<fmt::format_context> store;

private:
    std::vector<LongArgument> arguments_;
    std::vector<std::string> texts_; // texts_[i] comes before arguments_[i]
    std::string lastText_;
};

} // namespace bench
