#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zem::msglib::tool {

/// Returns a text as one word of the shell.
inline std::string quoted(const std::string& text) {
    std::string word = "'";
    for (const char byte : text) {
        word += byte == '\'' ? "'\\''" : std::string(1, byte);
    }
    return word + "'";
}

/// The output of a program, and its exit status.
struct Outcome {
    int status;
    std::string output; ///< standard output and standard error
};

/// Expects an exit status, and some words in the output.
inline void expect(const Outcome& outcome, int status, const std::string& words) {
    EXPECT_EQ(outcome.status, status) << outcome.output;
    EXPECT_NE(outcome.output.find(words), std::string::npos) << outcome.output;
}

/// Creates an empty folder for each test, and removes it afterwards.
class FolderTest : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    /// Runs a shell command in the folder, with `msglib` on its path.
    Outcome run(const std::string& command) const {
        Outcome outcome{0, {}};
        const std::filesystem::path program(PROGRAM);
        const std::string line = "{ cd " + quoted(folder_.string()) +
                                 " && PATH=" + quoted(program.parent_path().string()) +
                                 ":\"$PATH\" && " + command + "\n} 2>&1";
        FILE* const pipe = popen(line.c_str(), "r");
        for (int byte = std::fgetc(pipe); byte != EOF; byte = std::fgetc(pipe)) {
            outcome.output += static_cast<char>(byte);
        }
        const int status = pclose(pipe);
        outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return outcome;
    }

    std::string read(const std::filesystem::path& name) const {
        std::ifstream in(folder_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    void write(const std::filesystem::path& name, const std::string& bytes) const {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
    }

    const std::filesystem::path folder_ =
        std::filesystem::path(testing::TempDir()) /
        (std::string("msglib_") +
         testing::UnitTest::GetInstance()->current_test_info()->test_suite_name() + "_" +
         testing::UnitTest::GetInstance()->current_test_info()->name());
};

} // namespace zem::msglib::tool
