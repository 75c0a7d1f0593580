#include "Grammar/UVGrammarKeeper.h"
#include "Grammar/UVGrammarManifest.h"
#include "Stylesheets/Archive/Compressor.h"
#include "Tests/Grammar/GrammarKeeperFiles.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

// A map of actions as text, in the order in which the engine runs it: "5:A#0(x,y) B#0(); 6:NULL;".
std::string Shown(const CActionsMap& actions)
{
    std::string shown;
    for (const auto& [number, operations] : actions) {
        shown += std::to_string(number) + ':';
        for (const auto& [key, operands] : *operations) {
            shown += key;
            if (operands == nullptr)
                continue;
            shown += '(';
            for (const std::string& operand : *operands)
                shown += (&operand == &operands->front() ? "" : ",") + operand;
            shown += ')';
        }
        shown += ';';
    }
    return shown;
}

std::string ReadActions(const std::string& text)
{
    CActionsMap actions;
    UVDBGrammarKeeper::CreateActionsMap(text, actions);
    const std::string shown = Shown(actions);
    FreeActionsMap(actions);
    EXPECT_TRUE(actions.empty());
    return shown;
}

TEST(ActionText, RecordsBecomeOperations)
{
    constexpr std::pair<const char*, const char*> kCases[] = {
        {"", ""},
        {" \n\t\r", ""},
        {"5 \n", "5:NULL_ACTION;"},
        {"5 BEGIN X\n", "5:BEGIN#0(X);"},
        {"5 BEGIN X \n6 \n", "5:BEGIN#0(X);6:NULL_ACTION;"},
        {"8 STRING_ACTION 5 BEGIN X\n", "8:BEGIN#0(X)STRING_ACTION#0(5);"}, // by key, not as written
        {"1 ColoringFunc 2 CODE_ACTION 1 A B\n", "1:CODE_ACTION#0(1,A,B)ColoringFunc#0(2);"},
        {"1 PATTERN_ACTION a b PATTERNS_ACTION c d\n", "1:PATTERNS_ACTION#0(c,d)PATTERN_ACTION#0(a,b);"},
        {"1 BEGIN A BEGIN B BEGIN C\n", "1:BEGIN#0(A)BEGIN#1(B)BEGIN#2(C);"},
        {"1 BEGIN A\n1 BEGIN B\n", "1:BEGIN#0(B);"},
        // a keyword without operands leaves its LF alone
        {"1 TOKEN_INDENT_ACTION\n2 BEGIN A\n", "1:TOKEN_INDENT_ACTION#0();2:BEGIN#0(A);"},
        {"1 TOKEN_INDENT_ACTION \n2 BEGIN A\n", "1:TOKEN_INDENT_ACTION#0();2:BEGIN#0(A);"},
        {"1 TOKEN_INDENT_ACTION BEGIN A\n", "1:BEGIN#0(A)TOKEN_INDENT_ACTION#0();"},
        // a number and a line end: the next word is a keyword, and 7 isn't one
        {"1\nBEGIN A\n", "1:BEGIN#0(A);"},
        {"1 BEGIN A\n2\n7 BEGIN B\n", "1:BEGIN#0(A);"},
        // an unknown keyword takes its record and all that follow
        {"1 BEGIN A\n2 BEGIN B NOSUCH x\n3 BEGIN C\n", "1:BEGIN#0(A);"},
        {"1 begin A\n", ""},
        // operands hold anything but blanks and LFs
        {"1 IFSTRCMP_ACTION \"a;\" 1 T\r\n", "1:IFSTRCMP_ACTION#0(\"a;\",1,T\r);"},
        {"1 TOKEN_ACTIONE A\n2 BEGIN B\n", "1:TOKEN_ACTIONE#0(A,);2:BEGIN#0(B);"},
        {"1 strtmp.Format \"%d %d\\n\" m_nChar - yyleng\n2 BEGIN B\n",
         "1:strtmp.Format#0(\"%d %d\\n,yyleng);2:BEGIN#0(B);"},
        // texts that end too early
        {"1", "1:;"},
        {"1 BEGIN", "1:;"},
        {"1 BEGIN ", "1:BEGIN#0();"},
        {"1 strtmp.Format \"", "1:strtmp.Format#0(\",);"},
        {"1 strtmp.Format ", "1:strtmp.Format#0(,);"},
        {"1 BEGIN A\t\n", "1:BEGIN#0(A\t);"},
    };
    for (const auto& [text, shown] : kCases) {
        SCOPED_TRACE(text);
        EXPECT_EQ(ReadActions(text), shown);
    }
}

TEST(ActionText, TenthOccurrenceRunsBeforeTheSecond)
{
    std::string text = "1";
    for (int i = 0; i < 12; ++i)
        text += " BEGIN s" + std::to_string(i);
    EXPECT_TRUE(ReadActions(text + "\n")
                    .starts_with("1:BEGIN#0(s0)BEGIN#1(s1)BEGIN#10(s10)BEGIN#11(s11)BEGIN#2(s2)"));
}

