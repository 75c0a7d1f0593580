#include "Names/NormalizeName.h"
#include "Tests/Names/NameFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr SRules kKeep{.remove = false, .removeFirst = false, .trim = false};
constexpr SRules kCut{};

constexpr SDatabase kDb2{0};
constexpr SDatabase kOracle{1};
constexpr SDatabase kMsSql{2};
constexpr SDatabase kAse{4, 1};
constexpr SDatabase kMySql{5};
constexpr SDatabase kInformix{7};
constexpr SDatabase kPostgres{8};
constexpr SDatabase kCSharp{19};
constexpr SDatabase kNeoview{21};
constexpr SDatabase kNonStop{31};
constexpr SDatabase kTeradata{34};
constexpr SDatabase kJava{66};
constexpr SDatabase kCobol{90};

constexpr int kUnknown = -1;
constexpr int kTable = 0;
constexpr int kView = 2;
constexpr int kFunction = 7;
constexpr int kColumn = 17;
constexpr int kPrimaryKey = 21;
constexpr int kForeignKey = 23;
constexpr int kIndex = 33;
constexpr int kCursor = 39;
constexpr int kAlias = 40;
constexpr int kClass = 41;
constexpr int kVariable = 42;

struct SQualifiedCase
{
    SDatabase source;
    SDatabase target;
    const char* options;
    int type;
    const char* kindText;
    const char* server;
    SName name;
    const char* expected; // schema|object|sub, or "refused"
    SRules rules = kKeep;
};

void Check(const std::vector<SQualifiedCase>& cases)
{
    for (const SQualifiedCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.source.kind << " to " << c.target.kind << ", type " << c.type
                                        << ' ' << c.kindText << ' ' << c.name.Text() << ' ' << c.options);
        CNameHost host(c.source, c.target, c.rules, c.options);
        EXPECT_EQ(host.Normalized(c.type, c.name, c.kindText, c.server), c.expected);
        // Whatever was made of it, the second call gets it too.
        EXPECT_EQ(host.Normalized(c.type, c.name, c.kindText, c.server), c.expected);
    }
}

TEST(Qualified, NamesOfTheTargetsCatalogueStay)
{
    Check({
        {kMsSql, kOracle, "", kTable, "", "srv", {"dbo", "DUAL", ""}, "|dual|"},
        {kOracle, kOracle, "", kTable, "", "", {"SYS", "DUAL", ""}, "SYS|DUAL|"},
        {kMsSql, kPostgres, "", kTable, "", "", {"dbo", "dual", ""}, "dbo|dual|"},
        {kMsSql, kDb2, "", kTable, "", "", {"sysibm", "a b", ""}, "\"sysibm\"|a b|", kCut},
        {kMsSql, kDb2, "", kTable, "", "", {"Session", "a b", ""}, "Session|a b|", kCut},
        {kMsSql, kPostgres, "", kTable, "", "", {"Session", "a b", ""}, "Session|ab|", kCut},
    });
}

