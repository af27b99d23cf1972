#include "message/DirectRenderer.h"

#include "base/Extraction.h"
#include "base/TextOutput.h"
#include "message/PatternText.h"
#include "message/PlaceholderRenderer.h"
#include "message/PlaceholderStyle.h"
#include "number/ChoiceReader.h"
#include "number/NumberArgument.h"

#include <stdexcept>

namespace zem::msglib {

namespace {

constexpr std::size_t nowhere = std::string_view::npos;

// Choices nest on the machine stack here, and each level reads those inside it once more.
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
    out_.cutTo(before);
    return false;
}

bool DirectRenderer::renderMessage(std::string_view pattern) {
    std::size_t position = 0;
    const auto append = [this](std::string_view text) { out_.append(text); };
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
    int index = 0;
    const std::size_t digits = readDigits(pattern, position, index);
    position += digits;
    if (digits == 0) {
        return nowhere;
    }
    const boost::any& argument = arguments_.at(index);
    if (holdsAt(pattern, position, '}')) {
        PlaceholderRenderer::appendByKind(argument, out_);
        return position + 1;
    }
    return holdsAt(pattern, position, ',') ? renderTyped(pattern, position + 1, argument) : nowhere;
}

// The same from the type on. Most types and styles are keywords, and need no scanning for syntax.
std::size_t DirectRenderer::renderTyped(std::string_view pattern, std::size_t position,
                                        const boost::any& argument) {
    const std::size_t typeEnd = endOfKeyword(pattern, position);
    const std::size_t styleEnd =
        holdsAt(pattern, typeEnd, ',') ? endOfKeyword(pattern, typeEnd + 1) : typeEnd;
    if (!holdsAt(pattern, styleEnd, '}')) {
        return renderScanned(pattern, position, argument);
    }
    const std::string_view type = pattern.substr(position, typeEnd - position);
    const std::string_view style = styleEnd > typeEnd
                                       ? pattern.substr(typeEnd + 1, styleEnd - typeEnd - 1)
                                       : std::string_view();
    return renderStyled(type, style, argument) ? styleEnd + 1 : nowhere;
}

std::size_t DirectRenderer::renderScanned(std::string_view pattern, std::size_t position,
                                          const boost::any& argument) {
    JoinedPieces type;
    JoinedPieces style;
    position = scanElement(pattern, position, ',', type);
    if (holdsAt(pattern, position, ',')) {
        position = scanElement(pattern, position + 1, '}', style);
    }
    const bool rendered =
        holdsAt(pattern, position, '}') && renderStyled(type.text(), style.text(), argument);
    return rendered ? position + 1 : nowhere;
}

bool DirectRenderer::renderStyled(std::string_view type, std::string_view style,
                                  const boost::any& argument) {
    const PlaceholderStyle wanted = placeholderStyle(type, style);
    if (wanted == PlaceholderStyle::Choice) {
        return renderChoice(style, argument);
    }
    PlaceholderRenderer::appendByStyle(wanted, style, argument, out_);
    return true;
}

// The text that a choice picks is a message for the same arguments.
bool DirectRenderer::renderChoice(std::string_view style, const boost::any& argument) {
    if (style.empty() || depth_ == deepest) {
        return false;
    }
    const JoinedPieces text = chooseText(style, readNumber(argument));
    ++depth_;
    const bool rendered = renderMessage(text.text());
    --depth_;
    return rendered;
}

} // namespace zem::msglib
