// Where a type of one database can't keep its whole meaning in another, and why that is right.
#pragma once

#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"
#include "Catalogue/Types/TypeMapping/MappingSheaves.h"
#include "Tests/Catalogue/Types/TypeFamilies.h"

#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

namespace TypeMeaning {

// ---- Limits of targets ----

// Which times a target can give a zone.
enum enZones
{
    kNoZones = 0,
    kTimeZones = 1,
    kTimestampZones = 2,
    kAllZones = 3
};

// The most that a target can hold, in one value. A mapping that reaches it may hold less than the source; one
// that stops below must not.
struct STargetLimits
{
    const SMappingSheaf* sheaf;
    std::uint64_t characters;
    std::uint64_t national;
    std::uint64_t bytes;
    long digits; // of exact numbers
    long scale;
    long timeDigits; // after the second
    long timestampDigits;
    enZones zones;
};

inline constexpr std::uint64_t kEnough = std::numeric_limits<std::uint64_t>::max(); // for all there is
inline constexpr long kPlenty = std::numeric_limits<long>::max();                   // the same of digits

// clang-format off
constexpr STargetLimits kTargetLimits[] = {
#include "Tests/Catalogue/Types/TypeMeaningLimits.inc"
};
// clang-format on

// ---- Exceptions ----

// The targets of an exception.
enum class enExceptionTargets
{
    Any,
    Without, // whose tables have no type of the source's family
    Listed
};

using TSheaves = std::span<const SMappingSheaf* const>;

// What is known of a type that was mapped.
struct SMappedPair
{
    std::string_view sourceName;
    long sourceType; // internal
    bool isSizeKnown;
    const STypeCapacity& source;
    const STypeCapacity& target;
    const STargetLimits& limits;
    std::uint64_t longestNational; // of the target's tables
    long longestTime;              // digits after the second that its times have
    bool hasLongNational;
};

using TCondition = bool (*)(const SMappedPair& pair);

// One family stands for another.
struct SFamilyException
{
    enTypeFamily source;
    enTypeFamily target;
    enExceptionTargets where;
    const char* reason;
    TCondition condition = nullptr; // null: always
    TSheaves sheaves{};             // if listed
};

// Something of the source's is lost that the limits above don't tell.
struct SLossException
{
    enTypeFamily source;
    enTypeLoss loss;
    enExceptionTargets where;
    const char* reason;
    TCondition condition = nullptr;
    TSheaves sheaves{};
};

using F = enTypeFamily;
using L = enTypeLoss;
using enum enExceptionTargets;

// As a source's family.
inline constexpr enTypeFamily kAnyFamily = enTypeFamily::Unknown;

// ---- Lists of targets ----

// Languages with a few types of their own.
inline constexpr const SMappingSheaf* kShortLanguages[] = {
    &kJavaMapping,  &kAndroidMapping, &kCppMapping,        &kVisualBasicMapping, &kVbForCrystalMapping,
    &kVbNetMapping, &kCSharpMapping,  &kJavaScriptMapping, &kPowerShellMapping,
};
// Those of them whose numbers are 32-bit integers and floats.
inline constexpr const SMappingSheaf* kLanguagesWithoutDecimals[] = {
    &kCppMapping,
    &kVisualBasicMapping,
    &kVbForCrystalMapping,
    &kVbNetMapping,
};
inline constexpr const SMappingSheaf* kJavas[] = {&kJavaMapping, &kAndroidMapping};
inline constexpr const SMappingSheaf* kVisualBasics[] = {&kVisualBasicMapping, &kVbForCrystalMapping,
                                                         &kVbNetMapping};
// Where NCHAR and NVARCHAR, if known at all, are further spellings of CHAR and VARCHAR.
inline constexpr const SMappingSheaf* kOneCharacterSet[] = {
    &kAccessMapping,        &kPostgreSql82Mapping, &kPostgreSql84Mapping, &kRedshiftMapping,
    &kSpliceMachineMapping, &kVerticaMapping,      &kNuoDbMapping,
};
inline constexpr const SMappingSheaf* kSapHanas[] = {&kSapHanaMapping};
inline constexpr const SMappingSheaf* kGBases[] = {&kGBaseMapping};
inline constexpr const SMappingSheaf* kSqlBases[] = {&kSqlBaseMapping};
inline constexpr const SMappingSheaf* kWithoutArrays[] = {&kRedshiftMapping, &kSpliceMachineMapping,
                                                          &kInformix4GlMapping};
// Whose sheaves have no rows for some types that only one other database has.
inline constexpr const SMappingSheaf* kShortSheaves[] = {
    &kAccellMapping,   &kAccessMapping,  &kAnsiMapping,      &kDb2Mapping,          &kDb2ForZMapping,
    &kGuptaSalMapping, &kHiRdbMapping,   &kHpNonStopMapping, &kInformixMapping,     &kInformix4GlMapping,
    &kLanguageMapping, &kNeoviewMapping, &kOpenEdgeMapping,  &kPervasiveMapping,    &kScriptMapping,
    &kSeaBaseMapping,  &kSolidMapping,   &kSqlBaseMapping,   &kSybaseAsa120Mapping, &kTeradataMapping,
};
inline constexpr const SMappingSheaf* kWithoutQualifiers[] = {
    &kHpNonStopMapping,   &kScriptMapping,       &kSolidMapping,     &kSqlBaseMapping,
    &kSybaseAsa90Mapping, &kSybaseAsa120Mapping, &kSybase125Mapping,
};
inline constexpr const SMappingSheaf* kInterBases[] = {&kInterBaseMapping, &kFirebirdMapping};
inline constexpr const SMappingSheaf* kSybases9[] = {&kSybaseAsa90Mapping, &kSybase90Mapping,
                                                     &kSybaseIqMapping};
inline constexpr const SMappingSheaf* kMySqls4[] = {&kMySql40Mapping, &kMySql41Mapping};
inline constexpr const SMappingSheaf* kMySqlsWithoutJson[] = {&kMySql40Mapping, &kMySql41Mapping,
                                                              &kMySql50Mapping};
inline constexpr const SMappingSheaf* kInformixes[] = {&kInformixMapping, &kInformix4GlMapping,
                                                       &kGuptaSalMapping, &kSeaBaseMapping, &kAccellMapping};
inline constexpr const SMappingSheaf* kSqlServers[] = {&kSqlServer80Mapping, &kSqlServer90Mapping,
                                                       &kSqlServer100Mapping, &kSqlServer110Mapping};
inline constexpr const SMappingSheaf* kSqlServer8[] = {&kSqlServer80Mapping};
inline constexpr const SMappingSheaf* kCaches[] = {&kCacheMapping};
inline constexpr const SMappingSheaf* kOracles[] = {&kOracle92Mapping, &kOracle102Mapping};
inline constexpr const SMappingSheaf* kWithoutUuid[] = {&kNetezzaMapping, &kRedshiftMapping,
                                                        &kSpliceMachineMapping};
inline constexpr const SMappingSheaf* kWithoutXml[] = {&kRedshiftMapping, &kSpliceMachineMapping};
inline constexpr const SMappingSheaf* kWithoutIntervals[] = {
    &kRedshiftMapping,    &kSpliceMachineMapping, &kSolidMapping,  &kHiRdbMapping,
    &kInformix4GlMapping, &kGuptaSalMapping,      &kAccellMapping, &kSqlBaseMapping};
// Those that have intervals, with rows for the usual ones alone.
inline constexpr const SMappingSheaf* kUsualIntervals[] = {
    &kHpNonStopMapping, &kNeoviewMapping, &kLanguageMapping,     &kScriptMapping,         &kTeradataMapping,
    &kAntsMapping,      &kNetezzaMapping, &kEnterpriseDbMapping, &kPostgreSqlForkMapping, &kVerticaMapping,
};
inline constexpr const SMappingSheaf* kPostgreSqls[] = {&kPostgreSql82Mapping, &kPostgreSql84Mapping};
inline constexpr const SMappingSheaf* kOldPostgreSqls[] = {&kPostgreSql82Mapping};
inline constexpr const SMappingSheaf* kLobUnits[] = {&kDb2Mapping, &kDb2ForZMapping, &kDb2ForIMapping,
                                                     &kHiRdbMapping};
inline constexpr const SMappingSheaf* kDecimalFloats[] = {&kDb2Mapping, &kDb2ForZMapping, &kSqlBaseMapping};
inline constexpr const SMappingSheaf* kHiRdbs[] = {&kHiRdbMapping};
inline constexpr const SMappingSheaf* kOldOracles[] = {&kOracle83Mapping, &kOracle92Mapping};
inline constexpr const SMappingSheaf* kOracle8[] = {&kOracle83Mapping};
inline constexpr const SMappingSheaf* kOldSqlServers[] = {&kSqlServer80Mapping, &kSqlServer90Mapping};
inline constexpr const SMappingSheaf* kTeradatas[] = {&kTeradataMapping};
inline constexpr const SMappingSheaf* kSingleStores[] = {&kSingleStoreMapping, &kSingleStore70Mapping};

// ---- Conditions ----

// Types that one other database alone has, and its columns seldom.
constexpr bool IsRareType(const SMappedPair& pair)
{
    switch (pair.sourceType) {
    case UVDBRows::UniChar: // Sybase ASE
    case UVDBRows::UniVarChar:
    case UVDBRows::UniText:
    case UVDBRows::BigTime:
    case UVDBRows::BigDateTime:
    case UVDBRows::NumericIdentity:
    case UVDBRows::Int:               // languages
    case UVDBRows::SmallSerial:       // SQL Server
    case UVDBRows::MediumIntUnsigned: // MySQL
        return true;
    default:
        return false;
    }
}

// DATETIME YEAR TO SECOND and YEAR TO FRACTION: the timestamps of Informix.
constexpr bool IsWholeQualifier(const SMappedPair& pair)
{
    return pair.sourceType == UVDBRows::DateTimeYearToSecond ||
           pair.sourceType == UVDBRows::DateTimeYearToFraction;
}

constexpr bool LacksLongNational(const SMappedPair& pair)
{
    return IsLongNational(pair.sourceType) && !pair.hasLongNational;
}

constexpr bool IsStringOfBits(const SMappedPair& pair)
{
    return pair.sourceType == UVDBRows::LongVarBit || pair.source.length > 1;
}

constexpr bool IsUnusualInterval(const SMappedPair& pair)
{
    return pair.sourceType != UVDBRows::IntervalYearToMonth &&
           pair.sourceType != UVDBRows::IntervalDayToFraction;
}

constexpr bool HasZone(const SMappedPair& pair)
{
    return pair.source.hasZone;
}

constexpr bool IsUnusualArray(const SMappedPair& pair)
{
    return pair.sourceType != UVDBRows::IntegerArray && pair.sourceType != UVDBRows::VarCharArray;
}

constexpr bool IsJsonb(const SMappedPair& pair)
{
    return pair.sourceType == UVDBRows::JsonB;
}

constexpr bool IsSizeUnknown(const SMappedPair& pair)
{
    return !pair.isSizeKnown;
}

constexpr bool IsNamedNumber(const SMappedPair& pair)
{
    return pair.sourceName == "NUMBER";
}

constexpr bool ExceedsDecimals(const SMappedPair& pair)
{
    return pair.source.digits >= pair.limits.digits;
}

constexpr bool ExceedsNational(const SMappedPair& pair)
{
    return pair.source.length >= pair.longestNational;
}

constexpr bool IsOneBit(const SMappedPair& pair)
{
    return pair.source.length == 1 || !pair.isSizeKnown;
}

constexpr bool ExceedsTime(const SMappedPair& pair)
{
    return pair.source.secondDigits > 0 && pair.source.secondDigits > pair.longestTime;
}

constexpr bool KeepsZone(const SMappedPair& pair)
{
    return pair.source.hasZone && pair.target.hasZone;
}

constexpr bool IsBlobInHiRdb(const SMappedPair& pair)
{
    return pair.source.length >= 32000;
}

constexpr bool IsLongFloat(const SMappedPair& pair)
{
    return pair.target.family == enTypeFamily::DecimalFloat || pair.target.significand >= 53;
}

constexpr bool IsDouble(const SMappedPair& pair)
{
    return pair.target.significand >= 53;
}

constexpr bool HasAllFields(const SMappedPair& pair)
{
    return pair.source.fields == kAllFields;
}

constexpr bool LosesPartOfUnit(const SMappedPair& pair)
{
    constexpr std::uint64_t kMega = std::uint64_t{1} << 20;
    constexpr std::uint64_t kGiga = std::uint64_t{1} << 30;
    return pair.source.length - pair.target.length < (pair.target.length >= kGiga ? kGiga : kMega);
}

constexpr bool HasFewDigits(const SMappedPair& pair)
{
    return pair.source.secondDigits < 6;
}

constexpr bool IsNewInSqlServer(const SMappedPair& pair)
{
    return pair.source.family == F::Xml || pair.source.family == F::Spatial ||
           pair.source.family == F::Variant || pair.source.family == F::Hierarchy;
}

constexpr bool IsLongFixedLength(const SMappedPair& pair)
{
    return (pair.sourceType == UVDBRows::Char || pair.sourceType == UVDBRows::WChar ||
            pair.sourceType == UVDBRows::Binary) &&
           pair.target.length >= 32000;
}

// ---- The lists ----

// clang-format off
constexpr SFamilyException kFamilyExceptions[] = {
//   source, target, targets, why it is right
    // Numbers
    {F::Integer, F::Decimal, Any, "a decimal without fraction"},
    {F::Decimal, F::Integer, Any, "decimals without fraction are integers"},
    {F::Integer, F::DecimalFloat, Any,
     "more digits than the decimals of the target; its decimal float keeps them", ExceedsDecimals},
    {F::Decimal, F::DecimalFloat, Any,
     "more digits than the decimals of the target; its decimal float keeps most or all", ExceedsDecimals},
    {F::Decimal, F::DecimalFloat, Listed, "amounts of money are NUMBERs: 22 digits", nullptr, kSqlBases},
    {F::Decimal, F::DecimalFloat, Any, "decimals of the target have no negative scale",
     [](const SMappedPair& pair) { return pair.source.hasNegativeScale; }},
    {F::Decimal, F::DecimalFloat, Any, "nobody knows how many digits", IsSizeUnknown},
    {F::Decimal, F::Float, Any, "nobody knows how many digits", IsSizeUnknown},
    {F::Float, F::DecimalFloat, Listed, "BINARY_DOUBLE came with 10: floats are NUMBERs", nullptr, kOldOracles},
    {F::Float, F::DecimalFloat, Any,
     "NUMBER without numbers is taken for a double; a decimal float is what it was", IsNamedNumber},
    {F::DecimalFloat, F::Float, Without, "no decimal floats: a double has their range"},
    {F::DecimalFloat, F::Decimal, Listed, "BigDecimal places the point itself", nullptr, kJavas},
    {F::Decimal, F::Float, Listed, "no decimals", nullptr, kLanguagesWithoutDecimals},
    {F::Integer, F::Float, Listed, "no integers of 64 bits", nullptr, kVisualBasics},
    // Truth and bits
    {F::Boolean, F::Bits, Any, "one bit is a truth value"},
    {F::Boolean, F::Integer, Any, "0 and 1"},
    {F::Boolean, F::Decimal, Any, "0 and 1"},
    {F::Bits, F::Boolean, Any, "one bit is a truth value", IsOneBit},
    {F::Bits, F::Integer, Any, "0 and 1", IsOneBit},
    {F::Bits, F::Decimal, Any, "0 and 1", IsOneBit},
    {F::Bits, F::DecimalFloat, Any, "0 and 1", IsSizeUnknown},
    {F::Bits, F::Binary, Any, "no strings of bits, or no longer ones: eight bits in a byte", IsStringOfBits},
    {F::Bits, F::Text, Any, "no strings of bits, or no longer ones: noughts and ones as text", IsStringOfBits},
    // Texts
    {F::NationalText, F::Text, Without, "one character set for all texts"},
    {F::NationalText, F::Text, Any, "longer than any national type of the target", ExceedsNational},
    {F::NationalText, F::Text, Listed,
     "one character set for all texts; NVARCHAR is a further spelling", nullptr, kOneCharacterSet},
    {F::NationalText, F::Text, Listed,
     "NCHAR is ISO 8859-1; the other texts have the character set of the database", nullptr, kInterBases},
    {F::NationalText, F::Text, Listed, "NCHAR came with 10", nullptr, kSybases9},
    {F::NationalText, F::Text, Listed, "VARCHAR ended at 255 characters", nullptr, kMySqls4},
    {F::NationalText, F::Text, Listed, "NVARCHAR ends at 255 bytes, LVARCHAR doesn't",
     [](const SMappedPair& pair) { return pair.source.length >= 255; }, kInformixes},
    {F::NationalText, F::Text, Listed, "the national types that its databases have end at 10,922 characters",
     [](const SMappedPair& pair) { return pair.source.length > 10922; }, kGBases},
    {F::NationalText, F::Text, Listed, "NVARCHAR ends at 5,000 characters", nullptr, kSapHanas},
    {F::NationalText, F::Text, Any, "no long national texts", LacksLongNational},
    {kAnyFamily, F::Text, Listed,
     "types of one other database have rows in longer sheaves alone", IsRareType, kShortSheaves},
    {kAnyFamily, F::Binary, Listed,
     "the longest texts have 32,000 bytes; what is longer is a BLOB", IsBlobInHiRdb, kHiRdbs},
    // Times
    {F::Date, F::Timestamp, Without, "no dates alone: midnight of the day"},
    {F::Date, F::Timestamp, Listed, "DATE came with 10", nullptr, kOldSqlServers},
    {F::Time, F::Timestamp, Without, "no times alone: a time of some day"},
    {F::Time, F::Timestamp, Listed, "TIME came with 10", nullptr, kOldSqlServers},
    {F::Time, F::Timestamp, Any, "only timestamps have so many digits after the second", ExceedsTime},
    {F::Time, F::Timestamp, Any, "only timestamps have a zone", KeepsZone},
    {F::Time, F::Text, Any, "no times with a zone: the text keeps it", HasZone},
    {F::Time, F::Qualified, Listed, "DATETIME HOUR TO FRACTION", nullptr, kInformixes},
    {F::Timestamp, F::Qualified, Listed, "DATETIME YEAR TO FRACTION", nullptr, kInformixes},
    {F::Qualified, F::Date, Any, "a date has these parts"},
    {F::Qualified, F::Time, Any, "a time has these parts"},
    {F::Qualified, F::Timestamp, Any, "a timestamp has these parts"},
    {F::Qualified, F::Text, Any,
     "months without years and the like are known to Informix alone: their text",
     [](const SMappedPair& pair) { return !IsWholeQualifier(pair); }},
    {F::Qualified, F::Text, Listed,
     "qualifiers of Informix have rows in longer sheaves alone", IsWholeQualifier, kWithoutQualifiers},
    {F::Interval, F::Text, Without, "no intervals: their text"},
    {F::Interval, F::Text, Listed, "intervals came with 9", nullptr, kOracle8},
    {F::Interval, F::Text, Listed, "intervals are no columns there: their text", nullptr, kWithoutIntervals},
    {F::Interval, F::Text, Listed,
     "intervals of other parts than year to month and day to second: their text",
     IsUnusualInterval, kUsualIntervals},
    // Others
    {F::Uuid, F::Text, Without, "32 digits and four strokes"},
    {F::Uuid, F::Text, Listed, "UUID came with 8.3", nullptr, kOldPostgreSqls},
    {F::Uuid, F::Text, Listed, "GUID is no type of columns: their text", nullptr, kOracles},
    {F::Uuid, F::Text, Listed, "forks that have no UUID", nullptr, kWithoutUuid},
    {F::Uuid, F::Binary, Listed, "16 bytes", nullptr, kOracle8},
    {F::Xml, F::Text, Without, "no XML: its text"},
    {F::Xml, F::Text, Listed, "XML came with 8.3", nullptr, kOldPostgreSqls},
    {F::Xml, F::Text, Listed, "XMLTYPE came with 9", nullptr, kOracle8},
    {F::Xml, F::Text, Listed, "XML came with 9", nullptr, kSqlServer8},
    {F::Xml, F::Text, Listed, "forks that have no XML", nullptr, kWithoutXml},
    {kAnyFamily, F::Text, Listed, "names of SQL Server that mean nothing there",
     IsNewInSqlServer, kCaches},
    {F::Spatial, F::Text, Listed, "GEOMETRY came with 10", nullptr, kOldSqlServers},
    {F::Hierarchy, F::Text, Listed, "HIERARCHYID came with 10", nullptr, kOldSqlServers},
    {F::Json, F::Text, Without, "no JSON: its text"},
    {F::Json, F::Text, Any, "JSONB is PostgreSQL's", IsJsonb},
    {F::Json, F::Text, Listed, "JSON came with 5.7", nullptr, kMySqlsWithoutJson},
    {F::Json, F::Unknown, Listed, "the name is written for newer servers; the tables don't have it", nullptr, kOracle8},
    {F::Json, F::Text, Listed, "JSON came with 9.2", nullptr, kOldPostgreSqls},
    {F::Json, F::NationalText, Without, "JSON is kept in NVARCHAR"},
    {F::Spatial, F::Text, Without, "no shapes: their text form"},
    {F::Spatial, F::Binary, Without, "no shapes: their binary form"},
    {F::Array, F::Text, Without, "no arrays: their text"},
    {F::Array, F::Text, Listed, "arrays are no columns there: their text", nullptr, kWithoutArrays},
    {F::Array, F::Text, Listed, "arrays of other things than integers and texts: their text",
     IsUnusualArray, kPostgreSqls},
    {F::Variant, F::Text, Without, "no type for values of all types: their text"},
    {F::Hierarchy, F::Text, Without, "its path"},
    {F::Record, F::Text, Any, "records of programs are no columns"},
    {F::File, F::Text, Any, "name of the file"},
    {F::File, F::Binary, Any, "contents of the file"},
    {F::RowId, F::Text, Any, "tells rows apart in its own database alone: its text"},
    {F::RowId, F::Binary, Any, "SQL Server's ROWVERSION is eight bytes"},
    {F::RowId, F::Integer, Any, "PostgreSQL's OID is a number"},
    {F::RowId, F::Decimal, Any, "PostgreSQL's OID is a number"},
    {kAnyFamily, F::Text, Listed, "what has no type of the language travels as text", nullptr, kShortLanguages},
};

constexpr SLossException kLossExceptions[] = {
//   source, loss, targets, why it is right
    {F::Decimal, L::NegativeScale, Any, "Oracle and PostgreSQL alone round to tens; elsewhere the scale is lost"},
    {F::Float, L::Significand, Any, "no binary floats beyond double", IsDouble},
    {F::Integer, L::Significand, Listed, "no integers of 64 bits, no decimals", nullptr, kVisualBasics},
    {F::Decimal, L::Significand, Listed, "no decimals", nullptr, kLanguagesWithoutDecimals},
    {F::Decimal, L::Significand, Listed, "34 digits, and 22 in SQLBase", nullptr, kDecimalFloats},
    {F::DecimalFloat, L::Significand, Any, "decimal floats of other lengths, or doubles", IsLongFloat},
    {F::Interval, L::Fields, Any, "PostgreSQL's one type for months and seconds: the seconds stay", HasAllFields},
    {F::Interval, L::SecondDigits, Any,
     "six digits, in Informix five", [](const SMappedPair& pair) { return pair.target.secondDigits >= 5; }},
    {F::Interval, L::LeadingDigits, Any,
     "nine leading digits", [](const SMappedPair& pair) { return pair.target.leadingDigits >= 9; }},
    {F::Interval, L::LeadingDigits, Listed,
     "four leading digits", [](const SMappedPair& pair) { return pair.target.leadingDigits == 4; }, kTeradatas},
    {F::Interval, L::Length, Listed,
     "intervals of Informix travel with the size of their usual text", nullptr, kSqlServers},
    {kAnyFamily, L::SecondDigits, Listed, "DATETIME has six digits or none", HasFewDigits, kSingleStores},
    {F::RowId, L::Length, Any, "Oracle hands them out in 18 characters"},
    {kAnyFamily, L::Length, Any,
     "CHAR, NCHAR and BINARY: fixed lengths above 32,000 are limits and no columns",
     IsLongFixedLength},
    {F::Bits, L::Length, Any, "strings of bits have limits of megabytes and lengths of some dozens",
     [](const SMappedPair& pair) { return pair.source.length > 2000; }},
    {kAnyFamily, L::Length, Listed, "lengths of large objects in whole units", LosesPartOfUnit, kLobUnits},
};
// clang-format on

} // namespace TypeMeaning
