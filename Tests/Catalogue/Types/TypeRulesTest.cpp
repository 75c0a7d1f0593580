#include "Catalogue/Types/UVDBTypeRules.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <gtest/gtest.h>

#include <climits>

using Uve::U8CString;

namespace {

constexpr DB_VERSION_INFO kOracle{.db = UVDB_DB_ORA};
constexpr DB_VERSION_INFO kMssql{.db = UVDB_DB_MSSQL};
constexpr DB_VERSION_INFO kPostgres{.db = UVDB_DB_POSTGRESQL};
constexpr DB_VERSION_INFO kMySql{.db = UVDB_DB_MySQL};
constexpr DB_VERSION_INFO kDb2{.db = UVDB_DB_DB2};

U8CString Target(DB_VERSION_INFO source, DB_VERSION_INFO target, const SSourceType& type,
                 const STypeRule& rule)
{
    return ApplyTypeRule(source, target, type, rule).targetText;
}

TEST(TypeRules, LimitsOrExactNumbersMatch)
{
    struct SCase
    {
        unsigned long length;
        unsigned long precision;
        unsigned long ruleLength;
        unsigned long rulePrecision;
        bool exact;
        bool matches;
    };
    constexpr SCase kCases[] = {
        {10, 0, 10, 0, true, true},  {10, 0, 11, 0, true, false},  {10, 5, 10, 6, true, false},
        {10, 0, 10, 0, false, true}, {10, 0, 11, 0, false, true},  {10, 0, 9, 0, false, false},
        {10, 5, 10, 5, false, true}, {10, 6, 10, 5, false, false},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.length << ',' << c.precision << ' ' << c.ruleLength << ','
                                        << c.rulePrecision << ' ' << c.exact);
        const SSourceType type{.name = "RAW", .length = c.length, .precision = c.precision};
        const STypeRule rule{.name = "RAW",
                             .length = c.ruleLength,
                             .precision = c.rulePrecision,
                             .target = "X",
                             .exact = c.exact};
        EXPECT_EQ(Target(kOracle, kDb2, type, rule), c.matches ? "X" : "");
    }
    EXPECT_EQ(Target(kOracle, kDb2, {.name = "RAW"}, {.name = "raw", .target = "X"}), "")
        << "letter by letter";
    EXPECT_EQ(Target(kOracle, kDb2, {.name = ""}, {.name = "", .target = "X"}), "X");
    EXPECT_EQ(Target(kOracle, kDb2, {.name = "RAW"}, {.name = "", .target = "X"}), "");
}

TEST(TypeRules, NoMatchLeavesTheNamesAlone)
{
    const STypeRuleResult result =
        ApplyTypeRule(kOracle, kDb2, {.name = "A<B", .uvdbType = 25}, {.name = "RAW"});
    EXPECT_EQ(result.name, "A&lt;B");
    EXPECT_EQ(result.internalName, "UNKNOWN");
    EXPECT_EQ(result.sourceText, "");
    EXPECT_EQ(result.targetText, "");
}

// Scales are tested from SQL Server to PostgreSQL and from Neoview to Teradata, where the type has one.
TEST(TypeRules, ScaleRangeMayBeOpen)
{
    struct SCase
    {
        DB_VERSION_INFO source;
        DB_VERSION_INFO target;
        const char* name;
        long from;
        long to;
        bool matches;
    };
    const SCase kCases[] = {
        {kMssql, kPostgres, "DECIMAL", INT_MIN, INT_MIN, true},
        {kMssql, kPostgres, "DECIMAL", 0, 4, true},
        {kMssql, kPostgres, "DECIMAL", 0, 3, false},
        {kMssql, kPostgres, "DECIMAL", 5, INT_MIN, false},
        {kMssql, kPostgres, "DECIMAL", INT_MIN, 4, true},
        {kMssql, kPostgres, "VARCHAR", 5, 6, true},
        {kMssql, kOracle, "DECIMAL", 5, 6, true},
        {{.db = UVDB_DB_NEOVIEW}, {.db = UVDB_DB_TERADATA}, "DECIMAL", 5, 6, false},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.source.db << ' ' << c.name << ' ' << c.from << ".." << c.to);
        const STypeRule rule{
            .name = c.name, .precision = 10, .scaleFrom = c.from, .scaleTo = c.to, .target = "X"};
        EXPECT_EQ(Target(c.source, c.target, {.name = c.name, .precision = 9, .scale = 4}, rule),
                  c.matches ? "X" : "");
    }
}

TEST(TypeRules, NvarcharMaxIsServedByTheRuleOfNvarchar)
{
    const SSourceType type{.name = "NVARCHAR(MAX)"};
    EXPECT_EQ(Target(kMssql, kPostgres, type, {.name = "NVARCHAR", .length = 10, .target = "X"}), "X")
        << "no rule is too short for it";
    EXPECT_EQ(
        Target(kMssql, kPostgres, type, {.name = "NVARCHAR", .length = 10, .target = "X", .exact = true}),
        "");
    EXPECT_EQ(Target(kMssql, kPostgres, type,
                     {.name = "NVARCHAR", .length = 1073741823, .target = "X", .exact = true}),
              "X");
    EXPECT_EQ(Target(kMssql, kPostgres, type, {.name = "NVARCHAR(MAX)", .target = "X"}), "X");
    EXPECT_EQ(Target(kMssql, kOracle, type, {.name = "NVARCHAR", .length = 10, .target = "X"}), "");
    EXPECT_EQ(Target(kMssql, kPostgres, {.name = "NVARCHAR", .length = 11},
                     {.name = "NVARCHAR", .length = 10, .target = "X"}),
              "");
}

