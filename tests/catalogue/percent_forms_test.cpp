#include "PercentTexts.h"
#include "message/Outcome.h"
#include "support/Wine.h"

#include <string>

namespace zem::msglib {
namespace {

// The operations that are ours keep every percent sign; Wine expands or drops some forms, although
// the library asks it to leave them. docs/platforms.md lists them.
TEST(PercentForms, ReachThePatternAsTheSystemLeavesThem) {
    registerPercentTexts();
    const struct {
        int line;
        unsigned int messageId;
        std::string text;
        std::string underWine = {};
    } rows[] = {
        {__LINE__, MSG_PERCENT_ZERO, "<%0>\nnext\n", "<"},
        {__LINE__, MSG_PERCENT_NEW_LINE, "<%n>\nnext\n", "<\n>\nnext\n"},
        {__LINE__, MSG_PERCENT_RETURN, "<%r>\nnext\n", "<\r>\nnext\n"},
        {__LINE__, MSG_PERCENT_TAB, "<%t>\nnext\n", "<\t>\nnext\n"},
        {__LINE__, MSG_PERCENT_BLANK_LETTER, "<%b>\nnext\n"},
        {__LINE__, MSG_PERCENT_FIRST, "<%1>\nnext\n"},
        {__LINE__, MSG_PERCENT_FIRST_AS_TEXT, "<%1!s!>\nnext\n"},
        {__LINE__, MSG_PERCENT_NINETY_NINTH, "<%99>\nnext\n"},
        {__LINE__, MSG_PERCENT_TWICE, "<%%>\nnext\n"},
        {__LINE__, MSG_PERCENT_TWICE_AND_DIGIT, "<%%1>\nnext\n"},
        {__LINE__, MSG_PERCENT_DOT, "<%.>\nnext\n"},
        {__LINE__, MSG_PERCENT_EXCLAMATION, "<%!>\nnext\n"},
        {__LINE__, MSG_PERCENT_BLANK, "<% >\nnext\n"},
        {__LINE__, MSG_PERCENT_OTHER_LETTER, "<%x>\nnext\n"},
        {__LINE__, MSG_PERCENT_OTHER_MARK, "<%/>\nnext\n"},
        {__LINE__, MSG_PERCENT_LINE_END, "<%\nnext\n", "<%\r\nnext\n"},
        {__LINE__, MSG_PERCENT_BLANK_AT_LINE_END, "<% \nnext\n"},
    };
    for (const auto& row : rows) {
        const bool differs = !row.underWine.empty() && runsUnderWine();
        EXPECT_EQ(directOutcome(row.messageId, {}), differs ? row.underWine : row.text)
            << "row of line " << row.line;
    }
}

} // namespace
} // namespace zem::msglib
