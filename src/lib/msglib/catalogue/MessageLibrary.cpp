#include "msglib/MessageLibrary.h"

#include "base/Failure.h"
#include "message/MessageRenderer.h"
#include "platform/MessageTables.h"

#include <boost/algorithm/string/replace.hpp>

#include <stdexcept>

namespace zem::msglib {

namespace {

constexpr std::uint32_t englishUnitedStates = 0x409;

constexpr unsigned int facilityOf(unsigned int messageId) {
    return messageId >> 16 & 0x7FF;
}

struct FreeLocal {
    void operator()(char16_t* memory) const noexcept { platform::LocalFree(memory); }
};

// A text as the message table holds it.
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

int convert(const TableText& text, char* output, int size) {
    const int length = platform::WideCharToMultiByte(platform::CP_UTF8, 0, text.units.get(),
                                                     text.count, output, size, nullptr, nullptr);
    if (length == 0) {
        raise(Failure::UnconvertibleMessage);
    }
    return length;
}

std::string toUtf8(const TableText& text) {
    const int length = convert(text, nullptr, 0);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    convert(text, bytes.data(), length);
    return bytes;
}

} // namespace

IMessageLibrary& IMessageLibrary::instance() {
    return MessageLibrary::instance();
}

MessageLibrary::MessageLibrary()
    : facilities_(std::make_unique<std::map<unsigned int, platform::HMODULE>>()) {}

MessageLibrary::~MessageLibrary() = default;

MessageLibrary& MessageLibrary::instance() {
    static MessageLibrary library;
    return library;
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
        std::string pattern = toUtf8(fetchText(facility->second, messageId));
        boost::algorithm::replace_all(pattern, "\r\n", "\n");
        return renderPattern(pattern, args);
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
}

} // namespace zem::msglib
