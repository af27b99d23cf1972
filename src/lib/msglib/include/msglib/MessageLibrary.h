#pragma once

#include "msglib/Format.h"

#include <boost/any.hpp>

#include <list>
#include <map>
#include <memory>
#include <string>

namespace zem::msglib {

/// Where a module registers the messages that it carries; all that a module needs which renders
/// through streams.
class MSGLIB_API IMessageLibrary {
public:
    IMessageLibrary() = default;
    IMessageLibrary(const IMessageLibrary&) = default;
    IMessageLibrary(IMessageLibrary&&) = default;
    IMessageLibrary& operator=(const IMessageLibrary&) = default;
    IMessageLibrary& operator=(IMessageLibrary&&) = default;

    /// Makes `facility` stand for the module that `address` lies in. The last registration of a
    /// number wins.
    ///
    /// The module must stay loaded as long as its messages may be asked for. Only numbers to 0x7FF
    /// can be asked for.
    ///
    /// `address` is that of an object that surely lies in the module itself: a static object or a
    /// string literal. An exported variable or an inline function may turn out to be the program's
    /// own. The function that `msglib_add_catalogue` generates does it right.
    ///
    /// Threads: nothing else may register, and nobody render by identifier, at the same time.
    ///
    /// @throws std::invalid_argument "Address is not inside a loaded module"; the registrations
    /// stay as they were
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
/// There is one object, from the first `instance()` until the library is unloaded. Nothing is
/// cached: each rendering fetches and compiles its text anew. Once registration is over, any number
/// of threads may render at once.
class MSGLIB_API MessageLibrary final : public IMessageLibrary {
public:
    MessageLibrary(const MessageLibrary&) = delete;
    MessageLibrary& operator=(const MessageLibrary&) = delete;

    /// Returns the one message library. The first call, on any thread, makes it.
    static MessageLibrary& instance();

    void registerFacility(unsigned int facility, const void* address) override;

    /// Returns the text of a literal pattern with `args`; it fails as `MessageFormat` does.
    std::string formatMessage(const std::string& pattern, const std::list<boost::any>& args) const;

    /// Returns the text of the catalogued message `messageId` with `args`. Line ends CR LF of the
    /// table become LF.
    ///
    /// What goes wrong in fetching, compiling or rendering is the result, as words: "Invalid
    /// message ID" if the module has no such message, "Unable to convert message string" if its
    /// text can't be made UTF-8, and the words of every `std::runtime_error` of `MessageFormat`.
    ///
    /// @throws std::runtime_error "Invalid message ID" if the identifier's facility isn't
    /// registered
    /// @throws std::out_of_range  for an argument that doesn't fit, and any other exception but
    /// `std::runtime_error`
    std::string formatMessage(unsigned int messageId, const std::list<boost::any>& args) const;

private:
    MessageLibrary();
    ~MessageLibrary();

    std::unique_ptr<std::map<unsigned int, const void*>> facilities_;
};

} // namespace zem::msglib
