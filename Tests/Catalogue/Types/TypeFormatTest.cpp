#include "Catalogue/Types/TypeMapping/MappingSheaf.h"
#include "Catalogue/Types/UVDBDataTypeElement.h"
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeFormat.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Interfaces/IUVDBColumnInfo.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBColumnInfo.h"
#include "Metadata/UVDBDataTypeInfo.h"

#include <gtest/gtest.h>

#include <limits>

using Uve::U8CString;

namespace {

constexpr DB_VERSION_INFO kAse{.db = UVDB_DB_SYBASE, .subType = UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE};

// ---- Reading a name ----

struct SReadCase
{
    DB_VERSION_INFO version;
    const char* name;
    STypeNumbers given;
    const char* expectedName;
    STypeNumbers expected;
};

TEST(TypeFormat, NamesCorrectTheirNumbers)
{
    constexpr DB_VERSION_INFO kMssql8{.db = UVDB_DB_MSSQL, .major = 8};
    constexpr DB_VERSION_INFO kMssql{.db = UVDB_DB_MSSQL};
    constexpr DB_VERSION_INFO kInformix{.db = UVDB_DB_INFORMIX};
    constexpr DB_VERSION_INFO kPostgres{.db = UVDB_DB_POSTGRESQL};
    constexpr DB_VERSION_INFO kOracle{.db = UVDB_DB_ORA};
    constexpr DB_VERSION_INFO kDb2{.db = UVDB_DB_DB2};
    constexpr DB_VERSION_INFO kDb2z{.db = UVDB_DB_DB2, .subType = UVDB_DB2_UDB_FOR_zOS_AND_OS390};
    constexpr DB_VERSION_INFO kDb2i{.db = UVDB_DB_DB2, .subType = UVDB_DB2_UDB_FOR_AS400_AND_iSERIES};
    constexpr DB_VERSION_INFO kTeradata{.db = UVDB_DB_TERADATA};
    const auto size = [](unsigned long number) { return STypeNumbers{.size = number, .hasSize = true}; };
    const auto scale = [](long number) { return STypeNumbers{.scale = number, .hasScale = true}; };

    const SReadCase kCases[] = {
        {kOracle, "timestamp(3) with time zone", {}, "TIMESTAMP() WITH TIME ZONE", {}},
        {kPostgres, "timestamp(3)", {}, "TIMESTAMP", {}},
        {kOracle, "date \t", {}, "DATE", {}},

        // Told as 0, an unbounded type of SQL Server has the largest size, from version 9 on.
        {kMssql, "varchar(max)", size(0), "VARCHAR", size(2147483647)},
        {kMssql, "VARBINARY", size(0), "VARBINARY", size(2147483647)},
        {kMssql, "NVARCHAR", {}, "NVARCHAR", {}},
        {kMssql, "LONG VARCHAR", size(0), "LONG VARCHAR", size(0)},
        {kMssql8, "VARCHAR", size(0), "VARCHAR", size(0)},
        {kMssql, "SMALLINT IDENTITY", {}, "SMALLINT", {}},
        {kAse, "NUMERIC IDENTITY", {}, "NUMERIC", {}},
        {{.db = UVDB_DB_SYBASE}, "NUMERIC IDENTITY", {}, "NUMERIC IDENTITY", {}},

        {kInformix,
         "DECIMAL",
         {.size = 16, .hasSize = true, .scale = 255},
         "DECIMAL",
         {.size = 16, .scale = 0, .hasScale = true}},
        {kInformix,
         "DECIMAL",
         {.size = 16, .scale = 2, .hasScale = true},
         "DECIMAL",
         {.size = 16, .scale = 2}},
        {kInformix,
         "INTERVAL DAY(3) TO SECOND",
         {},
         "INTERVAL DAY() TO SECOND",
         {.leadingPrecision = 3, .hasLeadingPrecision = true}},
        {kInformix, "INTERVAL DAY(3x) TO SECOND", {}, "INTERVAL DAY() TO SECOND", {.leadingPrecision = 3}},
        {kInformix,
         "INTERVAL DAY() TO SECOND",
         {.leadingPrecision = 4},
         "INTERVAL DAY() TO SECOND",
         {.leadingPrecision = 4}},
        {kInformix,
         "INTERVAL HOUR(5) TO FRACTION(2)",
         {},
         "INTERVAL HOUR() TO FRACTION()",
         {.scale = 2, .leadingPrecision = 5, .hasLeadingPrecision = true}},
        {kInformix,
         "INTERVAL HOUR(5) TO FRACTION(2.4)",
         {},
         "INTERVAL HOUR() TO FRACTION()",
         {.scale = 4, .leadingPrecision = 5, .hasLeadingPrecision = true}},
        {kInformix,
         "DATETIME YEAR TO FRACTION(2)",
         {.scale = 3},
         "DATETIME YEAR TO FRACTION()",
         {.scale = 3}},

        {kPostgres, "varchar", {}, "VARCHAR", size(4000)},
        {kPostgres, "VARCHAR", size(0), "VARCHAR", size(0)},
        {{.db = UVDB_DB_VPOSTGRES}, "CHARACTER VARYING", {}, "CHARACTER VARYING", size(4000)},
        {{.db = UVDB_DB_REDSHIFT}, "VARCHAR", {}, "VARCHAR", {}},

        {kOracle, "UROWID", size(4000), "UROWID", size(18)},
        {kOracle,
         "INTERVAL YEAR(4) TO MONTH",
         {},
         "INTERVAL YEAR() TO MONTH",
         {.size = 15, .leadingPrecision = 4, .hasLeadingPrecision = true}},
        {kOracle,
         "INTERVAL DAY(4) TO SECOND(5)",
         {},
         "INTERVAL DAY() TO SECOND()",
         {.size = 30, .scale = 5, .hasScale = true, .leadingPrecision = 4, .hasLeadingPrecision = true}},
        {kOracle,
         "INTERVAL DAY() TO SECOND()",
         {.scale = 5, .leadingPrecision = 4},
         "INTERVAL DAY() TO SECOND()",
         {.size = 30, .scale = 5, .leadingPrecision = 4}},
        {kOracle,
         "INTERVAL DAY(99999999999999999999) TO SECOND(5)",
         {},
         "INTERVAL DAY() TO SECOND()",
         {.size = 30,
          .scale = 5,
          .hasScale = true,
          .leadingPrecision = std::numeric_limits<long>::max(),
          .hasLeadingPrecision = true}},

        {kDb2z, "LONG VARCHAR", size(100), "VARCHAR", size(100)},
        {kDb2z, "LONG VARCHAR", size(32673), "LONG VARCHAR", size(32673)},
        {kDb2, "LONG VARCHAR", size(100), "LONG VARCHAR", size(100)},
        {kDb2i, "VARCHAR()", size(10), "VARCHAR", size(10)},
        {kDb2, "CHARACTER (10) FOR BIT DATA", size(10), "CHARACTER() FOR BIT DATA", size(10)},
        {kDb2, "DECFLOAT", {}, "DECFLOAT", scale(34)},
        {{.db = UVDB_DB_SAP_HANA}, "VARCHAR () FOR BIT DATA", {}, "VARCHAR() FOR BIT DATA", {}},

        {kTeradata, "PERIOD(TIMESTAMP(6))", {}, "PERIOD(TIMESTAMP(6))", {}},
        {kOracle, "PERIOD(DATE)", {}, "PERIOD()", {}},
    };
    for (const SReadCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.version.db << ' ' << c.name << ' ' << c.given.size);
        U8CString name = c.name;
        STypeNumbers numbers = c.given;
        PreFormatDBMSDataType(c.version, name, numbers.size, numbers.hasSize, numbers.scale, numbers.hasScale,
                              numbers.leadingPrecision, numbers.hasLeadingPrecision, -1);
        EXPECT_EQ(name, c.expectedName);
        EXPECT_EQ(numbers.size, c.expected.size);
        EXPECT_EQ(numbers.hasSize, c.expected.hasSize);
        EXPECT_EQ(numbers.scale, c.expected.scale);
        EXPECT_EQ(numbers.hasScale, c.expected.hasScale);
        EXPECT_EQ(numbers.leadingPrecision, c.expected.leadingPrecision);
        EXPECT_EQ(numbers.hasLeadingPrecision, c.expected.hasLeadingPrecision);
    }
}

