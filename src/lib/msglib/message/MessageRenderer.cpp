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

// A pattern goes in, text comes out, and nothing is compiled first. `render` reads the pattern
// piece by piece: static text is appended, and a placeholder is rendered by the function for its
// type and style. A choice replaces the reader by one for the chosen text and keeps the outer one
// in a frame until that text is finished. On a failure, `compileRest` compiles what has not been
// read yet, since a syntax error later in the pattern would have been the failure of compiling it
// first.

namespace zem::msglib {

namespace {

// All formatters of elements are created in the library, so each type has one `type_info` object,
// and comparing addresses is enough.
template <class Kind>
bool is(const Format& format) noexcept {
    return &typeid(format) == &typeid(Kind);
}

// The depth of nested choices from which an index of braces is faster than scanning.
constexpr std::size_t indexedDepth = 8;

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

// Not inline, so that keywords don't pay for it.
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

// Continues with the text that a choice selects, which is a message itself.
MSGLIB_NOINLINE void MessageRenderer::enterChoice(PlaceholderReader& reader, std::string_view style,
                                                  ScannedText&& copy, const boost::any& argument) {
    if (style.empty()) {
        raise(Failure::ChoiceStyleMissing);
    }
    ScannedText chosen = chooseText(style, readNumber(argument), reader.braces());
    const std::string_view text = chosen.text();
    Frame frame{std::move(chosen.isCopy() ? chosen : copy), nullptr, reader, out_.size()};
    const BraceIndex* braces = reader.braces();
    if (braces == nullptr && frames_.size() >= indexedDepth &&
        text.find(quote) == std::string_view::npos) {
        frame.braces = std::make_unique<BraceIndex>(text);
        braces = frame.braces.get();
    }
    frames_.push_back(std::move(frame));
    reader = PlaceholderReader(text, braces);
    placeholder_ = 0;
}

// Returns to the message that contains the choice; false if there is none.
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

// If the message doesn't compile, removes its text: the output had the size `begin` before it.
void MessageRenderer::compile(std::string_view pattern, std::size_t begin) {
    try {
        MessageFormat{std::string(pattern)};
    } catch (const std::runtime_error&) {
        out_.truncate(begin);
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
    constexpr std::size_t expectedArgumentSize = 8;
    constexpr std::size_t acceptableSlack = 1024;
    std::string text;
    const std::size_t placeholders = std::min(args.size(), pattern.size() / shortestPlaceholder);
    const std::size_t expectedSize = pattern.size() + placeholders * expectedArgumentSize;
    if (expectedSize > TextOutput::bufferSize) {
        text.reserve(expectedSize);
    }
    TextOutput output(text);
    MessageRenderer(args, output).render(pattern);
    // A new string gets the exact size; growing the empty one would exceed it.
    if (text.empty() && text.capacity() < output.size()) {
        return std::string(output.buffered());
    }
    output.flush();
    if (text.capacity() > 2 * text.size() + acceptableSlack) {
        text.shrink_to_fit();
    }
    return text;
}

} // namespace zem::msglib
