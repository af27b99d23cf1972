#include "message/Outcome.h"
#include "msglib/SimpleDateFormat.h"
#include "support/FakePictures.h"

#include <cstdint>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

TEST(PictureBuffer, GrowsAsThePlatformAsksAndServesEveryRun) {
    const std::string fits(63, 'x');
    const std::string longText(99, 'm');
    const std::string longer(199, 'n');
    using Answer = FakePictures::Answer;
    const auto writes = [](const std::string& text) {
        return Answer{static_cast<int>(text.size()) + 1, text + '\0', 0};
    };
    const auto needs = [](int size) { return Answer{size, "", 0}; };
    const Answer tooShort = {0, "", 122};
    const Answer refused = {0, "", 87};
    struct {
        int line;
        const char* pattern;
        std::deque<Answer> answers;
        const char* calls;
        std::string text;
    } const rows[] = {
        {__LINE__, "yyyy-h", {writes("Y"), writes("H")}, "Dyyyy:64 Th:64", "Y-H"},
        {__LINE__, "M", {writes(fits)}, "DM:64", fits},
        {__LINE__, "M", {writes("ab\0cd"s)}, "DM:64", "ab"},
        {__LINE__, "M", {tooShort, needs(100), writes(longText)}, "DM:64 DM:0 DM:100", longText},
        {__LINE__,
         "Mh",
         {tooShort, needs(100), writes(longText), writes("h")},
         "DM:64 DM:0 DM:100 Th:100",
         longText + "h"},
        {__LINE__,
         "MMd",
         {tooShort, needs(100), writes(longText), tooShort, needs(200), writes(longer)},
         "DMM:64 DMM:0 DMM:100 Dd:100 Dd:0 Dd:200",
         longText + longer},
        // refused runs add nothing, and the others stand
        {__LINE__, "h-d", {refused, writes("d")}, "Th:64 Dd:64", "-d"},
        {__LINE__,
         "M-d",
         {tooShort, needs(100), refused, writes("d")},
         "DM:64 DM:0 DM:100 Dd:100",
         "-d"},
        {__LINE__,
         "M-d",
         {tooShort, needs(100), tooShort, writes("d")},
         "DM:64 DM:0 DM:100 Dd:100",
         "-d"},
        {__LINE__,
         "m-d",
         {writes("m"), tooShort, needs(100), refused},
         "Tm:64 Dd:64 Dd:0 Dd:100",
         "m-"},
        {__LINE__, "M-d", {tooShort, refused, writes("d")}, "DM:64 DM:0 Dd:64", "-d"},
        {__LINE__,
         "MM-d-h",
         {tooShort, needs(100), writes(longText), tooShort, refused, writes("h")},
         "DMM:64 DMM:0 DMM:100 Dd:100 Dd:0 Th:100",
         longText + "--h"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        FakePictures pictures(row.answers);
        const SimpleDateFormat format(row.pattern, std::locale::classic());
        EXPECT_EQ(textOf(format, boost::any(0)), row.text);
        EXPECT_EQ(pictures.calls, row.calls);
        EXPECT_TRUE(pictures.answers.empty());
    }
}

TEST(PictureBuffer, TimesWithoutFieldsAskForNoPicture) {
    FakePictures pictures({});
    const SimpleDateFormat format("y-h", std::locale::classic());
    EXPECT_EQ(textOf(format, boost::any(INT64_MAX + 0LL)), "-");
    EXPECT_EQ(pictures.calls, "");
}

} // namespace
} // namespace zem::msglib
