#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeText.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr DB_VERSION_INFO Db(std::uint64_t db)
{
    return {.db = db};
}

struct SReadCase
{
    std::uint64_t db;
    const char* text;
    const char* name;
    // -1: not given
    long size = -1;
    long scale = -1;
    long leading = -1;
    bool isKnown = true;
};

constexpr SReadCase kTexts[] = {
    {UVDB_DB_ORA, "NUMBER(10,2)", "NUMBER", 10, 2},
    {UVDB_DB_ORA, " number  (  10 ,\t-2 ) ", "NUMBER", 10, -2},
    {UVDB_DB_ORA, "NUMBER", "NUMBER"},
    {UVDB_DB_ORA, "NUMBER(*)", "NUMBER"},
    {UVDB_DB_ORA, "NUMBER(*,3)", "NUMBER", 38, 3},
    {UVDB_DB_ORA, "varchar2(30 char)", "VARCHAR2", 30},
    {UVDB_DB_ORA, "VARCHAR2(30BYTE)", "VARCHAR2", 30},
    {UVDB_DB_ORA, "TIMESTAMP(3)", "TIMESTAMP", -1, 3},
    {UVDB_DB_ORA, "timestamp (3)with time zone", "TIMESTAMP() WITH TIME ZONE", -1, 3},
    {UVDB_DB_ORA, "TIMESTAMP WITH TIME ZONE", "TIMESTAMP WITH TIME ZONE"},
    {UVDB_DB_ORA, "TIMESTAMP(6) WITH LOCAL TIME ZONE", "TIMESTAMP() WITH LOCAL TIME Z", -1, 6},
    {UVDB_DB_ORA, "INTERVAL DAY(2) TO SECOND(6)", "INTERVAL DAY() TO SECOND()", -1, 6, 2},
    {UVDB_DB_ORA, "INTERVAL DAY TO SECOND(6)", "INTERVAL DAY() TO SECOND()", -1, 6},
    {UVDB_DB_ORA, "INTERVAL DAY(2) TO SECOND", "INTERVAL DAY() TO SECOND", -1, -1, 2},
    {UVDB_DB_ORA, "INTERVAL DAY TO SECOND", "INTERVAL DAY TO SECOND"},
    {UVDB_DB_ORA, "CHARACTER VARYING(20)", "VARCHAR", 20},
    {UVDB_DB_ORA, "LONG   RAW", "LONG RAW"},
    {UVDB_DB_DB2, "CLOB(2M)", "CLOB", 2097152},
    {UVDB_DB_DB2, "clob ( 2 g )", "CLOB", 2147483648},
    {UVDB_DB_DB2, "VARCHAR(10) FOR BIT DATA", "VARCHAR() FOR BIT DATA", 10},
    {UVDB_DB_DB2, "CHARACTER LARGE OBJECT(1K)", "CLOB", 1024},
    {UVDB_DB_DB2, "DECIMAL", "DECIMAL"},
    {UVDB_DB_MSSQL, "VARCHAR(MAX)", "VARCHAR(MAX)", 2147483647},
    {UVDB_DB_MSSQL, "nvarchar ( max )", "NVARCHAR(MAX)", 1073741823},
    {UVDB_DB_MSSQL, "DECIMAL ( 10 , 2 )", "DECIMAL", 10, 2},
    {UVDB_DB_MySQL, "TINYINT UNSIGNED", "TINYINT UNSIGNED"},
    {UVDB_DB_MySQL, "TINYINT(3) UNSIGNED", "TINYINT UNSIGNED"},
    {UVDB_DB_MySQL, "INT(11) UNSIGNED", "INTEGER UNSIGNED"},
    {UVDB_DB_MySQL, "int(11)", "INT"},
    {UVDB_DB_MySQL, "DATETIME(6)", "DATETIME", -1, 6},
    {UVDB_DB_MySQL, "CHAR(5) BINARY", "CHAR() BINARY", 5},
    {UVDB_DB_MySQL, "VARCHAR(9) CHARACTER SET utf8mb4", "VARCHAR", 9},
    {UVDB_DB_MySQL, "VARCHAR(9) CHARACTER SET utf8mb4 COLLATE utf8mb4_bin", "VARCHAR", 9},
    {UVDB_DB_MySQL, "FLOAT(7,4)", "FLOAT"},
    {UVDB_DB_TERADATA, "PERIOD(TIMESTAMP(6))", "PERIOD(TIMESTAMP())", -1, 6, -1, false},
    {UVDB_DB_TERADATA, "period ( time(2) with time zone )", "PERIOD(TIME() WITH TIME ZONE)", -1, 2, -1,
     false},
    {UVDB_DB_TERADATA, "PERIOD(DATE)", "PERIOD(DATE)", -1, -1, -1, false},
    {UVDB_DB_TERADATA, "INTERVAL SECOND(4,2)", "INTERVAL SECOND()", -1, 2, 4},
    {UVDB_DB_TERADATA, "VARCHAR(10) CHARACTER SET UNICODE", "VARCHAR() CHARACTER SET UNICODE", 10},
    {UVDB_DB_TERADATA, "VARCHAR(10) CHARACTER SET LATIN", "VARCHAR", 10},
    {UVDB_DB_POSTGRESQL, "INTEGER[]", "INTEGER[]"},
    {UVDB_DB_POSTGRESQL, "integer [3]", "INTEGER[]"},
    {UVDB_DB_POSTGRESQL, "NUMERIC(10,2)[]", "NUMERIC()[]", 10, 2},
    {UVDB_DB_POSTGRESQL, "varchar(10)[]", "CHARACTER VARYING()[]", 10},
    {UVDB_DB_POSTGRESQL, "TIMESTAMP(3)", "TIMESTAMP()", -1, 3},
    {UVDB_DB_POSTGRESQL, "TIMESTAMP(3) WITHOUT TIME ZONE", "TIMESTAMP()", -1, 3},
    {UVDB_DB_POSTGRESQL, "TIMESTAMP WITHOUT TIME ZONE", "TIMESTAMP"},
    {UVDB_DB_POSTGRESQL, "double  precision", "DOUBLE PRECISION"},
    {UVDB_DB_INFORMIX, "DATETIME YEAR TO FRACTION(3)", "DATETIME YEAR TO FRACTION()", -1, 3},
    {UVDB_DB_INFORMIX, "INTERVAL HOUR(3) TO FRACTION(2)", "INTERVAL HOUR() TO FRACTION()", -1, 2, 3},
    {UVDB_DB_INFORMIX, "INTERVAL HOUR TO MINUTE", "INTERVAL HOUR() TO MINUTE"},
    // what databases write beside the name and its numbers
    {UVDB_DB_MySQL, "int(10) unsigned zerofill", "INTEGER UNSIGNED"},
    {UVDB_DB_MySQL, "INT ZEROFILL UNSIGNED", "INTEGER UNSIGNED"},
    {UVDB_DB_MySQL, "smallint(5) zerofill", "SMALLINT UNSIGNED"},
    {UVDB_DB_MySQL, "DECIMAL(9,2) UNSIGNED", "DECIMAL", 9, 2},
    {UVDB_DB_MySQL, "bigint(20) unsigned NOT NULL AUTO_INCREMENT COMMENT 'a (b), c'", "BIGINT UNSIGNED"},
    {UVDB_DB_MySQL, "char(3) charset latin1 binary", "CHAR", 3},
    {UVDB_DB_MSSQL, "varchar(50) COLLATE Latin1_General_CI_AS", "VARCHAR", 50},
    {UVDB_DB_MSSQL, "int IDENTITY(1,1) NOT FOR REPLICATION NOT NULL", "INT"},
    {UVDB_DB_MSSQL, "[decimal] (8, 2)", "DECIMAL", 8, 2},
    {UVDB_DB_MSSQL, "[sys].[nvarchar](max)", "NVARCHAR(MAX)", 1073741823},
    {UVDB_DB_MSSQL, "[XML]([Sales].[Store Survey])", "XML"},
    {UVDB_DB_DB2, "VARCHAR(10) FOR SBCS DATA CCSID 37", "VARCHAR", 10},
    {UVDB_DB_DB2, "INTEGER GENERATED ALWAYS AS IDENTITY (START WITH 1, INCREMENT BY 1)", "INTEGER"},
    {UVDB_DB_TERADATA, "DATE FORMAT 'YYYY-MM-DD'", "DATE"},
    {UVDB_DB_POSTGRESQL, "public.geometry(Point,4326)", "GEOMETRY"},
    {UVDB_DB_POSTGRESQL, "varchar(10) collate \"de_DE\"", "VARCHAR", 10},
    {UVDB_DB_ORA, "\"SDO_GEOMETRY\"", "SDO_GEOMETRY"},
    // names that the tables have by another name
    {UVDB_DB_MySQL, "ENUM('a','it''s, (b)','\\'')", "VARCHAR", 9},
    {UVDB_DB_MySQL, "set(\"ä\", \"bb\") character set utf8mb4", "VARCHAR", 4},
    {UVDB_DB_MySQL, "YEAR(4)", "SMALLINT"},
    {UVDB_DB_MySQL, "CHAR(3) BYTE", "BINARY", 3},
    {UVDB_DB_POSTGRESQL, "FLOAT(24)", "REAL"},
    {UVDB_DB_POSTGRESQL, "FLOAT(25)", "DOUBLE PRECISION"},
    {UVDB_DB_POSTGRESQL, "float", "DOUBLE PRECISION"},
    {UVDB_DB_POSTGRESQL, "interval day to second(3)", "INTERVAL()", -1, 3},
    {UVDB_DB_POSTGRESQL, "name", "VARCHAR", 63},
    {UVDB_DB_POSTGRESQL, "integer array[3]", "INTEGER[]"},
    {UVDB_DB_POSTGRESQL, "int4[][]", "INTEGER[]"},
    {UVDB_DB_ORA, "NATIONAL CHARACTER VARYING(5)", "NVARCHAR2", 5},
    {UVDB_DB_DB2, "LONG VARCHAR FOR BIT DATA", "VARCHAR() FOR BIT DATA", 32672},
    {UVDB_DB_ORA, "YEAR", "YEAR", -1, -1, -1, false}, // of MySQL alone
    {UVDB_DB_POSTGRESQL, "inet", "INET", -1, -1, -1, false},
    {UVDB_DB_MySQL, "vector('x')", "VECTOR", -1, -1, -1, false},
    {UVDB_DB_ORA, "no such type(7, 3)", "NO SUCH TYPE", 7, 3, -1, false},
    {UVDB_DB_ORA, "owner.my_type", "OWNER.MY_TYPE", -1, -1, -1, false},
};

