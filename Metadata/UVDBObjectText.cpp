#include "Metadata/UVDBObjectText.h"

#include "Interfaces/UVDBResults.h"

#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

int UVDBCopyTextToBuffer(const Uve::U8CString& text, char* dst, unsigned long size, unsigned long* length)
{
    if (!length)
        return UVDB_ERROR;
    *length = text.size();
    if (size == 0)
        return UVDB_OK;
    if (!dst)
        return UVDB_INVALID_ARGUMENT;
    if (size <= *length)
        *length = size - 1;
    std::memcpy(dst, text.data(), *length);
    dst[*length] = '\0';
    return UVDB_OK;
}

void ReplaceRussSym(Uve::U8CString& text)
{
    std::string bytes(text.data(), text.size());
    for (std::size_t byteOffset = 0; byteOffset + 1 < bytes.size(); ++byteOffset) {
        if (bytes[byteOffset] != '\xD0')
            continue;
        switch (bytes[byteOffset + 1]) {
        case '\x90':
            bytes[byteOffset] = 'A';
            break;
        case '\xA1':
            bytes[byteOffset] = 'C';
            break;
        case '\xB0':
            bytes[byteOffset] = 'a';
            break;
        case '\x81':
            bytes[byteOffset] = 'c';
            break;
        default:
            break;
        }
    }
    text = std::move(bytes);
}
