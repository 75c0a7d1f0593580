#include "Catalogue/UVDBCatalogueRows.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBVersionRange.h"

#include <array>
#include <iterator>

namespace {

// A kind as a whole.
constexpr SDbInfoLiteral Kind(std::int64_t index, std::uint64_t db, const char* shortName,
                              const char* fullName, const char* wzdName, const char* visibleName,
                              const char* extension)
{
    return {.resourceIndex = index,
            .db = db,
            .keySubType = UVDB_DB_SUB_TYPE_UNKNOWN,
            .conditionSubType = Ver::kAnySubType,
            .shortName = shortName,
            .fullName = fullName,
            .wzdName = wzdName,
            .visibleName = visibleName,
            .defaultExtension = extension};
}

// A kind with one name for every context.
constexpr SDbInfoLiteral Plain(std::int64_t index, std::uint64_t db, const char* name, const char* extension)
{
    return Kind(index, db, name, name, name, name, extension);
}

// One subtype by key, any subtype by condition.
constexpr SDbInfoLiteral Keyed(std::int64_t index, std::uint64_t db, std::uint64_t subType,
                               const char* shortName, const char* fullName, const char* wzdName,
                               const char* visibleName, const char* extension)
{
    SDbInfoLiteral row = Kind(index, db, shortName, fullName, wzdName, visibleName, extension);
    row.keySubType = subType;
    return row;
}

// One subtype.
constexpr SDbInfoLiteral Subtype(std::int64_t index, std::uint64_t db, std::uint64_t subType,
                                 const char* shortName, const char* fullName, const char* wzdName,
                                 const char* visibleName, const char* extension)
{
    SDbInfoLiteral row = Keyed(index, db, subType, shortName, fullName, wzdName, visibleName, extension);
    row.conditionSubType = subType;
    return row;
}

// Order is meaning: the first row that fits answers. Subtypes stand before their kind. The Sybase row that
// has no subtype stands after one that answers for every subtype: it is reached by name, index or key alone.
// clang-format off
constexpr SDbInfoLiteral kRows[] = {
//        index  kind                                short name                   full name                     wizard name          visible name                 extension
    Subtype( 58, UVDB_DB_DB2, UVDB_DB2_UDB_FOR_zOS_AND_OS390,                  "DB2 OS390",                 "DB2 OS390",                  "DB2",               "DB2 OS390",                 "sql"),
    Subtype( 59, UVDB_DB_DB2, UVDB_DB2_UDB_FOR_AS400_AND_iSERIES,              "DB2 AS400",                 "DB2 AS400",                  "DB2",               "DB2 AS400",                 "sql"),
    Plain  (  0, UVDB_DB_DB2,                        "DB2",                       "sql"),
    Kind   (  1, UVDB_DB_ORA,                        "ORA",                       "Oracle",                     "Oracle",            "Oracle",                    "sql"),
    Kind   (  2, UVDB_DB_MSSQL,                      "MSSQL",                     "MSSQLServer",                "MSSQL",             "Microsoft SQL Server",      "sql"),
    Subtype( 57, UVDB_DB_SYBASE, UVDB_SYBASE_IQ,                               "SybaseIQ",                  "SybaseIQ",                   "Sybase",            "SybaseIQ",                  "sql"),
    Subtype(  5, UVDB_DB_SYBASE, UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE,       "SYBASE_ASE",                "Adaptive Server Enterprise", "Sybase",            "Sybase Adaptive Server Enterprise", "sql"),
    Keyed  (  4, UVDB_DB_SYBASE, UVDB_SYBASE_ADAPTIVE_SERVER_ANYWHERE,         "SYBASE_ASA",                "Adaptive Server Anywhere",   "Sybase",            "Sybase Adaptive Server Anywhere", "sql"),
    Kind   (  3, UVDB_DB_SYBASE,                     "SYBASE",                    "Sybase",                     "Sybase",            "Sybase",                    "sql"),
    Plain  (  6, UVDB_DB_MySQL,                      "MySQL",                     "sql"),
    Kind   (  7, UVDB_DB_PERVASIVE,                  "PERVASIVE",                 "Pervasive",                  "Pervasive",         "Pervasive.SQL",             "sql"),
    Kind   (  8, UVDB_UNKNOWN_DATABASE_KIND,         "UNKNOWN",                   "Unknown",                    "Unknown",           "Unknown",                   "sql"),
    Kind   (  9, UVDB_DB_INFORMIX,                   "INFORMIX",                  "Informix",                   "Informix",          "Informix",                  "sql"),
    Kind   ( 10, UVDB_DB_ACCESS,                     "ACCESS",                    "Access",                     "Access",            "Access",                    "sql"),
    Kind   ( 11, UVDB_DB_ADVANTAGE,                  "ADVANTAGE",                 "Advantage",                  "Advantage",         "Advantage",                 "sql"),
    Kind   ( 12, UVDB_DB_INGRES,                     "INGRES",                    "Ingres",                     "Ingres",            "Ingres",                    "sql"),
    Kind   ( 13, UVDB_DB_EXCEL,                      "EXCEL",                     "Excel",                      "Excel",             "Excel",                     "sql"),
    Kind   ( 14, UVDB_DB_FOXPRO,                     "FOXPRO",                    "Foxpro",                     "Foxpro",            "Foxpro",                    "sql"),
    Kind   ( 15, UVDB_DB_COMMON,                     "COMMON",                    "Common SQL",                 "Common",            "Common",                    "sql"),
    Kind   ( 16, UVDB_DB_LOTUS_NOTES,                "LOTUS",                     "Lotus",                      "Lotus",             "Lotus",                     "sql"),
    Kind   ( 17, UVDB_DB_INTERBASE,                  "INTERBASE",                 "Interbase",                  "Interbase",         "Interbase",                 "sql"),
    Kind   ( 18, UVDB_DB_POSTGRESQL,                 "POSTGRESQL",                "PostgreSQL",                 "Postgre",           "PostgreSQL",                "sql"),
    Kind   ( 19, UVDB_DB_JAVA,                       "JAVA",                      "Java",                       "Java",              "Java",                      "java"),
    Kind   ( 20, UVDB_DB_CPP,                        "CPP",                       "CPP",                        "CPP",               "C++",                       "cpp"),
    Kind   ( 21, UVDB_DB_VB,                         "VB",                        "VB",                         "VB",                "Visual Basic",              "vb"),
    Kind   ( 22, UVDB_DB_VBNET,                      "VBNET",                     "VBNET",                      "VBNET",             "Visual Basic.NET",          "vb"),
    Kind   ( 23, UVDB_DB_CS,                         "CS",                        "CS",                         "C#",                "C#",                        "cs"),
    Subtype( 24, UVDB_DB_4GL_INFORMIX, UVDB_4GL_INFORMIX_PROGRAM,              "4GL_INFORMIX",              "Informix 4GL",               "Informix 4GL",      "Informix 4GL",              "4gl"),
    Subtype( 25, UVDB_DB_4GL_INFORMIX, UVDB_4GL_INFORMIX_FORM,                 "4GL_INFORMIX_FORM",         "Informix 4GL Form",          "Informix 4GL Form", "Informix 4GL Form",         "per"),
    Kind   ( 26, UVDB_DB_RDL,                        "RDL",                       "Report Definition Language", "RDL",               "Report Definition Language", "rdl"),
    Kind   ( 27, UVDB_DB_ANSI,                       "ANSI",                      "ANSI",                       "ANSI",              "Ansi SQL",                  "sql"),
    Kind   ( 28, UVDB_DB_PROGRESS,                   "PROGRESS",                  "Progress",                   "Progress",          "Progress",                  "sql"),
    Kind   ( 29, UVDB_DB_4GL_PROGRESS,               "4GL_PROGRESS",              "PROGRESS 4GL",               "Progress 4GL",      "Progress 4GL",              "p"),
    Plain  ( 30, UVDB_DB_ANTS,                       "ANTS",                      "sql"),
    Kind   ( 31, UVDB_DB_SOLID,                      "SOLID",                     "Solid",                      "Solid",             "Solid",                     "sql"),
    Kind   ( 32, UVDB_DB_PARADOX,                    "PARADOX",                   "Paradox",                    "Paradox",           "Paradox",                   "sql"),
    Kind   ( 33, UVDB_DB_OBJECT_PAL,                 "OBJECT_PAL",                "Object Pal",                 "Object Pal",        "Object Pal",                "fsl"),
    Kind   ( 34, UVDB_DB_PARADOX_RSL,                "PARADOX_RSL",               "Paradox RSL",                "Paradox RSL",       "Paradox RSL",               "rsl"),
    Kind   ( 35, UVDB_DB_PARADOX_FSL,                "PARADOX_FSL",               "Paradox FSL",                "Paradox FSL",       "Paradox FSL",               "fsl"),
    Plain  ( 36, UVDB_DB_ASPNET,                     "ASPNET",                    "aspx"),
    Kind   ( 37, UVDB_DB_NEOVIEW,                    "NEOVIEW",                   "Neoview",                    "Neoview",           "Neoview",                   "sql"),
    Kind   ( 38, UVDB_DB_TERADATA,                   "TERADATA",                  "Teradata",                   "Teradata",          "Teradata",                  "sql"),
    Kind   ( 39, UVDB_DB_PERL,                       "PERL",                      "Perl",                       "Perl",              "Perl",                      "pl"),
    Kind   ( 40, UVDB_DB_PYTHON,                     "PYTHON",                    "Python",                     "Python",            "Python",                    "py"),
    Plain  ( 41, UVDB_DB_KSH,                        "KSH",                       "sh"),
    Plain  ( 42, UVDB_DB_SAS,                        "SAS",                       "sql"),
    Kind   ( 43, UVDB_DB_PASCAL,                     "PASCAL",                    "Pascal",                     "Pascal",            "Pascal",                    "pas"),
    Kind   ( 44, UVDB_DB_PASCAL_FRM,                 "PASCAL_FRM",                "Pascal FRM",                 "Pascal FRM",        "Pascal FRM",                "dfm"),
    Kind   ( 45, kUVDBSybaseApiKind,                 "SYBASE_API",                "Sybase API",                 "Sybase API",        "Sybase API",                "cpp"),
    Kind   ( 46, kUVDBOracleOciKind,                 "ORACLE_OCI",                "Oracle OCI",                 "Oracle OCI",        "Oracle OCI",                "cpp"),
    Kind   ( 47, kUVDBCommonApiKind,                 "COMMON_API",                "Common API",                 "Common API",        "Common API",                "cpp"),
    Kind   ( 48, kUVDBMySqlApiKind,                  "MYSQL_API",                 "MySQL API",                  "MySQL API",         "MySQL API",                 "cpp"),
    Plain  ( 49, UVDB_DB_PBScripts,                  "PBScripts",                 "sra"),
    Plain  ( 50, UVDB_DB_OracleCTL,                  "OracleCTL",                 "ctl"),
    Plain  ( 51, UVDB_DB_OracleUtilCL,               "OracleUtilCL",              "sh"),
    Plain  ( 52, UVDB_DB_ProgressDF,                 "ProgressDF",                "df"),
    Plain  ( 53, UVDB_DB_SQLBase,                    "SQLBase",                   "sql"),
    Plain  ( 54, UVDB_DB_HTML,                       "HTML",                      "asp"),
    Kind   ( 55, UVDB_DB_NETEZZA,                    "NETEZZA",                   "Netezza",                    "Netezza",           "Netezza",                   "sql"),
    Plain  ( 56, UVDB_DB_COBOL,                      "COBOL",                     "cob"),
    Plain  ( 60, UVDB_DB_HPNonStop,                  "HPNonStop",                 "sql"),
    Plain  ( 61, UVDB_DB_WSDL,                       "WSDL",                      "wsdl"),
    Plain  ( 62, UVDB_DB_ProgressWSM,                "ProgressWSM",               "wsm"),
    Plain  ( 63, UVDB_DB_PHP,                        "PHP",                       "php"),
    Plain  ( 64, UVDB_DB_VERTICA_ANALYTIC_DATABASE,  "VerticaAnalyticDatabase",   "sql"),
    Plain  ( 65, UVDB_DB_XML,                        "XML",                       "XML"),
    Kind   ( 66, UVDB_DB_GREENPLUM,                  "GREENPLUM",                 "Greenplum",                  "Greenplum",         "Greenplum",                 "sql"),
    Subtype( 67, UVDB_DB_ENTERPRISEDB, UVDB_ENTERPRISEDB_PPSS,                 "ENTERPRISEDB_PPSS",         "EnterpriseDB PPSS",          "EnterpriseDB",      "EnterpriseDB PPSS",         "sql"),
    Subtype( 68, UVDB_DB_ENTERPRISEDB, UVDB_ENTERPRISEDB_PPAS,                 "ENTERPRISEDB_PPAS",         "EnterpriseDB PPAS",          "EnterpriseDB",      "EnterpriseDB PPAS",         "sql"),
    Kind   ( 69, UVDB_DB_ENTERPRISEDB,               "ENTERPRISEDB",              "EnterpriseDB",               "EnterpriseDB",      "EnterpriseDB",              "sql"),
    Plain  ( 70, UVDB_DB_HIRDB,                      "HiRDB",                     "sql"),
    Plain  ( 71, UVDB_DB_JPL,                        "JPL",                       "jpl"),
    Plain  ( 72, UVDB_DB_SQR,                        "SQR",                       "sqr"),
    Kind   ( 73, UVDB_DB_CRYSTAL,                    "CRYSTAL",                   "Crystal",                    "Crystal",           "Crystal",                   "rpt"),
    Kind   ( 74, UVDB_DB_VBFORCRYSTAL,               "VBFORCRYSTAL",              "VBForCrystal",               "VBForCrystal",      "VBForCrystal",              "vb"),
    Kind   ( 75, UVDB_DB_JCL,                        "JCL",                       "JCL",                        "JCL",               "Job Control Language",      "jcl"),
    Kind   ( 76, UVDB_DB_SAP_HANA,                   "SAPHANA",                   "SAPHANA",                    "SAPHANA",           "SAP HANA",                  "sql"),
    Plain  ( 77, UVDB_DB_CACHE,                      "CACHE",                     "sql"),
    Kind   ( 78, UVDB_DB_VPOSTGRES,                  "VPOSTGRES",                 "vPostgres",                  "vPostgres",         "vFabric Postgres (vPostgres)", "sql"),
    Plain  ( 79, UVDB_DB_C,                          "C",                         "c"),
    Plain  ( 80, UVDB_DB_ABAP4,                      "ABAP4",                     "abap"),
    Kind   ( 81, UVDB_DB_NATURAL,                    "NATURAL",                   "NATURAL",                    "NATURAL",           "Natural",                   "nat"),
    Kind   ( 82, UVDB_DB_PLI,                        "PLI",                       "PLI",                        "PLI",               "PL/I",                      "pli"),
    Plain  ( 83, UVDB_DB_ADABAS,                     "ADABAS",                    "sql"),
    Plain  ( 84, UVDB_DB_4DSQLSERVER,                "SQL4D",                     "4d"),
    Plain  ( 85, UVDB_DB_4DWEB,                      "WEB4D",                     "4d"),
    Plain  ( 86, UVDB_DB_4D,                         "BL4D",                      "4d"),
    Plain  ( 87, UVDB_DB_ASP,                        "ASP",                       "asp"),
    Plain  ( 88, UVDB_DB_FIREBIRD,                   "FIREBIRD",                  "sql"),
    Kind   ( 89, UVDB_DB_ORACLE_SQL_FORMS,           "ORACLE_SQL_FORMS",          "ORACLE SQL FORMS",           "ORACLESQLFORMS",    "ORACLE SQL FORMS",          "sql"),
    Kind   ( 90, UVDB_DB_ORACLE_FORMS,               "ORACLE_FORMS",              "ORACLE FORMS",               "ORACLEFORMS",       "ORACLE FORMS",              "fmb"),
    Plain  ( 91, UVDB_DB_OBJECTIVEC,                 "ObjectiveC",                "m"),
    Plain  ( 92, UVDB_DB_IPHONE,                     "iPhone",                    "m"),
    Plain  ( 93, UVDB_DB_ANDROID,                    "Android",                   "java"),
    Kind   ( 94, UVDB_DB_WINDOWS_PHONE_XNA,          "Windows_Phone_XNA",         "Windows Phone XNA",          "WindowsPhoneXNA",   "Windows Phone XNA",         "cs"),
    Kind   ( 95, UVDB_DB_WINDOWS_PHONE_SILVERLIGHT,  "Windows_Phone_Silverlight", "Windows Phone Silverlight",  "WindowsPhoneSilverlight", "Windows Phone Silverlight", "cs"),
    Kind   ( 96, UVDB_DB_TELON_COBOL,                "Telon_COBOL",               "Telon COBOL",                "TelonCOBOL",        "Telon COBOL",               "cob"),
    Kind   ( 97, UVDB_DB_IBM_CL,                     "IBMCL",                     "IBMCL",                      "IBMCL",             "IBM Control Language",      "cl"),
    Kind   ( 98, UVDB_DB_GUPTA_SAL,                  "GuptaSAL",                  "GuptaSAL",                   "GuptaSAL",          "Gupta SQLWindows Application Language", "apt"),
    Kind   ( 99, UVDB_DB_IBM_RPG,                    "IBMRPG",                    "IBMRPG",                     "IBMRPG",            "IBM Report Program Generator Language", "txt"),
    Kind   (100, UVDB_DB_DELPHI,                     "DELPHI",                    "Delphi",                     "Delphi",            "Delphi",                    "pas"),
    Kind   (101, UVDB_DB_DELPHI_DFM,                 "DELPHI_DFM",                "Delphi DFM",                 "Delphi DFM",        "Delphi DFM",                "dfm"),
    Plain  (102, UVDB_DB_SEABASE,                    "SeaBase",                   "f"),
    Subtype(103, UVDB_DB_4GL_SEA, UVDB_4GL_SEA_PROGRAM,                        "4GL_SEA",                   "Sea 4GL",                    "Sea 4GL",           "Sea 4GL",                   "v"),
    Subtype(104, UVDB_DB_4GL_SEA, UVDB_4GL_SEA_FORM,                           "4GL_SEA_FORM",              "Sea 4GL form",               "Sea 4GL form",      "Sea 4GL form",              "s"),
    Plain  (105, UVDB_DB_NUODB,                      "NuoDB",                     "sql"),
    Plain  (106, UVDB_DB_XQUERY,                     "XQuery",                    "xqy"),
    Plain  (107, UVDB_DB_MARIADB,                    "MariaDB",                   "sql"),
    Plain  (108, UVDB_DB_REDSHIFT,                   "Redshift",                  "sql"),
    Plain  (109, UVDB_DB_SPLICE_MACHINE,             "Splice Machine",            "sql"),
    Plain  (110, UVDB_DB_AUTOLISP,                   "AutoLISP",                  "lsp"),
    Plain  (111, UVDB_DB_CPP_RC,                     "CppRc",                     "rc"),
    Plain  (112, UVDB_DB_OPENEDGE_ABL,               "OpenEdgeABL",               "p"),
    Plain  (113, UVDB_DB_GBASE,                      "GBase",                     "sql"),
    Kind   (114, UVDB_DB_PRO_COBOL,                  "ProCOBOL",                  "ProCOBOL",                   "ProCOBOL",          "Pro*COBOL",                 "cob"),
    Kind   (115, UVDB_DB_PRO_C,                      "ProC",                      "ProC",                       "ProC",              "Pro*C",                     "cpp"),
    Kind   (116, UVDB_DB_PACBASE,                    "PACBASE",                   "PACBASE",                    "PACBASE",           "VisualAge Pacbase",         "cob"),
    Kind   (117, UVDB_DB_JAVA_SWING,                 "JavaSwing",                 "JavaSwing",                  "JavaSwing",         "Java Swing",                "java"),
    Kind   (118, UVDB_DB_JAVA_SPRING_BOOT,           "JavaSpringBoot",            "JavaSpringBoot",             "JavaSpringBoot",    "Java Spring Boot",          "java"),
    Kind   (119, UVDB_DB_MySQL_AMAZON_AURORA,        "AmazonAuroraMySQL",         "Amazon Aurora (compatibility with MySQL)", "Amazon Aurora (compatibility with MySQL)", "Amazon Aurora (compatibility with MySQL)", "sql"),
    Kind   (120, UVDB_DB_VISUAL_FOXPRO,              "VisualFoxpro",              "VisualFoxpro",               "VisualFoxpro",      "Visual Foxpro",             "mpr"),
    Kind   (121, UVDB_DB_FOXPRO_REPORTS,             "FoxproReports",             "FoxproReports",              "FoxproReports",     "Visual Foxpro Reports",     "fr2"),
    Kind   (122, UVDB_DB_JAVA_JSF,                   "JavaJSF",                   "JavaJSF",                    "JavaJSF",           "Java JSF",                  "java"),
    Kind   (123, UVDB_DB_JAVA_GWT,                   "JavaGWT",                   "JavaGWT",                    "JavaGWT",           "Java GWT",                  "java"),
    Plain  (124, UVDB_DB_POWERSHELL,                 "PowerShell",                "ps1"),
    Kind   (125, UVDB_DB_PROGRESS_REPORTS,           "ProgressReports",           "ProgressReports",            "ProgressReports",   "Progress Reports",          "txt"),
    Kind   (126, UVDB_DB_JAVA_FX,                    "JavaFX",                    "JavaFX",                     "JavaFX",            "Java FX",                   "java"),
    Kind   (127, UVDB_DB_ORACLE_REPORTS,             "ORACLE REPORTS",            "ORACLE REPORTS",             "ORACLE REPORTS",    "Oracle Reports",            "rdf"),
    Kind   (128, UVDB_DB_MS_AZURE_SQL,               "MSAZURESQL",                "Microsoft Azure SQL Database", "Microsoft Azure SQL Database", "Microsoft Azure SQL Database", "sql"),
    Kind   (129, UVDB_DB_PostgreSQL_AMAZON_AURORA,   "AmazonAuroraPostgreSQL",    "Amazon Aurora (compatibility with PostgreSQL)", "Amazon Aurora (compatibility with PostgreSQL)", "Amazon Aurora (compatibility with PostgreSQL)", "sql"),
    Kind   (130, UVDB_DB_MS_AZURE_SQL_WAREHOUSE,     "MSAZURESQLWAREHOUSE",       "Azure Synapse Analytics",    "Azure Synapse Analytics", "Azure Synapse Analytics",   "sql"),
    Kind   (131, UVDB_DB_JAVASCRIPT,                 "JAVASCRIPT",                "JavaScript",                 "JavaScript",        "JavaScript",                "js"),
    Kind   (132, UVDB_DB_FOXPRO_PROGRAMS,            "FOXPROPROGRAMS",            "FoxproPrograms",             "FoxproPrograms",    "FoxproPrograms",            "prg"),
    Kind   (133, UVDB_DB_4GL_ACCELL,                 "ACCELL_4GL",                "ACCELL 4GL",                 "Accell 4GL",        "Accell 4GL",                "fs"),
    Kind   (134, UVDB_DB_4GL_ACCELL_FORM,            "ACCELL_4GL_FORM",           "ACCELL 4GL FORM",            "Accell 4GL Form",   "Accell 4GL Form",           "afq"),
    Kind   (135, UVDB_DB_SNOWFLAKE,                  "SNOWFLAKE",                 "Snowflake",                  "Snowflake",         "Snowflake",                 "sql"),
    Kind   (137, UVDB_DB_PostgreSQL_GOOGLE_CLOUD_SQL, "GoogleCloudSQLforPostgreSQL", "Google Cloud SQL for PostgreSQL", "Google Cloud SQL for PostgreSQL", "Google Cloud SQL for PostgreSQL", "sql"),
    Kind   (138, UVDB_DB_MySQL_GOOGLE_CLOUD_SQL,     "GoogleCloudSQLforMySQL",    "Google Cloud SQL for MySQL", "Google Cloud SQL for MySQL", "Google Cloud SQL for MySQL", "sql"),
    Kind   (139, UVDB_DB_MSSQL_GOOGLE_CLOUD_SQL,     "GoogleCloudSQLforMSSQL",    "Google Cloud SQL for SQL Server", "Google Cloud SQL for SQL Server", "Google Cloud SQL for SQL Server", "sql"),
    Kind   (140, UVDB_DB_JUPYTER_NOTEBOOKS,          "JupyterNotebooks",          "Jupyter Notebooks",          "Jupyter Notebooks", "Jupyter Notebooks",         "ipynb"),
    Kind   (141, UVDB_DB_PostgresPro,                "PostgresPro",               "Postgres Pro",               "Postgres Pro",      "Postgres Pro",              "sql"),
    Plain  (142, UVDB_DB_SingleStoreDB,              "SingleStoreDB",             "sql"),
};
// clang-format on
static_assert(std::size(kRows) == 142);

// The indices are stored outside: each belongs to one row, and 136 to none any more.
constexpr bool EachIndexOnce()
{
    std::array<int, 143> uses{};
    for (const SDbInfoLiteral& row : kRows)
        ++uses.at(static_cast<std::size_t>(row.resourceIndex));
    for (std::size_t index = 0; index < uses.size(); ++index) {
        if (uses[index] != (index == 136 ? 0 : 1))
            return false;
    }
    return true;
}
static_assert(EachIndexOnce());

} // namespace

constinit const std::span<const SDbInfoLiteral> kCatalogueRows{kRows};
