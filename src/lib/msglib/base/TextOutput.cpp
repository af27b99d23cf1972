#include "base/TextOutput.h"

namespace zem::msglib {

void TextOutput::cutTo(std::size_t size) {
    if (size < out_.size()) {
        out_.resize(size);
    }
    end_ = gathered_ + (size - out_.size());
}

void TextOutput::finish() {
    out_.append(gathered_, static_cast<std::size_t>(end_ - gathered_));
    end_ = gathered_;
}

void TextOutput::appendBeyond(std::string_view text) {
    finish();
    out_ += text;
}

} // namespace zem::msglib
