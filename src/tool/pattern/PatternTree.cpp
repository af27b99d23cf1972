#include "tool/pattern/PatternTree.h"

#include "base/BraceIndex.h"
#include "base/Failure.h"
#include "base/Scanning.h"
#include "message/FormatElement.h"
#include "message/PlaceholderReader.h"
#include "message/PlaceholderStyle.h"
#include "number/ChoiceReader.h"

#include <locale>
#include <stdexcept>
#include <utility>

// A pattern goes in, a list of texts comes out, read by the library's own readers. A text is split
// into static pieces and placeholders, and a choice into its entries. The texts of the entries are
// appended to the list and read later. So the machine stack does not grow with the nesting of a
// pattern.

namespace zem::msglib::tool {

namespace {

// From this number of nested choices on, an index of braces saves time.
constexpr std::size_t fewLevels = 8;

using Kind = SyntaxError::Kind;

/// Returns whether the library reads a style as a pattern of its type and not as a style keyword.
bool isCustom(std::string_view type, const PlaceholderStyle& style) noexcept {
    return style.build == PlaceholderStyle::of(type, "*").build;
}

PlaceholderKind kindOf(std::string_view type, std::string_view style) noexcept {
    const PlaceholderStyle& formatter = PlaceholderStyle::of(type, style);
    if (formatter.build == nullptr) {
        return type.empty() && style.empty() ? PlaceholderKind::Plain : PlaceholderKind::Unknown;
    }
    if (formatter.append == nullptr) {
        return PlaceholderKind::Choice;
    }
    if (type == "number") {
        return isCustom(type, formatter) ? PlaceholderKind::DecimalStyle : PlaceholderKind::Number;
    }
    return isCustom(type, formatter) ? PlaceholderKind::DateStyle : PlaceholderKind::Date;
}

/// Finds the characters that apostrophes in a choice make disappear. A reader leaves out an
/// apostrophe, hands out the byte after it, and leaves out the next byte. That one should be an
/// apostrophe too.
class DropFinder {
public:
    DropFinder(const TracedText& style, std::size_t position) noexcept
        : style_(style),
          end_(position) {}

    /// Receives the next piece of the text of a choice.
    void operator()(std::string_view piece, std::vector<DroppedCharacter>& found) {
        const std::string_view text = style_.text();
        const auto begin = static_cast<std::size_t>(piece.data() - text.data());
        for (; end_ < begin; ++end_) {
            if (text[end_] != quote) {
                const Place place = style_.place(end_ - 2, end_ + 1);
                const bool isSplit = (static_cast<unsigned char>(text[end_]) & 0x80) != 0;
                found.push_back({place, isSplit, text[end_ - 1], text[end_],
                                 style_.place(end_ - 1, end_ - 1).offset});
            }
        }
        end_ = begin + piece.size();
    }

private:
    const TracedText& style_;
    std::size_t end_; // of the previous piece
};

class TreeReader {
public:
    explicit TreeReader(std::deque<PatternText>& texts) noexcept : texts_(texts) {}

    void read(std::size_t number) {
        PatternText& text = texts_[number];
        if (text.braces == nullptr && text.depth >= fewLevels &&
            text.text.text().find(quote) == std::string_view::npos) {
            text.braces = std::make_shared<BraceIndex>(text.text.text());
        }
        number_ = number;
        PlaceholderReader reader(text.text.text(), text.braces.get());
        // When the reader hands out a quoted byte, its position is at the apostrophe before it.
        const auto keep = [&text, &reader](std::string_view piece) {
            const std::string_view rest = reader.from(reader.position());
            text.pieces.push_back({piece, piece.data() == rest.data() + 1});
        };
        try {
            while (reader.readText(keep) && readPlaceholder(reader, text)) {
            }
        } catch (const PatternFailure& failure) {
            addError(text, Kind::StrayBrace, failure, Place());
        }
    }

private:
    static void addError(PatternText& text, Kind kind, const PatternFailure& failure,
                         const Place& opening) {
        const std::size_t begin = failure.position();
        const std::size_t end = begin + (begin < text.text.size() ? 1 : 0);
        text.errors.push_back({kind, failure.what(), text.text.place(begin, end), opening});
    }

