// Which names of one database are taken, and what each became.
//
// An object is told by its path: the types from the outermost down (database, schema, table, column) and one
// name for each. Types are numbers of enUVDB_DATABASE_OBJECT. Types that share a name space form a group: a
// name that one of them has taken is taken for all.
#pragma once

#include "Catalogue/Identifiers/UVDBObjectTypeSet.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "Names/NameRecords.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Why a name isn't what it was: bits of CConvertedName::reasons.
enum enUVDB_NAME_REASON : unsigned long
{
    UVDB_NAME_SCHEMA_OMITTED = 1,
    UVDB_NAME_FIRST_CHARACTER = 2,
    UVDB_NAME_CHARACTERS = 4,
    UVDB_NAME_TOO_LONG = 8,
    UVDB_NAME_MADE_UNIQUE = 16,
    UVDB_NAME_CHANGED_BY_USER = 32,
    UVDB_NAME_SCHEMA_LEFT_OUT = 64, // reported in the words of UVDB_NAME_SCHEMA_OMITTED
    UVDB_NAME_TEMPORARY_TABLE = 128,
    UVDB_NAME_QUOTED = 256
};

// What an object is called in the target.
struct CConvertedName
{
    Uve::U8CString name;
    unsigned long reasons = 0; // bits of enUVDB_NAME_REASON
    int type = -1;
};

// A name of the source with its type: the key of the report. Call updateHashValue after every change.
struct CObjects
{
    Uve::U8CString name;
    long type = -1;
    std::size_t hashValue = 0;

    // Equal by name and type. Hash values that were made and differ answer without a look at the names.
    bool operator==(const CObjects& other) const
    {
        if (type != other.type || (hashValue != other.hashValue && hashValue != 0 && other.hashValue != 0))
            return false;
        return name == other.name;
    }
};

void updateHashValue(CObjects& object);

struct CObjectsHash
{
    std::size_t operator()(const CObjects& object) const noexcept { return object.hashValue; }
};

// What an object is known by. Types of one group that share place and name are found together.
struct SNameKey
{
    std::string place; // the types and names above it, and the prefix, in a form that keeps them apart
    int type = -1;
    std::string name; // as the case rule has it

    bool operator==(const SNameKey&) const = default;
};

struct SNameKeyHash
{
    std::size_t operator()(const SNameKey& key) const noexcept;
};

// Whether there is a lower-case letter among the ASCII characters.
bool ContainsLower(const Uve::U8CString& text);

// Which types of objects stand below which.
class CDatabaseStructure
{
public:
    void Reset() { m_Relations.clear(); }
    void AddNode(int type) { m_Relations[type]; }
    // Enters the parent too.
    void AddRelation(int parent, int child) { m_Relations[parent].insert(child); }

    // The types right below `type`; none for a type that was never entered. Valid until the next change.
    const std::set<int>& FindRelations(int type) const;

private:
    std::map<int, std::set<int>> m_Relations;
};

// The names of one database. Used from one thread.
//
// `prefix`, cut after `length` bytes, narrows a name space further: the same names in two prefixes don't
// meet. Without a prefix there is one space for all.
class Repositary2
{
public:
    // The case rule under which "abc" and "ABC" are one name; the other rules keep them apart.
    static constexpr int kCaseInsensitive = 4;

    // Forgets all names and takes the structure and the groups of the database. The identifier case is 3
    // (mixed) afterwards. `isOpenEdge` is kept for IsOpenEdge and changes nothing else.
    void Init(DB_VERSION_INFO version, int quotedCase, bool isOpenEdge);

    // Names that were entered under another rule stay as they were entered.
    void SetIdentifierCase(int identifierCase) { m_IdentifierCase = identifierCase; }
    int GetIdentifierCase() const { return m_IdentifierCase; }
    int GetQuotedCase() const { return m_QuotedCase; }
    bool IsOpenEdge() const { return m_IsOpenEdge; }
    const CDatabaseStructure& GetStructure() const { return m_Structure; }

    // The key of a path, which has a name for each of its types and at least one. Paths with equal keys are
    // one object.
    SNameKey MakeKey(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                     std::string_view prefix) const;

    // Writes a path as a text for people: "_/36/_dbo_/0/_orders|prefix". Two paths may have the same.
    // Returns: 1.
    int GetValidKey(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                    Uve::U8CString& key, std::string_view prefix = {}, std::size_t length = 0) const;

    // The first group that holds `type`; empty if none does.
    std::set<int> GetGroup(int type) const;

    // Finds the record of the path, or of the path with its last type replaced by another of the group. The
    // lowest type number wins. Types of the group that stand further up in the path don't take part; a type
    // without a group is never found.
    // Returns: false, with `out` untouched, if there is none, the path is empty or the sizes differ.
    bool GetObjectStr(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                      CConvertedName& out, std::string_view prefix = {}, std::size_t length = 0) const;

    // The type that stands in the record that GetObjectStr finds; -1 if it finds none.
    int GetObjectType(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                      std::string_view prefix = {}, std::size_t length = 0) const;

    // Enters a record.
    // Returns: false, with nothing changed, if the path is entered already, is empty or the sizes differ.
    bool SetObject(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                   const CConvertedName& record, std::string_view prefix = {}, std::size_t length = 0);

    // Forgets every record with `type` anywhere in its path.
    void RemoveRecords(int type);

    std::size_t GetCount() const { return m_Records.GetCount(); }

private:
    bool FoldsCase() const
    {
        return m_QuotedCase == kCaseInsensitive || m_IdentifierCase == kCaseInsensitive;
    }
    void WriteKey(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                  std::string_view prefix, SNameKey& key) const;
    CObjectTypeSet FindGroup(int type) const;
    const CNameRecords::SRecord* Find(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                                      std::string_view prefix) const;

    CDatabaseStructure m_Structure;
    std::span<const CObjectTypeSet> m_Groups; // lives as long as the process
    CNameRecords m_Records;
    int m_QuotedCase = 3;
    int m_IdentifierCase = 3;
    bool m_IsOpenEdge = false;
    mutable SNameKey m_Key; // room for the key of the call at hand
};