TEST(Qualified, PartsFindTheirWayByType)
{
    Check({
        {kMsSql, kPostgres, "", kTable, "", "", {"dbo", "t", ""}, "dbo|t|"},
        {kMsSql, kPostgres, "", kTable, "", "", {"", "t", ""}, "|t|"},
        {kMsSql, kPostgres, "", kColumn, "", "", {"dbo", "t", "c"}, "dbo|t|c"},
        {kMsSql, kPostgres, "", kColumn, "UdtAttribute", "", {"dbo", "t", "c"}, "dbo|t|c"},
        {kMsSql, kPostgres, "", kView, "", "", {"dbo", "v", "c"}, "dbo|v|c"},
        {kMsSql, kPostgres, "", kUnknown, "", "", {"dbo", "t", ""}, "dbo|t|"},
        {kMsSql, kPostgres, "", kUnknown, "", "", {"dbo", "t", "c"}, "dbo|t|c"},
        {kMySql, kPostgres, "", kTable, "", "", {"db", "t", ""}, "|t|"}, // a database there is no schema
        // dots and marks inside a part
        {kOracle, kPostgres, "", kColumn, "", "", {"a.b", "c\"d.e", "f."}, "a.b|c\"d.e|f."},
        {kOracle, kMsSql, "", kTable, "", "", {"s", "[a].b", ""}, "s|[a].b|"},
        // a part of a table needs the table
        {kMsSql, kPostgres, "", kColumn, "", "", {"dbo", "", "c"}, "refused"},
        {kMsSql, kPostgres, "", kIndex, "", "", {"dbo", "", "i"}, "refused"},
        {kMsSql, kPostgres, "", kTable, "", "", {"dbo", "", ""}, "refused"},
        {kMsSql, kDb2, "", kColumn, "", "", {"dbo", "", "c"}, "dbo||c"},
        {kAse, kOracle, "", kColumn, "", "", {"dbo", "", "c"}, "dbo||c"},
        {kNeoview, kTeradata, "", kColumn, "", "", {"s", "", "c"}, "s||c"},
        {kNeoview, kPostgres, "", kColumn, "", "", {"s", "", "c"}, "refused"},
        // aliases and packages
        {kMsSql, kPostgres, "", kAlias, "", "", {"12", "", ""}, "||"},
        {kMsSql, kPostgres, "", kAlias, "", "", {"x12", "", ""}, "|x12|"},
        {kMsSql, kPostgres, "", kAlias, "", "", {"s", "a", ""}, "|a|"},
        {kMsSql, kPostgres, "", kAlias, "", "", {"", "dbo.a", ""}, "|\"dbo.a\"|"},
        {kMsSql, kCSharp, "", kClass, "", "", {"Pack", "", ""}, "|Pack|"}, // the source has no such space
        {kMsSql, kCSharp, "", kFunction, "", "", {"Pack", "f", ""}, "Pack|f|"},
        {kMsSql, kJava, "", kClass, "", "", {"s", "Pack", "C"}, "s|pack|C"},
    });
}

TEST(Qualified, TypesHaveTheirOwnSteps)
{
    Check({
        {kMsSql, kMySql, "", kTable, "", "", {"", "CON", ""}, "|CON_|"},
        {kMsSql, kMySql, "", kColumn, "", "", {"", "con", "con"}, "|con_|con"},
        {kMsSql, kPostgres, "", kColumn, "", "", {"", "con", "ctid"}, "|con|ctid1"},
        {kOracle, kMsSql, "", kPrimaryKey, "", "", {"s", "T", "t"}, "|T|t_cns"},
        {kOracle, kMsSql, "", kForeignKey, "", "", {"s", "T", "t"}, "|T|t_cns"},
        {kOracle, kDb2, "", kPrimaryKey, "", "", {"s", "T", "t"}, "s|T|t"},
        {kOracle, kDb2, "", kForeignKey, "", "", {"s", "T", "t"}, "|T|t"},
        {kOracle, kPostgres, "", kIndex, "", "", {"s", "T", "t"}, "|T|t_idx"},
        {kOracle, kPostgres, "", kIndex, "drop", "", {"s", "T", "i"}, "s|T|i"},
        {kOracle, kAse, "", kIndex, "drop", "", {"s", "T", "i"}, "s||i"},
        {kOracle, kMsSql, "", kIndex, "drop", "", {"s", "T", "i"}, "s|T|i"},
        {kOracle, kTeradata, "", kIndex, "", "", {"s", "T", "i"}, "s|T|i"},
        {kMsSql, kPostgres, "", kCursor, "", "", {"s", "p", "@cur"}, "||v_cur"},
        {kMsSql, kPostgres, "", kCursor, "", "", {"s", "p", "\"cur\""}, "||cur"},
        {kPostgres, kOracle, "", kCursor, "", "", {"s", "p", "\"cur\""}, "||\"cur\""},
        {kMsSql, kPostgres, "", kVariable, "", "", {"s", "p", "@x"}, "||v_x"},
        {kMsSql, kPostgres, "", kVariable, "", "", {"s", "", "@x"}, "||v_x"},
        {kOracle, kPostgres, "", kVariable, "", "", {"s", "p", "order"}, "||\"ORDER\""},
        {kOracle, kMsSql, "EMPTY_SCHEMA=1", kFunction, "", "", {"s", "f", ""}, "dbo|f|"},
        {kOracle, kMsSql, "", kFunction, "", "", {"s", "f", ""}, "s|f|"},
        {kOracle, kMsSql, "EMPTY_SCHEMA=1", kFunction, "", "", {"s", "", ""}, "||"},
        {kCobol, kOracle, "", kColumn, "", "", {"", "T", "CUST-NO"}, "|T|\"CUST-NO\""},
        {kCobol, kOracle, "", kColumn, "", "", {"", "T", "\"CUST-NO\""}, "|T|\"CUST-NO\""},
        {kPostgres, kOracle, "", kColumn, "", "", {"", "T", "CUST-NO"}, "|T|CUST-NO"},
        {kOracle, {37}, "SAPHANA_QUOTED_IDENTIFIERS=1", kColumn, "", "", {"S", "Tab", "C"}, "S|\"Tab\"|C"},
        {kOracle, {37}, "SAPHANA_QUOTED_IDENTIFIERS=1", kVariable, "", "", {"S", "P", "var"}, "||var"},
    });
}

