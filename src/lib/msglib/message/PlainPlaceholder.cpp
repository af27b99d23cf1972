#include "message/PlainPlaceholder.h"

#include "base/Extraction.h"
#include "message/PatternText.h"

namespace zem::msglib {

namespace {

// Reads a type or style and leaves `position` behind it; false if it doesn't lie there as it is.
bool readPart(std::string_view pattern, std::size_t& position, char endByte,
              std::string_view& text) {
    SinglePiece part;
    position = scanElement(pattern, position, endByte, part);
    text = part.text();
    return part.isWhole();
}

} // namespace

std::size_t readPlainPlaceholder(std::string_view pattern, std::size_t position,
                                 PlainPlaceholder& placeholder) {
    const std::size_t digits = readDigits(pattern, position, placeholder.index);
    position += digits;
    bool isPlain = digits > 0;
    if (isPlain && holdsAt(pattern, position, ',')) {
        isPlain = readPart(pattern, ++position, ',', placeholder.type);
    }
    if (isPlain && holdsAt(pattern, position, ',')) {
        isPlain = readPart(pattern, ++position, '}', placeholder.style);
    }
    return isPlain && holdsAt(pattern, position, '}') ? position + 1 : std::string_view::npos;
}

} // namespace zem::msglib
