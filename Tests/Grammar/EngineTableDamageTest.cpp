// Every byte of every table file changed, and every file cut at every length: a clear error at loading, or an
// engine that gets through its texts in one piece.
#include "Tests/Support/EngineFixture.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace {

constexpr const char* kTexts[] = {"", "ab ", "aab b ", "a[x]b ab", "x a\nb x"};

// Loads the damaged half of a grammar and lets it work with a sound one.
class CDamageTest
{
public:
    CDamageTest() : m_Sound("Tiny") {}

    void Try(const std::string& grammar, const std::string& file)
    {
        try {
            if (file.starts_with("Lexer/"))
                Work(CSQLGrammarLexer(grammar.c_str(), false), m_Sound.m_Parser);
            else
                Work(m_Sound.m_Lexer, CSQLGrammarParser(grammar.c_str(), false));
            ++m_nLoaded;
        } catch (const Uve::U8CString& message) {
            ++m_nRefused;
            EXPECT_NE(message.find("\nUVParser ERROR: "), std::string::npos) << message;
            EXPECT_NE(message.find(grammar), std::string::npos) << message;
        }
    }

    int m_nLoaded = 0;
    int m_nRefused = 0;

private:
    void Work(CSQLGrammarLexer&& lexer, CSQLGrammarParser& parser) { Work(lexer, parser); }
    void Work(CSQLGrammarLexer& lexer, CSQLGrammarParser&& parser) { Work(lexer, parser); }
    void Work(CSQLGrammarLexer& lexer, CSQLGrammarParser& parser)
    {
        ASSERT_EQ(parser.yycreate(&lexer), 1);
        ASSERT_EQ(lexer.yycreate(&parser), 1);
        for (const char* const text : kTexts) {
            try {
                parser.m_Extension.set_Query(text);
                parser.m_Extension.m_mapErrors.clear();
                lexer.set_Query(text, 0);
                parser.yyparse();
            } catch (const std::exception&) {
                // the engine saw where the tables lead
            }
            EXPECT_EQ(parser.Fragments().Count(), 0u);
        }
    }

    CEngine m_Sound;
};

class TableDamage : public testing::Test
{
protected:
    TableDamage()
    {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_Copy.Path("")))
            if (entry.is_regular_file())
                m_Files.push_back(std::filesystem::relative(entry.path(), m_Copy.Path("")));
    }

    void TryWith(const std::string& file, const std::string& damaged)
    {
        m_Copy.Write(file, damaged);
        m_Engine.Try(m_Copy.Name(), file);
    }

    // Two bits of each byte, not always the same ones, one after the other.
    void FlipEach(const std::string& file, const std::string& content)
    {
        for (std::size_t at = 0; at < content.size(); ++at)
            for (const std::size_t bit : {(at + at / 4) % 8, (at + at / 4 + 3) % 8}) {
                SCOPED_TRACE(testing::Message() << file << ", byte " << at << ", bit " << bit);
                std::string damaged = content;
                damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
                TryWith(file, damaged);
            }
        m_Copy.Write(file, content);
    }

    void CutEach(const std::string& file, const std::string& content)
    {
        for (std::size_t length = 0; length < content.size(); ++length) {
            SCOPED_TRACE(testing::Message() << file << ", " << length << " bytes");
            TryWith(file, content.substr(0, length));
        }
        m_Copy.Write(file, content);
    }

    CGrammarCopy m_Copy{"Tiny"};
    std::vector<std::string> m_Files;
    CDamageTest m_Engine;
};

TEST_F(TableDamage, OfOneBitIsRefusedOrHarmless)
{
    for (const std::string& file : m_Files)
        FlipEach(file, m_Copy.Read(file));
    EXPECT_GT(m_Engine.m_nLoaded, 100);
    EXPECT_GT(m_Engine.m_nRefused, 100);
}

// Entries that look like others are what slips through tests of ranges.
TEST_F(TableDamage, OfSeveralEntriesIsRefusedOrHarmless)
{
    constexpr int kRounds = 150; // of each table
    std::mt19937 random(3);
    for (const std::string& file : m_Files) {
        const std::string content = m_Copy.Read(file);
        if (file.ends_with("actions.dat") || file.ends_with("defines.dat") || file.ends_with("const.dat"))
            continue;
        const std::vector<int> entries = m_Copy.Table(file);
        for (int round = 0; round < kRounds; ++round) {
            SCOPED_TRACE(testing::Message() << file << ", round " << round);
            std::vector<int> damaged = entries;
            for (std::size_t changes = 1 + random() % 3; changes > 0; --changes)
                damaged[random() % damaged.size()] = random() % 2 == 0 ? entries[random() % entries.size()]
                                                                       : static_cast<int>(random() % 20) - 2;
            m_Copy.SetTable(file, damaged);
            m_Engine.Try(m_Copy.Name(), file);
        }
        m_Copy.Write(file, content);
    }
    EXPECT_GT(m_Engine.m_nLoaded, 100);
    EXPECT_GT(m_Engine.m_nRefused, 100);
}

TEST_F(TableDamage, OfTheLengthIsRefused)
{
    for (const std::string& file : m_Files) {
        const bool isText = file.ends_with("actions.dat") || file.ends_with("defines.dat");
        const int loaded = m_Engine.m_nLoaded;
        CutEach(file, m_Copy.Read(file));
        // a shorter list of words may be a list of words
        if (!isText && !file.ends_with("const.dat")) {
            EXPECT_EQ(m_Engine.m_nLoaded, loaded) << file;
        }
    }
}

TEST_F(TableDamage, OfThePackedFormIsRefusedOrHarmless)
{
    for (const std::string& file : m_Files) {
        const std::string plain = m_Copy.Read(file);
        const std::string part = file.substr(0, file.find('/'));
        std::ifstream stream(GrammarFolder("Tiny", part.c_str()) + file.substr(part.size() + 1),
                             std::ios::binary);
        const std::string packed{std::istreambuf_iterator<char>(stream), {}};
        if (!packed.starts_with("\x1f\x8b"))
            continue;
        FlipEach(file, packed);
        CutEach(file, packed);
        m_Copy.Write(file, plain);
    }
    EXPECT_GT(m_Engine.m_nRefused, 100);
}

} // namespace