TEST(Qualified, SchemaFollowsTheOptions)
{
    constexpr const char* kOutSchema = "CONVERT_DATABASE_TO_SCHEMA=1 OUTSCHEMA=out";
    constexpr const char* kLinked =
        "CONVERT_DBLINK_TO_SCHEMA=1 DBLINK_TARGET_NAME=a=x;srv=linked DATABASE_NAME=main";
    constexpr const char* kLinkHome =
        "CONVERT_DBLINK_TO_SCHEMA=1 DBLINK_TARGET_NAME=srv=linked DATABASE_NAME=srv";
    Check({
        {kOracle, kPostgres, "EMPTY_SCHEMA=1", kTable, "", "", {"HR", "t", ""}, "|t|"},
        {kMsSql, kOracle, "EMPTY_SCHEMA=2", kTable, "", "", {"DBO", "t", ""}, "|t|"},
        {kMsSql, kOracle, "EMPTY_SCHEMA=2", kTable, "", "", {"sales", "t", ""}, "sales|t|"},
        {kMsSql, kOracle, "", kTable, "", "", {"guest", "t", ""}, "|t|"}, // not a schema that owns something
        {kMsSql, kOracle, "SCHEMA_TO_OBJ_NAME=1", kTable, "", "", {"dbo", "\"t\"", ""}, "|dbo_t|"},
        {kAse, kOracle, "SCHEMA_TO_OBJ_NAME=1", kColumn, "", "", {"dbo", "", "c"}, "dbo||c"},
        {kMsSql, kOracle, "SCHEMA_TO_OBJ_NAME=1", kAlias, "", "", {"dbo", "t", ""}, "|t|"},
        {kMsSql, kMySql, "SCHEMA_TO_OBJ_NAME=1", kTable, "", "", {"guest", "t", ""}, "|guest_t|"},
        {kMsSql, kPostgres, "SCHEMA_TO_OBJ_NAME=1", kTable, "", "", {"guest", "t", ""}, "|t|"},
        {kMsSql, kPostgres, "SCHEMA_SUFFIX=_x", kTable, "", "", {"dbo", "t", ""}, "dbo_x|t|"},
        {kMsSql, kPostgres, "SCHEMA_SUFFIX=_x", kTable, "", "", {"", "t", ""}, "|t|"},
        {kAse, kOracle, "TEMP_TAB_SCHEMA=tmp", kTable, "temp", "", {"dbo", "t", ""}, "tmp|t|"},
        {kAse, kOracle, "TEMP_TAB_SCHEMA=tmp", kTable, "", "", {"dbo", "t", ""}, "dbo|t|"},
        {kMsSql, kPostgres, "", kColumn, "temp", "", {"dbo", "t", "c"}, "dbo|#t|c"},
        {kOracle, kNonStop, "EMPTY_SCHEMA=3", kColumn, "", "", {"s", "t", "c"}, "||c"},
        {kInformix, kMsSql, "", kTable, "1", "", {"", "t", ""}, "dbo|t|"},
        // what the server becomes
        {kInformix, kPostgres, "CONVERT_DATABASE_TO_SCHEMA=1", kTable, "", "srv", {"joe", "t", ""}, "|t|"},
        {kMsSql, kAse, "CONVERT_DATABASE_TO_SCHEMA=1", kTable, "", "srv", {"joe", "t", ""}, "srv|t|"},
        {kMsSql, kAse, kOutSchema, kTable, "", "srv", {"joe", "t", ""}, "out|t|"},
        {kMsSql, kAse, "CONVERT_DATABASE_TO_SCHEMA=1", kTable, "", "", {"joe", "t", ""}, "joe|t|"},
        {kMsSql, kPostgres, "CONVERT_DATABASE_TO_SCHEMA=1", kTable, "", "srv", {"joe", "t", ""}, "joe|t|"},
        {kOracle, kPostgres, kLinked, kTable, "", "srv", {"joe", "t", ""}, "linked|t|"},
        {kOracle, kPostgres, kLinkHome, kTable, "", "srv", {"joe", "t", ""}, "joe|t|"},
    });
}

