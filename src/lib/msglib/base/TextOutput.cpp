#include "base/TextOutput.h"

#include "base/Compiler.h"

namespace zem::msglib {

void TextOutput::cutTo(std::size_t size) {
    if (size < out_.size()) {
        out_.resize(size);
    }
    end_ = gathered_ + (size - out_.size());
}

void TextOutput::finish() {
    out_ += gathered();
    end_ = gathered_;
}

// Not inline, since every call of `append` would have to make room for it.
MSGLIB_NOINLINE void TextOutput::appendBeyond(std::string_view text) {
    finish();
    out_ += text;
}

} // namespace zem::msglib
