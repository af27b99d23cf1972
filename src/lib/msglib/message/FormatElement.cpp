#include "message/FormatElement.h"

#include "base/Failure.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/DecimalFormat.h"
#include "msglib/SimpleDateFormat.h"

namespace zem::msglib {

void FormatElement::buildFormat(const std::locale& locale) {
    if (type_ == "number") {
        buildNumberFormat(locale);
    } else if (type_ == "date") {
        buildDateFormat(locale);
    } else if (type_ == "time") {
        buildTimeFormat(locale);
    } else if (type_ == "choice") {
        buildChoiceFormat();
    }
}

void FormatElement::buildNumberFormat(const std::locale& locale) {
    if (style_ == "currency") {
        format_.reset(NumberFormat::getCurrencyInstance(locale));
        return;
    }
    if (style_ == "percent") {
        format_.reset(NumberFormat::getPercentInstance(locale));
        return;
    }
    // The factory's numbers are always decimal formats.
    auto* number = static_cast<DecimalFormat*>(NumberFormat::getNumberInstance(locale));
    format_.reset(number);
    if (style_ == "integer") {
        number->setMaximumFractionDigits(0);
    } else if (!style_.empty()) {
        number->applyPattern(style_);
    }
}

void FormatElement::buildDateFormat(const std::locale& locale) {
    if (style_ == "short") {
        format_.reset(DateFormat::getDateInstance(DateFormat::Short, locale));
    } else if (style_ == "medium" || style_.empty()) {
        format_.reset(DateFormat::getDateInstance(DateFormat::Medium, locale));
    } else if (style_ == "long" || style_ == "full") {
        format_.reset(DateFormat::getDateInstance(DateFormat::Long, locale));
    } else {
        format_ = std::make_shared<SimpleDateFormat>(style_, locale);
    }
}

void FormatElement::buildTimeFormat(const std::locale& locale) {
    if (style_.empty()) {
        format_.reset(DateFormat::getTimeInstance(locale));
    } else {
        format_ = std::make_shared<SimpleDateFormat>(style_, locale);
    }
}

void FormatElement::buildChoiceFormat() {
    if (style_.empty()) {
        raise(Failure::ChoiceStyleMissing);
    }
    format_ = std::make_shared<ChoiceFormat>(style_);
}

} // namespace zem::msglib
