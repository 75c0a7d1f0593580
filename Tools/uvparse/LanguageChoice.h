// Which grammar reads a text, and which database kind the text is of.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"

#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace uvparse {

struct SLanguage
{
    std::string parserName;
    DB_VERSION_INFO version;
};

// No language, or no single one, can be told; the text says why and lists the languages.
class CLanguageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// What the chosen language is wanted for.
enum class enPurpose
{
    Parsing,
    Preparation // goes by the database kind alone and needs no grammar
};

// Chooses among the grammars that are there. The rules, first to last:
//   a parser name is taken as it is given, or for what it means (see LanguageNames.h), and the database kind
//   is the one whose texts it reads; a database names its parser; a file's extension is looked up among those
//   that such files have and in the catalogue, and leads to the grammars that are there; "Common" gives way to
//   another one. The name "auto", in any case of letters, asks for the extension as well, and where that leads to
//   none for all grammars.
// For preparation the parser names of the catalogue count as well, and an extension that leads to no grammar
// may lead to exactly one of them.
class CLanguageChoice
{
public:
    // `grammars`: names of the grammars that are there, ascending.
    explicit CLanguageChoice(std::vector<std::string> grammars, enPurpose purpose = enPurpose::Parsing)
        : m_Grammars(std::move(grammars)), m_Purpose(purpose)
    {}

    const std::vector<std::string>& GetGrammars() const { return m_Grammars; }

    // `parserName` and `database` (KIND[:SUBTYPE[:VERSION]]) may be empty.
    // Returns: the language, or several among which the text has to decide; of those that read it alike the
    //          first one is meant.
    // Throws:  CLanguageError.
    std::vector<SLanguage> Candidates(const std::string& parserName, const std::string& database,
                                      const std::string& path) const;

private:
    std::string NameOf(const std::string& said) const;
    bool HasGrammar(const std::string& parserName) const;
    std::vector<SLanguage> ByExtension(const std::string& path, bool isAuto) const;
    void RequireGrammar(const std::string& parserName) const;
    std::string ListText() const;

    std::vector<std::string> m_Grammars;
    enPurpose m_Purpose;
};

// The folders below `grammarFolder`, ascending; none if there is no such folder.
std::vector<std::string> ListGrammars(const std::string& grammarFolder);

// The database kind whose texts the parser reads.
DB_VERSION_INFO VersionOfParser(const std::string& parserName);

// The extensions that files of the parser's language have, lower case and without a dot; none if it is in no table.
std::set<std::string> ExtensionsOf(const std::string& parserName);

// As ReadDatabaseText reads it.
// Throws: CLanguageError.
DB_VERSION_INFO ReadDatabase(std::string_view text);

} // namespace uvparse
