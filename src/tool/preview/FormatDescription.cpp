#include "tool/preview/FormatDescription.h"

#include "tool/text/ArgumentText.h"
#include "tool/text/DisplayText.h"

#include "date/DateReader.h"
#include "date/LocaleDatePattern.h"
#include "message/FormatElement.h"
#include "message/PlaceholderStyle.h"
#include "msglib/DecimalFormat.h"
#include "number/DecimalForm.h"
#include "number/LocaleNumber.h"

#include <boost/any.hpp>

#include <algorithm>
#include <locale>
#include <stdexcept>
#include <string_view>
#include <utility>

// A placeholder goes in, a description comes out: a summary, and lines with details. Numbers are
// described by the layout of their decimal pattern, dates by the fields of their date pattern.
// Every example is rendered by the library. The last part describes the intervals of choices.

namespace zem::msglib::tool {

namespace {

constexpr std::int64_t exampleTime = 1795447845; // 2026-11-23T15:30:45

/// Returns what the library shows for a value by a type and a style.
std::string shownBy(std::string_view type, std::string_view style, const boost::any& value) {
    FormatElement element;
    element.type_ = type;
    element.style_ = style;
    element.buildFormat(std::locale::classic());
    std::string text;
    element.format_->format(value, text);
    return '"' + visibleLine(text) + '"';
}

/// Returns an example: `1234.5 shows "1,234.50"`.
std::string example(const Placeholder& placeholder, const WrittenArgument& argument) {
    return argument.text + " shows " +
           shownBy(placeholder.type.text(), placeholder.style.text(), argument.value);
}

std::string byKind(const WrittenArgument& argument) {
    std::string text;
    TextOutput::to(text, [&](TextOutput& out) { appendByKind(argument.value, out); });
    return argument.text + " shows \"" + text + '"';
}

std::string describeKind() {
    return "by its kind: " + byKind(readArgument("1234")) + ", " + byKind(readArgument("1234.5")) +
           ", a text stays as it is";
}

std::string inBackticks(std::string_view text) {
    return '`' + visibleLine(text) + '`';
}

/// Returns a style, and its written form if quoting changes it.
std::string describeStyle(const Placeholder& placeholder) {
    const std::string_view style = placeholder.style.text();
    const std::size_t begin = placeholder.type.place().end() + 1; // after the comma
    const std::size_t end = placeholder.whole.end() - 1;
    const std::string_view written = placeholder.whole.file->text().substr(begin, end - begin);
    return inBackticks(style) + (written == style ? "" : ", written " + inBackticks(written));
}

// Numbers.

/// Returns a pattern of the platform as text. Its byte for the currency symbol is not UTF-8, so it
/// is replaced.
std::string localePattern(const LocaleNumber& number) {
    std::string text;
    for (const char byte : number.pattern()) {
        text += byte == '\xA4' ? "¤" : std::string(1, byte);
    }
    return text;
}

LocaleNumber localeNumber(std::string_view style) {
    return style == "integer"    ? LocaleNumber::rounded()
           : style == "currency" ? LocaleNumber(NumberFormat::Currency)
           : style == "percent"  ? LocaleNumber(NumberFormat::Percent)
                                 : LocaleNumber(NumberFormat::Number);
}

std::string count(std::size_t number, const std::string& noun) {
    return (number == 0 ? "no" : std::to_string(number)) + ' ' + noun + (number == 1 ? "" : "s");
}

std::string describeDecimals(const DigitLayout& layout) {
    const std::size_t least = layout.minimumFractionDigits;
    const std::size_t most = layout.maximumFractionDigits;
    if (least == most) {
        return count(most, "decimal");
    }
    return (least == 0 ? "up to " : std::to_string(least) + " to ") + count(most, "decimal");
}

std::string describeDigits(const DecimalFormat& format) {
    const DecimalForm form(format);
    const DigitLayout layout = form.digitLayout();
    std::string description =
        layout.groupSize == 0 ? "no groups" : "groups of " + count(layout.groupSize, "digit");
    if (layout.minimumIntegerDigits != 1) {
        description +=
            layout.minimumIntegerDigits == 0
                ? ", no digit before the point for numbers below 1"
                : ", at least " + count(layout.minimumIntegerDigits, "digit") + " before the point";
    }
    description += ", " + describeDecimals(layout);
    std::string exponent;
    TextOutput::to(exponent, [&](TextOutput& out) { form.appendExponent(1, out); });
    description += exponent.empty() ? "" : ", with an exponent";
    return description + (form.multiplier() == 100 ? ", multiplied by 100" : "");
}

FormatDescription describeNumber(const Placeholder& placeholder) {
    const bool isPattern = placeholder.kind == PlaceholderKind::DecimalStyle;
    const std::string_view style = placeholder.style.text();
    const LocaleNumber number = localeNumber(style);
    FormatDescription description;
    if (isPattern) {
        description.summary = "a number by " + describeStyle(placeholder);
    } else {
        description.summary =
            (style.empty() ? "a number" : "a number in the style " + inBackticks(style)) +
            ", which is " + inBackticks(localePattern(number));
    }
    try {
        const DecimalFormat format(isPattern ? std::string(style) : number.pattern(),
                                   DecimalFormatSymbols(std::locale::classic()));
        description.details.push_back(describeDigits(format));
        description.details.push_back(example(placeholder, readArgument("1234.5")) + ", " +
                                      example(placeholder, readArgument("-0.25")));
    } catch (const std::runtime_error& failure) {
        description.details = {std::string("does not compile: ") + failure.what()};
    }
    return description;
}

// Dates.

struct FieldForm {
    char letter;
    std::size_t length; ///< of this form, also for longer runs up to the next row of the letter
    const char* description;
};

constexpr FieldForm fieldForms[] = {
    {'d', 1, "day of the month"},
    {'d', 2, "day of the month, two digits"},
    {'d', 3, "day of the week, short"},
    {'d', 4, "day of the week"},
    {'M', 1, "month"},
    {'M', 2, "month, two digits"},
    {'M', 3, "name of the month, short"},
    {'M', 4, "name of the month"},
    {'y', 1, "last digit of the year"},
    {'y', 2, "last two digits of the year"},
    {'y', 3, "year"},
    {'g', 1, "era"},
    {'h', 1, "hour of 12"},
    {'h', 2, "hour of 12, two digits"},
    {'H', 1, "hour of 24"},
    {'H', 2, "hour of 24, two digits"},
    {'m', 1, "minute"},
    {'m', 2, "minute, two digits"},
    {'s', 1, "second"},
    {'s', 2, "second, two digits"},
    {'t', 1, "first letter of the marker of morning or afternoon"},
    {'t', 2, "marker of morning or afternoon"},
};

const char* describeField(std::string_view run) {
    const char* description = "";
    for (const FieldForm& form : fieldForms) {
        if (form.letter == run.front() && form.length <= run.size()) {
            description = form.description;
        }
    }
    return description;
}

std::string localeDatePattern(std::string_view type, std::string_view style) {
    const LocaleDatePattern pattern = type == "time"     ? LocaleDatePattern::time()
                                      : style == "short" ? LocaleDatePattern(DateFormat::Short)
                                      : style == "long" || style == "full"
                                          ? LocaleDatePattern(DateFormat::Long)
                                          : LocaleDatePattern(DateFormat::Medium);
    return std::string(pattern.text());
}

/// Returns a line for each field of a date pattern, and for each text between fields.
std::vector<std::string> fieldsOf(std::string_view pattern) {
    std::vector<std::string> lines;
    std::string text;
    const auto endText = [&] {
        if (!text.empty()) {
            lines.push_back("text \"" + visibleLine(std::exchange(text, "")) + '"');
        }
    };
    readDatePattern(pattern, [&](DatePiece kind, std::string_view piece) {
        if (kind == DatePiece::Literal || kind == DatePiece::Quoted) {
            text += piece;
            return;
        }
        endText();
        lines.push_back(inBackticks(piece) + " " + describeField(piece) + ": " +
                        shownBy("date", piece, exampleTime));
    });
    endText();
    return lines;
}

FormatDescription describeDate(const Placeholder& placeholder) {
    const std::string_view type = placeholder.type.text();
    const std::string_view style = placeholder.style.text();
    FormatDescription description;
    if (placeholder.kind == PlaceholderKind::DateStyle) {
        description.summary = "a date or time by " + describeStyle(placeholder);
        description.details = fieldsOf(style);
    } else {
        const std::string pattern = localeDatePattern(type, style);
        description.summary = (type == "time"  ? "a time of day"
                               : style.empty() ? "a date"
                                               : "a date in the style " + inBackticks(style)) +
                              ", which is " + inBackticks(pattern);
        description.details = fieldsOf(pattern);
    }
    description.details.insert(description.details.begin(),
                               example(placeholder, timeArgument(exampleTime)));
    return description;
}

// Intervals.

std::string writtenNumber(const ChoiceEntry& entry) {
    return numberArgument(writtenLimit(entry)).text;
}

std::string describeLower(const ChoiceEntry& entry) {
    return (entry.separator == '#' ? "from " : "above ") + writtenNumber(entry);
}

std::string describeUpper(const ChoiceEntry& entry) {
    return (entry.separator == '#' ? "below " : "up to ") + writtenNumber(entry);
}

} // namespace

FormatDescription describeFormat(const Placeholder& placeholder) {
    switch (placeholder.kind) {
    case PlaceholderKind::Number:
    case PlaceholderKind::DecimalStyle: return describeNumber(placeholder);
    case PlaceholderKind::Date:
    case PlaceholderKind::DateStyle: return describeDate(placeholder);
    case PlaceholderKind::Unknown:
        return {inBackticks(placeholder.type.text()) + " is not a type", {describeKind()}};
    default: return {describeKind(), {}};
    }
}

std::string describeInterval(const Placeholder& choice, std::size_t entry,
                             const ChoiceInterval& interval) {
    const auto& entries = choice.entries;
    const NumberInterval& numbers = interval.numbers;
    if (numbers.isEmpty()) {
        return "never chosen";
    }
    const ChoiceEntry& own = entries[entry];
    if (!numbers.low && !numbers.high) {
        return "every number";
    }
    if (!numbers.low) {
        const std::string upper = describeUpper(entries[interval.high]);
        return interval.high == entry
                   ? upper
                   : describeLower(own) + ", " + upper + ", and everything lower";
    }
    const ChoiceEntry& low = entries[interval.low];
    if (!numbers.high) {
        return describeLower(low);
    }
    const ChoiceEntry& high = entries[interval.high];
    const bool isOne =
        low.separator == '#' && high.separator != '#' && writtenLimit(low) == writtenLimit(high);
    return isOne ? "exactly " + writtenNumber(low)
                 : describeLower(low) + ", " + describeUpper(high);
}

} // namespace zem::msglib::tool
