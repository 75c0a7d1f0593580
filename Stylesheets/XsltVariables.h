// Variables of libxslt that it has no functions for. Named in the code, they would keep it from being loaded later.
#pragma once

#include <libxml/xmlerror.h>
#include <libxslt/documents.h>

namespace Uve {

// The handler of the moment for errors, and what it is called with.
xmlGenericErrorFunc XsltErrorHandler();
void* XsltErrorContext();

// What loads documents if nobody has set anything else.
xsltDocLoaderFunc XsltDefaultLoader();

} // namespace Uve
