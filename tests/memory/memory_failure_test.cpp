#include "Allocations.h"
#include "MemoryTexts.h"

#include "msglib/ChoiceFormat.h"
#include "msglib/DecimalFormat.h"
#include "msglib/MessageFormat.h"
#include "msglib/MessageFormatStream.h"
#include "msglib/MessageLibrary.h"
#include "msglib/SimpleDateFormat.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

// Calls `act` on a new object while the first allocation fails, then the second, and so on until
// none fails. The failure must reach the caller, no memory may leak, and the next attempt must
// succeed. `check` is called after each attempt, with the object and whether the attempt succeeded.
template <class Make, class Act, class Check>
void failEachAllocation(const Make& make, const Act& act, const Check& check) {
    bool failed = true;
    for (std::size_t nth = 1; failed; ++nth) {
        SCOPED_TRACE("allocation " + std::to_string(nth));
        const std::size_t live = liveAllocations();
        {
            auto object = make();
            bool thrown = false;
            {
                const FailingAllocation failing(nth);
                try {
                    act(object);
                } catch (const std::bad_alloc&) {
                    thrown = true;
                }
                failed = failing.hasFailed();
            }
            EXPECT_EQ(thrown, failed) << "the failure does not reach the caller";
            EXPECT_TRUE(failed || nth > 1) << "there is no allocation";
            if (thrown) {
                check(object, false);
                act(object);
            }
            check(object, true);
        }
        ASSERT_EQ(liveAllocations(), live) << "memory leaks";
    }
}

const std::string longText = "a text that is too long for the string object itself";
const std::list<boost::any> args = {longText, 3};
const std::string keywordPattern =
    "Beyond the small texts: {0}, { 1 }, {1,number,currency} {1,choice,0#none|0.5#{1,number,00.0 "
    "'of' \xA4} {0,foo}}. {1,number,integer} {1,date,long} {1,time} {1,date,'the year' yyyy}";
const std::string pattern =
    keywordPattern + " {1,number,percent}{1,number,#,##0.00 of them and all}";

std::string textOf(const MessageFormat& message) {
    std::string text;
    return message.format(args, text);
}

std::string textOf(const NumberFormat& format) {
    std::string text;
    return format.format(2.5, text);
}

std::string textOf(const DateFormat& format) {
    std::string text;
    return format.format(boost::any(2), text);
}

