#include "date/LocaleDatePattern.h"

namespace zem::msglib {

namespace {

std::string_view mediumPattern() noexcept {
    switch (LocaleDateValue(platform::LOCALE_ILDATE).first()) {
    case '0': return "MMM dd yy";
    case '1': return "dd MMM yy";
    case '2': return "yy MMM dd";
    default: return {};
    }
}

} // namespace

LocaleDatePattern::LocaleDatePattern(DateFormat::Style style) noexcept {
    switch (style) {
    case DateFormat::Short:
    case DateFormat::ShortAlternate: value_.emplace(platform::LOCALE_SSHORTDATE); break;
    case DateFormat::Long: value_.emplace(platform::LOCALE_SLONGDATE); break;
    case DateFormat::Medium: fixed_ = mediumPattern(); break;
    }
}

LocaleDatePattern LocaleDatePattern::time() noexcept {
    return LocaleDatePattern(platform::LOCALE_STIMEFORMAT);
}

} // namespace zem::msglib
