// Files of SQL dialects are told apart by their texts alone.
#include "Tests/Languages/LanguageFixture.h"
#include "Tools/uvparse/ContentChoice.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/ParserHost.h"
#include "UVEnvironment/UVEEncoding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <map>

namespace {

class CDialectChooser
{
public:
    uvparse::SContentChoice Choose(const std::string& path)
    {
        const uvparse::CContentChoice chooser(
            [this](const uvparse::SLanguage& language, uvparse::enMode mode) -> uvparse::CParserHost& {
                uvparse::SHostSettings settings;
                settings.mode = mode;
                return m_Hosts.try_emplace({language.parserName, mode}, language, settings).first->second;
            });
        return chooser.Choose(m_Candidates, ReadFile(path), path);
    }

    const std::string& NameOf(const uvparse::SContentChoice& choice) const
    {
        return m_Candidates[choice.index].parserName;
    }

private:
    std::vector<uvparse::SLanguage> m_Candidates =
        uvparse::CLanguageChoice({"MySQL", "PostgreSQL"}).Candidates("", "", "any.sql");
    std::map<std::pair<std::string, uvparse::enMode>, uvparse::CParserHost> m_Hosts;
};

CDialectChooser& Chooser()
{
    static CDialectChooser chooser;
    return chooser;
}

// The samples that another dialect reads as well as their own one.
std::vector<std::string> SamplesReadAlike(const char* language)
{
    std::vector<std::string> alike;
    for (const std::string& path : SamplePaths(language)) {
        const uvparse::SContentChoice choice = Chooser().Choose(path);
        if (choice.reason.find(" alike") != std::string::npos)
            alike.push_back(std::filesystem::path(path).filename());
        else
            EXPECT_EQ(Chooser().NameOf(choice), language) << path << ": " << choice.reason;
    }
    return alike;
}

TEST(DialectChoice, SamplesAreOfTheirLanguage)
{
    EXPECT_THAT(SamplesReadAlike("PostgreSQL"), testing::IsEmpty());
    EXPECT_THAT(SamplesReadAlike("MySQL"), testing::IsEmpty());
}

// Of a hundred files so many are taken for what they are. What the corpus holds in other encodings, people name.
void ExpectRightChoices(const char* folder, const std::string& language, std::size_t ofHundred)
{
    std::size_t files = 0, right = 0;
    for (const std::string& path : CorpusPaths(folder)) {
        if (!path.ends_with(".sql") || !UVDB::IsValidUTF8(ReadFile(path)))
            continue;
        ++files;
        const uvparse::SContentChoice choice = Chooser().Choose(path);
        if (Chooser().NameOf(choice) == language)
            ++right;
        else
            std::cout << path << ": " << choice.reason << '\n';
    }
    std::cout << folder << ": " << right << " of " << files << " files\n";
    EXPECT_GE(100 * right, ofHundred * files);
}

// Set UV_CORPUS to a folder with a folder of real scripts for each language.
TEST(DialectChoice, RealScriptsAreOfTheirLanguage)
{
    ExpectRightChoices("postgresql", "PostgreSQL", 99);
    ExpectRightChoices("mysql", "MySQL", 91);
}

} // namespace
