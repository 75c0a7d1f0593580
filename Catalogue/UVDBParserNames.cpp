#include "Catalogue/UVDBParserNames.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBVersionRange.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace {

struct SModuleName
{
    std::uint64_t db = 0;
    std::uint64_t subType = 0;
    const char* name = "";
};

struct SParserNumber
{
    std::string_view name;
    std::uint64_t db = 0;
};

constexpr std::uint64_t kAnySubType = Ver::kAnySubType;

// The first line that fits answers: within a kind the subtypes stand first. The call interfaces are parsed by
// plug-ins of their own, whose file names are the same on every system.
// clang-format off
constexpr SModuleName kModuleNames[] = {
//   kind                                 subtype                                  name
    {UVDB_DB_DB2,                         kAnySubType,                             "DB2"},
    {UVDB_DB_ORA,                         kAnySubType,                             "Oracle"},
    {UVDB_DB_MSSQL,                       kAnySubType,                             "MSSQL"},
    {UVDB_DB_SYBASE,                      UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE,  "SybaseASE"},
    {UVDB_DB_SYBASE,                      UVDB_SYBASE_IQ,                          "SybaseIQ"},
    {UVDB_DB_SYBASE,                      kAnySubType,                             "SybaseASA"},
    {UVDB_DB_MySQL,                       kAnySubType,                             "MySQL"},
    {UVDB_DB_PERVASIVE,                   kAnySubType,                             "Pervasive"},
    {UVDB_DB_INFORMIX,                    kAnySubType,                             "Informix"},
    {UVDB_DB_POSTGRESQL,                  kAnySubType,                             "PostgreSQL"},
    {UVDB_DB_ENTERPRISEDB,                UVDB_ENTERPRISEDB_PPSS,                  "EnterpriseDBPPSS"},
    {UVDB_DB_ENTERPRISEDB,                kAnySubType,                             "EnterpriseDBPPAS"},
    {UVDB_DB_GREENPLUM,                   kAnySubType,                             "Greenplum"},
    {UVDB_DB_HIRDB,                       kAnySubType,                             "HiRDB"},
    {UVDB_DB_ANSI,                        kAnySubType,                             "Ansi"},
    {UVDB_DB_SPLICE_MACHINE,              kAnySubType,                             "SpliceMachine"},
    {UVDB_DB_ACCESS,                      kAnySubType,                             "Access"},
    {UVDB_DB_ANTS,                        kAnySubType,                             "ANTS"},
    {UVDB_DB_SOLID,                       kAnySubType,                             "Solid"},
    {UVDB_DB_VB,                          kAnySubType,                             "VB"},
    {UVDB_DB_VBNET,                       kAnySubType,                             "VBNET"},
    {UVDB_DB_CS,                          kAnySubType,                             "CS"},
    {UVDB_DB_RDL,                         kAnySubType,                             "RDL"},
    {UVDB_DB_NEOVIEW,                     kAnySubType,                             "Neoview"},
    {UVDB_DB_PERL,                        kAnySubType,                             "Perl"},
    {UVDB_DB_PYTHON,                      kAnySubType,                             "Python"},
    {UVDB_DB_AUTOLISP,                    kAnySubType,                             "AutoLISP"},
    {UVDB_DB_FOXPRO_REPORTS,              kAnySubType,                             "FoxproReports"},
    {UVDB_DB_VISUAL_FOXPRO,               kAnySubType,                             "VisualFoxPro"},
    {UVDB_DB_CPP_RC,                      kAnySubType,                             "CppRc"},
    {UVDB_DB_POWERSHELL,                  kAnySubType,                             "PowerShell"},
    {UVDB_DB_KSH,                         kAnySubType,                             "KSH"},
    {UVDB_DB_NETEZZA,                     kAnySubType,                             "Netezza"},
    {UVDB_DB_HPNonStop,                   kAnySubType,                             "HPNonStop"},
    {UVDB_DB_VERTICA_ANALYTIC_DATABASE,   kAnySubType,                             "VerticaAnalyticDatabase"},
    {UVDB_DB_PHP,                         kAnySubType,                             "PHP"},
    {UVDB_DB_TERADATA,                    kAnySubType,                             "TeraData"},
    {UVDB_DB_INTERBASE,                   kAnySubType,                             "Interbase"},
    {UVDB_DB_FIREBIRD,                    kAnySubType,                             "Firebird"},
    {UVDB_DB_SAP_HANA,                    kAnySubType,                             "SAPHANA"},
    {UVDB_DB_CACHE,                       kAnySubType,                             "CACHE"},
    {UVDB_DB_VPOSTGRES,                   kAnySubType,                             "vPostgres"},
    {UVDB_DB_ADABAS,                      kAnySubType,                             "Adabas"},
    {UVDB_DB_4DSQLSERVER,                 kAnySubType,                             "SQL4D"},
    {UVDB_DB_INGRES,                      kAnySubType,                             "Ingres"},
    {UVDB_DB_SEABASE,                     kAnySubType,                             "SeaBase"},
    {UVDB_DB_NUODB,                       kAnySubType,                             "NuoDB"},
    {UVDB_DB_GBASE,                       kAnySubType,                             "GBase"},
    {UVDB_DB_REDSHIFT,                    kAnySubType,                             "Redshift"},
    {UVDB_DB_FOXPRO,                      kAnySubType,                             "FoxPro"},
    {UVDB_DB_JAVA,                        kAnySubType,                             "Java"},
    {UVDB_DB_JAVASCRIPT,                  kAnySubType,                             "JavaScript"},
    {UVDB_DB_CPP,                         kAnySubType,                             "CPP"},
    {UVDB_DB_C,                           kAnySubType,                             "C"},
    {UVDB_DB_4GL_INFORMIX,                UVDB_4GL_INFORMIX_FORM,                  "Informix4GLForm"},
    {UVDB_DB_4GL_INFORMIX,                kAnySubType,                             "Informix4GL"},
    {UVDB_DB_PROGRESS,                    kAnySubType,                             "Progress"},
    {UVDB_DB_4GL_PROGRESS,                kAnySubType,                             "Progress4GL"},
    {UVDB_DB_OPENEDGE_ABL,                kAnySubType,                             "OpenEdgeABL"},
    {UVDB_DB_GUPTA_SAL,                   kAnySubType,                             "GuptaSAL"},
    {UVDB_DB_PARADOX,                     kAnySubType,                             "Paradox"},
    {UVDB_DB_OBJECT_PAL,                  kAnySubType,                             "ObjectPal"},
    {UVDB_DB_PARADOX_RSL,                 kAnySubType,                             "ParadoxRSL"},
    {UVDB_DB_PARADOX_FSL,                 kAnySubType,                             "ParadoxFSL"},
    {UVDB_DB_ASPNET,                      kAnySubType,                             "ASPNET"},
    {UVDB_DB_ASP,                         kAnySubType,                             "ASP"},
    {UVDB_DB_SAS,                         kAnySubType,                             "SAS"},
    {UVDB_DB_PASCAL,                      kAnySubType,                             "Pascal"},
    {UVDB_DB_PASCAL_FRM,                  kAnySubType,                             "PascalFRM"},
    {UVDB_DB_PBScripts,                   kAnySubType,                             "PBScripts"},
    {UVDB_DB_OracleCTL,                   kAnySubType,                             "OracleCTL"},
    {UVDB_DB_OracleUtilCL,                kAnySubType,                             "OracleUtilCL"},
    {UVDB_DB_ProgressDF,                  kAnySubType,                             "ProgressDF"},
    {UVDB_DB_SQLBase,                     kAnySubType,                             "SQLBase"},
    {UVDB_DB_HTML,                        kAnySubType,                             "HTML"},
    {UVDB_DB_COBOL,                       kAnySubType,                             "COBOL"},
    {UVDB_DB_PACBASE,                     kAnySubType,                             "PACBASE"},
    {UVDB_DB_IBM_RPG,                     kAnySubType,                             "IBMRPG"},
    {UVDB_DB_NATURAL,                     kAnySubType,                             "Natural"},
    {UVDB_DB_PLI,                         kAnySubType,                             "PLI"},
    {UVDB_DB_ABAP4,                       kAnySubType,                             "ABAP4"},
    {UVDB_DB_JCL,                         kAnySubType,                             "JCL"},
    {UVDB_DB_IBM_CL,                      kAnySubType,                             "IBMCL"},
    {UVDB_DB_WSDL,                        kAnySubType,                             "WSDL"},
    {UVDB_DB_XML,                         kAnySubType,                             "XML"},
    {UVDB_DB_ProgressWSM,                 kAnySubType,                             "ProgressWSM"},
    {UVDB_DB_JPL,                         kAnySubType,                             "JPL"},
    {UVDB_DB_SQR,                         kAnySubType,                             "SQR"},
    {UVDB_DB_VBFORCRYSTAL,                kAnySubType,                             "VBForCrystal"},
    {UVDB_DB_CRYSTAL,                     kAnySubType,                             "Crystal"},
    {UVDB_DB_4D,                          kAnySubType,                             "BL4D"},
    {UVDB_DB_4DWEB,                       kAnySubType,                             "Web4D"},
    {UVDB_DB_ORACLE_FORMS,                kAnySubType,                             "OracleForms"},
    {UVDB_DB_ORACLE_SQL_FORMS,            kAnySubType,                             "OracleSQLForms"},
    {UVDB_DB_OBJECTIVEC,                  kAnySubType,                             "ObjectiveC"},
    {UVDB_DB_IPHONE,                      kAnySubType,                             "iPhone"},
    {UVDB_DB_ANDROID,                     kAnySubType,                             "Android"},
    {UVDB_DB_WINDOWS_PHONE_XNA,           kAnySubType,                             "WindowsPhoneXNA"},
    {UVDB_DB_WINDOWS_PHONE_SILVERLIGHT,   kAnySubType,                             "WindowsPhoneSilverlight"},
    {UVDB_DB_TELON_COBOL,                 kAnySubType,                             "TelonCOBOL"},
    {UVDB_DB_DELPHI,                      kAnySubType,                             "Pascal"},
    {UVDB_DB_DELPHI_DFM,                  kAnySubType,                             "PascalFRM"},
    {UVDB_DB_4GL_SEA,                     UVDB_4GL_SEA_FORM,                       "Sea4GLForm"},
    {UVDB_DB_4GL_SEA,                     kAnySubType,                             "Sea4GL"},
    {UVDB_DB_XQUERY,                      kAnySubType,                             "XQuery"},
    {UVDB_DB_PROGRESS_REPORTS,            kAnySubType,                             "ProgressReports"},
    {UVDB_DB_FOXPRO_PROGRAMS,             kAnySubType,                             "FoxproPrograms"},
    {UVDB_DB_4GL_ACCELL,                  kAnySubType,                             "Accell4GL"},
    {UVDB_DB_4GL_ACCELL_FORM,             kAnySubType,                             "Accell4GLForm"},
    {UVDB_DB_SNOWFLAKE,                   kAnySubType,                             "Snowflake"},
    {UVDB_DB_SingleStoreDB,               kAnySubType,                             "SingleStoreDB"},
    {kUVDBSybaseApiKind,                  kAnySubType,                             "UVDBParserSybaseAPI.dll"},
    {kUVDBOracleOciKind,                  kAnySubType,                             "UVDBParserOracleOCI.dll"},
    {kUVDBCommonApiKind,                  kAnySubType,                             "UVDBParserCommonAPI.dll"},
    {kUVDBMySqlApiKind,                   kAnySubType,                             "UVDBParserMySQLAPI.dll"},
};
// clang-format on
static_assert(std::size(kModuleNames) == 115);

