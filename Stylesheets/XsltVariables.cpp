#include "Stylesheets/XsltVariables.h"

#include <dlfcn.h>
#include <stdexcept>

namespace Uve {

namespace {

constexpr const char* kLibrary = "libxslt.so.1";

template <class T>
const T& Variable(const char* name)
{
    static void* const library = dlopen(kLibrary, RTLD_LAZY);
    const void* const address = library != nullptr ? dlsym(library, name) : nullptr;
    if (address == nullptr)
        throw std::runtime_error(dlerror());
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