TEST(TypeFormat, LanguagesKeepTheirCase)
{
    STypeNumbers numbers;
    U8CString name = "StringBuffer";
    PreFormatDBMSDataType({.db = UVDB_DB_JAVA}, name, numbers, 3);
    EXPECT_EQ(name, "StringBuffer");
}

// ---- Writing a type ----

struct SPartsCase
{
    DB_VERSION_INFO version;
    const char* name;
    long size;
    long columnSize;
    long leading;
    long rowLeading;
    long scale;
    long minScale;
    long maxScale;
    const char* createParams;
    const char* text;
};

constexpr DB_VERSION_INFO Db(std::uint64_t db)
{
    return {.db = db};
}

constexpr std::uint64_t kAny = UVDB_DB_ANSI;

// clang-format off
constexpr SPartsCase kParts[] = {
//   database               name                       size  limit  lead limit scale min  max  words                     text
    {Db(kAny),              "decimal",                   10,    31,   0,   0,    2,   0,  31, "PRECISION,SCALE",         "DECIMAL(10,2)"},
    {Db(kAny),              "DECIMAL",                   -1,    31,   0,   0,   40,   0,  31, "PRECISION,SCALE",         "DECIMAL(31,31)"},
    {Db(kAny),              "DECIMAL",                   -1,    -7,   0,   0,    0,   0,   0, "PRECISION",               "DECIMAL(-7)"},
    {Db(kAny),              "DECIMAL",                   10,    31,   0,   0,   -5,  -3,  31, "PRECISION,SCALE",         "DECIMAL(10,-3)"},
    {Db(kAny),              "DATE",                      10,    10,   0,   0,    0,   0,   0, "",                        "DATE"},
    {Db(kAny),              "VARCHAR",                   10,    99,   0,   0,    0,   0,   0, "MAX LENGTH",              "VARCHAR(10)"},
    {Db(kAny),              "VARCHAR() FOR BIT DATA",    10,    99,   0,   0,    0,   0,   0, "LENGTH",                  "VARCHAR(10) FOR BIT DATA"},
    {Db(kAny),              "INTERVAL DAY() TO SECOND()", 0,     0,   4,   2,    7,   0,   6, "LEADING PRECISION;SCALE", "INTERVAL DAY(2) TO SECOND(6)"},
    {Db(kAny),              "INTERVAL DAY() TO SECOND",   0,     0,   2,   2,    3,   0,   6, "LEADING PRECISION;SCALE", "INTERVAL DAY(2) TO SECOND(3)"},
    {Db(kAny),              "A()",                        1,     9,   0,   0,    0,   0,   0, "LENGTH;x;y",              "A(1)(x)"},
    {Db(kAny),              "A()()",                      1,     9,   0,   0,    0,   0,   0, "LENGTH",                  "A(1)()"},

    {Db(UVDB_DB_DB2),       "CLOB",                       1,  9999,   0,   0,    0,   0,   0, "LENGTH",                  "CLOB(1K)"},
    {Db(UVDB_DB_DB2),       "CLOB",                 1047552, 1L<<40,  0,   0,    0,   0,   0, "LENGTH",                  "CLOB(1023K)"},
    {Db(UVDB_DB_DB2),       "CLOB",                 1047553, 1L<<40,  0,   0,    0,   0,   0, "LENGTH",                  "CLOB(1M)"},
    {Db(UVDB_DB_DB2),       "CLOB",                 2097152, 1L<<40,  0,   0,    0,   0,   0, "LENGTH",                  "CLOB(2M)"},
    {Db(UVDB_DB_HIRDB),     "BLOB",              2147483647, 1L<<40,  0,   0,    0,   0,   0, "LENGTH",                  "BLOB(2G)"},
    {Db(UVDB_DB_SAP_HANA),  "DBCLOB",            4294967295, 1L<<40,  0,   0,    0,   0,   0, "LENGTH",                  "DBCLOB(4G)"},
    {Db(UVDB_DB_TERADATA),  "CLOB",                 2097152, 1L<<40,  0,   0,    0,   0,   0, "LENGTH",                  "CLOB(2097152)"},
    {Db(UVDB_DB_DB2),       "VARCHAR",                 2048,  9999,   0,   0,    0,   0,   0, "LENGTH",                  "VARCHAR(2048)"},

    {Db(UVDB_DB_MSSQL),     "nvarchar(max)",             10,  8000,   0,   0,    0,   0,   0, "LENGTH",                  "NVARCHAR(MAX)"},
    {Db(kAny),              "VARBINARY(MAX)",            10,  8000,   0,   0,    0,   0,   0, "LENGTH",                  "VARBINARY(MAX)"},
    {Db(kAny),              "VARCHAR(MAX)",              10,  8000,   0,   0,    0,   0,   0, "LENGTH",                  "VARCHAR(10)"},

    {kAse,                  "FLOAT",                     48,    53,   0,   0,    0,   0,   0, "PRECISION",               "FLOAT"},
    {kAse,                  "FLOAT",                     48,    53,   1,   0,    0,   0,   0, "PRECISION",               "FLOAT(48)"},
    {Db(UVDB_DB_SYBASE),    "FLOAT",                     48,    53,   0,   0,    0,   0,   0, "PRECISION",               "FLOAT(48)"},

    {Db(UVDB_DB_POSTGRESQL), "TIMESTAMP() WITH TIME ZONE", 0,    0,   0,   0,    7,   0,   6, "SCALE",                   "TIMESTAMP WITH TIME ZONE"},
    {Db(UVDB_DB_POSTGRESQL), "TIMESTAMP() WITH TIME ZONE", 0,    0,   0,   0,    6,   0,   6, "SCALE",                   "TIMESTAMP(6) WITH TIME ZONE"},
    {Db(UVDB_DB_TERADATA),  "TIMESTAMP WITH TIME ZONE",    0,    0,   0,   0,    7,   0,   6, "SCALE",                   "TIMESTAMP WITH TIME ZONE"},
    {Db(UVDB_DB_TERADATA),  "TIMESTAMP WITH TIME ZONE",    0,    0,   0,   0,    6,   0,   6, "SCALE",                   "TIMESTAMP WITH TIME ZONE(6)"},

    {Db(UVDB_DB_HIRDB),     "TIMESTAMP",                  0,     0,   0,   0,    3,   0,   6, "SCALE",                   "TIMESTAMP(4)"},
    {Db(UVDB_DB_HIRDB),     "TIMESTAMP",                  0,     0,   0,   0,    0,   0,   6, "SCALE",                   "TIMESTAMP(6)"},
    {Db(UVDB_DB_HIRDB),     "DEC",                        9,    29,   5,   9,   -2,  -9,   9, "LEADING PRECISION,SCALE", "DEC(3,0)"},

    {Db(UVDB_DB_TERADATA),  "NUMERIC",                 -128,    38,   0,   0, -128,   0,  38, "PRECISION,SCALE",         "NUMERIC(*)"},
    {Db(UVDB_DB_TERADATA),  "NUMERIC",                 -128,    38,   0,   0,    3,   0,  38, "PRECISION,SCALE",         "NUMERIC(*,3)"},

    {Db(UVDB_DB_POSTGRESQL), "NUMERIC",                   0,    31,   0,   0,    0,   0,  31, "PRECISION,SCALE",         "NUMERIC"},
    {Db(UVDB_DB_GREENPLUM), "NUMERIC",                    0,    31,   0,   0,    0,   0,  31, "PRECISION,SCALE",         "NUMERIC"},
    {Db(UVDB_DB_ORA),       "NUMBER",                     0,    38,   0,   0,    0, -84, 127, "PRECISION,SCALE",         "NUMBER"},
    {Db(UVDB_DB_ORA),       "NUMBER",                     0,    38,   0,   0,    2, -84, 127, "PRECISION,SCALE",         "NUMBER(0,2)"},
    {Db(UVDB_DB_ORA),       "NUMERIC",                    0,    38,   0,   0,    0, -84, 127, "PRECISION,SCALE",         "NUMERIC(0,0)"},
    {Db(UVDB_DB_POSTGRESQL), "BIT VARYING",              64,    64,   0,   0,    0,   0,   0, "LENGTH",                  "BIT VARYING"},
    {Db(UVDB_DB_POSTGRESQL), "BIT VARYING",              63,    64,   0,   0,    0,   0,   0, "LENGTH",                  "BIT VARYING(63)"},
};
// clang-format on

