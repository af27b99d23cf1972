#pragma once

#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// Puts the escape sequences of terminals around parts of a text, or returns them unchanged if
/// colours are off.
class Colours {
public:
    explicit Colours(bool isOn = false) noexcept : isOn_(isOn) {}

    std::string title(std::string_view text) const { return around("\x1B[1m", text); }
    std::string error(std::string_view text) const { return around("\x1B[1;31m", text); }
    std::string warning(std::string_view text) const { return around("\x1B[1;35m", text); }
    std::string note(std::string_view text) const { return around("\x1B[1;36m", text); }
    std::string good(std::string_view text) const { return around("\x1B[1;32m", text); }
    std::string value(std::string_view text) const { return around("\x1B[36m", text); }

private:
    std::string around(const char* begin, std::string_view text) const {
        return isOn_ && !text.empty() ? begin + std::string(text) + "\x1B[0m" : std::string(text);
    }

    bool isOn_;
};

} // namespace zem::msglib::tool