// clang-format off
constexpr SParserNumber kParserNumbers[] = {
//   name                       kind
    {"ABAP4",                   UVDB_DB_ABAP4},
    {"ANTS",                    UVDB_DB_ANTS},
    {"ASP",                     UVDB_DB_ASP},
    {"ASPNET",                  UVDB_DB_ASPNET},
    {"Accell4GL",               UVDB_DB_4GL_ACCELL},
    {"Accell4GLForm",           UVDB_DB_4GL_ACCELL_FORM},
    {"Access",                  UVDB_DB_ACCESS},
    {"Adabas",                  UVDB_DB_ADABAS},
    {"Ansi",                    UVDB_DB_ANSI},
    {"AutoLISP",                UVDB_DB_AUTOLISP},
    {"BL4D",                    UVDB_DB_4D},
    {"C",                       UVDB_DB_C},
    {"CACHE",                   UVDB_DB_CACHE},
    {"COBOL",                   UVDB_DB_COBOL},
    {"CPP",                     UVDB_DB_CPP},
    {"CS",                      UVDB_DB_CS},
    {"Common",                  UVDB_DB_COMMON},
    {"CppRc",                   UVDB_DB_CPP_RC},
    {"Crystal",                 UVDB_DB_CRYSTAL},
    {"DB2",                     UVDB_DB_DB2},
    {"EnterpriseDBPPAS",        UVDB_DB_ENTERPRISEDB},
    {"EnterpriseDBPPSS",        UVDB_DB_ENTERPRISEDB},
    {"Firebird",                UVDB_DB_FIREBIRD},
    {"FoxPro",                  UVDB_DB_FOXPRO},
    {"FoxproPrograms",          UVDB_DB_FOXPRO_PROGRAMS},
    {"FoxproReports",           UVDB_DB_FOXPRO_REPORTS},
    {"GBase",                   UVDB_DB_GBASE},
    {"Greenplum",               UVDB_DB_GREENPLUM},
    {"GuptaSAL",                UVDB_DB_GUPTA_SAL},
    {"HPNonStop",               UVDB_DB_HPNonStop},
    {"HTML",                    UVDB_DB_HTML},
    {"HiRDB",                   UVDB_DB_HIRDB},
    {"IBMCL",                   UVDB_DB_IBM_CL},
    {"IBMRPG",                  UVDB_DB_IBM_RPG},
    {"Informix",                UVDB_DB_INFORMIX},
    {"Informix4GL",             UVDB_DB_4GL_INFORMIX},
    {"Informix4GLForm",         UVDB_DB_4GL_INFORMIX},
    {"Ingres",                  UVDB_DB_INGRES},
    {"Interbase",               UVDB_DB_INTERBASE},
    {"JCL",                     UVDB_DB_JCL},
    {"JPL",                     UVDB_DB_JPL},
    {"Java",                    UVDB_DB_JAVA},
    {"JavaScript",              UVDB_DB_JAVASCRIPT},
    {"KSH",                     UVDB_DB_KSH},
    {"MSSQL",                   UVDB_DB_MSSQL},
    {"MySQL",                   UVDB_DB_MySQL},
    {"Natural",                 UVDB_DB_NATURAL},
    {"Neoview",                 UVDB_DB_NEOVIEW},
    {"Netezza",                 UVDB_DB_NETEZZA},
    {"NuoDB",                   UVDB_DB_NUODB},
    {"ObjectPal",               UVDB_DB_OBJECT_PAL},
    {"OpenEdgeABL",             UVDB_DB_OPENEDGE_ABL},
    {"Oracle",                  UVDB_DB_ORA},
    {"OracleCTL",               UVDB_DB_OracleCTL},
    {"OracleForms",             UVDB_DB_ORACLE_FORMS},
    {"OracleSQLForms",          UVDB_DB_ORACLE_SQL_FORMS},
    {"OracleUtilCL",            UVDB_DB_OracleUtilCL},
    {"PACBASE",                 UVDB_DB_PACBASE},
    {"PBScripts",               UVDB_DB_PBScripts},
    {"PHP",                     UVDB_DB_PHP},
    {"PLI",                     UVDB_DB_PLI},
    {"Paradox",                 UVDB_DB_PARADOX},
    {"ParadoxFSL",              UVDB_DB_PARADOX_FSL},
    {"ParadoxRSL",              UVDB_DB_PARADOX_RSL},
    {"Pascal",                  UVDB_DB_PASCAL},
    {"PascalFRM",               UVDB_DB_PASCAL_FRM},
    {"Perl",                    UVDB_DB_PERL},
    {"Pervasive",               UVDB_DB_PERVASIVE},
    {"PostgreSQL",              UVDB_DB_POSTGRESQL},
    {"PowerShell",              UVDB_DB_POWERSHELL},
    {"Progress",                UVDB_DB_PROGRESS},
    {"Progress4GL",             UVDB_DB_4GL_PROGRESS},
    {"ProgressDF",              UVDB_DB_ProgressDF},
    {"ProgressReports",         UVDB_DB_PROGRESS_REPORTS},
    {"ProgressWSM",             UVDB_DB_ProgressWSM},
    {"Python",                  UVDB_DB_PYTHON},
    {"RDL",                     UVDB_DB_RDL},
    {"Redshift",                UVDB_DB_REDSHIFT},
    {"SAPHANA",                 UVDB_DB_SAP_HANA},
    {"SAS",                     UVDB_DB_SAS},
    {"SQL4D",                   UVDB_DB_4DSQLSERVER},
    {"SQLBase",                 UVDB_DB_SQLBase},
    {"SQR",                     UVDB_DB_SQR},
    {"Sea4GL",                  UVDB_DB_4GL_SEA},
    {"Sea4GLForm",              UVDB_DB_4GL_SEA},
    {"SeaBase",                 UVDB_DB_SEABASE},
    {"SingleStoreDB",           UVDB_DB_SingleStoreDB},
    {"Snowflake",               UVDB_DB_SNOWFLAKE},
    {"Solid",                   UVDB_DB_SOLID},
    {"SpliceMachine",           UVDB_DB_SPLICE_MACHINE},
    {"SybaseASA",               UVDB_DB_SYBASE},
    {"SybaseASE",               UVDB_DB_SYBASE},
    {"SybaseIQ",                UVDB_DB_SYBASE},
    {"TelonCOBOL",              UVDB_DB_TELON_COBOL},
    {"TeraData",                UVDB_DB_TERADATA},
    {"VB",                      UVDB_DB_VB},
    {"VBForCrystal",            UVDB_DB_VBFORCRYSTAL},
    {"VBNET",                   UVDB_DB_VBNET},
    {"VerticaAnalyticDatabase", UVDB_DB_VERTICA_ANALYTIC_DATABASE},
    {"VisualFoxPro",            UVDB_DB_VISUAL_FOXPRO},
    {"WSDL",                    UVDB_DB_WSDL},
    {"Web4D",                   UVDB_DB_4DWEB},
    {"XML",                     UVDB_DB_XML},
    {"XQuery",                  UVDB_DB_XQUERY},
    {"vPostgres",               UVDB_DB_VPOSTGRES},
};
// clang-format on
static_assert(std::size(kParserNumbers) == 105);
static_assert(std::ranges::adjacent_find(kParserNumbers, std::greater_equal{}, &SParserNumber::name) ==
              std::end(kParserNumbers));

} // namespace

int UVDBGetNumberByParserName(std::string_view parserName)
{
    const auto row = std::ranges::lower_bound(kParserNumbers, parserName, {}, &SParserNumber::name);
    const bool isKnown = row != std::end(kParserNumbers) && row->name == parserName;
    return static_cast<int>(isKnown ? row->db : UVDB_UNKNOWN_DATABASE_KIND);
}

const char* UVDBGetParserNameByKind(std::uint64_t db, std::uint64_t subType)
{
    const auto line = std::ranges::find_if(kModuleNames, [&](const SModuleName& candidate) {
        return candidate.db == db && (candidate.subType == kAnySubType || candidate.subType == subType);
    });
    return line == std::end(kModuleNames) ? "Common" : line->name;
}
