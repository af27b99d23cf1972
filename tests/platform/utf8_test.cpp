#include "platform/LastError.h"
#include "platform/MessageTables.h"

#include <gtest/gtest.h>

#include <string>

namespace zem::msglib::platform {
namespace {

int convert(const std::u16string& text, char* output, int size) {
    const int count = static_cast<int>(text.size());
    return WideCharToMultiByte(CP_UTF8, 0, text.data(), count, output, size, nullptr, nullptr);
}

TEST(WideCharToMultiByteTest, ConvertsAndMeasures) {
    const std::string mark = "\xEF\xBF\xBD";
    const struct {
        int line;
        std::u16string text;
        std::string bytes;
    } rows[] = {
        {__LINE__, u"a", "a"},
        {__LINE__, u"\u007F\u0080", "\x7F\xC2\x80"},
        {__LINE__, u"\u07FF\u0800", "\xDF\xBF\xE0\xA0\x80"},
        {__LINE__, u"\uD7FF\uE000\uFFFF", "\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"},
        {__LINE__, u"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        {__LINE__, {0xD83D}, mark},
        {__LINE__, {0xDE00}, mark},
        {__LINE__, {0xDE00, 0xD83D}, mark + mark},
        {__LINE__, {0xD83D, u'a'}, mark + "a"},
        {__LINE__, {0xD83D, 0xD83D, 0xDE00}, mark + "\xF0\x9F\x98\x80"},
        {__LINE__, {u'a', 0, u'b'}, {'a', 0, 'b'}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const int size = convert(row.text, nullptr, 0);
        ASSERT_EQ(size, static_cast<int>(row.bytes.size()));
        std::string bytes(row.bytes.size() + 1, '#');
        EXPECT_EQ(convert(row.text, bytes.data(), size), size);
        EXPECT_EQ(bytes, row.bytes + '#');
        if (size > 1) {
            EXPECT_EQ(convert(row.text, bytes.data(), size - 1), 0);
            EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
        }
    }
}

TEST(WideCharToMultiByteTest, ConvertsAnyUnitAnywhere) {
    constexpr std::size_t length = 20;
    for (std::size_t position = 0; position < length; ++position) {
        std::u16string text(length, u'a');
        text[position] = u'\u00E9';
        std::string bytes(length + 1, '#');
        EXPECT_EQ(convert(text, bytes.data(), length + 1), static_cast<int>(length) + 1);
        EXPECT_EQ(bytes, std::string(position, 'a') + "\xC3\xA9" +
                             std::string(length - position - 1, 'a'));
    }
}

TEST(WideCharToMultiByteTest, RejectsInvalidArguments) {
    char output[8];
    EXPECT_EQ(convert(u"", output, 8), 0);
    EXPECT_EQ(convert(u"a", output, -1), 0);
    EXPECT_EQ(convert(u"a", nullptr, 8), 0);
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, nullptr, 1, output, 8, nullptr, nullptr), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
}

} // namespace
} // namespace zem::msglib::platform
