// The parameters of typed calls, the effect of comments on them, and texts and comments in the
// generated header.

#include "tool/Reading.h"

#include "tool/catalogue/CallSignatures.h"
#include "tool/catalogue/SourceReader.h"
#include "tool/generated/CallsHeader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zem::msglib::tool {
namespace {

constexpr const char* head = "MessageId=1 SymbolicName=M\nLanguage=English\n";

/// The results for the typed calls of a file.
struct Calls {
    std::string signatures; ///< `symbol(kind name, ...)` or `symbol: refusal`, each with a line end
    std::string diagnostics; ///< as `dump` writes them
    std::string header;
};

std::string dump(const CallSignature& signature) {
    constexpr const char* kinds[] = {"any", "text", "number", "time", "both"};
    std::string out(signature.symbol);
    if (!signature.refusal.empty()) {
        return out + ": " + signature.refusal + "\n";
    }
    out += "(";
    for (const Parameter& parameter : signature.parameters) {
        out += out.back() == '(' ? "" : ", ";
        out += kinds[static_cast<std::size_t>(parameter.kind)];
        out += parameter.name.empty() ? "" : " " + std::string(parameter.name);
        out += parameter.description.empty() ? "" : " = " + std::string(parameter.description);
    }
    return out + ")\n";
}

Calls read(const std::string& file) {
    Diagnostics diagnostics;
    const Catalogue catalogue =
        readCatalogue(readSource("0.mc", file, "", 0, diagnostics), diagnostics);
    const auto signatures = readSignatures(catalogue, diagnostics);
    Calls calls;
    for (const CallSignature& signature : signatures) {
        calls.signatures += dump(signature);
    }
    calls.diagnostics = dump(diagnostics.take());
    calls.header = callsHeaderText(CatalogueName("app-texts.mc"), signatures);
    return calls;
}

TEST(TypedCallHeaderTest, TakesArgumentsFromTheText) {
    const struct {
        int line;
        const char* pattern;
        const char* signature;
    } rows[] = {
        {__LINE__, "text", "M()"},
        {__LINE__, "{0}", "M(any)"},
        {__LINE__, "{0,number} {1,number,0.0} {2,choice,0#a}", "M(number, number, number)"},
        {__LINE__, "{0,date} {1,date,yyyy} {2,time}", "M(time, time, time)"},
        {__LINE__, "{0} {0,number} {1,time} {1}", "M(number, time)"},
        {__LINE__, "{0,date} {0,choice,0#a}", "M(both)"},
        {__LINE__, "{2}", "M(any, any, any)"},
        {__LINE__, "{0,plural} {1,Number}", "M(any, any)"},
        {__LINE__, "{-1} {0}", "M(any)"},
        {__LINE__, "'{'0'}' {0}", "M(any)"},
        {__LINE__, "{0,choice,0#{1,date}|1#{2,choice,0#{3,time}|1#{4}}}",
         "M(number, time, number, time, any)"},
        {__LINE__, "{99} {100}", "M: uses argument 100, and a call has 100 arguments at most"},
        {__LINE__, "{0,choice,0#a|1#{1}", "M: has a text that does not compile"},
        {__LINE__, "{0,choice,0#a|1#{}}", "M: has a text that does not compile"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(read(head + std::string(row.pattern) + "\n.\n").signatures,
                  row.signature + std::string("\n"))
            << "line " << row.line;
    }
}

TEST(TypedCallHeaderTest, TakesTheTextThatIsLookedUp) {
    const struct {
        int line;
        const char* file;
        const char* signatures;
    } rows[] = {
        {__LINE__, "MessageId=1 SymbolicName=M\nLanguage=German\n{0}\n.\n",
         "M: has no text in English (United States)\n"},
        {__LINE__,
         "MessageId=1 SymbolicName=M\nLanguage=German\n{0}\n.\nLanguage=English\n{0,date}\n.\n",
         "M(time)\n"},
        {__LINE__,
         "MessageId=1 SymbolicName=M\nLanguage=German\n{0}\n.\n"
         "; @arg 0 when\nMessageId=1 SymbolicName=M\nLanguage=English\n{0,date}\n.\n",
         "M(time when)\n"},
        {__LINE__,
         "MessageId=2\nLanguage=English\n{0}\n.\n"
         "MessageId=1 SymbolicName=M\nLanguage=English\n{0}{1}\n.\n",
         "M(any, any)\n"},
    };
    for (const auto& row : rows) {
        const Calls calls = read("LanguageNames=(German=0x407:g)\n" + std::string(row.file));
        EXPECT_EQ(calls.signatures, row.signatures) << "line " << row.line;
        EXPECT_EQ(calls.diagnostics, "") << "line " << row.line;
    }
}

TEST(TypedCallHeaderTest, TakesNamesAndKindsFromComments) {
    const std::string index = " argument-annotation: the index of an argument is missing (write "
                              "@arg, index, name, kind and description, as in \"@arg 0 files "
                              "number How many were copied\")\n";
    const struct {
        int line;
        const char* comments;
        const char* pattern;
        const char* signature;
        std::string diagnostics;
    } rows[] = {
        {__LINE__, "; // @arg 1 b text A text.\t\n;@arg 0 a\n", "{0,number}{1}",
         "M(number a, text b = A text.)", ""},
        {__LINE__, "; // @arg 0 a any x y\n; // @arg 1 b number\n; // @arg 2 c time\n", "{2}",
         "M(any a = x y, number b, time c)", ""},
        {__LINE__, "; // @arg 0 a number\n", "{0,number}{0,date}", "M(both a)", ""},
        {__LINE__, "; // @args 0 a\n; // arg 0 a\n", "x", "M()", ""},
        {__LINE__, "; // @arg 0 a text x\n", "{0,number}", "M(number a = x)",
         "1:15-19 argument-annotation: the text does not use this argument as text (write "
         "number)\n"},
        {__LINE__, "; // @arg 0 a any\n", "{0,choice,0#{1}|1#{0,time}}", "M(both a, any)",
         "1:15-18 argument-annotation: the text does not use this argument as any (write number "
         "or time)\n"},
        {__LINE__, "; // @arg 0 a number\n", "{0,time}", "M(time a)",
         "1:15-21 argument-annotation: the text does not use this argument as number (write "
         "time)\n"},
        {__LINE__, "; // @arg 0 a How many\n", "{0}", "M(any a = many)",
         "1:15-18 argument-annotation: `How` is not a kind of argument (the kinds are text, "
         "number, "
         "time and any)\n"},
        {__LINE__, "; // @arg 2 a\n", "{1}", "M(any, any)",
         "1:11-12 argument-annotation: the message has no argument 2 (its text in English (United "
         "States) uses 0 to 1)\n"},
        {__LINE__, "; // @arg 18446744073709551616 a\n", "x", "M()",
         "1:11-31 argument-annotation: the message has no argument 18446744073709551616 (its text "
         "in English (United States) uses none)\n"},
        {__LINE__, "; // @arg 0 a\n; // @arg 0 b\n", "{0}", "M(any a)",
         "2:11-12 argument-annotation: argument 0 already has such a comment\n"},
        {__LINE__, "; // @arg 0 a\n; // @arg 1 a\n", "{1}", "M(any a, any)",
         "2:13-14 argument-annotation: another argument of the message has this name\n"},
        {__LINE__, "; // @arg 0 class\n; // @arg 1 Argument0\n", "{1}", "M(any, any)",
         "1:13-18 argument-annotation: `class` cannot be the name of a parameter\n"
         "2:13-22 argument-annotation: `Argument0` cannot be the name of a parameter\n"},
        {__LINE__, "; // @arg 0\n", "{0}", "M(any)",
         "1:11-12 argument-annotation: the name of argument 0 is missing\n"},
        {__LINE__, "; // @arg\n; // @arg -1 a\n", "{0}", "M(any)",
         "1:6-10" + index + "2:11-13" + index},
    };
    for (const auto& row : rows) {
        const Calls calls = read(row.comments + std::string(head) + row.pattern + "\n.\n");
        EXPECT_EQ(calls.signatures, row.signature + std::string("\n")) << "line " << row.line;
        EXPECT_EQ(calls.diagnostics, row.diagnostics) << "line " << row.line;
    }
    EXPECT_EQ(read(std::string(head) + "x\n.\n; // @arg 0 a\n").diagnostics,
              "5:1-14 argument-annotation: no message follows\n");
}

TEST(TypedCallHeaderTest, KeepsTextsInsideComments) {
    const Calls calls = read("; // @arg 0 a any x\\\n" + std::string(head) +
                             "{0}\\ \t\n\n\x01\t*/\u0085\u2028\u202E\n.\n");
    EXPECT_NE(calls.header.find("///     {0}\\ <line end>\n"
                                "///\n"
                                "///     <U+0001>\t*/<U+0085><U+2028><U+202E>\n"
                                "///\n"
                                "/// @param a  a number or a text: x\\ <line end>\n"),
              std::string::npos)
        << calls.header;
}

TEST(TypedCallHeaderTest, NamesItsNamespaceAfterTheFile) {
    EXPECT_EQ(CatalogueName("app-texts.mc").calls, "AppTexts");
    EXPECT_EQ(CatalogueName("2texts.mc").calls, "Messages2texts");
}

} // namespace
} // namespace zem::msglib::tool
