#include "Metadata/UVDBObjectID.h"

#include <atomic>

int UVDBGetNextObjectID()
{
    // Objects belong to one thread each, their numbers to all of them.
    static std::atomic<int> lastID{0};
    return ++lastID;
}
