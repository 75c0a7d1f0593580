#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/Identifiers/UVDBReservedWords.h"
#include "Names/NormalizeName.h"
#include "Names/NormalizeNameCharacters.h"
#include "Names/NormalizeNameKinds.h"
#include "Names/NormalizeNameOptions.h"
#include "UVEnvironment/UVECharacter.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace {

constexpr std::string_view kReservedWordMark = "%RWORD%";

// Words that PostgreSQL takes for a table or a column, but not everywhere that a name may stand.
// clang-format off
constexpr std::string_view kPostgresNameWords[] = {
    "BETWEEN",
    "BIGINT",
    "BIT",
    "CHAR",
    "CHARACTER",
    "COALESCE",
    "DEC",
    "DECIMAL",
    "EXISTS",
    "EXTRACT",
    "FLOAT",
    "GREATEST",
    "GROUPING",
    "INOUT",
    "INT",
    "INTEGER",
    "INTERVAL",
    "ISNULL",
    "LEAST",
    "NATIONAL",
    "NCHAR",
    "NONE",
    "NORMALIZE",
    "NULLIF",
    "NUMERIC",
    "OUT",
    "OVERLAY",
    "POSITION",
    "PRECISION",
    "QUERY",
    "REAL",
    "ROW",
    "SETOF",
    "SMALLINT",
    "TIME",
    "TIMESTAMP",
    "TREAT",
    "TRIM",
    "VALUES",
    "VARCHAR",
    "XMLATTRIBUTES",
    "XMLELEMENT",
    "XMLEXISTS",
    "XMLFOREST",
    "XMLNAMESPACES",
    "XMLPARSE",
    "XMLPI",
    "XMLROOT",
    "XMLSERIALIZE",
    "XMLTABLE",
};
// clang-format on
static_assert(std::size(kPostgresNameWords) == 50);
static_assert(std::ranges::is_sorted(kPostgresNameWords));

constexpr CKindSet kUnknownLetterKinds{UVDB_DB_MySQL, UVDB_DB_INGRES};

struct SMarks
{
    Uve::U8CString open;
    Uve::U8CString close;
};

// The marks that a name is written in. SQL Server reads those of the source too, if it knows them.
SMarks MarksFor(DB_VERSION_INFO target, DB_VERSION_INFO source)
{
    SMarks marks{GetDBMSEncloseCharOpen(target), GetDBMSEncloseCharClose(target)};
    if (target.db == UVDB_DB_MSSQL) {
        const Uve::U8CString open = GetDBMSEncloseCharOpen(source);
        if (open == "\"" || open == "[")
            marks = {open, GetDBMSEncloseCharClose(source)};
    }
    return marks;
}

Uve::U8CString Unwrap(Uve::U8CString name, const SMarks& marks)
{
    if (!marks.open.empty() && name.size() > marks.open.size() + marks.close.size() &&
        name.starts_with(marks.open) && name.ends_with(marks.close))
        return name.substr(marks.open.size(), name.size() - marks.open.size() - marks.close.size());
    return name;
}

bool IsWrittenReserved(const Uve::U8CString& name, DB_VERSION_INFO version)
{
    if (UVDBIsReservedWord(name, version))
        return true;
    return version.db == UVDB_DB_POSTGRESQL &&
           std::ranges::binary_search(kPostgresNameWords, std::string_view(Uve::U8CString(name).MakeUpper()));
}

bool HasRefusedCharacters(const Uve::U8CString& name, unsigned long type, DB_VERSION_INFO version,
                          const Uve::U8CString& locale)
{
    constexpr unsigned int kFirstHiragana = 0x3041;
    constexpr unsigned int kLastHiragana = 0x309C;

    const CNameCharacters characters(name);
    bool hasLetter = false;
    for (std::size_t i = 0; i < characters.GetCount(); ++i) {
        const unsigned int character = characters.At(i);
        if (characters.IsRefused(i, version, type, locale) ||
            (i == 0 && characters.IsRefusedFirst(i, version, type, locale)) ||
            (characters.IsWide() && character >= kFirstHiragana && character <= kLastHiragana))
            return true;
        hasLetter = hasLetter || Uve::UChar::iswalpha(character);
    }
    return characters.IsUtf8() && !hasLetter && !kUnknownLetterKinds.Has(version.db);
}

// Whether a plain name of Oracle can't hold the characters of this one.
bool HasOracleQuotedCharacters(const Uve::U8CString& name)
{
    const CNameCharacters characters(name);
    for (std::size_t i = 0; i < characters.GetCount(); ++i) {
        const unsigned int character = characters.At(i);
        if (!Uve::UChar::iswalnum(character) && character != '_' && character != '$' && character != '#')
            return true;
    }
    return false;
}

bool ChangesCase(const Uve::U8CString& name, DB_VERSION_INFO version, long identifierCase)
{
    const Uve::U8CString upper = Uve::U8CString(name).MakeUpper();
    const Uve::U8CString lower = Uve::U8CString(name).MakeLower();
    if (version.db == UVDB_DB_ORA || kDb2Like.Has(version.db))
        return name != upper && name != lower;
    return (identifierCase == UVDB_IC_UPPER && name != upper) ||
           (identifierCase == UVDB_IC_LOWER && name != lower);
}

} // namespace

