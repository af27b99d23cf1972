#include "message/PlaceholderStyle.h"

namespace zem::msglib {

using namespace std::string_view_literals;

namespace {

PlaceholderStyle numberStyle(std::string_view style) noexcept {
    if (style.empty()) {
        return PlaceholderStyle::Number;
    }
    if (style == "integer"sv) {
        return PlaceholderStyle::Integer;
    }
    if (style == "currency"sv) {
        return PlaceholderStyle::Currency;
    }
    return style == "percent"sv ? PlaceholderStyle::Percent : PlaceholderStyle::CustomNumber;
}

PlaceholderStyle dateStyle(std::string_view style) noexcept {
    if (style == "short"sv) {
        return PlaceholderStyle::ShortDate;
    }
    if (style.empty() || style == "medium"sv) {
        return PlaceholderStyle::MediumDate;
    }
    const bool isLong = style == "long"sv || style == "full"sv;
    return isLong ? PlaceholderStyle::LongDate : PlaceholderStyle::CustomDate;
}

} // namespace

PlaceholderStyle placeholderStyle(std::string_view type, std::string_view style) noexcept {
    if (type == "number"sv) {
        return numberStyle(style);
    }
    if (type == "date"sv) {
        return dateStyle(style);
    }
    if (type == "time"sv) {
        return style.empty() ? PlaceholderStyle::Time : PlaceholderStyle::CustomDate;
    }
    return type == "choice"sv ? PlaceholderStyle::Choice : PlaceholderStyle::ByKind;
}

} // namespace zem::msglib
