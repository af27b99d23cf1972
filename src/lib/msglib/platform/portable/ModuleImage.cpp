#include "platform/portable/ModuleImage.h"

#include "platform/portable/NoteReader.h"

#include <link.h>

#include <algorithm>
#include <cstring>

// A module is represented by the address of its mapped ELF header. `moduleHolding` asks the loader
// for all modules and returns the one with a segment that contains an address. `findInModule` reads
// the program headers from memory and searches the note segments for the message.

namespace zem::msglib::platform {

namespace {

using FileHeader = ElfW(Ehdr);
using ProgramHeader = ElfW(Phdr);

/// The program headers of one module and the base of their addresses.
struct Layout {
    const ProgramHeader* headers;
    std::size_t count;
    std::uintptr_t bias;

    const ProgramHeader* begin() const noexcept { return headers; }
    const ProgramHeader* end() const noexcept { return headers + count; }

    const void* at(std::uintptr_t address) const noexcept {
        return reinterpret_cast<const void*>(bias + address);
    }

    /// Returns whether `size` bytes of the file from `address` on are mapped for reading.
    bool maps(std::uintptr_t address, std::size_t size) const noexcept {
        return std::any_of(begin(), end(), [=](const ProgramHeader& header) {
            const std::uintptr_t offset = address - header.p_vaddr;
            return header.p_type == PT_LOAD && (header.p_flags & PF_R) != 0 &&
                   offset <= header.p_filesz && size <= header.p_filesz - offset;
        });
    }

    /// Returns the segment that begins with the first byte of the file, the ELF header; null if
    /// there is none.
    const ProgramHeader* fileStart() const noexcept {
        const auto* found = std::find_if(begin(), end(), [](const ProgramHeader& header) {
            return header.p_type == PT_LOAD && header.p_offset == 0;
        });
        return found == end() ? nullptr : found;
    }
};

bool holds(const Layout& layout, std::uintptr_t address) noexcept {
    return std::any_of(layout.begin(), layout.end(), [&](const ProgramHeader& header) {
        return header.p_type == PT_LOAD && address - layout.bias - header.p_vaddr < header.p_memsz;
    });
}

/// Returns the mapped ELF header if it and its program headers are mapped for reading, or null.
const void* mappedHeader(const Layout& layout) noexcept {
    const ProgramHeader* start = layout.fileStart();
    if (start == nullptr || !layout.maps(start->p_vaddr, sizeof(FileHeader))) {
        return nullptr;
    }
    const void* base = layout.at(start->p_vaddr);
    const auto* file = static_cast<const FileHeader*>(base);
    const std::size_t headersSize = layout.count * sizeof(ProgramHeader);
    const bool readable = std::memcmp(file->e_ident, ELFMAG, SELFMAG) == 0 &&
                          file->e_phentsize == sizeof(ProgramHeader) &&
                          file->e_phnum == layout.count &&
                          layout.maps(start->p_vaddr + file->e_phoff, headersSize);
    return readable ? base : nullptr;
}

struct Search {
    std::uintptr_t address;
    HMODULE module;
};

int visitModule(dl_phdr_info* info, std::size_t, void* data) noexcept {
    auto& search = *static_cast<Search*>(data);
    const Layout layout{info->dlpi_phdr, info->dlpi_phnum, info->dlpi_addr};
    if (!holds(layout, search.address)) {
        return 0;
    }
    search.module = mappedHeader(layout);
    return 1;
}

Layout layoutOf(HMODULE module) noexcept {
    const auto base = reinterpret_cast<std::uintptr_t>(module);
    const auto* file = static_cast<const FileHeader*>(module);
    const auto* headers = reinterpret_cast<const ProgramHeader*>(base + file->e_phoff);
    Layout layout{headers, file->e_phnum, base};
    if (const ProgramHeader* start = layout.fileStart()) {
        layout.bias -= start->p_vaddr;
    }
    return layout;
}

} // namespace

HMODULE moduleHolding(const void* address) noexcept {
    Search search{reinterpret_cast<std::uintptr_t>(address), nullptr};
    dl_iterate_phdr(visitModule, &search);
    return search.module;
}

MessageText findInModule(HMODULE module, std::uint32_t languageId,
                         std::uint32_t messageId) noexcept {
    const Layout layout = layoutOf(module);
    for (const ProgramHeader& header : layout) {
        if (header.p_type != PT_NOTE || !layout.maps(header.p_vaddr, header.p_filesz)) {
            continue;
        }
        const Bytes notes(layout.at(header.p_vaddr), header.p_filesz);
        const MessageText text = findInNotes(notes, header.p_align, languageId, messageId);
        if (!text.isEmpty()) {
            return text;
        }
    }
    return {};
}

} // namespace zem::msglib::platform