Uve::U8CString CNormalizeName::WriteName(Uve::U8CString name, unsigned long type, IUVDBDatabaseInfo2* info,
                                         DB_VERSION_INFO version, unsigned long mode, bool isSource,
                                         Uve::U8CString& wrappedIn) const
{
    wrappedIn.clear();
    if (name.empty())
        return name;
    Uve::U8CString locale;
    if (info)
        CUVDBOptionWrapper::GetParam(info, "DATABASE_LOCALE", locale);
    const SMarks marks = MarksFor(version, m_SourceVersion);
    const SMarks ownMarks{GetDBMSEncloseCharOpen(version), GetDBMSEncloseCharClose(version)};
    name = Unwrap(TrimDelimited(std::move(name)), ownMarks);

    Uve::U8CString tail;
    if (mode & UVDB_PREPARE_PARAMETER) {
        if (const std::size_t end = ownMarks.close.empty() ? std::string::npos : name.find(ownMarks.close);
            end != std::string::npos) {
            tail = name.substr(end);
            name.resize(end);
        }
        if (const auto found = m_ParamTargetNames.find(name); found != m_ParamTargetNames.end())
            name = found->second;
    }
    name = DeleteNotValidChar(EscIdentifier(version, std::move(name)), type, version);
    if (mode & UVDB_PREPARE_ROWID && name == "Rowid")
        return "ROWID" + tail; // a pseudo column, which marks would make a column

    bool needsMarks = (mode & UVDB_PREPARE_QUOTE) != 0;
    if (!(mode & UVDB_PREPARE_ANY_CHARACTER))
        needsMarks = needsMarks || HasRefusedCharacters(name, type, version, locale);
    if (mode & UVDB_PREPARE_COMPARE_CASE)
        needsMarks = needsMarks || ChangesCase(name, version, isSource ? m_SourceCase : m_TargetCase);

    const bool isReserved = IsWrittenReserved(name, version);
    if (version.db == UVDB_DB_ORA)
        needsMarks = needsMarks || HasOracleQuotedCharacters(name);
    const bool isSameKind = m_SourceVersion.db == version.db;
    if (isReserved && (!(mode & UVDB_PREPARE_PARAMETER) || !isSameKind || version.db == UVDB_DB_ORA)) {
        // Inside one kind of database the name was written in marks all along.
        const std::size_t place =
            isSameKind ? std::string::npos : m_ReservedWordPattern.find(kReservedWordMark);
        if (place == std::string::npos)
            needsMarks = true;
        else
            name = m_ReservedWordPattern.substr(0, place) + name +
                   m_ReservedWordPattern.substr(place + kReservedWordMark.size());
    }

    if (needsMarks && !marks.open.empty()) {
        // A double quote inside stands doubled already, where it is the target's own mark.
        if (marks.close != "\"" || ownMarks.close != "\"")
            name.Replace(marks.close, marks.close + marks.close);
        name = marks.open + name + marks.close;
        wrappedIn = marks.open;
    }
    return name + tail;
}

Uve::U8CString CNormalizeName::PrepareSingleObjectName(Uve::U8CString name, unsigned long type,
                                                       const std::shared_ptr<IUVDBDatabaseInfo2>& target,
                                                       unsigned long mode) const
{
    const DB_VERSION_INFO version = target ? target->get_DbmsVersion() : DB_VERSION_INFO{};
    Uve::U8CString wrappedIn;
    Uve::U8CString written = WriteName(name, type, target.get(), version, mode, false, wrappedIn);
    if (version.db == UVDB_DB_MSSQL && type == UVDB_DBO_COLUMN && wrappedIn == "\"") {
        CObjects key{std::move(name), static_cast<long>(type)};
        updateHashValue(key);
        CConvertedName& entry = m_ReportMap[key];
        entry.name = written;
        entry.reasons |= UVDB_NAME_QUOTED;
        entry.type = static_cast<int>(type);
    }
    return written;
}

Uve::U8CString
CNormalizeName::PrepareSingleObjectNameSource(Uve::U8CString name, unsigned long type,
                                              const std::shared_ptr<IUVDBDatabaseInfo2>& target,
                                              unsigned long mode) const
{
    Uve::U8CString wrappedIn;
    return WriteName(std::move(name), type, target.get(),
                     target ? target->get_DbmsVersion() : DB_VERSION_INFO{}, mode, true, wrappedIn);
}

Uve::U8CString CNormalizeName::PrepareObjectName(const char* name,
                                                 const std::shared_ptr<IUVDBDatabaseInfo2>& target,
                                                 unsigned long mode) const
{
    const std::string_view text = name ? name : "";
    Uve::U8CString written;
    for (std::size_t at = 0;;) {
        const std::size_t dot = text.find('.', at);
        written +=
            PrepareSingleObjectName(Uve::U8CString(text.substr(at, dot - at)), UVDB_DBO_TABLE, target, mode);
        if (dot == std::string_view::npos)
            return written;
        written += '.';
        at = dot + 1;
    }
}
