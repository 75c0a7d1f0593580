// Small texts that stylesheets and plug-ins ask for.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

// Text forms: a number in decimal, a text as it is, null as an empty text.
Uve::U8CString UVDBToString(int number);
Uve::U8CString UVDBToString(const Uve::U8CString& text);
Uve::U8CString UVDBToString(const char* text);

// Replaces `out` by the root element of a dependency run: one <ProjectFile> for each line of `list` that
// holds something, escaped.
void UVDBBuildDependXML(const Uve::U8CString& list, Uve::U8CString& out);

// The whole file as UTF-8; `encoding` is a number of Uve::File::Encoding.
// Returns: an empty text, with a trace line, for a file that can't be read and for any other number.
Uve::U8CString ReadFileToString(const Uve::U8CString& path, unsigned int encoding);

// Makes `text` the whole content of the file.
// Returns: whether all of it was written.
bool WriteStringToFile(const Uve::U8CString& path, const Uve::U8CString& text);
