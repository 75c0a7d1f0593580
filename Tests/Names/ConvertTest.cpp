#include "Names/NormalizeName.h"
#include "Tests/Names/NameFixture.h"
#include "Tests/Support/MemoryLog.h"
#include "Tests/Support/Repeated.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

constexpr SRules kKeep{.remove = false, .removeFirst = false, .trim = false};
constexpr SRules kCut{};
constexpr SRules kReplace{.remove = false, .replacement = "_", .removeFirst = false, .replacementFirst = "x"};
constexpr SRules kSwap{.replacement = "_", .replacementFirst = "x"};
constexpr SRules kFixed{.targetSchema = "app"};
constexpr SRules kUpperColumns{.columnCase = 1};
constexpr SRules kLowerColumns{.columnCase = 2};
constexpr SRules kLeft{.leftTrim = true};
constexpr SRules kAlphanum{.remove = false, .removeFirst = false, .alphanumOnly = true};
constexpr SRules kAlphanumStop{
    .remove = false, .removeFirst = false, .alphanumOnly = true, .alphanumStop = true};
constexpr SRules kConsonants{.consonantsOnly = true};
constexpr SRules kConsonantsStop{.consonantsOnly = true, .consonantsStop = true};
constexpr SRules kVaConsonants{.consonantsOnly = true, .variablePrefix = "va_"};
constexpr SRules kNoRepair{.remove = false, .removeFirst = false};
constexpr SRules kBothStop{.remove = false,
                           .removeFirst = false,
                           .alphanumOnly = true,
                           .alphanumStop = true,
                           .consonantsOnly = true,
                           .consonantsStop = true};

constexpr SDatabase kDb2{0};
constexpr SDatabase kOracle{1};
constexpr SDatabase kOracle11{1, kNoSubType, 11, 2}; // names of 30
constexpr SDatabase kMsSql{2};
constexpr SDatabase kAsa{4, 0};
constexpr SDatabase kAse{4, 1};
constexpr SDatabase kMySql{5};
constexpr SDatabase kInformix{7};
constexpr SDatabase kOldInformix{7, kNoSubType, 9, 2}; // names of 18
constexpr SDatabase kPostgres{8};
constexpr SDatabase kGreenplum{10};
constexpr SDatabase kCSharp{19};
constexpr SDatabase kVertica{32};
constexpr SDatabase kFirebird{36};
constexpr SDatabase kJava{66};
constexpr SDatabase kCobol{90};

constexpr int kTable = 0;
constexpr int kTrigger = 8;
constexpr int kColumn = 17;
constexpr int kSchema = 36;
constexpr int kCursor = 39;
constexpr int kAlias = 40;
constexpr int kVariable = 42;

struct SConvertCase
{
    SDatabase source;
    SDatabase target;
    SRules rules;
    const char* options;
    int type;
    const char* kindText;
    std::string name;
    std::string expected;
    unsigned long reasons;
};

void Check(const std::vector<SConvertCase>& cases)
{
    for (const SConvertCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.source.kind << " to " << c.target.kind << ", type " << c.type
                                        << ", \"" << c.name << "\" " << c.options);
        CNameHost host(c.source, c.target, c.rules, c.options);
        unsigned long reasons = 0;
        EXPECT_EQ(host.normaliser.ConvertIdentifier(c.type, static_cast<unsigned long>(c.type), c.name,
                                                    reasons, c.kindText),
                  c.expected);
        EXPECT_EQ(reasons, c.reasons);
    }
}