TEST(Qualified, ServerIsGivenBackEmpty)
{
    CNameHost host(kOracle, kPostgres);
    Uve::U8CString server = "srv";
    Uve::U8CString schema = "s";
    Uve::U8CString object = "t";
    Uve::U8CString sub;
    EXPECT_EQ(host.normaliser.NormalizeName(0, server, schema, object, sub, "", "", "", false, 0), 0);
    EXPECT_EQ(server, "");
    EXPECT_EQ(host.normaliser.GetSourceSchema(), "s");

    // A refusal changes nothing, however far it got.
    CNameHost mySql(kMySql, kPostgres);
    server = "srv";
    schema = "s";
    object = "";
    sub = "c";
    EXPECT_EQ(mySql.normaliser.NormalizeName(kColumn, server, schema, object, sub, "", "", "", false, 0), -1);
    EXPECT_EQ(server + schema + object + sub, "srvsc");
}

TEST(Qualified, BelowARenamedTableEverythingFollowsIt)
{
    for (const bool tablesFirst : {true, false}) {
        CNameHost host(kPostgres, kOracle);
        if (tablesFirst) {
            EXPECT_EQ(host.Normalized(kTable, {"s", "items", ""}), "s|items|");
            EXPECT_EQ(host.Normalized(kTable, {"s", "ITEMS", ""}), "s|ITEMS2|");
        }
        EXPECT_EQ(host.Normalized(kColumn, {"s", "items", "id"}), "s|items|id");
        EXPECT_EQ(host.Normalized(kColumn, {"s", "ITEMS", "id"}), "s|ITEMS2|id");
        EXPECT_EQ(host.Normalized(kColumn, {"s", "ITEMS", "ID"}), "s|ITEMS2|ID2");
        EXPECT_EQ(host.Normalized(kIndex, {"s", "ITEMS", "by_id"}), "s|ITEMS2|by_id");
        EXPECT_EQ(host.Normalized(kTable, {"s", "ITEMS", ""}), "s|ITEMS2|");
    }
}

// A schema that several become takes no name from another.
TEST(Qualified, SchemasThatMeetShareTheirTables)
{
    for (const bool dbaFirst : {true, false}) {
        CNameHost host({4, 0}, kMsSql);
        const char* const first = dbaFirst ? "DBA" : "dbo";
        const char* const second = dbaFirst ? "dbo" : "DBA";
        EXPECT_EQ(host.Normalized(kTable, {first, "t", ""}), "dbo|t|");
        EXPECT_EQ(host.Normalized(kTable, {second, "t", ""}), "dbo|t2|");
        EXPECT_EQ(host.Normalized(kTable, {second, "u", ""}), "dbo|u|");
    }
}

struct SReportCase
{
    SDatabase source;
    SDatabase target;
    const char* options;
    int type;
    SName name;
    const char* key;
    const char* entry;
    unsigned long reasons;
};

TEST(Qualified, TheReportTellsWhatAndWhy)
{
    constexpr const char* kAndEmpty = "CONVERT_DATABASE_TO_SCHEMA=1 EMPTY_SCHEMA=1";
    constexpr const char* kDelimited = "a__ORVANTA_IDENTIFIER_DELIM__b";
    const SReportCase cases[] = {
        {kPostgres, kOracle, "", kTable, {"s", "t", ""}, "s.t", "s.t", 0},
        {kPostgres, kOracle, "", kColumn, {"s", "1t", "a b"}, "s.1t.a b", "s.t.ab", 2 | 4},
        {kPostgres, kOracle, "EMPTY_SCHEMA=1", kTable, {"s", "t", ""}, "s.t", "t", 1},
        {kInformix, kPostgres, "CONVERT_DATABASE_TO_SCHEMA=1", kTable, {"s", "t", ""}, "s.t", "t", 64},
        {kInformix, kPostgres, kAndEmpty, kTable, {"s", "t", ""}, "s.t", "t", 1},
        {kOracle, kPostgres, "", kIndex, {"s", "t", "T"}, "T_idx", "t.T_idx", 0},
        {kOracle, kMySql, "", kTable, {"s", "con", ""}, "s.con_", "s.con_", 0},
        {kMsSql,
         kPostgres,
         "",
         kTable,
         {kDelimited, "t", ""},
         "a.b.t",
         "a__ORVANTA_IDENTIFIER_DELIM__b.t",
         0},
    };
    for (const SReportCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.source.kind << " to " << c.target.kind << ' ' << c.key);
        m_ReportMap.clear();
        CNameHost host(c.source, c.target, kCut, c.options);
        for (int call = 0; call < 2; ++call) {
            host.Normalized(c.type, c.name);
            ASSERT_EQ(m_ReportMap.size(), 1u);
            EXPECT_EQ(m_ReportMap.begin()->first.name, c.key);
            EXPECT_EQ(m_ReportMap.begin()->second.name, c.entry);
            EXPECT_EQ(m_ReportMap.begin()->second.reasons, c.reasons) << "call " << call;
        }
    }
}

