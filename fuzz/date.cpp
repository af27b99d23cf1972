// The language of dates: seconds in the first line, a pattern behind it.

#include "Properties.h"
#include "msglib/SimpleDateFormat.h"

namespace zem::msglib::fuzzing {
namespace {

Outcome dateText(const std::string& pattern, const boost::any& seconds) {
    return steadilyRendered(SimpleDateFormat(pattern, std::locale()), seconds);
}

// Two patterns in a row give both texts, if neither a run nor a quote goes on across the seam.
void checkSeam(const std::string& pattern, const boost::any& seconds, const std::string& whole) {
    const std::size_t seam = pattern.size() / 2;
    const auto quotes =
        std::count(pattern.begin(), pattern.begin() + static_cast<long>(seam), '\'');
    if (seam > 0 && quotes % 2 == 0 && pattern[seam - 1] != pattern[seam]) {
        require(dateText(pattern.substr(0, seam), seconds).first +
                        dateText(pattern.substr(seam), seconds).first ==
                    whole,
                "runs stand alone");
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
            "quoted text is itself");
    return 0;
}
