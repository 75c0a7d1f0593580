#pragma once

#include <cstddef>

// One error that a parser or a session hands to its host. The host shares it and may keep it.
//
// The text getters take a buffer of `size` bytes and store the text's length in `*length`, in bytes, without
// its terminator. `size` 0 asks for the length alone and leaves `buffer` untouched. A buffer too small gets
// the first `size` - 1 bytes and a terminator, and `*length` becomes `size` - 1.
// Returns: UVDB_OK; UVDB_ERROR for a null `length`, and then nothing is written.
class IUVDBErrorInfo
{
public:
    // Stores a pointer to the unexpected tokens, a `std::map<std::string, int>` from token text to count. The
    // record owns the map, which lives as long as the record.
    // Returns: UVDB_OK.
    virtual int get_ErrorList(void** out) = 0;

    // Returns: UVDB_OK; UVDB_INVALID_ARGUMENT for a null `out`.
    virtual int get_Code(long* out) = 0;

    virtual int get_Description(char* buffer, std::size_t size, std::size_t* length) = 0;
    virtual int get_NativeInfo(char* buffer, std::size_t size, std::size_t* length) = 0;
    virtual int get_FailedQuery(char* buffer, std::size_t size, std::size_t* length) = 0;

    // Stands last: plug-ins rely on the getters' slots.
    virtual ~IUVDBErrorInfo() = default;
};
