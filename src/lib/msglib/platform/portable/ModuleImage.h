#pragma once

#include "platform/MessageTables.h"
#include "platform/portable/TableReader.h"

#include <cstdint>

namespace zem::msglib::platform {

/// Returns the module whose image holds `address`: where its ELF header is mapped. Null if there is
/// none, or if its headers are not in memory.
///
/// Asks the loader, which takes its lock.
HMODULE moduleHolding(const void* address) noexcept;

/// Finds a message in the note segments of a module that `moduleHolding` has returned and that is
/// still loaded.
///
/// Reads memory and nothing else: no lock, no call of the loader, no allocation.
MessageText findInModule(HMODULE module, std::uint32_t languageId,
                         std::uint32_t messageId) noexcept;

} // namespace zem::msglib::platform
