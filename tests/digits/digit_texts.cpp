// Writes the texts of generated numbers to a file, one a line, with the pattern and the bits of the
// number. The file must be the same on every system; script/compare-digits compares them.

#include <msglib/DecimalFormat.h>
#include <msglib/MessageFormat.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iterator>
#include <list>
#include <locale>
#include <string>
#include <vector>

namespace {

using zem::msglib::DecimalFormat;
using zem::msglib::MessageFormat;

constexpr int lines = 300'000;

// The generator splitmix64, which only uses integers.
class Random {
public:
    std::uint64_t bits() {
        state_ += 0x9E3779B97F4A7C15;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9;
        z = (z ^ (z >> 27U)) * 0x94D049BB133111EB;
        return z ^ (z >> 31U);
    }
    // Returns a number from `first` to `last`.
    int number(int first, int last) {
        return first + static_cast<int>(bits() % static_cast<unsigned int>(last - first + 1));
    }

private:
    std::uint64_t state_ = 12;
};

std::uint64_t bitsOf(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

double doubleOf(std::uint64_t bits) {
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

double powerOfTen(int exponent) {
    return std::strtod(("1e" + std::to_string(exponent)).c_str(), nullptr);
}

double withBinaryExponent(int exponent, Random& random) {
    return doubleOf(static_cast<std::uint64_t>(exponent + 1023) << 52U | random.bits() >> 12U);
}

double magnitude(Random& random) {
    const int small = random.number(0, 2'000'000);
    switch (random.number(0, 9)) {
    case 0: return doubleOf(random.bits() >> 1U);                    // any bits
    case 1: return doubleOf(random.bits() >> random.number(12, 63)); // subnormal
    case 2: return withBinaryExponent(random.number(50, 1023), random);
    case 3: return withBinaryExponent(random.number(-40, 60), random);
    case 4: return small;
    case 5: return small / 100.0;
    case 6: return (small + 0.5) / random.number(1, 1000);
    case 7: return small / 1024.0; // many ties
    case 8: return powerOfTen(random.number(-323, 308));
    default: { // next to a power of ten, and where its decimal exponent begins
        const int farthest = random.number(0, 1) == 0 ? 2 : 1600;
        const auto distance = static_cast<std::uint64_t>(random.number(-farthest, farthest));
        return doubleOf(bitsOf(powerOfTen(random.number(-300, 308))) + distance);
    }
    }
}

const char* const decimalPatterns[] = {
    "0",
    "#",
    "000,000",
    "#,##0",
    "#,##0.0",
    "#,##0.00",
    "#,##0.###",
    "#,##,##0.00##;#-",
    "#.##",
    "0.######",
    "0.0000000000",
    "0.####################",
    "#,##0.##;(#)",
    "$#,##0.00;($#,##0.00)",
    "\xA4#,##0.00",
    "#,##0.00 \xA4\xA4;-#",
    "0%",
    "#,##0.0#%",
    "0.###############%",
    "0E0",
    "#E0",
    "0.###E0",
    "0.###E00;#-",
    "00.##E00",
    "##0E##",
    "##0.####E0",
    "#.##E0",
    "0.0E000",
    "0.################E0",
    "0.00000000000000000E0",
    "0.#################E0%",
    "00000000.##########E0",
    "000,000,000.0#E0",
};

const char* const messagePatterns[] = {
    "{0}",
    "{0,number}",
    "{0,number,integer}",
    "{0,number,percent}",
    "{0,number,currency}",
    "{0,number,0.##########E0}",
};

class Formats {
public:
    Formats() {
        patterns_.assign(std::begin(decimalPatterns), std::end(decimalPatterns));
        // As many digits as a double can have.
        patterns_.push_back("0." + std::string(340, '#'));
        patterns_.push_back("0." + std::string(340, '#') + "E0");
        patterns_.push_back(std::string(320, '0') + ".0E0");
        for (const std::string& pattern : patterns_) {
            decimals_.emplace_back(pattern, std::locale::classic());
        }
        for (const char* pattern : messagePatterns) {
            patterns_.emplace_back(pattern);
            messages_.emplace_back(pattern);
        }
    }

    std::size_t size() const { return patterns_.size(); }
    const std::string& pattern(std::size_t index) const { return patterns_[index]; }
    void append(std::size_t index, double value, std::string& out) const {
        if (index < decimals_.size()) {
            decimals_[index].format(value, out);
        } else {
            messages_[index - decimals_.size()].format(std::list<boost::any>{value}, out);
        }
    }

private:
    std::vector<std::string> patterns_;
    std::vector<DecimalFormat> decimals_;
    std::vector<MessageFormat> messages_;
};

void writeTexts(std::FILE* file) {
    const Formats formats;
    Random random;
    std::string line;
    for (int count = 0; count < lines; ++count) {
        const std::size_t index = static_cast<std::size_t>(count) % formats.size();
        const double value = random.number(0, 3) == 0 ? -magnitude(random) : magnitude(random);
        char bits[17];
        std::snprintf(bits, sizeof bits, "%016llX", static_cast<unsigned long long>(bitsOf(value)));
        line.assign(formats.pattern(index)).append("\t").append(bits).append("\t");
        formats.append(index, value, line);
        line += '\n';
        std::fwrite(line.data(), 1, line.size(), file);
    }
}

} // namespace

int main(int argc, char** argv) {
    std::FILE* file = argc == 2 ? std::fopen(argv[1], "wb") : nullptr;
    if (file == nullptr) {
        std::fputs("usage: digit_texts file\n", stderr);
        return 2;
    }
    try {
        writeTexts(file);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "digit_texts: %s\n", failure.what());
        return 1;
    }
    const bool isWritten = std::ferror(file) == 0;
    return std::fclose(file) == 0 && isWritten ? 0 : 1;
}
