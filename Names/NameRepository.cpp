#include "Names/NameRepository.h"

#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Names/NameSpaceRows.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <utility>

namespace {

// What every database has: parents of children, whatever its kind.
struct SRelation
{
    int parent;
    CObjectTypeSet children;
};
constexpr SRelation kCommonRelations[] = {
    {UVDB_DBO_CLASS, {UVDB_DBO_ALIAS}},
    {UVDB_DBO_STORED_PROCEDURE, {UVDB_DBO_LABEL, UVDB_DBO_CURSOR, UVDB_DBO_VARIABLE}},
    {UVDB_DBO_USER_ACCOUNT, {UVDB_DBO_CURSOR, UVDB_DBO_VARIABLE}},
    {UVDB_DBO_SEQUENCE, {UVDB_DBO_CURSOR, UVDB_DBO_VARIABLE}},
    {UVDB_DBO_FUNCTION, {UVDB_DBO_CURSOR, UVDB_DBO_VARIABLE}},
    {UVDB_DBO_TRIGGER, {UVDB_DBO_CURSOR, UVDB_DBO_VARIABLE}},
    {UVDB_DBO_PACKAGE, {UVDB_DBO_CURSOR, UVDB_DBO_VARIABLE}},
};
constexpr std::uint64_t kKindWithoutDatabases = UVDB_DB_PROGRESS;

bool IsAsciiLower(char byte)
{
    return byte >= 'a' && byte <= 'z';
}

void AppendUpper(const Uve::U8CString& name, std::string& text)
{
    if (std::ranges::any_of(name, [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; })) {
        text += Uve::U8CString(name).MakeUpper();
        return;
    }
    const std::size_t start = text.size();
    text += name;
    if (ContainsLower(name)) {
        std::transform(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(),
                       text.begin() + static_cast<std::ptrdiff_t>(start), [](char byte) {
                           return IsAsciiLower(byte) ? static_cast<char>(byte - 'a' + 'A') : byte;
                       });
    }
}

void AppendName(const Uve::U8CString& name, bool foldsCase, std::string& text)
{
    if (foldsCase)
        AppendUpper(name, text);
    else
        text += name;
}

// Note: places
// A place is the number of types above an object, then each of these types with the size of its name and the
// name, then the prefix. Numbers are as the machine has them.
using PlaceNumber = std::int32_t;

void AppendPlaceNumber(std::size_t number, std::string& place)
{
    const auto value = static_cast<PlaceNumber>(number);
    place.append(reinterpret_cast<const char*>(&value), sizeof(value));
}

PlaceNumber TakePlaceNumber(std::string_view& place)
{
    PlaceNumber value = 0;
    std::memcpy(&value, place.data(), sizeof(value));
    place.remove_prefix(sizeof(value));
    return value;
}

bool HasType(std::string_view place, int type)
{
    for (PlaceNumber left = TakePlaceNumber(place); left > 0; --left) {
        if (TakePlaceNumber(place) == type)
            return true;
        place.remove_prefix(static_cast<std::size_t>(TakePlaceNumber(place)));
    }
    return false;
}

} // namespace

void updateHashValue(CObjects& object)
{
    std::string text;
    text.reserve(object.name.size() + std::numeric_limits<long>::digits10 + 2);
    text += object.name;
    text += std::to_string(object.type);
    object.hashValue = std::hash<std::string>{}(text);
}

std::size_t SNameKeyHash::operator()(const SNameKey& key) const noexcept
{
    const std::hash<std::string_view> hash;
    return hash(key.place) * 31 + hash(key.name) + static_cast<std::size_t>(key.type);
}

bool ContainsLower(const Uve::U8CString& text)
{
    return std::ranges::any_of(text, IsAsciiLower);
}

const std::set<int>& CDatabaseStructure::FindRelations(int type) const
{
    static const std::set<int> kNone;
    const auto found = m_Relations.find(type);
    return found != m_Relations.end() ? found->second : kNone;
}

void Repositary2::Init(DB_VERSION_INFO version, int quotedCase, bool isOpenEdge)
{
    m_Records = CNameRecords();
    m_QuotedCase = quotedCase;
    m_IdentifierCase = 3;
    m_IsOpenEdge = isOpenEdge;

    const SNameSpaceRow& row = NameSpacesOfKind(version.db);
    const auto lastGroup = std::ranges::find_if(row.groups, &CObjectTypeSet::IsEmpty);
    m_Groups = {std::begin(row.groups), lastGroup};

    m_Structure.Reset();
    const auto relate = [this](int parent, CObjectTypeSet children) {
        m_Structure.AddNode(parent);
        children.ForEach([&](int child) { m_Structure.AddRelation(parent, child); });
    };
    if (version.db != kKindWithoutDatabases)
        relate(UVDB_DBO_DATABASE, {UVDB_DBO_SCHEMA});
    relate(UVDB_DBO_SCHEMA, row.schemaChildren);
    relate(UVDB_DBO_TABLE, row.tableChildren);
    if (row.hasColumnsOfTypes)
        relate(UVDB_DBO_USER_DEFINED_TYPE, {UVDB_DBO_COLUMN});
    for (const SRelation& relation : kCommonRelations)
        relate(relation.parent, relation.children);
}

