#include "date/RunRenderer.h"

#include "base/Compiler.h"
#include "base/TextOutput.h"
#include "platform/LastError.h"

#include <algorithm>
#include <iterator>

namespace zem::msglib {

namespace {

constexpr int firstSize = 64;

// Returns the end of the text that the platform has written. It is fresh in memory, which block
// operations would have to wait for.
char* endOfText(char* text, int written) noexcept {
    char* const last = text + std::max(written, 0);
    while (text != last && *text != '\0') {
        ++text;
    }
    return text;
}

} // namespace

// As long as the first size is enough, the platform writes to where the text goes.
void RunRenderer::append(PictureOperation operation, char letter, std::size_t length,
                         TextOutput& out) {
    const char* const picture = pictureOf(letter, length);
    if (!grown_.empty()) {
        appendThroughBuffer(operation, picture, out);
        return;
    }
    char* const room = out.room(firstSize);
    const int written = write(operation, picture, room, firstSize);
    out.advanceTo(endOfText(room, written));
    if (written == 0 && growFor(operation, picture)) {
        appendGrown(operation, picture, out);
    }
}

// Nearly all runs go without what follows, and need not make room for it.

MSGLIB_NOINLINE void RunRenderer::appendThroughBuffer(PictureOperation operation,
                                                      const char* picture, TextOutput& out) {
    if (!appendGrown(operation, picture, out) && growFor(operation, picture)) {
        appendGrown(operation, picture, out);
    }
}

bool RunRenderer::appendGrown(PictureOperation operation, const char* picture, TextOutput& out) {
    char* const buffer = grown_.data();
    const int written = write(operation, picture, buffer, static_cast<int>(grown_.size()));
    out.append({buffer, static_cast<std::size_t>(endOfText(buffer, written) - buffer)});
    return written != 0;
}

// Makes room for the length that the platform asks for, if that is why it has refused a run.
MSGLIB_NOINLINE bool RunRenderer::growFor(PictureOperation operation, const char* picture) {
    if (platform::GetLastError() != platform::ERROR_INSUFFICIENT_BUFFER) {
        return false;
    }
    const int needed = write(operation, picture, nullptr, 0);
    if (needed > 0) {
        grown_.resize(
            std::max({std::size_t{firstSize}, grown_.size(), static_cast<std::size_t>(needed)}));
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
