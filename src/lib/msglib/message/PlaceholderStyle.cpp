#include "message/PlaceholderStyle.h"

#include <cstddef>
#include <cstring>

namespace zem::msglib {

namespace {

// With a length that the compiler knows, this is a comparison or two of words.
template <std::size_t Size>
bool is(std::string_view text, const char (&keyword)[Size]) noexcept {
    return text.size() == Size - 1 && std::memcmp(text.data(), keyword, Size - 1) == 0;
}

PlaceholderStyle numberStyle(std::string_view style) noexcept {
    if (style.empty()) {
        return PlaceholderStyle::Number;
    }
    if (is(style, "integer")) {
        return PlaceholderStyle::Integer;
    }
    if (is(style, "currency")) {
        return PlaceholderStyle::Currency;
    }
    return is(style, "percent") ? PlaceholderStyle::Percent : PlaceholderStyle::CustomNumber;
}

PlaceholderStyle dateStyle(std::string_view style) noexcept {
    if (is(style, "short")) {
        return PlaceholderStyle::ShortDate;
    }
    if (style.empty() || is(style, "medium")) {
        return PlaceholderStyle::MediumDate;
    }
    const bool isLong = is(style, "long") || is(style, "full");
    return isLong ? PlaceholderStyle::LongDate : PlaceholderStyle::CustomDate;
}

} // namespace

PlaceholderStyle placeholderStyle(std::string_view type, std::string_view style) noexcept {
    if (is(type, "number")) {
        return numberStyle(style);
    }
    if (is(type, "date")) {
        return dateStyle(style);
    }
    if (is(type, "time")) {
        return style.empty() ? PlaceholderStyle::Time : PlaceholderStyle::CustomDate;
    }
    return is(type, "choice") ? PlaceholderStyle::Choice : PlaceholderStyle::ByKind;
}

} // namespace zem::msglib
