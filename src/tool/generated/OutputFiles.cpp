#include "tool/generated/OutputFiles.h"

#include "tool/text/CannotRun.h"
#include "tool/text/InputFile.h"

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <system_error>

// Names and bytes go in, files come out. First, each changed file is written beside its place. Only
// if that succeeds for all of them, each is moved to its place. Unchanged files are not touched.

namespace zem::msglib::tool {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void refuse(const fs::path& path, const std::string& reason) {
    throw CannotRun(path.string() + ": cannot be written: " + reason);
}

bool hasBytes(const fs::path& path, const std::string& bytes) {
    std::error_code failed;
    return fs::file_size(path, failed) == bytes.size() && !failed &&
           readBytes(path.string()) == bytes;
}

/// Writes a file completely, or removes it.
void writeBytes(const fs::path& path, const std::string& bytes) {
    std::FILE* const file = std::fopen(path.string().c_str(), "wb");
    bool isWritten =
        file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    int reason = errno;
    if (file != nullptr && std::fclose(file) != 0 && isWritten) {
        isWritten = false;
        reason = errno;
    }
    if (!isWritten) {
        std::error_code ignored;
        fs::remove(path, ignored);
        refuse(path, std::generic_category().message(reason));
    }
}

/// A temporary file beside its place. It is removed unless it was moved to its place.
class PendingFile {
public:
    PendingFile(const fs::path& place, const std::string& bytes) : place_(place), beside_(place) {
        beside_ += ".new";
        writeBytes(beside_, bytes);
    }
    PendingFile(PendingFile&& other) noexcept
        : place_(std::move(other.place_)),
          beside_(std::exchange(other.beside_, {})) {}
    PendingFile& operator=(PendingFile&&) = delete;
    ~PendingFile() {
        std::error_code ignored;
        if (!beside_.empty()) {
            fs::remove(beside_, ignored);
        }
    }

    void moveToPlace() {
        std::error_code failed;
        fs::rename(beside_, place_, failed);
        if (failed) {
            refuse(place_, failed.message());
        }
        beside_.clear();
    }

private:
    fs::path place_;
    fs::path beside_;
};

} // namespace

OutputFiles::OutputFiles(fs::path folder) : folder_(std::move(folder)) {}

void OutputFiles::add(const std::string& name, std::string bytes) {
    files_.emplace_back(folder_ / fs::u8path(name), std::move(bytes));
}

void OutputFiles::write() const {
    std::error_code failed;
    fs::create_directories(folder_, failed);
    if (failed) {
        refuse(folder_, failed.message());
    }
    std::vector<PendingFile> pending;
    for (const auto& [path, bytes] : files_) {
        if (fs::exists(path, failed) && !fs::is_regular_file(path, failed)) {
            refuse(path, "there is something else of that name");
        }
        if (!hasBytes(path, bytes)) {
            pending.emplace_back(path, bytes);
        }
    }
    for (PendingFile& file : pending) {
        file.moveToPlace();
    }
}

} // namespace zem::msglib::tool
