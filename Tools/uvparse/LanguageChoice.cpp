#include "Tools/uvparse/LanguageChoice.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Catalogue/UVDBNamesHelper.h"
#include "Catalogue/UVDBParserNames.h"
#include "UVEnvironment/UVECompat.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <optional>
#include <set>
#include <system_error>

namespace uvparse {

namespace {

std::optional<std::uint64_t> ReadNumber(std::string_view text)
{
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

// The next field of a text parted by colons; `text` keeps what is behind it.
std::string_view TakeField(std::string_view& text, char separator)
{
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return field;
}

DB_VERSION_INFO ReadKind(std::string_view kind)
{
    DB_VERSION_INFO version;
    if (const std::optional<std::uint64_t> number = ReadNumber(kind)) {
        version.db = *number;
        if (!UVDB::NamesHelper::getInstance().isValid(*number) &&
            GetDbResourceIdx(*number, UVDB_NO_VERSION_WORD) < 0)
            throw CLanguageError("there is no database kind " + std::string(kind));
        return version;
    }
    const std::string name(kind);
    const UVDB::DbinfoHelper& catalogue = UVDB::DbinfoHelper::getInstance();
    const DB_INFO_ROW& row = catalogue.findDbInfoAnyNameIgnoreCase(name.c_str(), false);
    if (!catalogue.isUnknownDbInfo(row)) {
        version.db = row.dbVersion.db;
        version.subType = row.dbVersion.subType;
        return version;
    }
    version.db = UVDB::NamesHelper::getInstance().GetDBType(name.c_str());
    if (version.db == UVDB_UNKNOWN_DATABASE_KIND)
        throw CLanguageError("no database is called '" + name + "'");
    return version;
}

// Whether a kind of texts is known that the parser reads.
bool IsInCatalogue(const std::string& parserName)
{
    return VersionOfParser(parserName).db != UVDB_UNKNOWN_DATABASE_KIND;
}

template <class Names>
std::string Listed(const Names& names)
{
    std::string text;
    for (const std::string& name : names)
        text += ' ' + name;
    return text;
}

} // namespace

DB_VERSION_INFO ReadDatabase(std::string_view text)
{
    const std::string whole(text);
    DB_VERSION_INFO version = ReadKind(TakeField(text, ':'));

    const auto number = [&](std::string_view field) {
        const std::optional<std::uint64_t> value = ReadNumber(field);
        if (!value)
            throw CLanguageError("'" + std::string(field) + "' in '" + whole + "' is no number");
        return *value;
    };
    const std::string_view subType = TakeField(text, ':');
    if (!subType.empty())
        version.subType = number(subType);
    if (!text.empty()) {
        version.major = number(TakeField(text, '.'));
        if (!text.empty())
            version.minor = number(text);
    }
    return version;
}

DB_VERSION_INFO VersionOfParser(const std::string& parserName)
{
    DB_VERSION_INFO version;
    version.db = static_cast<std::uint64_t>(UVDBGetNumberByParserName(parserName));
    return version;
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

SLanguage CLanguageChoice::Choose(const std::string& parserName, const std::string& database,
                                  const std::string& path) const
{
    if (parserName.empty() && database.empty())
        return ChooseByExtension(path);

    SLanguage language;
    if (!database.empty())
        language.version = ReadDatabase(database);
    else
        language.version = VersionOfParser(parserName);
    language.parserName = parserName.empty() ? GetParserModuleName(language.version) : parserName;
    RequireGrammar(language.parserName);
    return language;
}

SLanguage CLanguageChoice::ChooseByExtension(const std::string& path) const
{
    std::string extension = std::filesystem::path(path).extension().string();
    if (extension.size() < 2)
        throw CLanguageError(
            "'" + path + "' has no extension to tell its language; name one with --language. " + ListText());
    extension.erase(0, 1);

    const UVDB::DbinfoHelper& catalogue = UVDB::DbinfoHelper::getInstance();
    const std::string common = GetParserModuleName(DB_VERSION_INFO{.db = UVDB_DB_COMMON});
    std::set<std::string> fitting;
    std::set<std::string> known; // to the catalogue, but without a grammar here
    for (int index = 0; index <= static_cast<int>(catalogue.getRowCount()); ++index) {
        const DB_INFO_ROW& row = catalogue.findDbInfo(index);
        if (catalogue.isUnknownDbInfo(row) ||
            Uve::Compat::stricmp(row.defaultExtension.c_str(), extension.c_str()) != 0)
            continue;
        const std::string parserName = GetParserModuleName(row.dbVersion);
        if (std::binary_search(m_Grammars.begin(), m_Grammars.end(), parserName))
            fitting.insert(parserName);
        else if (IsInCatalogue(parserName))
            known.insert(parserName);
    }
    // The common grammar stands in for databases that have none: it gives way to any that has its own.
    if (fitting.size() > 1)
        fitting.erase(common);
    if (fitting.empty() && m_Purpose == enPurpose::Preparation) {
        known.erase(common);
        if (known.size() > 1)
            throw CLanguageError("files with the extension '" + extension + "' may be of" + Listed(known) +
                                 "; name one with --language");
        fitting = known;
    }
    if (fitting.size() != 1)
        throw CLanguageError((fitting.empty() ? "no language here reads files with the extension '"
                                              : "several languages read files with the extension '") +
                             extension + "'; name one with --language. " + ListText());
    return {*fitting.begin(), VersionOfParser(*fitting.begin())};
}

void CLanguageChoice::RequireGrammar(const std::string& parserName) const
{
    // The name becomes part of a path: it must not lead out of the folder of grammars.
    if (parserName.find('/') != std::string::npos || parserName.find("..") != std::string::npos)
        throw CLanguageError("'" + parserName + "' is no parser name");
    if (std::binary_search(m_Grammars.begin(), m_Grammars.end(), parserName))
        return;
    if (m_Purpose == enPurpose::Parsing)
        throw CLanguageError("there is no language '" + parserName + "'. " + ListText());
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
