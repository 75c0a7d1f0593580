#include "Grammar/UVGrammarKeeper.h"
#include "Tests/Grammar/GrammarKeeperFiles.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

// The action text that a generated scanner with this action switch gives.
std::string ExtractedFrom(const std::string& fileName, const std::string& text)
{
    const CScratchFolder folder;
    const std::string source = folder.Write(fileName, text);
    if (UVDBGrammarKeeper::SaveActionsToFile(source, folder.Path()) != 0) {
        EXPECT_FALSE(std::filesystem::exists(folder.Path() + "actions.dat"));
        return "failed";
    }
    return FileContent(folder.Path() + "actions.dat");
}

std::string ScannerActions(const std::string& cases)
{
    return ExtractedFrom("XLexer.c", "case 9: before\ndo_action:\n switch ( yy_act )\n{\n" + cases +
                                         "\n} /* end of action switch */ case 99: { BEGIN X; }");
}

TEST(ActionExtraction, BodiesBecomeRecords)
{
    constexpr std::pair<const char*, const char*> kCases[] = {
        {"case 1:\nYY_RULE_SETUP\n#line 9 \"a.l\"\n{ TOKEN_ACTION(A); }\n\tYY_BREAK\n", "1 TOKEN_ACTION A\n"},
        {"case 1:\n{ TOKEN_ACTIONE(A, 1); }\n\tYY_BREAK\ncase 2:\n{ BEGIN X; }\n\tYY_BREAK\n",
         "1 TOKEN_ACTIONE A 1\n2 BEGIN X \n"},
        {"case 1:\n{ BEGIN X; BEGIN Y; }\n\tYY_BREAK\n", "1 BEGIN X BEGIN Y \n"},
        {"case 1:\n{BEGIN X}\n\tYY_BREAK\n", "1 BEGIN X \n"},
        {"case 1:\n{ BEGIN X; TOKEN_ACTION(A); TOKEN_INDENT_ACTION; }\n\tYY_BREAK\n",
         "1 BEGIN X TOKEN_ACTION A TOKEN_INDENT_ACTION \n"},
        {"case 1:\n{ CREATE_NODE_WITH_ERROR(N,2,0); }\n\tYY_BREAK\n", "1 CREATE_NODE_WITH_ERROR N 2 0\n"},
        // no operations, but a record
        {"case 1:\n{ }\n\tYY_BREAK\ncase 2:\n{ /* note */ }\n\tYY_BREAK\n", "1 \n2 \n"},
        {"case 1:\n{ // BEGIN X;\n }\n\tYY_BREAK\n", "1 \n"},
        // no body, no record
        {"case 1:\n\tECHO;\n\tYY_BREAK\ncase 2:\n{ BEGIN X; }\n\tYY_BREAK\n", "2 BEGIN X \n"},
        {"case YY_STATE_EOF(X):\n{ BEGIN X; }\ncase 2:\n{ BEGIN Y; }\n", "2 BEGIN Y \n"},
        {"case 1: goto elsewhere; { BEGIN X; }\n", ""},
        // what action code needs around its calls
        {"case 1:\n{ return yytext[0]; BEGIN X; }\n\tYY_BREAK\ncase 2:\n{ }\n\tYY_BREAK\n",
         "1 yytext 0\n2 \n"},
        {"case 1:\n{ UVDB::CString strtmp; strtmp.Format(\"%d\", a - b); m_Extension.m_strParsedXml += "
         "strtmp; }\n\tYY_BREAK\n",
         "1 strtmp.Format \"%d\" a - b\n"},
        {"case 1:\n{\n#ifdef X\n{ BEGIN X; }\n#endif\n}\n\tYY_BREAK\n", "1 BEGIN X \n"},
        {"case 1:\n{ foo(); BEGIN X; }\n\tYY_BREAK\n", "1 ERROR: unknown token 'foo();' BEGIN X \n"},
        {"case 1:\n{ TOKEN_ACTION(A", "failed"},
    };
    for (const auto& [cases, records] : kCases) {
        SCOPED_TRACE(cases);
        if (std::string(records) == "failed")
            EXPECT_EQ(ExtractedFrom("XLexer.c", std::string("do_action: ") + cases), "failed");
        else
            EXPECT_EQ(ScannerActions(cases), records);
    }
}

