// What the user asked for on uvparse's command line.
#pragma once

#include "Tools/uvparse/MessageForms.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace uvparse {

struct SCommandLine
{
    std::vector<std::string> files; // "-" is standard input
    std::string language;           // parser name or "auto"; empty: by database or extension
    std::string database;           // KIND[:SUBTYPE[:VERSION]]; empty: by language
    std::vector<std::pair<std::string, std::string>> options;
    std::vector<std::pair<std::string, std::string>> objectOptions;
    std::string outputFolder;     // empty: standard output
    std::string traceFile;        // empty: no trace
    std::string encoding;         // of the input, by iconv's name; empty: by its byte order mark
    std::size_t recordLength = 0; // of the input, in bytes; 0: it has line ends
    std::string xpath;            // empty: the whole tree
    enMessageForm messageForm = enMessageForm::Text;
    std::string messageFile; // empty: standard error; "-": standard output
    bool isPrepare = false;
    bool isDiff = false;
    bool isLines = false;
    bool isRaw = false;
    bool isPretty = false;
    bool isColor = false;
    bool isVerify = false;
    bool isTime = false;
    bool isStat = false;
    bool isQuiet = false;
    bool isWithoutCache = false;
    bool isListLanguages = false;
    bool isHelp = false;
    bool isVersion = false;

    // The text is prepared and not parsed.
    bool IsPreparing() const { return isPrepare || isLines; }
};

// Throws: CUsageError.
SCommandLine ReadCommandLine(int argc, const char* const* argv);

std::string HelpText();

} // namespace uvparse
