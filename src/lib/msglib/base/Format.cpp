#include "msglib/Format.h"

#include "base/TextOutput.h"

namespace zem::msglib {

Format::~Format() = default;

std::string Format::format(const boost::any& value) {
    std::string text;
    format(value, text);
    return text;
}

void Format::write(const boost::any& value, TextOutput& out) const {
    std::string text;
    format(value, text);
    out.append(text);
}

} // namespace zem::msglib
