#include "message/PlaceholderReader.h"

#include "base/Compiler.h"
#include "base/Extraction.h"

namespace zem::msglib {

// Not inline, so that plain digits don't pay for it.
MSGLIB_NOINLINE int PlaceholderReader::extractIndex() {
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
