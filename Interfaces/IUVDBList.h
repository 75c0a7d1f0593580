#pragma once

#include <memory>

class IUVDBObject;

// A list with one reading position, which starts before the first item.
template <class T>
class IUVDBList
{
public:
    IUVDBList() = default;
    IUVDBList(const IUVDBList&) = delete;
    IUVDBList& operator=(const IUVDBList&) = delete;
    virtual ~IUVDBList() = default;

    // Gives the number of items in `count` and 0 in `other`.
    // Returns: UVDB_OK.
    virtual int get_Count(unsigned long& count, unsigned long& other) = 0;

    // Gives the number of items.
    // Returns: UVDB_OK; UVDB_INVALID_ARGUMENT for a null `length`.
    virtual int get_Length(long* length) = 0;

    // Copies the next item and moves on.
    // Returns: UVDB_OK; UVDB_NO_DATA after the last item, and then `item` is untouched.
    virtual int get_Next(T& item) = 0;

    // Shares `object` and puts it at the end. Whether one object can stand twice is the list's own rule.
    // Returns: UVDB_OK; UVDB_INVALID_ARGUMENT for an empty pointer or an object that the list can't hold.
    virtual int Add(std::shared_ptr<IUVDBObject> object) = 0;

    // Removes all items.
    // Returns: UVDB_OK.
    virtual int Clear() = 0;

    // Puts the reading position before the first item.
    // Returns: UVDB_OK.
    virtual int Reset() = 0;
};
