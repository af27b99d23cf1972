#include "support/Emulation.h"

#include <gtest/gtest.h>

#define BOOST_DLL_USE_STD_FS
#include <boost/dll/shared_library.hpp>

#include <link.h>
#include <malloc.h>

#include <string>

namespace {

// This program isn't linked with the library. A plug-in is, and loads and unloads it.
std::size_t loadedModules() {
    std::size_t count = 0;
    dl_iterate_phdr(
        [](dl_phdr_info*, std::size_t, void* counted) {
            ++*static_cast<std::size_t*>(counted);
            return 0;
        },
        &count);
    return count;
}

std::string renderBy(const char* path) {
    boost::dll::shared_library plugIn(path);
    plugIn.get<unsigned int()>("registerModule")();
    std::string text;
    plugIn.get<void(int, std::string&)>("renderMessage")(7, text);
    std::string last;
    plugIn.get<void(std::string&)>("renderAtUnload")(last);
    const std::size_t modules = loadedModules();
    plugIn.unload();
    return text + last + std::to_string(modules);
}

// Loads and unloads the plug-in many times. `modules` must be loaded and unloaded with it.
void expectNothingLeft(const char* path, std::size_t modules) {
    constexpr std::size_t rounds = zem::msglib::runsUnderEmulator ? 250 : 1000;
    const std::size_t others = loadedModules();
    const std::string expected = "Plug-in 7\nPlug-in 9\n" + std::to_string(others + modules);
    std::size_t held = 0;
    for (std::size_t round = 0; round < 2 * rounds; ++round) {
        if (round == rounds) {
            held = mallinfo2().uordblks;
        }
        ASSERT_EQ(renderBy(path), expected) << "round " << round;
        ASSERT_EQ(loadedModules(), others) << "round " << round;
    }
    EXPECT_LT(mallinfo2().uordblks, held + rounds) << "bytes are lost in each round";
}

TEST(ModuleLoading, PlugInLoadsAndUnloadsTheLibrary) {
    expectNothingLeft(PLUG_IN, 2);
}

TEST(ModuleLoading, PlugInLeavesTheLibraryLoaded) {
    const boost::dll::shared_library library(LIBRARY);
    expectNothingLeft(PLUG_IN, 1);
}

TEST(ModuleLoading, PlugInContainsItsOwnLibrary) {
    expectNothingLeft(SELF_CONTAINED_PLUG_IN, 1);
}

} // namespace
