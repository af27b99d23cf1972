#include "tool/text/Encoding.h"

#include "tool/text/CannotRun.h"
#include "tool/text/Unicode.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

// The bytes of a file go in, UTF-8 comes out. A byte order mark or the first character decides
// whether the file is UTF-16. UTF-8 is only validated; all other encodings are converted by iconv,
// up to the first bytes that are not valid.

namespace zem::msglib::tool {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view littleMark = "\xFF\xFE";
constexpr std::string_view bigMark = "\xFE\xFF";

bool startsWith(std::string_view bytes, std::string_view start) {
    return bytes.substr(0, start.size()) == start;
}

/// A converter of iconv.
class Converter {
public:
    Converter(const char* to, const std::string& from) : handle_(iconv_open(to, from.c_str())) {
        if (!isOpen()) {
            throw CannotRun("there is no encoding " + from + "; iconv --list shows all encodings");
        }
    }
    ~Converter() {
        if (isOpen()) {
            iconv_close(handle_);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    /// Converts `in`, and moves its start to the first bytes that were not converted.
    ///
    /// @return 0, or the reason why it stopped before the end
    int convert(std::string_view& in, std::string& out) {
        auto* position = const_cast<char*>(in.data()); // iconv reads only
        std::size_t left = in.size();
        int reason = E2BIG;
        while (reason == E2BIG) {
            std::array<char, 1U << 14> buffer;
            char* end = buffer.data();
            std::size_t available = buffer.size();
            // A last call without input writes the bytes that a stateful encoding still holds.
            const bool isLast = left == 0;
            const std::size_t result =
                iconv(handle_, isLast ? nullptr : &position, &left, &end, &available);
            reason = result == failed ? errno : isLast ? 0 : E2BIG;
            out.append(buffer.data(), buffer.size() - available);
        }
        in.remove_prefix(in.size() - left);
        return reason;
    }

private:
    static constexpr auto failed = static_cast<std::size_t>(-1);

    bool isOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

    iconv_t handle_;
};

std::string hexadecimalByte(char byte) {
    std::array<char, 8> digits;
    const unsigned value = static_cast<unsigned char>(byte);
    return {digits.data(),
            static_cast<std::size_t>(std::snprintf(digits.data(), digits.size(), "0x%02X", value))};
}

/// Returns whether the first character is ASCII in UTF-16. In UTF-32, it would have three zero
/// bytes.
bool startsInUtf16(std::string_view bytes) {
    return bytes.size() >= 2 && (bytes[0] == '\0') != (bytes[1] == '\0') &&
           bytes.substr(2, 2) != std::string_view("\0\0", 2);
}

std::string problemOf(std::string_view rest, const std::string& encoding) {
    return "the byte " + hexadecimalByte(rest.front()) + " is not valid " + encoding + " here";
}

DecodedText decodeUtf8(std::string bytes) {
    const std::size_t length = validUtf8Length(bytes);
    std::string problem;
    if (length < bytes.size()) {
        problem = problemOf(std::string_view(bytes).substr(length), "UTF-8");
        bytes.resize(length);
    }
    return {std::move(bytes), std::move(problem), "UTF-8"};
}

DecodedText decodeOther(std::string_view bytes, const std::string& encoding) {
    Converter converter("UTF-8", encoding);
    DecodedText decoded{{}, {}, encoding};
    if (converter.convert(bytes, decoded.text) != 0) {
        decoded.problem =
            bytes.empty() ? "the file ends inside a character" : problemOf(bytes, encoding);
    }
    return decoded;
}

} // namespace

DecodedText decode(std::string bytes, const std::string& name) {
    if (startsWith(bytes, utf8Mark)) {
        return decodeUtf8(bytes.substr(utf8Mark.size()));
    }
    if (startsWith(bytes, littleMark)) {
        return decodeOther(std::string_view(bytes).substr(littleMark.size()), "UTF-16LE");
    }
    if (startsWith(bytes, bigMark)) {
        return decodeOther(std::string_view(bytes).substr(bigMark.size()), "UTF-16BE");
    }
    if (startsInUtf16(bytes)) {
        return decodeOther(bytes, bytes[1] == '\0' ? "UTF-16LE" : "UTF-16BE");
    }
    return name.empty() ? decodeUtf8(std::move(bytes)) : decodeOther(bytes, name);
}

} // namespace zem::msglib::tool
