#include "Catalogue/Identifiers/UVDBAsciiCase.h"
#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/Identifiers/UVDBObjectTypeSet.h"
#include "Catalogue/UVDBKindSet.h"
#include "Catalogue/UVDBRowConditions.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace {

constexpr long kNoLimit = 0;
constexpr long kCommonSize = 255;

// The empty set, which no row needs: every type, and numbers that are none.
constexpr CObjectTypeSet kAllTypes;

struct SSizeRow
{
    CKindSet kinds;
    std::uint64_t subType = kAnySubType;
    SFromVersion from;
    CObjectTypeSet types = kAllTypes;
    long size = kCommonSize;
    std::string_view objectWord = {}; // empty: any
};

constexpr CObjectTypeSet Range(int first, int last, int step = 1)
{
    return CObjectTypeSet::Range(first, last, step);
}

constexpr CKindSet kDb2Kin{UVDB_DB_DB2, UVDB_DB_HIRDB, UVDB_DB_SAP_HANA};
constexpr CKindSet kInformixKin{UVDB_DB_INFORMIX, UVDB_DB_4GL_INFORMIX, UVDB_DB_4GL_SEA};
constexpr CKindSet kMySqlKin{UVDB_DB_MySQL, UVDB_DB_INGRES, UVDB_DB_SingleStoreDB};
constexpr CKindSet kPostgresKin{UVDB_DB_POSTGRESQL, UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM,
                                UVDB_DB_ANTS,       UVDB_DB_SOLID,        UVDB_DB_VPOSTGRES};
constexpr CKindSet kInterBaseKin{UVDB_DB_INTERBASE, UVDB_DB_FIREBIRD};

// Types with shorter names than the others.
constexpr CObjectTypeSet kShortInDb2 =
    CObjectTypeSet{UVDB_DBO_FUNCTION, UVDB_DBO_TRIGGER, UVDB_DBO_USER_DEFINED_TYPE, UVDB_DBO_INDEX,
                   UVDB_DBO_CURSOR} |
    Range(21, 25);
constexpr CObjectTypeSet kShortInPervasive =
    CObjectTypeSet{UVDB_DBO_TABLE, UVDB_DBO_VIEW, UVDB_DBO_CHECK_CONSTRAINT, UVDB_DBO_INDEX} | Range(17, 20);

constexpr std::uint64_t kAs400 = UVDB_DB2_UDB_FOR_AS400_AND_iSERIES;
constexpr std::uint64_t kOs390 = UVDB_DB2_UDB_FOR_zOS_AND_OS390;
constexpr std::uint64_t kAse = UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE;

// Order is meaning: the first row that fits decides, so a kind's rows go from the special to the general, and
// from the newest version to the oldest.
// clang-format off
constexpr SSizeRow kRows[] = {
//   kinds                 subtype      from     types                          size
    {{UVDB_DB_ORA},        kAnySubType, {},      {UVDB_DBO_DATABASE},           kNoLimit},
    {{UVDB_DB_ORA},        kAnySubType, {12, 2}, kAllTypes,                     128},
    {{UVDB_DB_ORA},        kAnySubType, {},      kAllTypes,                     30},

    {kDb2Kin,              kAs400,      {},      {UVDB_DBO_USER_DEFINED_TYPE},  18},
    {kDb2Kin,              kAs400,      {},      {UVDB_DBO_FOREIGN_KEY},        30},
    {kDb2Kin,              kAs400,      {},      Range(13, 39, 2),              kNoLimit},
    {kDb2Kin,              kAs400,      {},      kAllTypes,                     128},

    {kDb2Kin,              kOs390,      {9, 0},  {UVDB_DBO_COLUMN},             kCommonSize},
    {kDb2Kin,              kOs390,      {9, 0},  {UVDB_DBO_CURSOR},             30},
    {kDb2Kin,              kOs390,      {9, 0},  kAllTypes,                     128},
    {kDb2Kin,              kOs390,      {},      {UVDB_DBO_TRIGGER},            8},
    {kDb2Kin,              kOs390,      {},      Range(10, 22, 2),              18},
    {kDb2Kin,              kOs390,      {},      Range(9, 23, 2),               kNoLimit},
    {kDb2Kin,              kOs390,      {},      kAllTypes,                     128},

    {kDb2Kin,              kAnySubType, {},      {UVDB_DBO_DATABASE},           kNoLimit},
    {kDb2Kin,              kAnySubType, {8, 5},  kAllTypes,                     128},
    {kDb2Kin,              kAnySubType, {},      kShortInDb2,                   18},
    {kDb2Kin,              kAnySubType, {},      {UVDB_DBO_COLUMN, UVDB_DBO_SCHEMA,
                                                  UVDB_DBO_ALIAS},              30},
    {kDb2Kin,              kAnySubType, {},      kAllTypes,                     128},

    // the server itself makes a temporary table's name longer
    {{UVDB_DB_MSSQL},      kAnySubType, {},      {UVDB_DBO_TABLE},              115, "temp"},
    {{UVDB_DB_MSSQL},      kAnySubType, {},      kAllTypes,                     128},

    {{UVDB_DB_SYBASE},     kAnySubType, {},      {UVDB_DBO_DATABASE},           kNoLimit},
    {{UVDB_DB_SYBASE},     kAse,        {},      kAllTypes,                     30},
    {{UVDB_DB_SYBASE},     kAnySubType, {},      Range(0, 39),                  128},

    {kMySqlKin,            kAnySubType, {},      {UVDB_DBO_CURSOR},             18},
    {kMySqlKin,            kAnySubType, {},      kAllTypes,                     64},

    {{UVDB_DB_PERVASIVE},  kAnySubType, {},      kShortInPervasive,             20},
    {{UVDB_DB_PERVASIVE},  kAnySubType, {},      kAllTypes,                     30},

    {kInformixKin,         kAnySubType, {9, 4},  kAllTypes,                     128},
    {kInformixKin,         kAnySubType, {},      kAllTypes,                     18},

    {kPostgresKin,         kAnySubType, {},      kAllTypes,                     63},

    {{UVDB_DB_TERADATA},   kAnySubType, {14, 0}, kAllTypes,                     128},
    {{UVDB_DB_TERADATA},   kAnySubType, {},      kAllTypes,                     30},

    {kInterBaseKin,        kAnySubType, {},      {UVDB_DBO_DATABASE},           kNoLimit},
    {kInterBaseKin,        kAnySubType, {},      kAllTypes,                     30},

    {{UVDB_DB_SEABASE},    kAnySubType, {},      kAllTypes,                     30},
};
// clang-format on

} // namespace

long GetDBMSMaxIdentifierSize(unsigned long objectType, DB_VERSION_INFO version, const char* name)
{
    const std::string_view objectWord(name ? name : "");
    const auto row = std::ranges::find_if(kRows, [&](const SSizeRow& candidate) {
        return candidate.kinds.Has(version.db) && FitsSubType(candidate.subType, version.subType) &&
               candidate.from.Holds(version) &&
               (candidate.types.IsEmpty() || candidate.types.Has(static_cast<std::int64_t>(objectType))) &&
               (candidate.objectWord.empty() || UVDBEqualNoCase(candidate.objectWord, objectWord));
    });
    return row != std::end(kRows) ? row->size : kCommonSize;
}