TEST(TypeText, NamesAndNumbersAreTold)
{
    for (const SReadCase& c : kTexts) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.text);
        const STypeText type = ReadTypeText(Db(c.db), c.text);
        EXPECT_EQ(type.error, "");
        EXPECT_EQ(type.name, c.name);
        EXPECT_EQ(type.isKnown, c.isKnown);
        EXPECT_EQ(DBMSToUVDBDataType(Db(c.db), type.name.c_str()) != -1, c.isKnown) << "the look-ups agree";
        const STypeNumbers& numbers = type.numbers;
        const auto given = [](bool has, auto number) { return has ? static_cast<long>(number) : -1; };
        EXPECT_EQ(given(numbers.hasSize, numbers.size), c.size);
        EXPECT_EQ(given(numbers.hasScale, numbers.scale), c.scale);
        EXPECT_EQ(given(numbers.hasLeadingPrecision, numbers.leadingPrecision), c.leading);
    }
}

TEST(TypeText, BadTextsAreRefusedWithTheirReason)
{
    struct SCase
    {
        std::uint64_t db;
        std::string text;
        const char* reason; // part of the message
    };
    const SCase kCases[] = {
        {UVDB_DB_ORA, "", "no type"},
        {UVDB_DB_ORA, " \t", "no type"},
        {UVDB_DB_ORA, "(10)", "no type name"},
        {UVDB_DB_ORA, "10", "no type name"},
        {UVDB_DB_ORA, "NUMBER(10", "\")\" is missing"},
        {UVDB_DB_ORA, "NUMBER 10)", "unexpected \")\""},
        {UVDB_DB_ORA, "NUMBER(10))", "unexpected \")\""},
        {UVDB_DB_ORA, "NUMBER((10))", "inside parentheses"},
        {UVDB_DB_ORA, "NUMBER(10)(2)", "two pairs"},
        {UVDB_DB_ORA, "NUMBER(ten)", "expected instead of \"TEN\""},
        {UVDB_DB_ORA, "NUMBER(10,)", "expected instead of \"\""},
        {UVDB_DB_ORA, "NUMBER(10,2,1)", "too many parameters"},
        {UVDB_DB_ORA, "NUMBER(-1)", "negative"},
        {UVDB_DB_ORA, "NUMBER(10K)", "expected instead of \"10K\""},
        {UVDB_DB_ORA, "NUMBER(10,9999999999)", "too large"},
        {UVDB_DB_ORA, "VARCHAR2(99999999999999999999)", "too large"},
        {UVDB_DB_ORA, "VARCHAR2(9000000000G)", "too large"},
        {UVDB_DB_ORA, "VARCHAR2(-9223372036854775808K)", "too large"},
        {UVDB_DB_ORA, "VARCHAR2(10 apples)", "expected instead of \"10 APPLES\""},
        {UVDB_DB_ORA, "NUMBER; DROP", "unexpected \";\""},
        {UVDB_DB_ORA, std::string("NU\1BER"), "control character"},
        {UVDB_DB_ORA, std::string(kMaxTypeNameBytes + 1, 'A'), "too long"},
        {UVDB_DB_POSTGRESQL, "INTEGER[", "\"]\" is missing"},
        {UVDB_DB_TERADATA, "PERIOD(TIMESTAMP(6)", "is missing"},
        {UVDB_DB_TERADATA, "PERIOD(TIMESTAMP(x))", "expected instead of \"X\""},
        {UVDB_DB_MySQL, "INT(eleven)", "expected instead of \"ELEVEN\""},
        {UVDB_DB_MySQL, "INT('11')", "expected instead of \"'11'\""},
        {UVDB_DB_MySQL, "ENUM", "ENUM needs its values"},
        {UVDB_DB_MySQL, "ENUM('a','b)", "\"'\" is missing"},
        {UVDB_DB_MySQL, "ENUM('a'", "\")\" is missing"},
        {UVDB_DB_MySQL, "SET('a',b)", "SET needs its values"},
        {UVDB_DB_MSSQL, "[int", "\"]\" is missing"},
        {UVDB_DB_ORA, "NUMBER(" + std::string(300, '9') + ")", "9...\" is too large"},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(c.text.substr(0, 50));
        const STypeText type = ReadTypeText(Db(c.db), c.text);
        EXPECT_NE(type.error.find(c.reason), std::string::npos) << type.error;
        EXPECT_EQ(type.name, "");
    }
}

