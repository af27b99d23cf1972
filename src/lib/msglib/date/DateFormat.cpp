#include "msglib/DateFormat.h"

#include "date/LocaleDatePattern.h"
#include "msglib/SimpleDateFormat.h"

namespace zem::msglib {

DateFormat::~DateFormat() = default;

DateFormat* DateFormat::getDateInstance(Style style, const std::locale& locale) {
    return new SimpleDateFormat(std::string(LocaleDatePattern(style).text()), locale);
}

DateFormat* DateFormat::getTimeInstance(const std::locale& locale) {
    return new SimpleDateFormat(std::string(LocaleDatePattern::time().text()), locale);
}

} // namespace zem::msglib