TEST(ActionText, MoreOccurrencesThanTheirNumberHoldsEndNeitherInALoopNorInACrash)
{
    std::string text = "1";
    for (int i = 0; i < 100000; ++i)
        text += " BEGIN x";
    CActionsMap actions;
    UVDBGrammarKeeper::CreateActionsMap(text + "\n", actions);
    EXPECT_EQ(actions[1]->size(), 256u);
    FreeActionsMap(actions);
}

TEST(GrammarKeywords, EveryWordIsFoundByTheExtractorAsItself)
{
    for (int i = 0; i < kGrammarKeywordCount; ++i) {
        const std::string name = GetGrammarKeyword(static_cast<enGrammarKeyword>(i)).name;
        const auto& words = UVDBGrammarKeeper::seekingTokens;
        const auto first = std::find_if(words.begin(), words.end(),
                                        [&](std::string_view word) { return name.starts_with(word); });
        ASSERT_NE(first, words.end()) << name;
        EXPECT_EQ(*first, name);
        ASSERT_NE(FindGrammarKeyword(name), nullptr);
        EXPECT_EQ(static_cast<int>(FindGrammarKeyword(name)->keyword), i);
    }
    for (const char* word : {"", "TOKEN", "TOKEN_ACTIONEE", "begin", "zzz", "A"})
        EXPECT_EQ(FindGrammarKeyword(word), nullptr) << word;
}

TEST(DefinesText, PairsMaximumAndZero)
{
    struct SCase
    {
        const char* text;
        std::map<std::string, int> defines;
        std::uint64_t result;
    };
    constexpr std::uint64_t kZero = std::uint64_t{1} << 32;
    const SCase kCases[] = {
        {"", {}, 0},
        {"INITIAL 0\nX 1\n", {{"INITIAL", 0}, {"X", 1}}, kZero | 1},
        {"A 300\nB 258\n", {{"A", 300}, {"B", 258}}, 300},
        {"A 1\nA 2\n", {{"A", 2}}, 2},
        {"A -5\n", {{"A", -5}}, 0},
        {"A    7", {{"A", 7}}, 7},
        {"A 1\r\nB 2\n", {{"A", 1}, {"\r\nB", 2}}, 2}, // lines have to end in LF
        {"A 1\tB 2\n", {{"A", 1}, {"\tB", 2}}, 2},
        {"A x\n", {{"A", 0}}, kZero},
        {"A 1\n \n", {{"A", 1}}, 1},
        {"A 1\nB", {{"A", 1}}, 1}, // no blank, no pair
        {"A ", {{"A", 0}}, kZero},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(c.text);
        std::map<std::string, int> defines;
        EXPECT_EQ(UVDBGrammarKeeper::CreateDefinesMap(c.text, defines), c.result);
        EXPECT_EQ(defines, c.defines);
    }
    EXPECT_EQ(UVDBGrammarKeeper::GetFinalStateNum("X 1\nYYFINAL 7\nYYFINAL 9\nYYFINALS 3\n"), 9);
    EXPECT_EQ(UVDBGrammarKeeper::GetFinalStateNum(""), 0);
}

// Reads a table; a damaged one must give an exception of the loader's own kind and nothing else.
enum class enOutcome
{
    Read,
    Refused,
    NotOpened
};

enOutcome ReadTable(const std::string& path, std::vector<int>& entries)
{
    std::size_t count = 99;
    try {
        const std::unique_ptr<int[]> table(
            UVDBGrammarKeeper::GetBinaryTableFromFile<int>(path.c_str(), count));
        entries.assign(table.get(), table.get() + count);
        return table ? enOutcome::Read : enOutcome::NotOpened;
    } catch (const Uve::U8CString& text) {
        EXPECT_EQ(text, "\nUVParser ERROR: Could not construct a table from file: " + path);
        EXPECT_EQ(count, 0u);
        return enOutcome::Refused;
    }
}

TEST(BinaryTable, PlainAndPackedReadAlikeAndCountsAreDistrusted)
{
    const CScratchFolder folder;
    std::vector<int> entries;
    EXPECT_EQ(ReadTable(folder.Path() + "none.dat", entries), enOutcome::NotOpened);
    struct SCase
    {
        std::string bytes;
        enOutcome outcome;
        std::vector<int> entries;
    };
    const SCase kCases[] = {
        {TableBytes(2, {1, -1}), enOutcome::Read, {1, -1}},
        {TableBytes(0, {}), enOutcome::Read, {}},
        {TableBytes(1, {1, -1}), enOutcome::Read, {1}}, // what lies beyond the count is nobody's
        {TableBytes(3, {1, -1}), enOutcome::Refused, {}},
        {TableBytes(0xffffffffu, {1, -1}), enOutcome::Refused, {}}, // 16 GB, if it were believed
        {"", enOutcome::Refused, {}},
        {"abc", enOutcome::Refused, {}},
        {TableBytes(2, {1, -1}).substr(0, 11), enOutcome::Refused, {}},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(c.bytes));
        const std::string packed = folder.Path() + "packed.dat";
        CompressBinary(packed, c.bytes.data(), static_cast<unsigned>(c.bytes.size()));
        for (const std::string& path : {folder.Write("plain.dat", c.bytes), packed}) {
            EXPECT_EQ(ReadTable(path, entries), c.outcome);
            if (c.outcome == enOutcome::Read) {
                EXPECT_EQ(entries, c.entries);
            }
        }
    }
}

