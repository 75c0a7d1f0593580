#pragma once

// Result codes of every interface operation: a signed 32-bit number, 0 and above when the operation did what
// it could, negative when it failed. The operations of an option set have codes of their own.
enum enUVDB_RESULT : int
{
    UVDB_OK = 0,
    UVDB_NO_DATA = 100,        // not found, end of a list, nothing to work on
    UVDB_NOT_AVAILABLE = 300,  // this object doesn't know the value
    UVDB_ERROR = -1,           // the operation failed; the trace or the last error tells why
    UVDB_NOT_SUPPORTED = -3,   // this kind of object has no such operation
    UVDB_INVALID_ARGUMENT = -4 // a bad argument, most often a null output argument
};
