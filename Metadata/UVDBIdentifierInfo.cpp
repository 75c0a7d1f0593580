#include "Metadata/UVDBIdentifierInfo.h"

#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/UVDBKindSet.h"
#include "Catalogue/UVDBRowConditions.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

namespace {

struct SSupportRow
{
    int objectType;
    bool isSupported;
    CKindSet kinds;
    std::uint64_t subType = kAnySubType;
    SFromVersion from = {};
};

constexpr CKindSet kAll = CKindSet::All();
constexpr CKindSet kSheets{UVDB_DB_EXCEL, UVDB_DB_PARADOX};
constexpr CKindSet kMySqlKin{UVDB_DB_MySQL, UVDB_DB_MARIADB, UVDB_DB_MySQL_AMAZON_AURORA,
                             UVDB_DB_MySQL_GOOGLE_CLOUD_SQL};
constexpr CKindSet kPostgresKin{UVDB_DB_POSTGRESQL, UVDB_DB_VPOSTGRES, UVDB_DB_PostgreSQL_AMAZON_AURORA,
                                UVDB_DB_PostgreSQL_GOOGLE_CLOUD_SQL, UVDB_DB_PostgresPro};
constexpr CKindSet kSqlServerKin{UVDB_DB_MSSQL, UVDB_DB_MSSQL_GOOGLE_CLOUD_SQL, UVDB_DB_MS_AZURE_SQL};
constexpr CKindSet kInterBaseKin{UVDB_DB_INTERBASE, UVDB_DB_FIREBIRD};
constexpr CKindSet kSybase{UVDB_DB_SYBASE};

constexpr std::uint64_t kAsa = UVDB_SYBASE_ADAPTIVE_SERVER_ANYWHERE;
constexpr std::uint64_t kAse = UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE;
constexpr std::uint64_t kIq = UVDB_SYBASE_IQ;
constexpr std::uint64_t kMariaDb = UVDB_MySQL_FOR_MariaDB;
constexpr std::uint64_t kPpas = UVDB_ENTERPRISEDB_PPAS;

// Order is meaning: the first row that fits decides. A type without rows is one that every database has; the
// last row of the others tells the rule, the rows before it what departs from it.
// clang-format off
constexpr SSupportRow kRows[] = {
//   type                       has    kinds                                     subtype      from
    {UVDB_DBO_VIEW,             false, kSheets},
    {UVDB_DBO_VIEW,             true,  kMySqlKin,                                kAnySubType, {5, 0}},
    {UVDB_DBO_VIEW,             false, kMySqlKin},

    {UVDB_DBO_SYNONYM,          true,  {UVDB_DB_ORA, UVDB_DB_DB2, UVDB_DB_INFORMIX, UVDB_DB_SAP_HANA,
                                        UVDB_DB_INGRES, UVDB_DB_NETEZZA, UVDB_DB_NEOVIEW, UVDB_DB_PROGRESS,
                                        UVDB_DB_SPLICE_MACHINE, UVDB_DB_SQLBase}},
    {UVDB_DBO_SYNONYM,          true,  {UVDB_DB_ENTERPRISEDB},                   kPpas},
    {UVDB_DBO_SYNONYM,          true,  kSqlServerKin,                            kAnySubType, {9, 0}},
    {UVDB_DBO_SYNONYM,          false, kAll},

    {UVDB_DBO_SEQUENCE,         true,  {UVDB_DB_ORA, UVDB_DB_DB2, UVDB_DB_HIRDB, UVDB_DB_SAP_HANA,
                                        UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM, UVDB_DB_NETEZZA,
                                        UVDB_DB_VERTICA_ANALYTIC_DATABASE, UVDB_DB_INGRES, UVDB_DB_SOLID,
                                        UVDB_DB_SPLICE_MACHINE, UVDB_DB_NUODB, UVDB_DB_SNOWFLAKE,
                                        UVDB_DB_PROGRESS, UVDB_DB_SingleStoreDB}},
    {UVDB_DBO_SEQUENCE,         true,  kPostgresKin},
    {UVDB_DBO_SEQUENCE,         true,  kInterBaseKin},
    {UVDB_DBO_SEQUENCE,         true,  kSqlServerKin,                            kAnySubType, {11, 0}},
    {UVDB_DBO_SEQUENCE,         true,  {UVDB_DB_INFORMIX},                       kAnySubType, {9, 4}},
    {UVDB_DBO_SEQUENCE,         true,  kSybase,                                  kAsa,        {12, 0}},
    {UVDB_DBO_SEQUENCE,         true,  kSybase,                                  kIq,         {16, 0}},
    {UVDB_DBO_SEQUENCE,         true,  {UVDB_DB_MySQL},                          kMariaDb,    {10, 3}},
    {UVDB_DBO_SEQUENCE,         true,  {UVDB_DB_MARIADB},                        kAnySubType, {10, 3}},
    {UVDB_DBO_SEQUENCE,         false, kAll},

    {UVDB_DBO_STORED_PROCEDURE, false, kSheets},
    {UVDB_DBO_STORED_PROCEDURE, true,  kMySqlKin,                                kAnySubType, {5, 0}},
    {UVDB_DBO_STORED_PROCEDURE, true,  kPostgresKin,                             kAnySubType, {11, 0}},
    {UVDB_DBO_STORED_PROCEDURE, true,  {UVDB_DB_VERTICA_ANALYTIC_DATABASE},      kAnySubType, {11, 0}},
    {UVDB_DBO_STORED_PROCEDURE, true,  {UVDB_DB_GREENPLUM},                      kAnySubType, {7, 0}},
    {UVDB_DBO_STORED_PROCEDURE, false, kMySqlKin},
    {UVDB_DBO_STORED_PROCEDURE, false, kPostgresKin},
    {UVDB_DBO_STORED_PROCEDURE, false, {UVDB_DB_VERTICA_ANALYTIC_DATABASE, UVDB_DB_GREENPLUM}},

    {UVDB_DBO_FUNCTION,         false, kSheets},
    {UVDB_DBO_FUNCTION,         false, {UVDB_DB_ACCESS}},
    {UVDB_DBO_FUNCTION,         true,  kMySqlKin,                                kAnySubType, {5, 0}},
    {UVDB_DBO_FUNCTION,         true,  kSqlServerKin,                            kAnySubType, {8, 0}},
    {UVDB_DBO_FUNCTION,         true,  kSybase,                                  kAse,        {15, 0}},
    {UVDB_DBO_FUNCTION,         false, kMySqlKin},
    {UVDB_DBO_FUNCTION,         false, kSqlServerKin},
    {UVDB_DBO_FUNCTION,         false, kSybase,                                  kAse},

    {UVDB_DBO_TRIGGER,          false, kSheets},
    {UVDB_DBO_TRIGGER,          false, {UVDB_DB_ACCESS, UVDB_DB_REDSHIFT, UVDB_DB_NETEZZA, UVDB_DB_SNOWFLAKE,
                                        UVDB_DB_VERTICA_ANALYTIC_DATABASE, UVDB_DB_GREENPLUM,
                                        UVDB_DB_MS_AZURE_SQL_WAREHOUSE, UVDB_DB_SingleStoreDB}},
    {UVDB_DBO_TRIGGER,          true,  kMySqlKin,                                kAnySubType, {5, 0}},
    {UVDB_DBO_TRIGGER,          false, kMySqlKin},

    {UVDB_DBO_PACKAGE,          true,  {UVDB_DB_ORA}},
    {UVDB_DBO_PACKAGE,          true,  {UVDB_DB_ENTERPRISEDB},                   kPpas},
    {UVDB_DBO_PACKAGE,          true,  {UVDB_DB_FIREBIRD},                       kAnySubType, {3, 0}},
    {UVDB_DBO_PACKAGE,          true,  {UVDB_DB_MySQL},                          kMariaDb,    {10, 3}},
    {UVDB_DBO_PACKAGE,          true,  {UVDB_DB_MARIADB},                        kAnySubType, {10, 3}},
    {UVDB_DBO_PACKAGE,          false, kAll},

    {UVDB_DBO_RULE,             true,  kPostgresKin},
    {UVDB_DBO_RULE,             true,  {UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM, UVDB_DB_INGRES}},
    {UVDB_DBO_RULE,             true,  kSqlServerKin},
    {UVDB_DBO_RULE,             true,  kSybase,                                  kAse},
    {UVDB_DBO_RULE,             false, kAll},
    {UVDB_DBO_DEFAULT,          true,  kSqlServerKin},
    {UVDB_DBO_DEFAULT,          true,  kSybase,                                  kAse},
    {UVDB_DBO_DEFAULT,          false, kAll},
    {UVDB_DBO_RULE_BINDING,     true,  kSqlServerKin},
    {UVDB_DBO_RULE_BINDING,     true,  kSybase,                                  kAse},
    {UVDB_DBO_RULE_BINDING,     false, kAll},
    {UVDB_DBO_DEFAULT_BINDING,  true,  kSqlServerKin},
    {UVDB_DBO_DEFAULT_BINDING,  true,  kSybase,                                  kAse},
    {UVDB_DBO_DEFAULT_BINDING,  false, kAll},

    {UVDB_DBO_USER_DEFINED_TYPE, false, kSheets},
    {UVDB_DBO_USER_DEFINED_TYPE, false, kMySqlKin},
    {UVDB_DBO_USER_DEFINED_TYPE, false, {UVDB_DB_ACCESS, UVDB_DB_REDSHIFT, UVDB_DB_SNOWFLAKE,
                                         UVDB_DB_SingleStoreDB}},

    {UVDB_DBO_MACRO,            true,  {UVDB_DB_TERADATA}},
    {UVDB_DBO_MACRO,            false, kAll},
    {UVDB_DBO_EXCEPTION,        true,  kInterBaseKin},
    {UVDB_DBO_EXCEPTION,        false, kAll},
    {UVDB_DBO_EVENT,            true,  kMySqlKin,                                kAnySubType, {5, 1}},
    {UVDB_DBO_EVENT,            true,  kSybase,                                  kAsa},
    {UVDB_DBO_EVENT,            true,  kSybase,                                  kIq},
    {UVDB_DBO_EVENT,            false, kAll},
    {UVDB_DBO_PHYSICAL_FILE_KEY, true, {UVDB_DB_DB2},        UVDB_DB2_UDB_FOR_AS400_AND_iSERIES},
    {UVDB_DBO_PHYSICAL_FILE_KEY, false, kAll},
};
// clang-format on

DB_VERSION_INFO VersionOf(const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    return info ? info->get_DbmsVersion() : DB_VERSION_INFO{};
}

// Databases answer by an operation of their own; where that has nothing to say, the option may still be
// there.
long CaseOf(const std::shared_ptr<IUVDBDatabaseInfo2>& info, int (IUVDBDatabaseInfo2::*getter)(long*),
            const char* option, long (*guess)(DB_VERSION_INFO))
{
    long letterCase = 0;
    if (info &&
        ((*info.*getter)(&letterCase) == UVDB_OK || CUVDBOptionWrapper::GetParam(info, option, letterCase)))
        return letterCase;
    return guess(VersionOf(info));
}

} // namespace