// Members that no writer of tables makes, and single members with one damaged byte. The header's bytes 4 to 9
// say nothing of the content.
TEST(BinaryTable, AnyGzipFileIsReadRightOrRefused)
{
    const CScratchFolder folder;
    const std::vector<int> entries = {1, -1, 70000};
    const std::string content = TableBytes(3, entries);
    const auto pack = [&](std::string_view bytes) {
        const std::string path = folder.Path() + "pack.dat";
        CompressBinary(path, bytes.data(), static_cast<unsigned>(bytes.size()));
        std::string packed;
        EXPECT_EQ(UVDBGrammarKeeper::ReadFromFile(packed, path.c_str()), 0);
        return packed;
    };
    const std::string packed = pack(content);
    std::string named = packed;
    named[3] = 8;
    named.insert(10, std::string("name") + '\0');
    const auto isRead = [&](const std::string& bytes) {
        std::vector<int> found;
        const bool isSound = ReadTable(folder.Write("table.dat", bytes), found) == enOutcome::Read;
        EXPECT_TRUE(!isSound || found == entries);
        return isSound;
    };
    EXPECT_TRUE(isRead(packed));
    EXPECT_TRUE(isRead(named));
    EXPECT_TRUE(isRead(packed + "behind"));
    EXPECT_TRUE(
        isRead(pack(std::string_view(content).substr(0, 6)) + pack(std::string_view(content).substr(6))));
    for (std::size_t at = 2; at < packed.size(); ++at) {
        SCOPED_TRACE(at);
        std::string damaged = packed;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
        EXPECT_EQ(isRead(damaged), at >= 4 && at < 10);
        EXPECT_FALSE(isRead(packed.substr(0, at)));
    }

    std::size_t count = 0;
    std::uint32_t checksum = 0;
    for (const std::string& bytes : {content, packed, named}) {
        const std::string path = folder.Write("table.dat", bytes);
        delete[] UVDBGrammarKeeper::GetBinaryTableFromFile<int>(path.c_str(), count, &checksum);
        EXPECT_EQ(checksum, FactsOfText(content).checksum);
    }
}

TEST(DatFiles, PlainBeforePackedElseTheMissingPathIsNamed)
{
    const CScratchFolder folder;
    const std::string directory = folder.Path();
    std::filesystem::create_symlink("loop.dat", folder.Path("loop.dat"));
    const struct
    {
        const char *name, *reason;
    } missing[] = {
        {"a.dat", ""}, // the plain file is named, by one slash
        {"loop.dat", ": Too many levels of symbolic links"},
    };
    for (const auto& [name, reason] : missing)
        for (const bool wantsPath : {false, true}) {
            try {
                wantsPath ? GetDatFilePath(directory, directory, name)
                          : GetDatFile(directory, directory, name);
                ADD_FAILURE() << "missing file found";
            } catch (const Uve::U8CString& text) {
                EXPECT_EQ(text, "\nUVParser ERROR: File not found: " + directory + name + reason);
            }
        }

    std::string archive = folder.Write("a.dat_", "1 BEGIN packed\n");
    Compressor::Archive(archive);
    EXPECT_EQ(GetDatFile(directory, directory, "a.dat"), "1 BEGIN packed\n");
    EXPECT_EQ(GetDatFilePath(directory, directory, "a.dat"), directory + "/a.dat_");

    folder.Write("a.dat", "1 BEGIN plain\n");
    EXPECT_EQ(GetDatFile(directory, directory, "a.dat"), "1 BEGIN plain\n");
    EXPECT_EQ(GetDatFilePath(directory, directory, "a.dat"), directory + "/a.dat");

    folder.Write("b.dat_", "99999999.0.no payload");
    EXPECT_THROW(GetDatFile(directory, directory, "b.dat"), Uve::U8CString);
}

TEST(DatFiles, NoParserNameLeavesTheGrammarFolder)
{
    EXPECT_TRUE(ComposeGrammarDirectory("Toy", false, "Lexer").ends_with("/Grammar/Toy/Lexer/"));
    EXPECT_TRUE(ComposeGrammarDirectory("Toy", true, "Parser").ends_with("/Grammar.CR/Toy/Parser/"));
    for (const char* name : {"..", "../Toy", "Toy/../..", "/etc", "a/b"})
        EXPECT_THROW(ComposeGrammarDirectory(name, false, "Lexer"), Uve::U8CString) << name;
}

} // namespace
