#include "platform/portable/NoteReader.h"

#include "platform/portable/TableLayout.h"

#include <cstring>

namespace zem::msglib::platform {

namespace {

constexpr std::size_t noteHeaderSize = 12; // the sizes of name and content, and the type

/// Reads a number in the byte order of the machine, in which the assembler writes it.
std::uint32_t nativeU32(Bytes bytes, std::size_t offset) noexcept {
    std::uint32_t value = 0;
    if (bytes.holds(offset, sizeof value)) {
        std::memcpy(&value, bytes.data() + offset, sizeof value);
    }
    return value;
}

bool isTable(Bytes name, std::uint32_t type) noexcept {
    return type == layout::noteType && name.size() == sizeof layout::noteName &&
           std::memcmp(name.data(), layout::noteName, sizeof layout::noteName) == 0;
}

MessageText findInTable(Bytes descriptor, std::uint32_t languageId,
                        std::uint32_t messageId) noexcept {
    if (!descriptor.holds(0, layout::tableHeaderSize) || nativeU32(descriptor, 0) != languageId) {
        return {};
    }
    const Bytes table = descriptor.part(layout::tableHeaderSize, nativeU32(descriptor, 4));
    return TableReader(table).find(messageId);
}

} // namespace

MessageText findInNotes(Bytes notes, std::size_t alignment, std::uint32_t languageId,
                        std::uint32_t messageId) noexcept {
    const std::uint64_t unit = alignment == 8 ? 8 : 4;
    const auto aligned = [unit](std::uint64_t offset) { return (offset + unit - 1) & ~(unit - 1); };
    // With 64 bits, the sum of two lengths of 32 bits can't wrap around on any machine.
    std::uint64_t offset = 0;
    while (offset < notes.size()) {
        const Bytes rest = notes.from(static_cast<std::size_t>(offset));
        const std::uint32_t nameSize = nativeU32(rest, 0);
        const std::uint32_t descriptorSize = nativeU32(rest, 4);
        const std::uint64_t descriptorAt = aligned(noteHeaderSize + std::uint64_t{nameSize});
        const std::uint64_t end = descriptorAt + descriptorSize;
        if (end > rest.size()) {
            return {};
        }
        if (isTable(rest.part(noteHeaderSize, nameSize), nativeU32(rest, 8))) {
            const Bytes descriptor =
                rest.part(static_cast<std::size_t>(descriptorAt), descriptorSize);
            const MessageText text = findInTable(descriptor, languageId, messageId);
            if (!text.isEmpty()) {
                return text;
            }
        }
        offset += aligned(end);
    }
    return {};
}

} // namespace zem::msglib::platform
