// Files that the format does not allow, each with all of its diagnostics.

#include "tool/Reading.h"

#include <gtest/gtest.h>

namespace zem::msglib::tool {
namespace {

const std::string text = "\nLanguage=English\nx\n.\n";

std::string diagnosticsOf(const std::string& file, const std::string& encoding = "") {
    return dump(readAll({file}, {}, encoding).diagnostics);
}

struct Row {
    int line;
    std::string file;
    std::string diagnostics;
};

void check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(diagnosticsOf(row.file), row.diagnostics);
    }
}

TEST(RefusedTextTest, ReportsWrongStatements) {
    check({
        {__LINE__, "", "1:1-1 file-syntax: no message in the file\n"},
        {__LINE__, ";\n", "1:1-1 file-syntax: no message in the file\n"},
        {__LINE__, "MessageId=1\nFoo=3" + text,
         "2:1-4 file-syntax: a keyword such as MessageId is expected here\n"},
        {__LINE__, "MessageId 1" + text,
         "1:1-10 file-syntax: MessageId needs a \"=\" and a value\n"},
        {__LINE__, "MessageId=1x SymbolicName=A" + text,
         "1:11-13 file-syntax: not a number of 32 bits, such as 17 or 0x11\n"},
        {__LINE__, "MessageId=0x" + text,
         "1:11-13 file-syntax: not a number of 32 bits, such as 17 or 0x11\n"},
        {__LINE__, "MessageId=4294967296" + text,
         "1:11-21 file-syntax: not a number of 32 bits, such as 17 or 0x11\n"},
        {__LINE__, "MessageId=-1" + text,
         "1:11-13 file-syntax: not a number of 32 bits, such as 17 or 0x11\n"},
        {__LINE__, "MessageId=+" + text,
         "1:1-10 file-syntax: MessageId needs a number, such as 17 or 0x11\n"},
        {__LINE__, "MessageId=65536" + text,
         "1:11-16 file-syntax: the number 65536 is too high: a MessageId has 16 bits, up to "
         "65535\n"},
        {__LINE__, "MessageId=0xFFFF" + text + "MessageId=" + text,
         "5:1-10 file-syntax: the number 65536 is too high: a MessageId has 16 bits, up to "
         "65535\n"},
        {__LINE__, "MessageId=9" + text + "MessageId=+4294967295" + text,
         "5:12-22 file-syntax: the number 4294967304 is too high: a MessageId has 16 bits, up to "
         "65535\n"},
        {__LINE__, "MessageId=1\nSymbolicName=\nSeverity=Error" + text,
         "2:1-13 file-syntax: SymbolicName needs a name for the constant\n"},
        {__LINE__, "MessageId=1 SymbolicName=A-B" + text,
         "1:26-29 file-syntax: a symbolic name has letters, digits and underscores only, and no "
         "digit at its start\n"},
        {__LINE__, "MessageId=1 SymbolicName=1A" + text,
         "1:26-28 file-syntax: a symbolic name has letters, digits and underscores only, and no "
         "digit at its start\n"},
        {__LINE__, "MessageId=1 Severity=Eror Facility=Nowhere" + text,
         "1:22-26 file-syntax: there is no severity Eror (did you mean Error?)\n"
         "1:36-43 file-syntax: there is no facility Nowhere (declare it before the message: "
         "FacilityNames=(Nowhere=number))\n"},
        {__LINE__,
         "MessageId=1\nSeverity=Error Severity=Error\nSymbolicName=A SymbolicName=B" + text,
         "2:16-24 file-syntax: the message already has a severity\n"
         "3:16-28 file-syntax: the message already has a symbolic name\n"},
        {__LINE__, "Severity=Error\nMessageId=1" + text,
         "1:1-9 file-syntax: Severity belongs between MessageId and Language\n"},
        {__LINE__, "MessageId=1" + text + "MesageId=2 SymbolicName=A\nSeverity=Error" + text,
         "5:1-9 file-syntax: a keyword such as MessageId is expected here\n"},
        {__LINE__, "MessageId=1\nFacilityNames=(A=1)" + text,
         "2:1-14 file-syntax: FacilityNames does not belong in the head of a message\n"},
        {__LINE__, "OutputBase=8\nMessageId=1" + text,
         "1:12-13 file-syntax: OutputBase is 10 or 16\n"},
        {__LINE__, "MessageId=1\nMessageId=2" + text + "MessageId=3",
         "1:1-10 file-syntax: the message has no text: Language is missing\n"
         "6:1-10 file-syntax: the message has no text: Language is missing\n"},
        {__LINE__, "\u00A0MessageId=1" + text,
         "1:1-11 file-syntax: a keyword such as MessageId is expected here\n"},
    });
}

