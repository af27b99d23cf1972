#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace zem::msglib {

/// Text on its way into a string, which it borrows: it gathers here, so that short pieces cost
/// neither a call nor a look at the string each. `finish` appends what has gathered, and nothing
/// else does so at the end.
class TextOutput {
public:
    /// How much `room` can make at once.
    static constexpr std::size_t largestRoom = 512;

    explicit TextOutput(std::string& out) noexcept : out_(out) {}
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;

    /// Lets `write(TextOutput&)` append to `out`, and returns `out`. If it throws, what came before
    /// that is appended.
    template <class Write>
    static std::string& to(std::string& out, Write write);

    /// Appends one byte.
    void append(char byte) {
        *room(1) = byte;
        ++end_;
    }

    /// Appends `text`, which must not lie in the string.
    void append(std::string_view text) {
        if (text.size() > left()) {
            appendBeyond(text);
            return;
        }
        copy(text, end_);
        end_ += text.size();
    }

    /// Returns where the next bytes go, with room for `size` of them, at most `largestRoom`.
    char* room(std::size_t size) {
        if (size > left()) {
            finish();
        }
        return end_;
    }

    /// Counts the bytes that have been written up to `end`, from what `room` returned last.
    void advanceTo(char* end) noexcept { end_ = end; }

    /// Returns the length of the string with what has gathered.
    std::size_t size() const noexcept { return out_.size() + gathered().size(); }

    /// Returns what has gathered, until the next change.
    std::string_view gathered() const noexcept {
        return {gathered_, static_cast<std::size_t>(end_ - gathered_)};
    }

    /// Takes the end away, down to an earlier `size`.
    void cutTo(std::size_t size);

    /// Appends what has gathered to the string.
    void finish();

private:
    std::size_t left() const noexcept {
        return static_cast<std::size_t>(gathered_ + largestRoom - end_);
    }
    void appendBeyond(std::string_view text);

    // Short texts are copied as two words that may overlap: calling a function costs more.
    static void copy(std::string_view text, char* to) noexcept {
        if (text.size() > 16) {
            std::memcpy(to, text.data(), text.size());
        } else if (text.size() >= 8) {
            copyEnds<8>(text, to);
        } else if (text.size() >= 4) {
            copyEnds<4>(text, to);
        } else if (text.size() >= 2) {
            copyEnds<2>(text, to);
        } else if (!text.empty()) {
            *to = text.front();
        }
    }

    template <std::size_t Size>
    static void copyEnds(std::string_view text, char* to) noexcept {
        const std::size_t last = text.size() - Size;
        char back[Size];
        std::memcpy(back, text.data() + last, Size);
        std::memcpy(to, text.data(), Size);
        std::memcpy(to + last, back, Size);
    }

    std::string& out_;
    char* end_ = gathered_;
    char gathered_[largestRoom];
};

template <class Write>
std::string& TextOutput::to(std::string& out, Write write) {
    TextOutput output(out);
    try {
        write(output);
    } catch (...) {
        output.finish();
        throw;
    }
    output.finish();
    return out;
}

} // namespace zem::msglib
