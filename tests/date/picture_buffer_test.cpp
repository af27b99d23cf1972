// The picture operations are replaced by fakes, which return the results that a test sets.

#include "message/Outcome.h"
#include "msglib/SimpleDateFormat.h"
#include "platform/LastError.h"
#include "platform/LocaleServices.h"

#include <cstdint>
#include <deque>

namespace zem::msglib {
namespace {

struct Answer {
    int result;             ///< what the operation returns
    std::string bytes;      ///< what it writes
    bool isTooShort = true; ///< whether a failure is for lack of space
};

std::deque<Answer> answers;
std::string calls; ///< operation, picture and size of each, as in "Dyy:64 Th:64 "

int answer(char operation, const std::string& picture, char* buffer, int size) {
    calls += operation + picture + ':' + std::to_string(size) + ' ';
    EXPECT_EQ(buffer == nullptr, size == 0);
    const Answer given = answers.at(0);
    answers.pop_front();
    if (given.result == 0) {
        char byte;
        platform::GetLocaleInfoA(platform::localeIdentifier, platform::LOCALE_SCURRENCY,
                                 given.isTooShort ? &byte : nullptr, 1);
    }
    given.bytes.copy(buffer, static_cast<std::size_t>(size));
    return given.result;
}

} // namespace

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

namespace {

using namespace std::string_literals;

TEST(PictureBuffer, GrowsAsThePlatformRequiresAndIsReused) {
    const std::string full(63, 'x');
    const std::string m(99, 'm');
    const std::string n(199, 'n');
    const Answer ok = {2, "k\0"s};
    const Answer fits = {64, full + '\0'};
    const Answer ends = {6, "ab\0cd\0"s};
    const Answer no = {0, ""};
    const Answer never = {0, "", false};
    const Answer needs = {100, ""};
    const Answer large = {100, m + '\0'};
    const Answer more = {200, ""};
    const Answer larger = {200, n + '\0'};
    struct {
        int line;
        const char* pattern;
        std::deque<Answer> answers;
        const char* calls;
        std::string text;
    } const rows[] = {
        {__LINE__, "yyyy-h", {ok, ok}, "Dyyyy:64 Th:64 ", "k-k"},
        {__LINE__, "M", {fits}, "DM:64 ", full},
        {__LINE__, "M", {ends}, "DM:64 ", "ab"},
        {__LINE__, "Mh", {no, needs, large, ok}, "DM:64 DM:0 DM:100 Th:100 ", m + "k"},
        {__LINE__,
         "Md",
         {no, needs, large, no, more, larger},
         "DM:64 DM:0 DM:100 Dd:100 Dd:0 Dd:200 ",
         m + n},
        // a run that fails adds nothing, and the others are rendered
        {__LINE__, "h-d", {never, ok}, "Th:64 Dd:64 ", "-k"},
        {__LINE__, "M-d", {no, needs, never, ok}, "DM:64 DM:0 DM:100 Dd:100 ", "-k"},
        {__LINE__, "M-d", {no, needs, no, ok}, "DM:64 DM:0 DM:100 Dd:100 ", "-k"},
        {__LINE__, "m-d", {ok, no, needs, never}, "Tm:64 Dd:64 Dd:0 Dd:100 ", "k-"},
        {__LINE__, "M-d", {no, never, ok}, "DM:64 DM:0 Dd:64 ", "-k"},
        {__LINE__,
         "M-d-h",
         {no, needs, ok, no, never, ok},
         "DM:64 DM:0 DM:100 Dd:100 Dd:0 Th:100 ",
         "k--k"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        answers = row.answers;
        calls.clear();
        EXPECT_EQ(textOf(SimpleDateFormat(row.pattern, std::locale()), boost::any(0)), row.text);
        EXPECT_EQ(calls, row.calls);
        EXPECT_TRUE(answers.empty());
    }
}

TEST(PictureBuffer, TimesWithoutFieldsCallNoOperation) {
    calls.clear();
    EXPECT_EQ(textOf(SimpleDateFormat("y-h", std::locale()), boost::any(INT64_MAX + 0LL)), "-");
    EXPECT_EQ(calls, "");
}

} // namespace
} // namespace zem::msglib
