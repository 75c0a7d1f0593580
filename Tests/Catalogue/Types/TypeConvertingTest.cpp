#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeConverting.h"
#include "Catalogue/Types/UVDBTypeMapping.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using Uve::U8CString;

namespace {

constexpr DB_VERSION_INFO Db(std::uint64_t db)
{
    return {.db = db};
}

bool HasDecision(const STypeTrail& trail, enTypeDecision decision)
{
    return std::ranges::count(trail.decisions, decision) == 1;
}

// Each exception, and its neighbour that it must not touch.
struct SExceptionCase
{
    std::uint64_t source;
    std::uint64_t target;
    SSourceType type;
    enTypeDecision decision;
    bool applies;
    long uvdbType; // that is left
};

constexpr SExceptionCase kExceptions[] = {
    {UVDB_DB_4GL_INFORMIX,
     UVDB_DB_MSSQL,
     {.name = "SMALLINT", .uvdbType = 34},
     UVDB_TYPE_4GL_SMALLINT,
     true,
     35},
    {UVDB_DB_4GL_INFORMIX, UVDB_DB_MSSQL, {.name = "SMALLINT"}, UVDB_TYPE_4GL_SMALLINT, true, 35},
    {UVDB_DB_INFORMIX,
     UVDB_DB_MSSQL,
     {.name = "SMALLINT", .uvdbType = 34},
     UVDB_TYPE_4GL_SMALLINT,
     false,
     34},
    {UVDB_DB_4GL_INFORMIX, UVDB_DB_ORA, {.name = "SMALLINT"}, UVDB_TYPE_4GL_SMALLINT, false, 34},

    {UVDB_DB_POSTGRESQL,
     UVDB_DB_MSSQL,
     {.name = "NUMERIC", .uvdbType = 26},
     UVDB_TYPE_BARE_NUMERIC,
     true,
     43},
    {UVDB_DB_POSTGRESQL, UVDB_DB_MSSQL, {.name = "NUMERIC"}, UVDB_TYPE_BARE_NUMERIC, true, 43},
    {UVDB_DB_POSTGRESQL,
     UVDB_DB_MSSQL,
     {.name = "NUMERIC", .uvdbType = 26, .precision = 5},
     UVDB_TYPE_BARE_NUMERIC,
     false,
     26},
    {UVDB_DB_POSTGRESQL,
     UVDB_DB_MSSQL,
     {.name = "NUMERIC", .precision = 5, .scale = 2},
     UVDB_TYPE_BARE_NUMERIC,
     false,
     26},
    {UVDB_DB_POSTGRESQL, UVDB_DB_ORA, {.name = "NUMERIC", .uvdbType = 26}, UVDB_TYPE_BARE_NUMERIC, false, 26},

    {UVDB_DB_MSSQL,
     UVDB_DB_POSTGRESQL,
     {.name = "nvarchar(max)", .uvdbType = 9},
     UVDB_TYPE_NVARCHAR_MAX,
     true,
     7},
    {UVDB_DB_MSSQL,
     UVDB_DB_POSTGRESQL,
     {.name = "NVARCHAR", .uvdbType = 9},
     UVDB_TYPE_NVARCHAR_MAX,
     false,
     9},
    {UVDB_DB_MSSQL, UVDB_DB_ORA, {.name = "NVARCHAR(MAX)", .uvdbType = 9}, UVDB_TYPE_NVARCHAR_MAX, false, 9},

    {UVDB_DB_ORA, UVDB_DB_POSTGRESQL, {.name = "number", .uvdbType = 46}, UVDB_TYPE_BARE_NUMBER, true, 26},
    {UVDB_DB_ORA,
     UVDB_DB_POSTGRESQL,
     {.name = "NUMBER", .uvdbType = 25, .precision = 5},
     UVDB_TYPE_BARE_NUMBER,
     false,
     25},
    {UVDB_DB_ORA, UVDB_DB_MSSQL, {.name = "NUMBER", .uvdbType = 46}, UVDB_TYPE_BARE_NUMBER, false, 46},
};

TEST(TypeConverting, ExceptionsActInTheirDirectionAlone)
{
    for (const SExceptionCase& c : kExceptions) {
        SCOPED_TRACE(testing::Message()
                     << c.source << " to " << c.target << ' ' << c.type.name << ' ' << c.type.uvdbType);
        STypeTrail trail;
        const STargetType result = ConvertDataType(Db(c.source), Db(c.target), c.type, &trail);
        EXPECT_EQ(HasDecision(trail, c.decision), c.applies);
        EXPECT_EQ(result.uvdbType, c.uvdbType);
        EXPECT_EQ(trail.mappedType, c.uvdbType);
        EXPECT_FALSE(result.text.empty());
    }
}

TEST(TypeConverting, DateTimeOfSqlServerStaysAsWritten)
{
    long uvdbType = -1;
    EXPECT_EQ(GetDefDBMSToDBMSConverting(Db(UVDB_DB_MSSQL), Db(UVDB_DB_MSSQL), "DateTime", uvdbType, 23, 0, 0,
                                         3, false, true),
              "DateTime");
    EXPECT_EQ(uvdbType, -1);
}

// An interval comes to SQL Server as a text just long enough for it.
TEST(TypeConverting, InformixIntervalsHaveTheSizeOfTheirText)
{
    struct SCase
    {
        const char* name;
        long uvdbType;
        unsigned long size;
    };
    constexpr SCase kCases[] = {
        {"INTERVAL HOUR() TO MINUTE", -1, 5},    {"INTERVAL HOUR() TO SECOND", -1, 8},
        {"INTERVAL YEAR() TO MONTH", -1, 8},     {"INTERVAL HOUR() TO FRACTION()", -1, 14},
        {"INTERVAL HOUR() TO FRACTION", -1, 14}, {"INTERVAL HOUR() TO SECOND", 71, 14},
        {"INTERVAL YEAR() TO MONTH", 62, 8},     {"INTERVAL DAY() TO DAY", -1, 77},
        {"interval hour() to minute", -1, 77},   {"INTERVAL HOUR() TO MINUTE", 70, 77},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.name << ' ' << c.uvdbType);
        STypeTrail trail;
        const SSourceType type{.name = c.name, .uvdbType = c.uvdbType, .length = 77};
        ConvertDataType(Db(UVDB_DB_INFORMIX), Db(UVDB_DB_MSSQL), type, &trail);
        EXPECT_EQ(trail.size, c.size);
        EXPECT_EQ(HasDecision(trail, UVDB_TYPE_INTERVAL_SIZE), c.size != 77);
        ConvertDataType(Db(UVDB_DB_INFORMIX), Db(UVDB_DB_ORA), type, &trail);
        EXPECT_FALSE(HasDecision(trail, UVDB_TYPE_INTERVAL_SIZE));
    }
}