TEST(Convert, SchemaIsOmittedFixedOrMapped)
{
    Check({
        // clang-format off
        {kOracle,   kPostgres, kCut,   "EMPTY_SCHEMA=1", kSchema, "", "HR", "orvantaempty", 1},
        {kOracle,   kPostgres, kCut,   "EMPTY_SCHEMA=1 CONVERT_PACKAGE_TO_SCHEMA=1", kSchema, "", "HR", "HR", 0},
        {kOracle,   kPostgres, kCut,   "EMPTY_SCHEMA=1", kSchema, "", "orvantaempty", "orvantaempty", 0},
        {kOracle,   kPostgres, kFixed, "", kSchema, "", "HR", "app", 0},
        {kOracle,   kPostgres, kFixed, "EMPTY_SCHEMA=1", kSchema, "", "HR", "app", 0},
        {kMsSql,    kPostgres, kFixed, "CONVERT_DBO_SCHEMA_ONLY=1", kSchema, "", "DBO", "app", 0},
        {kMsSql,    kPostgres, kFixed, "CONVERT_DBO_SCHEMA_ONLY=1", kSchema, "", "orvantaempty", "app", 0},
        {kMsSql,    kPostgres, kFixed, "CONVERT_DBO_SCHEMA_ONLY=1", kSchema, "", "sales", "sales", 0},
        {kAse,      kPostgres, kFixed, "CONVERT_DBO_SCHEMA_ONLY=1", kSchema, "", "sales", "app", 0},
        {kInformix, kMsSql,    kFixed, "", kSchema, "temp", "joe", "joe", 0},
        {kInformix, kMsSql,    kFixed, "", kSchema, "", "joe", "app", 0},
        {kAsa,      kMsSql,    kCut, "", kSchema, "", "DBA", "dbo", 0},
        {kAse,      kMsSql,    kCut, "", kSchema, "", "dba", "dba", 0},
        {kAse,      kMySql,    kCut, "", kSchema, "", "dbo", "orvantaempty", 0},
        {kInformix, kMsSql,    kCut, "EMPTY_SCHEMA=2", kSchema, "", "informix", "dbo", 0},
        {kInformix, kMsSql,    kCut, "", kSchema, "", "informix", "informix", 0},
        {kInformix, kOracle,   kCut, "", kSchema, "", "informix", "orvantaempty", 0},
        {kMsSql,    kMySql,    kCut, "EMPTY_SCHEMA=3", kSchema, "", "dbo", "orvantaempty", 0},
        {kMsSql,    kMySql,    kCut, "", kSchema, "", "dbo", "dbo", 0},
        {kDb2,      kMsSql,    kKeep, "", kSchema, "", "A.B", "[A.B]", 0},
        {kDb2,      kMsSql,    kCut,  "", kSchema, "", "A.B", "AB", 2 | 4},
        // clang-format on
    });
}

TEST(Convert, ColumnsFollowTheirCaseAndOthersDont)
{
    Check({
        {kOracle, kPostgres, kUpperColumns, "", kColumn, "", "Amount", "AMOUNT", 0},
        {kOracle, kPostgres, kLowerColumns, "", kColumn, "", "Amount", "amount", 0},
        {kOracle, kPostgres, kLowerColumns, "", kTable, "", "Amount", "Amount", 0},
        {kOracle, kMySql, kKeep, "", kColumn, "", "say \"\"hi\"\"  ", "say \"hi\"", 0},
        {kOracle, kMySql, kKeep, "", kColumn, "", "  ", "empty", 4},
        {kOracle, kMySql, kKeep, "", kVariable, "", "[]", "empty2", 4}, // reserved there
        {kOracle, kPostgres, kKeep, "", kColumn, "", "hi ", "hi ", 0},
        {kOracle, kMySql, kKeep, "", kAlias, "view", "hi ", "hi", 0},
        {kOracle, kMySql, kKeep, "", kAlias, "", "hi ", "hi ", 0},
    });
}

TEST(Convert, VariablesTakeTheSigilOfTheTarget)
{
    Check({
        {kMsSql, kOracle, kCut, "", kVariable, "", "@total", "v_total", 0},
        {kMsSql, kOracle, kCut, "", kVariable, "", "total", "total", 0},
        {kMsSql, kJava, kCut, "", kVariable, "", "@total", "total", 0},
        {kMsSql, kVertica, kCut, "", kVariable, "", "@total", "total", 0},
        {kMsSql, kAse, kCut, "", kVariable, "", "@total", "@total", 0},
        {kOracle, kMsSql, kCut, "", kVariable, "", "\"total\"", "@total", 0},
        {kFirebird, kPostgres, kCut, "", kVariable, "", "total", "v_total", 0},
        {kFirebird, kMySql, kCut, "", kVariable, "", "total", "total", 0},
        // reserved in the target
        {kOracle, kMySql, kCut, "", kVariable, "", "select", "select2", 0},
        {kOracle, kPostgres, kCut, "", kVariable, "", "select", "\"SELECT\"", 0},
        {kOracle, kGreenplum, kCut, "", kVariable, "", "select", "\"select\"", 0},
        {kOracle, kOracle, kCut, "", kVariable, "", "select", "select", 0},
        {kOracle, kMySql, kCut, "", kColumn, "", "select", "select", 0},
        {kOracle, kCSharp, kCut, "", kTable, "", "class", "rwclass", 0},
    });
}

