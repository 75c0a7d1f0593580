#pragma once

#include "Interfaces/IUVDBOptionSet.h"

#include <memory>
#include <utility>

// Root of all metadata objects: an option set that knows the shared pointer it is held by.
class IUVDBObject : public IUVDBOptionSet
{
public:
    // The same object as another interface. Empty if the object is no `T`, if it was never given its self
    // reference, or if its last owner has let go.
    template <class T>
    std::shared_ptr<T> cast() const
    {
        return std::dynamic_pointer_cast<T>(m_self.lock());
    }

    // Whoever makes an object calls this with the pointer that holds it, before `cast` or a reference
    // operation is used. UVDBMakeObject does it.
    void set_Self(const std::shared_ptr<IUVDBObject>& self) { m_self = self; }

private:
    std::weak_ptr<IUVDBObject> m_self;
};

// Makes an object and fills its self reference.
template <class T, class... Arguments>
std::shared_ptr<T> UVDBMakeObject(Arguments&&... arguments)
{
    auto object = std::make_shared<T>(std::forward<Arguments>(arguments)...);
    object->set_Self(object);
    return object;
}
