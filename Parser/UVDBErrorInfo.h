#pragma once

#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/UVDBResults.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <map>
#include <string>

// The error record that crosses the plug-in boundary, as the interface `Base`. Whoever makes it fills the
// members; a host reads them through the interface.
template <class Base>
class CUVDBErrorInfoT : public Base
{
public:
    int get_ErrorList(void** out) override
    {
        if (out == nullptr)
            return UVDB_INVALID_ARGUMENT;
        *out = &ErrorList;
        return UVDB_OK;
    }

    int get_Code(long* out) override
    {
        if (out == nullptr)
            return UVDB_INVALID_ARGUMENT;
        *out = Code;
        return UVDB_OK;
    }

    // A null buffer with a size gets UVDB_INVALID_ARGUMENT, and `*length` the length of the whole text.
    int get_Description(char* buffer, std::size_t size, std::size_t* length) override
    {
        return CopyText(Description, buffer, size, length);
    }
    int get_NativeInfo(char* buffer, std::size_t size, std::size_t* length) override
    {
        return CopyText(NativeInfo, buffer, size, length);
    }
    int get_FailedQuery(char* buffer, std::size_t size, std::size_t* length) override
    {
        return CopyText(FailedQuery, buffer, size, length);
    }

    long Code = 0;
    Uve::U8CString Description;
    Uve::U8CString NativeInfo;
    Uve::U8CString FailedQuery;
    std::map<std::string, int> ErrorList;

private:
    static int CopyText(const Uve::U8CString& text, char* buffer, std::size_t size, std::size_t* length)
    {
        if (length == nullptr)
            return UVDB_ERROR;
        *length = text.size();
        if (size == 0)
            return UVDB_OK;
        if (buffer == nullptr)
            return UVDB_INVALID_ARGUMENT;
        *length = std::min(text.size(), size - 1);
        std::memcpy(buffer, text.data(), *length);
        buffer[*length] = '\0';
        return UVDB_OK;
    }
};

using CUVDBErrorInfo = CUVDBErrorInfoT<IUVDBErrorInfo>;
