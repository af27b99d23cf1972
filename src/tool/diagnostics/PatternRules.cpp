#include "tool/diagnostics/Rule.h"

// The rules about patterns: names, severities, explanations and examples.

namespace zem::msglib::tool::rules {

const Rule syntax = {
    "syntax",
    Severity::error,
    true,
    "a pattern that does not compile, in any branch of any choice",
    "The library refuses the pattern. For a message by identifier, users read the text of the\n"
    "failure in place of the message; for a literal pattern, an exception is thrown. The text\n"
    "of a choice is compiled when it is chosen, so a mistake in it shows only then. Therefore\n"
    "all choices are checked, reachable or not.",
    "{0,number,0 EUR}",
    "{0,number,0 'E'UR}"};

const Rule invalidEncoding = {
    "invalid-encoding",
    Severity::error,
    true,
    "a text whose rendering is not UTF-8",
    "Patterns are read byte by byte. Two things take a character beyond ASCII apart: an\n"
    "apostrophe in a choice, which takes one byte and drops the next, and a decimal pattern\n"
    "with a character that has the byte A4, the currency sign.",
    "{0,number,0 Plätze}",
    "{0,number,0} Plätze"};

const Rule negativeIndex = {
    "negative-index",
    Severity::error,
    true,
    "a placeholder with a negative index",
    "Arguments are counted from 0. A negative index compiles, but rendering fails whatever\n"
    "the arguments are.",
    "{-1}",
    "{1}"};

const Rule unknownType = {
    "unknown-type",
    Severity::warning,
    true,
    "a type that does not exist",
    "Types are `number`, `date`, `time` and `choice`. They are compared exactly:\n"
    "capitals and blanks count, and `integer`, `currency`, `percent`, `short`, `medium`,\n"
    "`long` and `full` are styles. With any other type, the argument is shown as if it had\n"
    "no type, and the style is ignored.",
    "{0,Number,0.0}",
    "{0,number,0.0}"};

const Rule timeStyle = {
    "time-style",
    Severity::warning,
    true,
    "a style keyword that is read as a pattern",
    "`time` has no style keywords, and those of `number` and `date` are compared exactly.\n"
    "Any other style is a pattern: `{0,date,Short}` shows \"S12orA\".",
    "{0,time,short}",
    "{0,time,HH:mm}"};

const Rule indexTrailing = {
    "index-trailing",
    Severity::warning,
    true,
    "text after the number of an argument",
    "An index is read up to the end of its number. Text after it, up to the comma or the\n"
    "brace, is ignored.",
    "{0:N2}",
    "{0,number,0.00}"};

const Rule choiceLimit = {
    "choice-limit",
    Severity::warning,
    true,
    "a limit of a choice that is not wholly a number",
    "Text after the number is ignored. A limit that does not begin with a number is 0.",
    "{0,choice,x#none|1#one}",
    "{0,choice,0#none|1#one}"};

const Rule choiceOrder = {
    "choice-order",
    Severity::warning,
    true,
    "limits of a choice that descend or repeat",
    "A text is chosen from its limit up to the next one. The limits are not sorted: if they\n"
    "do not ascend, some texts are never chosen, or are chosen for the wrong numbers.",
    "{0,choice,1#one|0#none}",
    "{0,choice,0#none|1#one}"};

const Rule choiceQuote = {
    "choice-quote",
    Severity::warning,
    true,
    "an apostrophe in a choice that makes characters disappear",
    "An apostrophe in a choice takes the byte after it as text and drops the byte after that,\n"
    "where a closing apostrophe is expected. A message around the choice resolves doubled\n"
    "apostrophes first, so more are needed for each level.",
    "{0,choice,0#they're gone}",
    "{0,choice,0#they’re gone}"};

const Rule choiceClosing = {
    "choice-closing",
    Severity::warning,
    true,
    "an unmatched brace that ends a choice",
    "A closing brace without an opening one ends the text of a choice as `|` does, and the\n"
    "rest is read as another choice.",
    "{0,choice,0#''a'}'1#b}",
    "{0,choice,0#a|1#b}"};

const Rule quoteVanishes = {
    "quote-vanishes",
    Severity::warning,
    true,
    "apostrophes around one letter, digit or blank",
    "An apostrophe, one byte and an apostrophe quote that byte. Braces need it; around a\n"
    "letter, a digit or a blank, the apostrophes only disappear.",
    "Press 'y' to go on",
    "Press ’y’ to go on"};

const Rule noDigitMark = {
    "no-digit-mark",
    Severity::warning,
    true,
    "a decimal pattern without digit marks",
    "Only `#` and `0` mark where digits go. Without them, the digits are shown after the\n"
    "text. Most such patterns are misspelt keywords, or formats of other languages.",
    "{0,number,N2}",
    "{0,number,#,##0.00}"};

const Rule zeroVanishes = {
    "zero-vanishes",
    Severity::warning,
    true,
    "a decimal pattern that shows no digit for 0",
    "`#` is a digit that is shown only if it is not a leading or trailing zero. At least one\n"
    "`0` always shows a digit. A placeholder is not reported inside a choice by the same argument "
    "that\n"
    "excludes 0.",
    "{0,number,#.##} m",
    "{0,number,0.##} m"};

const Rule decimalDigit = {
    "decimal-digit",
    Severity::warning,
    true,
    "the digits 1 to 9 beside the marks of a decimal pattern",
    "Only `0` and `#` are marks. Other digits are text, and look like a part of the number.",
    "{0,number,1,000.00}",
    "{0,number,#,##0.00}"};

const Rule decimalQuote = {"decimal-quote",
                           Severity::warning,
                           true,
                           "apostrophes around several characters of a decimal pattern",
                           "In a decimal pattern, apostrophes quote one byte. Around more "
                           "bytes, they are shown.\n"
                           "Letters other than `E` need no quoting.",
                           "{0,number,0 'kg'}",
                           "{0,number,0 kg}"};

const Rule implicitDecimals = {
    "implicit-decimals",
    Severity::note,
    true,
    "a number without a style, which has two decimals",
    "`{0,number}` shows the two decimals of the locale for whole numbers too: 7 is \"7.00\".\n"
    "Where a choice by the same argument shows that it counts something, this is a warning.",
    "{0,number} of {1}",
    "{0} of {1}"};

const Rule percentTwice = {
    "percent-twice",
    Severity::warning,
    true,
    "a percent sign after a number that has one",
    "The style `percent`, and a decimal pattern that ends in `%`, show the sign themselves.",
    "{0,number,percent}%",
    "{0,number,percent}"};

const Rule dateLetter = {
    "date-letter",
    Severity::warning,
    true,
    "letters that are fields in other languages of date patterns",
    "The fields are `d` day, `M` month, `y` year, `g` era, `h` and `H` hour, `m` minute, `s`\n"
    "second and `t` marker. All other letters are text. Letters between apostrophes are\n"
    "never fields.",
    "{0,date,EEEE}",
    "{0,date,dddd}"};

const Rule dateWord = {
    "date-word",
    Severity::warning,
    true,
    "a word in a date pattern with letters that are fields",
    "Letters that are fields are replaced by numbers or names: `de` is \"1e\" on the first\n"
    "day of a month. Put words between apostrophes.",
    "{0,date,d de MMMM}",
    "{0,date,d 'de' MMMM}"};

const Rule dateQuote = {
    "date-quote",
    Severity::warning,
    true,
    "an apostrophe in a date pattern that is not shown",
    "An apostrophe without a partner quotes the rest of the pattern. In a message, two\n"
    "apostrophes become one before the date pattern is read.",
    "{0,time,HH o'clock}",
    "{0,time,HH 'o’clock'}"};

const Rule minuteForMonth = {"minute-for-month",
                             Severity::warning,
                             true,
                             "minutes beside days and years, or months beside hours",
                             "`m` is the minute and `M` is the month.",
                             "{0,date,yyyy-mm-dd}",
                             "{0,date,yyyy-MM-dd}"};

const Rule hourMarker = {
    "hour-marker",
    Severity::note,
    true,
    "hours that count to 12 without a marker",
    "With `h` and no `tt`, midnight and noon are both 12, and 1 is both morning and\n"
    "afternoon.",
    "{0,time,hh:mm}",
    "{0,time,HH:mm}"};

const Rule foreignInsert = {
    "foreign-insert",
    Severity::warning,
    true,
    "inserts of other message functions, which are text here",
    "Arguments are written in braces and counted from 0. `%1`, `%n`, `%0` and the conversions\n"
    "of C are shown unchanged. Only the first one of each file is reported.",
    "Copied %1.",
    "Copied {0}.",
    true};

const Rule unusedArgument = {
    "unused-argument",
    Severity::off,
    true,
    "an argument that is not used, below the highest that is used",
    "Often an index was mistyped, or indexes were counted from 1. But messages that leave out\n"
    "an argument on purpose are frequent too, so this rule is off unless it is denied.",
    "{0} and {2}",
    "{0} and {1}"};

const Rule translationArguments = {
    "translation-arguments",
    Severity::warning,
    true,
    "a text that uses other arguments than the one in 0x409",
    "All texts of a message are rendered with the same arguments. A text that uses\n"
    "others, or leaves one out, was probably not changed together with the other texts.",
    "LanguageNames=(German=0x407:MSG00407)\n"
    "MessageId=1\n"
    "Language=English\n"
    "{0} of {1}\n"
    ".\n"
    "Language=German\n"
    "{0} von {2}\n"
    ".\n",
    "LanguageNames=(German=0x407:MSG00407)\n"
    "MessageId=1\n"
    "Language=English\n"
    "{0} of {1}\n"
    ".\n"
    "Language=German\n"
    "{0} von {1}\n"
    ".\n"};

} // namespace zem::msglib::tool::rules
