#include "Catalogue/Types/DataTypes/DataTypeRegistry.h"

#include "Catalogue/Types/DataTypes/DataTypeTables.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <iterator>

namespace {

constexpr SDataTypeTableKey Kind(std::uint64_t db, const SDataTypeTable& table)
{
    return {.db = db, .table = &table};
}

constexpr SDataTypeTableKey Subtype(std::uint64_t db, std::uint64_t subType, const SDataTypeTable& table)
{
    return {.db = db, .subType = subType, .table = &table};
}

// clang-format off
constexpr SDataTypeTableKey kRows[] = {
//          kind and subtype                                              table
    Kind   (UVDB_DB_ACCESS,                                               kAccessDataTypes),
    Kind   (UVDB_DB_ANSI,                                                 kAnsiDataTypes),
    Kind   (UVDB_DB_PROGRESS,                                             kProgressDataTypes),
    Kind   (UVDB_DB_ADABAS,                                               kAdabasDataTypes),
    Kind   (UVDB_DB_4DSQLSERVER,                                          kAdabasDataTypes),
    Kind   (UVDB_DB_SQR,                                                  kAdabasDataTypes),
    Kind   (UVDB_DB_DB2,                                                  kDb2DataTypes),
    Subtype(UVDB_DB_DB2,          UVDB_DB2_UDB_FOR_AS400_AND_iSERIES,     kDb2ForIDataTypes),
    Kind   (UVDB_DB_SAP_HANA,                                             kSapHanaDataTypes),
    Kind   (UVDB_DB_HIRDB,                                                kHiRdbDataTypes),
    Kind   (UVDB_DB_ORA,                                                  kOracleDataTypes),
    Kind   (UVDB_DB_MSSQL,                                                kSqlServerDataTypes),
    Kind   (UVDB_DB_CACHE,                                                kCacheDataTypes),
    Kind   (UVDB_DB_SYBASE,                                               kSybaseDataTypes),
    Subtype(UVDB_DB_SYBASE,       UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE, kSybaseAseDataTypes),
    Kind   (UVDB_DB_MySQL,                                                kMySqlDataTypes),
    Kind   (UVDB_DB_SingleStoreDB,                                        kMySqlDataTypes),
    Subtype(UVDB_DB_MySQL,        UVDB_MySQL_FOR_MariaDB,                 kMariaDbDataTypes),
    Kind   (UVDB_DB_GBASE,                                                kGBaseDataTypes),
    Kind   (UVDB_DB_INGRES,                                               kGBaseDataTypes),
    Kind   (UVDB_DB_REDSHIFT,                                             kRedshiftDataTypes),
    Kind   (UVDB_DB_SPLICE_MACHINE,                                       kSpliceMachineDataTypes),
    Kind   (UVDB_DB_PERVASIVE,                                            kPervasiveDataTypes),
    Kind   (UVDB_DB_INFORMIX,                                             kInformixDataTypes),
    Kind   (UVDB_DB_4GL_INFORMIX,                                         kInformix4GlDataTypes),
    Kind   (UVDB_DB_4GL_SEA,                                              kGuptaSalDataTypes),
    Kind   (UVDB_DB_GUPTA_SAL,                                            kGuptaSalDataTypes),
    Kind   (UVDB_DB_4GL_PROGRESS,                                         kOpenEdgeDataTypes),
    Kind   (UVDB_DB_OPENEDGE_ABL,                                         kOpenEdgeDataTypes),
    Kind   (UVDB_DB_4D,                                                   kOpenEdgeDataTypes),
    Kind   (UVDB_DB_POSTGRESQL,                                           kPostgreSqlDataTypes),
    Kind   (UVDB_DB_VPOSTGRES,                                            kPostgreSqlForkDataTypes),
    Kind   (UVDB_DB_GREENPLUM,                                            kPostgreSqlForkDataTypes),
    Kind   (UVDB_DB_ENTERPRISEDB,                                         kPostgreSqlForkDataTypes),
    Subtype(UVDB_DB_ENTERPRISEDB, UVDB_ENTERPRISEDB_PPSS,                 kPostgreSqlForkDataTypes),
    Subtype(UVDB_DB_ENTERPRISEDB, UVDB_ENTERPRISEDB_PPAS,                 kPostgreSqlForkDataTypes),
    Kind   (UVDB_DB_NETEZZA,                                              kNetezzaDataTypes),
    Kind   (UVDB_DB_ANTS,                                                 kAntsDataTypes),
    Kind   (UVDB_DB_SOLID,                                                kAntsDataTypes),
    Kind   (UVDB_DB_PARADOX,                                              kAntsDataTypes),
    Kind   (UVDB_DB_JAVA,                                                 kJavaDataTypes),
    Kind   (UVDB_DB_ANDROID,                                              kJavaDataTypes),
    Kind   (UVDB_DB_JPL,                                                  kJavaDataTypes),
    Kind   (UVDB_DB_CPP,                                                  kCppDataTypes),
    Kind   (UVDB_DB_CPP_RC,                                               kCppDataTypes),
    Kind   (UVDB_DB_C,                                                    kCppDataTypes),
    Kind   (UVDB_DB_OBJECTIVEC,                                           kCppDataTypes),
    Kind   (UVDB_DB_IPHONE,                                               kCppDataTypes),
    Kind   (UVDB_DB_VB,                                                   kVisualBasicDataTypes),
    Kind   (UVDB_DB_VBFORCRYSTAL,                                         kVisualBasicDataTypes),
    Kind   (UVDB_DB_VBNET,                                                kVbNetDataTypes),
    Kind   (UVDB_DB_CS,                                                   kCSharpDataTypes),
    Kind   (UVDB_DB_JAVASCRIPT,                                           kCSharpDataTypes),
    Kind   (UVDB_DB_POWERSHELL,                                           kCSharpDataTypes),
    Kind   (UVDB_DB_WINDOWS_PHONE_XNA,                                    kCSharpDataTypes),
    Kind   (UVDB_DB_WINDOWS_PHONE_SILVERLIGHT,                            kCSharpDataTypes),
    Kind   (UVDB_DB_INTERBASE,                                            kInterBaseDataTypes),
    Kind   (UVDB_DB_FIREBIRD,                                             kFirebirdDataTypes),
    Kind   (UVDB_DB_NEOVIEW,                                              kNeoviewDataTypes),
    Kind   (UVDB_DB_TERADATA,                                             kTeradataDataTypes),
    Kind   (UVDB_DB_SEABASE,                                              kSeaBaseDataTypes),
    Kind   (UVDB_DB_NUODB,                                                kNuoDbDataTypes),
    Kind   (UVDB_DB_SAS,                                                  kSasDataTypes),
    Kind   (UVDB_DB_PERL,                                                 kLanguageDataTypes),
    Kind   (UVDB_DB_PYTHON,                                               kLanguageDataTypes),
    Kind   (UVDB_DB_AUTOLISP,                                             kLanguageDataTypes),
    Kind   (UVDB_DB_FOXPRO_REPORTS,                                       kLanguageDataTypes),
    Kind   (UVDB_DB_VISUAL_FOXPRO,                                        kLanguageDataTypes),
    Kind   (UVDB_DB_KSH,                                                  kLanguageDataTypes),
    Kind   (UVDB_DB_PBScripts,                                            kLanguageDataTypes),
    Kind   (UVDB_DB_OracleCTL,                                            kLanguageDataTypes),
    Kind   (UVDB_DB_OracleUtilCL,                                         kLanguageDataTypes),
    Kind   (UVDB_DB_ProgressDF,                                           kLanguageDataTypes),
    Kind   (UVDB_DB_HTML,                                                 kLanguageDataTypes),
    Kind   (UVDB_DB_ASP,                                                  kLanguageDataTypes),
    Kind   (UVDB_DB_4DWEB,                                                kLanguageDataTypes),
    Kind   (UVDB_DB_COBOL,                                                kLanguageDataTypes),
    Kind   (UVDB_DB_PACBASE,                                              kLanguageDataTypes),
    Kind   (UVDB_DB_IBM_RPG,                                              kLanguageDataTypes),
    Kind   (UVDB_DB_TELON_COBOL,                                          kLanguageDataTypes),
    Kind   (UVDB_DB_NATURAL,                                              kLanguageDataTypes),
    Kind   (UVDB_DB_ABAP4,                                                kLanguageDataTypes),
    Kind   (UVDB_DB_JCL,                                                  kLanguageDataTypes),
    Kind   (UVDB_DB_IBM_CL,                                               kLanguageDataTypes),
    Kind   (UVDB_DB_WSDL,                                                 kLanguageDataTypes),
    Kind   (UVDB_DB_XML,                                                  kLanguageDataTypes),
    Kind   (UVDB_DB_ORACLE_FORMS,                                         kLanguageDataTypes),
    Kind   (UVDB_DB_ProgressWSM,                                          kLanguageDataTypes),
    Kind   (UVDB_DB_PHP,                                                  kLanguageDataTypes),
    Kind   (UVDB_DB_SQLBase,                                              kSqlBaseDataTypes),
    Kind   (UVDB_DB_HPNonStop,                                            kHpNonStopDataTypes),
    Kind   (UVDB_DB_VERTICA_ANALYTIC_DATABASE,                            kVerticaDataTypes),
    Kind   (UVDB_DB_4GL_ACCELL,                                           kGuptaSalDataTypes),
    Kind   (UVDB_DB_4GL_ACCELL_FORM,                                      kGuptaSalDataTypes),
    Kind   (UVDB_DB_SNOWFLAKE,                                            kSnowflakeDataTypes),
};
// clang-format on
static_assert(std::size(kRows) == 95);

} // namespace

constinit const std::span<const SDataTypeTableKey> kDataTypeTables{kRows};
