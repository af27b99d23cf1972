// Message patterns with arguments of all kinds. The input is a line of arguments, separated by "|"
// and each after a letter for its kind, and a pattern after it.

#include "Properties.h"
#include "msglib/MessageFormatStream.h"

#include <geom/Angle.h>

#include <sstream>
#include <type_traits>

namespace zem::msglib::fuzzing {
namespace {

// Calls `sink` with the argument that `kind` and `text` describe, in its own type.
template <class Sink>
void readArgument(char kind, const std::string& text, const Sink& sink) {
    const long long integer = std::strtoll(text.c_str(), nullptr, 10);
    const double number = std::strtod(text.c_str(), nullptr);
    switch (kind) {
    case 's': sink(static_cast<short>(integer)); return;
    case 'S': sink(static_cast<unsigned short>(integer)); return;
    case 'i': sink(static_cast<int>(integer)); return;
    case 'I': sink(static_cast<unsigned int>(integer)); return;
    case 'l': sink(static_cast<long>(integer)); return;
    case 'L': sink(static_cast<unsigned long>(integer)); return;
    case 'q': sink(integer); return;
    case 'Q': sink(static_cast<unsigned long long>(integer)); return;
    case 'b': sink(integer != 0); return;
    case 'f': sink(std::strtof(text.c_str(), nullptr)); return;
    case 'd': sink(number); return;
    case 'a': sink(geom::Angle(number)); return;
    case 'c': sink(kind); return;
    case 'e': sink(boost::any()); return;
    default: sink(text);
    }
}

// True for the types that a stream stores unchanged.
template <class Value>
constexpr bool isStreamed = std::is_same_v<Value, std::string> || std::is_same_v<Value, double> ||
                            (std::is_integral_v<Value> && sizeof(Value) >= sizeof(int));

// The same arguments in a list and, if their types allow it, in a stream.
struct BothWays {
    explicit BothWays(const std::string& pattern) : stream(pattern.c_str()) {}

    void add(const std::string& argument) {
        const char kind = argument.empty() ? 't' : argument.front();
        readArgument(kind, argument.substr(argument.empty() ? 0 : 1), [this](const auto& value) {
            args.emplace_back(value);
            if constexpr (isStreamed<std::decay_t<decltype(value)>>) {
                streamed = streamed && failureOf([&] { stream << value; }).empty();
            } else {
                streamed = false;
            }
        });
    }

    Arguments args;
    MessageFormatStream stream;
    bool streamed = true;
};

Outcome streamText(const MessageFormatStream& stream) {
    std::string text;
    std::string failure = failureOf([&] { text = stream.toString(); });
    return {std::move(text), std::move(failure)};
}

void checkStream(const MessageFormatStream& stream, const Outcome& expected) {
    MessageFormatStream joined("'{'");
    joined << stream;
    require(streamText(MessageFormatStream(stream)) == expected,
            "a copied stream renders the same");
    require(streamText(stream) == expected, "a stream renders the same");
    require(streamText(joined) ==
                Outcome(expected.second.empty() ? "{" + expected.first : "", expected.second),
            "a joined stream appends the same");
}

} // namespace
} // namespace zem::msglib::fuzzing

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {"i7|tx\n", "{}1,d"};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib::fuzzing;
    const Input input(data, size);
    BothWays message(input.rest);
    std::istringstream line(input.line);
    for (std::string argument; std::getline(line, argument, '|');) {
        message.add(argument);
    }
    checkMessage(input.rest, message.args);
    if (message.streamed) {
        checkStream(message.stream,
                    directlyRendered(input.rest.substr(0, input.rest.find('\0')), message.args));
    }
    return 0;
}
