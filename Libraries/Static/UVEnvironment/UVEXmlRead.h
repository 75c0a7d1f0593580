#pragma once

#include <cstddef>

struct _xmlDoc;

namespace Uve {

// The one way in which XML comes into the process. A text is read as UTF-8 whatever encoding it declares. The
// limits of libxml2 are off (XML_PARSE_HUGE) and entities stay references. Null when the text
//
// - isn't well-formed or isn't valid UTF-8, or declares an encoding that nobody knows,
// - has 0x80000000 bytes or more,
// - has an element with more than 1000 attributes,
// - grows by its declarations (entities, parameter entities, default namespaces) beyond 10 MB and ten times
//   its own size, whether while it is read or when its references are resolved.
//
// Nothing outside the text is ever loaded: no external entity, no DTD, nothing from the network. Errors are
// not printed, and the handlers and the loader that a host has set in libxml2 are in place again afterwards.
// Safe on several threads at once; a host's own work with libxml2 on another thread is without a loader
// meanwhile.
//
// Owner:  the caller, xmlFreeDoc.
// Throws: std::bad_alloc.
[[nodiscard]] _xmlDoc* ReadXml(const char* data, std::size_t size);

// The same for the file at `path`, but in the encoding that its mark or declaration tells. Null too when it
// can't be read. A path is a path: no URL, no "-", and compressed files aren't unpacked.
[[nodiscard]] _xmlDoc* ReadXmlFile(const char* path);

} // namespace Uve