TEST(TypeFormat, PartsGoWhereTheWordsSay)
{
    for (const SPartsCase& c : kParts) {
        SCOPED_TRACE(testing::Message() << c.version.db << ' ' << c.name << ' ' << c.size << ',' << c.scale);
        EXPECT_EQ(FormatDBMSDataType(c.version, c.name, c.size, c.columnSize, c.leading, c.rowLeading,
                                     c.scale, c.minScale, c.maxScale, c.createParams),
                  c.text);
    }
}

struct SRowCase
{
    std::uint64_t db;
    const char* name;
    long size;
    long scale;
    long uvdbType;
    const char* text;
};

constexpr SRowCase kRows[] = {
    {UVDB_DB_ORA, "VARCHAR2", 100, 0, -1, "VARCHAR2(100)"},
    {UVDB_DB_ORA, "VARCHAR2", 5000, 0, -1, "VARCHAR2(4000)"},
    {UVDB_DB_ORA, "NUMBER", 10, 2, 46, "NUMBER"}, // a double has no digits of its own
    {UVDB_DB_ORA, "NUMBER", 10, 2, 25, "NUMBER(10,2)"},
    {UVDB_DB_ORA, "NUMBER", 19, 0, 37, "NUMBER(19,0)"}, // its own rungs are too small: the last one stands
    {UVDB_DB_ORA, "NUMBER", 10, 2, 999, "NUMBER(10,2)"},
    {UVDB_DB_ORA, "NUMBER", 5, 2, 14, "NUMBER(5,0)"}, // the size chooses the rung, and that one has no scale
    {UVDB_DB_ORA, "NUMBER", 0, 0, -1, "NUMBER"},      // without a type every rung counts
    {UVDB_DB_ORA, "NUMBER", 10, 2, -1, "NUMBER(10,2)"},
    {UVDB_DB_INFORMIX, "DECIMAL", 10, 2, -1, "DECIMAL(10,2)"},
    {UVDB_DB_ORA, "NO SUCH(5)", 10, 2, -1, "NO SUCH(5)"},
    {UVDB_DB_DB2, "CLOB", 2097152, 0, -1, "CLOB(2M)"},
    {UVDB_DB_MSSQL, "VARCHAR(MAX)", 5, 0, 1, "VARCHAR(MAX)"},
    {UVDB_DB_MSSQL, "DATETIME2", 27, 3, 53, "DATETIME2(3)"},
    {UVDB_DB_POSTGRESQL, "NUMERIC", 0, 0, 26, "NUMERIC"},
    {UVDB_DB_MySQL, "DATETIME", 26, 0, 53, "DATETIME"},
    {UVDB_DB_MySQL, "DATETIME", 26, 7, 53, "DATETIME(6)"},
    {UVDB_DB_SingleStoreDB, "DATETIME", 26, 5, 53, "DATETIME"},
    {UVDB_DB_SingleStoreDB, "DATETIME", 26, 6, 53, "DATETIME(6)"},
    {UVDB_DB_TERADATA, "NUMERIC", -128, -128, 26, "NUMERIC(*)"},
    {UVDB_DB_TERADATA, "PERIOD(TIMESTAMP())", 0, 6, -1, "PERIOD(TIMESTAMP(6))"},
    {UVDB_DB_TERADATA, "PERIOD(TIME() WITH TIME ZONE)", 0, 2, -1, "PERIOD(TIME(2) WITH TIME ZONE)"},
    {UVDB_DB_TERADATA, "PERIOD(TIMESTAMP())", 0, 99, -1, "PERIOD(TIMESTAMP(99))"},
    {UVDB_DB_TERADATA, "PERIOD(TIMESTAMP())", 0, 100, -1, "PERIOD(TIMESTAMP())"},
    {UVDB_DB_TERADATA, "PERIOD(DATE)", 0, 6, -1, "PERIOD(DATE)"},
    {UVDB_DB_ORA, "PERIOD(TIME())", 0, 6, -1, "PERIOD(TIME())"},
};

