#include "msglib/DateFormat.h"

#include "base/LocaleValue.h"
#include "msglib/SimpleDateFormat.h"

#include <string>

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

std::string datePattern(DateFormat::Style style) {
    switch (style) {
    case DateFormat::Short:
    case DateFormat::ShortAlternate: return localePicture(platform::LOCALE_SSHORTDATE);
    case DateFormat::Long: return localePicture(platform::LOCALE_SLONGDATE);
    case DateFormat::Medium: return mediumPattern();
    }
    return {};
}

} // namespace

DateFormat::~DateFormat() = default;

DateFormat* DateFormat::getDateInstance(Style style, const std::locale& locale) {
    return new SimpleDateFormat(datePattern(style), locale);
}

DateFormat* DateFormat::getTimeInstance(const std::locale& locale) {
    return new SimpleDateFormat(localePicture(platform::LOCALE_STIMEFORMAT), locale);
}

} // namespace zem::msglib
