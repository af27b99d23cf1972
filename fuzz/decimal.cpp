// Decimal patterns. The input is a number in the first line and a pattern after it.

#include "Properties.h"
#include "msglib/DecimalFormat.h"
#include "support/PlainDecimal.h"

namespace zem::msglib::fuzzing {
namespace {

void checkPattern(const std::string& pattern, double value) {
    DecimalFormat format("(#,000.00##E000%;[#]", {});
    compile(pattern, value, format, DecimalFormat("0", {}));
    const Outcome outcome = rendered(format, value, "");
    require(outcome.second.empty(), "a number never fails");
    require(rendered(format, boost::any(value), "") == outcome, "the same as an argument");
}

// Makes the fields of a pattern from the bytes of a text: six counts, then the prefix.
PlainDecimal fieldsFrom(std::string bytes) {
    bytes.resize(std::max<std::size_t>(bytes.size(), 6));
    const auto count = [&](std::size_t at, int most) {
        return static_cast<unsigned char>(bytes[at]) % (most + 1);
    };
    const int zeros = count(2, 20);
    return {bytes.substr(6),
            "",
            "(",
            ")",
            count(5, 1) * 99 + 1,
            count(1, 12),
            count(0, 40),
            zeros,
            zeros + count(3, 20),
            count(4, 5) - 1};
}

std::string marks(int count, char mark) {
    return std::string(static_cast<std::size_t>(count), mark);
}

std::string patternOf(const PlainDecimal& fields) {
    const int places = std::max(fields.minimumIntegerDigits, fields.groupingSize + 1);
    std::string integer =
        marks(places - fields.minimumIntegerDigits, '#') + marks(fields.minimumIntegerDigits, '0');
    if (fields.groupingSize > 0) {
        integer.insert(static_cast<std::size_t>(places - fields.groupingSize), ",");
    }
    std::string pattern = quoted(fields.prefix, ".,#0E;%\xA4", "''") + integer + '.' +
                          marks(fields.minimumFractionDigits, '0') +
                          marks(fields.maximumFractionDigits - fields.minimumFractionDigits, '#');
    if (fields.minimumExponentDigits >= 0) {
        pattern += 'E' + marks(fields.minimumExponentDigits, '0');
    }
    return pattern + (fields.multiplier == 100 ? "%;(#)" : ";(#)");
}

void checkFields(PlainDecimal fields, double value) {
    const DecimalFormat format(patternOf(fields), {});
    fields.suffix += fields.multiplier == 100 ? "%" : "";
    require(fields.isText(rendered(format, value, "").first, value),
            "agrees with exact arithmetic");
    if (fields.minimumExponentDigits < 0 && value >= INT32_MIN && value <= INT32_MAX) {
        const long whole = static_cast<long>(value);
        fields.multiplier = 1;
        fields.maximumFractionDigits = fields.minimumFractionDigits;
        require(rendered(format, whole, "").first == fields.text(static_cast<double>(whole)),
                "a whole number agrees with exact arithmetic");
    }
}

} // namespace
} // namespace zem::msglib::fuzzing

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {"-1234.5\n",
                                                                             ".,#0E;%\xA4'x"};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib::fuzzing;
    const Input input(data, size);
    const double value = input.number();
    checkPattern(input.rest, value);
    checkFields(fieldsFrom(input.rest), value);
    return 0;
}
