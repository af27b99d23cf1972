#include "MemoryTexts.h"
#include "ProgramTexts.h"
#include "message/Outcome.h"
#include "msglib/DecimalFormat.h"
#include "msglib/MessageLibrary.h"
#include "support/Wine.h"

#include <boost/config.hpp>

#include <set>
#include <stdexcept>
#include <typeinfo>

/// The functions of the shared library.
extern "C" BOOST_SYMBOL_IMPORT unsigned int registerModule();
extern "C" BOOST_SYMBOL_IMPORT void holdAngle(double radians, boost::any& argument);

namespace zem::msglib {
namespace {

using namespace std::string_literals;

TEST(Modules, ProgramHasItsTexts) {
    EXPECT_EQ(directOutcome(0x01AB0001U, {}), "!Invalid message ID");
    registerProgramTexts();
    registerMemoryTexts();
    struct {
        int line;
        unsigned int messageId;
        boost::any argument;
        std::string text;
        std::string underWine = {};
    } const rows[] = {
        {__LINE__, MSG_VALUE, "x"s, "Value x\n"},
        {__LINE__, MSG_UNEXPANDED, 0.5,
         "%1 %n%r %% 50.00%\n\nZweite Zeile: \u00E4\u00F6\u00FC \u20AC \U0001D11E\n",
         "%1 \n\r %% 50.00%\n\nZweite Zeile: \u00E4\u00F6\u00FC \u20AC \U0001D11E\n"},
        {__LINE__, MSG_GERMAN_ONLY, 1, "Invalid message ID"},
        {__LINE__, MSG_WRONG, 1, unexpectedBrace},
        {__LINE__, MSG_WRONG_PATTERN, 1, "zero mark following digit"},
        {__LINE__, MSG_VALUE + 100, 1, "Invalid message ID"},
        {__LINE__, MSG_VALUE | 0x80000000, 1, "Invalid message ID"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const bool differs = !row.underWine.empty() && runsUnderWine();
        EXPECT_EQ(directOutcome(row.messageId, {row.argument}), differs ? row.underWine : row.text);
    }
}

TEST(Modules, SharedLibraryAndPlugInHaveTheirTexts) {
    registerProgramTexts();
    const unsigned int ofSharedLibrary = registerModule();
    const boost::dll::shared_library plugIn(PLUG_IN);
    auto& registerPlugIn = plugIn.get<unsigned int()>("registerModule");
    const unsigned int ofPlugIn = registerPlugIn();
    EXPECT_EQ(directOutcome(ofSharedLibrary, {1}), "Shared 1\n");
    EXPECT_EQ(directOutcome(ofPlugIn, {1}), "Plug-in 1\n");
    EXPECT_EQ(directOutcome(MSG_VALUE, {1}), "Value 1\n");

    // The last registration of a facility counts, whatever module it is for.
    auto& library = MessageLibrary::instance();
    library.registerFacility(ofPlugIn >> 16 & 0x7FF, &MSG_VALUE);
    EXPECT_EQ(directOutcome(ofPlugIn, {1}), "Invalid message ID");
    library.registerFacility(ofPlugIn >> 16 & 0x7FF, reinterpret_cast<void*>(&registerPlugIn));
    EXPECT_THROW(library.registerFacility(ofPlugIn >> 16 & 0x7FF, nullptr), std::invalid_argument);
    EXPECT_EQ(directOutcome(ofPlugIn, {1}), "Plug-in 1\n");
}

// The modules hide the symbols that they don't export, so each has its own type identity of angles.
TEST(Modules, AnglesOfAllModulesAreAngles) {
    const boost::dll::shared_library plugIn(PLUG_IN);
    boost::any ofSharedLibrary;
    boost::any ofPlugIn;
    holdAngle(1.0, ofSharedLibrary);
    plugIn.get<void(double, boost::any&)>("holdAngle")(1.0, ofPlugIn);
    const std::set<const std::type_info*> identities = {&typeid(geom::Angle),
                                                        &ofSharedLibrary.type(), &ofPlugIn.type()};
    ASSERT_EQ(identities.size(), 3U) << "modules share an identity";

    for (const boost::any& angle : {boost::any(geom::Angle(1.0)), ofSharedLibrary, ofPlugIn}) {
        EXPECT_EQ(textOf(DecimalFormat("0.000", {}), angle), "57.296");
        expectOutcomes({
            {__LINE__, "[{0}] [{0,foo}]", {angle}, "[] []"},
            {__LINE__, "{0,number,0.000} {0,choice,0#low|57#high}", {angle}, "57.296 high"},
            {__LINE__, "{0,number} {0,number,integer}", {angle}, "57.30 57"},
            {__LINE__, "{0,date}", {angle}, "!" + notADate},
        });
    }
}

} // namespace
} // namespace zem::msglib
