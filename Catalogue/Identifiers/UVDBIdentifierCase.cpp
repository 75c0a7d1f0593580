#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/UVDBKindSet.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

namespace {

struct SCaseRow
{
    CKindSet kinds;
    enUVDB_IDENTIFIER_CASE letterCase;
};

// Order is meaning: the first row that fits decides.
constexpr SCaseRow kPlainGuesses[] = {
    {{UVDB_DB_INFORMIX, UVDB_DB_4GL_INFORMIX}, UVDB_IC_INSENSITIVE},
    {{UVDB_DB_POSTGRESQL, UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM, UVDB_DB_VPOSTGRES}, UVDB_IC_LOWER},
    {{UVDB_DB_CS, UVDB_DB_WINDOWS_PHONE_XNA, UVDB_DB_CPP, UVDB_DB_C, UVDB_DB_OBJECTIVEC, UVDB_DB_IPHONE},
     UVDB_IC_AS_IT_STANDS},
    {CKindSet::All(), UVDB_IC_UPPER},
};

constexpr SCaseRow kQuotedGuesses[] = {
    {{UVDB_DB_MSSQL,        UVDB_DB_SYBASE,   UVDB_DB_MySQL,
      UVDB_DB_PERVASIVE,    UVDB_DB_INFORMIX, UVDB_DB_HIRDB,
      UVDB_DB_ACCESS,       UVDB_DB_ANTS,     UVDB_DB_VISUAL_FOXPRO,
      UVDB_DB_CPP_RC,       UVDB_DB_TERADATA, UVDB_DB_FIREBIRD,
      UVDB_DB_CACHE,        UVDB_DB_INGRES,   UVDB_DB_NUODB,
      UVDB_DB_JAVA_GWT,     UVDB_DB_JAVA_FX,  UVDB_DB_MySQL_GOOGLE_CLOUD_SQL,
      UVDB_DB_REDSHIFT,     UVDB_DB_FOXPRO,   UVDB_DB_4GL_INFORMIX,
      UVDB_DB_4GL_PROGRESS, UVDB_DB_PLI,      static_cast<enUVDB_DATABASE>(UVDB_UNKNOWN_DATABASE_KIND),
      UVDB_DB_SingleStoreDB},
     UVDB_IC_INSENSITIVE},
    {CKindSet::All(), UVDB_IC_AS_IT_STANDS},
};

// Kinds that decide the case of plain names themselves; the others follow the case rule at hand.
constexpr SCaseRow kPlainCases[] = {
    {{UVDB_DB_MySQL, UVDB_DB_SingleStoreDB, UVDB_DB_MSSQL, UVDB_DB_SYBASE, UVDB_DB_ACCESS, UVDB_DB_INGRES},
     UVDB_IC_AS_IT_STANDS},
    {{UVDB_DB_DB2, UVDB_DB_ORA, UVDB_DB_SAP_HANA}, UVDB_IC_UPPER},
};

// Marks that are known at the front of a name, whatever the database's own are.
struct SKnownQuote
{
    CKindSet kinds;
    const char* quote;
};

constexpr SKnownQuote kKnownQuotes[] = {
    {{UVDB_DB_MSSQL, UVDB_DB_SYBASE}, "["},
    {{UVDB_DB_MySQL, UVDB_DB_SingleStoreDB, UVDB_DB_INGRES, UVDB_DB_ACCESS}, "`"},
    {CKindSet::All(), "\""},
};

long GuessOf(std::span<const SCaseRow> rows, const DB_VERSION_INFO& version)
{
    return std::ranges::find_if(rows, [&](const SCaseRow& row) { return row.kinds.Has(version.db); })
        ->letterCase;
}

void Fold(Uve::U8CString& name, long letterCase)
{
    if (letterCase == UVDB_IC_UPPER)
        name.MakeUpper();
    else if (letterCase == UVDB_IC_LOWER)
        name.MakeLower();
}

} // namespace

long UVDBGetIdentifierCaseGuess(DB_VERSION_INFO version)
{
    return GuessOf(kPlainGuesses, version);
}

long UVDBGetQuotedIdentifierCaseGuess(DB_VERSION_INFO version)
{
    if (version.db == UVDB_DB_DB2 && version.subType == 0)
        return UVDB_IC_INSENSITIVE;
    return GuessOf(kQuotedGuesses, version);
}

Uve::U8CString NormalizeRegularIdentifier(const char* name, DB_VERSION_INFO target, DB_VERSION_INFO source,
                                          long identifierCase)
{
    Uve::U8CString result(name);
    if (source.db == UVDB_DB_HIRDB)
        return result;
    const auto row =
        std::ranges::find_if(kPlainCases, [&](const SCaseRow& rule) { return rule.kinds.Has(target.db); });
    Fold(result, row != std::end(kPlainCases) ? row->letterCase : identifierCase);
    return result;
}

Uve::U8CString NormalizeQuotedIdentifier(const char* name, DB_VERSION_INFO /*version*/, long identifierCase,
                                         const char* quote)
{
    std::string_view bare(name ? name : "");
    const std::size_t quoteBytes = quote ? std::string_view(quote).size() : 0;
    bare.remove_prefix(std::min(quoteBytes, bare.size()));
    bare.remove_suffix(std::min(quoteBytes, bare.size()));
    Uve::U8CString result(bare);
    Fold(result, identifierCase);
    return result;
}

Uve::U8CString NormalizeIdentifier(const char* name, DB_VERSION_INFO target, DB_VERSION_INFO source,
                                   long identifierCase, const char* quote, long quotedCase)
{
    if (IsIdentifierQuoted(name, target, quote))
        return NormalizeQuotedIdentifier(name, target, quotedCase, quote);
    const auto known = std::ranges::find_if(kKnownQuotes, [&](const SKnownQuote& candidate) {
        return candidate.kinds.Has(target.db) && IsIdentifierQuoted(name, target, candidate.quote);
    });
    if (known != std::end(kKnownQuotes))
        return NormalizeQuotedIdentifier(name, target, quotedCase, known->quote);
    return NormalizeRegularIdentifier(name, target, source, identifierCase);
}