TEST(RefusedTextTest, ReportsWrongLists) {
    const std::string message = "MessageId=1" + text;
    check({
        {__LINE__, "FacilityNames=A=1\n" + message,
         "1:1-14 file-syntax: FacilityNames needs a list in parentheses: (Name=number)\n"},
        {__LINE__, "FacilityNames=(A=1, B=2)\n" + message,
         "1:19-20 file-syntax: a list has entries of the form Name=number, with blanks between "
         "them\n"},
        {__LINE__, "FacilityNames=(A=1\nB=2\n" + message,
         "1:15-16 file-syntax: the list has no closing parenthesis\n"},
        {__LINE__, "FacilityNames=(A=1 MessageId=1\n" + message,
         "1:15-16 file-syntax: the list has no closing parenthesis\n"},
        {__LINE__, message + "FacilityNames=(A=1",
         "5:15-16 file-syntax: the list has no closing parenthesis\n"},
        {__LINE__, "FacilityNames=(A=0x1000) SeverityNames=(S=4)\n" + message,
         "1:18-24 file-syntax: the number is too high: a facility has 12 bits, up to 4095\n"
         "1:43-44 file-syntax: the number is too high: a severity has 2 bits, up to 3\n"},
        {__LINE__, "LanguageNames=(L=0x10000:L)\n" + message,
         "1:18-25 file-syntax: the number is too high: a language has 16 bits, up to 65535\n"},
        {__LINE__, "LanguageNames=(German=0x407)\n" + message,
         "1:23-28 file-syntax: a language needs a number and the name of a file, as in "
         "English=0x409:MSG00409\n"},
        {__LINE__, "FacilityNames=(A=1:)\n" + message,
         "1:16-17 file-syntax: A needs a name after the \":\"\n"},
    });
}

TEST(RefusedTextTest, ReportsWrongTexts) {
    const std::string german = "LanguageNames=(German=0x407:G)\n";
    const std::string head = "MessageId=1\nLanguage=English\n";
    check({
        {__LINE__, "Language=English\nx\n.\n",
         "1:1-9 file-syntax: Language belongs to a message, which begins with MessageId\n"},
        {__LINE__, "MessageId=1\nLanguage=\nEnglish\n.\n",
         "2:1-9 file-syntax: Language needs a name on the same line\n"},
        {__LINE__, "MessageId=1\nLanguage=English (US) ; why\nx\n.\n",
         "2:18-22 file-syntax: the text begins on the line after Language\n"},
        {__LINE__, "MessageId=1\nLanguage=Englisch\nx\n.\nLanguage=Suomi\nx\n.\n",
         "2:10-18 file-syntax: there is no language Englisch (did you mean English?)\n"
         "5:10-15 file-syntax: there is no language Suomi (declare it before the message: "
         "LanguageNames=(Suomi=number:file))\n"},
        {__LINE__, head + "x\n",
         "2:10-17 file-syntax: this text has no final \".\" on a line of "
         "its own\n"},
        {__LINE__, head + "x\n" + "messageid = +1" + text,
         "2:10-17 file-syntax: this text has no final \".\" before the next one (4:1-15 which "
         "begins here)\n"},
        {__LINE__, german + head + "x\n Language = german\ny\n.\n",
         "3:10-17 file-syntax: this text has no final \".\" before the next one (5:1-19 which "
         "begins here)\n"},
        {__LINE__, head + "x\n. \n" + "MessageId=2" + text,
         "4:1-3 file-syntax: blanks beside a final \".\" make it part of the text\n"},
        {__LINE__, head + ".\n; msglib: no-line-end\nMessageId=2\nLanguage=English\n\n.\n",
         "2:10-17 file-syntax: the text is empty\n6:10-17 file-syntax: the text is empty\n"},
        {__LINE__, head + std::string(32761, 'x') + "\n.\n", ""},
        {__LINE__, head + std::string(32759, 'x') + "𝄞\n.\n", ""},
        {__LINE__, head + "x" + std::string(16381, '\n') + ".\n", ""},
        {__LINE__, head + "x\n" + std::string(16381, '\n') + ".\n",
         "2:10-17 file-syntax: the text has 32765 UTF-16 units, more than the 32763 that an entry "
         "of a table holds\n"},
        {__LINE__, head + std::string(32760, 'x') + "𝄞\n.\n",
         "2:10-17 file-syntax: the text has 32764 UTF-16 units, more than the 32763 that an entry "
         "of a table holds\n"},
        {__LINE__, "; msglib: no-line-end\n" + head + std::string(32763, 'x') + "\n.\n", ""},
    });
}

