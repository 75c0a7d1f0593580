#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/Identifiers/UVDBReservedWords.h"
#include "Tests/Support/ProgramFixture.h"
#include "Tools/uvnames/MarkupText.h"
#include "Tools/uvnames/NameMapping.h"
#include "Tools/uvnames/Reasons.h"
#include "UVEnvironment/UVEXml.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libxml/tree.h>

#include <string>
#include <vector>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

class Uvnames : public CProgramFixture
{
protected:
    Uvnames() : CProgramFixture("uvnames") {}

    SRunResult Convert(const std::string& from, const std::string& to, const std::string& rest = "") const
    {
        return Run("--from '" + from + "' --to '" + to + "' " + rest);
    }

    // The targets of the lines in "in".
    Texts Targets(const std::string& from, const std::string& to, const std::string& rest = "") const
    {
        Texts targets;
        for (const Texts& row : Rows(Convert(from, to, "--format tsv " + rest).out))
            targets.push_back(row.size() > 2 ? row[2] : "");
        return targets;
    }
};

TEST_F(Uvnames, AllFormatsSayTheSame)
{
    Put("in",
        "type\tserver\tschema\tobject\tsub\nTable\t\tsales\tOrder Items\nColumn\t\tsales\tOrder Items\t1st\n"
        "Index\t\tsales\tt\ta_very_long_name_for_an_index_of_oracle\n");
    const std::string tsv = Convert("MSSQL", "Oracle:11.2", "--format tsv").out;
    ExpectSameInJson(tsv, Convert("MSSQL", "Oracle:11.2", "--format json").out);
    const std::vector<Texts> rows = Rows(tsv);
    ASSERT_EQ(rows.size(), 3u);
    for (const Texts& row : rows)
        EXPECT_EQ(row.size(), 8u) << "no reason for " << row[1];
    EXPECT_EQ(rows[0][3], "sales");
    EXPECT_EQ(rows[0][4], "Order_Items");
    EXPECT_EQ(rows[1][5], "x1st");
    EXPECT_EQ(rows[2][5], "a_very_long_name_for_an_index_");
}

TEST_F(Uvnames, ASchemaIsCalledAsInTheNamesInIt)
{
    Put("in", "Table\t\tsales 1\tt\nschema\t\tsales-1\nschema\t\tsales 1\nTable\t\tsales-1\tt\n");
    EXPECT_THAT(Targets("MSSQL", "PostgreSQL"),
                ElementsAre("sales_1.t", "sales_12", "sales_1", "sales_12.t"));
    EXPECT_THAT(Targets("MSSQL", "PostgreSQL", "-o EMPTY_SCHEMA=1"), ElementsAre("t", "", "", "t2"));
    EXPECT_THAT(Targets("MSSQL", "PostgreSQL", "--schema one"), ElementsAre("one.t", "one", "one", "one.t2"));
}

TEST_F(Uvnames, LinesAreReadAsTheyAreWritten)
{
    Put("in", "\xEF\xBB\xBFtable\t\ts\tback\\\\slash\r\n\n \t "
              "\n0\t\t\tonly\nUserAccount\t\t\tu\nUSERACOUNT\t\t\tu2\n"
              "Table\t\t\tt1\t\ttemp\nTable\t\t\ttab\\there");
    const std::vector<Texts> rows = Rows(Convert("Oracle", "MSSQL", "--format tsv").out);
    ASSERT_EQ(rows.size(), 6u);
    EXPECT_EQ(rows[0][1], "s.back\\\\slash") << "one backslash, written as two";
    EXPECT_EQ(rows[0][2], "s.back_slash");
    EXPECT_EQ(rows[1][0], "Table");
    EXPECT_EQ(rows[2][0], "UserAcount");
    EXPECT_EQ(rows[3][0], "UserAcount");
    EXPECT_EQ(rows[4][2], "#t1");
    EXPECT_THAT(rows[4].back(), HasSubstr("Temporary table"));
    EXPECT_EQ(rows[5][1], "tab\\there");

    Put("names.tsv", "Table\t\t\tfrom_file\n");
    EXPECT_THAT(Targets("Oracle", "MSSQL", "names.tsv"), ElementsAre("from_file"));
}

