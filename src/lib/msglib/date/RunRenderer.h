#pragma once

#include "platform/LocaleServices.h"

#include <cstddef>
#include <string>
#include <vector>

namespace zem::msglib {

class TextOutput;

/// Renders runs of one letter with the platform's picture operations.
///
/// The platform writes directly into the output. Once it has asked for more space than that offers,
/// a buffer that grows with the longest run takes its place.
class RunRenderer {
public:
    using PictureOperation = decltype(&platform::GetDateFormatA);

    explicit RunRenderer(const platform::SYSTEMTIME& time) noexcept : time_(time) {}

    /// Appends the text of a run: `letter`, `length` times. A run that the platform rejects adds
    /// nothing.
    void append(PictureOperation operation, char letter, std::size_t length, TextOutput& out);

private:
    void appendThroughBuffer(PictureOperation operation, const char* picture, TextOutput& out);
    bool appendBuffered(PictureOperation operation, const char* picture, TextOutput& out);
    bool growBufferFor(PictureOperation operation, const char* picture);
    const char* pictureOf(char letter, std::size_t length);
    const char* longPictureOf(char letter, std::size_t length);
    int write(PictureOperation operation, const char* picture, char* buffer,
              int size) const noexcept;

    platform::SYSTEMTIME time_;
    std::vector<char> buffer_;
    char shortPicture_[16];
    std::string longPicture_;
};

} // namespace zem::msglib
