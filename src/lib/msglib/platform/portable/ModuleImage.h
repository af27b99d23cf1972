#pragma once

#include "platform/MessageTables.h"
#include "platform/portable/TableReader.h"

#include <cstdint>

namespace zem::msglib::platform {

/// Returns the module whose image contains `address`, as the address of its mapped ELF header; null
/// if there is none or its headers aren't in memory.
///
/// Calls the loader, which takes its lock. Takes time linear in the number of modules.
HMODULE moduleHolding(const void* address) noexcept;

/// Finds a message in the note segments of a module that `moduleHolding` has returned and that is
/// still loaded.
///
/// Only reads memory: no lock, no call of the loader, no allocation.
MessageText findInModule(HMODULE module, std::uint32_t languageId,
                         std::uint32_t messageId) noexcept;

} // namespace zem::msglib::platform
