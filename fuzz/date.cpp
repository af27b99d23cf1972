// Date patterns. The input is a number of seconds in the first line and a pattern after it.

#include "Properties.h"
#include "msglib/SimpleDateFormat.h"

namespace zem::msglib::fuzzing {
namespace {

Outcome dateText(const std::string& pattern, const boost::any& seconds) {
    return steadilyRendered(SimpleDateFormat(pattern, std::locale()), seconds);
}

// Two halves of a pattern give the two halves of its text, unless the seam is inside a run or
// quoted text.
void checkSeam(const std::string& pattern, const boost::any& seconds, const std::string& whole) {
    const std::size_t seam = pattern.size() / 2;
    const auto quotes =
        std::count(pattern.begin(), pattern.begin() + static_cast<long>(seam), '\'');
    if (seam > 0 && quotes % 2 == 0 && pattern[seam - 1] != pattern[seam]) {
        require(dateText(pattern.substr(0, seam), seconds).first +
                        dateText(pattern.substr(seam), seconds).first ==
                    whole,
                "runs are independent");
    }
}

} // namespace
} // namespace zem::msglib::fuzzing

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {"1e9\n", "dyh'x"};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib;
    using namespace zem::msglib::fuzzing;
    const Input input(data, size);
    const double value = input.number();
    SimpleDateFormat format("former", std::locale());
    compile(input.rest, boost::any(value), format, SimpleDateFormat("", std::locale()));
    const Outcome outcome = rendered(format, boost::any(value), "");
    require(outcome.second.empty(), "a number never fails");
    checkSeam(input.rest, value, outcome.first);
    require(dateText("'" + quoted(input.rest, "", "''") + "'", value).first == input.rest,
            "quoted text is appended unchanged");
    return 0;
}
