#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Tests/Support/MemoryLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;

constexpr std::uint64_t kNone = UVDB_NO_VERSION_WORD;
constexpr std::uint64_t kKindWithoutTables = UVDB_DB_COMMON;

DB_VERSION_INFO Of(std::uint64_t db, std::uint64_t subType = kNone)
{
    return MakeDbVersionInfo(db, subType, kNone, kNone);
}

struct SKeyCase
{
    std::uint64_t db;
    long mode;
    const char* name;
    const char* key;
    const char* params;
};

constexpr SKeyCase kKeys[] = {
    {UVDB_DB_ORA, -1, "number", "NUMBER", ""},
    {UVDB_DB_ORA, -1, "varchar2(10 char)", "VARCHAR2()", "10 CHAR;"}, // parameters are upper-cased too
    {UVDB_DB_ORA, -1, "TIMESTAMP(3) WITH TIME ZONE", "TIMESTAMP() WITH TIME ZONE", "3;"},
    {UVDB_DB_ORA, -1, "INTERVAL DAY(2) TO SECOND(6)", "INTERVAL DAY() TO SECOND()", "2;6;"},
    {UVDB_DB_ORA, -1, "INTERVAL DAY() TO SECOND(6)", "INTERVAL DAY() TO SECOND()",
     ";6;"}, // an empty pair counts
    {UVDB_DB_ORA, -1, "NUMBER(10,2)", "NUMBER()", "10,2;"},
    {UVDB_DB_ORA, -1, "A((B))", "A())", "(B;"}, // pairs don't nest
    {UVDB_DB_ORA, -1, "NUMBER(10", "NUMBER(10", ""},
    {UVDB_DB_ORA, -1, "DAY(2) TO SECOND(6", "DAY() TO SECOND(6", "2;"},
    {UVDB_DB_ORA, -1, ")(", ")(", ""},
    {UVDB_DB_MSSQL, -1, "VARCHAR(10)", "VARCHAR", "10;"},
    {UVDB_DB_MSSQL, -1, "nvarchar(max)", "NVARCHAR", "MAX;"},
    {UVDB_DB_MSSQL, -1, "NVARCHAR()", "NVARCHAR", ";"},
    {UVDB_DB_MSSQL, -1, "DECIMAL(10,2) IDENTITY", "DECIMAL() IDENTITY", "10,2;"},
    {UVDB_DB_MSSQL, -1, "VARCHAR(10) ", "VARCHAR() ", "10;"}, // no longer at the end
    {UVDB_DB_JAVA, 3, "byte[]", "byte[]", ""},
    {UVDB_DB_JAVA, UVDB_TYPE_NAME_AS_WRITTEN, "String(a)", "String()", "a;"},
    {UVDB_DB_JAVA, 2, "String", "STRING", ""},
    {UVDB_DB_ORA, -1, "stra\u00DFe(\u00E9)", "STRASSE()", "\u00C9;"},
    {UVDB_DB_ORA, -1, "", "", ""},
    {UVDB_DB_ORA, -1, nullptr, "", ""},
};

TEST(TypeNames, KeyKeepsPairsAndTakesOutWhatStandsInThem)
{
    for (const SKeyCase& c : kKeys) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << (c.name ? c.name : "null"));
        Uve::U8CString params("of an earlier call");
        EXPECT_EQ(NormalizeTypeName(c.name, params, Of(c.db), c.mode), c.key);
        EXPECT_EQ(params, c.params);
        if (c.mode == -1) {
            EXPECT_EQ(NormalizeTypeName(c.name, Of(c.db)), c.key);
        }
    }
    Uve::U8CString text("FLOAT(24)");
    EXPECT_EQ(NormalizeTypeName(text.c_str(), text, Of(UVDB_DB_ORA), -1), "FLOAT()");
    EXPECT_EQ(text, "24;");
}

TEST(TypeTableChoice, SubtypeComesBeforeKindAndVersionsDontCount)
{
    const auto rowsOf = [](DB_VERSION_INFO version) { return GetDBMSDataTypeParamsList(version).data(); };
    EXPECT_EQ(rowsOf(Of(UVDB_DB_DB2, 1)), rowsOf(Of(UVDB_DB_DB2)));
    EXPECT_NE(rowsOf(Of(UVDB_DB_DB2, 2)), rowsOf(Of(UVDB_DB_DB2)));
    EXPECT_EQ(rowsOf(MakeDbVersionInfo(UVDB_DB_DB2, 2, 5, 4)), rowsOf(Of(UVDB_DB_DB2, 2)));
    // Kinds whose keys stand apart, and the ends of the list of kinds.
    EXPECT_FALSE(GetDBMSDataTypeParamsList(Of(14)).empty());
    EXPECT_FALSE(GetDBMSDataTypeParamsList(Of(33)).empty());
    EXPECT_FALSE(GetDBMSDataTypeParamsList(Of(88)).empty());
    EXPECT_FALSE(GetDBMSDataTypeParamsList(Of(127)).empty());
    for (const std::uint64_t db :
         {kKindWithoutTables, std::uint64_t{60}, std::uint64_t{255}, std::uint64_t{256}, kNone}) {
        EXPECT_TRUE(GetDBMSDataTypeParamsList(Of(db)).empty()) << db;
        EXPECT_FALSE(GetDBMSDataTypeParamsMapFirst(Of(db)).find("CHAR")) << db;
        EXPECT_EQ(DBMSToUVDBDataType(Of(db), "CHAR"), -1) << db;
    }
}