TEST(TypeText, WhatTheNameDoesntSayIsKept)
{
    struct SCase
    {
        std::uint64_t db;
        const char* text;
        bool identity; // by a word
        bool hasNumbering;
        enUVDB_LENGTH_UNIT unit = UVDB_LENGTH_UNIT_NOT_TOLD;
        const char* characterSet = "";
        std::size_t valueCount = 0;
        const char* writtenName = "";
    };
    constexpr SCase kCases[] = {
        {UVDB_DB_MSSQL, "int identity(1,1)", true, true},
        {UVDB_DB_MSSQL, "smallint identity", false, true}, // a name of the table
        {UVDB_DB_MySQL, "int auto_increment", true, true},
        {UVDB_DB_MySQL, "serial", false, true, {}, "", 0, "SERIAL"},
        {UVDB_DB_POSTGRESQL, "bigserial", false, true},
        {UVDB_DB_ORA, "NUMBER(5) GENERATED BY DEFAULT ON NULL AS IDENTITY", true, true},
        {UVDB_DB_MSSQL, "int", false, false},
        {UVDB_DB_ORA, "VARCHAR2(5 CHAR)", false, false, UVDB_LENGTH_UNIT_CHARACTERS},
        {UVDB_DB_DB2, "VARCHAR(5 OCTETS)", false, false, UVDB_LENGTH_UNIT_BYTES},
        {UVDB_DB_ORA, "VARCHAR2(5)", false, false},
        {UVDB_DB_MySQL, "varchar(5) character set latin1 collate x", false, false, {}, "LATIN1"},
        {UVDB_DB_MySQL, "enum('a','b')", false, false, {}, "", 2, "ENUM"},
        {UVDB_DB_POSTGRESQL, "citext", false, false, {}, "", 0, "CITEXT"},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(c.text);
        const STypeText type = ReadTypeText(Db(c.db), c.text);
        EXPECT_TRUE(type.isKnown);
        EXPECT_EQ(type.identity, c.identity);
        EXPECT_EQ(type.hasNumbering, c.hasNumbering);
        EXPECT_EQ(type.lengthUnit, c.unit);
        EXPECT_EQ(type.characterSet, c.characterSet);
        EXPECT_EQ(type.valueCount, c.valueCount);
        EXPECT_EQ(type.writtenName, c.writtenName);
    }
    EXPECT_FALSE(ReadTypeText(Db(UVDB_DB_ORA), "int identity").isKnown);
}

