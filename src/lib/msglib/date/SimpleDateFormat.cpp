#include "msglib/SimpleDateFormat.h"

#include "date/CalendarTime.h"
#include "platform/LastError.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace zem::msglib {

namespace {

using PictureOperation = decltype(&platform::GetDateFormatA);

// Writes runs of one letter through the platform, all into one buffer that grows when the platform
// asks for more.
class RunRenderer {
public:
    explicit RunRenderer(const platform::SYSTEMTIME& time) noexcept : time_(time) {}

    void append(PictureOperation operation, const std::string& picture, std::string& out) {
        int written = write(operation, picture, buffer(), size());
        if (written == 0 && platform::GetLastError() == platform::ERROR_INSUFFICIENT_BUFFER &&
            grow(write(operation, picture, nullptr, 0))) {
            written = write(operation, picture, buffer(), size());
        }
        if (written != 0) {
            out.append(buffer(), textLength());
        }
    }

private:
    int write(PictureOperation operation, const std::string& picture, char* buffer,
              int size) const noexcept {
        return operation(platform::localeIdentifier, 0, &time_, picture.c_str(), buffer, size);
    }

    // Makes room for the length that the platform asks for, which is 0 if it doesn't tell.
    bool grow(int needed) {
        if (needed > size()) {
            grown_.resize(static_cast<std::size_t>(needed));
        }
        return needed > 0;
    }

    char* buffer() noexcept { return grown_.empty() ? first_ : grown_.data(); }
    int size() const noexcept {
        return static_cast<int>(grown_.empty() ? sizeof first_ : grown_.size());
    }
    std::size_t textLength() noexcept {
        return ::strnlen(buffer(), static_cast<std::size_t>(size()));
    }

    platform::SYSTEMTIME time_;
    char first_[64] = {};
    std::vector<char> grown_;
};

bool contains(const std::string& letters, char c) noexcept {
    return std::find(letters.begin(), letters.end(), c) != letters.end();
}

std::size_t endOfRun(const std::string& pattern, std::size_t pos) noexcept {
    std::size_t end = pos + 1;
    while (end < pattern.size() && pattern[end] == pattern[pos]) {
        ++end;
    }
    return end;
}

// Appends quoted text from behind its opening quote and returns the position from which to go on.
std::size_t appendQuoted(const std::string& pattern, std::size_t pos, std::string& out) {
    const std::size_t end = pattern.find('\'', pos);
    out.append(pattern, pos, end - pos);
    if (end == std::string::npos) {
        return pattern.size();
    }
    if (end + 1 < pattern.size() && pattern[end + 1] == '\'') {
        out.push_back('\'');
    }
    return end + 1;
}

} // namespace

const std::string SimpleDateFormat::datePatternChars_("dMyg");
const std::string SimpleDateFormat::timePatternChars_("hHmst");

SimpleDateFormat::SimpleDateFormat(const std::string& pattern, const std::locale& locale)
    : pattern_(pattern),
      locale_(locale) {}

SimpleDateFormat::SimpleDateFormat(std::string&& pattern, const std::locale& locale)
    : pattern_(std::move(pattern)),
      locale_(locale) {}

SimpleDateFormat::~SimpleDateFormat() = default;

void SimpleDateFormat::applyPattern(const std::string& pattern) {
    pattern_ = pattern;
}

std::string& SimpleDateFormat::format(const boost::any& value, std::string& out) const {
    const auto seconds = readSeconds(value);
    const auto time = seconds ? calendarTime(*seconds) : std::nullopt;
    RunRenderer runs(time.value_or(platform::SYSTEMTIME()));
    std::size_t pos = 0;
    while (pos < pattern_.size()) {
        const char c = pattern_[pos];
        if (c == '\'') {
            pos = appendQuoted(pattern_, pos + 1, out);
            continue;
        }
        const bool isDate = contains(datePatternChars_, c);
        if (!isDate && !contains(timePatternChars_, c)) {
            out.push_back(c);
            ++pos;
            continue;
        }
        const std::size_t end = endOfRun(pattern_, pos);
        if (time) {
            const auto operation = isDate ? platform::GetDateFormatA : platform::GetTimeFormatA;
            runs.append(operation, std::string(end - pos, c), out);
        }
        pos = end;
    }
    return out;
}

} // namespace zem::msglib
