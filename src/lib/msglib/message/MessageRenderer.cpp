#include "message/MessageRenderer.h"

#include "base/Compiler.h"
#include "base/TextOutput.h"
#include "message/PlaceholderStyle.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/DecimalFormat.h"
#include "msglib/MessageFormat.h"
#include "msglib/SimpleDateFormat.h"
#include "number/ChoiceReader.h"
#include "number/DecimalForm.h"
#include "number/NumberArgument.h"

#include <algorithm>
#include <stdexcept>
#include <typeinfo>
#include <utility>

namespace zem::msglib {

namespace {

// All formatters of elements are made in the library, so their types have one identity each and no
// name to compare.
template <class Kind>
bool is(const Format& format) noexcept {
    return &typeid(format) == &typeid(Kind);
}

// From as many choices in one another on, an index of braces pays.
constexpr std::size_t fewLevels = 8;

} // namespace

void MessageRenderer::render(std::string_view pattern) {
    const std::size_t begin = out_.size();
    PlaceholderReader reader(pattern);
    placeholder_ = 0;
    const auto append = [this](std::string_view text) { out_.append(text); };
    try {
        do {
            while (reader.readText(append)) {
                renderPlaceholder(reader);
            }
        } while (leaveChoice(reader));
    } catch (const std::runtime_error&) {
        compileRest(reader, begin);
        throw;
    } catch (const std::out_of_range&) {
        compileRest(reader, begin);
        throw;
    }
}

void MessageRenderer::renderPlaceholder(PlaceholderReader& reader) {
    placeholder_ = reader.position();
    const boost::any& argument = arguments_.at(reader.readIndex());
    std::string_view type;
    std::string_view style;
    if (reader.skipEnd()) {
        appendByKind(argument, out_);
    } else if (reader.readKeywords(type, style)) {
        renderStyled(reader, type, style, {}, argument);
    } else {
        renderScanned(reader, argument);
    }
}

// Not inline, so that keywords need not make room for it.
MSGLIB_NOINLINE void MessageRenderer::renderScanned(PlaceholderReader& reader,
                                                    const boost::any& argument) {
    ScannedText type;
    ScannedText style;
    reader.readType(type);
    reader.readStyle(style);
    reader.readEnd();
    const std::string_view text = style.text();
    renderStyled(reader, type.text(), text, std::move(style), argument);
}

void MessageRenderer::renderStyled(PlaceholderReader& reader, std::string_view type,
                                   std::string_view style, ScannedText&& copy,
                                   const boost::any& argument) {
    if (const auto append = PlaceholderStyle::of(type, style).append) {
        append(style, argument, out_);
    } else {
        enterChoice(reader, style, std::move(copy), argument);
    }
}

// Goes on with the text that a choice picks, a message of its own.
MSGLIB_NOINLINE void MessageRenderer::enterChoice(PlaceholderReader& reader, std::string_view style,
                                                  ScannedText&& copy, const boost::any& argument) {
    if (style.empty()) {
        raise(Failure::ChoiceStyleMissing);
    }
    ScannedText chosen = chooseText(style, readNumber(argument), reader.braces());
    const std::string_view text = chosen.text();
    Frame frame{std::move(chosen.isCopy() ? chosen : copy), nullptr, reader, out_.size()};
    const BraceIndex* braces = reader.braces();
    if (braces == nullptr && frames_.size() >= fewLevels &&
        text.find(quote) == std::string_view::npos) {
        frame.braces = std::make_unique<BraceIndex>(text);
        braces = frame.braces.get();
    }
    frames_.push_back(std::move(frame));
    reader = PlaceholderReader(text, braces);
    placeholder_ = 0;
}

// Goes back to the message that has the choice.
bool MessageRenderer::leaveChoice(PlaceholderReader& reader) {
    if (frames_.empty()) {
        return false;
    }
    reader = frames_.back().outside;
    placeholder_ = reader.position();
    frames_.pop_back();
    return true;
}

void MessageRenderer::compileRest(const PlaceholderReader& reader, std::size_t begin) {
    for (const Frame& frame : frames_) {
        compile(frame.outside.from(frame.outside.position()), begin);
        begin = frame.begin;
    }
    compile(reader.from(placeholder_), begin);
}

// A message that doesn't compile adds nothing to the output, whose size was `begin` before it.
void MessageRenderer::compile(std::string_view pattern, std::size_t begin) {
    try {
        MessageFormat{std::string(pattern)};
    } catch (const std::runtime_error&) {
        out_.cutTo(begin);
        throw;
    }
}

void MessageRenderer::render(const FormatElement& element) {
    const boost::any& argument = arguments_.at(element.argumentIndex_);
    const Format* const format = element.format_.get();
    if (format == nullptr) {
        appendByKind(argument, out_);
    } else if (is<ChoiceFormat>(*format)) {
        render(static_cast<const ChoiceFormat*>(format)->choose(readNumber(argument)));
    } else if (is<DecimalFormat>(*format)) {
        DecimalForm(*static_cast<const DecimalFormat*>(format)).appendArgument(argument, out_);
    } else {
        static_cast<const SimpleDateFormat*>(format)->write(argument, out_);
    }
    out_.append(element.suffix_);
}

std::string renderPattern(std::string_view pattern, const std::list<boost::any>& args) {
    constexpr std::size_t shortestPlaceholder = 3;
    constexpr std::size_t usualArgument = 32;
    constexpr std::size_t littleWaste = 1024;
    std::string text;
    const std::size_t placeholders = std::min(args.size(), pattern.size() / shortestPlaceholder);
    const std::size_t usualSize = pattern.size() + placeholders * usualArgument;
    if (usualSize > TextOutput::largestRoom) {
        text.reserve(usualSize);
    }
    TextOutput output(text);
    MessageRenderer(args, output).render(pattern);
    // A new string is made of the exact size, which an empty one would exceed in growing.
    if (text.empty() && text.capacity() < output.size()) {
        return std::string(output.gathered());
    }
    output.finish();
    if (text.capacity() > 2 * text.size() + littleWaste) {
        text.shrink_to_fit();
    }
    return text;
}

} // namespace zem::msglib
