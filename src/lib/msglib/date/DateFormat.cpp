#include "msglib/DateFormat.h"

#include "date/LocaleDatePattern.h"
#include "msglib/SimpleDateFormat.h"

namespace zem::msglib {

DateFormat::~DateFormat() = default;

DateFormat* DateFormat::getDateInstance(Style style, const std::locale& locale) {
    return new SimpleDateFormat(localeDatePattern(style), locale);
}

DateFormat* DateFormat::getTimeInstance(const std::locale& locale) {
    return new SimpleDateFormat(localeTimePattern(), locale);
}

} // namespace zem::msglib
