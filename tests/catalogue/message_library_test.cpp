// The message tables are replaced by a fake, which can provoke every failure.

#include "message/Outcome.h"
#include "msglib/MessageLibrary.h"
#include "platform/MessageTables.h"

#include <algorithm>
#include <locale>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace zem::msglib {
namespace {

/// Replaces the platform's message tables.
///
/// The object created last is active. Its modules are 64 KiB of addresses each, all with the same
/// ASCII texts. The destructor checks that every buffer was released exactly once.
struct FakeMessages {
    explicit FakeMessages(std::map<std::uint32_t, std::string> asciiTexts)
        : texts(std::move(asciiTexts)) {
        active = this;
    }
    ~FakeMessages() {
        EXPECT_EQ(held.size(), 0U) << "buffers were not released";
        EXPECT_EQ(badReleases, 0) << "buffers were released twice";
    }
    FakeMessages(const FakeMessages&) = delete;
    FakeMessages& operator=(const FakeMessages&) = delete;

    std::map<std::uint32_t, std::string> texts;
    bool failsConversion = false;
    bool allocatesOnFailure = false; ///< a missing message allocates a buffer too
    std::size_t queryResult = sizeof(platform::MEMORY_BASIC_INFORMATION);
    std::uint32_t memoryType = platform::MEM_IMAGE;

    std::string lookUps; ///< flags, module, identifier and language of each, in hexadecimal
    int buffers = 0;     ///< allocated so far
    int badReleases = 0;
    std::set<void*> held;

    static inline FakeMessages* active = nullptr;
};

} // namespace

namespace platform {

std::size_t VirtualQuery(const void* address, MEMORY_BASIC_INFORMATION* information,
                         std::size_t) noexcept {
    const auto module = reinterpret_cast<std::uintptr_t>(address) & ~std::uintptr_t{0xFFFF};
    information->AllocationBase = reinterpret_cast<void*>(module);
    information->Type = FakeMessages::active->memoryType;
    return FakeMessages::active->queryResult;
}

std::uint32_t FormatMessageW(std::uint32_t flags, HMODULE module, std::uint32_t messageId,
                             std::uint32_t languageId, char16_t* buffer, std::uint32_t size,
                             void* arguments) noexcept {
    EXPECT_EQ(size, 0U);
    EXPECT_EQ(arguments, nullptr);
    std::ostringstream lookUp;
    lookUp.imbue(std::locale::classic());
    lookUp << std::hex << flags << ' ' << module << ' ' << messageId << ' ' << languageId << ';';
    FakeMessages::active->lookUps += lookUp.str();
    const std::string text = FakeMessages::active->texts[messageId];
    if (text.empty() && !FakeMessages::active->allocatesOnFailure) {
        return 0;
    }
    char16_t* const units = std::make_unique<char16_t[]>(text.size() + 1).release();
    std::copy(text.begin(), text.end(), units);
    FakeMessages::active->held.insert(units);
    ++FakeMessages::active->buffers;
    *reinterpret_cast<char16_t**>(buffer) = units;
    return static_cast<std::uint32_t>(text.size());
}

int WideCharToMultiByte(std::uint32_t codePage, std::uint32_t flags, const char16_t* text,
                        int count, char* output, int size, const char* defaultCharacter,
                        bool* usedDefaultCharacter) noexcept {
    EXPECT_EQ(codePage, CP_UTF8);
    EXPECT_EQ(flags, 0U);
    EXPECT_GE(size, count);
    EXPECT_EQ(defaultCharacter, nullptr);
    EXPECT_EQ(usedDefaultCharacter, nullptr);
    if (FakeMessages::active->failsConversion) {
        return 0;
    }
    std::transform(text, text + count, output,
                   [](char16_t unit) { return static_cast<char>(unit); });
    return count;
}

void LocalFree(void* memory) noexcept {
    FakeMessages::active->badReleases += FakeMessages::active->held.erase(memory) == 1 ? 0 : 1;
    delete[] static_cast<char16_t*>(memory);
}

} // namespace platform

