#include "ProgramTexts.h"
#include "catalogue/shared_module.h"
#include "message/Outcome.h"
#include "msglib/MessageFormatStream.h"
#include "msglib/MessageLibrary.h"
#include "support/Wine.h"

#define BOOST_DLL_USE_STD_FS
#include <boost/dll/shared_library.hpp>

#include <cstdint>
#include <memory>
#include <stdexcept>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

std::string text(unsigned int messageId, const Arguments& args) {
    return MessageLibrary::instance().formatMessage(messageId, args);
}

TEST(Modules, ProgramCarriesItsTexts) {
    EXPECT_THROW(text(0x01AB0001, {}), std::runtime_error);
    registerProgramTexts();
    struct {
        int line;
        unsigned int messageId;
        boost::any argument;
        std::string text;
        std::string underWine = {};
    } const rows[] = {
        {__LINE__, MSG_VALUE, "x"s, "Value x\n"},
        {__LINE__, MSG_UNEXPANDED, 0.5,
         "%1 %n%r %% 50.00%\nZweite Zeile: \u00E4\u00F6\u00FC \u20AC \U0001D11E\n",
         "%1 \n\r %% 50.00%\nZweite Zeile: \u00E4\u00F6\u00FC \u20AC \U0001D11E\n"},
        {__LINE__, MSG_GERMAN_ONLY, 1, "Invalid message ID"},
        {__LINE__, MSG_WRONG, 1, unexpectedBrace},
        {__LINE__, MSG_VALUE + 100, 1, "Invalid message ID"},
        {__LINE__, MSG_VALUE | 0x80000000, 1, "Invalid message ID"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const bool differs = !row.underWine.empty() && runsUnderWine();
        EXPECT_EQ(text(row.messageId, {row.argument}), differs ? row.underWine : row.text);
    }
    EXPECT_EQ((MessageFormatStream(MSG_VALUE) << 7 << MessageFormatStream("{0}") << 8).toString(),
              "Value 7\n8");
}

TEST(Modules, SharedLibraryAndPlugInCarryTheirs) {
    registerProgramTexts();
    const unsigned int ofSharedLibrary = registerSharedModule();
    const boost::dll::shared_library plugIn(PLUG_IN);
    auto& registerPlugIn = plugIn.get<unsigned int()>("registerPlugIn");
    const unsigned int ofPlugIn = registerPlugIn();
    EXPECT_EQ(text(ofSharedLibrary, {1}), "Shared 1\n");
    EXPECT_EQ(text(ofPlugIn, {1}), "Plug-in 1\n");
    EXPECT_EQ(text(MSG_VALUE, {1}), "Value 1\n");

    // The last registration of a facility decides, whatever module it names.
    auto& library = MessageLibrary::instance();
    library.registerFacility(ofPlugIn >> 16 & 0x7FF, &MSG_VALUE);
    EXPECT_EQ(text(ofPlugIn, {1}), "Invalid message ID");
    library.registerFacility(ofPlugIn >> 16 & 0x7FF, reinterpret_cast<void*>(&registerPlugIn));
    EXPECT_EQ(text(ofPlugIn, {1}), "Plug-in 1\n");
}

TEST(Modules, AddressesInNoModuleAreRefused) {
    registerProgramTexts();
    auto& library = MessageLibrary::instance();
    const auto onHeap = std::make_unique<int>();
    const void* const addresses[] = {nullptr, &addresses, onHeap.get(),
                                     reinterpret_cast<const void*>(UINTPTR_MAX)};
    for (const void* address : addresses) {
        EXPECT_THROW(library.registerFacility(MSG_VALUE >> 16, address), std::invalid_argument);
        EXPECT_THROW(library.registerFacility(0x1AC, address), std::invalid_argument);
    }
    EXPECT_EQ(text(MSG_VALUE, {1}), "Value 1\n");
    EXPECT_THROW(text(0x01AC0001, {}), std::runtime_error);
}

} // namespace
} // namespace zem::msglib