TEST(ActionExtraction, MarkersGoByTheFilesName)
{
    const std::string parser =
        "yyreduce:\n  case 2:\n { EMPTY(E); }\n    break;\nyyerrlab:\n case 3: { EMPTY(F); }\n";
    EXPECT_EQ(ExtractedFrom("XParser.c", parser), "2 EMPTY E\n");
    EXPECT_EQ(ExtractedFrom("XLexer.c", parser), "failed");
    EXPECT_EQ(UVDBGrammarKeeper::SaveActionsToFile("/nonexistent/XLexer.c", "/nonexistent/"), -1);
    EXPECT_TRUE(UVDBGrammarKeeper::IsFileLexer("a/b/MyLexer.c"));
    EXPECT_FALSE(UVDBGrammarKeeper::IsFileLexer("MyLexer/parser.c"));
    EXPECT_FALSE(UVDBGrammarKeeper::IsFileLexer("Lexer\\parser.c"));
}

TEST(TableExtraction, InitialisersBecomeEntries)
{
    using Ints = std::vector<int>;
    EXPECT_EQ(UVDBGrammarKeeper::GetFileTable<int>("{ 0,\n  -1, 2 } ; x"), (Ints{3, 0, -1, 2}));
    EXPECT_EQ(UVDBGrammarKeeper::GetFileTable<int>("{5}"), (Ints{1, 5}));
    EXPECT_EQ(UVDBGrammarKeeper::GetFileTable<int>("{ \"7\", 8, }}; 9"), (Ints{2, 7, 8}));
    EXPECT_EQ(UVDBGrammarKeeper::GetFileTable<int>("{ 010 }"), (Ints{1, 10}));
    EXPECT_EQ(UVDBGrammarKeeper::GetFileTable<unsigned>("{ 010, 0x10 }"), (std::vector<unsigned>{2, 8, 16}));
    for (const char* bad : {"", "{", "{ 1, 2", "{ }", "{ 1 /* one */ }", "{ one }"})
        EXPECT_THROW(UVDBGrammarKeeper::GetFileTable<int>(bad), std::runtime_error) << bad;
}

TEST(DefinesExtraction, StartConditionsTokensAndTheFinalState)
{
    const CScratchFolder folder;
    std::string out;
    const std::string header = folder.Write(
        "XLexer.h",
        "#define EARLY 7\n#ifdef YY_HEADER_EXPORT_START_CONDITIONS\n#define INITIAL 0\n#define NOTHING\n"
        "#define SS_2 1\n\n#endif\n#define LATE 8\n");
    EXPECT_EQ(UVDBGrammarKeeper::SaveDefinesToFile(header, folder.Path(), out), 0);
    EXPECT_EQ(out, "INITIAL 0\nSS_2 1\n");
    EXPECT_EQ(FileContent(folder.Path() + "defines.dat"), out);

    const std::string parser = folder.Write(
        "XParser.c",
        "#define YYFINAL  12\n  enum yytokentype\n  {\n    YYEMPTY = -2,\n    YYEOF = 0,\n    TID = 258,"
        "\n    T_2 = 43\n  };\n X = 5\n");
    EXPECT_EQ(UVDBGrammarKeeper::SaveDefinesToFile(parser, folder.Path(), out), 0);
    EXPECT_EQ(out, "YYEOF 0\nTID 258\nT_2 43\n");
    EXPECT_EQ(UVDBGrammarKeeper::SaveConstantsToFile(parser, folder.Path()), 0);
    EXPECT_EQ(FileContent(folder.Path() + "const.dat"), "YYFINAL 12\n");

    // A file of another form leaves nothing behind.
    const CScratchFolder empty;
    for (const char* name : {"YParser.c", "YLexer.h"}) {
        const std::string other = folder.Write(name, "int main() {}\n");
        EXPECT_EQ(UVDBGrammarKeeper::SaveDefinesToFile(other, empty.Path(), out), -1) << name;
        EXPECT_EQ(UVDBGrammarKeeper::SaveConstantsToFile(other, empty.Path()), -1) << name;
    }
    EXPECT_TRUE(std::filesystem::is_empty(empty.Path()));
}

} // namespace
