#include "msglib/MessageFormatStream.h"

#include "base/Argument.h"
#include "message/MessageRenderer.h"
#include "msglib/MessageLibrary.h"

#include <boost/any.hpp>

#include <list>
#include <utility>

// A stream is an identifier or a pattern, a list of arguments and the text of the messages that
// were joined before. Streaming a value copies it into the list. `toString` renders the message
// through the message library or, for a pattern, directly, and appends it to the text.

namespace zem::msglib {

struct MessageFormatStream::Impl {
    unsigned int messageId_ = 0;
    const char* pattern_ = nullptr; // borrowed; null for a message by identifier
    std::list<boost::any> args_;
    std::string text_;

    std::string rendered() const {
        return pattern_ != nullptr ? renderPattern(pattern_, args_)
                                   : MessageLibrary::instance().formatMessage(messageId_, args_);
    }

    template <class Value>
    void add(Value&& argument) {
        args_.emplace_back(std::forward<Value>(argument));
    }
};

MessageFormatStream::MessageFormatStream(unsigned int messageId) : impl_(std::make_unique<Impl>()) {
    impl_->messageId_ = messageId;
}

MessageFormatStream::MessageFormatStream(const char* pattern) : impl_(std::make_unique<Impl>()) {
    impl_->pattern_ = pattern;
}

MessageFormatStream::MessageFormatStream(const MessageFormatStream& other)
    : impl_(std::make_unique<Impl>(*other.impl_)) {}

MessageFormatStream::MessageFormatStream(MessageFormatStream&& other) noexcept = default;

MessageFormatStream& MessageFormatStream::operator=(const MessageFormatStream& other) {
    return *this = MessageFormatStream(other);
}

MessageFormatStream& MessageFormatStream::operator=(MessageFormatStream&& other) noexcept = default;

MessageFormatStream::~MessageFormatStream() = default;

unsigned int MessageFormatStream::messageId() const {
    return impl_->messageId_;
}

std::string MessageFormatStream::toString() const {
    std::string text = impl_->rendered();
    if (!impl_->text_.empty()) {
        text.insert(0, impl_->text_);
    }
    impl_->text_ = text;
    return text;
}

MessageFormatStream& MessageFormatStream::append(const MessageFormatStream& other) {
    // Everything that can fail comes before the first change.
    std::list<boost::any> args;
    if (this != &other) {
        args = other.impl_->args_;
    }
    impl_->text_ += impl_->rendered();
    if (this != &other) {
        impl_->messageId_ = other.impl_->messageId_;
        impl_->pattern_ = other.impl_->pattern_;
        impl_->args_ = std::move(args);
    }
    return *this;
}

namespace {

MessageFormatStream& changed(const MessageFormatStream& stream) {
    return const_cast<MessageFormatStream&>(stream);
}

} // namespace

MessageFormatStream& operator<<(const MessageFormatStream& stream, char value) {
    stream.impl_->add(std::string(1, value));
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, int value) {
    stream.impl_->add(value);
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, long value) {
    stream.impl_->add(checkedLong(value));
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, long long value) {
    stream.impl_->add(value);
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, unsigned int value) {
    stream.impl_->add(value);
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, unsigned long value) {
    stream.impl_->add(checkedLong(value));
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, unsigned long long value) {
    stream.impl_->add(value);
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, double value) {
    stream.impl_->add(value);
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, const char* value) {
    stream.impl_->add(std::string(value));
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, const std::string& value) {
    stream.impl_->add(value);
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream, const std::string_view& value) {
    stream.impl_->add(std::string(value));
    return changed(stream);
}

MessageFormatStream& operator<<(const MessageFormatStream& stream,
                                const MessageFormatStream& value) {
    return changed(stream).append(value);
}

} // namespace zem::msglib