TEST(Convert, FirstCharacterIsRepaired)
{
    Check({
        {kOracle, kPostgres, kCut, "", kTable, "", "1st_9", "st_9", 2},
        {kOracle, kPostgres, kCut, "", kTable, "", "_9_a", "a", 2},       // what follows comes first then
        {kOracle, kPostgres, kSwap, "", kTable, "", "99a", "x9a", 2},     // in the place of the character
        {kOracle, kPostgres, kReplace, "", kTable, "", "99a", "x99a", 2}, // before it
        {kOracle, kPostgres, kKeep, "", kTable, "", "99a", "99a", 0},
        {kOracle, kPostgres, kCut, "", kTable, "", "2024", "2024", 0}, // digits alone stay
        {kOracle, kPostgres, kCut, "", kTable, "", "---", "empty", 2},
        // no replacement in a script's own names
        {kOracle, kPostgres, kReplace, "", kCursor, "", "9a", "9a", 0},
    });
}

TEST(Convert, CharactersInsideAreRepaired)
{
    Check({
        {kOracle, kPostgres, kCut, "", kTable, "", "order items #1", "orderitems1", 4},
        {kOracle, kPostgres, kReplace, "", kTable, "", "order items #1", "order_items__1", 4},
        {kOracle, kPostgres, kReplace, "", kVariable, "", "order items", "order items", 0},
        {kOracle, kPostgres, kSwap, "", kVariable, "", "order items", "orderitems", 4},
        {kOracle, kMsSql, kCut, "", kTable, "", "a#b@c$d", "a#b@c$d", 0},
        {kOracle, kMySql, kCut, "", kTable, "", "a#b@c$d", "abc$d", 4},
        {kCobol, kOracle, kCut, "", kColumn, "", "CUST-NO.", "CUST-NO", 4},
        {kCobol, kPostgres, kCut, "", kColumn, "", "CUST-NO", "CUSTNO", 4},
        // letters beyond ASCII: PostgreSQL's rule refuses them without a locale, MySQL's takes them above 256
        {kOracle, kPostgres, kCut, "", kTable, "", "t名前", "t", 4},
        {kOracle, kPostgres, kCut, "DATABASE_LOCALE=japanese", kTable, "", "t名前", "t名前", 0},
        {kOracle, kMySql, kCut, "", kTable, "", "名ü前", "名前", 4},
        {kOracle, kMySql, kReplace, "", kTable, "", "名ü前", "名_前", 4},
        {kOracle, kMySql, kCut, "", kTable, "", "a\xFF\xC3z", "az", 4}, // not UTF-8: byte by byte
    });
}

TEST(Convert, LongNamesAreTrimmed)
{
    const std::string a30(30, 'a');
    const std::string mixed = "order_item_quantity_per_warehouse"; // 33
    const std::string dynamic = "* SDynId a_long_enough_name * ";
    Check({
        {kMsSql, kOracle11, kCut, "", kTable, "", a30, a30, 0},
        {kMsSql, kOracle11, kCut, "", kTable, "", mixed, mixed.substr(0, 30), 8},
        {kMsSql, kOracle11, kLeft, "", kTable, "", mixed, mixed.substr(3), 8},
        {kMsSql, kOracle11, kKeep, "", kTable, "", mixed, mixed, 0},
        {kMsSql, kOracle11, kAlphanum, "", kTable, "", mixed, "orderitemquantityperwarehouse", 8},
        {kMsSql, kOracle11, kAlphanumStop, "", kTable, "", mixed, "orderitemquantityper_warehouse", 8},
        {kMsSql, kOracle11, kAlphanum, "", kTable, "", "a_b", "a_b", 0}, // short names keep everything
        {kMsSql, kOracle11, kAlphanumStop, "", kTable, "", "né" + mixed, "norderitemquantityperwarehouse", 8},
        {kMsSql, kOracle11, kConsonants, "", kTable, "", mixed, "rdr_tm_qntt_pr_wrhs", 8},
        {kMsSql, kOracle11, kConsonantsStop, "", kTable, "", mixed, "rdr_tem_quantity_per_warehouse", 8},
        {kMsSql, kOracle11, kBothStop, "", kTable, "", mixed + "_total", "rdrtmquantityperwarehousetotal", 8},
        {kMsSql, kOracle11, kConsonants, "", kTable, "", std::string(40, 'e'), std::string(30, 'e'), 8},
        // the prefix of a variable survives
        {kMsSql, kOldInformix, kLeft, "", kVariable, "", "@" + mixed, "v_" + mixed.substr(33 - 16), 8},
        {kMsSql, kOldInformix, kAlphanum, "", kVariable, "", "@" + mixed, "v_orderitemquantit", 8},
        {kMsSql, kOldInformix, kVaConsonants, "", kVariable, "", "@" + mixed, "va_rdr_tm_qntt_pr_", 8},
        // generated expressions aren't cut
        {kMsSql, kOracle11, kNoRepair, "", kTable, "", dynamic + "EDynId", dynamic + "EDynId", 0},
        {kMsSql, kOracle11, kNoRepair, "", kTable, "", dynamic + "EDynExp", dynamic, 8},
    });
}

