#include "msglib/MessageFormat.h"

#include "base/Failure.h"
#include "base/TextOutput.h"
#include "message/FormatElement.h"
#include "message/MessageRenderer.h"

namespace zem::msglib {

MessageFormat::MessageFormat() = default;

MessageFormat::MessageFormat(const std::string& pattern) {
    applyPattern(pattern);
}

MessageFormat::MessageFormat(const MessageFormat& other) = default;

MessageFormat& MessageFormat::operator=(const MessageFormat& other) = default;

MessageFormat::~MessageFormat() = default;

std::string& MessageFormat::format(const std::list<boost::any>& args, std::string& out) const {
    return TextOutput::to(
        out, [&](TextOutput& text) { MessageRenderer(args, locale_, text).render(*this); });
}

std::string& MessageFormat::format(const boost::any& value, std::string& out) const {
    const auto* args = boost::any_cast<const std::list<boost::any>*>(value);
    if (args == nullptr) {
        raise(Failure::InvalidArgument);
    }
    return format(*args, out);
}

void MessageFormat::setLocale(const std::locale& locale) {
    locale_ = locale;
    for (FormatElement& element : elements_) {
        element.buildFormat(locale);
    }
}

const std::locale& MessageFormat::getLocale() const {
    return locale_;
}

} // namespace zem::msglib