TEST(TypeTableChoice, MapsTellWhereNamesBeginAndEnd)
{
    const auto rows = GetDBMSDataTypeParamsList(Of(UVDB_DB_ORA));
    const auto first = GetDBMSDataTypeParamsMapFirst(Of(UVDB_DB_ORA)).find("NUMBER");
    const auto last = GetDBMSDataTypeParamsMapLast(Of(UVDB_DB_ORA)).find("NUMBER");
    ASSERT_TRUE(first && last);
    EXPECT_STREQ(rows[*first].name, "NUMBER");
    EXPECT_STRNE(rows[*first - 1].name, "NUMBER");
    EXPECT_STREQ(rows[*last].name, "NUMBER");
    EXPECT_STRNE(rows[*last + 1].name, "NUMBER");
    // Keys are exact, so names of languages are found as they are written there.
    EXPECT_TRUE(GetDBMSDataTypeParamsMapLast(Of(UVDB_DB_JAVA)).find("String"));
    EXPECT_FALSE(GetDBMSDataTypeParamsMapLast(Of(UVDB_DB_JAVA)).find("STRING"));
    EXPECT_FALSE(GetDBMSDataTypeParamsMapLast(Of(UVDB_DB_ORA)).find("number"));
}

struct SLadderCase
{
    const char* name;
    unsigned long size;
    long scale;
    long type;
};

constexpr SLadderCase kNumber[] = {
    {"NUMBER", 0, 0, 46},    {"NUMBER", 0, 7, 46}, // the first rung has no scale to test
    {"NUMBER", 1, 0, 14},    {"NUMBER", 2, 0, 14},  {"NUMBER", 3, 0, 34},  {"NUMBER", 4, 0, 34},
    {"NUMBER", 5, 0, 14},    {"NUMBER", 10, 0, 37}, {"NUMBER", 18, 0, 37}, {"NUMBER", 19, 0, 25},
    {"number", 5, 2, 25},                           // a fraction leaves the integer rungs
    {"NUMBER", 5, -1, 25},   {"NUMBER", 39, 0, 25}, // too long for any: the last rung takes it
    {"NUMBER", 5, 500, 25},                         // and what no scale range holds
    {"NUMBER()", 5, 0, -1},                         // the pair belongs to the key
    {"NUMBER(5)", 5, 0, -1}, {"NOSUCH", 1, 0, -1},  {"", 1, 0, -1},        {nullptr, 1, 0, -1},
};

TEST(OracleTypes, SizeAndScaleChooseTheRung)
{
    for (const SLadderCase& c : kNumber) {
        SCOPED_TRACE(testing::Message() << (c.name ? c.name : "null") << ' ' << c.size << ',' << c.scale);
        EXPECT_EQ(DBMSToUVDBDataType(Of(UVDB_DB_ORA), c.name, c.size, 0, c.scale), c.type);
        const SDataTypeParams* const row = FindDBMSDataTypeRow(Of(UVDB_DB_ORA), c.name, c.size, c.scale);
        EXPECT_EQ(row ? row->uvdbType : -1, c.type);
    }
    EXPECT_EQ(DBMSToUVDBDataType(Of(UVDB_DB_ORA), "NUMBER", 5, 99, 0), 14) << "the precision isn't read";
    EXPECT_EQ(DBMSToUVDBDataType(Of(UVDB_DB_ORA), "Number"), 25);
    EXPECT_EQ(DBMSToUVDBDataType(Of(UVDB_DB_ORA), "NOSUCH"), -1);
    EXPECT_EQ(DBMSToUVDBDataType(Of(UVDB_DB_MSSQL), "varchar(20)"),
              DBMSToUVDBDataType(Of(UVDB_DB_MSSQL), "VARCHAR"));
}

TEST(OracleTypes, EachRowLookedAtIsTraced)
{
    const CLogCapture log;
    DBMSToUVDBDataType(Of(UVDB_DB_ORA), "NUMBER", 0, 0, 0);
    EXPECT_THAT(log.Lines(), ElementsAre("SourceDataType: 46, NUMBER, 0, 0, 0"));
    DBMSToUVDBDataType(Of(UVDB_DB_ORA), "NUMBER", 39, 0, 0);
    UVDB::CArray<const SDataTypeParams*> rows;
    DBMSToUVDBDataTypeRange(Of(UVDB_DB_ORA), "NUMBER", rows);
    EXPECT_EQ(log.Lines().size(), 1 + rows.size());
    EXPECT_EQ(log.Lines().back(), "SourceDataType: 25, NUMBER, 38, -84, 127");
}