TEST(Convert, PostgresCountsBytesAndKeepsCharactersWhole)
{
    const std::string kana = Repeated("か", 30);
    Check({
        {kOracle, kPostgres, kKeep, "DATABASE_LOCALE=x", kTable, "", kana, kana, 0},
        {kOracle, kPostgres, kCut, "DATABASE_LOCALE=x", kTable, "", "a" + kana, "a" + kana.substr(0, 60), 8},
        {kOracle, kPostgres, kCut, "DATABASE_LOCALE=x", kTable, "", kana, kana.substr(0, 63), 8},
        {kOracle, kPostgres, kLeft, "DATABASE_LOCALE=x", kTable, "", kana + "ab", kana.substr(0, 60) + "ab",
         8},
        {kOracle, kGreenplum, kCut, "DATABASE_LOCALE=x", kTable, "", kana, kana, 0}, // characters here
    });
}

TEST(Convert, ATrimRuleThatLeavesNothingIsDropped)
{
    const CLogCapture log;
    Check({{kMsSql, kOracle11, kAlphanum, "", kTable, "", std::string(31, '_'), std::string(30, '_'), 8}});
    // nor is the prefix of a variable a name
    Check({{kMsSql, kOldInformix, kAlphanum, "", kVariable, "", "@" + std::string(31, '_'),
            "v_" + std::string(16, '_'), 8}});
    EXPECT_EQ(log.Lines(), std::vector<std::string>(2, "\nConvertIdentifier: incorrect identifier.\n"));
}

TEST(Convert, TemporaryTablesAreMarked)
{
    Check({
        {kAse, kMsSql, kCut, "", kTable, "temp", "tmptblwork", "#work", 128},
        {kAse, kMsSql, kKeep, "", kTable, "temp", "tmptbl#work", "#work", 128},
        {kDb2, kMsSql, kCut, "", kTable, "temp", "tmptblwork", "##work", 128},
        {kAse, kMySql, kCut, "", kTable, "temp", "tmptblwork", "work", 128},
        {kAse, kOracle, kCut, "", kTable, "temp", "tmptblwork", "work", 128},
        {kMsSql, kOracle, kCut, "", kTable, "temp", "tmptblwork", "#work", 128},
        // room for what the server adds
        {kOracle, kMsSql, kCut, "", kTable, "temp", "tmptbl" + std::string(120, 'a'),
         "#" + std::string(115, 'a'), 8 | 128},
    });
}

// What one name after the other became: of an object, or of something in the table "t".
std::vector<std::string> MadeUnique(CNameHost& host, int type, const std::vector<std::string>& names)
{
    std::vector<std::string> made;
    for (const std::string& text : names) {
        SName name = type < kColumn ? SName{"s", text, ""} : SName{"s", "t", text};
        EXPECT_EQ(host.Normalize(type, name), 0);
        made.push_back(type < kColumn ? name.object : name.sub);
    }
    return made;
}

using Names = std::vector<std::string>;

