#include "message/MessageRenderer.h"

#include "base/TextOutput.h"
#include "message/DirectRenderer.h"
#include "message/PlaceholderRenderer.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/DecimalFormat.h"
#include "msglib/MessageFormat.h"
#include "msglib/SimpleDateFormat.h"
#include "number/DecimalForm.h"

#include <typeinfo>
#include <utility>

namespace zem::msglib {

namespace {

// All formatters of elements are made here, so their types have one identity each and no name to
// compare.
template <class Kind>
bool is(const Format& format) noexcept {
    return &typeid(format) == &typeid(Kind);
}

} // namespace

void MessageRenderer::render(const MessageFormat& message) {
    out_.append(message.prefix_);
    for (const FormatElement& element : message.elements_) {
        rendersDirectly_ = true;
        renderElement(element);
        renderPending();
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
    const boost::any& argument = arguments_.at(element.argumentIndex_);
    const Format* format = element.format_.get();
    if (format == nullptr) {
        PlaceholderRenderer::appendByKind(argument, out_);
    } else if (is<ChoiceFormat>(*format)) {
        expandChoice(element, argument);
        return;
    } else if (is<DecimalFormat>(*format)) {
        DecimalForm(*static_cast<const DecimalFormat*>(format)).appendArgument(argument, out_);
    } else {
        static_cast<const SimpleDateFormat*>(format)->write(argument, out_);
    }
    out_.append(element.suffix_);
}

// The chosen text is a message of its own: its elements come next, and what stands behind the
// choice follows the last one. Not inline, so that other elements need not make room for it.
[[gnu::noinline]] void MessageRenderer::expandChoice(const FormatElement& element,
                                                     const boost::any& argument) {
    std::string text;
    element.format_->format(argument, text);
    rendersDirectly_ = rendersDirectly_ && DirectRenderer(arguments_.list(), out_).render(text);
    if (rendersDirectly_) {
        out_.append(element.suffix_);
        return;
    }
    MessageFormat nested;
    nested.locale_ = locale_;
    nested.compile(text);
    out_.append(nested.prefix_);
    if (nested.elements_.empty()) {
        out_.append(element.suffix_);
        return;
    }
    nested.elements_.back().suffix_ += element.suffix_;
    pending_.splice(pending_.begin(), nested.elements_);
}

std::string renderPattern(std::string_view pattern, const std::list<boost::any>& args) {
    constexpr std::size_t usualArgument = 16;
    std::string text;
    const std::size_t usualSize = pattern.size() + args.size() * usualArgument;
    if (usualSize > TextOutput::largestRoom) {
        text.reserve(usualSize);
    }
    TextOutput output(text);
    if (!DirectRenderer(args, output).render(pattern)) {
        return std::move(MessageFormat(std::string(pattern)).format(args, text));
    }
    // A new string costs less than giving the empty one room.
    if (text.empty() && text.capacity() < output.size()) {
        return std::string(output.gathered());
    }
    output.finish();
    return text;
}

} // namespace zem::msglib
