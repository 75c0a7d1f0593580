#include "Preparation/Preprocessor.h"

#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Preparation/ESQLPreprocessor.h"
#include "Preparation/ESQLSource.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVECompat.h"

#include <charconv>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace {

// Calls `add` for each field of a list; fields may be empty.
template <class Add>
void SplitList(std::string_view list, Add add)
{
    for (;;) {
        const std::size_t end = list.find(';');
        add(std::string(list.substr(0, end)));
        if (end == list.npos)
            return;
        list.remove_prefix(end + 1);
    }
}

// The lines of the file without their ends, or the option's own text if it names no file.
std::string ReadUndefines(const Uve::U8CString& option)
{
    std::error_code ignored;
    std::ifstream file;
    if (std::filesystem::is_regular_file(option.c_str(), ignored))
        file.open(option.c_str());
    if (!file.is_open()) {
        CLogWrapper::WriteTraceF("\nPreprocessor: can't open file %s.", option.c_str());
        return {option.data(), option.size()};
    }
    std::string content;
    for (std::string line; std::getline(file, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        content += line;
    }
    return content;
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool IsBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

// The line that a line of a rewritten text came from.
std::uint32_t SourceLine(std::uint32_t line, const std::vector<std::uint32_t>& rewrittenLines)
{
    return line >= 1 && line <= rewrittenLines.size() ? rewrittenLines[line - 1] : line;
}

// Messages begin with "path : line : ". Those of the source at `path` name the lines of a text that was made
// from it; they get the lines that these came from.
std::string WithSourceLines(std::string_view messages, std::string_view path,
                            const std::vector<std::uint32_t>& sourceLines)
{
    std::string result;
    while (!messages.empty()) {
        const std::size_t lineFeed = messages.find('\n');
        std::string_view message = messages.substr(0, lineFeed == messages.npos ? lineFeed : lineFeed + 1);
        messages.remove_prefix(message.size());
        if (message.starts_with(path) && message.substr(path.size()).starts_with(" : ")) {
            const std::size_t number = path.size() + 3;
            std::uint32_t line = 0;
            const auto [end, error] =
                std::from_chars(message.data() + number, message.data() + message.size(), line);
            if (error == std::errc() && line >= 1 && line <= sourceLines.size()) {
                result.append(message.substr(0, number));
                result += std::to_string(sourceLines[line - 1]);
                message.remove_prefix(static_cast<std::size_t>(end - message.data()));
            }
        }
        result.append(message);
    }
    return result;
}

constexpr std::string_view kCharacterCode = "character code=";

// The pieces of the error text that the failure message is made of.
struct SFailure
{
    std::string_view line;
    std::string_view label;
    std::string_view code;
};

// Takes the number of ": number :", with `colon` the second ":" and text before the first.
bool TakeLineNumber(std::string_view text, std::size_t colon, std::string_view& number)
{
    std::size_t at = colon;
    while (at > 0 && IsBlank(text[at - 1]))
        --at;
    const std::size_t end = at;
    while (at > 0 && IsDigit(text[at - 1]))
        --at;
    const std::size_t from = at;
    while (at > 0 && IsBlank(text[at - 1]))
        --at;
    if (end == colon || from == end || at == from || at < 2 || text[at - 1] != ':')
        return false;
    number = text.substr(from, end - from);
    return true;
}

// The label begins after the last ": number :" before its end, which may stand in an earlier line.
bool TakeLabel(std::string_view text, std::size_t lineStart, std::size_t labelEnd, SFailure& failure)
{
    for (std::size_t label = labelEnd + 1; label-- > lineStart;) {
        if (IsBlank(text[label]) || label == 0 || !IsBlank(text[label - 1]))
            continue;
        std::size_t behindColon = label;
        while (behindColon > 0 && IsBlank(text[behindColon - 1]))
            --behindColon;
        if (behindColon > 0 && text[behindColon - 1] == ':' &&
            TakeLineNumber(text, behindColon - 1, failure.line)) {
            failure.label = text.substr(label, labelEnd - label);
            return true;
        }
    }
    return false;
}

// What a search for "[\s\S]+:\s+(\d+)\s+:\s+(.*):.*character code=(\d+).*" finds, in linear time: the last
// line that reads like this.
bool FindFailure(std::string_view text, SFailure& failure)
{
    for (std::size_t behind = text.size(); behind > 0;) {
        const std::size_t code = text.rfind(kCharacterCode, behind - 1);
        if (code == text.npos)
            return false;
        behind = code;
        const std::size_t digits = code + kCharacterCode.size();
        std::size_t digitsEnd = digits;
        while (digitsEnd < text.size() && IsDigit(text[digitsEnd]))
            ++digitsEnd;
        if (digitsEnd == digits)
            continue;
        const std::size_t lineBreak = text.substr(0, code).find_last_of("\r\n");
        const std::size_t lineStart = lineBreak == text.npos ? 0 : lineBreak + 1;
        const std::size_t labelEnd = text.substr(lineStart, code - lineStart).rfind(':');
        if (labelEnd != text.npos && TakeLabel(text, lineStart, lineStart + labelEnd, failure)) {
            failure.code = text.substr(digits, digitsEnd - digits);
            return true;
        }
        behind = lineStart;
    }
    return false;
}

// The character of a decimal code, which is a byte of a source in some 8-bit encoding.
std::string CharacterOf(std::string_view code)
{
    unsigned value = 0;
    const auto [end, error] = std::from_chars(code.data(), code.data() + code.size(), value);
    if (error != std::errc() || value > 0xFF)
        return std::string();
    if (value < 0x80)
        return std::string(1, static_cast<char>(value));
    return {static_cast<char>(0xC0 | (value >> 6)), static_cast<char>(0x80 | (value & 0x3F))};
}

} // namespace

Preprocessor::Preprocessor() : undefinesTokens(std::make_shared<MacroPreprocessorChecker::UndefinesTokens>())
{}

void Preprocessor::Init(const std::shared_ptr<IUVDBDatabaseInfo>& info)
{
    if (!info)
        return;
    databaseInfo = info;
    enabled = false;
    presets = {};
    function = -1;
    isEmbeddedSql = false;
    isFaithful = false;

    int mode = -1;
    CUVDBOptionWrapper::GetParam(databaseInfo, "PREPROCESSOR", mode);
    if (mode != 0)
        return;
    CUVDBOptionWrapper::GetParam(databaseInfo, "PREPROCESSOR_FUNCTION", function);
    enabled = true;

    const auto readText = [&](const char* name) {
        Uve::U8CString text;
        CUVDBOptionWrapper::GetParam(databaseInfo, name, text);
        return text;
    };
    isEmbeddedSql = Uve::Compat::stricmp(readText("API_SOURCE_DB").c_str(), "ESQLC") == 0;

    isFaithful = Uve::Compat::stricmp(readText("SOURCE_FORMS").c_str(), "FAITHFUL") == 0;

    if (const Uve::U8CString source = readText("DSN"); !source.empty())
        presets.includePaths.push_back(source);
    if (const Uve::U8CString list = readText("PREPROCESSOR_DEFINITIONS"); !list.empty())
        SplitList(list, [&](std::string define) { presets.defines.push_back(std::move(define)); });
    if (const Uve::U8CString option = readText("PREPROCESSOR_UNDEFINES"); !option.empty())
        SplitList(ReadUndefines(option),
                  [&](std::string name) { presets.undefines.insert(std::move(name)); });
    if (const Uve::U8CString list = readText("PREPROCESSOR_ADDITIONAL_INCLUDE_DIRECTORIES"); !list.empty())
        SplitList(list, [&](std::string path) { presets.includePaths.push_back(std::move(path)); });

    presets.includeRoot = static_cast<const std::string&>(readText("INCLUDE_ROOT"));

    long limit = 0;
    CUVDBOptionWrapper::GetParam(databaseInfo, "PREPROCESSOR_EXPANSION_LIMIT", limit);
    if (limit > 0)
        presets.expansionLimit = static_cast<std::size_t>(limit);
}

bool Preprocessor::Run(Uve::U8CString text, const Uve::U8CString& filePath, Uve::U8CString& result,
                       Uve::U8CString& errorText, std::vector<std::uint32_t>* sourceLines,
                       std::vector<SPreparationNote>* notes)
{
    CPreparationNotes gathered;
    std::vector<SPreparationNote> rewriteNotes;
    std::vector<std::uint32_t> rewrittenLines;
    try {
        if (isEmbeddedSql)
            rewriteNotes = FindEmbeddedSqlNotes(text);
        if (isEmbeddedSql && isFaithful) {
            SPreparedText rewritten = RewriteEmbeddedSqlFaithfully(text);
            text = std::move(rewritten.text);
            rewrittenLines = std::move(rewritten.sourceLines);
        } else if (isEmbeddedSql) {
            ESQLPreprocessor rewrite;
            if (rewrite.CheckESQL(text, text))
                rewrittenLines = rewrite.SourceLines();
        }
    } catch (const std::exception& error) {
        errorText += Uve::U8CString(std::string("ERROR!!! std::exception : ") + error.what() + ".\n");
        result = Uve::U8CString();
        if (sourceLines != nullptr)
            sourceLines->clear();
        gathered.AddError(error.what());
        if (notes != nullptr)
            *notes = gathered.Take();
        return false;
    }

    Uve::U8CString messages;
    const bool isDone = MacroPreprocessorChecker::Checker::PreprocessFile(
        filePath, text, result, {function}, presets, messages, undefinesTokens, sourceLines, &gathered);
    if (notes != nullptr) {
        *notes = gathered.Take();
        for (SPreparationNote& note : *notes)
            if (note.file.empty())
                note.line = SourceLine(note.line, rewrittenLines);
        notes->insert(notes->begin(), rewriteNotes.begin(), rewriteNotes.end());
    }
    if (rewrittenLines.empty()) {
        errorText += messages;
        return isDone;
    }
    errorText += Uve::U8CString(WithSourceLines(messages, filePath, rewrittenLines));
    if (sourceLines != nullptr)
        for (std::uint32_t& line : *sourceLines)
            line = SourceLine(line, rewrittenLines);
    return isDone;
}

std::optional<Uve::U8CString> PreprocessorFailureMessage(const Uve::U8CString& errorText)
{
    SFailure failure;
    if (!FindFailure(errorText, failure))
        return std::nullopt;
    std::string message = std::string(failure.line) + ' ';
    if (failure.label.find("char error") != failure.label.npos)
        message += '\'' + CharacterOf(failure.code) + "' ";
    return Uve::U8CString(message + errorText);
}
