// Choice patterns. The input is a number in the first line and a pattern after it.

#include "Properties.h"
#include "msglib/ChoiceFormat.h"

#include <sstream>
#include <vector>

namespace zem::msglib::fuzzing {
namespace {

// The lines are the texts for the limits 0, 1, 2 and so on. Odd limits are exclusive.
void checkChosen(const std::string& lines, double value) {
    std::istringstream input(lines);
    std::string pattern = "0#";
    std::string chosen;
    std::string text;
    for (int limit = 0; std::getline(input, text); ++limit) {
        const bool above = limit % 2 != 0;
        if (limit > 0) {
            pattern += '|' + std::to_string(limit) + (above ? '<' : '#');
        }
        pattern += quoted(text, "|{}", "''");
        if (limit == 0 || (above ? value > limit : value >= limit)) {
            chosen = text;
        }
    }
    require(rendered(ChoiceFormat(pattern), value, "").first == chosen,
            "the limits choose the text");
}

} // namespace
} // namespace zem::msglib::fuzzing

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {"1\n", "+#<|{}'1"};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib;
    const fuzzing::Input input(data, size);
    const double value = input.number();
    ChoiceFormat format("5#former|6#pattern");
    fuzzing::compile(input.rest, value, format, ChoiceFormat("0#other"));
    fuzzing::checkChosen(input.rest, value);
    return 0;
}
