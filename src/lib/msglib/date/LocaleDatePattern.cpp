#include "date/LocaleDatePattern.h"

#include "base/LocaleValue.h"

namespace zem::msglib {

namespace {

std::string localePicture(std::uint32_t lctype) {
    return std::string(LocaleDateValue(lctype).text());
}

std::string mediumPattern() {
    switch (LocaleDateValue(platform::LOCALE_ILDATE).first()) {
    case '0': return "MMM dd yy";
    case '1': return "dd MMM yy";
    case '2': return "yy MMM dd";
    default: return {};
    }
}

} // namespace

std::string localeDatePattern(DateFormat::Style style) {
    switch (style) {
    case DateFormat::Short:
    case DateFormat::ShortAlternate: return localePicture(platform::LOCALE_SSHORTDATE);
    case DateFormat::Long: return localePicture(platform::LOCALE_SLONGDATE);
    case DateFormat::Medium: return mediumPattern();
    }
    return {};
}

std::string localeTimePattern() {
    return localePicture(platform::LOCALE_STIMEFORMAT);
}

} // namespace zem::msglib
