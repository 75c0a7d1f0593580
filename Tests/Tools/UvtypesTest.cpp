#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Support/ProgramFixture.h"
#include "Tools/Support/ToolDatabase.h"
#include "Tools/uvtypes/Capacity.h"
#include "Tools/uvtypes/Losses.h"
#include "Tools/uvtypes/TypeMap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

class Uvtypes : public CProgramFixture
{
protected:
    Uvtypes() : CProgramFixture("uvtypes") {}

    SRunResult Map(const std::string& from, const std::string& to, const std::string& rest) const
    {
        return Run("map --from '" + from + "' --to '" + to + "' " + rest);
    }
};

TEST_F(Uvtypes, AllFormatsSayTheSame)
{
    const std::string types = "'NUMBER(10,2)' 'VARCHAR2(4000)' 'TIMESTAMP(9)' --check --explain --quiet";
    const std::string tsv = Map("ora", "mssql", types + " --format tsv").out;
    const SRunResult run = Map("ora", "mssql", types + " --format json");
    EXPECT_EQ(run.code, 1);
    ExpectSameInJson(tsv, run.out);
    const std::vector<Texts> rows = Rows(tsv);
    ASSERT_EQ(rows.size(), 3u);
    for (std::size_t i = 0; i < rows.size(); ++i) // a code page, and no room for a ninth digit
        EXPECT_EQ(rows[i].at(4).empty(), i == 0) << rows[i][4];
}

TEST_F(Uvtypes, StandardInputIsReadToItsEnd)
{
    Put("in", "NUMBER(5)\r\n\n  varchar2( 10 )\t\nNOSUCH\nVARCHAR2(\nNUMBR(3)\n\xFF\nDATE");
    const SRunResult run = Map("Oracle", "MySQL", "--format tsv -");
    EXPECT_EQ(run.code, 1);
    const std::vector<Texts> rows = Rows(run.out);
    ASSERT_EQ(rows.size(), 7u) << "every line but the blank one has its answer";
    EXPECT_EQ(rows[0][0], "NUMBER(5)");
    EXPECT_EQ(rows[1][0], "varchar2( 10 )");
    EXPECT_EQ(rows[1][3], "VARCHAR(10)");
    for (const std::size_t unknown : {2u, 3u, 4u, 5u})
        EXPECT_EQ(rows[unknown].at(1), "unknown");
    EXPECT_EQ(rows[2][0], "NOSUCH");
    EXPECT_EQ(rows[5][0], "\xEF\xBF\xBD") << "no byte that isn't UTF-8 goes out";
    EXPECT_EQ(rows[6][0], "DATE");
    const Texts messages = Split(run.err, '\n');
    ASSERT_EQ(messages.size(), 4u) << run.err;
    EXPECT_THAT(messages[0], StartsWith("<stdin>:4: error: Oracle: there is no type 'NOSUCH'"));
    EXPECT_THAT(messages[1], StartsWith("<stdin>:5: error: "));
    EXPECT_THAT(messages[2],
                HasSubstr("<stdin>:6: error: Oracle: there is no type 'NUMBR'; did you mean 'NUMBER'"));
    EXPECT_THAT(messages[3], StartsWith("<stdin>:7: error: "));
    EXPECT_EQ(nlohmann::json::parse(Map("Oracle", "MySQL", "--format json -").out).size(), 7u);
}

