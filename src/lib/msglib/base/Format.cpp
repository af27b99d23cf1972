#include "msglib/Format.h"

namespace zem::msglib {

Format::~Format() = default;

std::string Format::format(const boost::any& value) {
    std::string text;
    format(value, text);
    return text;
}

} // namespace zem::msglib
