#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Names/NormalizeName.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using Options = std::vector<std::pair<const char*, const char*>>;

template <class Info = CUVDBDatabaseInfo>
std::shared_ptr<Info> MakeInfo(std::uint64_t kind, const Options& options = {})
{
    auto info = UVDBMakeObject<Info>(DB_VERSION_INFO{.db = kind});
    for (const auto& [name, value] : options)
        CUVDBOptionWrapper::SetParam(info, name, Uve::U8CString(value));
    return info;
}

struct SCaseRuleCase
{
    std::uint64_t kind;
    Options options;
    long sourcePlain, sourceQuoted, targetPlain, targetQuoted;
};

const SCaseRuleCase kCaseRules[] = {
    {8, {}, 2, 3, 2, 3},
    {2, {}, 1, 4, 1, 4},
    {7, {}, 4, 4, 4, 4},
    {8, {{"IdentifierCase", "4"}}, 4, 3, 4, 3},
    {8, {{"QuotedIdentifierCase", "1"}}, 2, 1, 2, 1},
    {2, {{"CASE_SENSITIVE_COLLATION", "1"}, {"IdentifierCase", "4"}}, 3, 3, 3, 3},
    {2, {{"CASE_SENSITIVE_COLLATION", "yes"}}, 3, 3, 3, 3},
    {2, {{"QUOTE_IDENTIFIERS", "1"}}, 4, 4, 1, 4}, // asked of the source alone
    {2, {{"QUOTE_IDENTIFIERS", "0"}}, 1, 4, 1, 4},
};

TEST(NormalizeNameSetup, CaseRulesComeFromOptionsAndElseFromTheKind)
{
    for (const SCaseRuleCase& c : kCaseRules) {
        SCOPED_TRACE(testing::Message()
                     << "kind " << c.kind << (c.options.empty() ? "" : c.options[0].first));
        CNormalizeName normaliser;
        normaliser.Init(MakeInfo(c.kind, c.options), MakeInfo(c.kind, c.options));
        EXPECT_EQ(normaliser.GetSourceCase(), c.sourcePlain);
        EXPECT_EQ(normaliser.GetSourceQuotedCase(), c.sourceQuoted);
        EXPECT_EQ(normaliser.GetTargetCase(), c.targetPlain);
        EXPECT_EQ(normaliser.GetTargetQuotedCase(), c.targetQuoted);
        // The repository of the source takes the rule as it is, that of the target only the insensitive one.
        EXPECT_EQ(normaliser.GetSourceNames().GetQuotedCase(), c.sourceQuoted);
        EXPECT_EQ(normaliser.GetSourceNames().GetIdentifierCase(), c.sourcePlain);
        EXPECT_EQ(normaliser.GetTargetNames().GetQuotedCase(), c.targetQuoted);
        EXPECT_EQ(normaliser.GetTargetNames().GetIdentifierCase(), c.targetPlain == 4 ? 4 : 3);
    }
}

// Knows the case of quoted names itself, and fails at plain ones.
class CInfoWithCases : public CUVDBDatabaseInfo
{
public:
    using CUVDBDatabaseInfo::CUVDBDatabaseInfo;
    int get_IdentifierCase(long* out) override
    {
        *out = 77;
        return UVDB_ERROR;
    }
    int get_QuotedIdentifierCase(long* out) override
    {
        *out = UVDB_IC_LOWER;
        return UVDB_OK;
    }
};

TEST(NormalizeNameSetup, DatabaseInfoIsAskedBeforeItsOptions)
{
    CNormalizeName normaliser;
    normaliser.SetSource(MakeInfo<CInfoWithCases>(8, {{"QuotedIdentifierCase", "1"}}));
    EXPECT_EQ(normaliser.GetSourceQuotedCase(), UVDB_IC_LOWER);
    EXPECT_EQ(normaliser.GetSourceCase(), UVDBGetIdentifierCaseGuess({.db = 8}));
    normaliser.SetSource(MakeInfo<CInfoWithCases>(8, {{"IdentifierCase", "1"}}));
    EXPECT_EQ(normaliser.GetSourceCase(), UVDB_IC_UPPER);
}

