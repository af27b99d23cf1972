#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace zem::msglib::tool {

/// What is wrong with a message text file, in the form `file:line: words`.
class McError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One message in one language.
struct McText {
    std::uint32_t id;
    std::uint32_t language;
    std::u16string text; ///< each line with its CR LF
};

/// A name that the file gives to a message.
struct McSymbol {
    std::string name;
    std::uint32_t id;
};

/// The messages of one message text file, as the file writes them.
///
/// No identifier comes twice in one language, no symbol stands for two identifiers, every part of
/// an identifier fits its bits, and every text is there, is UTF-8 and fits an entry of a message
/// table.
struct McFile {
    std::vector<McText> texts;
    std::vector<McSymbol> symbols; ///< in the order of the file, each once
    std::map<std::uint32_t, std::string>
        bins; ///< language to the name of its table, without ".bin"
};

/// Returns the lines of a message text file, without their line ends (LF or CR LF) and without a
/// byte order mark.
///
/// @throws McError if the file cannot be read, is not UTF-8, or has a NUL or a lone CR
std::vector<std::string> readLines(const std::string& path);

/// Reads and checks a message text file.
///
/// @param path  for the words of failures
/// @throws McError for the first thing that is wrong
McFile parseMcFile(const std::string& path, const std::vector<std::string>& lines);

/// Returns the words for something wrong at a line, which counts from 1.
std::string at(const std::string& path, std::size_t line, const std::string& words);

/// Returns an identifier as people write it: 0xC1230001.
std::string hexadecimal(std::uint32_t id);

} // namespace zem::msglib::tool
