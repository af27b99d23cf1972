#pragma once

#include "tool/catalogue/HeadLexer.h"
#include "tool/catalogue/Identifiers.h"
#include "tool/diagnostics/Diagnostics.h"
#include "tool/text/Names.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// Thrown to leave a statement after an error in it was reported.
struct Abandoned {};

/// Reports something that the file format does not allow, and throws `Abandoned`.
[[noreturn]] void abandon(Diagnostics& diagnostics, Place place, std::string words);

/// Returns whether a word is a keyword of the file format, in any case.
bool isKeyword(std::string_view word) noexcept;

/// Reads the values of statements, and keeps the declared names.
class HeadValues {
public:
    /// The names of one kind, and how many bits their numbers have.
    struct Kind {
        std::string_view what;
        std::string_view list; ///< the keyword that declares them
        unsigned bits;
        DeclaredNames names;
    };

    /// Both are borrowed.
    HeadValues(HeadLexer& lexer, Diagnostics& diagnostics) noexcept
        : lexer_(lexer),
          diagnostics_(diagnostics) {}

    Kind severities = {"severity",
                       "SeverityNames",
                       2,
                       {{"Success", 0}, {"Informational", 1}, {"Warning", 2}, {"Error", 3}}};
    Kind facilities = {"facility", "FacilityNames", 12, {{"System", 0xFF}, {"Application", 0xFFF}}};
    Kind languages = {"language", "LanguageNames", 16, {{"English", 0x409}}};

    /// Reads a list "(name=number:other ...)" and declares its names.
    void readList(const Token& keyword, Kind& kind);

    /// Reads a declared name. Returns nothing if no such name is declared, which is reported.
    std::optional<NamedValue> readName(const Token& keyword, const Kind& kind);

    /// Reads one word.
    ///
    /// @param keyword  of the statement
    /// @param wanted   what a diagnostic asks for if the word is missing
    Token readWord(const Token& keyword, const std::string& wanted);

    /// Reads a number of 32 bits, decimal or hexadecimal.
    std::uint32_t readNumber(const Token& keyword);

private:
    void readEntry(Kind& kind, const Token& open);
    void declare(Kind& kind, const Token& name, const Token& number, std::uint32_t value);
    [[noreturn]] void abandonList(const Token& open, const Token& next);

    HeadLexer& lexer_;
    Diagnostics& diagnostics_;
};

} // namespace zem::msglib::tool