// Nothing that was given is missing.
TEST(Qualified, TheSchemaOfALinkIsLeftOutUntold)
{
    m_ReportMap.clear();
    CNameHost host(kMsSql, kPostgres, kKeep,
                   "CONVERT_DBLINK_TO_SCHEMA=1 DBLINK_TARGET_NAME=srv=linked CONVERT_DATABASE_TO_SCHEMA=1 "
                   "CONVERT_PACKAGE_TO_SCHEMA=1 EMPTY_SCHEMA=1");
    EXPECT_EQ(host.Normalized(kTable, {"", "t", ""}, "", "srv"), "|t|");
    ASSERT_EQ(m_ReportMap.size(), 1u);
    EXPECT_EQ(m_ReportMap.begin()->second.reasons, 0u);
}

struct SPrepareCase
{
    SDatabase source;
    SDatabase target;
    const char* pattern;
    int type;
    unsigned long mode;
    const char* name;
    const char* expected;
};

TEST(Prepare, MarksGoAroundWhatIsntPlain)
{
    const SPrepareCase cases[] = {
        {kOracle, kPostgres, "", kTable, 0, "orders", "orders"},
        {kOracle, kPostgres, "", kTable, 0, "", ""},
        {kOracle, kPostgres, "", kTable, 0, "order items", "\"order items\""},
        {kOracle, kPostgres, "", kTable, 0, "1st", "\"1st\""},
        {kOracle, kPostgres, "", kTable, 0, "a\"b", "\"a\"\"b\""},
        {kOracle, kPostgres, "", kTable, 0, "[orders]", "orders"},
        {kOracle, kPostgres, "", kTable, 0, "größe", "\"größe\""},
        {kOracle, kTeradata, "", kTable, 0, "名前", "名前"},
        {kOracle, kTeradata, "", kTable, 0, "a１", "a１"},
        {kOracle, kTeradata, "", kTable, 0, "１１", "\"１１\""}, // beyond ASCII, and no letter
        {kOracle, kMySql, "", kColumn, 0, "a`b c", "`a``b c`"},
        {kOracle, kMySql, "", kTable, 0, "a`b.c d", "`abc d`"},
        {kPostgres, kPostgres, "", kTable, 4, "order items", "order items"},
        {kOracle, kPostgres, "", kTable, 2, "orders", "\"orders\""},
        {kOracle, kJava, "", kTable, 2, "orders", "\"orders\""},
        {kOracle, {68}, "", kTable, 2, "orders", "orders"}, // no marks there
        // case
        {kPostgres, kOracle, "", kTable, 1, "Orders", "\"Orders\""},
        {kPostgres, kOracle, "", kTable, 1, "orders", "orders"},
        {kOracle, kPostgres, "", kTable, 1, "ORDERS", "\"ORDERS\""},
        {kOracle, kPostgres, "", kTable, 1, "orders", "orders"},
        {kOracle, kPostgres, "", kTable, 0, "ORDERS", "ORDERS"},
        // reserved words
        {kOracle, kPostgres, "", kTable, 0, "select", "\"select\""},
        {kOracle, kPostgres, "%RWORD%_", kTable, 0, "select", "select_"},
        {kOracle, kPostgres, "x_%RWORD%", kTable, 0, "interval", "x_interval"},
        {kOracle, kPostgres, "none", kTable, 0, "select", "\"select\""},
        {kPostgres, kPostgres, "%RWORD%_", kTable, 0, "select", "\"select\""}, // it was quoted all along
        {kPostgres, kPostgres, "", kTable, 16, "select", "select"},
        {kOracle, kPostgres, "", kTable, 16, "select", "\"select\""},
        {kPostgres, kOracle, "", kColumn, 0, "a$#_1", "a$#_1"},
        {kPostgres, kOracle, "", kColumn, 0, "a-1", "\"a-1\""},
        {kPostgres, kOracle, "", kColumn, 8, "Rowid", "ROWID"},
        {kPostgres, kOracle, "", kColumn, 0, "Rowid", "\"Rowid\""},
        // parameters
        {kMsSql, kPostgres, "", kVariable, 16, "total", "p_total"},
        {kMsSql, kPostgres, "", kVariable, 0, "total", "total"},
        {kMsSql, kPostgres, "", kVariable, 16, "total\".x", "p_total\".x"},
        // SQL Server reads the marks of the source
        {kPostgres, kMsSql, "", kTable, 0, "order items", "\"order items\""},
        {kPostgres, kMsSql, "", kTable, 0, "a \"b", "\"a \"\"b\""},
        {kMySql, kMsSql, "", kTable, 0, "order ]items", "[order ]]items]"},
        {kPostgres, kMsSql, "", kColumn, 0, "trailing  ", "trailing"},
    };
    for (const SPrepareCase& c : cases) {
        SCOPED_TRACE(testing::Message()
                     << c.source.kind << " to " << c.target.kind << ' ' << c.name << " mode " << c.mode);
        CNameHost host(c.source, c.target, {.reservedWordPattern = c.pattern});
        host.normaliser.SetParamTargetName({{"total", "p_total"}});
        EXPECT_EQ(host.normaliser.PrepareSingleObjectName(c.name, static_cast<unsigned long>(c.type),
                                                          host.target, c.mode),
                  c.expected);
    }
}

