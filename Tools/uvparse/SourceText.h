// Reading the texts to be parsed.
#pragma once

#include <string>

namespace uvparse {

// The whole of a file, a pipe, or standard input ("-") as UTF-8 without its byte order mark.
// Throws: CToolFailure if it can't be read or isn't text.
std::string ReadSourceText(const std::string& path);

// The same for bytes at hand; `name` is what messages call them. Without a byte order mark they are UTF-8.
// The text can't hold a NUL: the parser would take it for the end. Throws: CToolFailure with the offset into
// `bytes`.
std::string DecodeSourceText(std::string bytes, const std::string& name);

// The text as an ordinary parse sees it: a zero-width space counts as a blank. A raw parse sees the text as
// it stands.
std::string PreparedText(const std::string& text);

} // namespace uvparse
