#include "date/RunRenderer.h"

#include "base/TextOutput.h"
#include "platform/LastError.h"

#include <algorithm>

namespace zem::msglib {

void RunRenderer::append(PictureOperation operation, char letter, std::size_t length,
                         TextOutput& out) {
    const char* picture = pictureOf(letter, length);
    if (!write(operation, picture, out) &&
        platform::GetLastError() == platform::ERROR_INSUFFICIENT_BUFFER &&
        grow(write(operation, picture, nullptr, 0))) {
        write(operation, picture, out);
    }
}

// As long as the first size is enough, the platform writes to where the text goes.
bool RunRenderer::write(PictureOperation operation, const char* picture, TextOutput& out) {
    const bool isFirst = grown_.empty();
    char* const buffer = isFirst ? out.room(firstSize) : grown_.data();
    const int written = write(operation, picture, buffer, size());
    char* const end = std::find(buffer, buffer + std::max(written, 0), '\0');
    if (isFirst) {
        out.advanceTo(end);
    } else {
        out.append({buffer, static_cast<std::size_t>(end - buffer)});
    }
    return written != 0;
}

const char* RunRenderer::pictureOf(char letter, std::size_t length) {
    if (length < sizeof shortPicture_) {
        char* end = shortPicture_;
        for (; length > 0; --length) {
            *end++ = letter;
        }
        *end = '\0';
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
