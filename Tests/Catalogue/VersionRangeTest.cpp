#include "Catalogue/UVDBVersionRange.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint64_t kNone = ~std::uint64_t{0};
constexpr std::uint64_t kAnySubType = Ver::kAnySubType;

struct SRangeCase
{
    const char* range;
    std::uint64_t major;
    std::uint64_t minor;
    bool holds;
};

constexpr SRangeCase kRanges[] = {
    // range          version       holds
    {"7.0-9.2", 7, 0, true},
    {"7.0-9.2", 9, 2, true},
    {"7.0-9.2", 6, 99, false},
    {"7.0-9.2", 9, 3, false},
    {"7.5-9.2", 8, 0, true}, // between the bounds no minor counts
    {"7.5-9.2", 8, 99, true},
    {"7.5-9.2", 7, 4, false},
    {"7.0>-<9.2", 7, 0, false},
    {"7.0>-<9.2", 7, 1, true},
    {"7.0>-<9.2", 9, 1, true},
    {"7.0>-<9.2", 9, 2, false},
    {"7.0>-9.2", 9, 2, true}, // each sign concerns its own bound
    {"7.0-<9.2", 7, 0, true},
    {"9.2-9.10", 9, 9, true}, // parts are numbers, not fractions
    {"*-9.2", 0, 0, true},
    {"*-9.2", 9, 3, false},
    {"7.0-*", 6, 99, false},
    {"7.0-*", 1000, 0, true},
    {"7.0-*", kNone, kNone, true}, // nobody knows the version: the newest rule
    {"*-9.2", kNone, kNone, false},
    {"5.5", 1, 0, true}, // no "-": every version
    {"", 99, 0, true},
    {"7-9.2", 1, 0, true}, // a bare major number is no bound
    {"7-9.2", 10, 0, false},
    {"-", 3, 3, true},
    {"2.-*", 1, 9, false}, // an empty minor is 0
    {"2.-*", 2, 0, true},
    {"7.0-9.2-11.0", 9, 2, true}, // the rest after the second "-" isn't read
    {"7.0-9.2-11.0", 10, 0, false},
};

TEST(VersionRange, BoundsDecide)
{
    for (const auto& c : kRanges) {
        SCOPED_TRACE(testing::Message() << c.range << " of " << c.major << '.' << c.minor);
        const Ver condition(1, kAnySubType, c.range, false);
        EXPECT_EQ(condition.IsValid(1, 0, c.major, c.minor), c.holds);
        EXPECT_EQ((!condition).IsValid(1, 0, c.major, c.minor), !c.holds);
        EXPECT_FALSE(condition.IsValid(2, 0, c.major, c.minor));
        EXPECT_TRUE((!condition).IsValid(2, 0, c.major, c.minor)) << "a negation holds for unnamed databases";
        EXPECT_FALSE((!!condition).IsValid(2, 0, c.major, c.minor));
    }
}

TEST(VersionRange, UnknownVersionMatchesOnlyWhereAsked)
{
    const Ver condition(1, 3, "7.0-9.2", true);
    EXPECT_TRUE(condition.IsValid(1, 3, kNone, kNone));
    EXPECT_FALSE(condition.IsValid(1, 3, kNone, 0));
    EXPECT_FALSE(condition.IsValid(1, 3, 0, kNone));
    EXPECT_FALSE(condition.IsValid(2, 3, kNone, kNone)) << "kind goes first";
    EXPECT_FALSE(condition.IsValid(1, 4, kNone, kNone)) << "subtype goes first";
    EXPECT_FALSE((!condition).IsValid(1, 3, kNone, kNone));
}

TEST(VersionRange, SubtypeNoneIsASubtypeAndMinusTwoIsAll)
{
    const Ver none(4, kNone, "*-*", false);
    EXPECT_TRUE(none.IsValid(4, kNone, 1, 0));
    EXPECT_FALSE(none.IsValid(4, 0, 1, 0));
    const Ver any(4, kAnySubType, "*-*", false);
    EXPECT_TRUE(any.IsValid(4, kNone, 1, 0));
    EXPECT_TRUE(any.IsValid(4, 7, 1, 0));
    const SubVer sub(1, "*-2.0");
    EXPECT_TRUE(sub.IsValid(17, 1, 2, 0));
    EXPECT_FALSE(sub.IsValid(17, 2, 2, 0));
    EXPECT_FALSE(sub.IsValid(17, 1, kNone, kNone));
}

// Expressions over "is Oracle" (kind 1) and "accompanied by DB2" (kind 0).
Exp IsOracle()
{
    return Exp(Ver(1, kAnySubType, "*-*", false), Ver());
}

Exp WithDB2()
{
    return Exp(Ver(), Ver(0, kAnySubType, "*-*", false));
}

Exp Explicit(Exp node)
{
    node.explicitOnly = true;
    return node;
}

DB_VERSION_INFO Pair(std::uint64_t db, std::uint64_t db2)
{
    DB_VERSION_INFO version;
    version.db = db;
    version.db2 = db2;
    return version;
}

struct SExpressionCase
{
    const char* name;
    Exp expression;
    bool oracleWithDB2, oracleAlone, otherWithDB2, otherAlone;
};

TEST(VersionExpression, OperatorsCombineBothDatabases)
{
    const Exp oracle = IsOracle();
    const Exp db2 = WithDB2();
    Exp unnamed;
    unnamed.op = static_cast<Exp::OPER>(6);
    const SExpressionCase cases[] = {
        {"oracle", oracle, true, true, false, false},
        {"db2", db2, true, false, true, false},
        {"both", oracle && db2, true, false, false, false},
        {"either", oracle || db2, true, true, true, false},
        {"neither", !(oracle || db2), false, false, false, true},
        {"oracle without db2", oracle && !db2, false, true, false, false},
        {"chain", (oracle || db2) && (!oracle || !db2), false, true, true, false},
        {"everything", Exp(), true, true, true, true},
        {"unnamed operation", unnamed, false, false, false, false},
        {"explicit node", Explicit(oracle), true, true, false, false},
        {"explicit left operand", Explicit(oracle) || db2, true, false, true, false},
        {"explicit right operand", db2 || Explicit(oracle), true, false, true, false},
        {"explicit operand of a negation", !Explicit(oracle), true, true, true, true},
        {"explicit right of and", oracle && Explicit(Exp()), false, false, false, false},
        {"explicit and", Explicit(oracle && db2), true, false, false, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.expression.IsValid(Pair(1, 0)), c.oracleWithDB2);
        EXPECT_EQ(c.expression.IsValid(Pair(1, 60)), c.oracleAlone);
        EXPECT_EQ(c.expression.IsValid(Pair(2, 0)), c.otherWithDB2);
        EXPECT_EQ(c.expression.IsValid(Pair(2, 60)), c.otherAlone);
    }
}

TEST(VersionExpression, CopiesShareNothing)
{
    Exp original = IsOracle() && WithDB2();
    const Exp copy = original;
    original.left->first->db = 2;
    original.right->second->db = 3;
    EXPECT_TRUE(copy.IsValid(Pair(1, 0)));
    EXPECT_TRUE(original.IsValid(Pair(2, 3)));

    original = *original.left; // an operand of its own
    EXPECT_TRUE(original.IsValid(Pair(2, 60)));
}

} // namespace
