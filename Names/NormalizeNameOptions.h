// How the conversion of names reads its options.
#pragma once

#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Metadata/Options/UVDBOptionWrapper.h"

#include <memory>

// The option of the source, where hosts put what they were asked for; else of the target; else the process's
// default.
// Returns: false, empty or 0 if nobody has it.
template <class T>
T ReadNameOption(const std::shared_ptr<IUVDBDatabaseInfo2>& source,
                 const std::shared_ptr<IUVDBDatabaseInfo2>& target, const char* name)
{
    T value{};
    IUVDBDatabaseInfo2* info = source ? source.get() : target.get();
    if (target && info && !info->IsOptionValid(name) && target->IsOptionValid(name))
        info = target.get();
    if (info)
        CUVDBOptionWrapper::GetParam(info, name, value);
    return value;
}
