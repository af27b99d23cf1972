// Compares the check of patterns with the library: as a message, and inside choices and styles.

#include "Properties.h"
#include "support/CheckProperties.h"

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {"", "{}',|0#E"};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib;
    const std::string bytes = fuzzing::Input(data, size).whole;
    const std::string text = bytes.substr(0, tool::validUtf8Length(bytes));
    for (const char* around : {"@", "{0,choice,0#@}", "{0,choice,0#a|1#{0,choice,0#@|1#b c}}",
                               "{0,number,@}", "{0,date,@}"}) {
        std::string pattern = around;
        pattern.replace(pattern.find('@'), 1, text);
        fuzzing::require(tool::checkViolation(pattern).empty(), "the check is as the library");
    }
    return 0;
}
