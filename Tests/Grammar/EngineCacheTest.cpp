// Tables that are kept between runs: the same engine comes of them as of their files, and whatever is wrong
// with what was kept, the files are read.
#include "Grammar/UVGrammarTables.h"
#include "Tests/Support/EngineFixture.h"
#include "Tests/Support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;

class EngineCache : public testing::Test
{
protected:
    void SetUp() override { setenv("UVPARSER_CACHE", Folder().c_str(), 1); }
    void TearDown() override { unsetenv("UVPARSER_CACHE"); }

    std::string Folder() const { return m_Scratch.Path("uvparser"); }

    // Files that were changed a moment ago aren't kept.
    static void Settle() { std::this_thread::sleep_for(std::chrono::milliseconds(2100)); }

    std::vector<std::string> KeptFiles() const
    {
        std::error_code missing;
        std::vector<std::string> files;
        for (const auto& entry : fs::directory_iterator(Folder(), missing))
            files.push_back("uvparser/" + entry.path().filename().string());
        return files;
    }

    // A scanner that was kept has no compressed tables.
    static bool IsScannerKept(const std::string& grammar)
    {
        return LoadScanner(GrammarFolder(grammar, "Lexer")).tables->nxt.count == 0;
    }

    static std::vector<SParseOutcome> Outcomes(const std::string& grammar, const std::string& cases)
    {
        std::vector<SParseOutcome> outcomes;
        CEngine engine(grammar);
        for (const SGrammarCase& given : ReadGrammarCases(cases))
            outcomes.push_back(engine.Parse(given.input, given.settings));
        return outcomes;
    }

    CScratchFolder m_Scratch;
};

TEST_F(EngineCache, KeptTablesParseAsTheirFilesDo)
{
    std::vector<std::unique_ptr<CGrammarCopy>> copies;
    for (const char* const grammar : {"Tiny", "CopyToken", "Heredoc", "Recovery", "Switch"})
        copies.push_back(std::make_unique<CGrammarCopy>(grammar));
    // what may change again within the tick of a clock isn't kept
    EXPECT_FALSE(IsScannerKept(copies[0]->Name()));
    EXPECT_FALSE(IsScannerKept(copies[0]->Name()));
    EXPECT_TRUE(KeptFiles().empty());

    Settle();
    std::size_t kept = 0;
    for (const auto& copy : copies) {
        SCOPED_TRACE(copy->Name());
        const std::string original(copy->Name(), 0, copy->Name().rfind("Copy"));
        const std::vector<SParseOutcome> outcomes = Outcomes(copy->Name(), original);
        EXPECT_EQ(KeptFiles().size(), kept += 2);
        EXPECT_TRUE(IsScannerKept(copy->Name()));
        EXPECT_EQ(Outcomes(copy->Name(), original), outcomes);
        EXPECT_FALSE(outcomes.empty());
    }
}

TEST_F(EngineCache, ChangedFilesAreReadAnew)
{
    const struct
    {
        const char *grammar, *file;
        bool isMissing;
    } kCases[] = {
        {"Tiny", "Lexer/nxt.dat", false},
        {"Heredoc", "Lexer/actions.dat", false},
        {"Recovery", "Parser/defines.dat", false}, // tells which tokens a scanner may make
        {"Switch", "Lexer/acclist.dat", true},
    };
    std::vector<std::unique_ptr<CGrammarCopy>> copies;
    for (const auto& changed : kCases)
        copies.push_back(std::make_unique<CGrammarCopy>(changed.grammar));
    Settle();
    for (std::size_t index = 0; index < std::size(kCases); ++index) {
        SCOPED_TRACE(kCases[index].file);
        const CGrammarCopy& copy = *copies[index];
        EXPECT_FALSE(IsScannerKept(copy.Name()));
        ASSERT_TRUE(IsScannerKept(copy.Name()));
        if (kCases[index].isMissing) {
            fs::remove(copy.Path(kCases[index].file));
            EXPECT_ANY_THROW(IsScannerKept(copy.Name()));
        } else { // the same bytes, but another file
            copy.Write(kCases[index].file, copy.Read(kCases[index].file));
            EXPECT_FALSE(IsScannerKept(copy.Name()));
        }
    }
}

TEST_F(EngineCache, DamagedFilesDontCount)
{
    const CGrammarCopy copy("Tiny");
    Settle();
    const std::string directory = GrammarFolder(copy.Name(), "Lexer");
    LoadScanner(directory);
    const std::vector<std::string> files = KeptFiles();
    ASSERT_EQ(files.size(), 1u);
    const std::string sound = m_Scratch.Read(files[0]);
    const auto expectRead = [&](const std::string& damaged, const std::string& what) {
        m_Scratch.Write(files[0], damaged);
        EXPECT_FALSE(IsScannerKept(copy.Name())) << what;
        EXPECT_EQ(m_Scratch.Read(files[0]), sound) << what << ": not kept anew";
    };
    for (std::size_t at = 0; at < sound.size(); at += at < 40 ? 1 : 53) {
        std::string damaged = sound;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x80);
        expectRead(damaged, "byte " + std::to_string(at));
    }
    for (std::size_t size = 0; size < sound.size(); size += size < 100 ? 7 : 511)
        expectRead(sound.substr(0, size), "size " + std::to_string(size));
    expectRead(sound + std::string(8, '\0'), "longer");
    EXPECT_TRUE(IsScannerKept(copy.Name()));
}

TEST_F(EngineCache, WhatIsntTheUsersOwnFileIsLeftAlone)
{
    const CGrammarCopy copy("Tiny");
    Settle();
    LoadScanner(GrammarFolder(copy.Name(), "Lexer"));
    const fs::path file = m_Scratch.Path(KeptFiles().at(0));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(Folder()).permissions(), fs::perms::owner_all);

    const struct
    {
        const char* what;
        std::function<void()> spoil;
    } kCases[] = {
        {"others may write to it",
         [&] { fs::permissions(file, fs::perms::others_write, fs::perm_options::add); }},
        {"a link",
         [&] { fs::rename(file, m_Scratch.Path("real")), fs::create_symlink(m_Scratch.Path("real"), file); }},
        {"a pipe that nobody writes to", [&] { fs::remove(file), mkfifo(file.c_str(), 0600); }},
        {"a folder", [&] { fs::remove(file), fs::create_directories(file / "full"); }},
    };
    for (const auto& [what, spoil] : kCases) {
        SCOPED_TRACE(what);
        ASSERT_TRUE(IsScannerKept(copy.Name()));
        spoil();
        EXPECT_FALSE(IsScannerKept(copy.Name()));
    }
    // nothing can take the folder's place, and nothing of the attempt stays
    EXPECT_FALSE(IsScannerKept(copy.Name()));
    EXPECT_EQ(KeptFiles().size(), 1u);
}

TEST_F(EngineCache, HostsThatNameNoFolderKeepNothing)
{
    const CGrammarCopy copy("Tiny");
    Settle();
    for (const std::string& folder :
         {std::string(), std::string("uvparser"), m_Scratch.Write("file", "") + "/x",
          std::string("/proc/nowhere/uvparser")}) {
        SCOPED_TRACE(folder);
        setenv("UVPARSER_CACHE", folder.c_str(), 1);
        EXPECT_FALSE(IsScannerKept(copy.Name()));
        EXPECT_FALSE(IsScannerKept(copy.Name()));
    }
    EXPECT_FALSE(fs::exists("uvparser"));
}

} // namespace
