#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBIdentifierInfo.h"
#include "Names/NormalizeName.h"

#include <utility>

namespace {

using DatabaseInfo = std::shared_ptr<IUVDBDatabaseInfo2>;

template <class T>
T ReadOption(const DatabaseInfo& info, const char* name)
{
    T value{};
    CUVDBOptionWrapper::GetParam(info, name, value);
    return value;
}

DB_VERSION_INFO VersionOf(const DatabaseInfo& info)
{
    return info ? info->get_DbmsVersion() : DB_VERSION_INFO{};
}

// The case rules of one side.
struct SCaseRules
{
    long plain = UVDB_IC_AS_IT_STANDS;
    long quoted = UVDB_IC_AS_IT_STANDS;
};

SCaseRules ReadCaseRules(const DatabaseInfo& info)
{
    if (ReadOption<bool>(info, "CASE_SENSITIVE_COLLATION"))
        return {};
    return {UVDBGetIdentifierCase(info), UVDBGetQuotedIdentifierCase(info)};
}

void TakeText(const char* text, Uve::U8CString& place)
{
    if (text)
        place = text;
}

} // namespace

void CNormalizeName::Init(std::shared_ptr<IUVDBDatabaseInfo2> source,
                          std::shared_ptr<IUVDBDatabaseInfo2> target)
{
    SetSource(std::move(source));
    SetTarget(std::move(target));
    ReadLocaleOption(m_Source);
}

void CNormalizeName::SetSource(std::shared_ptr<IUVDBDatabaseInfo2> info)
{
    m_Source = std::move(info);
    m_SourceVersion = VersionOf(m_Source);
    const SCaseRules rules = ReadCaseRules(m_Source);
    m_SourceQuotedCase = rules.quoted;
    m_SourceCase = ReadOption<bool>(m_Source, "QUOTE_IDENTIFIERS") ? rules.quoted : rules.plain;

    const bool isOpenEdge = ReadOption<Uve::U8CString>(m_Source, "PROGRESS_OPEN_EDGE") == "Yes";
    m_SourceNames.Init(m_SourceVersion, static_cast<int>(m_SourceQuotedCase), isOpenEdge);
    m_SourceNames.SetIdentifierCase(static_cast<int>(m_SourceCase));
}

void CNormalizeName::SetTarget(std::shared_ptr<IUVDBDatabaseInfo2> info)
{
    m_Target = std::move(info);
    m_TargetVersion = VersionOf(m_Target);
    const SCaseRules rules = ReadCaseRules(m_Target);
    m_TargetQuotedCase = rules.quoted;
    m_TargetCase = rules.plain;

    m_TargetNames.Init(m_TargetVersion, static_cast<int>(m_TargetQuotedCase), false);
    m_LastNumbers.clear();
    if (m_TargetCase == Repositary2::kCaseInsensitive)
        m_TargetNames.SetIdentifierCase(Repositary2::kCaseInsensitive);
}

void CNormalizeName::ReadLocaleOption(const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    m_Locale = ReadOption<Uve::U8CString>(info, "DATABASE_LOCALE");
}

void CNormalizeName::SetTranslateRules(bool remove, const char* replacement, bool removeFirst,
                                       const char* replacementFirst, bool trim, bool alphanumOnly,
                                       const char* targetSchema, bool keepTrimRules, const char* /*roleText*/,
                                       const char* reservedWordPattern, long sourceQuotedCase,
                                       long targetQuotedCase, unsigned long columnCase,
                                       const char* variablePrefix)
{
    m_IsRemoving = remove;
    TakeText(replacement, m_Replacement);
    m_IsRemovingFirst = removeFirst;
    TakeText(replacementFirst, m_ReplacementFirst);
    m_IsTrimming = trim;
    m_IsAlphanumOnly = alphanumOnly;
    TakeText(targetSchema, m_TargetSchema);
    TakeText(reservedWordPattern, m_ReservedWordPattern);
    m_SourceQuotedCase = sourceQuotedCase;
    m_TargetQuotedCase = targetQuotedCase >= 1 && targetQuotedCase <= 4
                             ? targetQuotedCase
                             : UVDBGetQuotedIdentifierCaseGuess(m_TargetVersion);
    m_ColumnCase = columnCase;
    TakeText(variablePrefix, m_VariablePrefix);
    if (!keepTrimRules) {
        m_IsAlphanumOnly = false;
        m_IsConsonantsOnly = false;
    }
}

void CNormalizeName::SetAdditionalTranslateRules(bool consonantsOnly, bool leftTrim,
                                                 bool alphanumStopWhenLimitReached,
                                                 bool consonantsStopWhenLimitReached)
{
    m_IsConsonantsOnly = consonantsOnly;
    m_IsLeftTrim = leftTrim;
    m_IsAlphanumStop = alphanumStopWhenLimitReached;
    m_IsConsonantsStop = consonantsStopWhenLimitReached;
}

void CNormalizeName::RemoveIdentifiers(int type)
{
    m_SourceNames.RemoveRecords(type);
    m_TargetNames.RemoveRecords(type);
    m_LastNumbers.clear();
}

Uve::U8CString CNormalizeName::GetIdentidierName(const std::vector<Uve::U8CString>& parts)
{
    Uve::U8CString name;
    for (const Uve::U8CString& part : parts) {
        if (!part.empty()) {
            name += '.';
            name += part;
        }
    }
    const std::size_t first = name.find_first_not_of('.');
    if (first == std::string::npos)
        return {};
    return name.substr(first, name.find_last_not_of('.') - first + 1);
}