TEST(Unique, DuplicatesGetANumberWithinTheLimit)
{
    // Triggers of the mainframe had names of 8.
    CNameHost mainframe({8}, {0, 1, 8, 0});
    EXPECT_EQ(MadeUnique(mainframe, kTrigger, {"ABCDEFGH", "abcdefgh", "ABCDEFGHI"}),
              (Names{"ABCDEFGH", "abcdefg2", "ABCDEFG3"}));

    CNameHost oracle({8}, {1});
    EXPECT_EQ(MadeUnique(oracle, kTable, {"abc", "ABC", "Abc", "abc", "abc2"}),
              (Names{"abc", "ABC2", "Abc3", "abc", "abc22"}));

    const std::string long30(30, 'x');
    CNameHost old({8}, kOracle11);
    Names names;
    Names expected{long30};
    for (int i = 1; i <= 1000; ++i) {
        names.push_back(long30 + "_" + std::to_string(i));
        if (i > 1) {
            const std::string number = std::to_string(i);
            expected.push_back(long30.substr(number.size()) + number);
        }
    }
    EXPECT_EQ(MadeUnique(old, kTable, names), expected);
}

TEST(Unique, NumbersRespectBytesInPostgres)
{
    CNameHost host({1}, {8}, {}, "DATABASE_LOCALE=x");
    const std::string kana = Repeated("か", 21);
    EXPECT_EQ(MadeUnique(host, kTable, {kana + "a", kana + "b", kana + "c"}),
              (Names{kana, kana.substr(0, 60) + "2", kana.substr(0, 60) + "3"}));
}

TEST(Unique, TheNumberGoesInsideMarksThatHoldSomething)
{
    CNameHost host({8}, {2}, kNoRepair);
    for (const auto& [name, unique] :
         {std::pair("[a]", "s.[a2]"), {"[]", "s.[]2"}, {"[", "s.[2"}, {"a]", "s.a]2"}}) {
        unsigned long reasons = 0;
        host.Normalized(kTable, {"s", name, ""});
        EXPECT_EQ(host.normaliser.MakeUniqueName({38, 36, 0}, std::string("s.") + name, {}, 0, reasons),
                  unique);
    }
}

TEST(Unique, WithoutTrimmingTheNumberGoesBehind)
{
    CNameHost host({2}, kOracle11, {.trim = false});
    const std::string long40(40, 'x');
    EXPECT_EQ(MadeUnique(host, kTable, {long40 + " ", long40}), (Names{long40, long40 + "2"}));
}

TEST(Unique, NumberDoesntMakeANameOfTheSource)
{
    CNameHost host({36}, {8});
    EXPECT_EQ(MadeUnique(host, kVariable, {"v_x2", "x", "x-"}), (Names{"v_v_x2", "v_x", "v_x3"}));
}

TEST(Unique, FreedNumbersAreGivenAgain)
{
    CNameHost host({8}, {1});
    EXPECT_EQ(MadeUnique(host, kTable, {"abc", "ABC", "Abc"}), (Names{"abc", "ABC2", "Abc3"}));
    host.normaliser.RemoveIdentifiers(kTable);
    EXPECT_EQ(MadeUnique(host, kTable, {"abc", "ABC"}), (Names{"abc", "ABC2"}));
    host.normaliser.Init(host.source, host.target);
    EXPECT_EQ(MadeUnique(host, kTable, {"abc", "ABC"}), (Names{"abc", "ABC2"}));
}

struct SSpaceCase
{
    SDatabase source;
    SDatabase target;
    int firstType;
    int secondType;
    const char* second; // what the second "thing" of the name becomes
};