TEST(TypeFormat, ARungHoldsNumbersUpToItsOwn)
{
    constexpr struct
    {
        long size, scale;
        std::int64_t uvdbType;
    } kRungs[] = {
        {0, 0, 46},  {1, 0, 14},  {2, 0, 14},  {3, 0, 34}, {4, 0, 34},  {5, 0, 14},    {9, 0, 14},
        {10, 0, 37}, {18, 0, 37}, {19, 0, 25}, {2, 1, 25}, {2, -1, 25}, {38, 127, 25},
    };
    for (const auto& c : kRungs) {
        SCOPED_TRACE(testing::Message() << c.size << ',' << c.scale);
        const SDataTypeParams* row = nullptr;
        FormatDBMSDataType({.db = UVDB_DB_ORA}, "NUMBER", c.size, c.scale, 0, -1, &row);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->uvdbType, c.uvdbType);
    }
    const SDataTypeParams* row = nullptr;
    FormatDBMSDataType({.db = UVDB_DB_ORA}, "NUMBER", 9, 2, 0, 14, &row);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->columnSize, 9u);
}

TEST(TypeFormat, RowsLimitAndShapeTheText)
{
    for (const SRowCase& c : kRows) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.name << ' ' << c.size << ',' << c.scale);
        EXPECT_EQ(FormatDBMSDataType(Db(c.db), c.name, c.size, c.scale, 0, c.uvdbType), c.text);
    }
}

