#include "tool/generated/GeneratedSources.h"

#include "tool/text/Strings.h"
#include "tool/text/Unicode.h"

#include "platform/portable/TableLayout.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <set>
#include <string_view>

// The names of a catalogue, its messages and tables go in, the texts of generated files come out: a
// header, a source and a resource script. The source contains each table as a note in assembler,
// and the function that registers the facilities.

namespace zem::msglib::tool {

namespace {

namespace layout = platform::layout;

// In an embedded note, language and size come before the table, and padding to a multiple of 8
// after it.
constexpr std::size_t alignment = 8;

constexpr std::size_t bytesPerLine = 256;

bool isAsciiWord(char32_t character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

/// Returns whether a character is a letter that every compiler accepts in the name of a function.
/// Only alphabets with Unicode blocks of their own are known. Other characters separate words, like
/// punctuation.
bool isForeignLetter(char32_t character) {
    static constexpr struct {
        char32_t first;
        char32_t last;
    } letters[] = {{0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x24F},    {0x388, 0x38A},
                   {0x38E, 0x3A1},   {0x3A3, 0x3CE},   {0x400, 0x481},   {0x48A, 0x52F},
                   {0x5D0, 0x5EA},   {0x620, 0x64A},   {0x1E00, 0x1EFF}, {0x3041, 0x3096},
                   {0x30A1, 0x30FA}, {0x4E00, 0x9FA5}, {0xAC00, 0xD7A3}};
    return std::any_of(std::begin(letters), std::end(letters), [=](const auto& range) {
        return character >= range.first && character <= range.last;
    });
}

/// Returns `name` in upper camel case: geo-messages -> GeoMessages.
std::string camelCase(std::string_view name) {
    std::string result;
    bool startsWord = true;
    while (!name.empty()) {
        const std::string_view before = name;
        const char32_t character = takeCharacter(name);
        if (isAsciiWord(character)) {
            const auto letter = static_cast<int>(character);
            result += static_cast<char>(startsWord ? std::toupper(letter) : letter);
        } else if (isForeignLetter(character)) {
            result += before.substr(0, before.size() - name.size());
        }
        startsWord = !isAsciiWord(character) && !isForeignLetter(character);
    }
    return result.empty() ? "Messages" : result;
}

/// Returns `name`, with a prefix if it begins with a digit.
std::string namespaceName(const std::string& name) {
    return (std::isdigit(static_cast<unsigned char>(name.front())) != 0 ? "Messages" : "") + name;
}

std::string origin(const CatalogueName& name) {
    return "// Generated from " + name.file + ": edit that file, not this one.\n";
}

std::string hexadecimalLanguage(std::uint32_t language) {
    return hexadecimal(language).substr(6);
}

bool isPlain(char byte) {
    return isAsciiWord(static_cast<unsigned char>(byte)) || byte == ' ';
}

/// Appends bytes as a string literal of the assembler. Letters, digits and blanks are written as
/// they are, all other bytes as octal numbers, so no text can end the C++ literal around it. Octal
/// numbers have three digits if another digit follows.
void appendLiteral(std::string& out, std::string_view bytes) {
    out += '"';
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        const char byte = bytes[index];
        if (isPlain(byte)) {
            out += byte;
            continue;
        }
        const auto value = static_cast<unsigned char>(byte);
        const bool isWhole = index + 1 < bytes.size() && isDigit(bytes[index + 1]);
        out += '\\';
        for (unsigned shift = 9; shift > 0;) {
            shift -= 3;
            if (isWhole || value >> shift != 0 || shift == 0) {
                out += static_cast<char>('0' + (value >> shift & 7));
            }
        }
    }
    out += '"';
}

void appendBytes(std::string& out, std::string_view bytes) {
    for (; !bytes.empty(); bytes.remove_prefix(std::min(bytesPerLine, bytes.size()))) {
        out += "    .ascii ";
        appendLiteral(out, bytes.substr(0, bytesPerLine));
        out += '\n';
    }
}

/// Appends the assembler block with the note of one language. Its numbers have the byte order of
/// the machine; the bytes of the table are not changed.
void appendNote(std::string& out, std::uint32_t language, const std::string& table) {
    const std::size_t padded =
        (layout::tableHeaderSize + table.size() + alignment - 1) / alignment * alignment;
    out.reserve(out.size() + 2 * table.size()); // half of the bytes need three or four characters
    out += "asm(R\"asm(\n"
           "    .pushsection .note.zem.msgtab, \"a\", %note\n"
           "    .balign 8\n"
           "    .4byte " +
           std::to_string(sizeof layout::noteName) + ", " + std::to_string(padded) + ", " +
           hexadecimal(layout::noteType) +
           "\n"
           "    .asciz \"" +
           layout::noteName +
           "\"\n"
           "    .balign 8\n"
           "    .4byte " +
           std::to_string(language) + ", " + std::to_string(table.size()) + "\n";
    appendBytes(out, table);
    out += "    .balign 8\n"
           "    .popsection\n"
           ")asm\");\n\n";
}

} // namespace

CatalogueName::CatalogueName(const std::string& path)
    : file(std::filesystem::path(path).filename().string()),
      stem(std::filesystem::path(path).stem().string()),
      registration("register" + camelCase(stem)),
      calls(namespaceName(camelCase(stem))) {}

std::string headerText(const CatalogueName& name, const Catalogue& catalogue) {
    std::string out = origin(name) + "#pragma once\n\n";
    std::set<std::string_view> known;
    for (const Message& message : catalogue.messages) {
        if (message.symbol.file != nullptr && known.insert(message.symbol.text()).second) {
            out += "constexpr unsigned int ";
            out += message.symbol.text();
            out += " = " + hexadecimal(message.id) + "U;\n";
        }
    }
    out +=
        "\n/// Registers this module for the messages above. Call it before the first of them is "
        "rendered,\n"
        "/// from code that is linked into this module.\n"
        "void " +
        name.registration + "();\n";
    return out;
}

std::string sourceText(const CatalogueName& name, const Catalogue& catalogue,
                       const Tables& tables) {
    std::string out = origin(name) + "#include \"" + name.stem +
                      ".h\"\n\n"
                      "#include <msglib/MessageLibrary.h>\n\n";
    if (!tables.empty()) {
        out += "#if !defined(__ELF__)\n"
               "#error \"These tables are for ELF modules; --format rc is for Windows\"\n"
               "#endif\n\n"
               "// A table may be longer than the string that compilers have to take.\n"
               "#pragma GCC diagnostic ignored \"-Woverlength-strings\"\n\n";
    }
    for (const auto& [language, table] : tables) {
        appendNote(out, language, table);
    }
    out += "namespace {\n\n"
           "// No other module can define it, so its address is one inside this module.\n"
           "const char insideThisModule = 0;\n\n"
           "} // namespace\n\n"
           "void " +
           name.registration +
           "() {\n"
           "    auto& library = zem::msglib::IMessageLibrary::instance();\n";
    std::set<std::uint32_t> modules;
    for (const Message& message : catalogue.messages) {
        modules.insert(message.facility() & moduleBits);
    }
    for (const std::uint32_t module : modules) {
        out += "    library.registerFacility(" + std::to_string(module) + ", &insideThisModule);\n";
    }
    out += "}\n";
    return out;
}

std::string tableFileName(std::uint32_t language) {
    return "messages_" + hexadecimalLanguage(language) + ".bin";
}

std::string resourceText(const Tables& tables) {
    // The message table of a module is resource 1 of type 11.
    std::string out;
    for (const auto& [language, table] : tables) {
        out += "LANGUAGE " + std::to_string(language & 0x3FF) + ", " +
               std::to_string(language >> 10) + "\n1 11 \"" + tableFileName(language) + "\"\n";
    }
    return out;
}

} // namespace zem::msglib::tool
