#include "Catalogue/Identifiers/UVDBReservedWords.h"

#include "Catalogue/Identifiers/ReservedWords/ReservedWords.h"
#include "Catalogue/Identifiers/UVDBAsciiCase.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBRowConditions.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace {

struct SReservedWordsRow
{
    std::uint64_t db;
    std::uint64_t subType;
    const std::span<const std::string_view>* words;
};

// By kind; the first row of a kind whose subtype fits decides.
// clang-format off
constexpr SReservedWordsRow kRows[] = {
//   kind                            subtype                                 words
    {UVDB_DB_DB2,                    kAnySubType,                            &kDb2ReservedWords},
    {UVDB_DB_ORA,                    kAnySubType,                            &kOracleReservedWords},
    {UVDB_DB_MSSQL,                  kAnySubType,                            &kSqlServerReservedWords},
    {UVDB_DB_SYBASE,                 UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE, &kAseReservedWords},
    {UVDB_DB_SYBASE,                 kAnySubType,                            &kAsaReservedWords},
    {UVDB_DB_MySQL,                  UVDB_MySQL_FOR_MariaDB,                 &kMariaDbReservedWords},
    {UVDB_DB_MySQL,                  kAnySubType,                            &kMySqlReservedWords},
    {UVDB_DB_PERVASIVE,              kAnySubType,                            &kPervasiveReservedWords},
    {UVDB_DB_POSTGRESQL,             kAnySubType,                            &kPostgreSqlReservedWords},
    {UVDB_DB_ENTERPRISEDB,           UVDB_ENTERPRISEDB_PPSS,                 &kPostgreSql9ReservedWords},
    {UVDB_DB_ENTERPRISEDB,           kAnySubType,                            &kEnterpriseDbPpasReservedWords},
    {UVDB_DB_GREENPLUM,              kAnySubType,                            &kGreenplumReservedWords},
    {UVDB_DB_HIRDB,                  kAnySubType,                            &kHiRdbReservedWords},
    {UVDB_DB_SPLICE_MACHINE,         kAnySubType,                            &kSpliceMachineReservedWords},
    {UVDB_DB_ACCESS,                 kAnySubType,                            &kAccessReservedWords},
    {UVDB_DB_ANTS,                   kAnySubType,                            &kAntsReservedWords},
    {UVDB_DB_SOLID,                  kAnySubType,                            &kSolidReservedWords},
    {UVDB_DB_CS,                     kAnySubType,                            &kCSharpReservedWords},
    {UVDB_DB_NEOVIEW,                kAnySubType,                            &kNeoviewReservedWords},
    {UVDB_DB_HPNonStop,              kAnySubType,                            &kHpNonStopReservedWords},
    {UVDB_DB_VERTICA_ANALYTIC_DATABASE, kAnySubType,                         &kVerticaReservedWords},
    {UVDB_DB_TERADATA,               kAnySubType,                            &kTeradataReservedWords},
    {UVDB_DB_INTERBASE,              kAnySubType,                            &kInterBaseReservedWords},
    {UVDB_DB_FIREBIRD,               kAnySubType,                            &kFirebirdReservedWords},
    {UVDB_DB_SAP_HANA,               kAnySubType,                            &kSapHanaReservedWords},
    {UVDB_DB_VPOSTGRES,              kAnySubType,                            &kPostgreSql9ReservedWords},
    {UVDB_DB_INGRES,                 kAnySubType,                            &kIngresReservedWords},
    {UVDB_DB_SEABASE,                kAnySubType,                            &kSeaBaseReservedWords},
    {UVDB_DB_NUODB,                  kAnySubType,                            &kNuoDbReservedWords},
    {UVDB_DB_GBASE,                  kAnySubType,                            &kGBaseReservedWords},
    {UVDB_DB_REDSHIFT,               kAnySubType,                            &kRedshiftReservedWords},
    {UVDB_DB_ADVANTAGE,              kAnySubType,                            &kAccessReservedWords},
    {UVDB_DB_PROGRESS,               kAnySubType,                            &kProgressReservedWords},
    {UVDB_DB_PARADOX,                kAnySubType,                            &kParadoxReservedWords},
    {UVDB_DB_SQR,                    kAnySubType,                            &kSqrReservedWords},
    {UVDB_DB_SingleStoreDB,          kAnySubType,                            &kMySqlReservedWords},
};
// clang-format on
static_assert(std::size(kRows) == 36);
static_assert(std::ranges::is_sorted(kRows, {}, &SReservedWordsRow::db));

bool IsFoldedLess(std::string_view left, std::string_view right)
{
    return std::ranges::lexicographical_compare(left, right, {}, UVDBAsciiUpper, UVDBAsciiUpper);
}

} // namespace

std::span<const std::string_view> GetReservedWords(DB_VERSION_INFO version)
{
    const SReservedWordsRow* row = std::ranges::lower_bound(kRows, version.db, {}, &SReservedWordsRow::db);
    for (; row != std::end(kRows) && row->db == version.db; ++row)
        if (FitsSubType(row->subType, version.subType))
            return *row->words;
    return {};
}

bool UVDBIsReservedWord(std::string_view word, DB_VERSION_INFO version)
{
    return std::ranges::binary_search(GetReservedWords(version), word, IsFoldedLess);
}
