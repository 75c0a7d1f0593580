#include "Names/NameRepository.h"

#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Names/NameSpaceRows.h"

#include <algorithm>
#include <charconv>
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

void AppendNumber(int number, std::string& text)
{
    char digits[std::numeric_limits<int>::digits10 + 3];
    text.append(digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr);
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

// Writes the text of a path.
// Returns: where the number of its last type stands in it.
std::size_t WriteKey(const std::vector<int>& path, const std::vector<Uve::U8CString>& names, bool foldsCase,
                     std::string_view prefix, std::string& text)
{
    text.clear();
    std::size_t lastTypeAt = 0;
    const std::size_t count = std::min(path.size(), names.size());
    for (std::size_t i = 0; i < count; ++i) {
        text += "_/";
        lastTypeAt = text.size();
        AppendNumber(path[i], text);
        text += "/_";
        if (foldsCase)
            AppendUpper(names[i], text);
        else
            text += names[i];
    }
    if (!prefix.empty()) {
        text += '|';
        text += prefix;
    }
    return lastTypeAt;
}

struct SNumberPlace
{
    std::size_t at = std::string_view::npos;
    std::size_t length = 0;
    int number = 0;
};

// Note: stems. The last number of the text between "_/" and "/_", spelled as a path spells it: without zeros
// in front.
SNumberPlace FindLastNumber(std::string_view text)
{
    constexpr std::size_t kMaxDigits = std::numeric_limits<int>::digits10;
    for (std::size_t end = text.rfind("/_"); end != std::string_view::npos && end > 0;
         end = text.rfind("/_", end - 1)) {
        std::size_t at = end;
        while (at > 0 && text[at - 1] >= '0' && text[at - 1] <= '9')
            --at;
        const std::size_t digitCount = end - at;
        if (digitCount == 0 || digitCount > kMaxDigits)
            continue;
        const bool isNegative = at > 0 && text[at - 1] == '-';
        if (text[at] == '0' && (digitCount > 1 || isNegative))
            continue;
        at -= isNegative ? 1 : 0;
        if (at < 2 || text.substr(at - 2, 2) != "_/")
            continue;
        SNumberPlace place{at, end - at, 0};
        std::from_chars(text.data() + at, text.data() + end, place.number);
        return place;
    }
    return {};
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
    WriteKey(path, names, FoldsCase(), prefix.substr(0, length), m_KeyText);
    key = m_KeyText;
    return 1;
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

Repositary2::SKey Repositary2::CutKey(std::string_view text)
{
    const SNumberPlace place = FindLastNumber(text);
    if (place.at == std::string_view::npos)
        return {{}, text, 0};
    return {text.substr(0, place.at), text.substr(place.at + place.length), place.number};
}

const CNameRecords::SRecord* Repositary2::FindKey(const SKey& key) const
{
    return m_Records.FindIf(key.front, key.back, [&key](const CNameRecords::SRecord& record) {
        return record.content.number == key.number;
    });
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

    const std::size_t lastTypeAt = WriteKey(path, names, FoldsCase(), prefix, m_KeyText);
    const CNameRecords::SRecord* found = nullptr;
    if (const SKey key = CutKey(m_KeyText); key.front.size() == lastTypeAt) {
        m_Records.FindIf(key.front, key.back, [&](const CNameRecords::SRecord& record) {
            const int number = record.content.number;
            if (types.Has(number) && (!found || number < found->content.number))
                found = &record;
            return false;
        });
        return found;
    }
    // A name holds a number that looks like a type.
    const std::size_t lastTypeEnd = m_KeyText.find('/', lastTypeAt);
    types.ForEach([&](int type) {
        if (found)
            return;
        std::string tried = m_KeyText.substr(0, lastTypeAt);
        AppendNumber(type, tried);
        tried.append(m_KeyText, lastTypeEnd);
        found = FindKey(CutKey(tried));
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
    WriteKey(path, names, FoldsCase(), prefix.substr(0, length), m_KeyText);
    const SKey key = CutKey(m_KeyText);
    if (FindKey(key))
        return false;
    m_Records.Add(key.front, key.back, record.name, {record.reasons, record.type, key.number});
    return true;
}

void Repositary2::RemoveRecords(int type)
{
    std::string wanted = "_/";
    AppendNumber(type, wanted);
    wanted += "/_";
    // Between both parts of a key nothing is found that would take in some of its number.
    m_Records.RemoveIf([&](std::string_view front, const CNameRecords::SRecord& record) {
        return (!front.empty() && record.content.number == type) ||
               front.find(wanted) != std::string_view::npos ||
               record.Text().find(wanted) != std::string_view::npos;
    });
}
