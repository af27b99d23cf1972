// The language of messages, with texts for arguments.

#include "Properties.h"

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {"", "{}',0x"};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib::fuzzing;
    const std::string text = Input(data, size).whole;
    checkMessage(text, {std::string("a"), std::string("{0}'"), std::string()});

    const std::string pattern = quoted(text, "{}", "'''");
    const Outcome expected(text + text + text, "");
    require(renderedAtOnce(pattern + "{0}" + pattern, {text}) == expected,
            "quoted text and arguments come out as they are");
    require(rendered(zem::msglib::MessageFormat(pattern + "{0}" + pattern), Arguments{text}, "") ==
                expected,
            "the same from a kept message");
    const std::string spaced = quoted(text, "", "'.");
    require(renderedAtOnce(quoted(spaced, "{}", "''"), {}) == Outcome(spaced, ""),
            "two quotes are one");
    return 0;
}
