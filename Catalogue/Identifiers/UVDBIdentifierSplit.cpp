#include "Catalogue/Identifiers/UVDBAsciiCase.h"
#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/UVDBKindSet.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace {

// The parts between the dots outside of enclosing marks. Marks and dots are ASCII, and no byte of a longer
// sequence is, so bytes will do.
std::vector<std::string_view> PartsOf(std::string_view full, const DB_VERSION_INFO& version)
{
    const int open = GetDBMSEncloseOpenAsChar(version);
    const int close = GetDBMSEncloseCloseAsChar(version);
    std::vector<std::string_view> parts;
    std::size_t partStart = 0;
    bool isInside = false;
    for (std::size_t i = 0; i < full.size(); ++i) {
        const char c = full[i];
        if (isInside) {
            const bool endsPart = i + 1 == full.size() || full[i + 1] == '.';
            isInside = c != close || !endsPart;
        } else if (open != 0 && c == open) {
            isInside = true;
        } else if (c == '.') {
            parts.push_back(full.substr(partStart, i - partStart));
            partStart = i + 1;
        }
    }
    parts.push_back(full.substr(partStart));
    return parts;
}

// Nothing owns a part before which there is nothing but dots.
std::size_t FirstPart(const std::vector<std::string_view>& parts)
{
    std::size_t first = 0;
    while (first + 1 < parts.size() && parts[first].empty())
        ++first;
    return first;
}

// The owner that a database takes for another one.
struct SOwnerAlias
{
    CKindSet kinds;
    std::string_view owner;
    const char* meaning;
};

constexpr SOwnerAlias kOwnerAlias{{UVDB_DB_MSSQL, UVDB_DB_SYBASE}, "sa", "dbo"};

constexpr CKindSet kOwningKinds{UVDB_DB_DB2, UVDB_DB_ORA, UVDB_DB_MSSQL, UVDB_DB_SYBASE, UVDB_DB_SAP_HANA};

} // namespace

void SplitTableName(const Uve::U8CString& full, Uve::U8CString& owner, Uve::U8CString& table,
                    DB_VERSION_INFO version)
{
    const std::vector<std::string_view> parts = PartsOf(full, version);
    Uve::U8CString ownerText;
    for (std::size_t i = FirstPart(parts); i + 1 < parts.size(); ++i) {
        if (!ownerText.empty())
            ownerText += '.';
        ownerText += parts[i];
    }
    Uve::U8CString tableText(parts.back());
    owner = std::move(ownerText);
    table = std::move(tableText);
}

void SplitTableNameWithOwner(Uve::U8CString owner, const Uve::U8CString& full, Uve::U8CString& outOwner,
                             Uve::U8CString& table, DB_VERSION_INFO version)
{
    SplitTableName(full, outOwner, table, version);
    if (!outOwner.empty() || !kOwningKinds.Has(version.db))
        return;
    const bool isAlias = kOwnerAlias.kinds.Has(version.db) && UVDBEqualNoCase(owner, kOwnerAlias.owner);
    outOwner = isAlias ? Uve::U8CString(kOwnerAlias.meaning) : std::move(owner);
}

std::vector<Uve::U8CString> SplitObjectName(const Uve::U8CString& name, const DB_VERSION_INFO& version)
{
    const std::vector<std::string_view> parts = PartsOf(name, version);
    return {parts.begin() + static_cast<std::ptrdiff_t>(FirstPart(parts)), parts.end()};
}

void GetOnlyColumnName(const Uve::U8CString& full, Uve::U8CString& column, DB_VERSION_INFO version)
{
    column = Uve::U8CString(PartsOf(full, version).back());
}
