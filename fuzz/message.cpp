// Message patterns, with text arguments. The whole input is the pattern.

#include "Properties.h"

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {"", "{}',0x"};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib::fuzzing;
    const std::string text = Input(data, size).whole;
    checkMessage(text, {std::string("a"), std::string("{0}'"), std::string()});

    const std::string pattern = quoted(text, "{}", "'''");
    const Outcome expected(text + text + text, "");
    require(directlyRendered(pattern + "{0}" + pattern, {text}) == expected,
            "quoted text and arguments are appended unchanged");
    require(rendered(zem::msglib::MessageFormat(pattern + "{0}" + pattern), Arguments{text}, "") ==
                expected,
            "a compiled message gives the same");
    const std::string spaced = quoted(text, "", "'.");
    require(directlyRendered(quoted(spaced, "{}", "''"), {}) == Outcome(spaced, ""),
            "two apostrophes are one");
    return 0;
}
