#include "Tests/Languages/LanguageCases.h"

#include "Tests/Languages/LanguageFixture.h"
#include "Tools/uvgrammar-test/CaseFile.h"

#include <gtest/gtest.h>

std::vector<std::string> CaseTexts(const char* language, const char* name)
{
    const std::string path =
        UV_SOURCE_DIR "/Languages/" + std::string(language) + "/Tests/" + name + ".tests";
    std::vector<std::string> texts;
    for (const uvtest::SCase& one : uvtest::ReadCaseFile(path, ReadFile(path)).cases)
        texts.push_back(one.text.substr(0, one.text.size() - (one.text.ends_with('\n') ? 1 : 0)));
    EXPECT_FALSE(texts.empty());
    return texts;
}