TEST(TypeFormat, ArraysLoseTheirBounds)
{
    EXPECT_EQ(GetArrayDataType("INTEGER[10]"), "INTEGER[]");
    EXPECT_EQ(GetArrayDataType("INTEGER[10][3]"), "INTEGER[][3]");
    EXPECT_EQ(GetArrayDataType("ODD][3]"), "ODD][]");
    for (const char* name : {"INTEGER", "INTEGER[]", "INTEGER[10", "]INTEGER[", ""})
        EXPECT_EQ(GetArrayDataType(name), name);
}

// ---- Elements ----

TEST(DataTypeElement, WritesWhatIsThere)
{
    const DB_VERSION_INFO oracle = Db(UVDB_DB_ORA);
    EXPECT_EQ(FormatDataTypeInfo(nullptr, oracle, "number", 25, 7, true, 10, false, 0, true, 2, true, 4, true,
                                 true, true, false, -1, "precision,scale", 3),
              "<DataType name=\"NUMBER\" type=\"DECIMAL\" precision=\"10\" minScale=\"2\" maxScale=\"4\""
              " fixedPrecScale=\"Yes\" createParams=\"PRECISION,SCALE\" unsigned=\"No\""
              " completeName=\"NUMBER(10,2)\" UserType=\"3\"/>");
    EXPECT_EQ(FormatDataTypeInfo(nullptr, oracle, "VARCHAR2", 2, 7, false, 0, false, 0, false, 0, false, 0,
                                 false, true, false, true, -1, "", 0),
              "<DataType name=\"VARCHAR2\" type=\"VARCHAR2\" length=\"7\" completeName=\"VARCHAR2(7)\"/>");
    EXPECT_EQ(FormatDataTypeInfo(nullptr, oracle, "a<b", 999, 7, true, 5, true, 9, false, 0, false, 0, false,
                                 false, false, true, 3, nullptr, 0),
              "<DataType name=\"a&lt;b\" type=\"\" precision=\"5\" fixedPrecScale=\"No\""
              " leading_precision=\"9\" completeName=\"a&lt;b\"/>");
    EXPECT_EQ(FormatDataTypeInfoStr(nullptr, oracle, "number", 25, 7, true, 10, true, 2, false, 0, true, 4,
                                    true, true, true, true, "precision,scale"),
              "__DATATYPE_NAME__NUMBER__TYPE__DECIMAL__PERCISION__10__MIN_SCALE__0__MAX_SCALE__4"
              "__FIXED_PREC_SCALE__Yes__LEADING_PRECISION__2__CREATE_PARAMS__PRECISION,SCALE__UNSIGNED__Yes"
              "__COMPLETE_NAME__NUMBER(10,4)");
    EXPECT_EQ(FormatDataTypeInfoStr(nullptr, oracle, "VARCHAR2", 2, 7, false, 0, false, 0, true, 0, false, 0,
                                    false, true, false, false, ""),
              "__DATATYPE_NAME__VARCHAR2__TYPE__VARCHAR2__LENGHT__7__COMPLETE_NAME__VARCHAR2(7)");
}

