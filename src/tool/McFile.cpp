#include "McFile.h"

#include <boost/locale/encoding_utf.hpp>

#include <fstream>
#include <iomanip>
#include <sstream>

namespace zem::msglib::tool {

namespace {

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

bool isUtf8(const std::string& text) {
    try {
        boost::locale::conv::utf_to_utf<char16_t>(text, boost::locale::conv::stop);
        return true;
    } catch (const boost::locale::conv::conversion_error&) {
        return false;
    }
}

} // namespace

std::string at(const std::string& path, std::size_t line, const std::string& words) {
    return path + ":" + std::to_string(line) + ": " + words;
}

std::string hexadecimal(std::uint32_t id) {
    std::ostringstream out;
    out << "0x" << std::hex << std::uppercase << std::setw(8) << std::setfill('0') << id;
    return out.str();
}

std::vector<std::string> readLines(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        throw McError(path + ": cannot be read");
    }
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        if (lines.empty() && line.compare(0, 3, byteOrderMark) == 0) {
            line.erase(0, 3);
        }
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        lines.push_back(line);
        if (line.find_first_of(std::string("\r\0", 2)) != std::string::npos) {
            throw McError(at(path, lines.size(), "NUL or carriage return inside a line"));
        }
        if (!isUtf8(line)) {
            throw McError(at(path, lines.size(), "invalid UTF-8"));
        }
    }
    return lines;
}

} // namespace zem::msglib::tool