namespace {

using namespace std::string_literals;

const void* addressOf(std::uintptr_t address) {
    return reinterpret_cast<const void*>(address);
}

TEST(MessageLibrary, FacilityIsElevenBitsOfTheIdentifier) {
    MessageLibrary& library = MessageLibrary::instance();
    EXPECT_EQ(&IMessageLibrary::instance(), &library);
    struct {
        int line;
        unsigned int facility, messageId;
        bool found;
    } const rows[] = {
        {__LINE__, 1, 0x00010005, true},        {__LINE__, 1, 0xC0010005, true},
        {__LINE__, 1, 0x08010000, true},        {__LINE__, 0x7FF, 0xFFFFFFFF, true},
        {__LINE__, 0x7FF, 0x07FE0001, false},   {__LINE__, 0x800, 0x08000005, false},
        {__LINE__, 0x10003, 0x00030005, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const FakeMessages messages({{row.messageId, "text"}});
        library.registerFacility(row.facility, addressOf(0x7A1234));
        EXPECT_EQ(directOutcome(row.messageId, {}), row.found ? "text" : "!Invalid message ID");
        std::ostringstream lookUp;
        lookUp.imbue(std::locale::classic());
        lookUp << "b00 0x7a0000 " << std::hex << row.messageId << " 409;";
        EXPECT_EQ(messages.lookUps, row.found ? lookUp.str() : "");
    }
}

TEST(MessageLibrary, LastValidRegistrationCounts) {
    MessageLibrary& library = MessageLibrary::instance();
    FakeMessages messages({{0x100001, "text"}});
    library.registerFacility(0x10, addressOf(0x111111));
    library.registerFacility(0x10, addressOf(0x22FFFF));
    EXPECT_EQ(directOutcome(0x100001U, {}), "text");
    EXPECT_EQ(messages.lookUps, "b00 0x220000 100001 409;");

    messages.memoryType = 0x20000; // private memory
    EXPECT_THROW(library.registerFacility(0x10, addressOf(0x330000)), std::invalid_argument);
    messages.memoryType = platform::MEM_IMAGE;
    messages.queryResult = 0;
    EXPECT_THROW(library.registerFacility(0x10, addressOf(0x440000)), std::invalid_argument);
    EXPECT_EQ(directOutcome(0x100001U, {}), "text");
}

TEST(MessageLibrary, EveryFailureIsTextByIdentifierAndThrownByPattern) {
    struct {
        int line;
        std::string pattern, words;
    } const rows[] = {
        {__LINE__, "}", unexpectedBrace},
        {__LINE__, "{0,choice}", styleRequired},
        {__LINE__, "{1,number}", notANumber},
        {__LINE__, "{0,number,0%%}", "multiplier already set"},
        {__LINE__, "{0,choice,0#{0,choice,0#'{'x}}", illegalArgument},
    };
    const Arguments args = {1, "x"s};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const FakeMessages messages({{0x120001, "lost " + row.pattern}});
        MessageLibrary::instance().registerFacility(0x12, &messages);
        EXPECT_EQ(directOutcome(0x120001U, args), row.words);
        EXPECT_EQ(directOutcome(row.pattern, args), "!" + row.words);
    }
}

TEST(MessageLibrary, EveryBufferIsReleasedOnceWhateverFails) {
    constexpr bool longIsWider = sizeof(long) > sizeof(std::int32_t);
    const std::string unconvertible = "Unable to convert message string";
    struct {
        int line;
        const char* text;
        boost::any argument;
        bool failsConversion;
        bool allocatesOnFailure;
        std::string outcome;
        int buffers;
    } const rows[] = {
        {__LINE__, "a{0}", 1, false, false, "a1", 1},
        {__LINE__, "a{0}", 1, true, false, unconvertible, 1},
        {__LINE__, "a{0}", static_cast<long>(1LL << 40), false, false,
         longIsWider ? "!" + longOutOfRange : "a0", 1},
        {__LINE__, "{", 1, false, false, illegalArgument, 1},
        {__LINE__, "", 1, false, false, "Invalid message ID", 0},
        {__LINE__, "", 1, false, true, "Invalid message ID", 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        FakeMessages messages({{0x130001, row.text}});
        messages.failsConversion = row.failsConversion;
        messages.allocatesOnFailure = row.allocatesOnFailure;
        MessageLibrary::instance().registerFacility(0x13, &messages);
        EXPECT_EQ(directOutcome(0x130001U, {row.argument}), row.outcome);
        EXPECT_EQ(messages.buffers, row.buffers);
    }
}

TEST(MessageLibrary, LineEndsOfTableTextsBecomeLf) {
    struct {
        int line;
        std::string text, outcome;
    } const rows[] = {
        {__LINE__, "\r\na\rb\nc\r\r\nd\n\r", "\na\rb\nc\r\nd\n\r"},
        {__LINE__, "%1 %n!s! %% {0}", "%1 %n!s! %% x\r\n"},
        {__LINE__, "'\r\n'", "\n"}, // line ends are replaced before quoting is resolved
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const FakeMessages messages({{0x140001, row.text}});
        MessageLibrary::instance().registerFacility(0x14, &messages);
        EXPECT_EQ(directOutcome(0x140001U, {"x\r\n"s}), row.outcome);
    }
    EXPECT_EQ(directOutcome("a\r\nb"s, {}), "a\r\nb");
}

} // namespace
} // namespace zem::msglib
