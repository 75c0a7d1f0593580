#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBNameMatcher.h"
#include "Metadata/Options/wzdoptions.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

namespace {

constexpr std::uint64_t kAnySubType = ~std::uint64_t{1};
constexpr std::uint64_t kNoKind = ~std::uint64_t{0};

struct SSectionOwner
{
    const char* section = "";
    std::uint64_t db = kNoKind;
    std::uint64_t subType = kAnySubType;
};

struct STarget
{
    std::uint64_t db = UVDB_UNKNOWN_DATABASE_KIND;
    std::uint64_t subType = UVDB_NO_VERSION_WORD;
};

constexpr SSectionOwner Section(const char* section, std::uint64_t db, std::uint64_t subType = kAnySubType)
{
    return {.section = section, .db = db, .subType = subType};
}

// A section that concerns no database at all.
constexpr SSectionOwner Never(const char* section)
{
    return {.section = section};
}

// The wizard's own section "POSTGRESPRO" isn't "PostgrePro": nobody claims it. "MariaDB" is a subtype of
// MySQL here, not the kind of that name.
// clang-format off
constexpr SSectionOwner kSectionOwners[] = {
//          section                       kind                                subtype
    Section("MSSQL",                       UVDB_DB_MSSQL),
    Section("MSAZURESQL",                  UVDB_DB_MSSQL,                       UVDB_MSSQL_AZURE_SQL_DATABASE),
    Section("MSAZURESQLWAREHOUSE",         UVDB_DB_MSSQL,                       UVDB_MSSQL_AZURE_SYNAPSE),
    Section("MySQL",                       UVDB_DB_MySQL),
    Section("SingleStoreDB",               UVDB_DB_SingleStoreDB),
    Section("MariaDB",                     UVDB_DB_MySQL,                       UVDB_MySQL_FOR_MariaDB),
    Section("INGRES",                      UVDB_DB_INGRES),
    Section("Oracle",                      UVDB_DB_ORA),
    Section("PostgreSQL",                  UVDB_DB_POSTGRESQL),
    Section("Postgre",                     UVDB_DB_POSTGRESQL),
    Section("PostgrePro",                  UVDB_DB_PostgresPro),
    Section("Netezza",                     UVDB_DB_NETEZZA),
    Section("Greenplum",                   UVDB_DB_GREENPLUM),
    Section("EnterpriseDB",                UVDB_DB_ENTERPRISEDB),
    Section("DB2",                         UVDB_DB_DB2),
    Section("SAPHANA",                     UVDB_DB_SAP_HANA),
    Section("CACHE",                       UVDB_DB_CACHE),
    Section("VPOSTGRES",                   UVDB_DB_VPOSTGRES),
    Section("HiRDB",                       UVDB_DB_HIRDB),
    Section("Sybase",                      UVDB_DB_SYBASE),
    Section("Informix",                    UVDB_DB_INFORMIX),
    Section("Teradata",                    UVDB_DB_TERADATA),
    Section("SeaBase",                     UVDB_DB_SEABASE),
    Section("NuoDB",                       UVDB_DB_NUODB),
    Section("GBase",                       UVDB_DB_GBASE),
    Section("Redshift",                    UVDB_DB_REDSHIFT),
    Section("Splice Machine",              UVDB_DB_SPLICE_MACHINE),
    Section("Splice_Machine",              UVDB_DB_SPLICE_MACHINE),
    Section("Ants",                        UVDB_DB_ANTS),
    Section("Solid",                       UVDB_DB_SOLID),
    Section("Neoview",                     UVDB_DB_NEOVIEW),
    Section("CS",                          UVDB_DB_CS),
    Section("ASPNET",                      UVDB_DB_ASPNET),
    Section("VBNET",                       UVDB_DB_VBNET),
    Section("ANDROID",                     UVDB_DB_ANDROID),
    Section("IPHONE",                      UVDB_DB_IPHONE),
    Section("OBJECTIVEC",                  UVDB_DB_OBJECTIVEC),
    Section("OBJECTIVE_C",                 UVDB_DB_OBJECTIVEC),
    Section("TELONCOBOL",                  UVDB_DB_TELON_COBOL),
    Section("TELON_COBOL",                 UVDB_DB_TELON_COBOL),
    Section("WINDOWSPHONEXNA",             UVDB_DB_WINDOWS_PHONE_XNA),
    Section("WINDOWS_PHONE_XNA",           UVDB_DB_WINDOWS_PHONE_XNA),
    Section("WINDOWSPHONESILVERLIGHT",     UVDB_DB_WINDOWS_PHONE_SILVERLIGHT),
    Section("WINDOWS_PHONE_SILVERLIGHT",   UVDB_DB_WINDOWS_PHONE_SILVERLIGHT),
    Section("Java",                        UVDB_DB_JAVA),
    Section("JPL",                         UVDB_DB_JPL),
    Section("Pervasive",                   UVDB_DB_PERVASIVE),
    Never("ODBC"),
    Never("CPP"),
    Section("HPNonStop",                   UVDB_DB_HPNonStop),
    Section("VerticaAnalyticDatabase",     UVDB_DB_VERTICA_ANALYTIC_DATABASE),
    Section("Vertica_Analytic_Database",   UVDB_DB_VERTICA_ANALYTIC_DATABASE),
    Section("GUPTASAL",                    UVDB_DB_GUPTA_SAL),
    Section("SQLWindows",                  UVDB_DB_GUPTA_SAL),
    Section("PYTHON",                      UVDB_DB_PYTHON),
};
// clang-format on
static_assert(std::size(kSectionOwners) == 55);

// Order is meaning: a position of the wizard's list. Some subtypes are the wizard's own and bear no name.
// clang-format off
constexpr STarget kTargets[] = {
//            kind                               subtype
    /*  0 */ {UVDB_DB_MSSQL,                     UVDB_DB_SUB_TYPE_UNKNOWN},
    /*  1 */ {UVDB_DB_MSSQL,                     2},
    /*  2 */ {UVDB_DB_ORA,                       UVDB_DB_SUB_TYPE_UNKNOWN},
    /*  3 */ {UVDB_DB_DB2,                       UVDB_DB_SUB_TYPE_UNKNOWN},
    /*  4 */ {UVDB_DB_DB2,                       UVDB_DB2_UDB_FOR_zOS_AND_OS390},
    /*  5 */ {UVDB_DB_DB2,                       UVDB_DB2_UDB_FOR_AS400_AND_iSERIES},
    /*  6 */ {UVDB_DB_SAP_HANA,                  UVDB_DB_SUB_TYPE_UNKNOWN},
    /*  7 */ {UVDB_DB_CACHE,                     UVDB_DB_SUB_TYPE_UNKNOWN},
    /*  8 */ {UVDB_DB_VPOSTGRES,                 UVDB_DB_SUB_TYPE_UNKNOWN},
    /*  9 */ {UVDB_DB_HIRDB,                     UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 10 */ {UVDB_DB_NEOVIEW,                   UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 11 */ {UVDB_DB_HPNonStop,                 UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 12 */ {UVDB_DB_VERTICA_ANALYTIC_DATABASE, UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 13 */ {UVDB_DB_TERADATA,                  UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 14 */ {UVDB_DB_MySQL,                     UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 15 */ {UVDB_DB_POSTGRESQL,                UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 16 */ {UVDB_DB_NETEZZA,                   UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 17 */ {UVDB_DB_GREENPLUM,                 UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 18 */ {UVDB_DB_ENTERPRISEDB,              UVDB_ENTERPRISEDB_PPSS},
    /* 19 */ {UVDB_DB_ENTERPRISEDB,              UVDB_ENTERPRISEDB_PPAS},
    /* 20 */ {UVDB_DB_SYBASE,                    UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE},
    /* 21 */ {UVDB_DB_SYBASE,                    2},
    /* 22 */ {UVDB_DB_SYBASE,                    UVDB_SYBASE_IQ},
    /* 23 */ {UVDB_DB_INFORMIX,                  UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 24 */ {UVDB_DB_PERVASIVE,                 UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 25 */ {UVDB_DB_ANTS,                      UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 26 */ {UVDB_DB_SOLID,                     UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 27 */ {UVDB_DB_INGRES,                    UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 28 */ {UVDB_UNKNOWN_DATABASE_KIND,        UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 29 */ {UVDB_UNKNOWN_DATABASE_KIND,        UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 30 */ {UVDB_DB_ANSI,                      UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 31 */ {UVDB_DB_SEABASE,                   UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 32 */ {UVDB_DB_NUODB,                     UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 33 */ {UVDB_DB_MySQL,                     UVDB_MySQL_FOR_MariaDB},
    /* 34 */ {UVDB_DB_MySQL,                     0},
    /* 35 */ {UVDB_DB_MySQL,                     2},
    /* 36 */ {UVDB_DB_POSTGRESQL,                0},
    /* 37 */ {UVDB_DB_POSTGRESQL,                1},
    /* 38 */ {UVDB_DB_GBASE,                     UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 39 */ {UVDB_DB_REDSHIFT,                  UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 40 */ {UVDB_DB_SPLICE_MACHINE,            UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 41 */ {UVDB_UNKNOWN_DATABASE_KIND,        UVDB_DB_SUB_TYPE_UNKNOWN},
    /* 42 */ {UVDB_DB_POSTGRESQL,                UVDB_POSTGRESQL_POSTGRES_PRO},
    /* 43 */ {UVDB_DB_ACCESS,                    UVDB_DB_SUB_TYPE_UNKNOWN},
};
// clang-format on
static_assert(std::size(kTargets) == 44);

constexpr std::string_view kCommonSections[] = {
    "_WZD_DDL",       "_WZD_DATA",    "DATA",          "DDL",  "_WZD_SOURCE_DB2",
    "_WZD_SOURCE_DB", "FORMATTING",   "WINDOWS",       "UNIX", "COMMON",
    "_WZD_COMMON",    "OPTIMIZATION", "DATA_MIGRATOR", "ODBC", "CACHE",
};
static_assert(std::size(kCommonSections) == 15);

// Null for a section that no row names.
const SSectionOwner* FindSectionOwner(const Uve::U8CString& section)
{
    const UVDB::CNameMatcher matcher(section.c_str(), UVDB::CNameMatcher::ignoreCase);
    const auto row = std::ranges::find_if(
        kSectionOwners, [&](const SSectionOwner& owner) { return matcher.Matches(owner.section); });
    return row == std::end(kSectionOwners) ? nullptr : row;
}

bool Owns(const SSectionOwner& owner, std::uint64_t db, std::uint64_t subType)
{
    return owner.db != kNoKind && owner.db == db &&
           (owner.subType == kAnySubType || owner.subType == subType);
}

// Decimal, cut to 32 bits: a number too long for them wraps.
std::uint64_t ReadVersionWord(const std::string& text)
{
    return static_cast<std::uint64_t>(
        static_cast<std::int64_t>(static_cast<std::int32_t>(std::strtol(text.c_str(), nullptr, 10))));
}

} // namespace

bool IsSectionValid(const Uve::U8CString& section, std::uint64_t db, std::uint64_t subType)
{
    const SSectionOwner* owner = FindSectionOwner(section);
    return !owner || Owns(*owner, db, subType);
}

bool IsSectionTarget(const Uve::U8CString& section, std::uint64_t db, std::uint64_t subType)
{
    const SSectionOwner* owner = FindSectionOwner(section);
    return owner && Owns(*owner, db, subType);
}

bool IsSectionCommon(const Uve::U8CString& section)
{
    Uve::U8CString upperCase = section;
    upperCase.MakeUpper();
    return std::ranges::find(kCommonSections, std::string_view{upperCase}) != std::end(kCommonSections);
}

void GetTargetDbmsInfo(unsigned int index, const Uve::U8CString& version, DB_VERSION_INFO* info)
{
    if (!info)
        return;
    *info = DB_VERSION_INFO{};
    if (index < std::size(kTargets)) {
        info->db = kTargets[index].db;
        info->subType = kTargets[index].subType;
    }
    const std::string& text = version;
    const std::string::size_type dot = text.find('.');
    const std::string majorText = text.substr(0, dot);
    if (majorText.empty())
        return;
    info->major = ReadVersionWord(majorText);
    info->minor = dot == std::string::npos ? 0 : ReadVersionWord(text.substr(dot + 1));
}
