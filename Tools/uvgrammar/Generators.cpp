#include "Tools/uvgrammar/Generators.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolProcess.h"
#include "Tools/uvgrammar/ConflictReport.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace {

constexpr std::string_view kBlanks = " \t";

constexpr std::size_t kMostConflicts = 5;    // are shown where no report is asked for
constexpr unsigned kMostExampleSeconds = 60; // bison may look for hours

// Calls `take` with each line, without its LF.
template <class F>
void ForEachLine(std::string_view text, F take)
{
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        take(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

bool TakePrefix(std::string_view& text, std::string_view prefix)
{
    if (!text.starts_with(prefix))
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

int TakeNumber(std::string_view& text)
{
    const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
    const int number = std::atoi(std::string(text.substr(0, end)).c_str());
    text.remove_prefix(end);
    return number;
}

// Output files belong where this tool looks for them: what the source says of their names is blanked out, so
// that lines and columns stay.
std::string WithoutFileOptions(const std::string& source)
{
    std::string text = source;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        const std::string_view line = std::string_view(text).substr(at, end - at);
        if (line.starts_with("%%"))
            break;
        if (line.starts_with("%option")) {
            for (const std::string_view key : {"outfile=\"", "header-file=\"", "header=\""}) {
                const std::size_t from = line.find(key);
                if (from == std::string_view::npos)
                    continue;
                const std::size_t close = line.find('"', from + key.size());
                if (close != std::string_view::npos)
                    std::fill(text.begin() + static_cast<std::ptrdiff_t>(at + from),
                              text.begin() + static_cast<std::ptrdiff_t>(at + close + 1), ' ');
            }
        }
        at = end + 1;
    }
    return text;
}

// One line of a generator:
//     message = copy ":" [ line [ "." column ] [ "-" range ] ":" ] [ severity ] text
// for example "GrammarParser.y:12.3-9: warning: rule useless in parser due to conflicts [-Wother]" or
// "GrammarLexer.l:7: undeclared start condition X". `copy` is the name under which the generator knows the
// source. A grammar with conflicts means something else than it says, so these warnings are errors here.
void WriteGeneratorMessage(std::string_view line, std::string_view copy, const CGrammarSource& source,
                           CToolMessages& messages)
{
    std::string_view text = line;
    if (!TakePrefix(text, copy) || !TakePrefix(text, ":")) {
        messages.Note(std::string(line));
        return;
    }
    int lineNumber = 0;
    int column = 0;
    if (!text.empty() && text.front() >= '0' && text.front() <= '9') {
        lineNumber = TakeNumber(text);
        if (TakePrefix(text, "."))
            column = TakeNumber(text);
        text.remove_prefix(std::min(text.find(':'), text.size()));
        TakePrefix(text, ":");
    }
    TakePrefix(text, " ");
    enSeverity severity = enSeverity::Error;
    if (TakePrefix(text, "warning: ") || TakePrefix(text, "warning, "))
        severity = enSeverity::Warning;
    else if (TakePrefix(text, "note: "))
        severity = enSeverity::Note;
    else
        TakePrefix(text, "error: ");
    if (text.ends_with("[-Wconflicts-sr]") || text.ends_with("[-Wconflicts-rr]"))
        severity = enSeverity::Error;
    // What a language doesn't use of shared rules is its own affair.
    if (severity == enSeverity::Warning && source.IsShared(lineNumber) &&
        (text.find("useless") != std::string_view::npos ||
         text.find("cannot be matched") != std::string_view::npos))
        return;
    messages.Write(severity, source.Place(lineNumber, column), std::string(text));
}

// The lines of bison's example of a conflict follow the message about it.
bool BeginsExample(std::string_view message)
{
    return message.find(" conflict on token") != std::string_view::npos &&
           message.ends_with("[-Wcounterexamples]");
}

SProgramResult Generate(const std::string& program, const std::vector<std::string>& arguments,
                        const std::string& folder, unsigned mostSeconds = 0)
{
    SProgramResult result =
        RunProgram(program, arguments, folder, folder + "/" + program + ".log", mostSeconds);
    if (!result.wasStarted)
        throw CToolFailure(program + ": can't be run; is it installed?");
    return result;
}

void WriteGeneratorMessages(const std::string& program, const SProgramResult& result, const std::string& copy,
                            const CGrammarSource& source, CToolMessages& messages)
{
    const std::size_t errorsBefore = messages.ErrorCount();
    ForEachLine(result.output, [&](std::string_view line) {
        if (!line.empty() && line.find("rerun with option '-Wcounterexamples'") == std::string_view::npos)
            WriteGeneratorMessage(line, copy, source, messages);
    });
    if (result.exitCode != 0 && messages.ErrorCount() == errorsBefore)
        messages.Write(enSeverity::Error, source.Place(0),
                       program + " ended with code " + std::to_string(result.exitCode));
}

// bison's texts that have two meanings, as far as it has found them.
void WriteExamples(const SProgramResult& result, const CGrammarSource& source, CToolMessages& messages)
{
    std::string example; // with its message
    const auto endExample = [&] {
        if (!example.empty())
            messages.Write(enSeverity::Note, source.Place(0), example);
        example.clear();
    };
    ForEachLine(result.output, [&](std::string_view line) {
        if (!example.empty() && line.starts_with(' ')) {
            example.append("\n  ").append(line);
            return;
        }
        endExample();
        if (BeginsExample(line))
            example = line.substr(line.find("warning: ") + 9, line.rfind(" [") - line.find("warning: ") - 9);
    });
    endExample();
    if (result.wasStopped)
        messages.Write(enSeverity::Note, source.Place(0),
                       "no more examples were found within " + std::to_string(kMostExampleSeconds) +
                           " seconds");
}

void WriteConflicts(const std::string& report, bool all, const CGrammarSource& source,
                    CToolMessages& messages)
{
    const std::vector<SConflict> conflicts = ReadConflicts(report);
    const std::size_t shown = all ? conflicts.size() : std::min(conflicts.size(), kMostConflicts);
    for (std::size_t i = 0; i < shown; ++i)
        messages.Write(enSeverity::Note, source.Place(0), ConflictText(conflicts[i]));
    const std::size_t left = conflicts.size() - shown;
    if (!all)
        messages.Write(enSeverity::Note, source.Place(0),
                       left == 0
                           ? "--report shows an example of each conflict"
                           : std::to_string(left) +
                                 " more of these; --report shows them, and an example of each conflict");
}

} // namespace

void RunFlex(const CGrammarSource& source, const std::string& folder, SGeneratedFiles& files,
             CToolMessages& messages)
{
    const std::string copy = "GrammarLexer.l";
    WriteWholeFile(folder + "/" + copy, WithoutFileOptions(source.Text()));
    const std::size_t errorsBefore = messages.ErrorCount();
    const SProgramResult result =
        Generate("flex", {"-o", "GrammarLexer.c", "--header-file=GrammarLexer.h", copy}, folder);
    WriteGeneratorMessages("flex", result, copy, source, messages);
    if (messages.ErrorCount() != errorsBefore)
        return;
    files.lexerPath = folder + "/GrammarLexer.c";
    files.lexerHeaderPath = folder + "/GrammarLexer.h";
    files.lexerText = ReadWholeFile(files.lexerPath);
}

void RunBison(const CGrammarSource& source, const std::string& folder, SGeneratedFiles& files,
              CToolMessages& messages, bool explains)
{
    const std::string copy = "GrammarParser.y";
    WriteWholeFile(folder + "/" + copy, source.Text());
    const std::size_t errorsBefore = messages.ErrorCount();
    std::vector<std::string> arguments = {
        "--color=no", "-fno-caret",         "--report=state", "--report-file=GrammarParser.output",
        "-o",         "GrammarParser.raw.c"};
    if (FindDefaultReduction(source.Text()).line == 0)
        arguments.push_back("-Dlr.default-reduction=consistent");
    arguments.push_back(copy);
    const SProgramResult result = Generate("bison", arguments, folder);
    WriteGeneratorMessages("bison", result, copy, source, messages);
    if (result.output.find("[-Wconflicts-") != std::string::npos) {
        WriteConflicts(ReadWholeFile(folder + "/GrammarParser.output"), explains, source, messages);
        arguments.insert(arguments.begin(), "-Wcounterexamples");
        if (explains)
            WriteExamples(Generate("bison", arguments, folder, kMostExampleSeconds), source, messages);
    }
    if (messages.ErrorCount() != errorsBefore)
        return;
    files.parserText = ReadWholeFile(folder + "/GrammarParser.raw.c");
    files.parserReport = ReadWholeFile(folder + "/GrammarParser.output");
    files.parserPath = folder + "/GrammarParser.c";
    WriteWholeFile(files.parserPath, CleanParserText(files.parserText));
}

SDefaultReduction FindDefaultReduction(std::string_view source)
{
    SDefaultReduction found;
    int lineNumber = 0;
    bool isDeclarations = true;
    ForEachLine(source, [&](std::string_view line) {
        ++lineNumber;
        line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
        isDeclarations = isDeclarations && !line.starts_with("%%");
        if (!isDeclarations || !TakePrefix(line, "%define"))
            return;
        line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
        if (!TakePrefix(line, "lr.default-reduction"))
            return;
        line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
        found = {lineNumber, std::string(line.substr(0, line.find_first_of(" \t\r/")))};
    });
    return found;
}

std::string CleanParserText(const std::string& text)
{
    std::string clean;
    clean.reserve(text.size());
    bool isInTokens = false;
    ForEachLine(text, [&](std::string_view line) {
        const std::size_t indent = std::min(line.find_first_not_of(kBlanks), line.size());
        std::string_view rest = line.substr(indent);
        if (rest.starts_with("enum yytokentype"))
            isInTokens = true;
        else if (rest.starts_with("}"))
            isInTokens = false;
        if (isInTokens) {
            for (const std::string_view own : {"YYEMPTY = ", "YYerror = ", "YYUNDEF = "}) {
                if (rest.starts_with(own))
                    return;
            }
            line = line.substr(0, line.find("/*"));
        } else if (TakePrefix(rest, "case ") && TakeNumber(rest) > 0 && TakePrefix(rest, ": /*"))
            line = line.substr(0, line.size() - rest.size() - 3);
        clean.append(line).append(1, '\n');
    });
    return clean;
}
