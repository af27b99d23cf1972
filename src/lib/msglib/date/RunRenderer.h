#pragma once

#include "platform/LocaleServices.h"

#include <cstddef>
#include <string>
#include <vector>

namespace zem::msglib {

class TextOutput;

/// Writes runs of one letter through the platform, all into one buffer that grows when the platform
/// asks for more.
class RunRenderer {
public:
    using PictureOperation = decltype(&platform::GetDateFormatA);

    explicit RunRenderer(const platform::SYSTEMTIME& time) noexcept : time_(time) {}

    /// Appends the text of `length` times `letter`; nothing for a run that the platform refuses.
    void append(PictureOperation operation, char letter, std::size_t length, TextOutput& out);

private:
    void appendThroughBuffer(PictureOperation operation, const char* picture, TextOutput& out);
    bool appendGrown(PictureOperation operation, const char* picture, TextOutput& out);
    bool growFor(PictureOperation operation, const char* picture);
    const char* pictureOf(char letter, std::size_t length);
    const char* longPictureOf(char letter, std::size_t length);
    int write(PictureOperation operation, const char* picture, char* buffer,
              int size) const noexcept;

    platform::SYSTEMTIME time_;
    std::vector<char> grown_;
    char shortPicture_[16];
    std::string longPicture_;
};

} // namespace zem::msglib