TEST(TypeText, AnIntervalsFieldsAreItsType)
{
    EXPECT_EQ(ReadTypeText(Db(UVDB_DB_POSTGRESQL), "INTERVAL YEAR TO MONTH").uvdbType, 62);
    EXPECT_EQ(ReadTypeText(Db(UVDB_DB_POSTGRESQL), "INTERVAL").uvdbType, -1);
}

TEST(TypeText, LanguagesAreFoundInTheirCase)
{
    const STypeText type = ReadTypeText(Db(UVDB_DB_JAVA), "BigDecimal");
    EXPECT_TRUE(type.isKnown);
    EXPECT_EQ(type.name, "BigDecimal");
    EXPECT_NE(type.uvdbType, -1);
    EXPECT_FALSE(ReadTypeText(Db(UVDB_DB_JAVA), "bigDecimal").isKnown);
}

struct SCompleteCase
{
    std::uint64_t db;
    const char* text;
    unsigned long size;
    long scale;
    long leading = 0;
};

// What a database assumes for the numbers that weren't written.
constexpr SCompleteCase kComplete[] = {
    {UVDB_DB_ORA, "NUMBER", 0, 0},
    {UVDB_DB_ORA, "NUMBER(5)", 5, 0},
    {UVDB_DB_ORA, "CHAR", 1, 0},
    {UVDB_DB_ORA, "CHAR(7)", 7, 0},
    {UVDB_DB_ORA, "TIMESTAMP", 26, 6}, // three digits less than the longest one
    {UVDB_DB_ORA, "TIMESTAMP(0)", 19, 0},
    {UVDB_DB_ORA, "INTERVAL YEAR TO MONTH", 15, 0, 2},
    {UVDB_DB_MSSQL, "DECIMAL", 18, 0},
    {UVDB_DB_MSSQL, "VARCHAR", 1, 0},
    {UVDB_DB_MSSQL, "DATETIME2", 27, 7},
    {UVDB_DB_MSSQL, "DATETIME", 23, 3},
    {UVDB_DB_MSSQL, "MONEY", 19, 4},
    {UVDB_DB_MSSQL, "INT", 10, 0},
    {UVDB_DB_MySQL, "DECIMAL", 10, 0},
    {UVDB_DB_MySQL, "DATETIME", 19, 0},
    {UVDB_DB_MySQL, "TEXT", 65535, 0},
    {UVDB_DB_DB2, "DECIMAL", 5, 0},
    {UVDB_DB_DB2, "CLOB", 1048576, 0},
    {UVDB_DB_POSTGRESQL, "VARCHAR", 0, 0},
    {UVDB_DB_TERADATA, "INTERVAL DAY", 3, 0, 2},
    {UVDB_DB_POSTGRESQL, "INTERVAL", 49, 6, 9}, // no limit in front
    {UVDB_DB_INFORMIX, "INTERVAL YEAR TO MONTH", 13, 0, 4},
    {UVDB_DB_ORA, "NOSUCH", 0, 0},
};