TEST(TypeRules, TargetTextSettlesItsParameters)
{
    struct SCase
    {
        const char* target;
        bool keep;
        const char* text;
    };
    constexpr SCase kCases[] = {
        {"", false, "VARCHAR2"},          // the default one, bare
        {"", true, "VARCHAR2(7)"},        // and with its numbers
        {"MyType", false, "MyType"},      // as the rule says it
        {"number(5)", true, "number(5)"}, // the same, with numbers of its own
        {"number(5)", false, "NUMBER"},   // which aren't wanted
        {"timestamp(3) with time zone", false, "TIMESTAMP WITH TIME ZONE"},
        {"interval day(2) to second(3)", false, "INTERVAL DAY TO SECOND()"}, // only the first pair
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.target << ' ' << c.keep);
        EXPECT_EQ(Target(kDb2, kOracle, {.name = "VARCHAR", .length = 7},
                         {.name = "VARCHAR", .length = 7, .target = c.target, .keepParameters = c.keep}),
                  c.text);
    }
}

TEST(TypeRules, SameKindAndVersionKeepsTheName)
{
    constexpr DB_VERSION_INFO kOldMySql{.db = UVDB_DB_MySQL, .major = 4};
    const SSourceType type{.name = "NVARCHAR", .length = 10};
    const STypeRule rule{.name = "NVARCHAR", .length = 10};
    STypeRule keeping = rule;
    keeping.keepParameters = true;
    EXPECT_EQ(Target(kMySql, kMySql, type, rule), "NVARCHAR");
    EXPECT_EQ(Target(kMySql, kMySql, type, keeping), "NVARCHAR(10)");

    STypeTrail trail;
    ApplyTypeRule(kMySql, kMySql, type, rule, &trail);
    EXPECT_EQ(trail.decisions.back(), UVDB_TYPE_SAME_NAME);
    ApplyTypeRule(kMySql, kOldMySql, type, rule, &trail);
    EXPECT_NE(trail.decisions.back(), UVDB_TYPE_SAME_NAME);
    // Oracle's own synonyms become what Oracle makes of them.
    EXPECT_EQ(Target(kOracle, kOracle, {.name = "VARCHAR", .length = 10}, {.name = "VARCHAR", .length = 10}),
              "VARCHAR2");
}

TEST(TypeRules, DateTimeOfMySqlKeepsDigitsOfTimestampsAlone)
{
    struct SCase
    {
        DB_VERSION_INFO source;
        const char* name;
        const char* text;
    };
    const SCase kCases[] = {
        {kOracle, "TIMESTAMP", "DATETIME(3)"}, {kDb2, "TIMESTAMP", "DATETIME(3)"},
        {kOracle, "DATE", "DATETIME"},         {kPostgres, "TIMESTAMP", "DATETIME"},
        {kMssql, "DATETIME2", "DATETIME(3)"},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.source.db << ' ' << c.name);
        EXPECT_EQ(Target(c.source, kMySql, {.name = c.name},
                         {.name = c.name, .target = "DATETIME(3)", .keepParameters = true}),
                  c.text);
    }
}

TEST(TypeRules, WrappersJoinTheTexts)
{
    EXPECT_EQ(GetDBMSToDBMSConverting(kOracle, kDb2, "VARCHAR2", "VARCHAR2", 10, 0, 0, 0, false, "VARCHAR2",
                                      10, 0, INT_MIN, INT_MIN, false, "A<B", true, true),
              "<DataType name=\"VARCHAR2\" type=\"VARCHAR2\" source=\"VARCHAR2(10)\" target=\"A&lt;B\">A&lt;B"
              "</DataType>");
    EXPECT_EQ(GetDBMSToDBMSConvertingEx(kOracle, kDb2, "varchar2[3]", "no such", 10, 0, 0, 0, false,
                                        "Varchar2[]", 10, 0, INT_MIN, INT_MIN, false, "X", true, false),
              "VARCHAR2[]__UV_DELIM_DOT__VARCHAR__UV_DELIM_DOT__VARCHAR2[]__UV_DELIM_DOT__X")
        << "a name that isn't in the table ends as VARCHAR";
    EXPECT_EQ(GetDBMSToDBMSConvertingEx(kOracle, kDb2, "RAW", "", 10, 0, 0, 0, false, "VARCHAR2", 10, 0,
                                        INT_MIN, INT_MIN, false, "X", true, false),
              "RAW__UV_DELIM_DOT__UNKNOWN__UV_DELIM_DOT____UV_DELIM_DOT__");
}

} // namespace
