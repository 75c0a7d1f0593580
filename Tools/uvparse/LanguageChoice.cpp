#include "Tools/uvparse/LanguageChoice.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Catalogue/UVDBParserNames.h"
#include "Tools/Support/ToolDatabase.h"
#include "Tools/uvparse/LanguageNames.h"
#include "UVEnvironment/UVECompat.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <system_error>

namespace uvparse {

namespace {

// Whether a kind of texts is known that the parser reads.
bool IsInCatalogue(const std::string& parserName)
{
    return VersionOfParser(parserName).db != UVDB_UNKNOWN_DATABASE_KIND;
}

// Calls `visit` with each row that has a parser, and its name.
template <class Visit>
void ForEachInCatalogue(Visit&& visit)
{
    const UVDB::DbinfoHelper& catalogue = UVDB::DbinfoHelper::getInstance();
    for (int index = 0; index <= static_cast<int>(catalogue.getRowCount()); ++index) {
        const DB_INFO_ROW& row = catalogue.findDbInfo(index);
        if (!catalogue.isUnknownDbInfo(row))
            visit(row, std::string(GetParserModuleName(row.dbVersion)));
    }
}

// What can be had of a language that can't be parsed, as a sentence to be added; empty if nothing.
std::string PreparationText(const std::string& parserName)
{
    const SPreparedLanguage* const prepared = FindPreparedLanguage(parserName);
    if (prepared == nullptr)
        return {};
    const std::string options = *prepared->options != '\0' ? std::string(" ") + prepared->options : "";
    return ". Texts of " + parserName + " can be prepared: --prepare -l " + parserName + options;
}

template <class Names>
std::string Listed(const Names& names)
{
    std::string text;
    for (const std::string& name : names)
        text += ' ' + name;
    return text;
}

bool IsSameName(const std::string& name, const std::string& other)
{
    return Uve::Compat::stricmp(name.c_str(), other.c_str()) == 0;
}

std::string CommonParser()
{
    return GetParserModuleName(DB_VERSION_INFO{.db = UVDB_DB_COMMON});
}

// Those that go before others first, the common grammar last, between them by name.
template <class Names>
std::vector<SLanguage> InOrderOfPreference(const Names& names)
{
    std::vector<SLanguage> languages;
    languages.reserve(names.size());
    for (const std::string& name : names)
        languages.push_back({name, VersionOfParser(name)});
    const auto rank = [common = CommonParser()](const SLanguage& language) {
        return std::pair(language.parserName == common ? SIZE_MAX : PreferenceOf(language.parserName),
                         std::string_view(language.parserName));
    };
    std::ranges::sort(languages, {}, rank);
    return languages;
}

} // namespace

DB_VERSION_INFO ReadDatabase(std::string_view text)
{
    try {
        return ReadDatabaseText(text);
    } catch (const CDatabaseError& e) {
        throw CLanguageError(e.what());
    }
}

DB_VERSION_INFO VersionOfParser(const std::string& parserName)
{
    DB_VERSION_INFO version;
    version.db = static_cast<std::uint64_t>(UVDBGetNumberByParserName(parserName));
    return version;
}

std::set<std::string> ExtensionsOf(const std::string& parserName)
{
    std::set<std::string> extensions;
    for (const SFileExtension& row : FileExtensions())
        if (row.parserName == parserName)
            extensions.insert(row.extension);
    ForEachInCatalogue([&](const DB_INFO_ROW& row, const std::string& name) {
        if (name == parserName && !row.defaultExtension.empty())
            extensions.insert(Uve::U8CString(row.defaultExtension).MakeLower());
    });
    return extensions;
}

std::vector<std::string> ListGrammars(const std::string& grammarFolder)
{
    std::vector<std::string> names;
    std::error_code failed;
    for (std::filesystem::directory_iterator entry(grammarFolder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        std::error_code ignored;
        if (entry->is_directory(ignored))
            names.push_back(entry->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<SLanguage> CLanguageChoice::Candidates(const std::string& parserName, const std::string& database,
                                                   const std::string& path) const
{
    const bool isAuto = IsSameName(parserName, "auto");
    if ((parserName.empty() || isAuto) && database.empty())
        return ByExtension(path, isAuto);

    SLanguage language;
    const std::string named = isAuto ? std::string() : NameOf(parserName);
    if (!database.empty())
        language.version = ReadDatabase(database);
    else
        language.version = VersionOfParser(named);
    language.parserName = named.empty() ? GetParserModuleName(language.version) : named;
    RequireGrammar(language.parserName);
    return {language};
}

// The name as the folders of tables and the catalogue have it, for one that is written or said otherwise.
std::string CLanguageChoice::NameOf(const std::string& said) const
{
    if (said.empty() || HasGrammar(said))
        return said;
    const std::string_view other = ParserOfOtherName(said);
    // A database may have the name of a language whose sources are prepared (FoxPro, Progress).
    const bool isMeant =
        m_Purpose == enPurpose::Parsing || other.empty() || FindPreparedLanguage(said) != nullptr;
    if (IsInCatalogue(said) && isMeant)
        return said;
    const auto isSame = [&](const std::string& name) { return IsSameName(name, said); };
    if (const auto grammar = std::ranges::find_if(m_Grammars, isSame); grammar != m_Grammars.end())
        return *grammar;
    std::string name = said;
    ForEachInCatalogue([&](const DB_INFO_ROW&, const std::string& parserName) {
        if (isSame(parserName))
            name = parserName;
    });
    return (name == said || !isMeant) && !other.empty() ? std::string(other) : name;
}

std::vector<SLanguage> CLanguageChoice::ByExtension(const std::string& path, bool isAuto) const
{
    std::string extension = std::filesystem::path(path).extension().string();
    if (extension.size() < 2 && !isAuto)
        throw CLanguageError("'" + path +
                             "' has no extension to tell its language; name one with --language, or 'auto' "
                             "to have the text tell it. " +
                             ListText());
    extension.erase(0, 1);
    const auto isSame = [&](const char* other) { return !extension.empty() && IsSameName(other, extension); };

    std::set<std::string> fitting;
    std::set<std::string> known; // without a grammar here
    for (const SFileExtension& row : FileExtensions())
        if (isSame(row.extension))
            (HasGrammar(row.parserName) ? fitting : known).insert(row.parserName);
    const bool isListed = !fitting.empty() || !known.empty();
    ForEachInCatalogue([&](const DB_INFO_ROW& row, const std::string& parserName) {
        if (!isSame(row.defaultExtension.c_str()))
            return;
        if (HasGrammar(parserName))
            fitting.insert(parserName);
        else if (!isListed && IsInCatalogue(parserName))
            known.insert(parserName);
    });
    // The common grammar stands in for databases that have none: it gives way to any that has its own.
    const std::string common = CommonParser();
    if (fitting.size() > 1)
        fitting.erase(common);
    known.erase(common);
    if (fitting.empty() && m_Purpose == enPurpose::Preparation) {
        const auto isPrepared = [](const std::string& name) { return FindPreparedLanguage(name) != nullptr; };
        if (std::ranges::any_of(known, isPrepared))
            std::erase_if(known, std::not_fn(isPrepared));
        if (known.size() > 1)
            throw CLanguageError("files with the extension '" + extension + "' may be of" + Listed(known) +
                                 "; name one with --language");
        fitting = known;
    }
    if (fitting.empty() && isAuto)
        fitting.insert(m_Grammars.begin(), m_Grammars.end());
    if (fitting.empty())
        throw CLanguageError("no language here reads files with the extension '" + extension +
                             "'; name one with --language. " + ListText() +
                             (known.size() == 1 ? PreparationText(*known.begin()) : ""));
    return InOrderOfPreference(fitting);
}

bool CLanguageChoice::HasGrammar(const std::string& parserName) const
{
    return std::binary_search(m_Grammars.begin(), m_Grammars.end(), parserName);
}

void CLanguageChoice::RequireGrammar(const std::string& parserName) const
{
    // The name becomes part of a path: it must not lead out of the folder of grammars.
    if (parserName.find('/') != std::string::npos || parserName.find("..") != std::string::npos)
        throw CLanguageError("'" + parserName + "' is no parser name");
    if (HasGrammar(parserName))
        return;
    if (m_Purpose == enPurpose::Parsing)
        throw CLanguageError("there is no language '" + parserName + "'. " + ListText() +
                             PreparationText(parserName));
    if (!IsInCatalogue(parserName))
        throw CLanguageError("no language is called '" + parserName + "'");
}

std::string CLanguageChoice::ListText() const
{
    if (m_Grammars.empty())
        return "No languages are installed";
    return "Languages:" + Listed(m_Grammars);
}

} // namespace uvparse
