#include "message/MessageRenderer.h"

#include "base/Argument.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/MessageFormat.h"
#include "number/LocaleNumberFormat.h"

#include <iterator>
#include <typeinfo>

namespace zem::msglib {

void MessageRenderer::render(const MessageFormat& message) {
    out_ += message.prefix_;
    for (const FormatElement& element : message.elements_) {
        renderElement(element);
        while (!pending_.empty()) {
            std::list<FormatElement> current;
            current.splice(current.begin(), pending_, pending_.begin());
            renderElement(current.front());
        }
    }
}

void MessageRenderer::renderElement(const FormatElement& element) {
    const boost::any& argument = argumentAt(element.argumentIndex_);
    const Format* format = element.format_.get();
    if (format == nullptr) {
        renderByKind(argument);
    } else if (typeid(*format) == typeid(ChoiceFormat)) {
        expandChoice(element, argument);
        return;
    } else {
        format->format(argument, out_);
    }
    out_ += element.suffix_;
}

void MessageRenderer::renderByKind(const boost::any& argument) {
    switch (kindOf(argument)) {
    case ArgumentKind::Text: out_ += heldValue<std::string>(argument); break;
    case ArgumentKind::Float:
    case ArgumentKind::Double:
        LocaleNumberFormat::make(locale_, NumberFormat::Number, LocaleNumberFormat::numberFallback)
            .format(argument, out_);
        break;
    case ArgumentKind::Angle:
    case ArgumentKind::Other: break;
    default:
        LocaleNumberFormat::make(locale_, NumberFormat::Integer,
                                 LocaleNumberFormat::integerFallback)
            .format(argument, out_);
    }
}

// The chosen text is a message of its own: its elements come next, and what stands behind the
// choice follows the last one.
void MessageRenderer::expandChoice(const FormatElement& element, const boost::any& argument) {
    std::string text;
    element.format_->format(argument, text);
    MessageFormat nested;
    nested.locale_ = locale_;
    nested.applyPattern(text);
    out_ += nested.prefix_;
    if (nested.elements_.empty()) {
        out_ += element.suffix_;
        return;
    }
    nested.elements_.back().suffix_ += element.suffix_;
    pending_.splice(pending_.begin(), nested.elements_);
}

const boost::any& MessageRenderer::argumentAt(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= args_.size()) {
        raise(Failure::ArgumentIndexTooHigh);
    }
    const auto wanted = static_cast<std::size_t>(index);
    if (wanted < position_) {
        argument_ = args_.begin();
        position_ = 0;
    }
    std::advance(argument_, wanted - position_);
    position_ = wanted;
    return *argument_;
}

} // namespace zem::msglib
