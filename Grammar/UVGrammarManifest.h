// The manifest of a language: what each of its table files holds. It is written with the tables, and a file
// that was damaged, cut, or taken from another language is known by it. Tables without a manifest load as
// well, as far as they can be proved.
#pragma once

#include "Grammar/Runtime/ScannerTables.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

// Its name in the language's folder, beside "Lexer/" and "Parser/".
inline constexpr const char* kManifestName = "manifest.txt";

// What a table file holds once it is unpacked: a file may be packed or unpacked and stays the same.
struct STableFacts
{
    std::size_t bytes = 0;
    std::uint32_t checksum = 0; // CRC-32
    std::size_t records = 0;    // lines of a text, entries of a binary table

    bool operator==(const STableFacts&) const = default;
};

STableFacts FactsOfText(std::string_view content);

// The table files of one part of a language, as they are stored, each compared with the manifest while it is
// read.
class CTableFolder
{
public:
    // `directory` ends in a slash; the manifest stands in the folder above it.
    // Throws: Uve::U8CString with the line for the log if there is a manifest that can't be read.
    explicit CTableFolder(const std::string& directory);

    // The unpacked content of a text file.
    // Throws: Uve::U8CString with the line for the log, if it isn't there, damaged, or not what the manifest
    //         says.
    std::string ReadText(const char* name) const;
    // T is int or unsigned int.
    // Returns: what the file holds. The count that it begins with belongs to its bytes, not to its records.
    // Throws:  as ReadText; also if the file can't be opened.
    template <class T>
    STableFacts ReadTable(const char* name, STable<T>& table) const;

private:
    void Compare(const char* name, const STableFacts& found) const;

    std::string m_Directory;
    std::string m_Part;                         // "Lexer" or "Parser"
    std::map<std::string, STableFacts> m_Facts; // by name of file; empty without a manifest
};

// The manifest of the tables in `directory`, which ends in a slash. `sources`: the checksum of what they were made from.
// Throws: Uve::U8CString with the line for the log if a table isn't there or damaged.
std::string ComposeManifest(const std::string& directory, const std::string& language, std::uint32_t sources);

// The checksum of the sources that a manifest's text has.
// Returns: nothing for a text without one, whatever else it is.
std::optional<std::uint32_t> SourcesOfManifest(std::string_view manifest);

extern template STableFacts CTableFolder::ReadTable<int>(const char* name, STable<int>& table) const;
extern template STableFacts CTableFolder::ReadTable<unsigned>(const char* name,
                                                              STable<unsigned>& table) const;