// Two objects of one name, the second with another table where it stands below one.
TEST(Unique, NameSpacesOfTheTargetDecide)
{
    constexpr int kView = 2;
    constexpr int kProcedure = 6;
    constexpr int kFunction = 7;
    constexpr int kPrimaryKey = 21;
    constexpr int kForeignKey = 23;
    constexpr int kIndex = 33;
    const SSpaceCase cases[] = {
        {{5}, {1}, kTable, kProcedure, "thing2"},  // MySQL keeps them apart
        {{8}, {1}, kFunction, kTrigger, "thing"},  // so does PostgreSQL, and Oracle calls both by one name
        {{2}, {8}, kTable, kView, "thing"},        // one object, seen twice: the source has but one such name
        {{8}, {5}, kPrimaryKey, kIndex, "thing2"}, // a primary key is an index there
        {{8}, {5}, kIndex, kPrimaryKey, "thing2"},
        {{8}, {2}, kIndex, kPrimaryKey, "thing"},
        {{8}, {2}, kForeignKey, kForeignKey, "thing2"}, // constraints of all tables share one space
        {{8}, {1}, kColumn, kColumn, "thing"},          // columns don't
        {{8}, {2}, kTable, kTable, "thing2"},
    };
    for (const SSpaceCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.source.kind << " to " << c.target.kind << ", types "
                                        << c.firstType << " and " << c.secondType);
        CNameHost host(c.source, c.target);
        const auto name = [&](int type, const char* table, const char* thing) {
            return type < kColumn ? SName{"s", thing, ""} : SName{"s", table, thing};
        };
        const bool sameTable = c.firstType != c.secondType || c.target.kind == 5;
        SName first = name(c.firstType, "t", "thing");
        // A name that differs for the source and is the same for the target.
        SName second =
            name(c.secondType, sameTable ? "t" : "u", c.firstType == c.secondType ? "THING" : "thing");
        ASSERT_EQ(host.Normalize(c.firstType, first), 0);
        ASSERT_EQ(host.Normalize(c.secondType, second), 0);
        std::string made = c.secondType < kColumn ? second.object : second.sub;
        for (char& byte : made)
            byte = static_cast<char>(std::tolower(byte));
        EXPECT_EQ(made, c.second);
    }
}

// Constraints and the types up to comments are known without their table, the next type with it.
TEST(Unique, SqlServerKnowsConstraintsWithoutTheirTable)
{
    constexpr int kPartition = 26;
    constexpr int kComment = 27;
    constexpr int kTableData = 28;
    constexpr std::size_t kAbove = 3; // the schema and two tables
    for (const auto& [type, records] : {std::pair(kPartition, 1u), {kComment, 1u}, {kTableData, 2u}}) {
        SCOPED_TRACE(type);
        CNameHost host({8}, {2});
        for (const char* table : {"t", "u"}) {
            SName name{"s", table, "thing"};
            ASSERT_EQ(host.Normalize(type, name), 0);
            EXPECT_EQ(name.sub, "thing");
        }
        EXPECT_EQ(host.normaliser.GetTargetNames().GetCount(), kAbove + records);
    }
}

TEST(Unique, PathsAreFilledUpAndReservedNamesCompareAsWritten)
{
    CNameHost host({2}, {1}, {.reservedWordPattern = "%RWORD%_"});
    unsigned long reasons = 0;
    const std::vector<int> path{38, 36, 0};
    EXPECT_EQ(host.normaliser.MakeUniqueName(path, "orders", {}, 0, reasons), "orders");
    EXPECT_EQ(host.normaliser.MakeUniqueName(path, "hr.orders", {}, 0, reasons), "hr.orders");
    EXPECT_EQ(reasons, 0u);
    // what isn't given is the same for all who don't give it
    for (const auto& [schema, name, unique] :
         {std::tuple("", "orders", "orders2"), {"hr", "hr.orders", "hr.orders2"}}) {
        host.Normalized(kTable, {schema, "orders", ""});
        EXPECT_EQ(host.normaliser.MakeUniqueName(path, name, {}, 0, reasons), unique);
        EXPECT_EQ(reasons, UVDB_NAME_MADE_UNIQUE);
        reasons = 0;
    }

    // "ORDER" will be written ORDER_, which is taken then.
    EXPECT_EQ(MadeUnique(host, kTable, {"ORDER", "order_"}), (Names{"ORDER", "order_2"}));
}

// The number goes inside the quotes, which the name needs no longer.
TEST(Unique, ANumberMakesAReservedVariablePlain)
{
    CNameHost host({1}, {8});
    for (const auto& [variable, expected] : {std::pair("select", "\"SELECT\""), {"Select", "SELECT2"}}) {
        SName name{"s", "p", variable};
        ASSERT_EQ(host.Normalize(kVariable, name), 0);
        EXPECT_EQ(name.sub, expected);
    }
}

TEST(Unique, PrefixesAreNameSpaces)
{
    CNameHost host({8}, {1});
    for (const auto& [prefix, variable, expected] :
         {std::tuple("block1", "abc", "abc"), {"block1", "ABC", "ABC2"}, {"block2", "ABC", "ABC"}}) {
        SName name{"s", "p", variable};
        ASSERT_EQ(host.Normalize(kVariable, name, "", {}, prefix), 0);
        EXPECT_EQ(name.sub, expected);
    }
}

} // namespace
