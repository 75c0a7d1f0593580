#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/UVDBKindSet.h"
#include "Catalogue/UVDBRowConditions.h"
#include "Names/NormalizeName.h"
#include "Names/NormalizeNameConversion.h"
#include "Names/NormalizeNameFree.h"
#include "Names/NormalizeNameKinds.h"
#include "Names/NormalizeNameOptions.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

namespace {

// The place of a constraint's table in its path.
constexpr std::size_t kConstraintTableIndex = 2;
constexpr const char* kConstraintTable = "1_CONSTRAINT_TABLE";

// A name that is taken, but not in the way: the target keeps these two apart, or the source calls one thing
// by both.
struct SSharedName
{
    CKindSet sources;
    std::uint64_t subType; // of the source
    CKindSet targets;
    int type;
    int storedType;
};
constexpr CKindSet kAll = CKindSet::All();
constexpr std::uint64_t kAs400 = UVDB_DB2_UDB_FOR_AS400_AND_iSERIES;

// clang-format off
constexpr SSharedName kSharedNames[] = {
//   sources               subtype      targets        type              stored
    {{UVDB_DB_POSTGRESQL}, kAnySubType, {UVDB_DB_ORA}, UVDB_DBO_TRIGGER, UVDB_DBO_FUNCTION},
    {kAll,                 kAnySubType, {UVDB_DB_ORA}, UVDB_DBO_INDEX,   UVDB_DBO_REFERENCES_CONSTRAINT},
    {{UVDB_DB_DB2},        kAs400,      kAll,          UVDB_DBO_TABLE,   UVDB_DBO_TABLE},
    {{UVDB_DB_INFORMIX},   kAnySubType, kAll,          UVDB_DBO_TABLE,   UVDB_DBO_SYNONYM},
    {{UVDB_DB_INFORMIX},   kAnySubType, kAll,          UVDB_DBO_COLUMN,  UVDB_DBO_TABLE},
    {{UVDB_DB_INFORMIX},   kAnySubType, kAll,          UVDB_DBO_SYNONYM, UVDB_DBO_COLUMN},
    {{UVDB_DB_INFORMIX},   kAnySubType, kAll,          UVDB_DBO_SYNONYM, UVDB_DBO_TABLE},
};
// clang-format on

// Puts a number after a name, inside its marks if it has some. A name that gets too long loses its end; 0
// and below are no limit.
Uve::U8CString NumberName(const Uve::U8CString& base, int number, long limit, bool countsBytes,
                          DB_VERSION_INFO version)
{
    const Uve::U8CString digits = Uve::U8CString(std::to_string(number));
    const Uve::U8CString close = GetDBMSEncloseCharClose(version);
    const bool isWrapped = !close.empty() && base.size() > close.size() + 1 &&
                           base.starts_with(GetDBMSEncloseCharOpen(version)) && base.ends_with(close);
    const Uve::U8CString tail = isWrapped ? digits + close : digits;
    Uve::U8CString head = isWrapped ? Uve::U8CString(base.data(), base.size() - close.size()) : base;

    const long headLength = countsBytes ? static_cast<long>(head.size()) : head.GetLength();
    const auto tailLength = static_cast<long>(tail.size());
    if (limit > 0 && headLength + tailLength > limit)
        head = CutName(head, 0, limit - tailLength, false, countsBytes);
    return head + tail;
}

} // namespace

// Looks for the first free one among a name and the name with 2, 3, 4 after it.
class CNormalizeName::CFreeNameSearch
{
public:
    CFreeNameSearch(CNormalizeName& normaliser, const std::vector<int>& path, std::string_view prefix)
        : m_Normaliser(normaliser), m_Path(path), m_Prefix(prefix), m_Type(path.back()),
          m_Source(normaliser.m_SourceVersion), m_Target(normaliser.m_TargetVersion),
          m_KeepsRawParts(ReadNameOption<bool>(normaliser.m_Source, normaliser.m_Target, "QUOTE_IDENTIFIERS"))
    {}

    SFreeName Run(std::vector<Uve::U8CString> parts, unsigned long& flags);

private:
    std::vector<Uve::U8CString> KeyOf(const std::vector<Uve::U8CString>& parts) const;
    Uve::U8CString KeyPart(const Uve::U8CString& part, int type) const;
    // The record that stands in the way of the key, in either name space of a key and its index.
    bool FindTaken(const std::vector<Uve::U8CString>& key, CConvertedName& record) const;
    bool IsFree(const std::vector<Uve::U8CString>& key) const;
    bool IsNameOfSource(const std::vector<Uve::U8CString>& parts) const;
    bool IsShared(int storedType) const;

    bool Has(const Repositary2& names, const std::vector<int>& path, const std::vector<Uve::U8CString>& key,
             CConvertedName& record) const
    {
        return names.GetObjectStr(path, key, record, m_Prefix, m_Prefix.size());
    }

    CNormalizeName& m_Normaliser;
    const std::vector<int>& m_Path;
    const std::string_view m_Prefix;
    const int m_Type;
    const DB_VERSION_INFO m_Source;
    const DB_VERSION_INFO m_Target;
    const bool m_KeepsRawParts;
};

