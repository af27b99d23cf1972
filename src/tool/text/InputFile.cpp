#include "tool/text/InputFile.h"

#include "tool/text/CannotRun.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace zem::msglib::tool {

namespace {

[[noreturn]] void refuse(const std::string& path) {
    throw CannotRun(path + ": cannot be read: " + std::generic_category().message(errno));
}

} // namespace

std::string readBytes(const std::string& path) {
    const auto close = [](std::FILE* file) {
        if (file != stdin) {
            std::fclose(file);
        }
    };
    const std::unique_ptr<std::FILE, decltype(close)> file(
        path == "-" ? stdin : std::fopen(path.c_str(), "rb"), close);
    if (file == nullptr) {
        refuse(path);
    }
    std::string bytes;
    std::array<char, 1U << 16> buffer;
    for (std::size_t count = buffer.size(); count == buffer.size();) {
        count = std::fread(buffer.data(), 1, buffer.size(), file.get());
        bytes.append(buffer.data(), count);
    }
    if (std::ferror(file.get()) != 0) {
        refuse(path);
    }
    return bytes;
}

} // namespace zem::msglib::tool
