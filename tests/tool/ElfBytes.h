#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

namespace zem::msglib::tool {

/// The form of an ELF file.
struct ElfForm {
    bool is64 = true;
    bool isBigEndian = false;
    bool isObject = false; ///< with sections instead of segments
};

/// Writes the bytes of an ELF file with notes, of any machine.
class ElfBytes {
public:
    explicit ElfBytes(ElfForm form) : form_(form) {}

    /// Adds a note as compiled catalogues have it.
    ///
    /// @param size  of the table, as written in the note
    void addTable(std::uint32_t language, const std::string& table, std::size_t size) {
        const std::size_t padded = (8 + table.size() + 7) / 8 * 8;
        notes_ += number(11, 4) + number(padded, 4) + number(0x4d544231, 4) +
                  std::string("zem.msglib\0\0", 12) + number(language, 4) + number(size, 4) + table;
        notes_.resize((notes_.size() + 7) / 8 * 8);
    }

    std::string bytes() const {
        const std::size_t word = form_.is64 ? 8 : 4;
        const std::size_t headerSize = form_.is64 ? 64 : 52;
        const std::size_t segmentSize = form_.is64 ? 56 : 32;
        const std::size_t sectionSize = form_.is64 ? 64 : 40;
        const std::size_t entriesAt = headerSize;
        const std::size_t entries = form_.isObject ? 2 * sectionSize : segmentSize;
        const std::size_t notesAt = (entriesAt + entries + 7) / 8 * 8;
        std::string out("\x7F"
                        "ELF",
                        4);
        out += static_cast<char>(form_.is64 ? 2 : 1);
        out += static_cast<char>(form_.isBigEndian ? 2 : 1);
        out += '\1';
        out.resize(16);
        out += number(form_.isObject ? 1 : 3, 2) + number(form_.isBigEndian ? 22 : 62, 2) +
               number(1, 4) + number(0, word) + number(form_.isObject ? 0 : entriesAt, word) +
               number(form_.isObject ? entriesAt : 0, word) + number(0, 4) + number(headerSize, 2) +
               number(segmentSize, 2) + number(form_.isObject ? 0 : 1, 2) + number(sectionSize, 2) +
               number(form_.isObject ? 2 : 0, 2) + number(0, 2);
        out += form_.isObject ? std::string(sectionSize, '\0') + section(notesAt, word)
                              : segment(notesAt, word);
        out.resize(notesAt);
        return out + notes_;
    }

private:
    std::string number(std::size_t value, std::size_t width) const {
        std::string bytes;
        for (std::size_t index = 0; index < width; ++index) {
            bytes += static_cast<char>(value >> (8 * index) & 0xFF);
        }
        if (form_.isBigEndian) {
            std::reverse(bytes.begin(), bytes.end());
        }
        return bytes;
    }

    std::string segment(std::size_t notesAt, std::size_t word) const {
        const std::string flags = number(4, 4);
        const std::string size = number(notes_.size(), word);
        return number(4, 4) + (form_.is64 ? flags : "") + number(notesAt, word) + number(0, word) +
               number(0, word) + size + size + (form_.is64 ? "" : flags) + number(8, word);
    }

    std::string section(std::size_t notesAt, std::size_t word) const {
        return number(0, 4) + number(7, 4) + number(2, word) + number(0, word) +
               number(notesAt, word) + number(notes_.size(), word) + number(0, 4) + number(0, 4) +
               number(8, word) + number(0, word);
    }

    ElfForm form_;
    std::string notes_;
};

} // namespace zem::msglib::tool
