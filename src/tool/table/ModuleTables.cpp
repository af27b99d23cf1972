#include "tool/table/ModuleTables.h"

#include "tool/catalogue/Catalogue.h"
#include "tool/text/CannotRun.h"

#include "platform/portable/TableLayout.h"

#include <ar.h>
#include <boost/endian/conversion.hpp>
#include <gelf.h>

#include <cstring>
#include <map>
#include <memory>
#include <set>
#include <utility>

// The bytes of a file go in, its tables come out. In an ELF module, the tables are notes. Modules
// that can be loaded have them in note segments, where the library searches them too. Objects that
// are not linked yet have them in note sections. The tables of one language are merged. A file that
// is not ELF is decoded as one table.

namespace zem::msglib::tool {

namespace {

namespace layout = platform::layout;
using platform::Bytes;

// Linkers produce note segments that overlap, but not more of them than this.
constexpr std::uint64_t mostReadings = 8;

bool startsWith(std::string_view bytes, std::string_view start) noexcept {
    return bytes.substr(0, start.size()) == start;
}

bool isElf(std::string_view bytes) noexcept {
    return startsWith(bytes, {ELFMAG, SELFMAG});
}

/// Reads the notes of one file.
class NoteCollector {
public:
    NoteCollector(const std::string& name, std::string bytes)
        : name_(name),
          bytes_(std::move(bytes)) {
        elf_version(EV_CURRENT);
        elf_.reset(elf_memory(bytes_.data(), bytes_.size()));
        if (elf_ == nullptr || gelf_getehdr(elf_.get(), &header_) == nullptr) {
            refuse("its header is damaged");
        }
    }

    std::map<std::uint32_t, TableTexts> collect() {
        if (header_.e_type == ET_REL) {
            readSections();
        } else {
            readSegments();
        }
        return std::move(tables_);
    }

private:
    [[noreturn]] void refuse(const std::string& reason) const {
        throw CannotRun(name_ + ": the module cannot be read: " + reason);
    }

    void readSegments() {
        std::size_t count = 0;
        if (elf_getphdrnum(elf_.get(), &count) != 0 ||
            (header_.e_phnum != count && header_.e_phnum != PN_XNUM)) {
            refuse("its program headers are damaged");
        }
        for (std::size_t index = 0; index < count; ++index) {
            GElf_Phdr segment;
            if (gelf_getphdr(elf_.get(), static_cast<int>(index), &segment) == nullptr) {
                refuse("its program headers are damaged");
            }
            if (segment.p_type == PT_NOTE) {
                readNotes(segment.p_offset, segment.p_filesz, segment.p_align);
            }
        }
    }

    void readSections() {
        std::size_t count = 0;
        if (elf_getshdrnum(elf_.get(), &count) != 0 ||
            (header_.e_shnum != count && header_.e_shnum != 0)) {
            refuse("its section headers are damaged");
        }
        for (std::size_t index = 1; index < count; ++index) {
            GElf_Shdr section;
            if (gelf_getshdr(elf_getscn(elf_.get(), index), &section) == nullptr) {
                refuse("its section headers are damaged");
            }
            if (section.sh_type == SHT_NOTE) {
                readNotes(section.sh_offset, section.sh_size, section.sh_addralign);
            }
        }
    }

    void readNotes(std::uint64_t offset, std::uint64_t size, std::uint64_t alignment) {
        if (!Bytes(bytes_.data(), bytes_.size()).holds(offset, size)) {
            refuse("its notes lie outside of it");
        }
        read_ += size;
        if (read_ > mostReadings * bytes_.size()) {
            refuse("its notes overlap");
        }
        Elf_Data* const notes =
            elf_getdata_rawchunk(elf_.get(), static_cast<std::int64_t>(offset), size,
                                 alignment == 8 ? ELF_T_NHDR8 : ELF_T_NHDR);
        for (std::size_t at = 0; notes != nullptr && at < size;) {
            GElf_Nhdr note;
            std::size_t nameAt = 0;
            std::size_t contentAt = 0;
            const std::size_t next = gelf_getnote(notes, at, &note, &nameAt, &contentAt);
            if (next <= at) {
                refuse("its notes are damaged");
            }
            const std::string_view rest = std::string_view(bytes_).substr(offset, size);
            if (note.n_type == layout::noteType &&
                rest.substr(nameAt, note.n_namesz) ==
                    std::string_view(layout::noteName, sizeof layout::noteName)) {
                readTable(offset + contentAt, note.n_descsz);
            }
            at = next;
        }
    }

    /// Reads the table in a note, unless it was already read from an overlapping segment.
    void readTable(std::size_t offset, std::size_t size) {
        if (!known_.insert(offset).second) {
            return;
        }
        const Bytes content = Bytes(bytes_.data(), bytes_.size()).part(offset, size);
        const std::uint32_t language = numberAt(content, 0);
        const std::uint32_t length = numberAt(content, 4);
        if (!content.holds(layout::tableHeaderSize, length)) {
            refuse("a table of messages is longer than its note");
        }
        try {
            TableTexts texts = decodeTable(content.part(layout::tableHeaderSize, length));
            tables_[language].merge(texts); // this keeps the first text of each message
        } catch (const BrokenTable& broken) {
            throw CannotRun(name_ + ": the table of messages in the language " +
                            languageText(language) + " is damaged: " + broken.what());
        }
    }

    /// Reads a number in the byte order of the module's machine.
    std::uint32_t numberAt(Bytes bytes, std::size_t offset) const noexcept {
        const std::uint32_t number = bytes.u32(offset);
        const bool isReversed = header_.e_ident[EI_DATA] == ELFDATA2MSB;
        return isReversed ? boost::endian::endian_reverse(number) : number;
    }

    struct Closer {
        void operator()(Elf* elf) const noexcept { elf_end(elf); }
    };

    const std::string& name_;
    std::string bytes_;
    std::unique_ptr<Elf, Closer> elf_;
    GElf_Ehdr header_ = {};
    std::uint64_t read_ = 0; ///< bytes of all notes so far
    std::set<std::size_t> known_;
    std::map<std::uint32_t, TableTexts> tables_;
};

/// Returns why the tool cannot read tables from a file.
std::string describeForeign(std::string_view bytes) {
    if (startsWith(bytes, ARMAG)) {
        return "this is an archive of objects; extract an object, for example with ar x";
    }
    if (startsWith(bytes, "MZ")) {
        return "this is a module for Windows; read the table that it was made from, a .bin file";
    }
    return "this is neither a module for ELF nor a message table";
}

} // namespace

bool holdsTables(std::string_view bytes) noexcept {
    return isElf(bytes) || mayBeTable({bytes.data(), bytes.size()});
}

std::vector<LanguageTable> readTables(const std::string& name, std::string bytes) {
    std::vector<LanguageTable> tables;
    if (isElf(bytes)) {
        for (auto& [language, texts] : NoteCollector(name, std::move(bytes)).collect()) {
            if (!texts.empty()) {
                tables.push_back({language, std::move(texts)});
            }
        }
        return tables;
    }
    if (!holdsTables(bytes)) {
        throw CannotRun(name + ": " + describeForeign(bytes));
    }
    try {
        TableTexts texts = decodeTable({bytes.data(), bytes.size()});
        if (!texts.empty()) {
            tables.push_back({std::nullopt, std::move(texts)});
        }
    } catch (const BrokenTable& broken) {
        throw CannotRun(name + ": this is not a message table, or a damaged one: " + broken.what());
    }
    return tables;
}

} // namespace zem::msglib::tool
