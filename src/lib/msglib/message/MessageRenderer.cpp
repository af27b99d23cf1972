#include "message/MessageRenderer.h"

#include "base/Argument.h"
#include "date/LocaleDatePattern.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/MessageFormat.h"
#include "msglib/SimpleDateFormat.h"
#include "number/LocaleNumberFormat.h"

#include <iterator>
#include <typeinfo>

namespace zem::msglib {

namespace {

// All formatters of elements are made here, so their type has one identity and no name to compare.
bool isChoice(const Format& format) noexcept {
    return &typeid(format) == &typeid(ChoiceFormat);
}

} // namespace

void MessageRenderer::render(const MessageFormat& message) {
    out_ += message.prefix_;
    for (const FormatElement& element : message.elements_) {
        renderElement(element);
        renderPending();
    }
}

void MessageRenderer::render(std::string_view pattern) {
    if (const PlainPattern plain(pattern); plain.isPlain()) {
        renderPlain(plain);
        return;
    }
    MessageFormat message;
    message.locale_ = locale_;
    message.compile(std::string(pattern));
    render(message);
}

void MessageRenderer::renderPlain(const PlainPattern& pattern) {
    pattern.forEach([this](const PlainPiece& piece) {
        if (piece.index == PlainPiece::noIndex) {
            out_ += piece.text;
        } else {
            renderByStyle(piece.style, argumentAt(piece.index));
        }
    });
}

void MessageRenderer::renderByStyle(PlaceholderStyle style, const boost::any& argument) {
    switch (style) {
    case PlaceholderStyle::Number: appendNumber(NumberFormat::Number, argument); return;
    case PlaceholderStyle::Integer:
        LocaleNumberFormat::appendRounded(argument, locale_, out_);
        return;
    case PlaceholderStyle::Currency: appendNumber(NumberFormat::Currency, argument); return;
    case PlaceholderStyle::Percent: appendNumber(NumberFormat::Percent, argument); return;
    case PlaceholderStyle::ShortDate: appendDate(DateFormat::Short, argument); return;
    case PlaceholderStyle::MediumDate: appendDate(DateFormat::Medium, argument); return;
    case PlaceholderStyle::LongDate: appendDate(DateFormat::Long, argument); return;
    case PlaceholderStyle::Time:
        SimpleDateFormat::render(LocaleDatePattern::time().text(), argument, out_);
        return;
    default: renderByKind(argument);
    }
}

void MessageRenderer::appendNumber(NumberFormat::FormatType type, const boost::any& argument) {
    LocaleNumberFormat::append(argument, locale_, type, out_);
}

void MessageRenderer::appendDate(DateFormat::Style style, const boost::any& argument) {
    SimpleDateFormat::render(LocaleDatePattern(style).text(), argument, out_);
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
    } else if (isChoice(*format)) {
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
    case ArgumentKind::Double: appendNumber(NumberFormat::Number, argument); break;
    case ArgumentKind::Angle:
    case ArgumentKind::Other: break;
    default: appendNumber(NumberFormat::Integer, argument);
    }
}

// The chosen text is a message of its own: its elements come next, and what stands behind the
// choice follows the last one.
void MessageRenderer::expandChoice(const FormatElement& element, const boost::any& argument) {
    std::string text;
    element.format_->format(argument, text);
    if (const PlainPattern plain(text); plain.isPlain()) {
        renderPlain(plain);
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
    if (wanted < position_ / 2) {
        argument_ = args_.begin();
        position_ = 0;
    }
    const auto steps = static_cast<std::ptrdiff_t>(wanted) - static_cast<std::ptrdiff_t>(position_);
    std::advance(argument_, steps);
    position_ = wanted;
    return *argument_;
}

std::string renderPattern(std::string_view pattern, const std::list<boost::any>& args) {
    constexpr std::size_t usualArgument = 16;
    std::string text;
    text.reserve(pattern.size() + args.size() * usualArgument);
    const std::locale locale;
    MessageRenderer(args, locale, text).render(pattern);
    return text;
}

} // namespace zem::msglib
