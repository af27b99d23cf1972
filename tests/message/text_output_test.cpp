#include "base/TextOutput.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>

namespace zem::msglib {
namespace {

constexpr std::size_t most = TextOutput::bufferSize;

// Applies every change to an ordinary string too.
TEST(TextOutput, AgreesWithAString) {
    std::mt19937 random(20261123);
    const auto below = [&random](std::size_t end) { return random() % end; };
    const std::size_t sizes[] = {9, 40, most + 1, 3 * most};
    std::string source(3 * most, '\0');
    std::generate(source.begin(), source.end(), [&] { return static_cast<char>(random()); });
    for (int round = 0; round < 2000; ++round) {
        std::string expected = "kept";
        std::string text = expected;
        TextOutput output(text);
        std::size_t earlier = output.size();
        for (std::size_t step = below(60); step > 0; --step) {
            const std::size_t size = below(sizes[below(4)]);
            const std::string piece = source.substr(below(source.size() - size), size);
            switch (below(6)) {
            case 0:
                output.append('x');
                expected += 'x';
                break;
            case 1: {
                const std::size_t count = std::min(size, most);
                output.advanceTo(std::copy_n(piece.data(), count, output.reserve(most)));
                expected += piece.substr(0, count);
                break;
            }
            case 2: earlier = output.size(); break;
            case 3:
                output.truncate(earlier);
                expected.resize(earlier);
                break;
            default: output.append(piece); expected += piece;
            }
            ASSERT_EQ(output.size(), expected.size());
        }
        output.flush();
        ASSERT_EQ(text, expected);
    }
}

TEST(TextOutput, AppendsTheBytesBeforeAFailure) {
    std::string text = "kept, ";
    const auto fail = [](TextOutput& output) {
        output.append("and more");
        throw std::runtime_error("");
    };
    EXPECT_THROW(TextOutput::to(text, fail), std::runtime_error);
    EXPECT_EQ(text, "kept, and more");
}

} // namespace
} // namespace zem::msglib