TEST(TypeText, MissingNumbersAreTheDatabasesOwn)
{
    for (const SCompleteCase& c : kComplete) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.text);
        STypeText type = ReadTypeText(Db(c.db), c.text);
        CompleteTypeNumbers(Db(c.db), type);
        EXPECT_EQ(type.numbers.size, c.size);
        EXPECT_EQ(type.numbers.scale, c.scale);
        EXPECT_EQ(type.numbers.leadingPrecision, c.leading);
    }
}

TEST(TypeText, DigitsArePrecisionAndCharactersLength)
{
    STypeText number = ReadTypeText(Db(UVDB_DB_ORA), "NUMBER(10,2)");
    EXPECT_EQ(SourceTypeOf(Db(UVDB_DB_ORA), number).precision, 10u);
    EXPECT_EQ(SourceTypeOf(Db(UVDB_DB_ORA), number).length, 0u);
    STypeText text = ReadTypeText(Db(UVDB_DB_ORA), "VARCHAR2(10)");
    EXPECT_EQ(SourceTypeOf(Db(UVDB_DB_ORA), text).length, 10u);
    EXPECT_EQ(SourceTypeOf(Db(UVDB_DB_ORA), text).precision, 0u);
}

// A text in the form in which types are written comes back as it was.
TEST(TypeText, WrittenTypesReadBack)
{
    struct SCase
    {
        std::uint64_t db;
        const char* text;
    };
    constexpr SCase kCases[] = {
        {UVDB_DB_ORA, "NUMBER(10,2)"},
        {UVDB_DB_ORA, "NUMBER"},
        {UVDB_DB_INFORMIX, "DECIMAL(10,2)"},
        {UVDB_DB_ORA, "VARCHAR2(30)"},
        {UVDB_DB_ORA, "TIMESTAMP(3) WITH TIME ZONE"},
        {UVDB_DB_ORA, "INTERVAL DAY(2) TO SECOND(6)"},
        {UVDB_DB_DB2, "CLOB(2M)"},
        {UVDB_DB_DB2, "VARCHAR(10) FOR BIT DATA"},
        {UVDB_DB_MSSQL, "NVARCHAR(MAX)"},
        {UVDB_DB_MSSQL, "DATETIME2(3)"},
        {UVDB_DB_MySQL, "DATETIME(3)"},
        {UVDB_DB_MySQL, "BIGINT UNSIGNED"},
        {UVDB_DB_TERADATA, "PERIOD(TIMESTAMP(6) WITH TIME ZONE)"},
        {UVDB_DB_TERADATA, "INTERVAL SECOND(4,2)"},
        {UVDB_DB_POSTGRESQL, "CHARACTER VARYING(10)[]"},
        {UVDB_DB_INFORMIX, "INTERVAL HOUR(3) TO FRACTION(2)"},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.db << ' ' << c.text);
        STypeText type = ReadTypeText(Db(c.db), c.text);
        CompleteTypeNumbers(Db(c.db), type);
        EXPECT_EQ(FormatDBMSDataType(Db(c.db), type.name.c_str(), static_cast<long>(type.numbers.size),
                                     type.numbers.scale, type.numbers.leadingPrecision, -1),
                  c.text);
    }
}

TEST(TypeText, NumbersAndTextsReachTheirLimits)
{
    const struct
    {
        std::uint64_t db;
        std::string text;
        unsigned long size; // 0: refused
    } cases[] = {
        {UVDB_DB_DB2, "CLOB(9007199254740991K)", 9223372036854774784ul},
        {UVDB_DB_DB2, "CLOB(9007199254740992K)", 0},
        {UVDB_DB_ORA, "NUMBER(2147483647)", 2147483647},
        {UVDB_DB_ORA, "NUMBER(2147483648)", 0},
        {UVDB_DB_ORA, "NUMBER(" + std::string(kMaxTypeTextBytes - 10, ' ') + "10)", 10},
        {UVDB_DB_ORA, "NUMBER(" + std::string(kMaxTypeTextBytes - 9, ' ') + "10)", 0},
        {UVDB_DB_MySQL, "ENUM(')", 0},
        {UVDB_DB_MySQL, "SET('a','b','c')", 5},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text.substr(0, 40));
        const STypeText type = ReadTypeText(Db(c.db), c.text);
        EXPECT_EQ(type.error.empty(), c.size != 0) << type.error;
        EXPECT_EQ(type.numbers.size, c.size);
    }
}

} // namespace
