#pragma once

#include "platform/LocaleServices.h"

#include <cstddef>
#include <string>
#include <vector>

namespace zem::msglib {

/// Writes runs of one letter through the platform, all into one buffer that grows when the platform
/// asks for more.
class RunRenderer {
public:
    using PictureOperation = decltype(&platform::GetDateFormatA);

    explicit RunRenderer(const platform::SYSTEMTIME& time) noexcept : time_(time) {}

    /// Appends the text of `length` times `letter`; nothing for a run that the platform refuses.
    void append(PictureOperation operation, char letter, std::size_t length, std::string& out);

private:
    const char* pictureOf(char letter, std::size_t length);
    int write(PictureOperation operation, const char* picture, char* buffer,
              int size) const noexcept;
    bool grow(int needed);
    char* buffer() noexcept { return grown_.empty() ? first_ : grown_.data(); }
    int size() const noexcept {
        return static_cast<int>(grown_.empty() ? sizeof first_ : grown_.size());
    }

    platform::SYSTEMTIME time_;
    char first_[64];
    std::vector<char> grown_;
    char shortPicture_[16];
    std::string longPicture_;
};

} // namespace zem::msglib