    /// Returns whether there is more to read.
    bool readPlaceholder(PlaceholderReader& reader, PatternText& text) {
        const std::size_t begin = reader.position();
        const Place opening = text.text.place(begin, begin + 1);
        const auto index = readIndex(reader, text, opening);
        const std::string_view indexText =
            text.text.text().substr(begin + 1, reader.position() - begin - 1);
        TracedText type = readPart(reader, text, &PlaceholderReader::readType<TextTracer&>);
        TracedText style = readPart(reader, text, &PlaceholderReader::readStyle<TextTracer&>);
        try {
            reader.readEnd();
        } catch (const PatternFailure& failure) {
            if (index) {
                addError(text, Kind::OpenBrace, failure, opening);
            }
            return false;
        }
        if (index) {
            const PlaceholderKind kind = kindOf(type.text(), style.text());
            text.placeholders.push_back({text.text.place(begin, reader.position()),
                                         *index,
                                         text.text.part(indexText),
                                         std::move(type),
                                         std::move(style),
                                         kind,
                                         {}});
            readStyle(text, text.placeholders.back());
        }
        return true;
    }

    static std::optional<int> readIndex(PlaceholderReader& reader, PatternText& text,
                                        const Place& opening) {
        try {
            return reader.readIndex();
        } catch (const PatternFailure& failure) {
            addError(text, Kind::NoIndex, failure, opening);
            text.errors.back().place = text.text.place(failure.position(), reader.position());
            return std::nullopt;
        }
    }

    static TracedText readPart(PlaceholderReader& reader, const PatternText& text,
                               void (PlaceholderReader::*read)(TextTracer&)) {
        TextTracer part(text.text, reader.position());
        (reader.*read)(part);
        return part.take();
    }

    void readStyle(PatternText& text, Placeholder& placeholder) {
        if (placeholder.kind == PlaceholderKind::Choice && placeholder.style.size() > 0) {
            readChoice(text, placeholder);
        } else if (placeholder.kind == PlaceholderKind::Choice ||
                   placeholder.kind == PlaceholderKind::DecimalStyle) {
            compile(text, placeholder);
        }
    }

    /// Compiles the style as the library does, to find its errors.
    static void compile(PatternText& text, const Placeholder& placeholder) {
        FormatElement element;
        element.type_ = placeholder.type.text();
        element.style_ = placeholder.style.text();
        try {
            element.buildFormat(std::locale::classic());
        } catch (const PatternFailure& failure) {
            addStyleError(text, placeholder, failure.what(), failure.position());
        } catch (const std::runtime_error& failure) {
            addStyleError(text, placeholder, failure.what(), std::string_view::npos);
        }
    }

    static void addStyleError(PatternText& text, const Placeholder& placeholder,
                              const char* message, std::size_t position) {
        const TracedText& style = placeholder.style;
        const bool isChoice = placeholder.kind == PlaceholderKind::Choice;
        Place place = style.size() == 0 ? placeholder.whole : style.place();
        if (position < style.size()) {
            place = style.place(position, position + 1);
        }
        text.errors.push_back({isChoice ? Kind::ChoiceStyle : Kind::DecimalStyle, message, place,
                               placeholder.whole, style, position});
    }

    void readChoice(PatternText& text, Placeholder& placeholder) {
        const TracedText& style = placeholder.style;
        ChoiceReader reader(style.text(), text.braces.get());
        try {
            while (readEntry(reader, text, placeholder)) {
            }
        } catch (const PatternFailure& failure) {
            addStyleError(text, placeholder, failure.what(), failure.position());
            text.errors.back().place = style.place(failure.position(), style.size());
        }
    }

    /// Returns whether another entry follows.
    bool readEntry(ChoiceReader& reader, PatternText& text, Placeholder& placeholder) {
        const TracedText& style = placeholder.style;
        const std::size_t begin = reader.position();
        const double limit = reader.readLimit();
        const std::size_t separator = reader.position() - 1;
        TextTracer chosen(style, reader.position());
        DropFinder drops(style, reader.position());
        const bool more = reader.readText([&](std::string_view piece) {
            chosen(piece);
            drops(piece, text.dropped);
        });
        const std::size_t end = reader.position() - 1;
        const bool endsAtBrace = more && style.text()[end] == '}';
        placeholder.entries.push_back({style.part(style.text().substr(begin, separator - begin)),
                                       limit, style.text()[separator],
                                       endsAtBrace ? style.place(end, end + 1) : Place(),
                                       texts_.size()});
        texts_.push_back({chosen.take(),
                          text.depth + 1,
                          number_,
                          text.placeholders.size() - 1,
                          text.braces,
                          {},
                          {},
                          {},
                          {}});
        return more;
    }

    std::deque<PatternText>& texts_;
    std::size_t number_ = 0; // of the text that is being read
};

} // namespace

PatternTree::PatternTree(const Place& pattern) {
    texts_.push_back({TracedText(pattern), 0, 0, 0, nullptr, {}, {}, {}, {}});
    TreeReader reader(texts_);
    for (std::size_t number = 0; number < texts_.size(); ++number) {
        reader.read(number);
    }
}

} // namespace zem::msglib::tool
