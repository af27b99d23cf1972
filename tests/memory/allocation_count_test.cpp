#include "Allocations.h"

#include "msglib/MessageFormat.h"
#include "msglib/MessageFormatStream.h"
#include "msglib/MessageLibrary.h"

#include <gtest/gtest.h>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

struct Row {
    int line;
    std::string pattern;
    boost::any argument;
};

const std::string longText = "a text that is too long for the string object itself";

TEST(AllocationCount, CompiledMessagesAllocateNothing) {
    const Row rows[] = {
        {__LINE__, "no placeholder, but a text of some length", {}},
        {__LINE__, "{0} of '{'{0}'}'", longText},
        {__LINE__, "{0,number} or {0,number,integer}", 1234567.891},
        {__LINE__, "{0,number}", -1234567},
        {__LINE__, "{0,number,currency}", -1e15},
        {__LINE__, "{0,number,percent}", 0.25F},
        {__LINE__, "{0,number,#,##0.00#;(#)}", -1234.5},
        {__LINE__, "{0,number,'a prefix beyond small texts' 00.###E00}", 5e-324},
        {__LINE__, "{0,date} {0,date,short} {0,date,long} {0,time}", 1000000000},
        {__LINE__, "{0,date,'a day beyond small texts' dddd d MMMM yyyy HH:mm:ss tt}", 1e9},
    };
    for (const Row& row : rows) {
        const MessageFormat message(row.pattern);
        const std::list<boost::any> args = {row.argument};
        std::string out;
        out.reserve(1000);
        const std::size_t before = allocations();
        message.format(args, out);
        EXPECT_EQ(allocations() - before, 0U) << "row of line " << row.line;
    }
}

TEST(AllocationCount, DirectRenderingAllocatesOnlyTheText) {
    const Row rows[] = {
        {__LINE__, "no placeholder, but a text of some length", {}},
        {__LINE__, "{0} and '{'{0}'}', {0,unknown}, it''s {0}", "text"s},
        {__LINE__, "{0}, {0,number}, {0,number,integer}, {0,number,currency}", 1234},
        {__LINE__, "{0} or {0,number,percent} in a sentence", 0.25},
        {__LINE__, "{0} in a sentence", -1234},
        {__LINE__, "{0,date}, {0,date,short}, {0,date,medium}, {0,time}", 1000000000},
        {__LINE__, "{0,date,full} with some more words after it", 1000000000},
        {__LINE__, "{0,date,yyyy-MM-dd 'at' HH:mm} and {0,number,#,##0.0##;(#)}", 1000000000},
        {__LINE__, "{0,choice,0#no file|1#one file|1<{0,number,integer} files} copied", 1234},
    };
    for (const Row& row : rows) {
        const std::list<boost::any> args = {row.argument};
        const MessageLibrary& library = MessageLibrary::instance();
        const std::size_t before = allocations();
        const std::string text = library.formatMessage(row.pattern, args);
        const std::size_t needed = text.size() > std::string().capacity() ? 1 : 0;
        EXPECT_EQ(allocations() - before, needed) << "row of line " << row.line;
    }
}

TEST(AllocationCount, ManyPlaceholdersAllocateOnlyTheText) {
    std::string pattern;
    std::list<boost::any> args;
    for (int index = 0; index < 100; ++index) {
        pattern += "{" + std::to_string(index) + "}, ";
        args.emplace_back(1234);
    }
    const MessageLibrary& library = MessageLibrary::instance();
    const std::size_t before = allocations();
    const std::string text = library.formatMessage(pattern, args);
    EXPECT_EQ(allocations() - before, 1U);
    EXPECT_EQ(text.size(), 100 * std::string("1,234, ").size());
}

TEST(AllocationCount, JoiningAllocatesInProportionToTheText) {
    constexpr std::size_t count = 1000;
    const std::string piece(1000, 'x');
    const MessageFormatStream other(piece.c_str());
    for (const bool joinsItself : {false, true}) {
        const MessageFormatStream stream(piece.c_str());
        const std::size_t before = allocatedBytes();
        for (std::size_t joined = 1; joined < count; ++joined) {
            stream << (joinsItself ? stream : other);
        }
        const std::string text = stream.toString();
        EXPECT_EQ(text.size(), count * piece.size());
        EXPECT_LT(allocatedBytes() - before, 10 * text.size()) << joinsItself;
        EXPECT_LE(text.capacity(), 2 * text.size()) << joinsItself;
    }
}

} // namespace
} // namespace zem::msglib
