// PostgreSQL and what is built on it.
#include "Catalogue/Identifiers/ReservedWords/ReservedWordList.h"
#include "Catalogue/Identifiers/ReservedWords/ReservedWords.h"

namespace {

// PostgreSQL 15: the words of classes "reserved" and "reserved (can be function or type name)" of
// pg_get_keywords(). The words that only can't be function or type names make plain tables and columns.
// clang-format off
constexpr std::string_view kPostgreSqlWords[] = {
    "ALL",
    "ANALYSE",
    "ANALYZE",
    "AND",
    "ANY",
    "ARRAY",
    "AS",
    "ASC",
    "ASYMMETRIC",
    "AUTHORIZATION",
    "BINARY",
    "BOTH",
    "CASE",
    "CAST",
    "CHECK",
    "COLLATE",
    "COLLATION",
    "COLUMN",
    "CONCURRENTLY",
    "CONSTRAINT",
    "CREATE",
    "CROSS",
    "CURRENT_CATALOG",
    "CURRENT_DATE",
    "CURRENT_ROLE",
    "CURRENT_SCHEMA",
    "CURRENT_TIME",
    "CURRENT_TIMESTAMP",
    "CURRENT_USER",
    "DEFAULT",
    "DEFERRABLE",
    "DESC",
    "DISTINCT",
    "DO",
    "ELSE",
    "END",
    "EXCEPT",
    "FALSE",
    "FETCH",
    "FOR",
    "FOREIGN",
    "FREEZE",
    "FROM",
    "FULL",
    "GRANT",
    "GROUP",
    "HAVING",
    "ILIKE",
    "IN",
    "INITIALLY",
    "INNER",
    "INTERSECT",
    "INTO",
    "IS",
    "ISNULL",
    "JOIN",
    "LATERAL",
    "LEADING",
    "LEFT",
    "LIKE",
    "LIMIT",
    "LOCALTIME",
    "LOCALTIMESTAMP",
    "NATURAL",
    "NOT",
    "NOTNULL",
    "NULL",
    "OFFSET",
    "ON",
    "ONLY",
    "OR",
    "ORDER",
    "OUTER",
    "OVERLAPS",
    "PLACING",
    "PRIMARY",
    "REFERENCES",
    "RETURNING",
    "RIGHT",
    "SELECT",
    "SESSION_USER",
    "SIMILAR",
    "SOME",
    "SYMMETRIC",
    "TABLE",
    "TABLESAMPLE",
    "THEN",
    "TO",
    "TRAILING",
    "TRUE",
    "UNION",
    "UNIQUE",
    "USER",
    "USING",
    "VARIADIC",
    "VERBOSE",
    "WHEN",
    "WHERE",
    "WINDOW",
    "WITH",
};
// clang-format on
static_assert(UVDBRows::AreReservedWords(kPostgreSqlWords));

// vPostgres 9 to 14 and Postgres Plus Standard Server 9: PostgreSQL's words of these releases, they add none.
// OVER was reserved up to 9.3, TABLESAMPLE is from 9.5 on.
// clang-format off
constexpr std::string_view kPostgreSql9Added[] = {
    "OVER",
};
// clang-format on
constexpr auto kPostgreSql9Words = UVDBRows::NewerWords<kPostgreSqlWords, kPostgreSql9Added>();
static_assert(std::size(kPostgreSql9Words) == 101);

// Postgres Plus Advanced Server 9 and its successors to 15: PostgreSQL's words of these releases, and the
// words of the dialect close to Oracle's that its client tools put into quotes, with ROWNUM.
// clang-format off
constexpr std::string_view kEnterpriseDbPpasAdded[] = {
    "CONNECT",
    "CONVERT",
    "EXEC",
    "LONG",
    "MINUS",
    "NOCACHE",
    "NUMBER",
    "PACKAGE",
    "PLS_INTEGER",
    "RAW",
    "RETURN",
    "ROWNUM",
    "SMALLDATETIME",
    "SMALLFLOAT",
    "SMALLMONEY",
    "SYSDATE",
    "SYSTIMESTAMP",
    "TINYINT",
    "TINYTEXT",
    "VARCHAR2",
};
// clang-format on
constexpr auto kEnterpriseDbPpasWords = UVDBRows::NewerWords<kPostgreSql9Words, kEnterpriseDbPpasAdded>();
static_assert(std::size(kEnterpriseDbPpasWords) == 121);

// Greenplum 6 and 7, key words of the reference guide: PostgreSQL's (9.4, 12) and Greenplum's own, "reserved"
// and "reserved (can be function or type name)". This list hasn't been compared with the manual word by word.
// clang-format off
constexpr std::string_view kGreenplumAdded[] = {
    "DECODE",
    "DISTRIBUTED",
    "EXCLUDE",
    "FOLLOWING",
    "LOG",
    "PARTITION",
    "PRECEDING",
    "SCATTER",
    "UNBOUNDED",
};
// clang-format on
constexpr auto kGreenplumWords = UVDBRows::NewerWords<kPostgreSqlWords, kGreenplumAdded>();
static_assert(std::size(kGreenplumWords) == 109);

// Amazon Redshift, Database Developer Guide: "Reserved words". This list hasn't been compared with the manual
// word by word.
// clang-format off
constexpr std::string_view kRedshiftAdded[] = {
    "AES128",
    "AES256",
    "ALLOWOVERWRITE",
    "AZ64",
    "BACKUP",
    "BETWEEN",
    "BLANKSASNULL",
    "BYTEDICT",
    "BZIP2",
    "CONNECT",
    "CREDENTIALS",
    "CURRENT_USER_ID",
    "DEFLATE",
    "DEFRAG",
    "DELTA",
    "DELTA32K",
    "DISABLE",
    "EMPTYASNULL",
    "ENABLE",
    "ENCODE",
    "ENCRYPT",
    "ENCRYPTION",
    "EXPLICIT",
    "GLOBALDICT256",
    "GLOBALDICT64K",
    "GZIP",
    "IDENTITY",
    "IGNORE",
    "INTERVAL",
    "LANGUAGE",
    "LUN",
    "LUNS",
    "LZO",
    "LZOP",
    "MINUS",
    "MOSTLY16",
    "MOSTLY32",
    "MOSTLY8",
    "NEW",
    "NULLS",
    "OFF",
    "OFFLINE",
    "OID",
    "OLD",
    "OPEN",
    "PARALLEL",
    "PARTITION",
    "PERCENT",
    "PERMISSIONS",
    "PIVOT",
    "QUALIFY",
    "RAW",
    "READRATIO",
    "RECOVER",
    "REJECTLOG",
    "RESORT",
    "RESPECT",
    "RESTORE",
    "SNAPSHOT",
    "SYSDATE",
    "SYSTEM",
    "TAG",
    "TDES",
    "TEXT255",
    "TEXT32K",
    "TIMESTAMP",
    "TOP",
    "TRUNCATECOLUMNS",
    "UNNEST",
    "UNPIVOT",
    "WALLET",
    "WITHOUT",
};
constexpr std::string_view kRedshiftGone[] = {
    "ASYMMETRIC",
    "COLLATION",
    "CONCURRENTLY",
    "CURRENT_CATALOG",
    "CURRENT_ROLE",
    "CURRENT_SCHEMA",
    "FETCH",
    "LATERAL",
    "RETURNING",
    "SYMMETRIC",
    "TABLESAMPLE",
    "VARIADIC",
    "WINDOW",
};
// clang-format on
constexpr auto kRedshiftWords = UVDBRows::NewerWords<kPostgreSqlWords, kRedshiftAdded, kRedshiftGone>();
static_assert(std::size(kRedshiftWords) == 159);

} // namespace

constinit const std::span<const std::string_view> kPostgreSqlReservedWords{kPostgreSqlWords};
constinit const std::span<const std::string_view> kPostgreSql9ReservedWords{kPostgreSql9Words};
constinit const std::span<const std::string_view> kEnterpriseDbPpasReservedWords{kEnterpriseDbPpasWords};
constinit const std::span<const std::string_view> kGreenplumReservedWords{kGreenplumWords};
constinit const std::span<const std::string_view> kRedshiftReservedWords{kRedshiftWords};
