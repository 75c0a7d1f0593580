#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/Identifiers/UVDBReservedWords.h"
#include "Catalogue/UVDBRowConditions.h"
#include "Names/NormalizeName.h"
#include "Names/NormalizeNameConversion.h"
#include "Names/NormalizeNameKinds.h"
#include "Names/NormalizeNameOptions.h"
#include "UVEnvironment/LogSystem.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

namespace {

constexpr const char* kTemporary = "temp";
constexpr const char* kNothingLeft = "empty";
constexpr const char* kWordPrefix = "rw";

// Schemas that are the same thing under another name in the target.
struct SSchemaMapping
{
    std::uint64_t source;
    std::uint64_t subType; // of the source
    CKindSet targets;
    const char* from;
    bool isCaseIgnored;
    bool needsEmptySchema; // only with EMPTY_SCHEMA above 0
    const char* to;
};

constexpr std::uint64_t kAnywhere = UVDB_SYBASE_ADAPTIVE_SERVER_ANYWHERE;
constexpr std::uint64_t kEnterprise = UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE;
constexpr std::uint64_t kIq = UVDB_SYBASE_IQ;
constexpr std::uint64_t kUnnamedSybase = 2; // a subtype without a name

// clang-format off
constexpr SSchemaMapping kSchemaMappings[] = {
//   source            subtype         targets          from        nocase empty  to
    {UVDB_DB_SYBASE,   kAnywhere,      {UVDB_DB_MSSQL}, "dba",      true,  false, "dbo"},
    {UVDB_DB_SYBASE,   kUnnamedSybase, {UVDB_DB_MSSQL}, "dba",      true,  false, "dbo"},
    {UVDB_DB_SYBASE,   kIq,            {UVDB_DB_MSSQL}, "dba",      true,  false, "dbo"},
    {UVDB_DB_SYBASE,   kEnterprise,    kMySqlLike,      "dbo",      false, false, kAbsentNamePart},
    {UVDB_DB_INFORMIX, kAnySubType,    {UVDB_DB_MSSQL}, "informix", false, true,  "dbo"},
    {UVDB_DB_INFORMIX, kAnySubType,    {UVDB_DB_ORA},   "informix", false, false, kAbsentNamePart},
    {UVDB_DB_MSSQL,    kAnySubType,    kMySqlLike,      "dbo",      false, true,  kAbsentNamePart},
};
// clang-format on

// What a generator of dynamic SQL puts around the expressions in a name.
constexpr std::pair<std::string_view, std::string_view> kDynamicMarkers[] = {{"* SDynId", "* EDynId"},
                                                                             {"* SDynExp", "* EDynExp"}};

bool IsAsciiLetter(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool IsAsciiDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

bool IsAlphanumeric(char byte)
{
    return IsAsciiLetter(byte) || IsAsciiDigit(byte);
}

bool IsConsonantRuleKept(char byte)
{
    return std::string_view("AEIOUYaeiouy").find(byte) == std::string_view::npos;
}

bool IsContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// `name` without the characters that `isKept` refuses by their first byte, from byte `from` on. With `stops`
// it ends as soon as `limit` characters are left.
template <class CIsKept>
Uve::U8CString DropCharacters(const Uve::U8CString& name, std::size_t from, long limit, bool stops,
                              CIsKept isKept)
{
    Uve::U8CString result(name.data(), from);
    long length = name.GetLength();
    for (std::size_t at = from; at < name.size();) {
        std::size_t end = at + 1;
        while (end < name.size() && IsContinuation(name[end]))
            ++end;
        if (isKept(name[at]) || (stops && length <= limit))
            result.append(name, at, end - at);
        else
            --length;
        at = end;
    }
    return result;
}

} // namespace

bool HasDynamicMarkers(const Uve::U8CString& name)
{
    return std::ranges::any_of(kDynamicMarkers, [&](const auto& markers) {
        return name.find(markers.first) != std::string::npos &&
               name.find(markers.second) != std::string::npos;
    });
}

Uve::U8CString CutName(const Uve::U8CString& name, std::size_t keptBytes, long limit, bool isLeftTrim,
                       bool countsBytes)
{
    const Uve::U8CString head(name.data(), isLeftTrim ? keptBytes : 0);
    Uve::U8CString rest(name.data() + head.size(), name.size() - head.size());
    if (!countsBytes) {
        const auto room = static_cast<int>(std::max<long>(limit - head.GetLength(), 0));
        return head + (isLeftTrim ? rest.Right(room) : rest.Left(room));
    }
    const std::size_t room =
        static_cast<std::size_t>(std::max<long>(limit - static_cast<long>(head.size()), 0));
    if (rest.size() <= room)
        return head + rest;
    if (isLeftTrim) {
        std::size_t from = rest.size() - room;
        while (from < rest.size() && IsContinuation(rest[from]))
            ++from;
        rest.erase(0u, from);
    } else {
        std::size_t end = room;
        while (end > 0 && IsContinuation(rest[end]))
            --end;
        rest.resize(end);
    }
    return head + rest;
}

// The steps of ConvertIdentifier, on the part that is being converted.
struct CNormalizeName::SConversion
{
    CNormalizeName& normaliser;
    const unsigned long type;
    Uve::U8CString name;
    unsigned long& flags;
    const Uve::U8CString& kindText;

