#pragma once

#include "Metadata/Options/OptionsHost.h"
#include "Metadata/Options/UVOptionInfo.h"
#include "UVEnvironment/UVEExport.h"

// The sets that the whole process shares. They live to its end, and have no locks: a host fills them before
// it starts threads.

// What typed reads give for an option that the set at hand doesn't have.
UVDBOptionSet& GetDefaultsValues();

// The initial values of the INI options, filled by the host.
UVDB_EXPORT UVDBOptionSet& GetInitINIOptionsMap();

// The defaults of the INI options, as records with all that an INI option is.
UVDBOptionDefaultValues& GetOptionDefaultValues();
