#pragma once

// A set that can own the values it is given. It stands beside IUVDBOptionSet, and not in it: sets of other
// modules have no more than the operations of that interface. Whoever makes a value asks by dynamic_cast.
class IUVDBOptionOwner
{
public:
    // Takes a value over and calls `release` with it when the set dies, not before, since readers are lent
    // the pointer. The value needs not be entered under a name. The module whose code `release` is stays
    // loaded as long as the set lives.
    // Throws: std::bad_alloc; the value is the caller's then.
    virtual void OwnOptionValue(void* value, void (*release)(void*)) = 0;

protected:
    ~IUVDBOptionOwner() = default;
};