TEST_F(Uvnames, LinesThatAreNoNamesAreNamed)
{
    Put("in", "Tabel\t\t\tt\nTable\t\t\tt\t\t\tx\nColumn\t\ts\t\tc\n99\t\t\tt\nTable\t\t\tgood\n"
              "Column\t\ts\tt\n");
    const SRunResult run = Convert("Oracle", "PostgreSQL", "--format tsv");
    EXPECT_EQ(run.code, 1);
    const Texts messages = Split(run.err, '\n');
    ASSERT_EQ(messages.size(), 5u) << run.err;
    EXPECT_THAT(messages[0], StartsWith("<stdin>:1: error: there is no type 'Tabel'"));
    EXPECT_THAT(messages[1], StartsWith("<stdin>:2: error: more than 6 fields"));
    EXPECT_THAT(messages[2], StartsWith("<stdin>:3: error: a name of type Column needs"));
    EXPECT_THAT(messages[3], StartsWith("<stdin>:4: error: there is no type '99'"));
    EXPECT_THAT(messages[4], StartsWith("<stdin>:6: error: a name of this type is a sub-object"));
    // Every line has its answer.
    const std::vector<Texts> rows = Rows(run.out);
    ASSERT_EQ(rows.size(), 6u);
    for (std::size_t i = 0; i < rows.size(); ++i)
        EXPECT_EQ(rows[i].back() == "Not read", i != 4) << i;
    EXPECT_EQ(rows[0][0], "Tabel");
    EXPECT_EQ(rows[2][1], "s.c");
}

TEST_F(Uvnames, FilesAreReadOneAfterTheOther)
{
    Put("in", "Table\t\ts\ta.b\n");
    Put("first.tsv", "type\tserver\nTable\t\ts\ta b\n");
    Put("second.tsv", "type\tserver\nTable\t\ts\ta-b\n");
    EXPECT_THAT(Targets("MSSQL", "PostgreSQL", "first.tsv second.tsv - first.tsv"),
                ElementsAre("s.a_b", "s.a_b2", "s.a_b3", "s.a_b"));
    Put("bytes.tsv", "Table\t\ts\t\xFF\nT\xFF\n");
    EXPECT_THAT(Convert("MSSQL", "PostgreSQL", "--format tsv bytes.tsv").out, Not(HasSubstr("\xFF")));
}

struct SClashCase
{
    const char* to;
    const char* first;
    const char* second;
    bool isTold;
};

TEST_F(Uvnames, NamesThatTheSchemaCantHoldTwiceAreTold)
{
    const SClashCase cases[] = {
        {"PostgreSQL", "Index\t\ts\tt\tix", "Index\t\ts\tu\tix", true},
        {"PostgreSQL", "Index\t\ts\tt\tix", "Index\t\ts\tu\tIX", true}, // plain names fold
        {"PostgreSQL", "Index\t\ts\tt\ti x", "Index\t\ts\tu\ti-x", true},
        {"PostgreSQL", "Index\t\ts\tt\tix", "Index\t\tr\tt\tix", false},
        {"PostgreSQL", "Table\t\ts\tt", "Index\t\ts\tu\tt", true},
        {"PostgreSQL", "PrimaryKey\t\ts\tt\tk", "Index\t\ts\tu\tk", true},
        {"PostgreSQL", "PrimaryKey\t\ts\tt\tk", "Index\t\ts\tt\tk", false}, // the index of the key
        {"PostgreSQL", "CheckConstraint\t\ts\tt\tc", "CheckConstraint\t\ts\tu\tc", false},
        {"Oracle", "CheckConstraint\t\ts\tt\tc", "CheckConstraint\t\ts\tu\tc", true},
        {"Oracle", "Table\t\ts\tt", "Index\t\ts\tu\tt", false},
        {"MySQL", "Index\t\ts\tt\tix", "Index\t\ts\tu\tix", false},
        {"MySQL", "ForeignKey\t\ts\tt\tf", "ForeignKey\t\ts\tu\tf", true},
        {"MSSQL", "Index\t\ts\tt\tix", "Index\t\ts\tu\tix", false},
        {"MSSQL", "PrimaryKey\t\ts\tt\tk", "PrimaryKey\t\ts\tu\tk", true},
        {"DB2", "Index\t\ts\tt\tix", "Index\t\ts\tt\tix", false}, // the same line twice
    };
    for (const SClashCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.to << ": " << c.first << " and " << c.second);
        Put("in", std::string(c.first) + '\n' + c.second + '\n');
        const SRunResult run = Convert("MSSQL", c.to, "--format tsv");
        EXPECT_EQ(run.code, c.isTold ? 1 : 0);
        EXPECT_EQ(run.err.find("<stdin>:2: warning: ") != std::string::npos, c.isTold) << run.err;
        const std::vector<Texts> rows = Rows(run.out);
        ASSERT_EQ(rows.size(), 2u);
        EXPECT_EQ(rows[1].back().find("Clashes in the schema") != std::string::npos, c.isTold);
    }
}