Uve::U8CString CNormalizeName::CFreeNameSearch::KeyPart(const Uve::U8CString& part, int type) const
{
    Uve::U8CString marks;
    Uve::U8CString written = m_Normaliser.WriteName(part, static_cast<unsigned long>(type),
                                                    m_Normaliser.m_Target.get(), m_Target, 0, false, marks);
    // The rule of case takes texts that end at a zero, where all numbers would be cut off.
    if (written.find('\0') != std::string::npos)
        return written;
    return NormalizeIdentifier(written.c_str(), m_Target, m_Source, m_Normaliser.m_TargetCase,
                               GetDBMSEncloseCharOpen(m_Target).c_str(), m_Normaliser.m_TargetQuotedCase);
}

std::vector<Uve::U8CString>
CNormalizeName::CFreeNameSearch::KeyOf(const std::vector<Uve::U8CString>& parts) const
{
    std::vector<Uve::U8CString> key = parts;
    for (std::size_t i = 0; !m_KeepsRawParts && i < key.size(); ++i) {
        if (key[i] != kAbsentNamePart)
            key[i] = KeyPart(key[i], m_Path[i]);
    }
    // Constraints of all tables share one name space.
    if (m_Target.db == UVDB_DB_MSSQL && key.size() == 4 && m_Type >= UVDB_DBO_FOREIGN_KEY &&
        m_Type <= UVDB_DBO_COMMENT)
        key[kConstraintTableIndex] = kConstraintTable;
    return key;
}

bool CNormalizeName::CFreeNameSearch::FindTaken(const std::vector<Uve::U8CString>& key,
                                                CConvertedName& record) const
{
    if (Has(m_Normaliser.m_TargetNames, m_Path, key, record))
        return true;
    const bool isIndex = m_Type == UVDB_DBO_INDEX;
    if (!(isIndex || m_Type == UVDB_DBO_PRIMARY_KEY) || !kMySqlLike.Has(m_Target.db))
        return false;
    std::vector<int> other = m_Path;
    other.back() = isIndex ? UVDB_DBO_PRIMARY_KEY : UVDB_DBO_INDEX;
    return Has(m_Normaliser.m_TargetNames, other, key, record);
}

bool CNormalizeName::CFreeNameSearch::IsShared(int storedType) const
{
    return std::ranges::any_of(kSharedNames, [&](const SSharedName& shared) {
        return shared.sources.Has(m_Source.db) && FitsSubType(shared.subType, m_Source.subType) &&
               shared.targets.Has(m_Target.db) && shared.type == m_Type && shared.storedType == storedType;
    });
}

bool CNormalizeName::CFreeNameSearch::IsFree(const std::vector<Uve::U8CString>& key) const
{
    CConvertedName record;
    return !FindTaken(key, record) || IsShared(record.type);
}

bool CNormalizeName::CFreeNameSearch::IsNameOfSource(const std::vector<Uve::U8CString>& parts) const
{
    CConvertedName record;
    return Has(m_Normaliser.m_SourceNames, m_Normaliser.TranslatePath(m_Path), parts, record);
}

CNormalizeName::SFreeName CNormalizeName::CFreeNameSearch::Run(std::vector<Uve::U8CString> parts,
                                                               unsigned long& flags)
{
    std::vector<Uve::U8CString> key = KeyOf(parts);
    if (IsFree(key))
        return {std::move(parts), std::move(key)};

    int& number =
        m_Normaliser.m_LastNumbers.try_emplace(m_Normaliser.m_TargetNames.MakeKey(m_Path, key, m_Prefix), 1)
            .first->second;

    const long limit = m_Normaliser.m_IsTrimming
                           ? GetDBMSMaxIdentifierSize(static_cast<unsigned long>(m_Type), m_Target, "")
                           : 0;
    const Uve::U8CString base = parts.back();
    // A number may not make the name of another object of the source: who looks for that one would find this.
    do {
        parts.back() = NumberName(base, ++number, limit, m_Target.db == UVDB_DB_POSTGRESQL, m_Target);
        key = KeyOf(parts);
    } while (!IsFree(key) || IsNameOfSource(parts));
    flags |= UVDB_NAME_MADE_UNIQUE;
    return {std::move(parts), std::move(key)};
}

CNormalizeName::SFreeName CNormalizeName::FindFreeName(const std::vector<int>& path,
                                                       std::vector<Uve::U8CString> parts,
                                                       std::string_view prefix, unsigned long& flags)
{
    return CFreeNameSearch(*this, path, prefix).Run(std::move(parts), flags);
}

Uve::U8CString CNormalizeName::MakeUniqueName(const std::vector<int>& path, Uve::U8CString name,
                                              std::string_view prefix, std::size_t length,
                                              unsigned long& flags)
{
    if (path.empty())
        return name;
    std::vector<Uve::U8CString> parts = SplitIdentifier(name, m_TargetVersion);
    std::size_t absentCount = 0;
    if (parts.size() < path.size() && (path[0] == UVDB_DBO_SCHEMA || path[0] == UVDB_DBO_DATABASE)) {
        parts.insert(parts.begin(), kAbsentNamePart);
        ++absentCount;
    }
    if (parts.size() < path.size() && path.size() > 1 && path[1] == UVDB_DBO_SCHEMA) {
        parts.insert(parts.begin() + 1, kAbsentNamePart);
        ++absentCount;
    }
    if (parts.size() != path.size())
        return name;

    parts = FindFreeName(path, std::move(parts), prefix.substr(0, length), flags).parts;
    parts.erase(parts.begin(), parts.begin() + static_cast<std::ptrdiff_t>(absentCount));
    return GetIdentidierName(parts);
}
