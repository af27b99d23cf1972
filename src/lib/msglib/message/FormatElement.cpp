#include "message/FormatElement.h"

#include "message/PlaceholderStyle.h"

namespace zem::msglib {

void FormatElement::buildFormat(const std::locale& locale) {
    if (const auto build = PlaceholderStyle::of(type_, style_).build) {
        build(*this, locale);
    }
}

} // namespace zem::msglib
