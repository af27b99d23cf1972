#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace zem::msglib {

/// Appends text to a string, which it borrows, through a buffer: a short piece costs neither a call
/// nor an access to the string. The destructor doesn't flush; the user calls `flush` at the end.
class TextOutput {
public:
    /// The most bytes that `reserve` provides at once.
    static constexpr std::size_t bufferSize = 512;

    explicit TextOutput(std::string& out) noexcept : out_(out) {}
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;

    /// Calls `write(TextOutput&)`, flushes and returns `out`. If `write` throws, the bytes before
    /// that are appended.
    template <class Write>
    static std::string& to(std::string& out, Write write);

    /// Appends one byte.
    void append(char byte) {
        *reserve(1) = byte;
        ++end_;
    }

    /// Appends `text`, which must not be part of the string.
    void append(std::string_view text) {
        if (text.size() > available()) {
            appendUnbuffered(text);
            return;
        }
        copy(text, end_);
        end_ += text.size();
    }

    /// Returns where the next bytes go, with space for `size` of them, at most `bufferSize`.
    char* reserve(std::size_t size) {
        if (size > available()) {
            flush();
        }
        return end_;
    }

    /// Appends the bytes from what `reserve` returned last to `end`, which are already written.
    void advanceTo(char* end) noexcept { end_ = end; }

    /// Returns the size of the string with the buffered bytes.
    std::size_t size() const noexcept { return out_.size() + buffered().size(); }

    /// Returns the buffered bytes, which are valid until the next change.
    std::string_view buffered() const noexcept {
        return {buffer_, static_cast<std::size_t>(end_ - buffer_)};
    }

    /// Removes everything after an earlier `size`.
    void truncate(std::size_t size);

    /// Appends the buffered bytes to the string.
    void flush();

private:
    std::size_t available() const noexcept {
        return static_cast<std::size_t>(buffer_ + bufferSize - end_);
    }
    void appendUnbuffered(std::string_view text);

    // A short text is copied as two words, which may overlap: calling a function costs more.
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
    char* end_ = buffer_;
    char buffer_[bufferSize];
};

template <class Write>
std::string& TextOutput::to(std::string& out, Write write) {
    TextOutput output(out);
    try {
        write(output);
    } catch (...) {
        output.flush();
        throw;
    }
    output.flush();
    return out;
}

} // namespace zem::msglib
