#include "Preparation/Preprocessor.h"

#include "Catalogue/UVDBHelpers.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Tests/Preparation/FormatterFixture.h"
#include "Tests/Support/MemoryLog.h"
#include "Tests/Support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

class PreprocessorTest : public testing::Test
{
protected:
    void SetUp() override { Reset(); }

    void Reset() { m_Info = UVDBMakeObject<CUVDBDatabaseInfo>(DB_VERSION_INFO()); }

    void Set(const char* name, int value) { CUVDBOptionWrapper::SetParam(m_Info, name, value); }
    void Set(const char* name, const std::string& value)
    {
        CUVDBOptionWrapper::SetParam(m_Info, name, Uve::U8CString(value));
    }

    // Turns the preparation on and reads the options.
    void Start(int function)
    {
        Set("PREPROCESSOR", 0);
        Set("PREPROCESSOR_FUNCTION", function);
        m_Preprocessor.Init(m_Info);
        ASSERT_TRUE(m_Preprocessor.IsEnabled());
    }

    // The prepared text, or the messages of a failed run.
    std::string Run(const std::string& source, const std::string& path = "main.ec")
    {
        Uve::U8CString result;
        Uve::U8CString errors;
        const bool isDone = m_Preprocessor.Run(source, path, result, errors, &m_Lines);
        m_Errors = errors;
        EXPECT_TRUE(isDone || result.empty());
        return isDone ? result : errors;
    }

    CLogCapture m_Log;
    CScratchFolder m_Folder;
    std::shared_ptr<IUVDBDatabaseInfo2> m_Info;
    Preprocessor m_Preprocessor;
    std::vector<std::uint32_t> m_Lines;
    std::string m_Errors;
};

TEST_F(PreprocessorTest, OnlyZeroTurnsItOn)
{
    m_Preprocessor.Init(nullptr);
    EXPECT_FALSE(m_Preprocessor.IsEnabled());
    m_Preprocessor.Init(m_Info);
    EXPECT_FALSE(m_Preprocessor.IsEnabled());
    Set("PREPROCESSOR", 1);
    m_Preprocessor.Init(m_Info);
    EXPECT_FALSE(m_Preprocessor.IsEnabled());
    Set("PREPROCESSOR", 0);
    m_Preprocessor.Init(m_Info);
    EXPECT_TRUE(m_Preprocessor.IsEnabled());
    EXPECT_EQ(Run("#define A 1\nA\n#undef A\n"), "#define A 1\nA"); // without a function: as 1
    m_Preprocessor.Init(nullptr);
    EXPECT_TRUE(m_Preprocessor.IsEnabled());
}

TEST_F(PreprocessorTest, DefinitionsAndUndefines)
{
    Set("PREPROCESSOR_DEFINITIONS", "A;;B=2;C(x)=[x];HELD=1");
    Set("PREPROCESSOR_UNDEFINES", "HELD;KEPT");
    Start(2);
    EXPECT_NE(m_Log.Text().find("\nPreprocessor: can't open file HELD;KEPT."), std::string::npos);
    EXPECT_EQ(Run("#define KEPT 1 2\nA B C(3) HELD KEPT"), "\n1 2 [3] HELD KEPT");
    const auto tokens = m_Preprocessor.GetUndefinesTokens();
    EXPECT_EQ(tokens->at("KEPT"), "12");
    EXPECT_FALSE(tokens->contains("HELD")); // no line of the source defines it

    // the map is one for all runs, and outlives the options
    Run("#define HELD h\n");
    EXPECT_EQ(m_Preprocessor.GetUndefinesTokens(), tokens);
    EXPECT_EQ(tokens->size(), 2u);
    Reset();
    Start(2);
    EXPECT_EQ(Run("#define KEPT 1\nA B KEPT HELD"), "\nA B 1 HELD");
    EXPECT_EQ(m_Preprocessor.GetUndefinesTokens(), tokens);
    EXPECT_EQ(tokens->size(), 2u);
}

TEST_F(PreprocessorTest, UndefinesFromAFile)
{
    Set("PREPROCESSOR_UNDEFINES", m_Folder.Write("list", "ON\r\nE;T\nWO;\n"));
    Start(2);
    EXPECT_EQ(m_Log.Text().find("can't open"), std::string::npos);
    EXPECT_EQ(Run("#define ONE 1\n#define TWO 2\n#define ON 3\nONE TWO ON"), "\n\n\nONE TWO 3");

    Set("PREPROCESSOR_UNDEFINES", m_Folder.Path("."));
    m_Preprocessor.Init(m_Info);
    EXPECT_NE(m_Log.Text().find("\nPreprocessor: can't open file " + m_Folder.Path(".")), std::string::npos);
}

TEST_F(PreprocessorTest, IncludePathsInTheirOrder)
{
    m_Folder.Write("first/which.h", "#define WHICH first\n");
    m_Folder.Write("second/which.h", "#define WHICH second\n");
    m_Folder.Write("second/other.h", "#define OTHER other\n");
    const std::string source = "#include <which.h>\n#include <other.h>\nWHICH OTHER";
    const std::string lines = "#include <which.h>\n#include <other.h>\n";
    Set("DSN", m_Folder.Path("first"));
    Set("PREPROCESSOR_ADDITIONAL_INCLUDE_DIRECTORIES", m_Folder.Path("none") + ";" + m_Folder.Path("second"));
    Start(2);
    EXPECT_EQ(Run(source), lines + "first other");
    Set("DSN", m_Folder.Path("second"));
    Set("PREPROCESSOR_ADDITIONAL_INCLUDE_DIRECTORIES", m_Folder.Path("first"));
    m_Preprocessor.Init(m_Info);
    EXPECT_EQ(Run(source), lines + "second other");
}

