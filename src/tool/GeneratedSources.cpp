#include "GeneratedSources.h"

#include <cctype>
#include <set>
#include <sstream>

namespace zem::msglib::tool {

namespace {

// In an embedded note, language and size stand before the table, and padding to a multiple of 8
// behind it.
constexpr std::size_t tableHeaderSize = 8;
constexpr std::size_t alignment = 8;

// The system looks for a message in this resource of a module.
constexpr int messageTableId = 1;
constexpr int messageTableType = 11;

bool isWord(char byte) {
    return std::isalnum(static_cast<unsigned char>(byte)) != 0;
}

/// Returns `name` in upper camel case: geo-messages -> GeoMessages.
std::string camelCase(const std::string& name) {
    std::string result;
    bool startsWord = true;
    for (const char byte : name) {
        if (isWord(byte)) {
            const auto upper = static_cast<char>(std::toupper(static_cast<unsigned char>(byte)));
            result += startsWord ? upper : byte;
        }
        startsWord = !isWord(byte);
    }
    return result;
}

std::string function(const std::string& name) {
    return "void register" + camelCase(name) + "()";
}

std::set<std::uint32_t> facilities(const McFile& file) {
    std::set<std::uint32_t> numbers;
    for (const McText& text : file.texts) {
        numbers.insert(text.id >> 16 & 0x7FF);
    }
    return numbers;
}

std::string quoted(const std::string& path) {
    std::string result = "\"";
    for (const char byte : path) {
        if (byte == '"' || byte == '\\') {
            result += '\\';
        }
        result += byte;
    }
    return result + '"';
}

/// Returns the assembler's lines for the note of one language.
std::string note(const TablePlace& place, const std::string& tablesPath) {
    const std::size_t padded =
        (tableHeaderSize + place.size + alignment - 1) / alignment * alignment;
    std::ostringstream out;
    out << "    .long 11, " << padded << ", 0x4d544231\n"
        << "    .asciz \"zem.msglib\"\n"
        << "    .balign 8\n"
        << "    .long " << place.language << ", " << place.size << "\n"
        << "    .incbin " << quoted(tablesPath) << ", " << place.offset << ", " << place.size
        << "\n"
        << "    .balign 8\n";
    return out.str();
}

} // namespace

std::string headerText(const std::string& name, const McFile& file) {
    std::ostringstream out;
    out << "// Generated from " << name << ".mc: edit that file, not this one.\n"
        << "#pragma once\n\n";
    for (const McSymbol& symbol : file.symbols) {
        out << "constexpr unsigned int " << symbol.name << " = " << hexadecimal(symbol.id)
            << "U;\n";
    }
    out << "\n/// Registers this module for the messages above. Call it before the first of them "
           "is rendered,\n"
        << "/// from code that is linked into this module.\n"
        << function(name) << ";\n";
    return out.str();
}

std::string sourceText(const std::string& name, const McFile& file, const std::string& tablesPath,
                       const std::vector<TablePlace>& places) {
    std::ostringstream out;
    out << "// Generated from " << name << ".mc: edit that file, not this one.\n"
        << "#include \"" << name << ".h\"\n\n"
        << "#include <msglib/MessageLibrary.h>\n\n"
        << "#if defined(__ELF__)\n"
        << "asm(R\"asm(\n"
        << "    .pushsection .note.zem.msgtab, \"a\", %note\n"
        << "    .balign 8\n";
    for (const TablePlace& place : places) {
        out << note(place, tablesPath);
    }
    out << "    .popsection\n"
        << ")asm\");\n"
        << "#endif\n\n"
        << "namespace {\n\n"
        << "// No other module can define it, so its address is one inside this module.\n"
        << "const char insideThisModule = 0;\n\n"
        << "} // namespace\n\n"
        << function(name) << " {\n"
        << "    auto& library = zem::msglib::IMessageLibrary::instance();\n";
    for (const std::uint32_t facility : facilities(file)) {
        out << "    library.registerFacility(" << facility << ", &insideThisModule);\n";
    }
    out << "}\n";
    return out.str();
}

std::string resourceText(const std::map<std::uint32_t, std::string>& tablePaths) {
    std::ostringstream out;
    for (const auto& [language, path] : tablePaths) {
        out << "LANGUAGE " << (language & 0x3FF) << ", " << (language >> 10) << "\n"
            << messageTableId << " " << messageTableType << " " << quoted(path) << "\n";
    }
    return out.str();
}

} // namespace zem::msglib::tool
