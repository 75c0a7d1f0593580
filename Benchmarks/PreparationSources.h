// Source texts to measure the preparation with. The same kind and size give the same bytes in every run.
#pragma once

#include <cstddef>
#include <string>

enum class enSourceKind
{
    CobolFixed,
    CobolFree,
    Jcl,
    IbmCl,
    FoxPro,
    RpgWithDefinitions,
    RpgOlder,
    Pascal,
    Progress,
    Asp,
    MacroC,
    EmbeddedSql
};

// `size` bytes, and what the last statement or block takes beyond.
std::string MakeSource(enSourceKind kind, std::size_t size);

// Writes the files that the sources of Progress, ASP and C include into `folder`, which exists.
// Throws: std::runtime_error if one can't be written.
void WriteIncludeFiles(const std::string& folder);