TEST_F(Uvnames, ALostDefaultSchemaIsNoChange)
{
    Put("in", "Table\t\tdbo\tt\nTable\t\tsales\tt\nTable\t\tDBO\ta b\nIndex\t\tsales\tt\tix\n"
              "Index\t\tsales\tt\ti x\n");
    const auto changed = [&](const std::string& options) {
        Texts sources;
        for (const Texts& row : Rows(Convert("MSSQL", "PostgreSQL", "--changed --format tsv " + options).out))
            sources.push_back(row[1]);
        return sources;
    };
    EXPECT_THAT(changed(""), ElementsAre("DBO.a b", "sales.t.i x"));
    EXPECT_THAT(changed("-o EMPTY_SCHEMA=1"), ElementsAre("sales.t", "DBO.a b", "sales.t.ix", "sales.t.i x"));
}

TEST_F(Uvnames, OptionsChangeTheRules)
{
    Put("in", "Column\t\ts\tt\tUnit Price\n");
    const auto targets = [&](const std::string& options) { return Targets("MSSQL", "PostgreSQL", options); };
    EXPECT_THAT(targets(""), ElementsAre("s.t.Unit_Price"));
    EXPECT_THAT(targets("-o COLUMN_NAME_CASE=2"), ElementsAre("s.t.unit_price"));
    EXPECT_THAT(targets("-o REPLACE_NOT_ALLOWED_CHARS=__"), ElementsAre("s.t.Unit__Price"));
    EXPECT_THAT(targets("-o REPLACE_NOT_ALLOWED_CHARS="), ElementsAre("s.t.UnitPrice"));
    EXPECT_THAT(targets("-o REPLACE_NOT_ALLOWED_CHARS= -o REMOVE_NOT_ALLOWED_CHARS=0"),
                ElementsAre("s.t.Unit Price"));
    EXPECT_THAT(targets("--schema public -o EMPTY_SCHEMA=0"), ElementsAre("public.t.Unit_Price"));
    EXPECT_THAT(targets("-o EMPTY_SCHEMA=1"), ElementsAre("t.Unit_Price"));
}

TEST_F(Uvnames, ScriptsQuoteWhatOptionsAskFor)
{
    Put("in", "Table\t\ts\tOrders\n");
    const auto scripts = [&](const std::string& to, const std::string& option) {
        return Rows(Convert("MSSQL", to, "--format tsv -o " + option).out).at(0).at(6);
    };
    EXPECT_EQ(scripts("PostgreSQL", "EMPTY_SCHEMA=0"), "s.Orders");
    EXPECT_EQ(scripts("PostgreSQL", "QUOTE_IDENTIFIERS=1"), "\"s\".\"Orders\"");
    EXPECT_EQ(scripts("PostgreSQL", "CASE_SENSITIVE_COLLATION=1"), "s.\"Orders\"");
    EXPECT_EQ(scripts("SAP HANA", "SAPHANA_QUOTED_IDENTIFIERS=1"), "\"s\".\"Orders\"");
}

// The text that an XPath expression selects in a document.
std::string Selected(const Uve::XmlDocument& document, const std::string& expression)
{
    return std::string(document.selectNode(expression.c_str()).getValue().raw());
}

