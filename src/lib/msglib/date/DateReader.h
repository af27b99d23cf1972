#pragma once

#include "base/Scanning.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zem::msglib {

constexpr std::string_view dateLetters = "dMyg";
constexpr std::string_view timeLetters = "hHmst";

/// The kinds of pieces in a date pattern.
enum class DatePiece : std::uint8_t {
    Literal, ///< one byte of plain text
    Quoted,  ///< quoted text, without its opening apostrophe
    Date,    ///< a run of one letter, a field of the date
    Time,    ///< a run of one letter, a field of the time
};

/// The kind of piece that each byte begins outside quoted text.
struct DatePieces {
    DatePiece of[UCHAR_MAX + 1];
};

constexpr DatePieces datePiecesFor(std::string_view date, std::string_view time) noexcept {
    DatePieces pieces{};
    pieces.of[static_cast<unsigned char>(quote)] = DatePiece::Quoted;
    for (const char letter : date) {
        pieces.of[static_cast<unsigned char>(letter)] = DatePiece::Date;
    }
    for (const char letter : time) {
        pieces.of[static_cast<unsigned char>(letter)] = DatePiece::Time;
    }
    return pieces;
}

constexpr DatePieces datePieces = datePiecesFor(dateLetters, timeLetters);

/// Returns the quoted text from `position` on, up to its closing apostrophe. That is included if it
/// is the first of two, which are one plain apostrophe.
inline std::string_view quotedTextAt(std::string_view pattern, std::size_t position) noexcept {
    const std::size_t end = std::min(pattern.find(quote, position), pattern.size());
    return pattern.substr(position, end - position + (holdsAt(pattern, end + 1, quote) ? 1 : 0));
}

/// Returns the run of one letter that begins at `position`.
inline std::string_view runAt(std::string_view pattern, std::size_t position) noexcept {
    std::size_t end = position + 1;
    while (holdsAt(pattern, end, pattern[position])) {
        ++end;
    }
    return pattern.substr(position, end - position);
}

/// Reads a date pattern piece by piece. Takes linear time.
///
/// @param sink  called with the kind of each piece and the piece, a part of the pattern. Quoted
///              text that contains apostrophes is delivered in several pieces; without a closing
///              apostrophe it extends to the end of the pattern
template <class Sink>
void readDatePattern(std::string_view pattern, Sink&& sink) {
    for (std::size_t position = 0; position < pattern.size();) {
        const DatePiece piece = datePieces.of[static_cast<unsigned char>(pattern[position])];
        switch (piece) {
        case DatePiece::Literal:
            sink(piece, pattern.substr(position, 1));
            ++position;
            break;
        case DatePiece::Quoted: {
            const std::string_view text = quotedTextAt(pattern, position + 1);
            const std::size_t end = position + 1 + text.size();
            sink(piece, text);
            // The second of two apostrophes opens quoted text again.
            position = !text.empty() && text.back() == quote ? end : end + 1;
            break;
        }
        case DatePiece::Date:
        case DatePiece::Time: {
            const std::string_view run = runAt(pattern, position);
            sink(piece, run);
            position += run.size();
        }
        }
    }
}

} // namespace zem::msglib
