#include "Tools/uvnames/NameMapping.h"

#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Tools/uvnames/MarkupText.h"
#include "Tools/uvnames/NameOptions.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace uvnames {

namespace {

constexpr long kMaxType = UVDB_DBO_VARIABLE;

std::shared_ptr<IUVDBDatabaseInfo2> MakeInfo(DB_VERSION_INFO version)
{
    return UVDBMakeObject<CUVDBDatabaseInfo>(version);
}

bool IsSameWord(std::string_view left, std::string_view right)
{
    const auto folded = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::ranges::equal(left, right, {}, folded, folded);
}

} // namespace

Uve::U8CString SName::Joined() const
{
    return CNormalizeName::GetIdentidierName({server, schema, object, sub});
}

std::optional<long> ReadNameType(std::string_view text)
{
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (!text.empty() && error == std::errc() && end == text.data() + text.size()) {
        if (number < -1 || number > kMaxType)
            return std::nullopt;
        return number;
    }
    for (long type = 0; type <= kMaxType; ++type) {
        const auto asNumber = static_cast<unsigned long>(type);
        const std::string_view own = UVDBIdentifierTypeToString(asNumber);
        if (!own.empty() &&
            (IsSameWord(text, own) || IsSameWord(text, CNormalizeName::TypeToString(asNumber))))
            return type;
    }
    return std::nullopt;
}

bool ReadNameLine(std::string_view line, SName& name, std::string& error)
{
    name = {};
    Uve::U8CString* const fields[] = {nullptr,      &name.server, &name.schema,
                                      &name.object, &name.sub,    &name.kindText};
    std::size_t index = 0;
    for (bool isLast = false; !isLast; ++index) {
        const std::size_t end = std::min(line.find('\t'), line.size());
        isLast = end == line.size();
        const std::string_view field = line.substr(0, end);
        if (index >= std::size(fields)) {
            error = "more than " + std::to_string(std::size(fields)) + " fields";
            return false;
        }
        if (index > 0) {
            *fields[index] = TsvText(field);
        } else if (const std::optional<long> type = ReadNameType(field)) {
            name.type = *type;
        } else {
            error = "there is no type '" + std::string(field) + "'";
            return false;
        }
        line.remove_prefix(isLast ? end : end + 1);
    }
    if (IsSubObject(name.type) && name.type != UVDB_DBO_ALIAS && name.sub.empty()) {
        error = "a name of this type is a sub-object, and stands in the fifth field";
        return false;
    }
    return true;
}

bool IsSubObject(long type)
{
    return type >= UVDB_DBO_COLUMN && type != UVDB_DBO_SCHEMA && type != UVDB_DBO_DATABASE &&
           type != UVDB_DBO_CLASS;
}

CNameMapping::CNameMapping(const SCommandLine& line)
    : m_From(ReadToolDatabase(line.from)), m_To(ReadToolDatabase(line.to)),
      m_Source(MakeInfo(m_From.version)), m_Target(MakeInfo(m_To.version)),
      m_KeepsReport(!line.reportFile.empty()), m_Clashes(m_To.version.db)
{
    SetOptions(line.options, m_Source, m_Target);
    m_Normaliser.Init(m_Source, m_Target);
    SetRules(m_Target, line.schema, m_Normaliser);
    m_ReportMap.clear();
}

CNameMapping::~CNameMapping()
{
    m_ReportMap.clear();
}

// The report is the process's and has one entry for a name. Emptied after every call, it tells of that call.
unsigned long CNameMapping::TakeReport()
{
    unsigned long reasons = 0;
    for (const auto& [object, converted] : m_ReportMap) {
        reasons |= converted.reasons;
        if (m_KeepsReport) {
            CConvertedName& kept = m_Report[object];
            const unsigned long earlier = kept.reasons;
            kept = converted;
            kept.reasons |= earlier;
        }
    }
    m_ReportMap.clear();
    return reasons;
}

// A schema by itself: the library normalises it as a part of the names in it alone, and this gives the same.
void CNameMapping::ConvertSchema(SName& name)
{
    CObjects object{.name = name.schema, .type = name.type};
    updateHashValue(object);
    CConvertedName record;
    record.type = UVDB_DBO_SCHEMA;
    if (m_Normaliser.OmitSchemaOption(name.schema)) {
        record.reasons = UVDB_NAME_SCHEMA_OMITTED;
    } else {
        record.name = m_Normaliser.NormalizeObject(UVDB_DBO_SCHEMA, {UVDB_DBO_DATABASE, UVDB_DBO_SCHEMA},
                                                   {kAbsentNamePart, name.schema}, "", "", record.reasons);
        record.name.Replace(kAbsentNamePart, "");
        record.name.Trim(".");
    }
    name.server.clear();
    name.schema = record.name;
    m_ReportMap[object] = record;
}

bool CNameMapping::Convert(const SName& name, SConvertedName& converted)
{
    converted = {};
    SName& target = converted.target = name;
    if (name.type == UVDB_DBO_SCHEMA && !name.schema.empty() && name.object.empty() && name.sub.empty()) {
        ConvertSchema(target);
        Write(converted);
        converted.reasons = TakeReport();
        return true;
    }
    if (m_Normaliser.NormalizeName(static_cast<unsigned long>(name.type), target.server, target.schema,
                                   target.object, target.sub, "", "", name.kindText, false, 0) != 0) {
        m_ReportMap.clear();
        return false;
    }
    Write(converted);
    converted.reasons = TakeReport();
    if (m_Clashes.Has(name.type))
        converted.clash = FindClash(name, target);
    return true;
}