TEST(DataTypeElement, MappingRowsAreDescribedByTheTypeTables)
{
    using UVDBRows::Map;
    U8CString text = "<";
    AddDataTypeInfo(Db(UVDB_DB_ORA), Map(UVDBRows::Decimal, 38, -84, 127, "NUMBER"), text);
    EXPECT_EQ(text, "<<DataType name=\"NUMBER\" type=\"DECIMAL\" precision=\"38\" minScale=\"-84\""
                    " maxScale=\"127\" fixedPrecScale=\"No\" createParams=\"PRECISION,SCALE\""
                    " completeName=\"NUMBER(38,-84)\"/>");
    text.clear();
    AddDataTypeInfo(Db(UVDB_DB_ORA), Map(UVDBRows::VarChar, 300, "VARCHAR2"), text);
    EXPECT_EQ(text, "<DataType name=\"VARCHAR2\" type=\"VARCHAR\" length=\"300\" createParams=\"LENGTH\""
                    " completeName=\"VARCHAR2(300)\"/>");
}

TEST(DataTypeElement, ColumnsTellTheirArrayType)
{
    const DB_VERSION_INFO oracle = Db(UVDB_DB_ORA);
    const SDataTypeElement type{.name = "NUMBER", .uvdbType = 25, .precision = 5};
    const std::string before =
        "<DataType name=\"NUMBER\" type=\"DECIMAL\" precision=\"5\" fixedPrecScale=\"No\""
        " completeName=\"NUMBER(5,0)\"";

    const auto parameterType = UVDBMakeObject<CDataTypeInfo>();
    EXPECT_EQ(FormatDataTypeInfo(parameterType, oracle, type, -1), before + "/>");
    parameterType->Facts().arrayType = "number";
    EXPECT_EQ(FormatDataTypeInfo(parameterType, oracle, type, -1), before + " array_type=\"NUMBER(5,0)\"/>");

    const auto column = UVDBMakeObject<CColumnInfoBase>(std::shared_ptr<IUVDBDatabaseSession>());
    EXPECT_EQ(FormatDataTypeInfo(column, oracle, type, -1), before + "/>");
    CUVDBOptionWrapper::SetParam(column, "ARRAY_TYPE", U8CString("VARCHAR2"));
    EXPECT_EQ(FormatDataTypeInfo(column, oracle, type, -1), before + " array_type=\"VARCHAR2(5)\"/>");
}

} // namespace
