// What the run does with directives.
#include "Preparation/MacroHeaders.h"
#include "Preparation/MacroPreprocessorChecker.h"
#include "Preparation/MacroRun.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>

namespace MacroPreprocessorChecker {

using namespace internal;

namespace {

// Files that are open at a time, the main source not counted.
constexpr std::size_t kMostIncludes = 400;

// What a file counts for when it is entered, at least: without it a run over tiny files could go on for ever.
constexpr std::size_t kLeastEntered = 256;
constexpr std::size_t kEnteredForExpanded = 4;

bool IsConditional(std::string_view name)
{
    return name == "if" || name == "ifdef" || name == "ifndef" || name == "elif" || name == "else" ||
           name == "endif";
}

bool IsWordCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '$';
}

// "<name>" or "\"name\"" with something between the two.
bool IsHeaderName(std::string_view text)
{
    return text.size() > 1 &&
           ((text.front() == '<' && text.back() == '>') || (text.front() == '"' && text.back() == '"'));
}

} // namespace

bool Checker::RunDirective(SRun& run, const Token* hash)
{
    const Token* const name = NextOnLine(hash);
    const bool isNamed = name != nullptr && name->name;
    if (isNamed && IsConditional(name->str)) {
        if (!RunConditional(run, *name))
            return false;
    } else if (isNamed && run.IsLive()) {
        if (name->str == "define")
            return RunDefine(run, hash);
        if (name->str == "include")
            return RunInclude(run, *name);
        if (name->str == "error" || name->str == "warning") {
            if (!RunMessage(*name))
                return false;
        } else if (name->str == "undef") {
            if (const Token* const macro = NextOnLine(name))
                run.macros.Erase(macro->str);
        } else if (name->str == "pragma") {
            const Token* const once = NextOnLine(name);
            if (once != nullptr && once->str == "once")
                run.onceFiles.insert(realFilename(run.current.file));
        }
    }
    AddAllTokensCurrLine(run, run.isVerbatim);
    return true;
}

bool Checker::RunMessage(const Token& directive)
{
    std::string message;
    for (const Token* token = NextOnLine(&directive); token != nullptr; token = NextOnLine(token)) {
        if (!message.empty() && IsWordCharacter(message.back()) && IsWordCharacter(token->str.front()))
            message += ' ';
        message += token->str;
    }
    const bool isError = directive.str == "error";
    Report(isError ? ERROR_DIRECTIVE : WARNING_DIRECTIVE, directive.location, std::move(message));
    return !isError;
}

bool Checker::RunDefine(SRun& run, const Token* hash)
{
    std::unique_ptr<Macro> macro;
    try {
        macro = std::make_unique<Macro>(hash, store);
    } catch (const Macro::Error&) {
        return FailRun(*hash, "Failed to parse #define");
    }
    const std::string name(macro->Name());
    if (!presets.undefines.contains(name))
        run.macros.Replace(std::move(macro));
    else if (run.undefinesTokens != nullptr)
        run.undefinesTokens->try_emplace(name, macro->ReplacementText());
    AddAllTokensCurrLine(run, !run.isExpanding);
    return true;
}

// ---- Conditions ----

bool Checker::RunConditional(SRun& run, const Token& directive)
{
    const std::string_view name = directive.str;
    if (name == "if" || name == "ifdef" || name == "ifndef")
        return OpenConditional(run, directive);
    if (run.conditionals.size() == 1)
        return FailRun(directive, std::string("#").append(name) + " without #if");
    if (name == "endif") {
        run.conditionals.pop_back();
        return true;
    }
    // nothing is evaluated once a branch has been taken
    SRun::enState& state = run.conditionals.back().state;
    if (state == SRun::STATE_TRUE) {
        state = SRun::STATE_ALWAYS_FALSE;
    } else if (state == SRun::STATE_ELSE_IS_TRUE) {
        bool holds = true;
        if (name == "elif" && !EvaluateCondition(run, directive, holds))
            return false;
        if (holds)
            state = SRun::STATE_TRUE;
    }
    return true;
}

bool Checker::OpenConditional(SRun& run, const Token& directive)
{
    SRun::SConditional opened{SRun::STATE_ALWAYS_FALSE, directive.location};
    if (run.IsLive()) {
        bool holds = false;
        if (directive.str == "if") {
            if (!EvaluateCondition(run, directive, holds))
                return false;
        } else {
            const Token* const macro = NextOnLine(&directive);
            if (macro == nullptr || !macro->name)
                return FailRun(directive, "Syntax error in #" + std::string(directive.str));
            holds = (run.macros.Find(*macro) != nullptr) == (directive.str == "ifdef");
        }
        opened.state = holds ? SRun::STATE_TRUE : SRun::STATE_ELSE_IS_TRUE;
    }
    run.conditionals.push_back(opened);
    return true;
}

// ---- Include files ----

bool Checker::RunInclude(SRun& run, const Token& directive)
{
    const Token* const name = NextOnLine(&directive);
    std::string header = name == nullptr ? std::string() : std::string(name->str);
    if (name != nullptr && !IsHeaderName(header)) {
        header.clear();
        try {
            run.expander.ExpandLine(directive.next, false, [&](const Token& token) {
                const bool isOpen = header.empty() || !IsHeaderName(header);
                if (token.SkipWhenNextOrPrev() ? isOpen && !header.empty() : isOpen)
                    header += token.str;
            });
        } catch (const Macro::Error& error) {
            return FailRun(directive, std::string("failed to expand '#include', ") + error.what());
        }
    }
    if (!IsHeaderName(header))
        return FailRun(directive, "No header in #include");
    const Location where = directive.location;
    AddAllTokensCurrLine(run, true);
    return EnterHeader(run, where, header);
}

// `name`: with its quotes or brackets.
bool Checker::EnterHeader(SRun& run, const Location& directive, const std::string& name)
{
    const std::string header = name.substr(1, name.size() - 2);
    const bool isTooDeep = run.positions.size() >= kMostIncludes;
    const std::string path =
        isTooDeep ? std::string() : FindHeader(run.current.file, header, name.front() == '<');
    const bool isEntered =
        !path.empty() && (run.onceFiles.empty() || !run.onceFiles.contains(realFilename(path)));
    if (isTooDeep) {
        errorText += "#include nested too deeply\n";
        Warn("#include nested too deeply: " + name, directive);
    } else if (path.empty()) {
        errorText += "Preprocessor> Header not found : " + header + '\n';
        WarnOfHeader(run.current.file, name, directive);
    }
    // one that brings nothing in still writes a line, and may be told to do so again and again by a header
    if (isEntered)
        run.enteredBytes += std::max(fileData.at(path).size, kLeastEntered);
    else if (!run.positions.empty())
        run.enteredBytes += std::max(header.size(), kLeastEntered);
    if (run.enteredBytes / kEnteredForExpanded > presets.expansionLimit) {
        Report(INCLUDE_NESTED_TOO_DEEPLY, directive,
               "what '" + header + "' and the files before it bring in goes beyond the limit of " +
                   std::to_string(presets.expansionLimit) + " times " + std::to_string(kEnteredForExpanded) +
                   " bytes.");
        return false;
    }
    if (!isEntered)
        return true;
    run.positions.push_back(std::move(run.current));
    run.current = {fileData.at(path).tokens->first, path};
    return true;
}

} // namespace MacroPreprocessorChecker
