#include "message/FormatElement.h"

#include "base/Failure.h"
#include "date/LocaleDatePattern.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/SimpleDateFormat.h"
#include "number/LocaleNumberFormat.h"

#include <string_view>
#include <utility>

namespace zem::msglib {

using namespace std::string_view_literals;

namespace {

std::shared_ptr<Format> makeDateFormat(std::string pattern, const std::locale& locale) {
    return std::make_shared<SimpleDateFormat>(std::move(pattern), locale);
}

} // namespace

void FormatElement::buildFormat(const std::locale& locale) {
    const std::string_view type = type_;
    if (type == "number"sv) {
        buildNumberFormat(locale);
    } else if (type == "date"sv) {
        buildDateFormat(locale);
    } else if (type == "time"sv) {
        buildTimeFormat(locale);
    } else if (type == "choice"sv) {
        buildChoiceFormat();
    }
}

void FormatElement::buildNumberFormat(const std::locale& locale) {
    const std::string_view style = style_;
    if (style == "currency"sv) {
        format_ = LocaleNumberFormat::makeShared(locale, NumberFormat::Currency);
        return;
    }
    if (style == "percent"sv) {
        format_ = LocaleNumberFormat::makeShared(locale, NumberFormat::Percent);
        return;
    }
    const auto number = LocaleNumberFormat::makeShared(locale, NumberFormat::Number);
    format_ = number;
    if (style == "integer"sv) {
        number->setMaximumFractionDigits(0);
    } else if (!style.empty()) {
        number->applyPattern(style_);
    }
}

void FormatElement::buildDateFormat(const std::locale& locale) {
    const std::string_view style = style_;
    if (style == "short"sv) {
        format_ = makeDateFormat(localeDatePattern(DateFormat::Short), locale);
    } else if (style == "medium"sv || style.empty()) {
        format_ = makeDateFormat(localeDatePattern(DateFormat::Medium), locale);
    } else if (style == "long"sv || style == "full"sv) {
        format_ = makeDateFormat(localeDatePattern(DateFormat::Long), locale);
    } else {
        format_ = makeDateFormat(style_, locale);
    }
}

void FormatElement::buildTimeFormat(const std::locale& locale) {
    format_ = makeDateFormat(style_.empty() ? localeTimePattern() : style_, locale);
}

void FormatElement::buildChoiceFormat() {
    if (style_.empty()) {
        raise(Failure::ChoiceStyleMissing);
    }
    format_ = std::make_shared<ChoiceFormat>(style_);
}

} // namespace zem::msglib