TEST(OracleTypes, RowsOfANameAreFoundByType)
{
    UVDB::CArray<const SDataTypeParams*> rows{&kNullSDataTypeParams};
    DBMSToUVDBDataTypeRange(Of(UVDB_DB_ORA), "NOSUCH", rows);
    EXPECT_EQ(rows.size(), 1u);
    DBMSToUVDBDataTypeRange(Of(UVDB_DB_ORA), "number", rows);
    ASSERT_GT(rows.size(), 2u);
    EXPECT_EQ(rows[1]->uvdbType, 46) << "appended, from the first rung on";

    const auto row = [](long type) -> const SDataTypeParams& {
        return GetDBMSDataTypeParams(Of(UVDB_DB_ORA), "Number", type);
    };
    EXPECT_EQ(row(14).columnSize, 2u) << "the first of several";
    EXPECT_TRUE(row(74).isSynonym);
    for (const long type : {25L, -1L, 999L})
        EXPECT_EQ(&row(type), rows.back()) << type;

    const SDataTypeParams& null = GetDBMSDataTypeParams(Of(UVDB_DB_ORA), "NOSUCH", 25);
    EXPECT_EQ(null.uvdbType, -1);
    EXPECT_STREQ(null.name, "%inVlD%");
    EXPECT_STREQ(GetDBMSDataTypeCreateParams(Of(UVDB_DB_ORA), "NOSUCH", 25), "");
    EXPECT_FALSE(IsDBMSDataTypeScaleValid(Of(UVDB_DB_ORA), "NOSUCH", 25));
    EXPECT_TRUE(IsDBMSDataTypeScaleValid(Of(UVDB_DB_ORA), "NUMBER", 25));
    EXPECT_FALSE(IsDBMSDataTypeScaleValid(Of(UVDB_DB_ORA), "NUMBER", 46));
    EXPECT_STREQ(GetDBMSDataTypeCreateParams(Of(UVDB_DB_ORA), "TIMESTAMP", 53), "SCALE");
    EXPECT_TRUE(IsDBMSDataTypeLeadingPrecisionValid(Of(UVDB_DB_ORA), "INTERVAL DAY() TO SECOND()", 68));
    EXPECT_EQ(GetDBMSDataTypeColumnSizePurpose(Of(UVDB_DB_ORA), "NUMBER", 25), 1u);
    EXPECT_EQ(GetDBMSDataTypeColumnSizePurpose(Of(UVDB_DB_ORA), "NUMBER", 46), 0u);
}

TEST(InternalTypes, FirstOfEqualNamesAndNumbersAnswers)
{
    EXPECT_EQ(GetUVDBDataType("DOUBLE"), 46);
    EXPECT_EQ(GetUVDBDataType("MONEY"), 59);
    EXPECT_EQ(GetUVDBDataType("UUID"), 103);
    EXPECT_STREQ(GetUVDBDataTypeName(103), "GUID");
    EXPECT_EQ(GetUVDBDataType("varchar"), -1) << "names are exact";
    EXPECT_EQ(GetUVDBDataType(nullptr), -1);

    const auto rows = GetUVDBDataTypeParamsList();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto found = GetUVDBDataTypeParamsMap().find(rows[i].uvdbType);
        ASSERT_TRUE(found);
        EXPECT_EQ(rows[*found].uvdbType, rows[i].uvdbType);
        EXPECT_LE(*found, i);
        EXPECT_EQ(GetUVDBDataTypeParams(rows[i].uvdbType), &rows[*found]);
    }
    for (const long unused : {6L, 15L, 18L, 19L, 21L, 55L, 140L, 142L, -1L, 1L << 40}) {
        EXPECT_EQ(GetUVDBDataTypeParams(unused), nullptr) << unused;
        EXPECT_STREQ(GetUVDBDataTypeName(unused), "");
        EXPECT_FALSE(GetUVDBDataTypeParamsMap().find(unused));
    }
    EXPECT_TRUE(IsUVDBDataTypeScaleValid(58));
    EXPECT_FALSE(IsUVDBDataTypeScaleValid(137));
    EXPECT_TRUE(IsUVDBDataTypePrecScaleFixed(137));
}

TEST(OdbcTypes, NameGoesBeforeNumber)
{
    const auto type = [](long odbcType, const char* name) {
        return ODBCToUVDBDataType(Of(UVDB_DB_ORA), odbcType, name, 0, 0, 0);
    };
    EXPECT_EQ(type(12, "NUMBER"), 46);
    EXPECT_EQ(type(12, "NOSUCH"), 1);
    EXPECT_EQ(type(12, "SmallMoney"), 58);
    EXPECT_EQ(type(12, "money"), 59);
    EXPECT_EQ(type(91, ""), 48);
    EXPECT_EQ(type(-11, nullptr), 103);
    EXPECT_EQ(type(0, "NOSUCH"), -1);

    EXPECT_EQ(UVDBToODBCDataType(Of(UVDB_DB_ORA), 48), 9) << "not 91, which stands behind it";
    EXPECT_EQ(UVDBToODBCDataType(Of(UVDB_DB_ORA), 14), 12);
    EXPECT_EQ(UVDBToODBCDataType(Of(UVDB_DB_ORA), -1), 12);
}

} // namespace
