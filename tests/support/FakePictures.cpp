#include "support/FakePictures.h"

#include "platform/LastError.h"
#include "platform/LocaleServices.h"

#include <utility>

namespace zem::msglib {

namespace {

FakePictures* inForce = nullptr;

/// Leaves a reason behind, by an operation that fails for it.
void leave(std::uint32_t reason) {
    using namespace platform;
    if (reason == ERROR_INSUFFICIENT_BUFFER) {
        char byte;
        GetLocaleInfoA(localeIdentifier, LOCALE_SCURRENCY, &byte, 1);
    } else {
        const SYSTEMTIME noTime = {};
        FILETIME count;
        SystemTimeToFileTime(&noTime, &count);
    }
}

int answer(char operation, const std::string& picture, char* buffer, int size) {
    auto& [answers, calls] = *inForce;
    calls += (calls.empty() ? "" : " ") + (operation + picture) + ":" + std::to_string(size);
    if (answers.empty() || (buffer == nullptr) != (size == 0)) {
        calls += "?";
        return 0;
    }
    const FakePictures::Answer answer = answers.front();
    answers.pop_front();
    if (answer.reason != 0) {
        leave(answer.reason);
    }
    answer.bytes.copy(buffer, static_cast<std::size_t>(size));
    return answer.result;
}

} // namespace

FakePictures::FakePictures(std::deque<Answer> inTurn) : answers(std::move(inTurn)) {
    inForce = this;
}

namespace platform {

int GetDateFormatA(std::uint32_t, std::uint32_t, const SYSTEMTIME*, const char* picture,
                   char* buffer, int size) noexcept {
    return answer('D', picture, buffer, size);
}

int GetTimeFormatA(std::uint32_t, std::uint32_t, const SYSTEMTIME*, const char* picture,
                   char* buffer, int size) noexcept {
    return answer('T', picture, buffer, size);
}

} // namespace platform

} // namespace zem::msglib