TEST_F(Uvtypes, FilesAreReadLikeStandardInput)
{
    Put("types.txt", "\xEF\xBB\xBFNUMBER(5)\r\nNOSUCH\n");
    Put("DATE", "CLOB\n");
    Put("in", "RAW(5)\n");
    const SRunResult run = Map("Oracle", "MySQL", "--format tsv --check types.txt DATE ./DATE - nofile");
    EXPECT_EQ(run.code, 1);
    const Texts expected = {"NUMBER(5)", "NOSUCH", "DATE", "CLOB", "RAW(5)", "nofile"};
    const std::vector<Texts> rows = Rows(run.out);
    ASSERT_EQ(rows.size(), expected.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        EXPECT_EQ(rows[i][0], expected[i]);
    EXPECT_THAT(run.err, HasSubstr("types.txt:2: error: Oracle: there is no type 'NOSUCH'"));
    EXPECT_THAT(run.err, HasSubstr("uvtypes: error: Oracle: there is no type 'NOFILE'"));
}

TEST_F(Uvtypes, ExplanationNamesWhatStandsInForAType)
{
    EXPECT_THAT(Map("MySQL", "Oracle", "--explain \"SET('a','b')\"").out,
                HasSubstr("read          VARCHAR, size 3, in place of SET of 2 values\n"));
    EXPECT_THAT(Map("PostgreSQL", "Oracle", "--explain inet").out,
                HasSubstr("    unknown       there is no type 'INET'"));
}

TEST_F(Uvtypes, EachLineIsAnsweredBeforeTheNextIsThere)
{
    for (const std::string format : {"table", "tsv", "json"})
        ExpectAnsweredLineByLine("map --from Oracle --to MySQL --format " + format);
}

TEST_F(Uvtypes, WhatCantBeDoneIsSaid)
{
    ExpectRefused({
        {"", "no command given"},
        {"mapp", "there is no command 'mapp'"},
        {"list", "usage: uvtypes list DB"},
        {"list Oracel", "no database is called 'Oracel'; did you mean 'Oracle'"},
        {"list postgres", "did you mean 'PostgreSQL'"},
        {"list Excel", "no types of Excel are known"},
        {"list Oracle:x", "'x' in 'Oracle:x' is no number"},
        {"list Oracle --format xml", "--format takes table, tsv or json"},
        {"map --to MySQL DATE", "map needs --from and --to"},
        {"map --from Oracle --to MySQL", "no type given"},
        {"map --from Oracle --to MySQL --all DATE", "name none"},
        {"map --from Oracle --to MySQL - -", "'-' stands there once"},
        {"map --from Oracle --to MySQL missing/types.txt", "missing/types.txt: No such file"},
        {"map --from Oracle --to MySQL ./", "./: Is a directory"},
        {"map --from Oracle --to Excel DATE", "Excel can't be a target"},
        {"map --from Oracle --to MySQL --al", "unrecognised option"},
        {"list Oracle > /dev/full", "standard output"},
    });
}

TEST_F(Uvtypes, AnyNameAndVersionOfTheCatalogueWillDo)
{
    struct SCase
    {
        const char* to;
        const char* type;
        const char* target;
    };
    const SCase cases[] = {
        {"ora", "TIMESTAMP(6)", "TIMESTAMP(6)"},
        {"Oracle:8.1", "TIMESTAMP(6)", "DATE"},
        {"1:8", "TIMESTAMP(6)", "DATE"},
        {"1:-1", "", nullptr},
        {"Microsoft SQL Server:8.0", "CLOB", "TEXT"},
        {"MSSQL", "CLOB", "VARCHAR(MAX)"},
        {"Microsoft Azure SQL Database", "CLOB", "VARCHAR(MAX)"},
        {"Amazon Aurora (compatibility with PostgreSQL)", "CLOB", "TEXT"},
    };
    for (const SCase& c : cases) {
        SCOPED_TRACE(c.to);
        const SRunResult run = Map("Oracle", c.to, std::string("--format tsv '") + c.type + "'");
        if (c.target == nullptr) {
            EXPECT_EQ(run.code, 2);
            continue;
        }
        ASSERT_EQ(run.code, 0) << run.err;
        EXPECT_EQ(Rows(run.out).at(0).at(3), c.target);
    }
}

TEST_F(Uvtypes, ExplanationNamesExceptionsOnce)
{
    const std::string unlimited =
        Map("MSSQL", "PostgreSQL", "--explain 'nvarchar ( max )' 'nvarchar(30)'").out;
    const std::size_t exception = unlimited.find("exception     SQL Server to PostgreSQL: NVARCHAR(MAX)");
    EXPECT_LT(exception, unlimited.find("nvarchar(30)")) << unlimited;
    EXPECT_EQ(unlimited.rfind("exception"), exception);
}

TEST_F(Uvtypes, CheckTellsScripts)
{
    const SRunResult clean = Map("Oracle", "PostgreSQL", "--check 'VARCHAR2(10)'");
    EXPECT_EQ(clean.code, 0);
    EXPECT_EQ(clean.err, "");
    const SRunResult lossy = Map("MSSQL", "MySQL", "--check 'DATETIMEOFFSET(7)'");
    EXPECT_EQ(lossy.code, 1);
    EXPECT_THAT(lossy.err, StartsWith("uvtypes: warning: DATETIMEOFFSET(7) as "));
    EXPECT_THAT(lossy.err, HasSubstr("time zone: none here\n"));
    EXPECT_THAT(lossy.out, HasSubstr("time zone: none here"));
    const SRunResult quiet = Map("MSSQL", "MySQL", "--check --quiet 'DATETIMEOFFSET(7)'");
    EXPECT_EQ(quiet.code, 1);
    EXPECT_EQ(quiet.err, "");
    EXPECT_EQ(quiet.out, lossy.out);
    EXPECT_EQ(Map("MSSQL", "MySQL", "'DATETIMEOFFSET(7)'").code, 0);
}

TEST_F(Uvtypes, AllTakesEveryNameOfTheTable)
{
    for (const std::string from : {"Oracle", "SYBASE_ASE", "Informix", "PostgreSQL"}) {
        SCOPED_TRACE(from);
        const SRunResult run = Map(from, "MSSQL", "--all --format tsv");
        EXPECT_EQ(run.code, 0) << run.err;
        std::set<std::string> sources;
        const DB_VERSION_INFO version = ReadDatabaseText(from);
        for (const Texts& row : Rows(run.out)) {
            EXPECT_TRUE(sources.insert(row.at(0)).second) << row.at(0) << " twice";
            EXPECT_THAT(row.at(3), Not(testing::AnyOf("", "UNKNOWN"))) << row.at(0);
        }
        // By their keys: one of each name at least.
        std::set<std::string> names;
        for (const std::string& source : sources)
            names.insert(ReadTypeText(version, source).name.c_str());
        for (const SDataTypeParams& row : GetDBMSDataTypeParamsList(version))
            EXPECT_EQ(names.count(row.name), 1u) << row.name;
    }
}

TEST_F(Uvtypes, HelpIsThatOfTheCommand)
{
    const std::string help = Run("list --help").out;
    EXPECT_THAT(help, HasSubstr("e.g. uvtypes list Informix\n"));
    EXPECT_THAT(help, Not(HasSubstr("--explain")));
}

struct SLossCase
{
    std::uint64_t from;
    const char* source;
    std::uint64_t to;
    const char* target;
    const char* loss; // where it begins; empty: none
};

// Not every case is one that the mapping makes: the check is there for those that it shouldn't make.
TEST(UvtypesLosses, WhatDoesntFitIsFound)
{
    const SLossCase cases[] = {
        {UVDB_DB_ORA, "VARCHAR2(100)", UVDB_DB_MySQL, "VARCHAR(100)", ""},
        {UVDB_DB_ORA, "VARCHAR2(100)", UVDB_DB_MySQL, "VARCHAR(99)", "length: 100 there, 99 here"},
        {UVDB_DB_ORA, "RAW(16)", UVDB_DB_PostgreSQL_AMAZON_AURORA, "BYTEA",
         ""}, // a kind without types of its own
        {UVDB_DB_ORA, "RAW(16)", UVDB_DB_MySQL, "VARCHAR(16)", "family: bytes there, text here"},
        {UVDB_DB_ORA, "NVARCHAR2(5)", UVDB_DB_MSSQL, "VARCHAR(5)", "character set: Unicode there"},
        {UVDB_DB_ORA, "NVARCHAR2(5)", UVDB_DB_MSSQL, "NVARCHAR(5)", ""},
        {UVDB_DB_MSSQL, "NVARCHAR(5)", UVDB_DB_POSTGRESQL, "VARCHAR(5)", ""}, // Unicode as well
        {UVDB_DB_MySQL, "VARCHAR(5) CHARACTER SET latin1", UVDB_DB_MSSQL, "VARCHAR(5)", ""},
        {UVDB_DB_MySQL, "VARCHAR(5) CHARACTER SET utf8mb4", UVDB_DB_MSSQL, "VARCHAR(5)", "character set: "},
        {UVDB_DB_TERADATA, "VARCHAR(5)", UVDB_DB_MSSQL, "VARCHAR(5)", ""},
        {UVDB_DB_POSTGRESQL, "VARCHAR(5)", UVDB_DB_ORA, "VARCHAR2(5)",
         "length: 5 characters there, 5 bytes here"},
        {UVDB_DB_POSTGRESQL, "VARCHAR(5)", UVDB_DB_ORA, "VARCHAR2(5 CHAR)", ""},
        {UVDB_DB_POSTGRESQL, "VARCHAR(5)", UVDB_DB_ORA, "VARCHAR2(20)", ""}, // room for four bytes each
        {UVDB_DB_POSTGRESQL, "VARCHAR(5)", UVDB_DB_ORA, "VARCHAR2(19)", "length: 5 characters there"},
        {UVDB_DB_ORA, "VARCHAR2(5 CHAR)", UVDB_DB_DB2, "VARCHAR(5)", "length: 5 characters there"},
        {UVDB_DB_ORA, "VARCHAR2(5)", UVDB_DB_DB2, "VARCHAR(5)", ""},
        {UVDB_DB_MSSQL, "VARCHAR(5)", UVDB_DB_ORA, "VARCHAR2(5)", "length: 5 bytes of a code page there"},
        {UVDB_DB_POSTGRESQL, "VARCHAR", UVDB_DB_ORA, "VARCHAR2(4000)", "length: no limit there"},
        {UVDB_DB_ORA, "CLOB", UVDB_DB_POSTGRESQL, "TEXT", ""}, // nobody has a text of 2 G
        {UVDB_DB_MySQL, "LONGTEXT", UVDB_DB_DB2, "CLOB(1M)", "length: "},
        {UVDB_DB_MySQL, "ENUM('a','b')", UVDB_DB_POSTGRESQL, "VARCHAR(1)", "values: only 2"},
        {UVDB_DB_POSTGRESQL, "CITEXT", UVDB_DB_POSTGRESQL, "TEXT", "case: "},
        {UVDB_DB_MSSQL, "INT IDENTITY(1,1)", UVDB_DB_POSTGRESQL, "INTEGER", "numbering: "},
        {UVDB_DB_MSSQL, "INT IDENTITY(1,1)", UVDB_DB_POSTGRESQL, "SERIAL", ""},
        {UVDB_DB_POSTGRESQL, "BIGSERIAL", UVDB_DB_ORA, "NUMBER(19)", "numbering: "},
        {UVDB_DB_POSTGRESQL, "NUMERIC", UVDB_DB_ORA, "NUMBER", ""}, // both as many as are used
        {UVDB_DB_ORA, "NUMBER", UVDB_DB_POSTGRESQL, "NUMERIC", ""},
        {UVDB_DB_ORA, "NUMBER", UVDB_DB_MSSQL, "FLOAT", "precision: 38 digits there, 15 digits here"},
        {UVDB_DB_POSTGRESQL, "NUMERIC", UVDB_DB_MSSQL, "FLOAT", "precision: an exact number there"},
        {UVDB_DB_POSTGRESQL, "NUMERIC", UVDB_DB_MSSQL, "DECIMAL(38,10)", "scale: any there, 10 here"},
        {UVDB_DB_POSTGRESQL, "NUMERIC(34,2)", UVDB_DB_DB2, "DECFLOAT(34)", ""},
        {UVDB_DB_POSTGRESQL, "NUMERIC(35,2)", UVDB_DB_DB2, "DECFLOAT(34)", "precision: 35 digits there"},
        {UVDB_DB_MySQL, "DECIMAL(65,0)", UVDB_DB_ORA, "NUMBER(38)",
         "range: up to 65 digits before the point"},
        {UVDB_DB_MySQL, "TIMESTAMP", UVDB_DB_POSTGRESQL, "TIMESTAMP(0)", "time zone: "},
        {UVDB_DB_MySQL, "DATETIME", UVDB_DB_POSTGRESQL, "TIMESTAMP(0)", ""},
        {UVDB_DB_POSTGRESQL, "INTERVAL YEAR TO MONTH", UVDB_DB_ORA, "INTERVAL YEAR(9) TO MONTH", ""},
        {UVDB_DB_POSTGRESQL, "INTERVAL", UVDB_DB_ORA, "INTERVAL YEAR(9) TO MONTH", "range: the interval"},
        {UVDB_DB_ORA, "NUMBER(10,2)", UVDB_DB_MSSQL, "DECIMAL(10,2)", ""},
        {UVDB_DB_ORA, "NUMBER(10,2)", UVDB_DB_MSSQL, "DECIMAL(10,1)", "scale: 2 there, 1 here"},
        {UVDB_DB_ORA, "NUMBER(10,2)", UVDB_DB_MSSQL, "DECIMAL(10,3)", "range: "}, // a digit less in front
        {UVDB_DB_ORA, "NUMBER(10,2)", UVDB_DB_MSSQL, "FLOAT", "precision: "},
        {UVDB_DB_ORA, "NUMBER(9)", UVDB_DB_MSSQL, "INT", ""},
        {UVDB_DB_ORA, "NUMBER(10)", UVDB_DB_MSSQL, "INT", "range: "},
        {UVDB_DB_ORA, "NUMBER(10)", UVDB_DB_MSSQL, "FLOAT", ""}, // exact up to 53 binary digits
        {UVDB_DB_MSSQL, "INT", UVDB_DB_ORA, "NUMBER(10)", ""},
        {UVDB_DB_MSSQL, "INT", UVDB_DB_ORA, "NUMBER(9)", "range: "},
        {UVDB_DB_MySQL, "SMALLINT UNSIGNED", UVDB_DB_MSSQL, "SMALLINT", "range: up to 65535"},
        {UVDB_DB_MySQL, "SMALLINT", UVDB_DB_MySQL, "SMALLINT UNSIGNED", "range: from -32768"},
        {UVDB_DB_MySQL, "MEDIUMINT", UVDB_DB_MSSQL, "INT", ""},
        {UVDB_DB_MySQL, "INT", UVDB_DB_MySQL, "MEDIUMINT", "range: "},
        {UVDB_DB_MSSQL, "FLOAT", UVDB_DB_MSSQL, "REAL", "precision: 15 digits there, 7 digits here"},
        {UVDB_DB_MSSQL, "DATETIMEOFFSET(3)", UVDB_DB_MSSQL, "DATETIME2(3)", "time zone: "},
        {UVDB_DB_MSSQL, "DATETIME2(7)", UVDB_DB_MSSQL, "DATETIME2(3)",
         "scale: 7 digits of a second there, 3 here"},
        {UVDB_DB_MSSQL, "DATETIME2(3)", UVDB_DB_MSSQL, "DATETIME", "range: years 1 to 9999"},
        {UVDB_DB_MSSQL, "DATETIME2(3)", UVDB_DB_MSSQL, "DATE", "range: no hour, minute, second here"},
        {UVDB_DB_MSSQL, "DATE", UVDB_DB_MSSQL, "DATETIME2(3)", ""},
        {UVDB_DB_ORA, "INTERVAL YEAR(4) TO MONTH", UVDB_DB_ORA, "INTERVAL DAY(4) TO SECOND(0)",
         "range: the interval"},
        {UVDB_DB_MSSQL, "UNIQUEIDENTIFIER", UVDB_DB_ORA, "RAW(16)", ""},
        {UVDB_DB_MSSQL, "UNIQUEIDENTIFIER", UVDB_DB_ORA, "RAW(15)", "family: "},
        {UVDB_DB_MSSQL, "XML", UVDB_DB_ORA, "CLOB", "family: XML there, text here"},
        {UVDB_DB_MSSQL, "BIT", UVDB_DB_POSTGRESQL, "BOOLEAN", ""},
        {UVDB_DB_MySQL, "BIT(8)", UVDB_DB_POSTGRESQL, "BOOLEAN", "family: bits"},
        {UVDB_DB_ORA, "NUMBER(5)", UVDB_DB_MySQL, "NOSUCH", ""}, // of which nothing is known
    };
    for (const SLossCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.source << " as " << c.target);
        STypeText source = ReadTypeText({.db = c.from}, c.source);
        ASSERT_TRUE(source.isKnown);
        CompleteTypeNumbers({.db = c.from}, source);
        const Texts losses =
            uvtypes::Losses(uvtypes::CapacityOf({.db = c.from}, source), {.db = c.to}, c.target);
        if (*c.loss == '\0')
            EXPECT_THAT(losses, testing::IsEmpty());
        else
            EXPECT_THAT(losses, testing::ElementsAre(StartsWith(c.loss)));
    }
}

