// What people call languages and how they name files, beside what the catalogue knows; which languages are
// prepared, under which options; and what is assumed of their texts.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace uvparse {

// An extension that files of a language really have, lower case and without a dot. One extension may belong
// to several languages.
struct SFileExtension
{
    const char* extension;
    const char* parserName;
};
std::span<const SFileExtension> FileExtensions();

// The parser name of what is called `name` in everyday speech, in any case of letters; empty if nothing is.
std::string_view ParserOfOtherName(std::string_view name);

// Several languages may read a text alike. The one with the least number is meant; many have the greatest.
std::size_t PreferenceOf(std::string_view parserName);

// A language whose texts are prepared before they are parsed.
struct SPreparedLanguage
{
    const char* parserName;
    const char* options; // that ask for the preparation, as on the command line; empty: it is always done
};
std::span<const SPreparedLanguage> PreparedLanguages();
// Null if the texts of this language aren't prepared.
const SPreparedLanguage* FindPreparedLanguage(std::string_view parserName);

// Options of the database info that texts of a language are read with unless others are given.
struct SUsualOption
{
    const char* parserName;
    const char* key;
    const char* value;
};
std::span<const SUsualOption> UsualOptions();

} // namespace uvparse
