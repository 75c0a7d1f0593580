#include "Metadata/Options/UVDBOptionSets.h"

UVDBOptionSet& GetDefaultsValues()
{
    static UVDBOptionSet defaults;
    return defaults;
}

UVDBOptionSet& GetInitINIOptionsMap()
{
    static UVDBOptionSet initialValues;
    return initialValues;
}

UVDBOptionDefaultValues& GetOptionDefaultValues()
{
    static UVDBOptionDefaultValues defaults;
    return defaults;
}
