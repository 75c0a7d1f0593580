// A name that is free in the target.
#pragma once

#include "Names/NormalizeName.h"

#include <vector>

struct CNormalizeName::SFreeName
{
    std::vector<Uve::U8CString> parts; // as they are called
    std::vector<Uve::U8CString> key;   // as the target's names know them
};
