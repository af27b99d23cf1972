#pragma once

#include "platform/MessageTables.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace zem::msglib {

/// Stands in for the platform's message tables, in programs that link FakeMessages.cpp.
///
/// The object made last is in force. Its modules are 64 KiB of addresses each, all with the same
/// ASCII texts. At its end it tells the test of buffers that were not released exactly once.
struct FakeMessages {
    explicit FakeMessages(std::map<std::uint32_t, std::string> asciiTexts);
    ~FakeMessages();
    FakeMessages(const FakeMessages&) = delete;
    FakeMessages& operator=(const FakeMessages&) = delete;

    std::map<std::uint32_t, std::string> texts;
    int failingConversion = 0;       ///< the conversion that fails, counted from 1; 0: none
    bool allocatesOnFailure = false; ///< a missing message leaves a buffer all the same
    std::size_t queryResult = sizeof(platform::MEMORY_BASIC_INFORMATION);
    std::uint32_t memoryType = platform::MEM_IMAGE;

    std::string lookUps; ///< flags, module, identifier and language of each, in hexadecimal
    int buffers = 0;     ///< handed out so far
    int conversions = 0;
    int badReleases = 0;
    std::set<void*> held;
};

} // namespace zem::msglib
