#include "message/MessageRenderer.h"

#include "base/Argument.h"
#include "base/Extraction.h"
#include "message/StaticText.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/MessageFormat.h"
#include "number/LocaleNumberFormat.h"

#include <iterator>
#include <typeinfo>

namespace zem::msglib {

namespace {

// Tells whether a pattern compiles and has no placeholder but those of plain digits. Such a message
// needs no compiled form: it is rendered as it is read.
bool isPlain(std::string_view pattern) noexcept {
    std::size_t position = 0;
    for (;;) {
        position = scanStatic(pattern, position, [](std::string_view) {});
        if (position == pattern.size()) {
            return true;
        }
        int index = 0;
        const std::size_t digits = readDigits(pattern, position + 1, index);
        if (pattern[position] != '{' || digits == 0 ||
            !holdsAt(pattern, position + 1 + digits, '}')) {
            return false;
        }
        position += digits + 2;
    }
}

} // namespace

void MessageRenderer::render(const MessageFormat& message) {
    out_ += message.prefix_;
    for (const FormatElement& element : message.elements_) {
        renderElement(element);
        renderPending();
    }
}

void MessageRenderer::render(const std::string& pattern) {
    if (isPlain(pattern)) {
        renderPlain(pattern);
        return;
    }
    MessageFormat message;
    message.locale_ = locale_;
    message.compile(pattern);
    render(message);
}

void MessageRenderer::renderPlain(std::string_view pattern) {
    const auto append = [this](std::string_view piece) { out_ += piece; };
    std::size_t position = scanStatic(pattern, 0, append);
    while (position < pattern.size()) {
        int index = 0;
        const std::size_t digits = readDigits(pattern, position + 1, index);
        renderByKind(argumentAt(index));
        position = scanStatic(pattern, position + digits + 2, append);
    }
}

void MessageRenderer::renderPending() {
    while (!pending_.empty()) {
        std::list<FormatElement> current;
        current.splice(current.begin(), pending_, pending_.begin());
        renderElement(current.front());
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
        LocaleNumberFormat::append(argument, locale_, NumberFormat::Number, out_);
        break;
    case ArgumentKind::Angle:
    case ArgumentKind::Other: break;
    default: LocaleNumberFormat::append(argument, locale_, NumberFormat::Integer, out_);
    }
}

// The chosen text is a message of its own: its elements come next, and what stands behind the
// choice follows the last one.
void MessageRenderer::expandChoice(const FormatElement& element, const boost::any& argument) {
    std::string text;
    element.format_->format(argument, text);
    if (isPlain(text)) {
        renderPlain(text);
        out_ += element.suffix_;
        return;
    }
    MessageFormat nested;
    nested.locale_ = locale_;
    nested.compile(text);
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
