// Each row has one construct of the file format: its meaning, and whether another compiler of the
// format reads it in the same way.

#include "tool/Program.h"
#include "tool/Reading.h"

#include "platform/portable/Bytes.h"
#include "tool/generated/GeneratedSources.h"
#include "tool/generated/MessageTable.h"

#include <algorithm>
#include <regex>
#include <sstream>

namespace zem::msglib::tool {
namespace {

namespace fs = std::filesystem;
using platform::Bytes;

/// What `windmc` does with a file.
enum class Other {
    agrees,
    refuses,
    differs, ///< reads it differently, as programs that read the format do
};

/// Appends the messages of a table as `id text`, each in quotes with \r, \n and other units beyond
/// ASCII as \u.
void dumpTable(std::string bytes, std::string& out) {
    const Bytes table(bytes.data(), bytes.size());
    for (std::uint32_t block = 0; block < table.u32(0); ++block) {
        std::size_t offset = table.u32(12 + 12 * block);
        for (std::uint32_t id = table.u32(4 + 12 * block); id <= table.u32(8 + 12 * block); ++id) {
            std::ostringstream text;
            for (std::size_t at = offset + 4; at < offset + table.u16(offset); at += 2) {
                const std::uint16_t unit = table.u16(at);
                if (unit == '\r' || unit == '\n') {
                    text << (unit == '\r' ? "\\r" : "\\n");
                } else if (unit > 0x7E) {
                    text << "\\u" << std::hex << unit;
                } else if (unit != 0) {
                    text << static_cast<char>(unit);
                }
            }
            out += hexadecimal(id).substr(2) + " " + text.str() + "\n";
            offset += table.u16(offset);
        }
    }
}

/// Returns the constants that a header defines as `name=id`, in alphabetical order.
std::string dumpHeader(const std::string& header) {
    static const std::regex definition(
        R"((?:#define|constexpr unsigned int) (\w+) (?:=|\(\w+\)|) ?0x([0-9A-Fa-f]+))");
    std::vector<std::string> names;
    for (std::sregex_iterator found(header.begin(), header.end(), definition), end; found != end;
         ++found) {
        const auto id = static_cast<std::uint32_t>(std::stoul((*found)[2], nullptr, 16));
        names.push_back((*found)[1].str() + "=" + hexadecimal(id).substr(2) + "\n");
    }
    std::sort(names.begin(), names.end());
    std::string out;
    for (const std::string& name : names) {
        out += name;
    }
    return out;
}

std::string withCrLf(const std::string& text) {
    return std::regex_replace(text, std::regex("\n"), "\r\n");
}

class MessageTextTest : public FolderTest {
protected:
    /// Returns the tables and constants that our program makes of a file.
    static std::string ours(const std::string& text, const std::string& encoding = "") {
        const Reading reading = readAll({text}, {}, encoding);
        if (hasErrors(reading.diagnostics)) {
            return dump(reading.diagnostics);
        }
        const Catalogue& catalogue = reading.catalogues.front();
        std::string out = dumpHeader(headerText(CatalogueName("0.mc"), catalogue));
        for (const auto& [language, table] : compileTables({&catalogue}, shortBlock)) {
            out += "[" + hexadecimal(language).substr(6) + "]\n";
            dumpTable(table, out);
        }
        return out;
    }