// Returns the text, or the text of the failure.
std::string textOf(const MessageFormatStream& stream) {
    try {
        return MessageFormatStream(stream).toString();
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
}

TEST(MemoryFailure, ReachesTheCallerWithoutLeaks) {
    registerMemoryTexts();
    const MessageLibrary& library = MessageLibrary::instance();
    const std::locale locale;
    const struct {
        int line;
        std::function<std::string()> operation;
    } rows[] = {
        {__LINE__, [&] { return library.formatMessage(pattern, args); }},
        {__LINE__, [&] { return library.formatMessage("{0} and {1}", args); }},
        {__LINE__, [&] { return library.formatMessage(MSG_ALL, args); }},
        {__LINE__, [&] { return library.formatMessage(MSG_WRONG_PATTERN, args); }},
        {__LINE__, [&] { return library.formatMessage(MSG_WRONG_PATTERN + 1, args); }},
        {__LINE__, [] { return textOf(MessageFormat(pattern)); }},
        {__LINE__, [] { return textOf(ChoiceFormat("-1.5#" + longText + "|1e3#b")); }},
        {__LINE__, [] { return textOf(DecimalFormat("'" + longText + "'0.0\xA4;(#)", {})); }},
        {__LINE__, [&] { return textOf(SimpleDateFormat(longText, locale)); }},
        {__LINE__, [] { return textOf(MessageFormatStream(MSG_ALL) << longText << 3); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const std::string expected = row.operation();
        failEachAllocation(
            [] { return std::string(); }, [&](std::string& text) { text = row.operation(); },
            [&](const std::string& text, bool done) { EXPECT_EQ(text, done ? expected : ""); });
    }
}

// The documentation only promises that formatters stay usable.
template <class Formatter>
void failChanges(const Formatter& former, const Formatter& next, const std::string& nextPattern) {
    const std::string expected = textOf(next);
    const auto make = [&] { return former; };
    const auto check = [&](const Formatter& formatter, bool done) {
        const std::string text = textOf(formatter);
        EXPECT_TRUE(!done || text == expected) << text;
    };
    failEachAllocation(
        make, [&](Formatter& formatter) { formatter.applyPattern(nextPattern); }, check);
    failEachAllocation(
        make, [&](Formatter& formatter) { formatter = next; }, check);
}

TEST(MemoryFailure, FormattersStayUsable) {
    const std::locale locale;
    const std::string choices = "0#" + longText + "|1.5#" + longText;
    const std::string decimal = longText + "#,##0.00" + longText + ";(#" + longText + ')';
    failChanges(MessageFormat("former {0}"), MessageFormat(pattern), pattern);
    failChanges(ChoiceFormat("0#former"), ChoiceFormat(choices), choices);
    failChanges(DecimalFormat("0", {}), DecimalFormat(decimal, {}), decimal);
    failChanges(SimpleDateFormat("", locale), SimpleDateFormat(longText, locale), longText);
    // A new locale doesn't change the texts, except for decimal patterns, which are compiled in
    // place.
    const std::string expected = textOf(MessageFormat(keywordPattern));
    failEachAllocation(
        [] { return MessageFormat(keywordPattern); },
        [](MessageFormat& message) { message.setLocale(std::locale::classic()); },
        [&](const MessageFormat& message, bool) { EXPECT_EQ(textOf(message), expected); });
}

TEST(MemoryFailure, RenderingKeepsTheAppendedText) {
    const MessageFormat message(pattern);
    const std::string expected = "kept " + textOf(message);
    failEachAllocation([] { return std::string("kept "); },
                       [&](std::string& out) { message.format(args, out); },
                       [&](std::string& out, bool done) {
                           EXPECT_EQ(out, done ? expected : expected.substr(0, out.size()));
                           EXPECT_GE(out.size(), 5U);
                           out = "kept ";
                       });
}

TEST(MemoryFailure, StreamsAreUnchanged) {
    registerMemoryTexts();
    using Stream = MessageFormatStream;
    const Stream one = Stream("{0}, {1}") << "one";
    const Stream two = Stream(one) << "two";
    const Stream text = Stream("{0}") << longText;
    const Stream all = Stream(MSG_ALL) << longText << 3;
    const std::string allText = textOf(all);
    const std::string wrong = "zero mark following digit";
    const std::string indexTooHigh = textOf(one);
    const struct {
        int line;
        Stream start;
        std::function<void(Stream&)> change;
        std::string before, after;
    } rows[] = {
        {__LINE__, one, [](auto& stream) { stream << 7; }, indexTooHigh, "one, 7"},
        {__LINE__, one, [](auto& stream) { stream << longText; }, indexTooHigh, "one, " + longText},
        {__LINE__, two, [&](auto& stream) { stream = all; }, "one, two", allText},
        {__LINE__, two, [](auto& stream) { stream << (Stream("{0}") << longText); }, "one, two",
         "one, two" + longText},
        {__LINE__, all, [](auto& stream) { stream << Stream(MSG_WRONG_PATTERN); }, allText,
         allText + wrong},
        {__LINE__, text, [](auto& stream) { stream << stream; }, longText, longText + longText},
        {__LINE__, all, [](auto& stream) { stream.toString(); }, allText, allText + allText},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        failEachAllocation([&] { return row.start; }, row.change,
                           [&](const Stream& stream, bool done) {
                               EXPECT_EQ(textOf(stream), done ? row.after : row.before);
                           });
    }
}

TEST(MemoryFailure, RegistrationsAreUnchanged) {
    constexpr unsigned int facility = 0x121;
    MessageLibrary& library = MessageLibrary::instance();
    {
        const FailingAllocation failing(1);
        EXPECT_THROW(library.registerFacility(facility, &longText), std::bad_alloc);
    }
    EXPECT_THROW(library.formatMessage(facility << 16, {}), std::runtime_error);
    library.registerFacility(facility, &longText);
    EXPECT_EQ(library.formatMessage(facility << 16, {}), "Invalid message ID");
}

} // namespace
} // namespace zem::msglib
