#include "msglib/ChoiceFormat.h"
#include "msglib/DecimalFormat.h"
#include "support/Rendering.h"

#include <geom/Angle.h>

#include <climits>
#include <cstdint>
#include <stdexcept>
#include <utility>

namespace zem::msglib {
namespace {

using Setter = void (NumberFormat::*)(int);
using Step = std::pair<Setter, int>;

const Setter maxInt = &NumberFormat::setMaximumIntegerDigits;
const Setter minInt = &NumberFormat::setMinimumIntegerDigits;
const Setter maxFrac = &NumberFormat::setMaximumFractionDigits;
const Setter minFrac = &NumberFormat::setMinimumFractionDigits;

TEST(NumberFormat, SettersDragTheirPartnersAlong) {
    struct {
        int line;
        const char* pattern;
        Step first, second;
        const char* form; ///< and the text of the whole number 7
    } const rows[] = {
        {__LINE__, "#,##0", {maxInt, 9}, {maxInt, 4}, "1-4.0-0, | 0 | 4,568 | -1,235 | 7"},
        {__LINE__, "0", {maxInt, 1}, {maxInt, 0}, "0-0.0-0 |  |  | - | "},
        {__LINE__, "0", {maxInt, 3}, {minInt, 5}, "5-5.0-0 | 00000 | 34568 | -01235 | 00007"},
        {__LINE__, "0", {minInt, 5}, {maxInt, 3}, "3-3.0-0 | 000 | 568 | -235 | 007"},
        {__LINE__, "0", {maxFrac, 3}, {minFrac, 1}, "1.1-3 | 0.0 | 1234567.891 | -1234.5 | 7.0"},
        {__LINE__, "0", {maxFrac, 1}, {minFrac, 2}, "1.2-2 | 0.00 | 1234567.89 | -1234.50 | 7.00"},
        {__LINE__, "0", {minFrac, 2}, {maxFrac, 1}, "1.1-1 | 0.0 | 1234567.9 | -1234.5 | 7.0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const DecimalFormat original(row.pattern, {});
        const std::string before = dump(original);
        DecimalFormat changed = original;
        for (const auto& [setter, value] : {row.first, row.second}) {
            (changed.*setter)(value);
        }
        EXPECT_EQ(dump(changed) + " | " + textOf(changed, 7L), row.form);
        changed.applyPattern(row.pattern);
        EXPECT_EQ(dump(changed), before);
        EXPECT_EQ(dump(original), before);
    }
}

TEST(NumberFormat, ReadsEveryKindOfNumberAsDouble) {
    struct {
        int line;
        boost::any value;
        const char* text;
    } const rows[] = {
        {__LINE__, static_cast<short>(-32768), "-3,276,800%"},
        {__LINE__, -5, "-500%"},
        {__LINE__, -2147483647L - 1, "-214,748,364,800%"},
        {__LINE__, -9007199254740993LL, "-900,719,925,474,099,200%"},
        {__LINE__, static_cast<unsigned short>(65535), "6,553,500%"},
        {__LINE__, 4294967295U, "429,496,729,500%"},
        {__LINE__, 4294967295UL, "429,496,729,500%"},
        {__LINE__, 0x8000000000000000ULL, "922,337,203,685,477,602,800%"},
        {__LINE__, true, "100%"},
        {__LINE__, 0.1F, "10.0000001%"},
        {__LINE__, -0.1, "-10%"},
        {__LINE__, geom::Angle(3.141592653589793), "18,000%"},
    };
    DecimalFormat format("#,##0.#######%", {});
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(textOf(format, row.value), row.text);
        EXPECT_EQ(static_cast<Format&>(format).format(row.value), row.text);
    }
}

const DecimalFormat decimal("(0)", {});
const DecimalFormat exponential("(0E0)", {});
const ChoiceFormat choice("0#a");
const NumberFormat* const formats[] = {&decimal, &exponential, &choice};

TEST(NumberFormat, OtherKindsFailAndWriteNothing) {
    const boost::any values[] = {boost::any(),
                                 std::string("12"),
                                 'x',
                                 static_cast<const char*>("12"),
                                 static_cast<unsigned char>(1),
                                 1.0L};
    for (const boost::any& value : values) {
        SCOPED_TRACE(value.type().name());
        for (const NumberFormat* format : formats) {
            std::string out = "kept";
            EXPECT_EQ(failureOf([&] { format->format(value, out); }), "Argument is not a number.");
            EXPECT_EQ(out, "kept");
        }
    }
}

TEST(NumberFormat, LongBeyond32BitsFails) {
    if constexpr (sizeof(long) > sizeof(std::int32_t)) {
        for (const NumberFormat* format : formats) {
            std::string out = "kept";
            for (const long long wide : {2147483648LL, -2147483649LL, LLONG_MAX, LLONG_MIN}) {
                const auto value = static_cast<long>(wide);
                EXPECT_THROW(format->format(value, out), std::out_of_range);
                EXPECT_THROW(format->format(boost::any(value), out), std::out_of_range);
            }
            for (const unsigned long long wide : {4294967296ULL, ULLONG_MAX}) {
                const auto value = static_cast<unsigned long>(wide);
                EXPECT_THROW(format->format(boost::any(value), out), std::out_of_range);
            }
            EXPECT_EQ(out, "kept");
        }
    }
}

} // namespace
} // namespace zem::msglib
