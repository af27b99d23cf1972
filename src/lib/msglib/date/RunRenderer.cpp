#include "date/RunRenderer.h"

#include "base/TextOutput.h"
#include "platform/LastError.h"

#include <algorithm>
#include <iterator>

namespace zem::msglib {

namespace {

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

void RunRenderer::append(PictureOperation operation, char letter, std::size_t length,
                         TextOutput& out) {
    const char* picture = pictureOf(letter, length);
    bool mayGrow = true;
    while (!write(operation, picture, out) && mayGrow &&
           platform::GetLastError() == platform::ERROR_INSUFFICIENT_BUFFER &&
           grow(write(operation, picture, nullptr, 0))) {
        mayGrow = false;
    }
}

// As long as the first size is enough, the platform writes to where the text goes.
bool RunRenderer::write(PictureOperation operation, const char* picture, TextOutput& out) {
    const bool isFirst = grown_.empty();
    char* const buffer = isFirst ? out.room(firstSize) : grown_.data();
    const int written = write(operation, picture, buffer, size());
    char* const end = endOfText(buffer, written);
    if (isFirst) {
        out.advanceTo(end);
    } else {
        out.append({buffer, static_cast<std::size_t>(end - buffer)});
    }
    return written != 0;
}

const char* RunRenderer::pictureOf(char letter, std::size_t length) {
    if (length < sizeof shortPicture_) {
        std::fill(std::begin(shortPicture_), std::end(shortPicture_), letter);
        shortPicture_[length] = '\0';
        return shortPicture_;
    }
    return longPicture_.assign(length, letter).c_str();
}

int RunRenderer::write(PictureOperation operation, const char* picture, char* buffer,
                       int size) const noexcept {
    return operation(platform::localeIdentifier, 0, &time_, picture, buffer, size);
}

// Makes room for the length that the platform asks for, which is 0 if it doesn't tell.
bool RunRenderer::grow(int needed) {
    if (needed > size()) {
        grown_.resize(static_cast<std::size_t>(needed));
    }
    return needed > 0;
}

} // namespace zem::msglib
