#include "msglib/MessageFormat.h"

#include "base/Failure.h"
#include "base/TextOutput.h"
#include "message/FormatElement.h"
#include "message/MessageRenderer.h"
#include "message/PlaceholderReader.h"

#include <utility>

// Compiling turns a pattern into static text before the first placeholder and a list of elements,
// each a placeholder with its formatter and the static text after it. Rendering appends the first
// text and then lets a `MessageRenderer` render the elements in order.

namespace zem::msglib {

namespace {

// Returns a sink that appends to `text`.
auto appendTo(std::string& text) noexcept {
    return [&text](std::string_view piece) { text += piece; };
}

} // namespace

MessageFormat::MessageFormat() = default;

MessageFormat::MessageFormat(const std::string& pattern) {
    applyPattern(pattern);
}

MessageFormat::MessageFormat(const MessageFormat& other) = default;

MessageFormat& MessageFormat::operator=(const MessageFormat& other) = default;

MessageFormat::~MessageFormat() = default;

void MessageFormat::applyPattern(const std::string& pattern) {
    elements_.clear();
    pattern_ = pattern;
    std::string scratch;
    std::size_t position = parseStatic(pattern, 0, prefix_);
    while (position < pattern.size()) {
        position = parsePattern(pattern, position, scratch, locale_);
    }
}

std::size_t MessageFormat::parseStatic(const std::string& pattern, std::size_t position,
                                       std::string& text) const {
    text.clear();
    PlaceholderReader reader(pattern, position);
    reader.readText(appendTo(text));
    return reader.position();
}

std::size_t MessageFormat::parsePattern(const std::string& pattern, std::size_t position,
                                        std::string& scratch, const std::locale& locale) {
    FormatElement& element = elements_.emplace_back();
    PlaceholderReader reader(pattern, position);
    element.argumentIndex_ = reader.readIndex();
    reader.readType(appendTo(element.type_));
    reader.readStyle(appendTo(element.style_));
    reader.readEnd();
    // If this text fails to compile, the element keeps an empty suffix.
    position = parseStatic(pattern, reader.position(), scratch);
    element.suffix_ = std::move(scratch);
    element.buildFormat(locale);
    return position;
}

std::string& MessageFormat::format(const std::list<boost::any>& args, std::string& out) const {
    return TextOutput::to(out, [&](TextOutput& text) {
        text.append(prefix_);
        MessageRenderer renderer(args, text);
        for (const FormatElement& element : elements_) {
            renderer.render(element);
        }
    });
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
