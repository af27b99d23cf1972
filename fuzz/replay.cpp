// Runs a target without a fuzzer, over all files of a folder and over every short input.

#include "Properties.h"
#include "support/Emulation.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

std::string input;

void run() {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

/// Runs the input, followed by every text of up to `length` of the `bytes`.
void runLonger(int length, std::string_view bytes) {
    run();
    for (const char byte : length > 0 ? bytes : "") {
        input.push_back(byte);
        runLonger(length - 1, bytes);
        input.pop_back();
    }
}

} // namespace

int main(int argc, char** argv) {
    std::signal(SIGABRT, [](int) { std::fprintf(stderr, "input: %s\n", input.c_str()); });
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argc == 2 ? argv[1] : "")) {
        std::ifstream file(entry.path(), std::ios::binary);
        input.assign(std::istreambuf_iterator<char>(file), {});
        run();
        ++files;
    }
    const auto& [line, bytes] = zem::msglib::fuzzing::shortInputs;
    input = line;
    runLonger(zem::msglib::runsUnderEmulator ? 4 : 5, bytes);
    return files > 0 ? 0 : 1;
}
