// What counts as a valid name in each database or language: its length, its characters, what encloses it, the
// case it folds to, how it is cut at its dots. All of it is keyed by the database's version; a kind without a
// rule of its own takes the common one. A version word that nobody knows (all ones) compares as the newest.
//
// Nothing here fails: a null text is an empty one, and malformed UTF-8 is carried along. Object types are
// numbers of enUVDB_DATABASE_OBJECT. All functions are pure and may be called from any thread.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <string>
#include <vector>

// ---- Size ----

// The longest name of an object, in the database's own unit (bytes in PostgreSQL, characters elsewhere).
// `name` is a word about the object; "temp", in any case, means a temporary table.
// Returns: 0 where the database has no such limit.
long GetDBMSMaxIdentifierSize(unsigned long objectType, DB_VERSION_INFO version, const char* name);

// ---- Characters ----

// Whether `ch` may not stand inside a name, and not first in one. Without a locale only ASCII can be allowed;
// with one, whatever its name, letters of all scripts are letters. Where the active code page can't show its
// texts as they stand (`unicodePage` decides for code page 1251), there always is a locale.
bool IsDBMSNotAllowedChar(DB_VERSION_INFO version, unsigned long objectType, int ch,
                          const std::string& locale, bool unicodePage);
bool IsDBMSNotAllowedCharFPos(DB_VERSION_INFO version, unsigned long objectType, int ch,
                              const std::string& locale, bool unicodePage);

// The same for a code point. 128 to 256 are never allowed. Above, letters and digits of all scripts are
// allowed also without a locale, save by the kinds that are strict about it (DB2, Oracle, SQL Server,
// PostgreSQL).
bool IsDBMSNotAllowedCharUtf8(DB_VERSION_INFO version, unsigned long objectType, unsigned int codePoint,
                              const std::string& locale, bool unicodePage);
bool IsDBMSNotAllowedCharFPosUtf8(DB_VERSION_INFO version, unsigned long objectType, unsigned int codePoint,
                                  const std::string& locale);

// Whether the text is well-formed UTF-8 with something beyond ASCII in it.
bool IsIdentifierInUtf8(const Uve::U8CString& text);

// The name without what can't be part of it, however it is enclosed: blanks after a column of SQL Server,
// what no file name may hold in a table of MySQL and its kin.
Uve::U8CString DeleteNotValidChar(Uve::U8CString name, unsigned long objectType, DB_VERSION_INFO version);

// ---- Enclosing marks ----

// What stands around a name that isn't plain: one ASCII character on each side, or nothing.
Uve::U8CString GetDBMSEncloseCharOpen(DB_VERSION_INFO version);
Uve::U8CString GetDBMSEncloseCharClose(DB_VERSION_INFO version);
// The same as a number, 0 for nothing.
int GetDBMSEncloseOpenAsChar(DB_VERSION_INFO version);
int GetDBMSEncloseCloseAsChar(DB_VERSION_INFO version);

// Double the quote inside a name, and make it single again. They act where the closing mark is the double
// quote alone; the text comes without its enclosing marks.
Uve::U8CString EscIdentifier(DB_VERSION_INFO version, Uve::U8CString text);
Uve::U8CString UnEscIdentifier(DB_VERSION_INFO version, Uve::U8CString text);

// Whether the name starts with the quote. An empty quote encloses nothing.
bool IsIdentifierQuoted(const char* name, DB_VERSION_INFO version, const char* quote);

// The name without the pairs around it: "[ and ]", then [ and ], then " and ", each at most once and only as
// a pair.
Uve::U8CString TrimDelimited(Uve::U8CString name);

// ---- Case ----

enum enUVDB_IDENTIFIER_CASE : long
{
    UVDB_IC_UPPER = 1,
    UVDB_IC_LOWER = 2,
    UVDB_IC_AS_IT_STANDS = 3, // kept and compared exactly
    UVDB_IC_INSENSITIVE = 4,  // kept, and compared without regard to case
};

// What the database most likely does with plain and with quoted names, as long as it can't be asked.
// Returns: a number of enUVDB_IDENTIFIER_CASE.
long UVDBGetIdentifierCaseGuess(DB_VERSION_INFO version);
long UVDBGetQuotedIdentifierCaseGuess(DB_VERSION_INFO version);

// A plain name of `source` in the case of `target`. The kind of the target decides, and `identifierCase`
// where it has no opinion: upper and lower fold, everything else keeps the name.
Uve::U8CString NormalizeRegularIdentifier(const char* name, DB_VERSION_INFO target, DB_VERSION_INFO source,
                                          long identifierCase);

// A quoted name without its quotes, as many bytes on either side as `quote` has, in the case given.
Uve::U8CString NormalizeQuotedIdentifier(const char* name, DB_VERSION_INFO version, long identifierCase,
                                         const char* quote);

// Either of the two, by what the name starts with: `quote`, or an enclosing mark of the target.
Uve::U8CString NormalizeIdentifier(const char* name, DB_VERSION_INFO target, DB_VERSION_INFO source,
                                   long identifierCase, const char* quote, long quotedCase);

// ---- Splitting ----

// Cuts "a.b.c" into the owner "a.b" and the table "c". A dot inside enclosing marks doesn't separate; the
// marks stay. A closing mark counts before a dot and at the end only, so that doubled ones pass. The
// outputs may be the input.
void SplitTableName(const Uve::U8CString& full, Uve::U8CString& owner, Uve::U8CString& table,
                    DB_VERSION_INFO version);

// The same; where the text has no owner and the database has schemas, `owner` takes its place.
void SplitTableNameWithOwner(Uve::U8CString owner, const Uve::U8CString& full, Uve::U8CString& outOwner,
                             Uve::U8CString& table, DB_VERSION_INFO version);

// All parts, leftmost first, as SplitTableName gives them when its owner is cut again and again: empty parts
// in front are left out.
// Returns: at least one part.
std::vector<Uve::U8CString> SplitObjectName(const Uve::U8CString& name, const DB_VERSION_INFO& version);

// The last part.
void GetOnlyColumnName(const Uve::U8CString& full, Uve::U8CString& column, DB_VERSION_INFO version);

// ---- Other texts ----

// What ends a statement; empty where the caller's frame does that.
Uve::U8CString GetDBMStatementDelimeter(DB_VERSION_INFO version);

// What a variable's name starts with.
Uve::U8CString DBMSVariablePrefix(DB_VERSION_INFO version);

// The schema of an object that names none; empty where that is the user's own.
Uve::U8CString GetDefaultSchema(DB_VERSION_INFO version);

// False for names that the catalogue shows as schemas, but that own no objects of the user.
bool UVDBIsValidSchemaName(DB_VERSION_INFO version, const Uve::U8CString& name);

// The table types to ask the driver's catalogue for, separated by commas.
Uve::U8CString GetUVDBDBTableType(unsigned long db, unsigned long subType);