TEST_F(Uvnames, ReportIsXmlWhateverNamesHold)
{
    Put("in", "Table\t\ts\ta<b>&\"c\"\nTable\t\ts\tplain\nTable\t\ts\tbad\x01\xFF\nColumn\t\ts\tplain\td e\n"
              "Table\t\ts\ta<b>&\"c\"\n");
    ASSERT_EQ(Convert("MSSQL", "PostgreSQL", "--report names.xml").code, 0);
    const auto document = Uve::XmlDocument::createDocumentXml(Get("names.xml").c_str());
    ASSERT_FALSE(document.isNull());
    EXPECT_EQ(document.getRootElement().children().count(), 4u);
    const std::string odd = "/IdentifierNames/Identifier[@source='a<b>&\"c\"']";
    EXPECT_EQ(Selected(document, odd + "/@target"), "a_b___c_");
    EXPECT_EQ(Selected(document, odd + "/@reason"), "Not allowed characters ");
    EXPECT_EQ(Selected(document, odd + "/@table"), "s");
    EXPECT_EQ(Selected(document, "/IdentifierNames/Identifier[@type='Column']/@table"), "s.plain");
    xmlFreeDoc(document.doc());
}

TEST_F(Uvnames, PageShowsEveryNameAndAFilterForEveryReason)
{
    Put("in", "Table\t\ts\t<script>alert('x')</script>\nTable\t\ts\tplain\nTable\t\ts\ta b\nTable\t\ts\ta-b\n"
              "Table\t\ts\torder\nColumn\t\ts\torder\tc d\nTabel\n");
    ASSERT_EQ(Convert("MSSQL", "PostgreSQL", "--html names.html").code, 1);
    const std::string page = Get("names.html");
    EXPECT_THAT(page, HasSubstr("<title>Names from Microsoft SQL Server to PostgreSQL</title>"));
    EXPECT_THAT(page, HasSubstr("&lt;script&gt;alert(&apos;x&apos;)&lt;/script&gt;"));
    EXPECT_THAT(page, Not(HasSubstr("<script>alert")));
    EXPECT_THAT(page, HasSubstr("7 names, 5 changed"));
    EXPECT_THAT(
        page,
        HasSubstr(
            "value=\"Not allowed characters\"> Not allowed characters (4)</label> <small>The target has "));
    EXPECT_THAT(page, HasSubstr("value=\"Made unique\"> Made unique (1)"));
    EXPECT_THAT(page, HasSubstr("value=\"Unchanged\"> Unchanged (1)"));
    EXPECT_THAT(page, HasSubstr("value=\"Quoted in scripts\"> Quoted in scripts (2)"));
    EXPECT_THAT(page, HasSubstr("data-reasons=\"Not allowed characters|Made unique\""));
    EXPECT_THAT(page, HasSubstr("data-reasons=\"Not allowed characters|Quoted in scripts\""));
    EXPECT_THAT(page, HasSubstr("value=\"Not read\"> Not read (1)"));
}

TEST_F(Uvnames, ExplanationWalksTheSteps)
{
    const SRunResult cut = Convert("DB2", "Oracle:11.2", "--explain ACCOUNTS_OF_THE_CUSTOMERS_OF_2020");
    EXPECT_THAT(cut.out, HasSubstr("too long: 'ACCOUNTS_OF_THE_CUSTOMERS_OF_2020' becomes "
                                   "'ACCOUNTS_OF_THE_CUSTOMERS_OF_2'"));
    EXPECT_THAT(Convert("Oracle", "MSSQL", "--explain SCOTT.SELECT").out,
                HasSubstr("'SELECT' is a reserved word of Microsoft SQL Server"));
}

TEST_F(Uvnames, WordsAreThoseOfTheDatabase)
{
    const std::vector<Texts> words = Rows(Run("words PostgreSQL --format tsv").out);
    EXPECT_EQ(words.size(), GetReservedWords({.db = 8}).size());
    EXPECT_THAT(words, Contains(ElementsAre("SELECT")));
    EXPECT_EQ(Rows(Run("words MariaDB --format tsv").out).size(),
              GetReservedWords({.db = 5, .subType = 1}).size());
}

TEST_F(Uvnames, EachLineIsAnsweredBeforeTheNextIsThere)
{
    ExpectAnsweredLineByLine("--from Oracle --to MySQL --format tsv", "Table\\t\\t\\t");
}

