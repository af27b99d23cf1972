// Runs a target over all files of a folder, without a fuzzer.

#include "Properties.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

int main(int argc, char** argv) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argc == 2 ? argv[1] : "")) {
        std::ifstream input(entry.path(), std::ios::binary);
        const std::vector<char> bytes((std::istreambuf_iterator<char>(input)), {});
        std::cout << entry.path() << std::endl; // the last one printed is a find
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++files;
    }
    return files > 0 ? 0 : 1;
}
