#pragma once

#include "msglib/Format.h"

#include <boost/any.hpp>

#include <list>
#include <map>
#include <memory>
#include <string>

namespace zem::msglib {

/// Where a module registers the messages that it carries. A module that renders through streams
/// needs no more than this.
class MSGLIB_API IMessageLibrary {
public:
    IMessageLibrary() = default;
    IMessageLibrary(const IMessageLibrary&) = default;
    IMessageLibrary(IMessageLibrary&&) = default;
    IMessageLibrary& operator=(const IMessageLibrary&) = default;
    IMessageLibrary& operator=(IMessageLibrary&&) = default;

    /// Registers the module that `address` lies in for the messages of `facility`. The last
    /// registration of a number wins.
    ///
    /// The module must stay loaded as long as its messages may be asked for.
    ///
    /// @param facility  any number; identifiers reach those up to 0x7FF
    /// @param address   of a static object or a string literal of the module. An exported variable
    ///                  or an inline function may resolve to another module. The function that
    ///                  `msglib_add_catalogue` generates passes the right one.
    /// @throws std::invalid_argument "Address is not inside a loaded module"; the registrations
    ///         stay as they were
    ///
    /// Threads: no other registration and no rendering by identifier may run at the same time.
    virtual void registerFacility(unsigned int facility, const void* address) = 0;

    /// Returns the one message library, as `MessageLibrary::instance()` does.
    static IMessageLibrary& instance();

protected:
    /// Not virtual: nobody destroys a library through this interface.
    ~IMessageLibrary() = default;
};

/// Finds messages by identifier in the tables of the registered modules, and renders them.
///
/// A message identifier has 32 bits: bits 16 to 26 are the number of the facility, and the whole of
/// it names the message in the table of that facility's module. Texts are taken in English (United
/// States) and no other language.
///
/// There is one object, from the first `instance()` until the library is unloaded: destructors of
/// static objects may still render. Nothing is cached: each rendering fetches and compiles its text
/// anew.
///
/// Threads: const operations may run at once on one object; registering needs it alone.
class MSGLIB_API MessageLibrary final : public IMessageLibrary {
public:
    MessageLibrary(const MessageLibrary&) = delete;
    MessageLibrary& operator=(const MessageLibrary&) = delete;

    /// Returns the one message library. The first call, on any thread, makes it.
    static MessageLibrary& instance();

    void registerFacility(unsigned int facility, const void* address) override;

    /// Returns the text of a literal pattern with `args`. Fails as `MessageFormat` does.
    ///
    ///     formatMessage("{0} of {1}", {7, 10}) -> "7 of 10"
    std::string formatMessage(const std::string& pattern, const std::list<boost::any>& args) const;

    /// Returns the text of the catalogued message `messageId` with `args`. Line ends CR LF of the
    /// table become LF.
    ///
    /// If that fails, the result is the words of the failure: "Invalid message ID" if the module
    /// has no such message, "Unable to convert message string" if its text can't be converted to
    /// UTF-8, and those of every `std::runtime_error` of `MessageFormat`.
    ///
    /// @throws std::runtime_error "Invalid message ID" if the identifier's facility isn't
    ///         registered
    /// @throws std::out_of_range  for a `long` or `unsigned long` argument that doesn't fit
    std::string formatMessage(unsigned int messageId, const std::list<boost::any>& args) const;

private:
    MessageLibrary();
    ~MessageLibrary();

    std::unique_ptr<std::map<unsigned int, const void*>> facilities_;
};

} // namespace zem::msglib
