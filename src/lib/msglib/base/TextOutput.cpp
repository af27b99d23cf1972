#include "base/TextOutput.h"

#include "base/Compiler.h"

namespace zem::msglib {

void TextOutput::truncate(std::size_t size) {
    if (size < out_.size()) {
        out_.resize(size);
    }
    end_ = buffer_ + (size - out_.size());
}

void TextOutput::flush() {
    out_ += buffered();
    end_ = buffer_;
}

// Not inline: every caller of `append` would grow by it.
MSGLIB_NOINLINE void TextOutput::appendUnbuffered(std::string_view text) {
    flush();
    out_ += text;
}

} // namespace zem::msglib
