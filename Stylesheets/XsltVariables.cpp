#include "Stylesheets/XsltVariables.h"

#include <dlfcn.h>
#include <stdexcept>
#include <string>

namespace Uve {

namespace {

constexpr const char* kLibrary = "libxslt.so.1";

// A program that uses the variable itself may hold it in its own memory, which libxslt then uses too: what the
// program sees goes first.
template <class T>
const T& Variable(const char* name)
{
    static void* const library = dlopen(kLibrary, RTLD_LAZY);
    const void* address = dlsym(RTLD_DEFAULT, name);
    if (address == nullptr && library != nullptr)
        address = dlsym(library, name);
    if (address == nullptr)
        throw std::runtime_error(std::string(kLibrary) + " has no " + name);
    return *static_cast<const T*>(address);
}

} // namespace

xmlGenericErrorFunc XsltErrorHandler()
{
    return Variable<xmlGenericErrorFunc>("xsltGenericError");
}

void* XsltErrorContext()
{
    return Variable<void*>("xsltGenericErrorContext");
}

xsltDocLoaderFunc XsltDefaultLoader()
{
    return Variable<xsltDocLoaderFunc>("xsltDocDefaultLoader");
}

} // namespace Uve
