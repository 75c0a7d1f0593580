// Names on their way from one database to another.
#pragma once

#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Names/NormalizeName.h"
#include "Tools/Support/ToolDatabaseNames.h"
#include "Tools/uvnames/CommandLine.h"
#include "Tools/uvnames/SchemaClashes.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace uvnames {

// A whole name: the parts that there are.
struct SName
{
    long type = 0; // a number of enUVDB_DATABASE_OBJECT
    Uve::U8CString server;
    Uve::U8CString schema;
    Uve::U8CString object;
    Uve::U8CString sub;
    Uve::U8CString kindText; // "temp", "view" and the like

    Uve::U8CString Joined() const;
};

struct SConvertedName
{
    SName target;
    Uve::U8CString written; // as a script of the target spells it
    bool isQuoted = false;  // a part of `written` stands in quotes
    unsigned long reasons = 0;
    Uve::U8CString clash; // the other object of the source, if the target's schema can't hold both
};

// A type by number or, in any case, by a text of the report; nothing if it is neither.
std::optional<long> ReadNameType(std::string_view text);

// Whether names of the type stand below an object: columns, indexes, variables and the like.
bool IsSubObject(long type);

// A line of tab-separated fields: type, server, schema, object, sub, kind. Fields at the end may be missing.
// Returns: false if the type means nothing, its own field is empty or there are more fields; `error` then
//          says why.
bool ReadNameLine(std::string_view line, SName& name, std::string& error);

class CNameMapping
{
public:
    // Throws: CDatabaseError, CUsageError.
    explicit CNameMapping(const SCommandLine& line);
    ~CNameMapping();
    CNameMapping(const CNameMapping&) = delete;
    CNameMapping& operator=(const CNameMapping&) = delete;

    // Returns: false for a part of a table that names no table.
    bool Convert(const SName& name, SConvertedName& converted);

    // Whether nothing became of the name, or nothing but that it lost its schema: the default one of the
    // source, or any where names of indexes and keys have none.
    bool IsUnchanged(const SName& name, const SConvertedName& converted) const;

    // What became of all names so far, as the library tells it, with values that XML can hold.
    Uve::U8CString ReportXml() const;

    const SToolDatabase& GetFrom() const { return m_From; }
    const SToolDatabase& GetTo() const { return m_To; }
    CNormalizeName& GetNormaliser() { return m_Normaliser; }

    // The type of the part that stands in the place of the object.
    static long ObjectTypeOf(long type);

private:
    using ReportMap = std::unordered_map<CObjects, CConvertedName, CObjectsHash>;

    void ConvertSchema(SName& name);
    // The schema that holds the object of a name, which names of indexes leave out.
    Uve::U8CString SchemaOf(const SName& name);
    // As the target compares it.
    Uve::U8CString Compared(const Uve::U8CString& part, long type) const;
    Uve::U8CString FindClash(const SName& name, const SName& target);
    bool NeedsMarks(const Uve::U8CString& part) const;
    Uve::U8CString WrittenPart(const Uve::U8CString& part, long type) const;
    void Write(SConvertedName& converted) const;
    unsigned long TakeReport();

    const SToolDatabase m_From;
    const SToolDatabase m_To;
    const std::shared_ptr<IUVDBDatabaseInfo2> m_Source;
    const std::shared_ptr<IUVDBDatabaseInfo2> m_Target;
    const bool m_KeepsReport;
    CNormalizeName m_Normaliser;
    ReportMap m_Report;
    CSchemaClashes m_Clashes;
};

} // namespace uvnames
