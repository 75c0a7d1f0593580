#include "Tests/Languages/MySQLOwnSyntax.h"

#include <algorithm>
#include <iterator>
#include <regex>
#include <vector>

namespace {

// clang-format off
constexpr SOwnSyntax kRows[] = {
    // queries
    {"LATERAL",                       R"(\blateral\s*\()",
     "SELECT * FROM t, LATERAL (SELECT t.a) AS s"},
    {"VALUES ROW",                    R"(\brow\s*\()",
     "VALUES ROW(1, 2), ROW(3, 4)"},
    {"TABLE as a query",              R"(\btable\s+[\w`.]+\s*(?:\)|;|$|limit\b|order\b|union\b|into\b|as\b))",
     "TABLE t ORDER BY a LIMIT 1"},
    {"arrow into JSON",               R"(->>?\s*['"])",
     "SELECT a->'$.x' FROM t"},
    {"MEMBER OF",                     R"(\bmember\s+of\b)",
     "SELECT 1 MEMBER OF ('[1]')"},
    {"JSON_VALUE with clauses",       R"(\breturning\s+\w+)",
     "SELECT JSON_VALUE('{}', '$.a' RETURNING SIGNED)"},
    {"NESTED without PATH",           R"(\bnested\s+['"])",
     "SELECT * FROM JSON_TABLE('[]', '$[*]' COLUMNS (NESTED '$.b' COLUMNS (c INT PATH '$'))) t"},
    {"FOR SHARE",                     R"(\bfor\s+share\b)",
     "SELECT a FROM t FOR SHARE"},
    {"FOR UPDATE OF",                 R"(\bfor\s+update\s+of\b)",
     "SELECT a FROM t FOR UPDATE OF t SKIP LOCKED"},
    {"frame of an interval",          R"(\brange\s+(?:between\s+)?interval\b|\band\s+interval\b[^;]*\bfollowing\b)",
     "SELECT SUM(a) OVER (ORDER BY b RANGE INTERVAL 1 DAY PRECEDING) FROM t"},
    {"NULLS of a window function",    R"(\b(?:respect|ignore)\s+nulls\b)",
     "SELECT FIRST_VALUE(a) RESPECT NULLS OVER () FROM t"},
    {"FROM of a window function",     R"(\bfrom\s+(?:first|last)\s+over\b)",
     "SELECT NTH_VALUE(a, 2) FROM FIRST OVER () FROM t"},
    {"default of LAG and LEAD",       R"((,)[^,()]*\)\s*over\b)",
     "SELECT LAG(a, 1, 0) OVER (ORDER BY a) FROM t"},
    {"CAST to YEAR, to shapes",       R"((?:\bas\s+|,\s*)(?:year|point|linestring|polygon|multi\w+|geometrycollection)\s*\))",
     "SELECT CAST(a AS YEAR)"},
    {"CAST to an array",              R"(\barray\s*\))",
     "SELECT CAST(a AS SIGNED ARRAY)"},
    {"CAST AT TIME ZONE",             R"(\bat\s+time\s+zone\b)",
     "SELECT CAST(a AT TIME ZONE '+00:00' AS DATETIME) FROM t"},
    {"EXPLAIN ANALYZE",               R"(\b(?:explain|describe|desc)\s+analyze\b)",
     "EXPLAIN ANALYZE SELECT 1"},
    {"derived table without a name",  R"(\)\s*(on\s+duplicate\b))",
     "INSERT INTO t SELECT * FROM (SELECT 1) ON DUPLICATE KEY UPDATE a = 1"},
    {"columns of a derived table",    R"(\)\s*(?:as\s+)?[\w`]+\s*(\())",
     "SELECT * FROM (SELECT 1, 2) AS t (a, b)"},
    {"CAST to JSON",                  R"((?:\bas\s+|,\s*)json\s*\))",
     "SELECT CAST(a AS JSON)"},
    // changes of data
    {"name of the new row",           R"(\bas\s+[\w`]+\s*(?:\([^)]*\)\s*)?on\s+duplicate\b)",
     "INSERT INTO t VALUES (1) AS n ON DUPLICATE KEY UPDATE a = n.a"},
    {"alias in DELETE",               R"(\bdelete\b[^;]{0,60}\bfrom\s+[\w`.]+\s+(?:as\s+)?[\w`]+\s+(?:where|order|limit)\b)",
     "DELETE FROM t AS x WHERE x.a = 1"},
    // tables
    {"INVISIBLE",                     R"(\b(?:in)?visible\b)",
     "ALTER TABLE t ALTER INDEX i INVISIBLE"},
    {"key of an expression",          R"([(,]\s*(\())",
     "CREATE INDEX i ON t ((a + 1))"},
    {"NOT ENFORCED",                  R"(\b(?:not\s+)?enforced\b)",
     "CREATE TABLE t (a INT CHECK (a > 1) NOT ENFORCED)"},
    {"DROP CHECK",                    R"(\b(?:alter|drop)\s+check\b)",
     "ALTER TABLE t DROP CHECK c"},
    {"SRID",                          R"(\bsrid\s+\d+)",
     "CREATE TABLE t (p POINT SRID 4326)"},
    {"COLUMN_FORMAT, STORAGE",        R"(\b(?:column_format|storage)\s+\w+)",
     "CREATE TABLE t (a INT COLUMN_FORMAT FIXED)"},
    {"attributes of an engine",       R"(\b(?:secondary_engine|(?:secondary_)?engine_attribute)\s*=?\s*['\w])",
     "CREATE TABLE t (a INT ENGINE_ATTRIBUTE '{}')"},
    {"AUTOEXTEND_SIZE",               R"(\bautoextend_size\s*=?\s*\w+)",
     "CREATE TABLE t (a INT) AUTOEXTEND_SIZE = 4M"},
    {"EXCHANGE with validation",      R"(\bwith(?:out)?\s+validation\b)",
     "ALTER TABLE t EXCHANGE PARTITION p WITH TABLE u WITHOUT VALIDATION"},
    {"histogram",                     R"(\b(?:update|drop)\s+histogram\b)",
     "ANALYZE TABLE t UPDATE HISTOGRAM ON a"},
    {"TABLESPACE",                    R"(\b(?:undo\s+)?tablespace\b)",
     "CREATE TABLESPACE ts ADD DATAFILE 'x.ibd'"},
    {"LOGFILE GROUP",                 R"(\blogfile\s+group\b)",
     "CREATE LOGFILE GROUP g ADD UNDOFILE 'x'"},
    {"SPATIAL REFERENCE SYSTEM",      R"(\bspatial\s+reference\s+system\b)",
     "CREATE SPATIAL REFERENCE SYSTEM 4000 NAME 'x' DEFINITION 'y'"},
    {"ENCRYPTION of a database",      R"(\bencryption\s*=?\s*['"])",
     "CREATE DATABASE d ENCRYPTION = 'Y'"},
    {"READ ONLY database",            R"(\bread\s+only\s*(?:=|default\b|\d))",
     "ALTER DATABASE d READ ONLY = 1"},
    {"IMPORT TABLE",                  R"(\bimport\s+table\b)",
     "IMPORT TABLE FROM 'x'"},
    {"algorithm of DROP INDEX",       R"(\bon\s+[\w`.]+\s+(?:algorithm|lock)\s*=?\s*\w+)",
     "DROP INDEX i ON t ALGORITHM = INPLACE"},
    {"START TRANSACTION of a table",  R"(['`\w)]\s+start\s+transaction\b)",
     "CREATE TABLE t (a INT) START TRANSACTION"},
    // users
    {"password for a plugin",         R"(\bwith\s+['`\w]+\s+by\b)",
     "CREATE USER a IDENTIFIED WITH x BY 'y'"},
    {"rules for passwords",           R"(\b(?:failed_login_attempts|password_lock_time|password\s+(?:history|reuse|require)|(?:retain|discard)\s+(?:current|old))\b)",
     "CREATE USER a PASSWORD HISTORY 5"},
    {"RANDOM PASSWORD",               R"(\b(?:to|by)\s+random\b)",
     "SET PASSWORD TO RANDOM"},
    {"more factors",                  R"(\b(?:add|modify|drop)\s+[23]\s+factor\b|\band\s+identified\b|\binitial\s+authentication\b)",
     "ALTER USER a ADD 2 FACTOR IDENTIFIED WITH x"},
    {"COMMENT, ATTRIBUTE of a user",  R"(\buser\b[^;]*\b(?:comment|attribute)\s+')",
     "CREATE USER a COMMENT 'x'"},
    {"default roles",                 R"(\bdefault\s+role\s+[\w`]+(?:\s*,|\s+to\b)?)",
     "SET DEFAULT ROLE ALL TO a"},
    {"SET ROLE of several",           R"(\brole\s+(?:all\b|[`'\w@]+(?:\s*,\s*[`'\w@]+)+))",
     "SET ROLE a, b"},
    {"GRANT AS",                      R"(\bto\s+[`'\w@%.]+\s+as\b|\bas\s+[`'\w@%.]+\s+with\s+role\b)",
     "GRANT SELECT ON *.* TO a AS b"},
    {"SHOW GRANTS USING",             R"(\bfor\s+[`'\w@]+\s+using\b)",
     "SHOW GRANTS FOR a USING b"},
    {"REVOKE IF EXISTS",              R"(\brevoke\s+if\s+exists\b)",
     "REVOKE IF EXISTS SELECT ON *.* FROM a"},
    {"dynamic privileges",            R"(\b(?:grant|revoke)\s[^;]*\b\w+_(?:admin|observer|user|costs|status|tables|resources|monitor|identifier|definer|any|exempt|stream|execute|delete)\b['`"]?\s*(?:,|on\b))",
     "GRANT BACKUP_ADMIN ON *.* TO a"},
    {"privileges of roles",           R"(\b(?:create|drop)\s+role\s*(?:,|on\b))",
     "GRANT CREATE ROLE, DROP ROLE ON *.* TO a"},
    {"role with a host",              R"(\brole\s[^;=]*['`\w]@['`\w]+)",
     "CREATE ROLE 'a'@'localhost'"},
    // the server
    {"FLUSH OPTIMIZER_COSTS",         R"(\boptimizer_costs\b)",
     "FLUSH OPTIMIZER_COSTS"},
    {"PERSIST",                       R"(\bpersist(?:_only)?\b(?:\s+[\w`.]+)?)",
     "SET PERSIST max_connections = 1"},
    {"RESOURCE GROUP",                R"(\bresource\s+group\b)",
     "CREATE RESOURCE GROUP g TYPE = USER"},
    {"CLONE",                         R"(\bclone\s+(?:local|instance)\b)",
     "CLONE LOCAL DATA DIRECTORY 'x'"},
    {"COMPONENT",                     R"(\binstall\s+component\s+')",
     "INSTALL COMPONENT 'x'"},
    {"RESTART",                       R"(\brestart\b)",
     "RESTART"},
    {"LOCK INSTANCE",                 R"(\b(?:un)?lock\s+instance\b)",
     "LOCK INSTANCE FOR BACKUP"},
    {"ALTER INSTANCE",                R"(\balter\s+instance\b)",
     "ALTER INSTANCE ROTATE INNODB MASTER KEY"},
    {"replication source",            R"(\breplication\s+source\b|\bsource_\w+\s*=)",
     "CHANGE REPLICATION SOURCE TO SOURCE_HOST = 'x'"},
    {"REPLICATION FILTER",            R"(\breplication\s+filter\b)",
     "CHANGE REPLICATION FILTER REPLICATE_DO_DB = (a)"},
    {"GROUP_REPLICATION",             R"(\bgroup_replication\b)",
     "START GROUP_REPLICATION"},
    {"UNTIL SQL_AFTER_GTIDS",         R"(\bsql_\w+_(?:gtids|gaps)\b)",
     "START REPLICA UNTIL SQL_AFTER_GTIDS = 'x'"},
    {"SHOW REPLICAS",                 R"(\breplicas\b)",
     "SHOW REPLICAS"},
    {"SHOW EXTENDED",                 R"(\bextended\s+(?:full|columns|fields|index|indexes|keys)\b)",
     "SHOW EXTENDED COLUMNS FROM t"},
    {"XA RECOVER CONVERT XID",        R"(\bconvert\s+xid\b)",
     "XA RECOVER CONVERT XID"},
    {"SIGNED after a type",           R"(\bsigned\s+(?:un)?signed\b)",
     "CREATE TABLE t (a BIGINT SIGNED UNSIGNED)"},
    {"SERIAL with NULL",              R"(\bserial\s+null\b)",
     "CREATE TABLE t (a SERIAL NULL)"},
    {"WITH in the brackets of a view", R"(\bas\s*\(\s*with\b)",
     "CREATE VIEW v AS (WITH a AS (SELECT 1) SELECT * FROM a)"},
    {"INTO in brackets",              R"(\binto\s+(?:outfile|dumpfile|@))",
     "(SELECT 1 UNION SELECT 2 INTO OUTFILE 'x')"},
    {"UNDO, which no server has yet", R"(\bdeclare\s+undo\b)",
     "DECLARE UNDO HANDLER FOR SQLEXCEPTION SELECT 1"},
    {"GET STACKED DIAGNOSTICS",       R"(\b(?:stacked|current)\s+diagnostics\b)",
     "GET STACKED DIAGNOSTICS @a = NUMBER"},
};
// clang-format on

std::vector<std::regex> CompiledPatterns()
{
    std::vector<std::regex> patterns;
    for (const SOwnSyntax& row : kRows)
        patterns.emplace_back(row.pattern, std::regex::icase);
    return patterns;
}

} // namespace

std::span<const SOwnSyntax> MySqlOwnSyntax()
{
    return kRows;
}

const char* FindMySqlOwnSyntax(const std::string& statement, std::size_t place)
{
    constexpr std::size_t kAround = 200; // longer than what any of the patterns is about
    if (place > statement.size())
        return nullptr;
    static const std::vector<std::regex> patterns = CompiledPatterns();
    const std::size_t begin = place - std::min(place, kAround);
    const std::string text = statement.substr(begin, place - begin + kAround);
    const auto at = static_cast<std::ptrdiff_t>(place - begin);
    for (std::size_t i = 0; i < patterns.size(); ++i)
        for (std::sregex_iterator found(text.begin(), text.end(), patterns[i]);
             found != std::sregex_iterator(); ++found) {
            const std::size_t part = found->size() - 1;
            if (found->position(part) <= at && at <= found->position(part) + found->length(part))
                return kRows[i].name;
        }
    return nullptr;
}