TEST(Prepare, QuotedColumnsOfSqlServerAreReported)
{
    m_ReportMap.clear();
    CNameHost host(kPostgres, kMsSql);
    const auto prepare = [&](const char* name, unsigned long type) {
        host.normaliser.PrepareSingleObjectName(name, type, host.target, 0);
    };
    prepare("plain", kColumn);
    prepare("not plain", kTable);
    // Looking for a free name writes names too, but nobody reads those.
    EXPECT_EQ(host.Normalized(kColumn, {"s", "t", "order"}), "s|t|order");
    EXPECT_EQ(m_ReportMap.size(), 1u);
    prepare("not plain", kColumn);
    ASSERT_EQ(m_ReportMap.size(), 2u);
    CObjects key{"not plain", kColumn};
    updateHashValue(key);
    EXPECT_EQ(m_ReportMap.at(key).name, "\"not plain\"");
    EXPECT_EQ(m_ReportMap.at(key).reasons, 256u);
}

TEST(Prepare, DottedNamesAreWrittenPartByPart)
{
    CNameHost host(kOracle, kPostgres);
    EXPECT_EQ(host.normaliser.PrepareObjectName("hr.order items", host.target, 0), "hr.\"order items\"");
    EXPECT_EQ(host.normaliser.PrepareObjectName("hr..t", host.target, 2), "\"hr\"..\"t\"");
    EXPECT_EQ(host.normaliser.PrepareObjectName(nullptr, host.target, 0), "");
}

TEST(Xml, IdentifiersAreJoinedByDots)
{
    EXPECT_EQ(CNormalizeName::BuildXMLIdentifier("c", kColumn, "t"),
              "<sql_identifier identifier_type=\"Column\" table=\"t\">"
              "<T__REGULAR_SQL_IDENTIFIER type=\"TOKEN\">c</T__REGULAR_SQL_IDENTIFIER></sql_identifier>");
    const Uve::U8CString schema = CNormalizeName::BuildXMLIdentifier("s", 36, "");
    EXPECT_EQ(schema,
              "<sql_identifier identifier_type=\"schema\">"
              "<T__REGULAR_SQL_IDENTIFIER type=\"TOKEN\">s</T__REGULAR_SQL_IDENTIFIER></sql_identifier>");
    const Uve::U8CString column = CNormalizeName::BuildXMLIdentifier("c", kColumn, "");
    EXPECT_EQ(CNormalizeName::BuildXMLQualifiedIdentifier("s", 36, "", kTable, "c", kColumn),
              "<qualified_sql_identifier>" + schema + "<T__DOT type=\"TOKEN\">.</T__DOT>" + column +
                  "</qualified_sql_identifier>");
}

} // namespace