TEST(UvtypesLosses, NoTypeHoldsLessThanItself)
{
    for (const std::uint64_t db : {UVDB_DB_ORA, UVDB_DB_MSSQL, UVDB_DB_MySQL, UVDB_DB_POSTGRESQL, UVDB_DB_DB2,
                                   UVDB_DB_SYBASE, UVDB_DB_INFORMIX, UVDB_DB_TERADATA}) {
        const DB_VERSION_INFO version{.db = db};
        for (const std::string& text : uvtypes::TypesOfTable(version)) {
            STypeText type = ReadTypeText(version, text);
            CompleteTypeNumbers(version, type);
            EXPECT_THAT(uvtypes::Losses(uvtypes::CapacityOf(version, type), version, text),
                        testing::IsEmpty())
                << db << ": " << text;
        }
    }
}

TEST(ToolDatabase, ALoneNumberIsWhatTheToolSays)
{
    EXPECT_EQ(ReadDatabaseText("Oracle:11").subType, 11u);
    EXPECT_EQ(ReadDatabaseText("Oracle:11", enLoneNumber::Version).major, 11u);
    EXPECT_EQ(ReadDatabaseText("Oracle:11.2").minor, 2u); // a dot tells it anyway
    EXPECT_EQ(ReadDatabaseText("MySQL:1:", enLoneNumber::Version).subType, 1u);
    EXPECT_EQ(ReadDatabaseText("SYBASE_ASE:15", enLoneNumber::Version).subType, 1u);
    EXPECT_THROW(ReadDatabaseText("Oracle:11.2.0", enLoneNumber::Version), CDatabaseError);
}

} // namespace
