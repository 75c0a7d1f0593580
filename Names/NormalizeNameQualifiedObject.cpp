#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Names/NormalizeName.h"
#include "Names/NormalizeNameConversion.h"
#include "Names/NormalizeNameFree.h"
#include "Names/NormalizeNameKinds.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

// Between the parts of a name in a record. A dot wouldn't do: names may hold some. They may hold anything, so
// these two stand for themselves after the second.
constexpr char kPartSeparator = '\x1F';
constexpr char kEscape = '\x1E';

// Kinds of routines that a 4GL program doesn't tell apart.
constexpr int kRoutineTypes[] = {UVDB_DBO_FUNCTION, UVDB_DBO_TRIGGER, UVDB_DBO_PACKAGE};

Uve::U8CString JoinParts(const std::vector<Uve::U8CString>& parts)
{
    std::string text;
    for (const Uve::U8CString& part : parts) {
        if (&part != &parts.front())
            text += kPartSeparator;
        for (const char c : part) {
            if (c == kPartSeparator || c == kEscape)
                text += kEscape;
            text += c;
        }
    }
    return text;
}

std::vector<Uve::U8CString> CutParts(const Uve::U8CString& text)
{
    std::vector<Uve::U8CString> parts;
    std::string part;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == kPartSeparator) {
            parts.emplace_back(std::exchange(part, {}));
            continue;
        }
        if (text[at] == kEscape && at + 1 < text.size())
            ++at;
        part += text[at];
    }
    parts.emplace_back(std::move(part));
    return parts;
}

bool IsAbsent(const std::vector<Uve::U8CString>& parts)
{
    return std::ranges::all_of(parts, [](const Uve::U8CString& part) { return part == kAbsentNamePart; });
}

} // namespace

std::vector<int> CNormalizeName::TranslatePath(std::vector<int> path) const
{
    if (kFourGl.Has(m_SourceVersion.db) && !path.empty()) {
        std::replace_if(
            path.begin(), path.end() - 1,
            [](int type) { return std::ranges::find(kRoutineTypes, type) != std::end(kRoutineTypes); },
            static_cast<int>(UVDB_DBO_STORED_PROCEDURE));
    }
    return path;
}

// The part above is converted first, by itself and for good: what it is called decides where this name has to
// be free, and the next name below it must find it called the same.
std::vector<Uve::U8CString>
CNormalizeName::NormalizeParts(const std::vector<int>& path, const std::vector<Uve::U8CString>& names,
                               std::string_view prefix, const Uve::U8CString& kindText, unsigned long& flags)
{
    if (path.empty() || path.size() != names.size())
        return {};
    const int type = path.back();
    const bool isRemembered = type != UVDB_DBO_ALIAS;
    std::vector<int> sourcePath = TranslatePath(path);
    const std::vector<Uve::U8CString>* sourceNames = &names;
    std::vector<Uve::U8CString> namesOutsideGroups;

    CConvertedName record;
    const auto isKnown = [&] {
        return m_SourceNames.GetObjectStr(sourcePath, *sourceNames, record, prefix, prefix.size());
    };
    const auto isKnownOutsideGroups = [&] {
        if (!m_SourceNames.GetGroup(type).empty())
            return false;
        // The source finds no type that it has no name space for. It stands as a label, which every database
        // has, below an object of its type without a name: so it is forgotten with its type.
        sourcePath.push_back(UVDB_DBO_LABEL);
        namesOutsideGroups = names;
        namesOutsideGroups.emplace(namesOutsideGroups.end() - 1);
        sourceNames = &namesOutsideGroups;
        return isKnown();
    };
    if (isRemembered && (isKnown() || isKnownOutsideGroups())) {
        flags |= record.reasons;
        return CutParts(record.name);
    }

    record.type = type;
    std::vector<Uve::U8CString> parts = NormalizeParts(
        {path.begin(), path.end() - 1}, {names.begin(), names.end() - 1}, {}, kindText, record.reasons);
    const bool isDynamic = m_SourceVersion.db == UVDB_DB_MSSQL && HasDynamicMarkers(names.back());
    bool isSettled = isDynamic;
    parts.push_back(isDynamic ? names.back()
                              : ConvertPart(static_cast<unsigned long>(type), names.back(), record.reasons,
                                            kindText, isSettled));

    // What isn't there, an alias, which lives as long as its query, and a schema that several share: none of
    // these takes a name from another.
    if (isRemembered && !isSettled && !IsAbsent(parts)) {
        SFreeName free = FindFreeName(path, std::move(parts), prefix, record.reasons);
        parts = std::move(free.parts);
        record.name = JoinParts(parts);
        m_TargetNames.SetObject(path, free.key, record, prefix, prefix.size());
        m_SourceNames.SetObject(sourcePath, *sourceNames, record, prefix, prefix.size());
    }
    flags |= record.reasons;
    return parts;
}

Uve::U8CString CNormalizeName::NormalizeObject(int, const std::vector<int>& path,
                                               const std::vector<Uve::U8CString>& names,
                                               const Uve::U8CString& prefix, const Uve::U8CString& kindText,
                                               unsigned long& flags)
{
    return GetIdentidierName(NormalizeParts(path, names, prefix, kindText, flags));
}
