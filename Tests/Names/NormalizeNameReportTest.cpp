#include "Names/NormalizeName.h"

#include <gtest/gtest.h>

namespace {

class NormalizeNameReport : public testing::Test
{
protected:
    NormalizeNameReport() { m_ReportMap.clear(); }
    ~NormalizeNameReport() override { m_ReportMap.clear(); }

    static std::string ReportOf(const char* source, long type, const char* target, unsigned long reasons)
    {
        m_ReportMap.clear();
        CObjects object{.name = source, .type = type};
        updateHashValue(object);
        m_ReportMap[object] = {target, reasons, static_cast<int>(type)};
        return CNormalizeName::GetNormalizeNameReport();
    }
};

struct SReportCase
{
    const char* source;
    long type;
    const char* target;
    unsigned long reasons;
    const char* entry;
};

constexpr SReportCase kEntries[] = {
    {"t", 0, "T", 0, R"(<Identifier type="Table" source="t" target="T" />)"},
    {"s.t.c", 17, "t.c", 4,
     R"(<Identifier type="Column" source="c" target="c"  table="s.t" reason="Not allowed characters "/>)"},
    {"c", 17, "t.c", 0, R"(<Identifier type="Column" source="c" target="c"  table="t"/>)"},
    {".c", 17, "c", 0, R"(<Identifier type="Column" source="c" target="c"  table=""/>)"},
    {"u", 4, "", 65,
     R"(<Identifier type="UserAcount" source="u" target=""  reason="Omit schema option Omit schema option "/>)"},
    {"x", -1, "x", 272,
     R"(<Identifier type="" source="x" target="x"  reason="Made unique Quoted by Orvanta"/>)"},
    {"x", 99, "x", 512, R"(<Identifier type="" source="x" target="x" />)"},
    {"a<b", 25, "a&b", 0, R"(<Identifier type="CheckConstraint" source="a<b" target="a&b" />)"},
};

TEST_F(NormalizeNameReport, EntryTellsTypeNamesTableAndReasons)
{
    EXPECT_EQ(CNormalizeName::GetNormalizeNameReport(), "<IdentifierNames></IdentifierNames>");
    for (const SReportCase& c : kEntries) {
        SCOPED_TRACE(c.entry);
        EXPECT_EQ(ReportOf(c.source, c.type, c.target, c.reasons),
                  std::string("<IdentifierNames>") + c.entry + "</IdentifierNames>");
    }
    EXPECT_EQ(CNormalizeName::ReasonsToString(2 | 4 | 8 | 32 | 128),
              "Not allowed character at the first position Not allowed characters Identifier too long "
              "Changed by User Temporary table ");
}

} // namespace
