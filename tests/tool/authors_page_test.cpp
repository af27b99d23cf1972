// Runs the commands of the page for authors and compares what they print. Blocks of the page are
// marked: "<!-- file NAME -->" comes before the content of a file, "<!-- console -->" before
// commands, each after "$ ", and their output.

#include "tool/Program.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace zem::msglib::tool {
namespace {

struct Block {
    std::string mark; ///< `console`, or `file` and a name
    std::string content;
};

/// Returns the code blocks of a page, each with the mark before it.
std::vector<Block> codeBlocks(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::vector<Block> blocks;
    std::string mark;
    bool isInside = false;
    for (std::string line; std::getline(in, line);) {
        if (line == "```") {
            isInside = !isInside;
            if (isInside) {
                blocks.push_back({std::exchange(mark, {}), {}});
            }
        } else if (isInside) {
            blocks.back().content += line + "\n";
        } else if (line.rfind("<!-- ", 0) == 0) {
            mark = line.substr(5, line.size() - 9);
        }
    }
    return blocks;
}

class AuthorsPage : public FolderTest {};

TEST_F(AuthorsPage, MatchesTheOutputOfTheProgram) {
    const std::vector<Block> blocks = codeBlocks(DOCS_FOLDER "/authors.md");
    ASSERT_GE(blocks.size(), 10U);
    std::filesystem::copy(PLUG_IN, folder_);
    for (const Block& block : blocks) {
        if (block.mark.rfind("file ", 0) == 0) {
            write(block.mark.substr(5), block.content);
        }
        if (block.mark != "console") {
            continue;
        }
        std::string printed;
        std::istringstream in(block.content);
        for (std::string line; std::getline(in, line);) {
            if (line.rfind("$ ", 0) == 0) {
                printed += line + "\n" + run(line.substr(2)).output;
            }
        }
        EXPECT_EQ(printed, block.content);
    }
}

} // namespace
} // namespace zem::msglib::tool
