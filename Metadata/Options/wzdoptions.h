// The options of the migration wizard by number, the sections of the options file that hold them, and which
// section concerns which database. An option set knows keys alone: the rows of many sections meet in one
// entry of a set.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEExport.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <array>
#include <cstdint>
#include <utility>

enum enTEMBRAWZDOPTIONS : int
{
#define UVDB_WIZARD_OPTION(name, number, section, key) name = (number),
#include "Metadata/Options/UVWizardOptionRows.inc"
#undef UVDB_WIZARD_OPTION
    WZDOPT_END // one after the highest number
};

// Section and key by number; both null for a number without a row.
extern const std::array<std::pair<const char*, const char*>, WZDOPT_END> sectionOptions;

// Key and section of a number. A section may be empty: such options stand in no file.
// Returns: a text that lives as long as the library; null for a number without a row.
const char* GetOptionName(int number);
const char* GetOptionSection(int number);

// Sections are compared without regard to case. A section that no database claims concerns every source
// database, but no target.
UVDB_EXPORT bool IsSectionValid(const Uve::U8CString& section, std::uint64_t db, std::uint64_t subType);
UVDB_EXPORT bool IsSectionTarget(const Uve::U8CString& section, std::uint64_t db, std::uint64_t subType);
// Sections that all databases share.
UVDB_EXPORT bool IsSectionCommon(const Uve::U8CString& section);

// False for the keys whose values are passed on as they stand. Keys are compared letter by letter.
bool IsAllowedValuePreprocessing(const Uve::U8CString& key);

// What position `index` of the wizard's list of targets and the text `version` ("major.minor") stand for. A
// position beyond the list is the unknown kind, an empty major part an unknown version. A null `info` is left
// alone.
void GetTargetDbmsInfo(unsigned int index, const Uve::U8CString& version, DB_VERSION_INFO* info);
