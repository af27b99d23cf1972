#include "msglib/MessageLibrary.h"

#include "base/Failure.h"
#include "message/MessageRenderer.h"
#include "platform/MessageTables.h"
#include "platform/Unloading.h"

#include <boost/container/small_vector.hpp>

#include <cstring>
#include <stdexcept>

// A rendering by identifier takes these steps: the facility's bits lead to the registered module,
// the platform fetches the UTF-16 text from the module's message table, the text becomes UTF-8 with
// LF as line end, and the message renderer renders that as a pattern. After the facility is found,
// the text of any failure is the result.

namespace zem::msglib {

namespace {

constexpr std::uint32_t englishUnitedStates = 0x409;

constexpr unsigned int facilityOf(unsigned int messageId) {
    return messageId >> 16 & 0x7FF;
}

struct FreeLocal {
    void operator()(char16_t* memory) const noexcept { platform::LocalFree(memory); }
};

// A text in the encoding of the message table.
struct TableText {
    std::unique_ptr<char16_t, FreeLocal> units;
    int count;
};

TableText fetchText(platform::HMODULE module, unsigned int messageId) {
    char16_t* units = nullptr;
    const std::uint32_t count = platform::FormatMessageW(
        platform::FORMAT_MESSAGE_ALLOCATE_BUFFER | platform::FORMAT_MESSAGE_IGNORE_INSERTS |
            platform::FORMAT_MESSAGE_FROM_HMODULE,
        module, messageId, englishUnitedStates, reinterpret_cast<char16_t*>(&units), 0, nullptr);
    TableText text{std::unique_ptr<char16_t, FreeLocal>(units), static_cast<int>(count)};
    if (count == 0) {
        raise(Failure::InvalidMessageId);
    }
    return text;
}

constexpr std::size_t shortText = 1024;
using Utf8Text = boost::container::small_vector<char, shortText>;

// Converts in one pass if the result certainly fits the short buffer, and otherwise measures first.
Utf8Text toUtf8(const TableText& text) {
    constexpr std::size_t maxBytesPerUnit = 3;
    const auto convert = [&text](char* bytes, std::size_t size) {
        const int length =
            platform::WideCharToMultiByte(platform::CP_UTF8, 0, text.units.get(), text.count, bytes,
                                          static_cast<int>(size), nullptr, nullptr);
        if (length == 0) {
            raise(Failure::UnconvertibleMessage);
        }
        return static_cast<std::size_t>(length);
    };
    const bool isShort = static_cast<std::size_t>(text.count) <= shortText / maxBytesPerUnit;
    Utf8Text bytes(isShort ? shortText : convert(nullptr, 0), boost::container::default_init);
    bytes.resize(convert(bytes.data(), bytes.size()));
    return bytes;
}

// Replaces each CR LF by LF.
void normalizeLineEnds(Utf8Text& text) {
    char* const end = text.data() + text.size();
    auto* kept = static_cast<char*>(std::memchr(text.data(), '\r', text.size()));
    if (kept == nullptr) {
        return;
    }
    for (const char* at = kept; at != end; ++at) {
        if (*at != '\r' || at + 1 == end || at[1] != '\n') {
            *kept++ = *at;
        }
    }
    text.resize(static_cast<std::size_t>(kept - text.data()));
}

} // namespace

IMessageLibrary& IMessageLibrary::instance() {
    return MessageLibrary::instance();
}

MessageLibrary::MessageLibrary()
    : facilities_(std::make_unique<std::map<unsigned int, platform::HMODULE>>()) {}

MessageLibrary::~MessageLibrary() = default;

MessageLibrary& MessageLibrary::instance() {
    // A static object would be destroyed before older static objects, which may still render.
    static MessageLibrary* const library = [] {
        auto* const created = new MessageLibrary;
        platform::callAtUnload([](void* object) { delete static_cast<MessageLibrary*>(object); },
                               created);
        return created;
    }();
    return *library;
}

void MessageLibrary::registerFacility(unsigned int facility, const void* address) {
    platform::MEMORY_BASIC_INFORMATION memory;
    if (platform::VirtualQuery(address, &memory, sizeof memory) == 0 ||
        memory.Type != platform::MEM_IMAGE) {
        raise(Failure::AddressInNoModule);
    }
    (*facilities_)[facility] = memory.AllocationBase;
}

std::string MessageLibrary::formatMessage(const std::string& pattern,
                                          const std::list<boost::any>& args) const {
    return renderPattern(pattern, args);
}

std::string MessageLibrary::formatMessage(unsigned int messageId,
                                          const std::list<boost::any>& args) const {
    const auto facility = facilities_->find(facilityOf(messageId));
    if (facility == facilities_->end()) {
        raise(Failure::InvalidMessageId);
    }
    try {
        Utf8Text pattern = toUtf8(fetchText(facility->second, messageId));
        normalizeLineEnds(pattern);
        return renderPattern({pattern.data(), pattern.size()}, args);
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
}

} // namespace zem::msglib