    const DB_VERSION_INFO source = normaliser.m_SourceVersion;
    const DB_VERSION_INFO target = normaliser.m_TargetVersion;
    const bool isPackageASchema = Option<bool>("CONVERT_PACKAGE_TO_SCHEMA");
    const int emptySchema = Option<int>("EMPTY_SCHEMA");
    long limit = 0;          // of the length; none for 0 and below
    Uve::U8CString prefix{}; // of a variable

    template <class T>
    T Option(const char* optionName) const
    {
        return ReadNameOption<T>(normaliser.m_Source, normaliser.m_Target, optionName);
    }

    bool IsTemporaryTable() const { return type == UVDB_DBO_TABLE && kindText == kTemporary; }

    // The bytes of the variable prefix that the name still starts with.
    std::size_t PrefixBytes() const { return name.starts_with(prefix) ? prefix.size() : 0; }

    // True if the name is settled: omitted, or the schema that everything goes to.
    bool TakeFixedSchema();
    bool MapSchema();
    void TakeLimit();
    void ApplyColumnCase();
    void ApplyVariablePrefix();
    void RepairCharacters();
    void TakeNothingLeft();
    void ApplyTrimRules();
    void Cut();
    void FinishForTarget();
    void MarkTemporaryTable();

    // Returns: true for a schema that the rules have settled.
    bool Run();
};

bool CNormalizeName::SConversion::TakeFixedSchema()
{
    if (type != UVDB_DBO_SCHEMA)
        return false;
    if (!isPackageASchema && normaliser.OmitSchemaOption(name)) {
        if (name != kAbsentNamePart)
            flags |= UVDB_NAME_SCHEMA_OMITTED;
        name = kAbsentNamePart;
        return true;
    }
    if (normaliser.m_TargetSchema.empty())
        return false;
    if (source.db == UVDB_DB_MSSQL && Option<bool>("CONVERT_DBO_SCHEMA_ONLY")) {
        if (name.CollateNoCase("dbo") != 0 && name != kAbsentNamePart)
            return false;
    } else if (target.db == UVDB_DB_MSSQL && source.db == UVDB_DB_INFORMIX && kindText == kTemporary) {
        return false;
    }
    name = normaliser.m_TargetSchema;
    return true;
}

bool CNormalizeName::SConversion::MapSchema()
{
    if (type != UVDB_DBO_SCHEMA)
        return false;
    for (const SSchemaMapping& mapping : kSchemaMappings) {
        const bool isName =
            mapping.isCaseIgnored ? name.CollateNoCase(mapping.from) == 0 : name == mapping.from;
        if (source.db == mapping.source && FitsSubType(mapping.subType, source.subType) &&
            mapping.targets.Has(target.db) && isName && (!mapping.needsEmptySchema || emptySchema > 0)) {
            name = mapping.to;
            return true;
        }
    }
    if (source.db == UVDB_DB_DB2 && name.find('.') != std::string::npos)
        name = GetDBMSEncloseCharOpen(target) + name + GetDBMSEncloseCharClose(target);
    return false;
}

void CNormalizeName::SConversion::TakeLimit()
{
    if (type == UVDB_DBO_SCHEMA)
        limit = GetDBMSMaxIdentifierSize(type, target, "");
    else if (source.db == UVDB_DB_MSSQL && HasDynamicMarkers(name))
        limit = 0; // a cut marker would swallow the statement after it
    else
        limit = GetDBMSMaxIdentifierSize(type, target, kindText.c_str());
}

void CNormalizeName::SConversion::ApplyColumnCase()
{
    if (type != UVDB_DBO_COLUMN)
        return;
    if (normaliser.m_ColumnCase == UVDB_IC_UPPER)
        name.MakeUpper();
    else if (normaliser.m_ColumnCase == UVDB_IC_LOWER)
        name.MakeLower();
}

void CNormalizeName::SConversion::ApplyVariablePrefix()
{
    if (type != UVDB_DBO_VARIABLE)
        return;
    const Uve::U8CString sourcePrefix = DBMSVariablePrefix(source);
    prefix = DBMSVariablePrefix(target);
    const bool losesSigil = prefix.empty() && !sourcePrefix.empty() && name.starts_with(sourcePrefix);
    // A variable of Firebird has no sigil, and would meet the columns there.
    const bool needsOne =
        source.db == UVDB_DB_FIREBIRD && (target.db == UVDB_DB_ORA || target.db == UVDB_DB_POSTGRESQL);
    if (needsOne || (losesSigil && !kBareVariables.Has(target.db)))
        prefix = normaliser.m_VariablePrefix;
    name = prefix + normaliser.TrimVariablePrefix(TrimDelimited(name));
}

void CNormalizeName::SConversion::RepairCharacters()
{
    if (name.empty()) {
        TakeNothingLeft();
        return;
    }
    // Digits alone are the number of something, and stay one.
    if (!std::ranges::all_of(std::string_view(name), IsAsciiDigit)) {
        Uve::U8CString repaired = normaliser.RemoveNotAllowedCharFPos(name, type);
        if (repaired != name)
            flags |= UVDB_NAME_FIRST_CHARACTER;
        name = std::move(repaired);
    }
    Uve::U8CString repaired = normaliser.RemoveNotAllowedChar(name, type);
    if (repaired != name)
        flags |= UVDB_NAME_CHARACTERS;
    name = std::move(repaired);
    if (name.empty())
        name = kNothingLeft;
}

// For names of nothing but marks or blanks.
void CNormalizeName::SConversion::TakeNothingLeft()
{
    name = kNothingLeft;
    flags |= UVDB_NAME_CHARACTERS;
}

void CNormalizeName::SConversion::ApplyTrimRules()
{
    if (!normaliser.m_IsTrimming || limit <= 0)
        return;
    const auto apply = [this](bool stops, auto isKept) {
        const std::size_t kept = PrefixBytes();
        Uve::U8CString shorter = DropCharacters(name, kept, limit, stops, isKept);
        if (shorter.size() == kept) {
            CLogWrapper::WriteTrace("\nConvertIdentifier: incorrect identifier.\n");
            return;
        }
        if (shorter.size() != name.size())
            flags |= UVDB_NAME_TOO_LONG;
        name = std::move(shorter);
    };
    if (normaliser.m_IsAlphanumOnly && name.GetLength() > limit)
        apply(normaliser.m_IsAlphanumStop, IsAlphanumeric);
    if (normaliser.m_IsConsonantsOnly && name.GetLength() > limit)
        apply(normaliser.m_IsConsonantsStop, IsConsonantRuleKept);
}

void CNormalizeName::SConversion::Cut()
{
    if (!normaliser.m_IsTrimming || limit <= 0)
        return;
    const bool countsBytes = target.db == UVDB_DB_POSTGRESQL;
    const long length = countsBytes ? static_cast<long>(name.size()) : name.GetLength();
    if (length <= limit)
        return;
    flags |= UVDB_NAME_TOO_LONG;
    name = CutName(name, PrefixBytes(), limit, normaliser.m_IsLeftTrim, countsBytes);
}

void CNormalizeName::SConversion::FinishForTarget()
{
    if (target.db == UVDB_DB_CS && source.db != UVDB_DB_CS && IsReservedWord(name, target))
        name = kWordPrefix + name;

    const bool isBlankTrimmed = type == UVDB_DBO_COLUMN || type == UVDB_DBO_VARIABLE ||
                                (type == UVDB_DBO_ALIAS && kindText == "view");
    if (isBlankTrimmed && !normaliser.m_IsKeepingBlanks && kMySqlLike.Has(target.db) &&
        name.TrimRight(" ").empty())
        TakeNothingLeft();
    name = normaliser.ConvertReservedWord(type, name);
}

void CNormalizeName::SConversion::MarkTemporaryTable()
{
    if (!IsTemporaryTable())
        return;
    flags |= UVDB_NAME_TEMPORARY_TABLE;
    const bool keepsName = target.db == UVDB_DB_MySQL || target.db == UVDB_DB_SingleStoreDB ||
                           (target.db == UVDB_DB_ORA && source.db == UVDB_DB_SYBASE &&
                            source.subType == UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE);
    if (keepsName)
        return;
    if (source.db == UVDB_DB_DB2)
        name = "##" + name;
    else if (!name.starts_with('#'))
        name = "#" + name;
}

bool CNormalizeName::SConversion::Run()
{
    if (IsTemporaryTable())
        name.Delete(0, kTemporaryTableMarkLength);
    if (TakeFixedSchema())
        return true;
    if (name == kAbsentNamePart)
        return false;
    name = UnEscIdentifier(source, name);
    if (MapSchema())
        return true;
    TakeLimit();
    ApplyColumnCase();
    ApplyVariablePrefix();
    RepairCharacters();
    ApplyTrimRules();
    Cut();
    FinishForTarget();
    MarkTemporaryTable();
    return false;
}

Uve::U8CString CNormalizeName::ConvertIdentifier(int, unsigned long type, Uve::U8CString name,
                                                 unsigned long& flags, const Uve::U8CString& kindText)
{
    bool isSettled = false;
    return ConvertPart(type, std::move(name), flags, kindText, isSettled);
}

Uve::U8CString CNormalizeName::ConvertPart(unsigned long type, Uve::U8CString name, unsigned long& flags,
                                           const Uve::U8CString& kindText, bool& isSettled)
{
    SConversion conversion{*this, type, std::move(name), flags, kindText};
    isSettled = conversion.Run();
    return std::move(conversion.name);
}

Uve::U8CString CNormalizeName::ConvertReservedWord(unsigned long type, const Uve::U8CString& name) const
{
    if (m_SourceVersion.db == m_TargetVersion.db || type != UVDB_DBO_VARIABLE ||
        !IsReservedWord(name, m_TargetVersion))
        return name;
    if (!kQuotedVariables.Has(m_TargetVersion.db))
        return name + "2";
    Uve::U8CString quoted = name;
    if (m_TargetVersion.db == UVDB_DB_POSTGRESQL)
        quoted.MakeUpper();
    return '"' + quoted + '"';
}

Uve::U8CString CNormalizeName::TrimVariablePrefix(Uve::U8CString name) const
{
    const Uve::U8CString prefix = DBMSVariablePrefix(m_SourceVersion);
    if (!prefix.empty() && name.starts_with(prefix))
        name.erase(0u, prefix.size());
    return name;
}

bool CNormalizeName::IsReservedWord(const Uve::U8CString& name, DB_VERSION_INFO version)
{
    return UVDBIsReservedWord(name, version);
}

void CNormalizeName::QuoteSaphanaIdentifier(Uve::U8CString& schema, Uve::U8CString& object,
                                            Uve::U8CString& sub) const
{
    if (m_TargetVersion.db != UVDB_DB_SAP_HANA ||
        !ReadNameOption<bool>(m_Source, m_Target, "SAPHANA_QUOTED_IDENTIFIERS"))
        return;
    for (Uve::U8CString* part : {&schema, &object, &sub}) {
        if (ContainsLower(*part))
            *part = '"' + *part + '"';
    }
}
