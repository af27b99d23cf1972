#include "message/PlaceholderStyle.h"

#include "base/Argument.h"
#include "base/Compiler.h"
#include "base/TextOutput.h"
#include "date/DateText.h"
#include "date/LocaleDatePattern.h"
#include "message/FormatElement.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/DecimalFormat.h"
#include "msglib/SimpleDateFormat.h"
#include "number/DecimalForm.h"
#include "number/LocaleNumber.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

// One table of type and style keywords. Each row has a function that builds the formatter for a
// compiled message and one that appends an argument directly; both give the same text. The sections
// before it define these functions by type.

namespace zem::msglib {

namespace {

// A text of four to eight bytes, the length of all keywords, as its first and its last word, which
// may overlap: comparing two takes a few instructions. Of shorter and longer texts only the size is
// kept, and no keyword but the empty one has such a size.
class Keyword {
public:
    constexpr explicit Keyword(std::string_view text) noexcept : size_(text.size()) {
        if (text.size() >= 4 && text.size() <= 8) {
            front_ = wordAt(text, 0);
            back_ = wordAt(text, text.size() - 4);
        }
    }

    constexpr bool operator==(const Keyword& other) const noexcept {
        return front_ == other.front_ && back_ == other.back_ && size_ == other.size_;
    }

private:
    static constexpr std::uint32_t wordAt(std::string_view text, std::size_t position) noexcept {
        const auto byte = [&](std::size_t offset) -> std::uint32_t {
            return static_cast<unsigned char>(text[position + offset]);
        };
        return byte(0) | byte(1) << 8 | byte(2) << 16 | byte(3) << 24;
    }

    std::uint32_t front_ = 0;
    std::uint32_t back_ = 0;
    std::size_t size_;
};

// Numbers.

std::shared_ptr<DecimalFormat> makeNumber(NumberFormat::FormatType type,
                                          const std::locale& locale) {
    return std::make_shared<DecimalFormat>(LocaleNumber(type).pattern(),
                                           DecimalFormatSymbols(locale));
}

template <NumberFormat::FormatType type>
void buildNumber(FormatElement& element, const std::locale& locale) {
    element.format_ = makeNumber(type, locale);
}

// Not inline, so that text arguments don't pay for the stack frame of locale values.
template <NumberFormat::FormatType type>
MSGLIB_NOINLINE void appendNumber(std::string_view, const boost::any& argument, TextOutput& out) {
    LocaleNumber(type).appendArgument(argument, out);
}

void buildRounded(FormatElement& element, const std::locale& locale) {
    const auto number = makeNumber(NumberFormat::Number, locale);
    number->setMaximumFractionDigits(0);
    element.format_ = number;
}

void appendRounded(std::string_view, const boost::any& argument, TextOutput& out) {
    LocaleNumber::rounded().appendArgument(argument, out);
}

// After a failure, the element has the formatter with the parts that were compiled.
void buildCustomNumber(FormatElement& element, const std::locale& locale) {
    const auto number = makeNumber(NumberFormat::Number, locale);
    element.format_ = number;
    number->applyPattern(element.style_);
}

// The locale doesn't affect the text, and copying the classic one needs no lock.
void appendCustomNumber(std::string_view style, const boost::any& argument, TextOutput& out) {
    const DecimalFormat format(std::string{style}, DecimalFormatSymbols(std::locale::classic()));
    DecimalForm(format).appendArgument(argument, out);
}

// Dates and times.

void buildDate(FormatElement& element, std::string pattern, const std::locale& locale) {
    element.format_ = std::make_shared<SimpleDateFormat>(std::move(pattern), locale);
}

template <DateFormat::Style style>
void buildLocaleDate(FormatElement& element, const std::locale& locale) {
    buildDate(element, std::string(LocaleDatePattern(style).text()), locale);
}

template <DateFormat::Style style>
void appendLocaleDate(std::string_view, const boost::any& argument, TextOutput& out) {
    appendDate(LocaleDatePattern(style).text(), argument, out);
}

void buildTime(FormatElement& element, const std::locale& locale) {
    buildDate(element, std::string(LocaleDatePattern::time().text()), locale);
}

void appendTime(std::string_view, const boost::any& argument, TextOutput& out) {
    appendDate(LocaleDatePattern::time().text(), argument, out);
}

void buildCustomDate(FormatElement& element, const std::locale& locale) {
    buildDate(element, element.style_, locale);
}

// Choices.

void buildChoice(FormatElement& element, const std::locale&) {
    if (element.style_.empty()) {
        raise(Failure::ChoiceStyleMissing);
    }
    element.format_ = std::make_shared<ChoiceFormat>(element.style_);
}

// Other types.

void appendWithoutType(std::string_view, const boost::any& argument, TextOutput& out) {
    appendByKind(argument, out);
}

struct Row {
    constexpr Row(std::string_view typeWord, std::string_view styleWord,
                  PlaceholderStyle functions) noexcept
        : type(typeWord),
          style(styleWord),
          formatter(functions) {}

    Keyword type;
    Keyword style;
    PlaceholderStyle formatter;
};

// Matches any style; its row comes after the keywords of the type.
constexpr std::string_view custom = "*";

constexpr PlaceholderStyle mediumDate = {buildLocaleDate<DateFormat::Medium>,
                                         appendLocaleDate<DateFormat::Medium>};
constexpr PlaceholderStyle longDate = {buildLocaleDate<DateFormat::Long>,
                                       appendLocaleDate<DateFormat::Long>};
constexpr PlaceholderStyle customDate = {buildCustomDate, appendDate};

constexpr Row rows[] = {
    {"number", "", {buildNumber<NumberFormat::Number>, appendNumber<NumberFormat::Number>}},
    {"number", "integer", {buildRounded, appendRounded}},
    {"number",
     "currency",
     {buildNumber<NumberFormat::Currency>, appendNumber<NumberFormat::Currency>}},
    {"number",
     "percent",
     {buildNumber<NumberFormat::Percent>, appendNumber<NumberFormat::Percent>}},
    {"number", custom, {buildCustomNumber, appendCustomNumber}},
    {"choice", custom, {buildChoice, nullptr}},
    {"date", "", mediumDate},
    {"date", "short", {buildLocaleDate<DateFormat::Short>, appendLocaleDate<DateFormat::Short>}},
    {"date", "medium", mediumDate},
    {"date", "long", longDate},
    {"date", "full", longDate},
    {"date", custom, customDate},
    {"time", "", {buildTime, appendTime}},
    {"time", custom, customDate},
};

constexpr PlaceholderStyle withoutType = {nullptr, appendWithoutType};

} // namespace

const PlaceholderStyle& PlaceholderStyle::of(std::string_view type,
                                             std::string_view style) noexcept {
    const Keyword wantedType(type);
    const Keyword wantedStyle(style);
    for (const Row& row : rows) {
        if (row.type == wantedType && (row.style == wantedStyle || row.style == Keyword(custom))) {
            return row.formatter;
        }
    }
    return withoutType;
}

void appendByKind(const boost::any& argument, TextOutput& out) {
    switch (kindOf(argument)) {
    case ArgumentKind::Text: out.append(heldValue<std::string>(argument)); return;
    case ArgumentKind::Float:
    case ArgumentKind::Double: appendNumber<NumberFormat::Number>({}, argument, out); return;
    case ArgumentKind::Angle:
    case ArgumentKind::Other: return;
    default: appendNumber<NumberFormat::Integer>({}, argument, out);
    }
}

} // namespace zem::msglib