TEST(RefusedTextTest, ReportsAmbiguousHeads) {
    const std::string names = "FacilityNames=(A=1 B=2)\n";
    const std::string error = "MessageId=1 Severity=Error" + text;
    const std::string inA = "MessageId=1 Facility=A" + text;
    check({
        {__LINE__, error + "MessageId=2" + text,
         "5:1-10 ambiguous-header: no Severity here: some programs take the last one, Error, and "
         "others take Success (write Severity=Error or Severity=Success) (1:22-27 the last one is "
         "here)\n"},
        {__LINE__, "MessageId=1 Severity=Success" + text + "MessageId=2" + text, ""},
        {__LINE__, names + inA + "MessageId=2" + text,
         "6:1-10 ambiguous-header: no Facility here: some programs take the last one, A, and "
         "others take facility 0 (write Facility=A, or a name that FacilityNames gives the number "
         "0) (2:22-23 the last one is here)\n"},
        {__LINE__, names + inA + "MessageId=7 Facility=B" + text + "MessageId= Facility=A" + text,
         "10:1-10 ambiguous-header: this number is 8 if counted over the file, and 2 if counted "
         "in its facility (write MessageId=8 or MessageId=2)\n"},
        {__LINE__, names + inA + "MessageId=1 Facility=B" + text + "MessageId=+2 Facility=A" + text,
         ""},
        {__LINE__, names + inA + "MessageId= Facility=B" + text,
         "6:1-10 ambiguous-header: this number is 2 if counted over the file, and 1 if counted in "
         "its facility (write MessageId=2 or MessageId=1)\n"},
        {__LINE__, "MessageId=010" + text,
         "1:11-14 ambiguous-header: a number with a leading 0: octal for some programs, decimal "
         "for others (leave out the 0, or write the number as hexadecimal)\n"},
        {__LINE__, "MessageId=08" + text,
         "1:11-13 ambiguous-header: a number with a leading 0: octal for some programs, decimal "
         "for others (leave out the 0, or write the number as hexadecimal)\n"},
        {__LINE__, "FacilityNames=(App=1 APP=1 app=2)\nMessageId=1" + text,
         "1:28-31 ambiguous-header: this name and APP differ only in upper and lower case: some "
         "programs read them as the same name\n"},
    });
}

TEST(RefusedTextTest, PointsAtInvalidBytes) {
    const std::string note = " (name the encoding of the file, as in --encoding CP1252)\n";
    check({
        {__LINE__, ";\n;é\xE9\n",
         "2:3-3 file-encoding: the byte 0xE9 is not valid UTF-8 here" + note},
        {__LINE__, "\xED\xA0\x80",
         "1:1-1 file-encoding: the byte 0xED is not valid UTF-8 here" + note},
        {__LINE__, ";\xC3", "1:2-2 file-encoding: the byte 0xC3 is not valid UTF-8 here" + note},
        {__LINE__,
         {"\xFF\xFE;\0\n", 5},
         "1:2-2 file-encoding: the byte 0x0A is not valid UTF-16LE here" + note},
        {__LINE__,
         {"\xFE\xFF\0;\xDC\0\0;", 8},
         "1:2-2 file-encoding: the byte 0xDC is not valid UTF-16BE here" + note},
        {__LINE__,
         {";\0;", 3},
         "1:2-2 file-encoding: the byte 0x3B is not valid UTF-16LE here" + note},
        {__LINE__, {";a\n;\0b", 6}, "2:2-3 file-syntax: a NUL character in the text\n"},
        {__LINE__, ";\n;\r;\n", "2:2-3 file-syntax: a carriage return without a line feed\n"},
        {__LINE__, ";\x1A\n;\n",
         "1:2-3 file-syntax: a Ctrl-Z, which ends the file for some programs, before the end of "
         "the file\n"},
        {__LINE__, "MessageId=\x01",
         "1:11-12 file-syntax: a keyword such as MessageId is expected here\n"},
    });
    EXPECT_EQ(diagnosticsOf(";\x81\xFF", "CP932"),
              "1:2-2 file-encoding: the byte 0x81 is not valid CP932 here" + note);
}

} // namespace
} // namespace zem::msglib::tool
