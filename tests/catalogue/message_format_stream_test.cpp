#include "ProgramTexts.h"
#include "message/Outcome.h"
#include "msglib/MessageFormatStream.h"
#include "msglib/MessageLibrary.h"

#include <stdexcept>
#include <utility>

namespace zem::msglib {
namespace {

using namespace std::string_literals;
using Stream = MessageFormatStream;

TEST(MessageFormatStream, KeepsTheTypeOfEachArgument) {
    EXPECT_EQ((Stream("{0}") << 'x').toString(), "x");
    EXPECT_EQ((Stream("{0}{1}") << -7 << true).toString(), "-71");
    EXPECT_EQ((Stream("{0} {1}") << -7L << -5'000'000'000LL).toString(), "-7 -5,000,000,000");
    EXPECT_EQ((Stream("{0} {1}") << 4294967295U << 7UL).toString(), "4,294,967,295 7");
    EXPECT_EQ((Stream("{0,choice,0#small|1e18#huge}") << (1ULL << 63)).toString(), "huge");
    EXPECT_EQ((Stream("{0}{1}") << 7.0 << 0.5F).toString(), "7.000.50");
    EXPECT_EQ((Stream("{0}{1}") << "a\0b"s.c_str() << "c"s).toString(), "ac");
    EXPECT_EQ((Stream("{0}") << "a\0b"s).toString(), "a\0b"s);
    EXPECT_EQ((Stream("{0}") << std::string_view("a\0bc", 3)).toString(), "a\0b"s);
    EXPECT_THROW((Stream("{0,number}") << '7').toString(), std::runtime_error);
    EXPECT_THROW((Stream("{0,number}") << "7").toString(), std::runtime_error);
}

TEST(MessageFormatStream, LongBeyond32BitsThrowsAndChangesNothing) {
    if (sizeof(long) == 4) {
        GTEST_SKIP() << "long has no values beyond 32 bits";
    }
    const Stream stream("{0}");
    EXPECT_THROW(stream << static_cast<long>(-2147483649LL), std::out_of_range);
    EXPECT_THROW(stream << static_cast<unsigned long>(4294967296ULL), std::out_of_range);
    EXPECT_EQ((stream << "x").toString(), "x");
}

TEST(MessageFormatStream, JoinsMessages) {
    EXPECT_EQ((Stream("a{0}") << "1" << Stream("b{0}") << "2").toString(), "a1b2");
    EXPECT_EQ((Stream("{0}") << "1" << Stream("b") << "2" << Stream("{0}") << "3").toString(),
              "1b3");
    const Stream right("r{0}");
    EXPECT_EQ(&(right << "1"), &right);
    EXPECT_EQ(right.toString(), "r1");
    const Stream left("l");
    left << right << "2";
    EXPECT_EQ(left.toString(), "lr1");
    EXPECT_EQ(right.toString(), "r1r1");

    const Stream itself("{0}");
    itself << "x" << itself;
    EXPECT_EQ(itself.toString(), "xx");
    itself << itself << itself;
    EXPECT_EQ(itself.toString(), "xxxxx");
}

TEST(MessageFormatStream, CopiesAreDeepAndMovesTakeTheText) {
    Stream stream("{0}");
    EXPECT_EQ((stream << "a").toString(), "a");
    Stream copy(stream);
    copy << Stream("c");
    EXPECT_EQ(copy.toString(), "aac");
    EXPECT_EQ(stream.toString(), "aa");

    Stream moved(std::move(stream));
    EXPECT_EQ(moved.toString(), "aaa");
    stream = moved;
    EXPECT_EQ(stream.toString(), "aaaa");
    EXPECT_EQ(moved.toString(), "aaaa");
    copy = std::move(moved);
    EXPECT_EQ(copy.toString(), "aaaaa");
    Stream& itself = copy;
    copy = itself;
    copy = std::move(itself);
    EXPECT_EQ(copy.toString(), "aaaaaa");
}

TEST(MessageFormatStream, MessageIdIsThatOfTheCurrentMessage) {
    registerProgramTexts();
    const Stream stream("p");
    EXPECT_EQ(stream.messageId(), 0U);
    stream << Stream(MSG_VALUE) << 1;
    EXPECT_EQ(stream.messageId(), MSG_VALUE);
    EXPECT_EQ((stream << Stream("q")).messageId(), 0U);
    EXPECT_EQ(stream.toString(), "pValue 1\nq");
    const char* nothing = nullptr;
    EXPECT_EQ(Stream(nothing).messageId(), 0U);
    EXPECT_THROW(Stream(nothing).toString(), std::runtime_error);
}

TEST(MessageFormatStream, FailuresByPatternLeaveTheStreamUnchanged) {
    const Stream stream("a");
    EXPECT_EQ(stream.toString(), "a");
    stream << Stream("{1}") << "x";
    EXPECT_THROW(stream.toString(), std::runtime_error);
    EXPECT_THROW(stream << Stream("lost"), std::runtime_error);
    EXPECT_THROW(stream << stream, std::runtime_error);
    EXPECT_EQ((stream << "y").toString(), "aay");
}

TEST(MessageFormatStream, FailuresByIdentifierAreText) {
    registerProgramTexts();
    const Stream stream(MSG_VALUE);
    stream << Stream(MSG_WRONG) << Stream(MSG_GERMAN_ONLY) << Stream(MSG_VALUE) << 1;
    EXPECT_EQ(stream.toString(), indexTooHigh + unexpectedBrace + "Invalid message IDValue 1\n");
    stream << Stream(0x230001);
    EXPECT_THROW(stream.toString(), std::runtime_error);
    EXPECT_THROW(stream << Stream("lost"), std::runtime_error);
    EXPECT_EQ(stream.messageId(), 0x230001U);
}

} // namespace
} // namespace zem::msglib
