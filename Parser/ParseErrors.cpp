#include "Parser/ParseErrors.h"

#include "Parser/ParsedText.h"
#include "Parser/UVDBErrorInfo.h"
#include "Parser/UVParserText.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <sstream>
#include <utility>

void SetLastError(SParsedText& parsed, long code, const char* description, const char* nativeInfo,
                  const std::multimap<unsigned long, std::string>* tokens)
{
    auto error = std::make_shared<CUVDBErrorInfo>();
    error->Code = code;
    error->Description = description;
    error->NativeInfo = nativeInfo;
    if (tokens != nullptr) {
        // Hosts read the keys: a token that came twice still counts 1 here.
        for (const auto& [line, token] : *tokens)
            error->ErrorList.emplace(token, 1);
    }
    parsed.error = std::move(error);
}

void SetLastError(SParsedText& parsed, const CSQLGrammarParserImplementation* found)
{
    std::string message;
    std::multimap<unsigned long, std::string> tokens;
    if (found != nullptr) {
        message = found->m_strLastError;
        for (const auto& [line, token] : found->m_mapErrors) {
            std::string text;
            UVDB::UTF8Toisolat1(token, text);
            tokens.emplace(line, std::move(text));
        }
    }
    std::string place;
    GetErrorPlace(static_cast<unsigned long>(ExtractLineNumber(message)), parsed.text, place);
    message += ' ';
    message += place;
    SetLastError(parsed, 0, message.c_str(), nullptr, &tokens);
    CLogWrapper::WriteTraceF("\nFAILED: %s\n", message.c_str());
}

int ExtractLineNumber(const std::string& errorMessage)
{
    if (errorMessage.empty()) {
        CLogWrapper::WriteTraceF("\nUVParser: ExtractLineNumber(): errorMessage == Empty\n");
        return -1;
    }
    const std::size_t blank = errorMessage.find(' ');
    if (blank == std::string::npos)
        return -1;
    // On a word that is no number the stream stores 0.
    int lineNumber = -1;
    std::istringstream(errorMessage.substr(0, blank)) >> lineNumber;
    return lineNumber;
}

void GetErrorPlace(unsigned long lineNumber, const std::string& text, std::string& place)
{
    if (lineNumber == static_cast<unsigned long>(-1)) {
        CLogWrapper::WriteTraceF("\nUVParser: GetErrorPlace(): numLine == -1\n");
        return;
    }
    if (text.empty())
        return;
    if (auto quote = QuoteLinesAround(lineNumber, text))
        place = std::move(*quote);
}
