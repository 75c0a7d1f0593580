// Conditions over database versions: one range of versions of one kind, and boolean expressions over such
// ranges. All comparison is unsigned. An unknown version (all ones) therefore lies above every closed bound,
// and a rule for "from this version on" also takes a database whose version nobody knows.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <memory>
#include <string_view>

// One bound of a range.
struct CDBVersionValue
{
    bool any = true;        // the bound is open
    bool inclusive = false; // the bound itself belongs to the range
    std::int64_t major = 0;
    std::int64_t minor = 0;

    // Takes `text` ("7.0") as the bound. "*" leaves the bound open, and so does a text without a ".": a bare
    // major number is no bound.
    void Set(std::string_view text, bool isInclusive);
};

// A condition on kind, subtype and version.
struct Ver
{
    static constexpr std::uint64_t kAnyKind = ~std::uint64_t{0};
    static constexpr std::uint64_t kAnySubType =
        ~std::uint64_t{1}; // -2: none (-1) is a subtype to match like any other

    std::uint64_t db = kAnyKind;
    std::uint64_t subType = kAnySubType;
    bool negate = false;
    bool matchUnknownVersion = false; // a version of all ones holds, whatever the bounds say
    CDBVersionValue from;
    CDBVersionValue to;

    Ver() = default;

    // `range` is "from-to": "7.0-9.2", "*-9.2", "7.0-*"; ">" after the lower and "<" before the upper bound
    // exclude it ("7.0>-<9.2"). A range without "-" takes every version.
    Ver(std::uint64_t dbKind, std::uint64_t dbSubType, const Uve::U8CString& range,
        bool unknownVersionMatches);

    // The negation of a condition holds for every database that the condition doesn't name.
    Ver operator!() const;

    bool IsValid(std::uint64_t dbKind, std::uint64_t dbSubType, std::uint64_t majorVersion,
                 std::uint64_t minorVersion) const;
};

// A condition on subtype and version alone.
struct SubVer : Ver
{
    SubVer(std::uint64_t dbSubType, const Uve::U8CString& range);
};

// A boolean expression over conditions, evaluated against both databases of a DB_VERSION_INFO. It owns its
// operands and copies deeply.
class Exp
{
public:
    enum OPER : int
    {
        opPair = 1, // both databases answer their own condition
        opNot = 2,
        opAnd = 3,
        opOr = 4,
        opTrue = 5, // every number without a name is false
    };

    OPER op = opTrue;
    std::unique_ptr<Ver> first;  // primary database
    std::unique_ptr<Ver> second; // secondary database
    std::unique_ptr<Exp> left;
    std::unique_ptr<Exp> right; // empty for opNot
    bool explicitOnly = false;  // holds only where the node is the whole question, never as an operand

    Exp() = default;
    Exp(const Ver& primary, const Ver& secondary, bool onlyExplicit = false);
    Exp(const Exp& other);
    Exp& operator=(const Exp& other);
    Exp(Exp&&) noexcept = default;
    Exp& operator=(Exp&&) noexcept = default;
    ~Exp() = default;

    // `top` tells that the node is the whole question and not an operand of another one.
    bool IsValid(std::uint64_t db, std::uint64_t subType, std::uint64_t majorVersion,
                 std::uint64_t minorVersion, std::uint64_t db2, std::uint64_t subType2,
                 std::uint64_t majorVersion2, std::uint64_t minorVersion2, bool top) const;
    bool IsValid(const DB_VERSION_INFO& version, bool top = true) const;
};

Exp operator&&(const Exp& left, const Exp& right);
Exp operator||(const Exp& left, const Exp& right);
Exp operator!(const Exp& operand);
