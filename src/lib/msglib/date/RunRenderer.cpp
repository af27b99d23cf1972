#include "date/RunRenderer.h"

#include "platform/LastError.h"

#include <algorithm>

namespace zem::msglib {

void RunRenderer::append(PictureOperation operation, char letter, std::size_t length,
                         std::string& out) {
    const char* picture = pictureOf(letter, length);
    int written = write(operation, picture, buffer(), size());
    if (written == 0 && platform::GetLastError() == platform::ERROR_INSUFFICIENT_BUFFER &&
        grow(write(operation, picture, nullptr, 0))) {
        written = write(operation, picture, buffer(), size());
    }
    // Runs are short and fresh in memory, which block operations would have to wait for.
    const char* at = buffer();
    for (; written > 0 && *at != '\0'; --written) {
        out.push_back(*at++);
    }
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
