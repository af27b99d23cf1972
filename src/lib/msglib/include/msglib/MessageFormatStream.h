#pragma once

#include "msglib/Export.h"

#include <memory>
#include <string>
#include <string_view>

namespace zem::msglib {

/// Builds a message in one expression: the constructor takes an identifier or a pattern,
/// `operator<<` adds arguments, and `toString` returns the text.
///
///     std::string text = (MessageFormatStream(MSG_COPIED) << 7 << folder).toString();
///
/// Streaming another stream joins its message to this one. All operations work on temporaries, so
/// `operator<<` takes a const stream. Yet `operator<<` and `toString` change the stream.
///
/// Copies are deep, but the characters of a pattern are borrowed: they must stay valid and
/// unchanged until the last stream that uses them has rendered, copies and joined streams included.
/// A moved-from stream may only be assigned to or destroyed.
///
/// Adding an argument copies it and takes constant time otherwise. Rendering costs what
/// `MessageLibrary::formatMessage` costs.
///
/// Threads: every operation needs exclusive access to the stream, const ones included.
class MSGLIB_API MessageFormatStream {
public:
    /// Begins the message with the identifier `messageId` of a registered module.
    MessageFormatStream(unsigned int messageId);

    /// Begins the message of a NUL-terminated pattern. A null pointer means the identifier 0.
    MessageFormatStream(const char* pattern);

    /// Copies message, arguments and the text so far, but not the characters of a pattern.
    MessageFormatStream(const MessageFormatStream& other);

    /// Moves everything out of `other`, which may then only be assigned to or destroyed.
    MessageFormatStream(MessageFormatStream&& other) noexcept;

    /// Replaces this stream by a copy of `other`. Assigning a stream to itself changes nothing.
    MessageFormatStream& operator=(const MessageFormatStream& other);

    /// Moves everything out of `other`, in place of what this stream held. Assigning a stream to
    /// itself changes nothing.
    MessageFormatStream& operator=(MessageFormatStream&& other) noexcept;

    ~MessageFormatStream();

    /// Returns the identifier of the current message, the last one joined; 0 for a pattern.
    unsigned int messageId() const;

    /// Renders the current message, appends it to the text so far and returns all of that text.
    ///
    /// Each call renders and appends again, so a second call returns the message twice.
    ///
    /// If a message by identifier can't be fetched, compiled or rendered, the text of the failure
    /// replaces it. A message by pattern throws instead, as `MessageFormat` does, and leaves the
    /// text so far unchanged.
    ///
    /// @throws std::runtime_error "Invalid message ID" if the identifier's facility isn't
    ///         registered
    /// @throws std::out_of_range  for a `long` or `unsigned long` argument beyond 32 bits
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
/// `const char*` is NUL-terminated and must not be null; a view may contain NULs.
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
/// The current message is rendered into the text of `stream`, as by `toString`. Then `stream`
/// copies the identifier or pattern and the arguments of `value`; later arguments belong to that
/// message. The text that `value` has rendered so far is not copied. A stream joined to itself
/// keeps its message, which then appears twice.
///
///     MessageFormatStream first("a{0}"), second("b{0}");
///     (first << "1" << second << "2").toString() -> "a1b2"
///
/// @throws what `toString` throws; `stream` then keeps its message and arguments
MSGLIB_API MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                           const MessageFormatStream& value);

} // namespace zem::msglib
