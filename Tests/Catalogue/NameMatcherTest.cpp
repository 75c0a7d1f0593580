#include "Catalogue/UVDBCatalogueRows.h"
#include "Catalogue/UVDBNameMatcher.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using UVDB::CNameMatcher;

// Texts at the edges of what plain comparison may answer: control characters, compatibility forms, composed
// and decomposed letters, letters that fold into ASCII.
std::vector<std::string> Texts()
{
    std::vector<std::string> texts{"",   "a",       "A",      "aa",      "a ",        " a",     "a\t",
                                   "a-", "fi",      "\uFB01", "FI",      "k",         "\u212A", "K",
                                   "é",  "e\u0301", "É",      "E\u0301", "ss",        "\u00DF", "SS",
                                   "i",  "I",       "\u0130", "\u0131",  "a\x7f",     "Z[",     "z{",
                                   "@",  "`",       "\uFF21", "a\u00AD", "\U0001F600"};
    for (const SDbInfoLiteral& row : kCatalogueRows.first(24))
        texts.insert(texts.end(), {row.shortName, row.fullName, row.wzdName, row.visibleName});
    return texts;
}

TEST(NameMatcher, AgreesWithCollation)
{
    for (const std::string& text : Texts()) {
        const CNameMatcher exact(text.c_str(), CNameMatcher::exactCase);
        const CNameMatcher noCase(text.c_str(), CNameMatcher::ignoreCase);
        for (const std::string& name : Texts()) {
            const Uve::U8CString subject(name);
            EXPECT_EQ(exact.Matches(subject), subject.Collate(text.c_str()) == 0) << name << " / " << text;
            EXPECT_EQ(noCase.Matches(subject), subject.CollateNoCase(text.c_str()) == 0)
                << name << " / " << text;
        }
    }
}

TEST(NameMatcher, NullMatchesTheEmptyNameAlone)
{
    const CNameMatcher matcher(nullptr, CNameMatcher::ignoreCase);
    EXPECT_TRUE(matcher.Matches(""));
    EXPECT_FALSE(matcher.Matches("DB2"));
}

} // namespace
