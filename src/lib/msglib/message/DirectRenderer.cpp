#include "message/DirectRenderer.h"

#include "message/PatternText.h"
#include "message/PlaceholderRenderer.h"
#include "message/PlaceholderStyle.h"
#include "message/PlainPlaceholder.h"
#include "number/ChoiceReader.h"
#include "number/NumberArgument.h"

#include <stdexcept>

namespace zem::msglib {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

constexpr int deepest = 8;

} // namespace

bool DirectRenderer::render(std::string_view pattern) {
    const std::size_t before = out_.size();
    try {
        if (renderMessage(pattern)) {
            return true;
        }
    } catch (const std::runtime_error&) {
    } catch (const std::out_of_range&) {
    }
    out_.resize(before);
    return false;
}

bool DirectRenderer::renderMessage(std::string_view pattern) {
    std::size_t position = 0;
    const auto append = [this](std::string_view text) { out_ += text; };
    while ((position = scanStatic(pattern, position, append)) < pattern.size()) {
        if (pattern[position] != '{') {
            return false;
        }
        position = renderPlaceholder(pattern, position + 1);
        if (position == nowhere) {
            return false;
        }
    }
    return true;
}

// Renders the placeholder whose index begins at `position` and returns where the text behind it
// begins.
std::size_t DirectRenderer::renderPlaceholder(std::string_view pattern, std::size_t position) {
    PlainPlaceholder placeholder;
    position = readPlainPlaceholder(pattern, position, placeholder);
    if (position == nowhere) {
        return nowhere;
    }
    const boost::any& argument = arguments_.at(placeholder.index);
    if (placeholder.type.empty()) {
        PlaceholderRenderer::appendByKind(argument, out_);
        return position;
    }
    return renderTyped(placeholder, argument) ? position : nowhere;
}

bool DirectRenderer::renderTyped(const PlainPlaceholder& placeholder, const boost::any& argument) {
    const PlaceholderStyle style = placeholderStyle(placeholder.type, placeholder.style);
    if (style == PlaceholderStyle::Choice) {
        return renderChoice(placeholder.style, argument);
    }
    PlaceholderRenderer::appendByStyle(style, placeholder.style, argument, out_);
    return true;
}

// The text that a choice picks is a message for the same arguments.
bool DirectRenderer::renderChoice(std::string_view style, const boost::any& argument) {
    if (style.empty() || depth_ == deepest) {
        return false;
    }
    const auto text = chooseText(style, readNumber(argument));
    ++depth_;
    const bool rendered = text && renderMessage(*text);
    --depth_;
    return rendered;
}

} // namespace zem::msglib
