#include "tool/catalogue/SourceReader.h"

#include "tool/text/Encoding.h"
#include "tool/text/InputFile.h"

#include <algorithm>
#include <utility>

namespace zem::msglib::tool {

namespace {

constexpr char endOfFile = '\x1A';

/// Removes the end mark of older systems: a Ctrl-Z, and the padding of the last block after it.
void dropEndOfFile(std::string& text) {
    constexpr std::string_view padding("\x1A\0\r\n \t", 6);
    const std::size_t end = text.find(endOfFile);
    if (end != std::string::npos && text.find_first_not_of(padding, end) == std::string::npos) {
        text.resize(end);
    }
}

/// Replaces each CR LF by LF.
void normaliseLineEnds(std::string& text) {
    std::size_t kept = std::min(text.find('\r'), text.size());
    for (std::size_t index = kept; index < text.size(); ++index) {
        const bool endsLine =
            text[index] == '\r' && index + 1 < text.size() && text[index + 1] == '\n';
        if (!endsLine) {
            text[kept++] = text[index];
        }
    }
    text.resize(kept);
}

/// Returns whether all characters are allowed in a file; reports the first that is not.
bool isLegible(const SourceFile& file, Diagnostics& diagnostics) {
    static constexpr struct {
        char character;
        const char* message;
    } refused[] = {
        {'\0', "a NUL character in the text"},
        {'\r', "a carriage return without a line feed"},
        {endOfFile, "a Ctrl-Z, which ends the file for some programs, before the end of the file"},
    };
    for (const auto& row : refused) {
        const std::size_t found = file.text().find(row.character);
        if (found != std::string_view::npos) {
            diagnostics.report(rules::fileSyntax, {&file, found, 1}, row.message);
            return false;
        }
    }
    return true;
}

} // namespace

ReadSource readSource(const std::string& path, const std::string& encoding, std::size_t number,
                      Diagnostics& diagnostics) {
    return readSource(path, readBytes(path), encoding, number, diagnostics);
}

ReadSource readSource(const std::string& name, std::string bytes, const std::string& encoding,
                      std::size_t number, Diagnostics& diagnostics) {
    DecodedText decoded = decode(std::move(bytes), encoding);
    dropEndOfFile(decoded.text);
    normaliseLineEnds(decoded.text);
    auto file = std::make_unique<const SourceFile>(name, std::move(decoded.text), number);
    if (!decoded.problem.empty()) {
        diagnostics.report(rules::fileEncoding, {file.get(), file->text().size(), 0},
                           decoded.problem,
                           {{"name the encoding of the file, as in --encoding CP1252"}});
        return {std::move(file), false};
    }
    const bool isWhole = isLegible(*file, diagnostics);
    return {std::move(file), isWhole};
}

} // namespace zem::msglib::tool
