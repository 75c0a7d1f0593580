// Every byte of every table file changed, and every file cut at every length: a clear error at loading, or an
// engine that gets through its texts in one piece.
#include "Stylesheets/Archive/Compressor.h"
#include "Tests/Support/EngineFixture.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <gtest/gtest.h>

#include <algorithm>
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
        for (const std::string text : kTexts) {
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

// A language as a whole: scanner and parser of one folder.
class CLanguageTest
{
public:
    CLanguageTest() : m_Sound(Outcomes("Tiny")) {}

    // Loads and parses. A parse that ends well has a tree.
    void Try(const std::string& grammar)
    {
        try {
            const std::vector<SParseOutcome> outcomes = Outcomes(grammar);
            const bool isSame = std::equal(outcomes.begin(), outcomes.end(), m_Sound.begin(), m_Sound.end());
            ++(isSame ? m_nSame : m_nOther);
            for (const SParseOutcome& outcome : outcomes) {
                EXPECT_TRUE(outcome.hasThrown || outcome.result != 0 || !outcome.tree.empty());
            }
        } catch (const Uve::U8CString& message) {
            ++m_nRefused;
            EXPECT_NE(message.find("\nUVParser ERROR: "), std::string::npos) << message;
            EXPECT_NE(message.find(grammar), std::string::npos) << message;
        }
    }

    int m_nRefused = 0;
    int m_nSame = 0;
    int m_nOther = 0;

private:
    static std::vector<SParseOutcome> Outcomes(const std::string& grammar)
    {
        CEngine engine(grammar);
        std::vector<SParseOutcome> outcomes;
        for (const char* const text : kTexts)
            outcomes.push_back(engine.Parse(text));
        return outcomes;
    }

    std::vector<SParseOutcome> m_Sound;
};

// The file of a grammar as it was built.
std::string PathOf(const std::string& grammar, const std::string& file)
{
    const std::string part = file.substr(0, file.find('/'));
    return GrammarFolder(grammar, part.c_str()) + file.substr(part.size() + 1);
}

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
        std::ifstream stream(PathOf("Tiny", file), std::ios::binary);
        const std::string packed{std::istreambuf_iterator<char>(stream), {}};
        if (!packed.starts_with("\x1f\x8b"))
            continue;
        FlipEach(file, packed);
        CutEach(file, packed);
        m_Copy.Write(file, plain);
    }
    EXPECT_GT(m_Engine.m_nRefused, 100);
}

class LanguageDamage : public TableDamage
{
protected:
    static bool IsText(const std::string& file)
    {
        return file.ends_with("actions.dat") || file.ends_with("defines.dat") || file.ends_with("const.dat");
    }

    void TryWith(const std::string& file, const std::string& damaged)
    {
        m_Copy.Write(file, damaged);
        m_Language.Try(m_Copy.Name());
    }

    // Every bit of every byte, and every length.
    void DamageText(const std::string& file)
    {
        const std::string content = m_Copy.Read(file);
        for (std::size_t at = 0; at < content.size(); ++at)
            for (int bit = 0; bit < 8; ++bit) {
                SCOPED_TRACE(testing::Message() << file << ", byte " << at << ", bit " << bit);
                std::string damaged = content;
                damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
                TryWith(file, damaged);
            }
        for (std::size_t length = 0; length < content.size(); ++length) {
            SCOPED_TRACE(testing::Message() << file << ", " << length << " bytes");
            TryWith(file, content.substr(0, length));
        }
        m_Copy.Write(file, content);
    }

    CLanguageTest m_Language;
};

// What still loads is a text that an author could have written.
TEST_F(LanguageDamage, OfTextsWithoutAManifestGivesNoEmptyTree)
{
    for (const std::string& file : m_Files)
        if (IsText(file))
            DamageText(file);
    EXPECT_GT(m_Language.m_nRefused, 20 * m_Language.m_nOther);
}

TEST_F(LanguageDamage, IsRefusedByTheManifest)
{
    m_Copy.RestoreManifest();
    for (const std::string& file : m_Files) {
        if (IsText(file)) {
            DamageText(file);
            continue;
        }
        const std::string content = m_Copy.Read(file);
        for (const std::size_t at : {std::size_t{4}, content.size() / 2, content.size() - 1}) {
            std::string damaged = content;
            damaged[at] = static_cast<char>(damaged[at] ^ 1);
            TryWith(file, damaged);
        }
        m_Copy.Write(file, content);
    }
    EXPECT_GT(m_Language.m_nRefused, 1000);
    EXPECT_EQ(m_Language.m_nSame, 0);
    EXPECT_EQ(m_Language.m_nOther, 0);
}

// In the name of the language and the checksum of its sources any letter is as good as another; all else is compared.
TEST_F(LanguageDamage, OfTheManifestIsRefused)
{
    m_Copy.RestoreManifest();
    DamageText("manifest.txt");
    EXPECT_EQ(m_Language.m_nOther, 0);
    EXPECT_LE(m_Language.m_nSame, static_cast<int>(8 * std::string_view("Tiny01234567").size()));
}

TEST_F(LanguageDamage, PartsOfTwoLanguagesAreRefused)
{
    namespace fs = std::filesystem;
    const CGrammarCopy other("Nesting");
    // one part of the other language, under each of the two manifests and without one
    for (const char* const part : {"Lexer", "Parser"}) {
        const CGrammarCopy mixed("Tiny");
        fs::remove_all(mixed.Path(part));
        fs::copy(other.Path(part), mixed.Path(part));
        m_Language.Try(mixed.Name());
        mixed.RestoreManifest();
        m_Language.Try(mixed.Name());
        other.RestoreManifest();
        mixed.Write("manifest.txt", other.Read("manifest.txt"));
        m_Language.Try(mixed.Name());
    }
    EXPECT_EQ(m_Language.m_nRefused, 6);
}

// The manifest speaks of what the files hold once they are unpacked.
TEST_F(LanguageDamage, APackedFileIsNoDamage)
{
    namespace fs = std::filesystem;
    m_Copy.RestoreManifest();
    m_Language.Try(m_Copy.Name());
    for (const std::string& file : m_Files) {
        const std::string path = m_Copy.Path(file);
        if (IsText(file)) {
            EXPECT_TRUE(Compressor::Archive(path)) << file;
            fs::rename(path, path + "_");
        } else
            fs::copy_file(PathOf("Tiny", file), path + "_"), fs::remove(path);
        m_Language.Try(m_Copy.Name());
    }
    EXPECT_EQ(m_Language.m_nSame, 1 + static_cast<int>(m_Files.size()));
    // and an archive of another text is damage
    m_Copy.Write("Lexer/defines.dat", "INITIAL 0\nC 1\n\n");
    m_Language.Try(m_Copy.Name());
    EXPECT_EQ(m_Language.m_nRefused, 1);
}

} // namespace