TEST(TypeConverting, TeradataDefaultsAreNotWrittenOut)
{
    const auto text = [](std::uint64_t target, unsigned long length) {
        long uvdbType = 23;
        return GetDefDBMSToDBMSConverting(Db(UVDB_DB_ORA), Db(target), "BLOB", uvdbType, length, 0, 0, 0,
                                          false, true);
    };
    EXPECT_EQ(text(UVDB_DB_TERADATA, 2147483647), "BLOB");
    EXPECT_EQ(text(UVDB_DB_TERADATA, 2097088000), "BLOB");
    EXPECT_EQ(text(UVDB_DB_TERADATA, 2097087999), "BLOB(2097087999)");
}

TEST(TypeConverting, UnknownNameBecomesTheTargetsVarchar)
{
    long uvdbType = -1;
    EXPECT_EQ(GetDefDBMSToDBMSConverting(Db(UVDB_DB_ORA), Db(UVDB_DB_ORA), "NOSUCH", uvdbType, 5000, 0, 0, 3,
                                         false, true),
              "VARCHAR2(255)");
    EXPECT_EQ(uvdbType, 1);

    STypeTrail trail;
    ConvertDataType(Db(UVDB_DB_ORA), Db(UVDB_DB_ORA), {.name = "NOSUCH"}, &trail);
    EXPECT_TRUE(HasDecision(trail, UVDB_TYPE_UNKNOWN));
    EXPECT_EQ(trail.sourceRow, nullptr);
}

