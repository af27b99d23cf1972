// A typed call returns the same stream as one written by hand, for every type of each kind. Calls
// that must not compile are in wrong_calls.cpp.

#include "CallTextsCalls.h"

#include <msglib/MessageFormatStream.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <ctime>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

using namespace std::chrono_literals;
using std::chrono::system_clock;
using zem::msglib::MessageFormatStream;

class TypedCallTest : public testing::Test {
protected:
    static void SetUpTestSuite() { registerCallTexts(); }
};

struct Row {
    int line;
    MessageFormatStream stream;
    const char* text; // without the line end
};

template <class Rows>
void check(const Rows& rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(row.stream.toString(), std::string(row.text) + "\n") << "line " << row.line;
    }
}

struct Folder {
    operator std::string_view() const { return "Büro"; }
};

struct Name : std::string {
    using std::string::string;
};

enum Level { low = 1, high = 2 };

// Beyond the 32 bits of a `long` argument.
constexpr long long large = 5000000000;

TEST_F(TypedCallTest, TakesNumbers) {
    const Row rows[] = {
        {__LINE__, CallTexts::MSG_NUMBER(7), "7"},
        {__LINE__, CallTexts::MSG_NUMBER(true), "1"},
        {__LINE__, CallTexts::MSG_NUMBER(static_cast<signed char>(-65)), "-65"},
        {__LINE__, CallTexts::MSG_NUMBER(static_cast<unsigned char>(65)), "65"},
        {__LINE__, CallTexts::MSG_NUMBER(static_cast<short>(-7)), "-7"},
        {__LINE__, CallTexts::MSG_NUMBER(7L), "7"},
        {__LINE__, CallTexts::MSG_NUMBER(std::size_t{65}), "65"},
        {__LINE__, CallTexts::MSG_NUMBER(large), "5000000000"},
        {__LINE__, CallTexts::MSG_NUMBER(static_cast<unsigned long long>(large)), "5000000000"},
        {__LINE__, CallTexts::MSG_NUMBER(0.5F), "0.5"},
        {__LINE__, CallTexts::MSG_NUMBER(0.25L), "0.25"},
    };
    check(rows);
}

TEST_F(TypedCallTest, TakesTimesRoundedDownToSeconds) {
    const system_clock::time_point epoch;
    const Row rows[] = {
        {__LINE__, CallTexts::MSG_TIME(86399), "1970-01-01 23:59:59"},
        {__LINE__, CallTexts::MSG_TIME(4294967295U), "2106-02-07 06:28:15"},
        {__LINE__, CallTexts::MSG_TIME(large), "2128-06-11 08:53:20"},
        {__LINE__, CallTexts::MSG_TIME(1.9), "1970-01-01 00:00:01"},
        {__LINE__, CallTexts::MSG_TIME(epoch + 1999ms), "1970-01-01 00:00:01"},
        {__LINE__, CallTexts::MSG_TIME(epoch - 1ms), "1969-12-31 23:59:59"},
        {__LINE__, CallTexts::MSG_TIME(std::chrono::time_point_cast<std::chrono::hours>(epoch)),
         "1970-01-01 00:00:00"},
        {__LINE__, CallTexts::MSG_STAMP(epoch + 61s), "61"},
        {__LINE__, CallTexts::MSG_NUMBER_AND_TIME(large), "5000000000 is 2128"},
    };
    check(rows);
}

TEST_F(TypedCallTest, TakesNamedTypesBeyond32Bits) {
    if (sizeof(std::size_t) < sizeof large) {
        GTEST_SKIP() << "the types of a 32-bit system have no such values";
    }
    const Row rows[] = {
        {__LINE__, CallTexts::MSG_NUMBER(static_cast<std::size_t>(large)), "5000000000"},
        {__LINE__, CallTexts::MSG_NUMBER(static_cast<std::ptrdiff_t>(-large)), "-5000000000"},
        {__LINE__, CallTexts::MSG_NUMBER(static_cast<std::time_t>(large)), "5000000000"},
        {__LINE__, CallTexts::MSG_TIME(static_cast<std::time_t>(large)), "2128-06-11 08:53:20"},
        {__LINE__, CallTexts::MSG_ANY(static_cast<std::size_t>(large)), "5,000,000,000"},
    };
    check(rows);
}

TEST_F(TypedCallTest, TakesTexts) {
    char changeable[] = "Büro";
    char* const pointer = changeable;
    const Row rows[] = {
        {__LINE__, CallTexts::MSG_COPIED(1, "Büro"), "One file copied to Büro."},
        {__LINE__, CallTexts::MSG_COPIED(1, changeable), "One file copied to Büro."},
        {__LINE__, CallTexts::MSG_COPIED(1, pointer), "One file copied to Büro."},
        {__LINE__, CallTexts::MSG_COPIED(1, std::string("Büro")), "One file copied to Büro."},
        {__LINE__, CallTexts::MSG_COPIED(1, std::string_view("Büros", 5)),
         "One file copied to Büro."},
        {__LINE__, CallTexts::MSG_COPIED(1, Folder()), "One file copied to Büro."},
        {__LINE__, CallTexts::MSG_COPIED(1, Name("Büro")), "One file copied to Büro."},
    };
    check(rows);
}

TEST_F(TypedCallTest, AcceptsStreamableValuesForAPlainPlaceholder) {
    const Row rows[] = {
        {__LINE__, CallTexts::MSG_ANY("Büro"), "Büro"},
        {__LINE__, CallTexts::MSG_ANY(Folder()), "Büro"},
        {__LINE__, CallTexts::MSG_ANY('c'), "c"},
        {__LINE__, CallTexts::MSG_ANY(high), "2"},
        {__LINE__, CallTexts::MSG_ANY(std::size_t{4000000000}), "4,000,000,000"},
        {__LINE__, CallTexts::MSG_ANY(0.25L), "0.25"},
        {__LINE__, CallTexts::MSG_UNUSED("first", 0, "last"), "last first"},
        {__LINE__, CallTexts::MSG_NONE(), "C:\\"},
    };
    check(rows);
}

TEST_F(TypedCallTest, EqualsTheStreamWrittenByHand) {
    const std::string folder = "Büro";
    const std::string text = (MessageFormatStream(MSG_COPIED) << 7 << folder).toString();
    const auto call = CallTexts::MSG_COPIED(7, folder);
    static_assert(std::is_same_v<decltype(call), const MessageFormatStream>);
    EXPECT_EQ(call.messageId(), MSG_COPIED);
    EXPECT_EQ(call.toString(), text);
    EXPECT_EQ((CallTexts::MSG_COPIED(7, folder) << CallTexts::MSG_COPIED(7, folder)).toString(),
              text + text);
}

} // namespace
