#include "date/RunRenderer.h"

#include "base/Compiler.h"
#include "base/TextOutput.h"
#include "platform/LastError.h"

#include <algorithm>
#include <iterator>

namespace zem::msglib {

namespace {

constexpr int directSize = 64;

// Returns the end of the text that the platform has written. It compares byte by byte, since loads
// of whole blocks would stall on bytes that were stored just before.
char* endOfText(char* text, int written) noexcept {
    char* const last = text + std::max(written, 0);
    while (text != last && *text != '\0') {
        ++text;
    }
    return text;
}

} // namespace

void RunRenderer::append(PictureOperation operation, char letter, std::size_t length,
                         TextOutput& out) {
    const char* const picture = pictureOf(letter, length);
    if (!buffer_.empty()) {
        appendThroughBuffer(operation, picture, out);
        return;
    }
    char* const begin = out.reserve(directSize);
    const int written = write(operation, picture, begin, directSize);
    out.advanceTo(endOfText(begin, written));
    if (written == 0 && growBufferFor(operation, picture)) {
        appendBuffered(operation, picture, out);
    }
}

// Nearly all runs fit. The functions below aren't inline, so that those runs don't pay for them.

MSGLIB_NOINLINE void RunRenderer::appendThroughBuffer(PictureOperation operation,
                                                      const char* picture, TextOutput& out) {
    if (!appendBuffered(operation, picture, out) && growBufferFor(operation, picture)) {
        appendBuffered(operation, picture, out);
    }
}

bool RunRenderer::appendBuffered(PictureOperation operation, const char* picture, TextOutput& out) {
    char* const buffer = buffer_.data();
    const int written = write(operation, picture, buffer, static_cast<int>(buffer_.size()));
    out.append({buffer, static_cast<std::size_t>(endOfText(buffer, written) - buffer)});
    return written != 0;
}

// Enlarges the buffer to the length that the platform asks for, if the run failed for lack of
// space.
MSGLIB_NOINLINE bool RunRenderer::growBufferFor(PictureOperation operation, const char* picture) {
    if (platform::GetLastError() != platform::ERROR_INSUFFICIENT_BUFFER) {
        return false;
    }
    const int needed = write(operation, picture, nullptr, 0);
    if (needed > 0) {
        buffer_.resize(
            std::max({std::size_t{directSize}, buffer_.size(), static_cast<std::size_t>(needed)}));
    }
    return needed > 0;
}

const char* RunRenderer::pictureOf(char letter, std::size_t length) {
    if (length >= sizeof shortPicture_) {
        return longPictureOf(letter, length);
    }
    std::fill(std::begin(shortPicture_), std::end(shortPicture_), letter);
    shortPicture_[length] = '\0';
    return shortPicture_;
}

MSGLIB_NOINLINE const char* RunRenderer::longPictureOf(char letter, std::size_t length) {
    return longPicture_.assign(length, letter).c_str();
}

int RunRenderer::write(PictureOperation operation, const char* picture, char* buffer,
                       int size) const noexcept {
    return operation(platform::localeIdentifier, 0, &time_, picture, buffer, size);
}

} // namespace zem::msglib