long UVDBGetIdentifierCase(const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    return CaseOf(info, &IUVDBDatabaseInfo2::get_IdentifierCase, "IdentifierCase",
                  &UVDBGetIdentifierCaseGuess);
}

long UVDBGetQuotedIdentifierCase(const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    return CaseOf(info, &IUVDBDatabaseInfo2::get_QuotedIdentifierCase, "QuotedIdentifierCase",
                  &UVDBGetQuotedIdentifierCaseGuess);
}

Uve::U8CString NormalizeIdentifier(const char* name, const std::shared_ptr<IUVDBDatabaseInfo2>& target,
                                   const std::shared_ptr<IUVDBDatabaseInfo2>& source)
{
    const DB_VERSION_INFO sourceVersion = VersionOf(source);
    const Uve::U8CString quote = GetDBMSEncloseCharOpen(sourceVersion);
    return NormalizeIdentifier(name, VersionOf(target), sourceVersion, UVDBGetIdentifierCase(target),
                               quote.c_str(), UVDBGetQuotedIdentifierCase(target));
}

bool UVDBDBSupportObjectP(int objectType, const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    const DB_VERSION_INFO version = VersionOf(info);
    const auto row = std::ranges::find_if(kRows, [&](const SSupportRow& candidate) {
        return candidate.objectType == objectType && candidate.kinds.Has(version.db) &&
               FitsSubType(candidate.subType, version.subType) && candidate.from.Holds(version);
    });
    return row == std::end(kRows) || row->isSupported;
}

std::vector<SUVDBChildObject> UVDBGetChildObjectsList(const std::shared_ptr<IUVDBObjectInfo>& object)
{
    std::vector<SUVDBChildObject> children;
    if (!object)
        return children;
    for (const std::shared_ptr<IUVDBObjectInfo>& child : object->get_ChildObjects()) {
        SUVDBChildObject& entry = children.emplace_back();
        CUVDBOptionWrapper::GetParam(child, "XMLName", entry.kind);
        entry.name = child->get_ObjectName();
    }
    return children;
}
