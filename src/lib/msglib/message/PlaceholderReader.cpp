#include "message/PlaceholderReader.h"

#include "base/Extraction.h"

namespace zem::msglib {

// Plain digits, by far the most frequent index, are read where they stand.
int PlaceholderReader::readIndex() {
    int index = 0;
    const std::size_t begin = position_ + 1;
    const std::size_t end = begin + readDigits(pattern_, begin, index);
    if (end == begin || !(holdsAt(pattern_, end, '}') || holdsAt(pattern_, end, ','))) {
        return extractIndex();
    }
    position_ = end;
    return index;
}

int PlaceholderReader::extractIndex() {
    const std::size_t begin = ++position_;
    ScannedText segment;
    readSegment(',', segment);
    int index = 0;
    if (!extractInt(segment.text(), index)) {
        raise(Failure::IllegalArgument, begin);
    }
    return index;
}

void PlaceholderReader::readEnd() {
    if (!skipEnd()) {
        raise(Failure::IllegalArgument, position_);
    }
}

} // namespace zem::msglib
