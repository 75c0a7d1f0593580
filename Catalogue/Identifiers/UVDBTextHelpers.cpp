#include "Catalogue/Identifiers/UVDBTextHelpers.h"

#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVEXmlText.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <stdexcept>
#include <string>

Uve::U8CString UVDBToString(int number)
{
    return std::to_string(number);
}

Uve::U8CString UVDBToString(const Uve::U8CString& text)
{
    return text;
}

Uve::U8CString UVDBToString(const char* text)
{
    return text;
}

void UVDBBuildDependXML(const Uve::U8CString& list, Uve::U8CString& out)
{
    std::string root = "<ROOT>";
    std::size_t lineStart = 0;
    while (lineStart < list.size()) {
        const std::size_t lineEnd = std::min(list.find_first_of("\r\n", lineStart), list.size());
        if (lineEnd > lineStart)
            root += "<ProjectFile>" + UVDBEscapeXML(list.substr(lineStart, lineEnd - lineStart)) +
                    "</ProjectFile>";
        lineStart = lineEnd + 1;
    }
    out = root + "</ROOT>";
}

Uve::U8CString ReadFileToString(const Uve::U8CString& path, unsigned int encoding)
{
    try {
        // A number beyond the encodings is no value of their type.
        if (encoding > Uve::File::ENCODING_UTF32BE)
            throw std::invalid_argument("there is no encoding " + std::to_string(encoding));
        return Uve::File::ReadAllText(path, static_cast<Uve::File::Encoding>(encoding));
    } catch (const std::exception& error) {
        CLogWrapper::WriteTraceF("\nReadFileToString(%s) : FAILED: %s", path.c_str(), error.what());
        return {};
    }
}

bool WriteStringToFile(const Uve::U8CString& path, const Uve::U8CString& text)
{
    // Writing over a longer file would leave its tail after the text.
    return Uve::File::Delete(path) && Uve::File::WriteAllText(path, text);
}
