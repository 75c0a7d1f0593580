// Plug-ins: shared libraries that export a data symbol which holds a pointer to a factory function without
// arguments.
#pragma once

// Boost.DLL stands on the standard library's filesystem here: nothing of Boost needs linking.
#ifndef BOOST_DLL_USE_STD_FS
#define BOOST_DLL_USE_STD_FS
#endif

#include <boost/dll/shared_library.hpp>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

namespace Uve::DLL {

namespace Detail {

// Deletes the object of a plug-in while the code of its destructor is still there, and lets go of the library
// after that. The last owner of the library is the deleter itself.
template <class T>
class pointer_delete
{
public:
    explicit pointer_delete(std::shared_ptr<boost::dll::shared_library> library)
        : m_Library(std::move(library))
    {}

    void operator()(T* object) const
    {
        // Deleting needs the whole interface: whoever loads a plug-in includes its header.
        static_assert(std::has_virtual_destructor_v<T>);
        delete object;
    }

private:
    std::shared_ptr<boost::dll::shared_library> m_Library;
};

// The loader looks for a bare name in the directories of the system and of whoever calls it, which is this
// library's host only if the host is the program itself. So what the loader doesn't find is tried beside the
// program.
// Throws: std::system_error.
std::shared_ptr<boost::dll::shared_library> LoadLibrary(const std::string& libraryName);

} // namespace Detail

// Loads `libraryName`, a bare name or a path, and calls the factory at `symbolName`. The object keeps its
// library loaded as long as it lives.
// Throws: std::system_error if the library can't be loaded or lacks the symbol, std::runtime_error if the
//         symbol or the factory answers null, and what the factory throws.
template <class T>
std::shared_ptr<T> createInstance(const std::string& libraryName, const std::string& symbolName)
{
    using Factory = T* (*)();

    std::shared_ptr<boost::dll::shared_library> library = Detail::LoadLibrary(libraryName);
    const Factory factory = library->get<Factory>(symbolName);
    if (factory == nullptr)
        throw std::runtime_error("the entry " + symbolName + " is empty");

    Detail::pointer_delete<T> deleter(std::move(library));
    T* object = factory();
    if (object == nullptr)
        throw std::runtime_error("the entry " + symbolName + " gave no object");
    return std::shared_ptr<T>(object, std::move(deleter));
}

} // namespace Uve::DLL
