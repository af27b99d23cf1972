#pragma once

#include "msglib/Format.h"

#include <boost/any.hpp>

#include <list>
#include <map>
#include <memory>
#include <string>

namespace zem::msglib {

/// The interface by which a module registers its message table. A module that renders through
/// streams needs no other.
///
///     static const char inThisModule = 0;
///     IMessageLibrary::instance().registerFacility(0x12, &inThisModule);
///
/// Threads: registering needs exclusive access to the one message library: no other registration
/// and no rendering by identifier may run at the same time.
class MSGLIB_API IMessageLibrary {
public:
    IMessageLibrary() = default;
    IMessageLibrary(const IMessageLibrary&) = default;
    IMessageLibrary(IMessageLibrary&&) = default;
    IMessageLibrary& operator=(const IMessageLibrary&) = default;
    IMessageLibrary& operator=(IMessageLibrary&&) = default;

    /// Registers the module that contains `address` for the messages of `facility`. The last
    /// registration of a facility counts.
    ///
    /// The module must stay loaded as long as its messages may be rendered. Takes time at most
    /// linear in the number of loaded modules.
    ///
    /// @param facility  any number; only those up to 0x7FF occur in identifiers
    /// @param address   of a static object or a string literal of the module. An exported variable
    ///                  or an inline function may resolve to another module. The function that
    ///                  `msglib_add_catalogue` generates passes a correct address.
    /// @throws std::invalid_argument "Address is not inside a loaded module"; the registrations
    ///         are unchanged then
    virtual void registerFacility(unsigned int facility, const void* address) = 0;

    /// Returns the one message library, as `MessageLibrary::instance()` does.
    static IMessageLibrary& instance();

protected:
    // Not virtual: no object is destroyed through this interface.
    ~IMessageLibrary() = default;
};

/// Finds messages by identifier in the tables of the registered modules, and renders them.
///
/// A message identifier has 32 bits. Bits 16 to 26 are the number of the facility, and the whole
/// identifier is the key of the message in the table of that facility's module. Only texts in
/// English (United States) are found.
///
/// There is one object, from the first `instance()` until the library is unloaded, so destructors
/// of static objects may still render. Nothing is cached: each call fetches and compiles its text
/// again. Finding a text takes time logarithmic in the number of facilities and of messages;
/// rendering costs what `MessageFormat` describes.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class MSGLIB_API MessageLibrary final : public IMessageLibrary {
public:
    MessageLibrary(const MessageLibrary&) = delete;
    MessageLibrary& operator=(const MessageLibrary&) = delete;

    /// Returns the one message library. The first call, on any thread, creates it.
    static MessageLibrary& instance();

    void registerFacility(unsigned int facility, const void* address) override;

    /// Returns the text of `pattern` with `args`. Throws what `MessageFormat` throws.
    ///
    ///     formatMessage("{0} of {1}", {7, 10}) -> "7 of 10"
    std::string formatMessage(const std::string& pattern, const std::list<boost::any>& args) const;

    /// Returns the text of the message `messageId` with `args`. Line ends CR LF of the table become
    /// LF.
    ///
    /// If that fails, the result is the text of the failure: "Invalid message ID" if the module has
    /// no such message, "Unable to convert message string" if the message can't be converted to
    /// UTF-8, or the text of the `std::runtime_error` that `MessageFormat` throws.
    ///
    /// @throws std::runtime_error "Invalid message ID" if the identifier's facility isn't
    ///         registered
    /// @throws std::out_of_range  for a `long` or `unsigned long` argument beyond 32 bits
    std::string formatMessage(unsigned int messageId, const std::list<boost::any>& args) const;

private:
    MessageLibrary();
    ~MessageLibrary();

    std::unique_ptr<std::map<unsigned int, const void*>> facilities_;
};

} // namespace zem::msglib
