#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/UVDBKindSet.h"
#include "UVEnvironment/UVECharacter.h"
#include "UVEnvironment/UVEEncoding.h"
#include "UVEnvironment/UVEUnicode.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace {

constexpr unsigned long kAnyType = ~0ul;

// What a place in a name takes beside letters and digits.
struct SCharactersRow
{
    CKindSet kinds;
    unsigned long objectType = kAnyType;
    std::string_view allowed;
    bool isRefusal = false; // turned round: everything but `allowed`
};

// Order is meaning: the first row that fits decides.
// clang-format off
constexpr SCharactersRow kInside[] = {
    {{UVDB_DB_MSSQL, UVDB_DB_SYBASE, UVDB_DB_INTERBASE, UVDB_DB_FIREBIRD}, kAnyType, "#$@_"},
    {{UVDB_DB_ORA}, kAnyType, "#$_"},
    {{UVDB_DB_MySQL, UVDB_DB_INFORMIX, UVDB_DB_POSTGRESQL, UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM,
      UVDB_DB_ANTS, UVDB_DB_SOLID, UVDB_DB_VPOSTGRES, UVDB_DB_INGRES, UVDB_DB_4GL_INFORMIX, UVDB_DB_4GL_SEA,
      UVDB_DB_SingleStoreDB}, kAnyType, "_$"},
    {{UVDB_DB_TERADATA, UVDB_DB_SEABASE}, UVDB_DBO_VARIABLE, "_:"},
    // a sheet's name is nearly free text, with blanks in it
    {{UVDB_DB_EXCEL}, kAnyType, "~@#$%^&*_-+=\\}{\"';:?/><,.![]|", true},
    {CKindSet::All(), kAnyType, "_"},
};

constexpr SCharactersRow kFirst[] = {
    {{UVDB_DB_MSSQL, UVDB_DB_SYBASE}, UVDB_DBO_VARIABLE, "#@_"},
    {{UVDB_DB_ORA, UVDB_DB_INTERBASE, UVDB_DB_FIREBIRD}, UVDB_DBO_VARIABLE, ":"},
    {{UVDB_DB_TERADATA, UVDB_DB_SEABASE}, UVDB_DBO_VARIABLE, "_:"},
    {{UVDB_DB_TERADATA, UVDB_DB_SEABASE}, kAnyType, "_"},
    {{UVDB_DB_CPP, UVDB_DB_C, UVDB_DB_OBJECTIVEC, UVDB_DB_IPHONE}, kAnyType, "_"},
    {CKindSet::All(), kAnyType, ""},
};
// clang-format on

// Kinds that take a character beyond ASCII only where the locale's rule takes it as well.
constexpr CKindSet kStrictKinds{UVDB_DB_DB2, UVDB_DB_ORA, UVDB_DB_MSSQL, UVDB_DB_POSTGRESQL};

enum class enPlace
{
    First,
    Inside
};

bool IsInTable(enPlace place, const DB_VERSION_INFO& version, unsigned long objectType,
               unsigned int codePoint)
{
    const auto fits = [&](const SCharactersRow& row) {
        return row.kinds.Has(version.db) && (row.objectType == kAnyType || row.objectType == objectType);
    };
    const SCharactersRow& row =
        place == enPlace::First ? *std::ranges::find_if(kFirst, fits) : *std::ranges::find_if(kInside, fits);
    const bool isListed =
        codePoint < 0x80 && row.allowed.find(static_cast<char>(codePoint)) != std::string_view::npos;
    return isListed != row.isRefusal;
}

bool IsWideLetter(unsigned int codePoint, enPlace place)
{
    return Uve::UChar::iswalpha(codePoint) || (place == enPlace::Inside && Uve::UChar::iswdigit(codePoint));
}

bool IsRefused(enPlace place, const DB_VERSION_INFO& version, unsigned long objectType, int ch,
               const std::string& locale, bool unicodePage)
{
    if (ch < 0)
        return true;
    const auto codePoint = static_cast<unsigned int>(ch);
    const bool hasLocale = !locale.empty() || UVDB::DoesCodePageRequireUnicode(unicodePage);
    if (codePoint > 0x7F && !hasLocale)
        return true;
    return !IsWideLetter(codePoint, place) && !IsInTable(place, version, objectType, codePoint);
}

bool IsRefusedUtf8(enPlace place, const DB_VERSION_INFO& version, unsigned long objectType,
                   unsigned int codePoint, const std::string& locale, bool unicodePage)
{
    if (codePoint <= 0x7F)
        return IsRefused(place, version, objectType, static_cast<int>(codePoint), locale, unicodePage);
    if (codePoint <= 256)
        return true;
    if (kStrictKinds.Has(version.db) &&
        IsRefused(place, version, objectType, static_cast<int>(codePoint), locale, unicodePage))
        return true;
    const bool isDigit = Uve::UnicodeToType(codePoint) == Uve::UNICODE_DECIMAL_NUMBER;
    if ((place == enPlace::Inside || !isDigit) && Uve::UChar::iswalnum_l(codePoint))
        return false;
    return !IsInTable(place, version, objectType, codePoint);
}

// ---- What a name can't hold at all ----

struct SForbiddenRow
{
    CKindSet kinds;
    unsigned long objectType = kAnyType;
    std::string_view characters;
    bool trimsRight = false;
};

constexpr SForbiddenRow kForbidden[] = {
    {{UVDB_DB_MSSQL}, UVDB_DBO_COLUMN, "", true},
    // tables are files there
    {{UVDB_DB_MySQL, UVDB_DB_SingleStoreDB, UVDB_DB_INGRES}, UVDB_DBO_TABLE, ".\\/:*?\"<>|[]'`;"},
};

} // namespace

bool IsDBMSNotAllowedChar(DB_VERSION_INFO version, unsigned long objectType, int ch,
                          const std::string& locale, bool unicodePage)
{
    return IsRefused(enPlace::Inside, version, objectType, ch, locale, unicodePage);
}

bool IsDBMSNotAllowedCharFPos(DB_VERSION_INFO version, unsigned long objectType, int ch,
                              const std::string& locale, bool unicodePage)
{
    return IsRefused(enPlace::First, version, objectType, ch, locale, unicodePage);
}

bool IsDBMSNotAllowedCharUtf8(DB_VERSION_INFO version, unsigned long objectType, unsigned int codePoint,
                              const std::string& locale, bool unicodePage)
{
    return IsRefusedUtf8(enPlace::Inside, version, objectType, codePoint, locale, unicodePage);
}

bool IsDBMSNotAllowedCharFPosUtf8(DB_VERSION_INFO version, unsigned long objectType, unsigned int codePoint,
                                  const std::string& locale)
{
    return IsRefusedUtf8(enPlace::First, version, objectType, codePoint, locale, false);
}

bool IsIdentifierInUtf8(const Uve::U8CString& text)
{
    const std::string_view bytes(text);
    return !Uve::utf8_is_ascii(bytes) && UVDB::IsValidUTF8(bytes);
}

Uve::U8CString DeleteNotValidChar(Uve::U8CString name, unsigned long objectType, DB_VERSION_INFO version)
{
    const auto row = std::ranges::find_if(kForbidden, [&](const SForbiddenRow& candidate) {
        return candidate.kinds.Has(version.db) && candidate.objectType == objectType;
    });
    if (row == std::end(kForbidden))
        return name;
    // All of them are ASCII, and no byte of a longer sequence is.
    std::erase_if(static_cast<std::string&>(name),
                  [&](char c) { return row->characters.find(c) != std::string_view::npos; });
    name.GetBuffer();
    if (row->trimsRight)
        name.TrimRight();
    return name;
}