TEST_F(Uvnames, WhatCantBeDoneIsSaid)
{
    ExpectRefused({
        {"", "--from and --to are needed"},
        {"--from Oracle", "--from and --to are needed"},
        {"--from Orcle --to MySQL", "no database is called 'Orcle'; did you mean"},
        {"--from Oracle --to MySQL - -", "'-' stands there once"},
        {"--from Oracle --to MySQL missing.tsv", "missing.tsv: "},
        {"--from Oracle --to MySQL .", ".: "},
        {"--from Oracle --to MySQL --format xml", "--format takes table, tsv or json, not 'xml'"},
        {"--from Oracle --to MySQL -o EMPTY_SCHEMA", "'EMPTY_SCHEMA' is no NAME=VALUE"},
        {"--from Oracle --to MySQL -o EMPTY_SHEMA=1", "did you mean 'EMPTY_SCHEMA'"},
        {"--from Oracle --to MySQL -o both:EMPTY_SCHEMA=1", "there is no option 'both:EMPTY_SCHEMA'"},
        {"--from Oracle --to MySQL --type Table", "--type belongs to --explain"},
        {"--from Oracle --to MySQL --explain t --type Tabel", "there is no type 'Tabel'"},
        {"--from Oracle --to MySQL --explain t --html x.html", "--explain tells of one name"},
        {"--from Oracle --to MySQL --html x ./x", "'x' can't be two files at once"},
        {"--from Oracle --to MySQL --html x --report x", "'x' can't be two files at once"},
        {"--from Oracle --to MySQL --html missing/x.html", "missing/x.html: "},
        {"--from Oracle --to MySQL --report missing/x.xml", "missing/x.xml: "},
        {"words", "usage: uvnames words DB"},
        {"limits Oracle MySQL", "usage: uvnames limits DB"},
        {"words Oracle --changed", "'words' takes a database and --format"},
    });
    EXPECT_THAT(Run("--help").out, HasSubstr("REPLACE_NOT_ALLOWED_CHARS=_\n"));
    EXPECT_THAT(Run("--version").out, StartsWith("uvnames "));
}

TEST(UvnamesParts, TypesAreNumbersOrTexts)
{
    const std::pair<const char*, long> known[] = {
        {"Table", 0},   {"COLUMN", 17}, {"useraccount", 4}, {"-1", -1},
        {"schema", 36}, {"17", 17},     {"UserAcount", 4},  {"Physical File Key", 34}};
    for (const auto& [text, type] : known)
        EXPECT_EQ(uvnames::ReadNameType(text), type) << text;
    for (const char* text : {"", "Tables", "43", "-2", "17x", " Table"})
        EXPECT_EQ(uvnames::ReadNameType(text), std::nullopt) << text;
}

TEST(UvnamesParts, MarkupHoldsAnyBytes)
{
    EXPECT_EQ(uvnames::MarkupText("a<&>\"é"), "a&lt;&amp;&gt;&quot;é");
    EXPECT_EQ(uvnames::MarkupText("a\tb\x01"), "a&#9;b\xEF\xBF\xBD");
    EXPECT_EQ(uvnames::MarkupText("\x0c\x10"), "\xEF\xBF\xBD\xEF\xBF\xBD"); // a name keeps its length
    EXPECT_EQ(uvnames::MarkupText("<\xFF>"), "&lt;\xEF\xBF\xBD&gt;");
}

TEST(UvnamesParts, ReasonsThatShareATextAreToldOnce)
{
    EXPECT_THAT(uvnames::ReasonTexts(1 | 64 | 256), ElementsAre("Omit schema option", "Quoted by Orvanta"));
    EXPECT_THAT(uvnames::ReasonTexts(0), ElementsAre());
}

TEST(UvnamesParts, EveryReasonHasASentence)
{
    for (unsigned long bit = 1; bit <= UVDB_NAME_QUOTED; bit <<= 1)
        for (const std::string& text : uvnames::ReasonTexts(bit))
            EXPECT_THAT(uvnames::ReasonSentence(text), testing::EndsWith(".")) << text;
}

} // namespace