TEST_F(PreprocessorTest, EmbeddedSqlComesFirst)
{
    const std::string source = "#define T t\n$int x;\nf();\n$select T into $x from T;\n";
    for (const char* const name : {"", "C", "esqlc", "ESQLC"}) {
        SCOPED_TRACE(name);
        Set("API_SOURCE_DB", name);
        Start(2);
        const bool isRewritten = *name == 'e' || *name == 'E';
        EXPECT_EQ(Run(source).find("EXEC SQL select t into :x from t;") != std::string::npos, isRewritten);
    }
    EXPECT_EQ(m_Lines, (std::vector<std::uint32_t>{1, 2, 2, 2, 3, 4}));
    EXPECT_EQ(Run("f();\n#define A g\nA();"), "f();\n\ng();"); // no "$"
    EXPECT_EQ(m_Lines, (std::vector<std::uint32_t>{1, 2, 3}));
}

TEST_F(PreprocessorTest, MessagesNameTheLinesOfTheSource)
{
    Set("API_SOURCE_DB", "ESQLC");
    Start(2);
    EXPECT_EQ(Run("$int x;\n#error no\n", "a b.ec"), "a b.ec : 2 : #error: no\n");
    Run("$int x;\n#if 1\n\n"); // a message of a run that is done
    EXPECT_EQ(m_Errors, "main.ec : 2 : #endif not found\n");
    m_Folder.Write("bad.h", "\n#error in it\n");
    Run("$int x;\n#include \"bad.h\"\n", m_Folder.Path("main.ec"));
    EXPECT_EQ(m_Errors, m_Folder.Path("bad.h") + " : 2 : #error: in it\n");
}

TEST_F(PreprocessorTest, TheExpansionLimitIsAnOption)
{
    std::string bomb = "#define A0 x x x x\n";
    for (int i = 1; i < 8; ++i)
        bomb += "#define A" + std::to_string(i) + " A" + std::to_string(i - 1) + " A" +
                std::to_string(i - 1) + "\n";
    Start(2);
    Run(bomb + "A7\n");
    EXPECT_EQ(m_Errors, "");
    CUVDBOptionWrapper::SetParam(m_Info, "PREPROCESSOR_EXPANSION_LIMIT", 500L);
    m_Preprocessor.Init(m_Info);
    Run(bomb + "A7\n");
    EXPECT_NE(m_Errors.find("500"), std::string::npos) << m_Errors;
    CUVDBOptionWrapper::SetParam(m_Info, "PREPROCESSOR_EXPANSION_LIMIT", -1L); // no limit to take
    m_Preprocessor.Init(m_Info);
    Run(bomb + "A7\n");
    EXPECT_EQ(m_Errors, "");
}

TEST_F(PreprocessorTest, CharactersThatCannotBeReadMakeAMessage)
{
    Start(1);
    const std::string errors = Run("int a;\nint \xE9;\n", "dir/main.c");
    EXPECT_EQ(PreprocessorFailureMessage(errors), "2 '\xC3\xA9' " + errors);
    EXPECT_EQ(PreprocessorFailureMessage(Run("#error x\n")), std::nullopt);
    EXPECT_EQ(PreprocessorFailureMessage(""), std::nullopt);
}

TEST(PreprocessorFailureMessage, TheLastLineThatFitsCounts)
{
    for (const auto& [errors, message] : std::initializer_list<std::pair<const char*, const char*>>{
             {"a : 3 : char error: x character code=64", "3 '@' "},
             {"a : 3 : unhandled char error: character code=64.\nb", "3 '@' "},
             {"a : 3 : char error: character code=640", "3 '' "}, // two digits or none
             {"a : 3 : warning: character code=64", "3 "},
             {"a : 3 : char error: character code=64\nb : 5 : char error: character code=65", "5 'A' "},
             {"a : 3 : char error: character code=64\nb : 5 : char error: code=65", "3 '@' "},
             {"a : 3 : char error: character code=64\nb character code=65", "3 '@' "},
             {": 3 : char error: character code=64", nullptr},    // nothing in front
             {"a: 3 :\nchar error: character code=64", "3 '@' "}, // any white space
             {"a :3 : char error: character code=64", nullptr},
             {"a : 3: char error: character code=64", nullptr},
             {"a : 3 : char error: character code=", nullptr},
         }) {
        SCOPED_TRACE(errors);
        std::optional<Uve::U8CString> expected;
        if (message != nullptr)
            expected = message + std::string(errors);
        EXPECT_EQ(PreprocessorFailureMessage(errors), expected);
    }
}

TEST(PreprocessorFailureMessage, LongErrorTexts)
{
    for (const char* const piece : {": 1 : ", "character code=", "character code=1\n", " : character code=1",
                                    "1", " ", ":", "\n", "a : 1 :"}) {
        const std::string errors = Repeated(piece, (1 << 20) / std::string(piece).size());
        PreprocessorFailureMessage(errors + "character code=1");
        PreprocessorFailureMessage("x: character code=1" + errors);
    }
}

} // namespace
