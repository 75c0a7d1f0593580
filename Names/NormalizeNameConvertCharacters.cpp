#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Names/NormalizeName.h"
#include "Names/NormalizeNameCharacters.h"
#include "Names/NormalizeNameKinds.h"
#include "UVEnvironment/UVECodePoints.h"
#include "UVEnvironment/UVEEncoding.h"

namespace {

// Nobody asks for the code page 1251.
constexpr bool kFor1251 = false;

// A replacement inside one of these would make another name of it in each script that uses it.
bool TakesNoReplacement(unsigned long type)
{
    return type == UVDB_DBO_LABEL || type == UVDB_DBO_CURSOR || type == UVDB_DBO_VARIABLE;
}

bool IsHyphenKept(unsigned int character, DB_VERSION_INFO source, DB_VERSION_INFO target)
{
    return character == '-' && target.db == UVDB_DB_ORA && kHyphenLanguages.Has(source.db);
}

} // namespace

CNameCharacters::CNameCharacters(const Uve::U8CString& name) : m_Text(name)
{
    if (IsIdentifierInUtf8(name)) {
        m_Form = enForm::CodePoints;
    } else if (UVDB::DoesCodePageRequireUnicode(kFor1251)) {
        m_Form = enForm::Wide;
        m_Text = Uve::WideToUTF8(Uve::UTF8ToWide(name));
    }

    m_Characters.reserve(m_Text.size());
    const auto* const bytes = reinterpret_cast<const unsigned char*>(m_Text.data());
    for (std::size_t at = 0; at < m_Text.size();) {
        Uve::CodePoints::SDecoded decoded{Uve::CodePoints::enDecoded::Character, 1, bytes[at]};
        if (m_Form != enForm::Bytes)
            decoded = Uve::CodePoints::DecodeUtf8(bytes + at, m_Text.size() - at);
        m_Characters.push_back({decoded.codePoint, at, decoded.length});
        at += decoded.length; // well-formed text has no sequence of length 0
    }
}

bool CNameCharacters::IsRefused(std::size_t index, DB_VERSION_INFO version, unsigned long type,
                                const std::string& locale) const
{
    if (IsUtf8())
        return IsDBMSNotAllowedCharUtf8(version, type, At(index), locale, kFor1251);
    return IsDBMSNotAllowedChar(version, type, static_cast<int>(At(index)), locale, kFor1251);
}

bool CNameCharacters::IsRefusedFirst(std::size_t index, DB_VERSION_INFO version, unsigned long type,
                                     const std::string& locale) const
{
    if (IsUtf8())
        return IsDBMSNotAllowedCharFPosUtf8(version, type, At(index), locale);
    return IsDBMSNotAllowedCharFPos(version, type, static_cast<int>(At(index)), locale, kFor1251);
}

Uve::U8CString CNormalizeName::RemoveNotAllowedChar(Uve::U8CString name, unsigned long type) const
{
    const Uve::U8CString replacement = TakesNoReplacement(type) ? Uve::U8CString() : m_Replacement;
    if (!m_IsRemoving && replacement.empty())
        return name;

    // The first character has rules of its own.
    const CNameCharacters characters(name);
    Uve::U8CString result;
    for (std::size_t i = 0; i < characters.GetCount(); ++i) {
        if (i == 0 || IsHyphenKept(characters.At(i), m_SourceVersion, m_TargetVersion) ||
            !characters.IsRefused(i, m_TargetVersion, type, m_Locale))
            result += characters.TextAt(i);
        else
            result += replacement;
    }
    return result;
}

Uve::U8CString CNormalizeName::RemoveNotAllowedCharFPos(Uve::U8CString name, unsigned long type) const
{
    const Uve::U8CString replacement = TakesNoReplacement(type) ? Uve::U8CString() : m_ReplacementFirst;
    if (!m_IsRemovingFirst && replacement.empty())
        return name;

    const CNameCharacters characters(name);
    std::size_t first = 0;
    const auto isRefused = [&] {
        return first < characters.GetCount() &&
               !IsHyphenKept(characters.At(first), m_SourceVersion, m_TargetVersion) &&
               characters.IsRefusedFirst(first, m_TargetVersion, type, m_Locale);
    };
    if (!isRefused())
        return name;
    if (m_IsRemovingFirst)
        ++first;
    // Without a replacement the next character comes first, and the same holds for it.
    while (replacement.empty() && isRefused())
        ++first;
    Uve::U8CString result = replacement;
    result += characters.TextFrom(first);
    return result;
}
