#include "tool/diagnostics/Rule.h"

#include <algorithm>

// The rules about files, identifiers and comments, and the list of all rules. `msglib rules` and
// the page of the documentation are generated from these tables.

namespace zem::msglib::tool {

namespace rules {

const Rule fileEncoding = {
    "file-encoding",
    Severity::error,
    false,
    "bytes that are not valid in the file's encoding",
    "Message text files are read as UTF-8, or as UTF-16 if a byte order mark or the first "
    "character\n"
    "shows it. Any other encoding has to be named, as in `--encoding CP1252`.",
    "",
    ""};

const Rule fileSyntax = {
    "file-syntax",
    Severity::error,
    false,
    "text that the file format does not allow",
    "The file cannot be compiled: a keyword, name, number or list is missing or out of place, a "
    "text has no\n"
    "final \".\", or a value does not fit the bits that it has in an identifier.",
    "MessageId=1\n"
    "SymbolicName=MSG_DONE\n"
    "Language=English\n"
    "Done.\n",
    "MessageId=1\n"
    "SymbolicName=MSG_DONE\n"
    "Language=English\n"
    "Done.\n"
    ".\n"};

const Rule ambiguousHeader = {
    "ambiguous-header",
    Severity::error,
    false,
    "a message head that programs read in different ways",
    "Programs that read this format interpret these places differently, so write what is meant:\n"
    "\n"
    "- A message without Severity or Facility, after a message with another one: some take over "
    "the last\n"
    "  one, others take Success and facility 0.\n"
    "- MessageId without a number, or with +n, in a file with several facilities: some count each "
    "facility\n"
    "  separately.\n"
    "- Numbers that begin with 0: octal for some, decimal for others.\n"
    "- Names that differ in upper and lower case only, for different numbers.",
    "MessageId=1 Severity=Error\n"
    "Language=English\n"
    "Failed.\n"
    ".\n"
    "MessageId=2\n"
    "Language=English\n"
    "Done.\n"
    ".\n",
    "MessageId=1 Severity=Error\n"
    "Language=English\n"
    "Failed.\n"
    ".\n"
    "MessageId=2 Severity=Success\n"
    "Language=English\n"
    "Done.\n"
    ".\n"};

const Rule duplicateId = {
    "duplicate-id",
    Severity::error,
    false,
    "an identifier that comes twice in one language",
    "A module has one text for each identifier and language, over all its catalogues. The "
    "identifier is\n"
    "made of severity, facility and number: equal numbers are fine where one of the others "
    "differs.",
    "MessageId=1\n"
    "Language=English\n"
    "Yes.\n"
    ".\n"
    "MessageId=1\n"
    "Language=English\n"
    "No.\n"
    ".\n",
    "MessageId=1\n"
    "Language=English\n"
    "Yes.\n"
    ".\n"
    "MessageId=2\n"
    "Language=English\n"
    "No.\n"
    ".\n"};

const Rule duplicateSymbol = {
    "duplicate-symbol",
    Severity::error,
    false,
    "a symbolic name that is defined twice",
    "A symbolic name is a constant of the generated header. It has one value, and one header that "
    "defines it.",
    "MessageId=1 SymbolicName=MSG_A\n"
    "Language=English\n"
    "Yes.\n"
    ".\n"
    "MessageId=2 SymbolicName=MSG_A\n"
    "Language=English\n"
    "No.\n"
    ".\n",
    "MessageId=1 SymbolicName=MSG_A\n"
    "Language=English\n"
    "Yes.\n"
    ".\n"
    "MessageId=2 SymbolicName=MSG_B\n"
    "Language=English\n"
    "No.\n"
    ".\n"};

const Rule facilityClash = {
    "facility-clash",
    Severity::error,
    true,
    "two facilities with the same low 11 bits",
    "Modules are registered by the low 11 bits of the facility. Two facilities that differ in the "
    "12th bit\n"
    "only, such as 0x012 and 0x812, select the same module.",
    "FacilityNames=(Disk=0x012 Net=0x812)\n"
    "MessageId=1 Severity=Error Facility=Disk\n"
    "Language=English\n"
    "Full.\n"
    ".\n"
    "MessageId=2 Severity=Error Facility=Net\n"
    "Language=English\n"
    "Down.\n"
    ".\n",
    "FacilityNames=(Disk=0x012 Net=0x013)\n"
    "MessageId=1 Severity=Error Facility=Disk\n"
    "Language=English\n"
    "Full.\n"
    ".\n"
    "MessageId=2 Severity=Error Facility=Net\n"
    "Language=English\n"
    "Down.\n"
    ".\n"};

const Rule reservedSymbol = {
    "reserved-symbol",
    Severity::error,
    true,
    "a symbolic name that is reserved in C++",
    "A keyword of C++ cannot be the name of a constant: an error. A macro of the C library, such "
    "as EOF, and\n"
    "a name with two underscores or with an underscore and a capital at its start work until the "
    "header that\n"
    "defines it is included: a warning.",
    "MessageId=1 SymbolicName=default\n"
    "Language=English\n"
    "Yes.\n"
    ".\n",
    "MessageId=1 SymbolicName=MSG_DEFAULT\n"
    "Language=English\n"
    "Yes.\n"
    ".\n"};

const Rule languageUnused = {
    "language-unused",
    Severity::note,
    true,
    "no message in English (United States)",
    "Messages are looked up in language 0x409 only. The texts of a file without that language are "
    "never found.",
    "LanguageNames=(German=0x407:MSG00407)\n"
    "MessageId=1\n"
    "Language=German\n"
    "Ja.\n"
    ".\n",
    "MessageId=1\n"
    "Language=English\n"
    "Yes.\n"
    ".\n",
    true};

const Rule argumentAnnotation = {
    "argument-annotation",
    Severity::warning,
    true,
    "a comment about an argument that does not fit the message",
    "A comment `; // @arg 0 files number How many` names and describes an argument of the message\n"
    "that follows, for its typed call. The text in 0x409 has to use that argument, or a higher "
    "one.\n"
    "The kind is `number` or `time` if the text formats the argument as such. If the argument is "
    "only\n"
    "shown, the kind can be `text` or `any` too. If a comment contradicts the text, the typed "
    "call\n"
    "follows the text.",
    "; // @arg 0 files text How many\n"
    "MessageId=1\n"
    "Language=English\n"
    "{0,number,#,##0} files\n"
    ".\n",
    "; // @arg 0 files number How many\n"
    "MessageId=1\n"
    "Language=English\n"
    "{0,number,#,##0} files\n"
    ".\n"};

const Rule unusedAllow = {
    "unused-allow",
    Severity::warning,
    true,
    "an allowance that silences nothing",
    "A comment `; // msglib: allow RULE` before a message silences that rule there. Without a "
    "diagnostic of\n"
    "the rule in the message, the comment is misleading: remove it.",
    "; // msglib: allow unknown-type\n"
    "MessageId=1\n"
    "Language=English\n"
    "Yes.\n"
    ".\n",
    "; // msglib: allow unknown-type\n"
    "MessageId=1\n"
    "Language=English\n"
    "{0,plural}\n"
    ".\n"};

} // namespace rules

const std::vector<const Rule*>& allRules() {
    static const std::vector<const Rule*> all = {
        &rules::fileEncoding,       &rules::fileSyntax,           &rules::ambiguousHeader,
        &rules::duplicateId,        &rules::duplicateSymbol,      &rules::facilityClash,
        &rules::reservedSymbol,     &rules::languageUnused,       &rules::syntax,
        &rules::invalidEncoding,    &rules::negativeIndex,        &rules::unknownType,
        &rules::timeStyle,          &rules::indexTrailing,        &rules::choiceLimit,
        &rules::choiceOrder,        &rules::choiceQuote,          &rules::choiceClosing,
        &rules::quoteVanishes,      &rules::noDigitMark,          &rules::zeroVanishes,
        &rules::decimalDigit,       &rules::decimalQuote,         &rules::implicitDecimals,
        &rules::percentTwice,       &rules::dateLetter,           &rules::dateWord,
        &rules::dateQuote,          &rules::minuteForMonth,       &rules::hourMarker,
        &rules::foreignInsert,      &rules::translationArguments, &rules::unusedArgument,
        &rules::argumentAnnotation, &rules::unusedAllow,
    };
    return all;
}

const Rule* findRule(std::string_view name) {
    const auto found = std::find_if(allRules().begin(), allRules().end(),
                                    [name](const Rule* rule) { return rule->name == name; });
    return found == allRules().end() ? nullptr : *found;
}

} // namespace zem::msglib::tool