    /// Returns the tables and constants that `windmc` makes of a file; empty if it refuses the
    /// file.
    std::string theirs(const std::string& text) const {
        write("x.mc", withCrLf(text));
        for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
            if (entry.path().filename() != "x.mc") {
                fs::remove(entry.path());
            }
        }
        if (run(quoted(WINDMC) + " -C 65001 -O 65001 x.mc").status != 0) {
            return {};
        }
        std::map<std::uint32_t, std::string> tables;
        const std::string script = read("x.rc");
        static const std::regex table(
            R"(LANGUAGE 0x(\w+), 0x(\w+)\s+1 MESSAGETABLE .([^\s]+\.bin))");
        for (std::sregex_iterator found(script.begin(), script.end(), table), end; found != end;
             ++found) {
            const auto language =
                std::stoul((*found)[2], nullptr, 16) << 10 | std::stoul((*found)[1], nullptr, 16);
            tables[static_cast<std::uint32_t>(language)] = read((*found)[3].str());
        }
        std::string out = dumpHeader(read("x.h"));
        for (const auto& [language, bytes] : tables) {
            out += "[" + hexadecimal(language).substr(6) + "]\n";
            dumpTable(bytes, out);
        }
        return out;
    }
};

const std::string text = "\nLanguage=English\nx\n.\n";

TEST_F(MessageTextTest, MeansTheSameToAnotherCompiler) {
    const struct {
        int line;
        std::string file;
        std::string meaning;
        Other other;
    } rows[] = {
        // heads
        {__LINE__, "MessageId=1 Severity=Error Facility=System SymbolicName=A" + text,
         "A=C0FF0001\n[0409]\nC0FF0001 x\\r\\n\n", Other::agrees},
        {__LINE__, "messageid=1\nSEVERITY=warning\nsymbolicname=a\nlanguage=ENGLISH\nx\n.\n",
         "a=80000001\n[0409]\n80000001 x\\r\\n\n", Other::refuses},
        {__LINE__, "\tMessageId =\t1\n Severity = Warning\fSymbolicName\v= A" + text,
         "A=80000001\n[0409]\n80000001 x\\r\\n\n", Other::agrees},
        {__LINE__, "MessageId\n=\n1\nSeverity=\nWarning\n\nSymbolicName\n=A" + text,
         "A=80000001\n[0409]\n80000001 x\\r\\n\n", Other::agrees},
        {__LINE__, "MessageId=1 Facility=Application SymbolicName=A" + text,
         "A=0FFF0001\n[0409]\n0FFF0001 x\\r\\n\n", Other::agrees},
        {__LINE__, "MessageId=1 SymbolicName=Severity" + text,
         "Severity=00000001\n[0409]\n00000001 x\\r\\n\n", Other::refuses},
        {__LINE__, "MessageIdTypedef=DWORD OutputBase=16\nMessageId=1 SymbolicName=A" + text,
         "A=00000001\n[0409]\n00000001 x\\r\\n\n", Other::agrees},
        {__LINE__, "MessageIdTypedef=\nMessageId=1 OutputBase = 10 SymbolicName=A" + text,
         "A=00000001\n[0409]\n00000001 x\\r\\n\n", Other::refuses},
        // numbers
        {__LINE__, "MessageId=" + text + "MessageId=" + text,
         "[0409]\n00000001 x\\r\\n\n00000002 x\\r\\n\n", Other::agrees},
        {__LINE__, "MessageId=5" + text + "MessageId=+2" + text + "MessageId= + 0x10" + text,
         "[0409]\n00000005 x\\r\\n\n00000007 x\\r\\n\n00000017 x\\r\\n\n", Other::agrees},
        {__LINE__, "MessageId=0X1f Severity=Error" + text, "[0409]\nC000001F x\\r\\n\n",
         Other::agrees},
        {__LINE__, "MessageId=65535" + text, "[0409]\n0000FFFF x\\r\\n\n", Other::agrees},
        {__LINE__, "MessageId=007" + text, "[0409]\n00000007 x\\r\\n\n", Other::agrees},
        {__LINE__, "MessageId=0" + text, "[0409]\n00000000 x\\r\\n\n", Other::agrees},
        // lists
        {__LINE__, "FacilityNames=\n(\n A=5\n\n B=6:FAC_B\n)\nMessageId=1 Facility=B" + text,
         "[0409]\n00060001 x\\r\\n\n", Other::differs}, // FAC_B becomes a constant
        {__LINE__, "FacilityNames = ( A = 0x5 : F B=6 )\nMessageId=1 Facility=a" + text,
         "[0409]\n00050001 x\\r\\n\n", Other::refuses},
        {__LINE__, "FacilityNames=(A=5)FacilityNames=(A=6)MessageId=1 Facility=A" + text,
         "[0409]\n00060001 x\\r\\n\n", Other::agrees},
        {__LINE__, "MessageId=1" + text + "FacilityNames=(A=5)\nMessageId=2 Facility=A" + text,
         "[0409]\n00000001 x\\r\\n\n00050002 x\\r\\n\n", Other::agrees},
        {__LINE__, "FacilityNames=(My-App.2=5)\nMessageId=1 Facility=My-App.2" + text,
         "[0409]\n00050001 x\\r\\n\n", Other::refuses},
        {__LINE__, "FacilityNames=()\nMessageId=1" + text, "[0409]\n00000001 x\\r\\n\n",
         Other::refuses},
        {__LINE__, "SeverityNames=(Error=0x2)\nMessageId=1 Severity=Error" + text,
         "[0409]\n80000001 x\\r\\n\n", Other::agrees},
        // comments
        {__LINE__, ";a\n ; b\nMessageId=1 ;c\nSeverity=Error;d\n;e\nLanguage=English ; f\nx\n.\n;",
         "[0409]\nC0000001 x\\r\\n\n", Other::refuses},
        {__LINE__, ";a\nMessageId=1" + text + ";b\nMessageId=2\nLanguage=English\n;x\n.\n;c\n",
         "[0409]\n00000001 x\\r\\n\n00000002 ;x\\r\\n\n", Other::agrees},
        {__LINE__, "FacilityNames=(A=5;a\n;)\nB=6)\nMessageId=1 Facility=B" + text,
         "[0409]\n00060001 x\\r\\n\n", Other::refuses},
        // languages
        {__LINE__,
         "LanguageNames=(N=0:M0 O=1:M1 E=9:M9 Z=0xFFFF:MZ)\nMessageId=1\nLanguage=N\nn\n.\n"
         "Language=O\no\n.\nLanguage=E\ne\n.\nLanguage=Z\nz\n.\n",
         "[0000]\n00000001 n\\r\\n\n[0001]\n00000001 o\\r\\n\n[0009]\n00000001 e\\r\\n\n"
         "[FFFF]\n00000001 z\\r\\n\n",
         Other::refuses},
        {__LINE__,
         "LanguageNames=(German=0x407:a.b-c)\nMessageId=1" + text + "\nLanguage=German\ny\n.\n",
         "[0407]\n00000001 y\\r\\n\n[0409]\n00000001 x\\r\\n\n", Other::agrees},
        {__LINE__, "LanguageNames=(English=0x809:UK)\nMessageId=1" + text,
         "[0809]\n00000001 x\\r\\n\n", Other::agrees},
        // texts
        {__LINE__, "MessageId=1\nLanguage=English  \n\n  a\t b \n\n..\n.x\n x.\n.\n",
         "[0409]\n00000001 \\r\\n  a\t b \\r\\n\\r\\n..\\r\\n.x\\r\\n x.\\r\\n\n", Other::agrees},
        {__LINE__, "MessageId=1\nLanguage=English\nä€𝄞\n.\n",
         "[0409]\n00000001 \\ue4\\u20ac\\ud834\\udd1e\\r\\n\n", Other::agrees},
        {__LINE__,
         "MessageId=1\nLanguage=English\nMessageId={0}\nLanguage = {1}\nSeverity=Error\n.\n",
         "[0409]\n00000001 MessageId={0}\\r\\nLanguage = {1}\\r\\nSeverity=Error\\r\\n\n",
         Other::agrees},
        {__LINE__, "MessageId=1\nLanguage=English\n%0 %1!s! %n\n.\n",
         "[0409]\n00000001 %0 %1!s! %n\\r\\n\n", Other::agrees},
        {__LINE__, "; // msglib: no-line-end\nMessageId=1" + text, "[0409]\n00000001 x\n",
         Other::differs},
        {__LINE__, "MessageId=1 ;msglib:no-line-end\nLanguage=English\nx\n\n.\n",
         "[0409]\n00000001 x\\r\\n\n", Other::refuses},
        {__LINE__, "MessageId=1\nLanguage=English\nx\n.", "[0409]\n00000001 x\\r\\n\n",
         Other::refuses},
        {__LINE__, "MessageId=1" + text + "\x1A", "[0409]\n00000001 x\\r\\n\n", Other::agrees},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(ours(row.file), row.meaning);
        EXPECT_EQ(ours(withCrLf(row.file)), row.meaning);
        const std::string other = theirs(row.file);
        EXPECT_EQ(other.empty(), row.other == Other::refuses);
        EXPECT_EQ(other == row.meaning, row.other == Other::agrees) << other;
    }
}

TEST_F(MessageTextTest, ReadsEncodings) {
    const std::string file = "MessageId=1\nLanguage=English\nä€\n.\n";
    const std::string meaning = "[0409]\n00000001 \\ue4\\u20ac\\r\\n\n";
    const auto in = [&](const char* encoding) {
        write("utf8", file);
        return run("iconv -f UTF-8 -t " + std::string(encoding) + " utf8").output;
    };
    const struct {
        int line;
        std::string bytes;
        const char* encoding;
    } rows[] = {
        {__LINE__, "\xEF\xBB\xBF" + file, ""},
        {__LINE__, "\xEF\xBB\xBF" + file, "CP1252"}, // the mark decides
        {__LINE__, in("UTF-16LE"), ""},
        {__LINE__, in("UTF-16BE"), "CP1252"},
        {__LINE__, "\xFF\xFE" + in("UTF-16LE"), ""},
        {__LINE__, "\xFE\xFF" + in("UTF-16BE"), ""},
        {__LINE__, in("UTF-32LE"), "UTF-32LE"},
        {__LINE__, in("CP1252"), "CP1252"},
        {__LINE__, in("UTF-7"), "UTF-7"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(ours(row.bytes, row.encoding), meaning);
    }
    EXPECT_EQ(ours("MessageId=1\nLanguage=English\n\x95\x5C\n.\n", "CP932"),
              "[0409]\n00000001 \\u8868\\r\\n\n");
}

TEST_F(MessageTextTest, ReadsManyMessages) {
    std::string file = "FacilityNames=(F=5 G=0xFFE)\n";
    std::string meaning = "[0409]\n";
    for (const std::uint32_t facility : {5U, 0xFFEU}) {
        for (std::uint32_t code = 1; code < 60000; ++code) {
            file += "MessageId=" + std::to_string(code);
            file += facility == 5 ? " Facility=F" : " Facility=G";
            file += text;
            meaning += hexadecimal(facility << 16 | code).substr(2);
            meaning += " x\\r\\n\n";
        }
    }
    EXPECT_TRUE(ours(file) == meaning);
}

} // namespace
} // namespace zem::msglib::tool