TEST(NormalizeNameSetup, OpenEdgeIsSpelledExactly)
{
    for (const auto& [value, isOpenEdge] : {std::pair("Yes", true), {"yes", false}, {"1", false}}) {
        CNormalizeName normaliser;
        normaliser.SetSource(MakeInfo(71, {{"PROGRESS_OPEN_EDGE", value}}));
        EXPECT_EQ(normaliser.GetSourceNames().IsOpenEdge(), isOpenEdge) << value;
    }
}

TEST(NormalizeNameSetup, WorksWithoutDatabaseInfos)
{
    CNormalizeName normaliser;
    normaliser.Init(nullptr, nullptr);
    EXPECT_EQ(normaliser.GetSourceCase(), UVDBGetIdentifierCaseGuess({}));
    EXPECT_EQ(normaliser.GetTargetQuotedCase(), UVDBGetQuotedIdentifierCaseGuess({}));
}

class TranslateRules : public testing::Test
{
protected:
    void Set(const char* text, long targetQuotedCase = 3)
    {
        m_Normaliser.SetTranslateRules(false, text, false, text, true, false, text, true, text, text, 3,
                                       targetQuotedCase, 0, text);
    }

    CNormalizeName m_Normaliser;
};

TEST_F(TranslateRules, QuotedCaseOutsideTheRulesIsGuessed)
{
    for (const auto& [kind, guess] : {std::pair(2, 4L), {8, 3L}}) {
        m_Normaliser.Init(MakeInfo(8), MakeInfo(static_cast<std::uint64_t>(kind)));
        for (const auto& [given, taken] :
             {std::pair(0L, guess), {1L, 1L}, {3L, 3L}, {4L, 4L}, {5L, guess}, {-1L, guess}}) {
            SCOPED_TRACE(testing::Message() << kind << ' ' << given);
            Set(nullptr, given);
            EXPECT_EQ(m_Normaliser.GetTargetQuotedCase(), taken);
        }
    }
}

TEST_F(TranslateRules, NullTextsKeepWhatWasSet)
{
    m_Normaliser.Init(MakeInfo(2), MakeInfo(8));
    Set("x_");
    Set(nullptr);
    EXPECT_EQ(m_Normaliser.GetSchema(), "x_");
    EXPECT_EQ(m_Normaliser.RemoveNotAllowedChar("a b", 17), "ax_b");
    EXPECT_EQ(m_Normaliser.RemoveNotAllowedCharFPos("1a", 17), "x_1a");
    unsigned long flags = 0;
    EXPECT_EQ(m_Normaliser.ConvertIdentifier(42, 42, "@v", flags, ""), "x_v");
    Set("");
    EXPECT_EQ(m_Normaliser.GetSchema(), "");
    EXPECT_EQ(m_Normaliser.RemoveNotAllowedChar("a b", 17), "a b");
}

TEST_F(TranslateRules, TrimRulesAreKeptOnlyOnRequest)
{
    m_Normaliser.Init(MakeInfo(8), MakeInfo(6)); // 20 characters
    for (const bool keeps : {true, false}) {
        m_Normaliser.SetAdditionalTranslateRules(true, false, false, false);
        m_Normaliser.SetTranslateRules(false, "", false, "", true, true, "", keeps, "", "", 3, 3, 0, "");
        unsigned long flags = 0;
        EXPECT_EQ(m_Normaliser.ConvertIdentifier(0, 0, "customer_orders_of_the_year", flags, ""),
                  keeps ? "cstmrrdrsfthr" : "customer_orders_of_t");
    }
}

TEST(NormalizeNameParts, AreJoinedWithoutTheEmptyOnes)
{
    EXPECT_EQ(CNormalizeName::GetIdentidierName({"s", "", "t", "c"}), "s.t.c");
    EXPECT_EQ(CNormalizeName::GetIdentidierName({"", "..t", "c."}), "t.c");
    EXPECT_EQ(CNormalizeName::GetIdentidierName({"", "."}), "");
    EXPECT_EQ(CNormalizeName::GetIdentidierName({}), "");
}

} // namespace
