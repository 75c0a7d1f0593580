#pragma once

#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/UVDBResults.h"

#include <map>
#include <string>

// What an error record says, as a host reads it.
inline std::string DescriptionOf(IUVDBErrorInfo* error)
{
    if (error == nullptr)
        return "no record";
    std::size_t length = 0;
    error->get_Description(nullptr, 0, &length);
    std::string description(length + 1, '\0');
    error->get_Description(description.data(), description.size(), &length);
    description.resize(length);
    return description;
}

inline std::map<std::string, int> ErrorListOf(IUVDBErrorInfo* error)
{
    void* list = nullptr;
    if (error == nullptr || error->get_ErrorList(&list) != UVDB_OK)
        return {};
    return *static_cast<std::map<std::string, int>*>(list);
}