Uve::U8CString CNameMapping::SchemaOf(const SName& name)
{
    SName object = name;
    object.sub.clear();
    m_Normaliser.NormalizeName(static_cast<unsigned long>(ObjectTypeOf(name.type)), object.server,
                               object.schema, object.object, object.sub, "", "", "", false, 0);
    m_ReportMap.clear();
    return object.schema;
}

Uve::U8CString CNameMapping::Compared(const Uve::U8CString& part, long type) const
{
    Uve::U8CString compared = NormalizeIdentifier(
        WrittenPart(part, type).c_str(), m_To.version, m_From.version, m_Normaliser.GetTargetCase(),
        GetDBMSEncloseCharOpen(m_To.version).c_str(), m_Normaliser.GetTargetQuotedCase());
    if (m_Normaliser.GetTargetCase() == UVDB_IC_INSENSITIVE ||
        m_Normaliser.GetTargetQuotedCase() == UVDB_IC_INSENSITIVE)
        compared.MakeUpper();
    return compared;
}

Uve::U8CString CNameMapping::FindClash(const SName& name, const SName& target)
{
    const bool isPart = IsSubObject(name.type);
    const Uve::U8CString schema = isPart ? SchemaOf(name) : target.schema;
    return m_Clashes.Enter(
        {.type = name.type,
         .source = name.Joined(),
         .table = isPart ? CNormalizeName::GetIdentidierName({name.schema, name.object}) : Uve::U8CString(),
         .sourceName = isPart ? name.sub : name.object,
         .schema = Compared(schema, UVDB_DBO_SCHEMA),
         .name =
             isPart ? Compared(target.sub, name.type) : Compared(target.object, ObjectTypeOf(name.type))});
}

bool CNameMapping::IsUnchanged(const SName& name, const SConvertedName& converted) const
{
    if (!converted.clash.empty())
        return false;
    if (converted.reasons == 0 && name.Joined() == converted.target.Joined())
        return true;
    constexpr unsigned long kSchemaReasons = UVDB_NAME_SCHEMA_OMITTED | UVDB_NAME_SCHEMA_LEFT_OUT;
    const bool hasLostSchemaAlone =
        (converted.reasons & ~kSchemaReasons) == 0 && converted.target.schema.empty() &&
        name.object == converted.target.object && name.sub == converted.target.sub;
    if (!hasLostSchemaAlone)
        return false;
    // An index is in the schema of its table wherever its name may not say so.
    const bool isOfTable =
        converted.reasons == 0 && (name.type == UVDB_DBO_INDEX || name.type == UVDB_DBO_PRIMARY_KEY ||
                                   name.type == UVDB_DBO_REFERENCES_CONSTRAINT);
    const Uve::U8CString usual = GetDefaultSchema(m_From.version);
    return isOfTable || (!usual.empty() && IsSameWord(name.schema, usual));
}

long CNameMapping::ObjectTypeOf(long type)
{
    switch (type) {
    case UVDB_DBO_VARIABLE:
    case UVDB_DBO_CURSOR:
        return UVDB_DBO_STORED_PROCEDURE;
    case UVDB_DBO_ALIAS:
        return UVDB_DBO_CLASS;
    default:
        return type < UVDB_DBO_COLUMN || type == UVDB_DBO_CLASS ? type : long{UVDB_DBO_TABLE};
    }
}

// What the options ask for stays in quotes, and what the library has put into some.
bool CNameMapping::NeedsMarks(const Uve::U8CString& part) const
{
    bool quotesAll = false;
    CUVDBOptionWrapper::GetParam(m_Target, "QUOTE_IDENTIFIERS", quotesAll);
    const Uve::U8CString open = GetDBMSEncloseCharOpen(m_To.version);
    if (quotesAll || (!open.empty() && part.starts_with(open)))
        return true;
    bool tellsCases = false;
    CUVDBOptionWrapper::GetParam(m_Target, "CASE_SENSITIVE_COLLATION", tellsCases);
    return tellsCases && part != NormalizeRegularIdentifier(part.c_str(), m_To.version, m_From.version,
                                                            UVDBGetIdentifierCaseGuess(m_To.version));
}

Uve::U8CString CNameMapping::WrittenPart(const Uve::U8CString& part, long type) const
{
    const unsigned long mode = NeedsMarks(part) ? UVDB_PREPARE_QUOTE : 0UL;
    return m_Normaliser.PrepareSingleObjectName(part, static_cast<unsigned long>(type), m_Target, mode);
}

void CNameMapping::Write(SConvertedName& converted) const
{
    const SName& name = converted.target;
    const std::vector<Uve::U8CString> parts = {
        WrittenPart(name.server, UVDB_DBO_DATABASE), WrittenPart(name.schema, UVDB_DBO_SCHEMA),
        WrittenPart(name.object, ObjectTypeOf(name.type)), WrittenPart(name.sub, name.type)};
    converted.written = CNormalizeName::GetIdentidierName(parts);
    const Uve::U8CString open = GetDBMSEncloseCharOpen(m_To.version);
    converted.isQuoted = std::ranges::any_of(parts, [&](const Uve::U8CString& part) {
        return part.starts_with('"') || (!open.empty() && part.starts_with(open));
    });
}

Uve::U8CString CNameMapping::ReportXml() const
{
    ReportMap escaped;
    for (const auto& [object, converted] : m_Report) {
        CObjects key{.name = MarkupText(object.name), .type = object.type};
        updateHashValue(key);
        escaped[key] = {MarkupText(converted.name), converted.reasons, converted.type};
    }
    std::swap(m_ReportMap, escaped);
    Uve::U8CString report = CNormalizeName::GetNormalizeNameReport();
    std::swap(m_ReportMap, escaped);
    return report;
}

} // namespace uvnames
