#include "Catalogue/Types/TypeMapping/MappingRegistry.h"

#include "Catalogue/Types/TypeMapping/MappingSheaves.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <iterator>

namespace {

constexpr SMappingSheafKey Subtype(std::uint64_t db, std::uint64_t subType, std::uint64_t major,
                                   std::uint64_t minor, const SMappingSheaf& sheaf)
{
    return {.db = db, .subType = subType, .major = major, .minor = minor, .sheaf = &sheaf};
}

constexpr SMappingSheafKey Subtype(std::uint64_t db, std::uint64_t subType, const SMappingSheaf& sheaf)
{
    return Subtype(db, subType, 0, 0, sheaf);
}

constexpr SMappingSheafKey Kind(std::uint64_t db, std::uint64_t major, std::uint64_t minor,
                                const SMappingSheaf& sheaf)
{
    return Subtype(db, UVDB_NO_VERSION_WORD, major, minor, sheaf);
}

constexpr SMappingSheafKey Kind(std::uint64_t db, const SMappingSheaf& sheaf)
{
    return Kind(db, 0, 0, sheaf);
}

// The order is meaning: among the versions of a kind the choice depends on it.
// clang-format off
constexpr SMappingSheafKey kRows[] = {
//          kind and subtype                                              version  sheaf
    Kind   (UVDB_DB_ACCESS,                                                       kAccessMapping),
    Kind   (UVDB_DB_ANSI,                                                         kAnsiMapping),
    Kind   (UVDB_DB_PROGRESS,                                                     kProgressMapping),
    Kind   (UVDB_DB_ADABAS,                                                       kAdabasMapping),
    Kind   (UVDB_DB_4DSQLSERVER,                                                  kAdabasMapping),
    Kind   (UVDB_DB_SQR,                                                          kAdabasMapping),
    Kind   (UVDB_DB_4GL_PROGRESS,                                                 kOpenEdgeMapping),
    Kind   (UVDB_DB_OPENEDGE_ABL,                                                 kOpenEdgeMapping),
    Kind   (UVDB_DB_4D,                                                           kOpenEdgeMapping),
    Subtype(UVDB_DB_DB2,          UVDB_DB2_UDB_FOR_zOS_AND_OS390,          8, 1,  kDb2ForZMapping),
    Subtype(UVDB_DB_DB2,          UVDB_DB2_UDB_FOR_AS400_AND_iSERIES,      8, 1,  kDb2ForIMapping),
    Kind   (UVDB_DB_DB2,                                                   8, 1,  kDb2Mapping),
    Kind   (UVDB_DB_SAP_HANA,                                                     kSapHanaMapping),
    Kind   (UVDB_DB_HIRDB,                                                        kHiRdbMapping),
    Kind   (UVDB_DB_ORA,                                                   8, 3,  kOracle83Mapping),
    Kind   (UVDB_DB_ORA,                                                   9, 2,  kOracle92Mapping),
    Kind   (UVDB_DB_ORA,                                                  10, 2,  kOracle102Mapping),
    Kind   (UVDB_DB_MSSQL,                                                 8, 0,  kSqlServer80Mapping),
    Kind   (UVDB_DB_MSSQL,                                                 9, 0,  kSqlServer90Mapping),
    Kind   (UVDB_DB_MSSQL,                                                10, 0,  kSqlServer100Mapping),
    Kind   (UVDB_DB_MSSQL,                                                11, 0,  kSqlServer110Mapping),
    Kind   (UVDB_DB_CACHE,                                                        kCacheMapping),
    Subtype(UVDB_DB_SYBASE,       UVDB_SYBASE_ADAPTIVE_SERVER_ANYWHERE,    9, 0,  kSybaseAsa90Mapping),
    Subtype(UVDB_DB_SYBASE,       UVDB_SYBASE_ADAPTIVE_SERVER_ANYWHERE,   12, 0,  kSybaseAsa120Mapping),
    Subtype(UVDB_DB_SYBASE,       UVDB_SYBASE_IQ,                          9, 0,  kSybaseIqMapping),
    Subtype(UVDB_DB_SYBASE,       UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE, 12, 5,  kSybaseAseMapping),
    Kind   (UVDB_DB_SYBASE,                                                9, 0,  kSybase90Mapping),
    Kind   (UVDB_DB_SYBASE,                                               12, 5,  kSybase125Mapping),
    Kind   (UVDB_DB_MySQL,                                                 4, 0,  kMySql40Mapping),
    Kind   (UVDB_DB_MySQL,                                                 4, 1,  kMySql41Mapping),
    Kind   (UVDB_DB_MySQL,                                                 5, 0,  kMySql50Mapping),
    Kind   (UVDB_DB_MySQL,                                                 5, 1,  kMySql51Mapping),
    Kind   (UVDB_DB_SingleStoreDB,                                                kSingleStoreMapping),
    Kind   (UVDB_DB_SingleStoreDB,                                         7, 0,  kSingleStore70Mapping),
    Subtype(UVDB_DB_MySQL,        UVDB_MySQL_FOR_MariaDB,                         kMariaDbMapping),
    Kind   (UVDB_DB_GBASE,                                                        kGBaseMapping),
    Kind   (UVDB_DB_REDSHIFT,                                                     kRedshiftMapping),
    Kind   (UVDB_DB_SPLICE_MACHINE,                                               kSpliceMachineMapping),
    Kind   (UVDB_DB_INGRES,                                                       kIngresMapping),
    Kind   (UVDB_DB_PERVASIVE,                                             8, 0,  kPervasiveMapping),
    Kind   (UVDB_DB_INFORMIX,                                                     kInformixMapping),
    Kind   (UVDB_DB_4GL_INFORMIX,                                                 kInformix4GlMapping),
    Kind   (UVDB_DB_4GL_SEA,                                                      kGuptaSalMapping),
    Kind   (UVDB_DB_GUPTA_SAL,                                                    kGuptaSalMapping),
    Kind   (UVDB_DB_POSTGRESQL,                                            8, 2,  kPostgreSql82Mapping),
    Kind   (UVDB_DB_POSTGRESQL,                                            8, 4,  kPostgreSql84Mapping),
    Kind   (UVDB_DB_VPOSTGRES,                                                    kPostgreSqlForkMapping),
    Kind   (UVDB_DB_GREENPLUM,                                                    kPostgreSqlForkMapping),
    Kind   (UVDB_DB_ENTERPRISEDB,                                                 kEnterpriseDbMapping),
    Subtype(UVDB_DB_ENTERPRISEDB, UVDB_ENTERPRISEDB_PPSS,                         kEnterpriseDbMapping),
    Subtype(UVDB_DB_ENTERPRISEDB, UVDB_ENTERPRISEDB_PPAS,                         kEnterpriseDbMapping),
    Kind   (UVDB_DB_NETEZZA,                                                      kNetezzaMapping),
    Kind   (UVDB_DB_ANTS,                                                         kAntsMapping),
    Kind   (UVDB_DB_SOLID,                                                        kSolidMapping),
    Kind   (UVDB_DB_PARADOX,                                                      kAntsMapping),
    Kind   (UVDB_DB_JAVA,                                                         kJavaMapping),
    Kind   (UVDB_DB_ANDROID,                                                      kAndroidMapping),
    Kind   (UVDB_DB_JPL,                                                          kAndroidMapping),
    Kind   (UVDB_DB_CPP,                                                          kCppMapping),
    Kind   (UVDB_DB_CPP_RC,                                                       kCppMapping),
    Kind   (UVDB_DB_C,                                                            kCppMapping),
    Kind   (UVDB_DB_OBJECTIVEC,                                                   kCppMapping),
    Kind   (UVDB_DB_IPHONE,                                                       kCppMapping),
    Kind   (UVDB_DB_VB,                                                           kVisualBasicMapping),
    Kind   (UVDB_DB_VBFORCRYSTAL,                                                 kVbForCrystalMapping),
    Kind   (UVDB_DB_VBNET,                                                        kVbNetMapping),
    Kind   (UVDB_DB_CS,                                                           kCSharpMapping),
    Kind   (UVDB_DB_JAVASCRIPT,                                                   kJavaScriptMapping),
    Kind   (UVDB_DB_POWERSHELL,                                                   kPowerShellMapping),
    Kind   (UVDB_DB_WINDOWS_PHONE_XNA,                                            kPowerShellMapping),
    Kind   (UVDB_DB_WINDOWS_PHONE_SILVERLIGHT,                                    kPowerShellMapping),
    Kind   (UVDB_DB_COMMON,                                                       kCommonMapping),
    Kind   (UVDB_DB_ORACLE_SQL_FORMS,                                             kCommonMapping),
    Kind   (UVDB_DB_INTERBASE,                                                    kInterBaseMapping),
    Kind   (UVDB_DB_FIREBIRD,                                                     kFirebirdMapping),
    Kind   (UVDB_DB_NEOVIEW,                                                      kNeoviewMapping),
    Kind   (UVDB_DB_TERADATA,                                                     kTeradataMapping),
    Kind   (UVDB_DB_SEABASE,                                                      kSeaBaseMapping),
    Kind   (UVDB_DB_NUODB,                                                        kNuoDbMapping),
    Kind   (UVDB_DB_PERL,                                                         kScriptMapping),
    Kind   (UVDB_DB_PYTHON,                                                       kScriptMapping),
    Kind   (UVDB_DB_AUTOLISP,                                                     kScriptMapping),
    Kind   (UVDB_DB_FOXPRO_REPORTS,                                               kScriptMapping),
    Kind   (UVDB_DB_VISUAL_FOXPRO,                                                kScriptMapping),
    Kind   (UVDB_DB_KSH,                                                          kScriptMapping),
    Kind   (UVDB_DB_PBScripts,                                                    kLanguageMapping),
    Kind   (UVDB_DB_OracleCTL,                                                    kLanguageMapping),
    Kind   (UVDB_DB_OracleUtilCL,                                                 kLanguageMapping),
    Kind   (UVDB_DB_ProgressDF,                                                   kLanguageMapping),
    Kind   (UVDB_DB_SQLBase,                                                      kSqlBaseMapping),
    Kind   (UVDB_DB_HTML,                                                         kLanguageMapping),
    Kind   (UVDB_DB_ASP,                                                          kLanguageMapping),
    Kind   (UVDB_DB_4DWEB,                                                        kLanguageMapping),
    Kind   (UVDB_DB_COBOL,                                                        kLanguageMapping),
    Kind   (UVDB_DB_PACBASE,                                                      kLanguageMapping),
    Kind   (UVDB_DB_IBM_RPG,                                                      kLanguageMapping),
    Kind   (UVDB_DB_TELON_COBOL,                                                  kLanguageMapping),
    Kind   (UVDB_DB_NATURAL,                                                      kLanguageMapping),
    Kind   (UVDB_DB_ABAP4,                                                        kLanguageMapping),
    Kind   (UVDB_DB_JCL,                                                          kLanguageMapping),
    Kind   (UVDB_DB_IBM_CL,                                                       kLanguageMapping),
    Kind   (UVDB_DB_HPNonStop,                                                    kHpNonStopMapping),
    Kind   (UVDB_DB_VERTICA_ANALYTIC_DATABASE,                                    kVerticaMapping),
    Kind   (UVDB_DB_WSDL,                                                         kLanguageMapping),
    Kind   (UVDB_DB_XML,                                                          kLanguageMapping),
    Kind   (UVDB_DB_ORACLE_FORMS,                                                 kLanguageMapping),
    Kind   (UVDB_DB_ProgressWSM,                                                  kLanguageMapping),
    Kind   (UVDB_DB_PHP,                                                          kScriptMapping),
    Kind   (UVDB_DB_FOXPRO_PROGRAMS,                                      11, 0,  kFoxProMapping),
    Kind   (UVDB_DB_4GL_ACCELL,                                                   kAccellMapping),
    Kind   (UVDB_DB_4GL_ACCELL_FORM,                                              kAccellMapping),
};
// clang-format on
static_assert(std::size(kRows) == 111);

} // namespace

constinit const std::span<const SMappingSheafKey> kMappingSheaves{kRows};