TEST(TypeConverting, LengthGoesBeforePrecisionAndFormatIsOptional)
{
    const auto convert = [](unsigned long length, unsigned long precision, bool format) {
        long uvdbType = 1;
        return GetDefDBMSToDBMSConverting(Db(UVDB_DB_DB2), Db(UVDB_DB_ORA), "VARCHAR", uvdbType, length,
                                          precision, 0, 0, false, format);
    };
    EXPECT_EQ(convert(7, 9, true), "VARCHAR2(7)");
    EXPECT_EQ(convert(0, 9, true), "VARCHAR2(9)");
    EXPECT_EQ(convert(7, 9, false), "VARCHAR2");
}

// The numbers that callers show beside the target are those that were mapped.
TEST(TypeConverting, OdbcRoadGivesItsNumbersBack)
{
    U8CString name = "VARCHAR";
    unsigned long size = 0;
    bool hasSize = true, hasLeading = false, hasScale = false, identity = false;
    long leading = 0, scale = 0, uvdbType = -1;
    const U8CString text = DBMSToDBMSDataType(Db(UVDB_DB_MSSQL), Db(UVDB_DB_ORA), name, size, hasSize,
                                              leading, hasLeading, scale, hasScale, identity, 0, &uvdbType);
    EXPECT_EQ(size, 2147483647u) << "the size of VARCHAR(MAX)";
    EXPECT_EQ(name, "CLOB");
    EXPECT_EQ(text, "CLOB");
    EXPECT_EQ(uvdbType, 1);

    // A name that the table doesn't have is served by its ODBC number.
    name = "NOSUCH";
    size = 20;
    DBMSToDBMSDataType(Db(UVDB_DB_MSSQL), Db(UVDB_DB_ORA), name, size, hasSize, leading, hasLeading, scale,
                       hasScale, identity, 12, nullptr);
    EXPECT_EQ(name, "VARCHAR2");
    EXPECT_EQ(size, 20u);
}

TEST(TypeConverting, IdentityNamesTheTypeItself)
{
    STypeTrail trail;
    const STargetType result =
        ConvertDataType(Db(UVDB_DB_MSSQL), Db(UVDB_DB_PERVASIVE),
                        {.name = "SMALLINT", .precision = 5, .identity = true}, &trail);
    EXPECT_EQ(result.text, "SMALLIDENTITY");
    EXPECT_TRUE(HasDecision(trail, UVDB_TYPE_IDENTITY));
    EXPECT_EQ(trail.targetRow, nullptr);
}

TEST(TypeConverting, TrailPointsAtTheRowsThatDecided)
{
    STypeTrail trail;
    const STargetType result = ConvertDataType(Db(UVDB_DB_ORA), Db(UVDB_DB_MSSQL),
                                               {.name = "NUMBER", .precision = 10, .scale = 2}, &trail);
    EXPECT_EQ(result.text, "DECIMAL(10,2)");
    ASSERT_TRUE(trail.sourceRow && trail.targetRow && trail.formatRow);
    EXPECT_STREQ(trail.sourceRow->name, "NUMBER");
    EXPECT_EQ(trail.sourceRow->uvdbType, 25);
    EXPECT_EQ(trail.targetRow->uvdbType, 25);
    EXPECT_STREQ(trail.formatRow->name, "DECIMAL");
    for (const enTypeDecision decision : trail.decisions)
        EXPECT_STRNE(TypeDecisionText(decision), "");
    EXPECT_STREQ(TypeDecisionText(static_cast<enTypeDecision>(1000)), "");
}

} // namespace
