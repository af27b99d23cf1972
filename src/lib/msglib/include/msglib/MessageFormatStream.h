#pragma once

#include "msglib/Export.h"

#include <memory>
#include <string>
#include <string_view>

namespace zem::msglib {

/// Builds a message in one expression: an identifier or a pattern, arguments by `operator<<`, the
/// text by `toString`.
///
///     std::string text = (MessageFormatStream(MSG_COPIED) << 7 << folder).toString();
///
/// Streaming another stream joins its message to this one. Everything works on temporaries, so
/// `operator<<` takes a const stream. It changes the stream all the same, and so does `toString`.
///
/// Copies are deep, except that the characters of a pattern are borrowed: they must stay valid and
/// unchanged as long as any stream made from them, by copying or joining too, can render. A
/// moved-from stream may only be assigned to or destroyed.
///
/// Adding an argument takes constant time and one copy of it.
///
/// Threads: a stream belongs to one thread at a time, even as const.
class MSGLIB_API MessageFormatStream {
public:
    /// Begins the message that a registered module carries under `messageId`.
    MessageFormatStream(unsigned int messageId);

    /// Begins a message by a pattern, which must end with a NUL. Null means the identifier 0.
    MessageFormatStream(const char* pattern);

    /// Copies message, arguments and the text so far, but not the characters of a pattern.
    MessageFormatStream(const MessageFormatStream& other);

    /// Takes everything from `other`, which may then only be assigned to or destroyed.
    MessageFormatStream(MessageFormatStream&& other) noexcept;

    /// Replaces what this stream held by a copy. Assigning a stream to itself changes nothing.
    MessageFormatStream& operator=(const MessageFormatStream& other);

    /// Replaces what this stream held by everything that `other` has. Assigning a stream to itself
    /// changes nothing.
    MessageFormatStream& operator=(MessageFormatStream&& other) noexcept;

    ~MessageFormatStream();

    /// Returns the identifier of the current message, that of the last one joined; 0 for a pattern.
    unsigned int messageId() const;

    /// Renders the current message, appends it to the text so far and returns all of that text.
    ///
    /// Each call renders and appends anew, so a second call returns the message twice.
    ///
    /// If a message by identifier can't be fetched, compiled or rendered, the words of the failure
    /// take its place in the text. A message by pattern throws instead, as `MessageFormat` does,
    /// and the text so far stays.
    ///
    /// @throws std::runtime_error "Invalid message ID" if the identifier's facility isn't
    ///         registered
    /// @throws std::out_of_range  for a `long` or `unsigned long` argument that doesn't fit
    std::string toString() const;

private:
    struct Impl;

    MessageFormatStream& append(const MessageFormatStream& other);

    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      char value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream, int value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      long value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      long long value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      unsigned int value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      unsigned long value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      unsigned long long value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      double value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      const char* value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      const std::string& value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      const std::string_view& value);
    friend MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                                      const MessageFormatStream& value);

    std::unique_ptr<Impl> impl_;
};

/// Adds an argument to the current message of `stream`, and returns `stream`.
///
/// Each value is copied and keeps its own type; a `char` becomes a text of one byte. A
/// `const char*` ends at its NUL and must not be null; a view keeps its NULs.
///
/// @throws std::out_of_range from the `long` and `unsigned long` forms, outside the range of 32
///         bits
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream, char value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream, int value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream, long value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream, long long value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream, unsigned int value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream, unsigned long value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                           unsigned long long value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream, double value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream, const char* value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                           const std::string& value);
/// @copydoc operator<<(const MessageFormatStream&, char)
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                           const std::string_view& value);

/// Joins the message of `value` to that of `stream`, and returns `stream`.
///
/// The message so far is rendered into the text of `stream`, as by `toString`. Then `stream` takes
/// over the identifier or pattern and a copy of the arguments of `value`, and later arguments go to
/// that message. The text that `value` has rendered so far is not taken. A stream joined to itself
/// keeps its message, which then appears twice.
///
///     MessageFormatStream first("a{0}"), second("b{0}");
///     (first << "1" << second << "2").toString() -> "a1b2"
///
/// @throws whatever `toString` throws; `stream` keeps its old message and arguments then
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                           const MessageFormatStream& value);

} // namespace zem::msglib