int Repositary2::GetValidKey(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                             Uve::U8CString& key, std::string_view prefix, std::size_t length) const
{
    std::string text;
    for (std::size_t i = 0; i < std::min(path.size(), names.size()); ++i) {
        text += "_/" + std::to_string(path[i]) + "/_";
        AppendName(names[i], FoldsCase(), text);
    }
    if (const std::string_view cut = prefix.substr(0, length); !cut.empty())
        text.append(1, '|').append(cut);
    key = std::move(text);
    return 1;
}

// See the note on places. `prefix` is cut already.
void Repositary2::WriteKey(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                           std::string_view prefix, SNameKey& key) const
{
    const std::size_t above = path.size() - 1;
    key.place.clear();
    AppendPlaceNumber(above, key.place);
    for (std::size_t i = 0; i < above; ++i) {
        AppendPlaceNumber(static_cast<std::size_t>(path[i]), key.place);
        const std::size_t sizeAt = key.place.size();
        AppendPlaceNumber(0, key.place);
        AppendName(names[i], FoldsCase(), key.place);
        const auto size = static_cast<PlaceNumber>(key.place.size() - sizeAt - sizeof(PlaceNumber));
        std::memcpy(key.place.data() + sizeAt, &size, sizeof(size));
    }
    key.place += prefix;
    key.type = path.back();
    key.name.clear();
    AppendName(names.back(), FoldsCase(), key.name);
}

SNameKey Repositary2::MakeKey(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                              std::string_view prefix) const
{
    SNameKey key;
    WriteKey(path, names, prefix, key);
    return key;
}

CObjectTypeSet Repositary2::FindGroup(int type) const
{
    const auto found =
        std::ranges::find_if(m_Groups, [type](CObjectTypeSet group) { return group.Has(type); });
    return found != m_Groups.end() ? *found : CObjectTypeSet{};
}

std::set<int> Repositary2::GetGroup(int type) const
{
    std::set<int> types;
    FindGroup(type).ForEach([&](int member) { types.insert(member); });
    return types;
}

const CNameRecords::SRecord* Repositary2::Find(const std::vector<int>& path,
                                               const std::vector<Uve::U8CString>& names,
                                               std::string_view prefix) const
{
    if (path.empty() || path.size() != names.size())
        return nullptr;
    CObjectTypeSet types = FindGroup(path.back());
    std::for_each(path.begin(), path.end() - 1, [&](int type) { types.Remove(type); });
    if (types.IsEmpty())
        return nullptr;

    WriteKey(path, names, prefix, m_Key);
    const CNameRecords::SRecord* found = nullptr;
    m_Records.FindIf(m_Key.place, m_Key.name, [&](const CNameRecords::SRecord& record) {
        const int type = record.content.pathType;
        if (types.Has(type) && (!found || type < found->content.pathType))
            found = &record;
        return false;
    });
    return found;
}

bool Repositary2::GetObjectStr(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                               CConvertedName& out, std::string_view prefix, std::size_t length) const
{
    const CNameRecords::SRecord* const record = Find(path, names, prefix.substr(0, length));
    if (!record)
        return false;
    out.name = record->Name();
    out.reasons = record->content.reasons;
    out.type = record->content.type;
    return true;
}

int Repositary2::GetObjectType(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                               std::string_view prefix, std::size_t length) const
{
    const CNameRecords::SRecord* const record = Find(path, names, prefix.substr(0, length));
    return record ? record->content.type : -1;
}

bool Repositary2::SetObject(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                            const CConvertedName& record, std::string_view prefix, std::size_t length)
{
    if (path.empty() || path.size() != names.size())
        return false;
    WriteKey(path, names, prefix.substr(0, length), m_Key);
    const auto isSame = [&](const CNameRecords::SRecord& known) {
        return known.content.pathType == m_Key.type;
    };
    if (m_Records.FindIf(m_Key.place, m_Key.name, isSame))
        return false;
    m_Records.Add(m_Key.place, m_Key.name, record.name, {record.reasons, record.type, m_Key.type});
    return true;
}

void Repositary2::RemoveRecords(int type)
{
    m_Records.RemoveIf([type](std::string_view place, const CNameRecords::SRecord& record) {
        return record.content.pathType == type || HasType(place, type);
    });
}
