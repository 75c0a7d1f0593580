#include "Preparation/MacroPreprocessorChecker.h"

#include "Preparation/MacroHeaders.h"
#include "Preparation/MacroRun.h"

#include <array>
#include <exception>
#include <fstream>
#include <iterator>
#include <string_view>
#include <utility>

namespace MacroPreprocessorChecker {

using namespace internal;

namespace {

// By enErrorType.
constexpr std::array<std::string_view, 8> kLabels = {
    "#error: ",       "#warning: ",    "missing header: ",       "include nested too deeply: ",
    "syntax error: ", "portability: ", "unhandled char error: ", "explicit include not found: ",
};

// A NUL byte stands in it, where a text in single bytes would end.
bool IsBinary(std::string_view text)
{
    return text.find('\0') != text.npos && !text.starts_with("\xFF\xFE") && !text.starts_with("\xFE\xFF");
}

// A directive as it is written, and other messages without what their text says anyway.
std::string NoteText(const ErorrOutput& error)
{
    switch (error.type) {
    case ERROR_DIRECTIVE:
        return "#error " + error.msg;
    case WARNING_DIRECTIVE:
        return "#warning " + error.msg;
    default:
        return error.msg;
    }
}

// Writes the tokens of an expansion, apart where they would be read differently otherwise.
class ExpansionWriter
{
public:
    // `lastText`: what stands before the call and may run into it; borrowed.
    ExpansionWriter(TokenWriter& output, const Token& call, std::string_view lastText)
        : m_Output(output), m_Line(call.sourceLine), m_LastText(lastText)
    {}

    void Add(const Token& token)
    {
        if (token.IsNextLineToken()) {
            m_Output.EndLine(m_Line);
            m_LastText = {};
        } else if (token.SkipWhenNextOrPrev()) {
            m_Output.Write(token.str, m_Line);
            m_LastText = {};
        } else {
            // outside of functions the reader leaves the characters of "++" apart: what stood together stays
            // so
            const bool stoodTogether = m_Last != nullptr && m_Last->next == &token;
            if (!stoodTogether && WouldJoin(m_LastText, token.str))
                m_Output.Write(" ", m_Line);
            m_Output.Write(token.str, m_Line);
            m_LastText = token.str;
        }
        m_Last = &token;
    }

    std::string_view LastText() const { return m_LastText; }

private:
    TokenWriter& m_Output;
    std::uint32_t m_Line;
    std::string_view m_LastText;
    const Token* m_Last = nullptr; // borrowed from the expansion
};

// The first significant token of a line, from the line's first token; null if there is none.
const Token* FirstInk(const Token* token)
{
    const std::uint32_t line = token->sourceLine;
    while (token != nullptr && token->sourceLine == line && token->IsWhite())
        token = token->next;
    return token != nullptr && token->sourceLine == line ? token : nullptr;
}

// Tokens that are read, and deleted, at a time: those of a piece stay in the processor's first cache.
constexpr std::size_t kPiece = 512;

// The text as the reader takes it, which the store keeps if it isn't the text itself.
std::string_view Decoded(TokenStore& store, const std::string& text)
{
    return WantsDecoding(text) ? store.Keep(DecodeText(text)) : std::string_view(text);
}

// The header names of a list's "#include" lines.
void CollectHeaders(const TokenList& list, std::set<std::string>& names)
{
    for (const Token* token = list.first; token != nullptr; token = token->next) {
        if (token->op != '#' || !StartsDirective(token))
            continue;
        const Token* const include = NextSignificant(token);
        const Token* const name =
            include != nullptr && include->str == "include" ? NextSignificant(include) : nullptr;
        if (name == nullptr || name->sourceLine != token->sourceLine || name->str.size() < 2)
            continue;
        if (name->str.front() == '<' || name->str.front() == '"')
            names.emplace(name->str);
    }
}

} // namespace

bool Checker::PreprocessFile(const std::string& filePath, const std::string& text, Uve::U8CString& result,
                             Command command, const DefaultPresetValues& presets, Uve::U8CString& errorText,
                             const std::shared_ptr<UndefinesTokens>& undefinesTokens,
                             std::vector<std::uint32_t>* sourceLines, CPreparationNotes* notes)
{
    CPreparationNotes unwanted;
    CPreparationNotes& taken = notes != nullptr ? *notes : unwanted;
    result = Uve::U8CString();
    try {
        Checker checker(filePath, text, presets, sourceLines, taken);
        const bool isDone = checker.LoadSourceFile() && checker.LoadOtherFiles() &&
                            checker.RunCommand(command, undefinesTokens.get());
        checker.GetErrors(errorText);
        if (isDone)
            result = checker.m_Writer.TakeText();
        else if (sourceLines != nullptr)
            sourceLines->clear();
        return isDone;
    } catch (const std::exception& error) {
        errorText += Uve::U8CString(std::string("ERROR!!! std::exception : ") + error.what() + ".\n");
        taken.AddError(error.what());
    } catch (...) {
        errorText += Uve::U8CString("ERROR!!! some exception.\n");
        taken.AddError("some exception");
    }
    if (sourceLines != nullptr)
        sourceLines->clear();
    return false;
}

Checker::Checker(const std::string& path, const std::string& source, const DefaultPresetValues& values,
                 std::vector<std::uint32_t>* sourceLines, CPreparationNotes& notes)
    : filePath(path), presets(values), rawTokens(store), m_IncludeRoot(values.includeRoot), m_Notes(notes),
      m_Source(Decoded(store, source)), m_Reader(rawTokens, m_Source, filePath, errors, false),
      m_Writer(sourceLines)
{}

Checker::~Checker() = default;

bool Checker::LoadSourceFile()
{
    do {
        rawTokens.clear();
        m_HasMore = m_Reader.Skim(kPiece);
        CollectHeaders(rawTokens, m_MainHeaders);
    } while (m_HasMore);
    rawTokens.clear();
    m_Reader.Restart();
    return CheckErrorResult();
}

// All files are read before anything runs, whether or not a condition lets them be included.
bool Checker::LoadOtherFiles()
{
    std::vector<std::string> loaded;
    for (const std::string& name : presets.explicitIncludes) {
        const std::string path = simplifyPath(name);
        if (fileData.contains(path))
            continue;
        if (LoadHeader(path)) {
            loaded.push_back(path);
        } else {
            errorText +=
                "Preprocessor> Can not open include file '" + name + "' that is explicitly included.\n";
            m_Notes.AddWarning("explicit include not found: " + name);
        }
    }
    LoadHeaders(filePath, m_MainHeaders, loaded);
    while (!loaded.empty()) {
        const std::string path = std::move(loaded.back());
        loaded.pop_back();
        std::set<std::string> names;
        CollectHeaders(*fileData.at(path).tokens, names);
        LoadHeaders(path, names, loaded);
    }
    return CheckErrorResult();
}

void Checker::LoadHeaders(const std::string& sourceFile, const std::set<std::string>& names,
                          std::vector<std::string>& loaded)
{
    for (const std::string& name : names) {
        const std::size_t known = fileData.size();
        const std::string path = FindHeader(sourceFile, name.substr(1, name.size() - 2), name.front() == '<');
        if (fileData.size() != known)
            loaded.push_back(path);
        if (!errors.empty())
            return;
    }
}

std::string Checker::FindHeader(const std::string& sourceFile, const std::string& header, bool isSystem)
{
    for (const std::string& path : HeaderPlaces(presets.includePaths, sourceFile, header, isSystem))
        if (fileData.contains(path) || LoadHeader(path))
            return path;
    return std::string();
}

// Says why a header isn't there.
void Checker::WarnOfHeader(const std::string& sourceFile, const std::string& name, const Location& directive)
{
    const std::string header = name.substr(1, name.size() - 2);
    std::string text = "header not found: " + name;
    for (const std::string& path :
         HeaderPlaces(presets.includePaths, sourceFile, header, name.front() == '<')) {
        if (!m_RefusedHeaders.contains(path))
            continue;
        const bool isOutside = !m_IncludeRoot.Holds(path);
        text =
            (isOutside ? "header not found below the folder of INCLUDE_ROOT: " : "header that is no text: ") +
            name;
    }
    Warn(text, directive);
}

// The limit bounds what a reader can be made to hold: a token takes many times the memory of its text.
bool Checker::LoadHeader(const std::string& path)
{
    if (m_RefusedHeaders.contains(path))
        return false;
    if (!m_IncludeRoot.Holds(path)) {
        m_RefusedHeaders.insert(path);
        return false;
    }
    std::ifstream stream;
    if (!OpenHeader(stream, path))
        return false;
    SHeader header{std::make_unique<TokenList>(store)};
    std::string text;
    std::array<char, 65536> block;
    do {
        stream.read(block.data(), block.size());
        text.append(block.data(), static_cast<std::size_t>(stream.gcount()));
    } while (stream && m_LoadedBytes + text.size() <= presets.expansionLimit);
    if (IsBinary(text)) {
        m_RefusedHeaders.insert(path);
        return false;
    }
    m_LoadedBytes += text.size();
    header.size = text.size();
    if (m_LoadedBytes > presets.expansionLimit)
        Report(MISSING_HEADER, Location{header.tokens->fileIndex(path)},
               "the include files are larger than " + std::to_string(presets.expansionLimit) + " bytes.");
    else
        header.tokens->readtext(std::move(text), path, errors, true);
    fileData.emplace(path, std::move(header));
    return true;
}

void Checker::Report(enErrorType type, const Location& location, std::string message)
{
    errors.push_back({type, location, std::move(message)});
}

// Empty: the main source.
std::string Checker::FileOfNote(const Location& location) const
{
    const std::string& file = store.FileName(location);
    return file == filePath ? std::string() : file;
}

void Checker::Warn(const std::string& text, const Location& location)
{
    m_Notes.AddWarning(text, location.line, FileOfNote(location));
}

bool Checker::CheckErrorResult()
{
    for (const ErorrOutput& error : errors) {
        const std::string note = NoteText(error);
        if (error.type == WARNING_DIRECTIVE || error.type == PORTABILITY)
            Warn(note, error.location);
        else
            m_Notes.AddError(note, error.location.line, FileOfNote(error.location));
        errorText += store.FileName(error.location) + " : " + std::to_string(error.location.line) + " : ";
        errorText += kLabels[error.type];
        errorText += error.msg + '\n';
    }
    return errors.empty();
}

void Checker::GetErrors(Uve::U8CString& text) const
{
    text += Uve::U8CString(errorText);
}

// ---- The run ----

bool Checker::RunCommand(Command command, UndefinesTokens* undefinesTokens)
{
    SRun run(command, store, presets, undefinesTokens,
             [this, &run](const Token& token) { return Following(run, token); });
    DefinePresets(run);
    m_Writer.Reserve(m_Source.size());
    m_HasMore = m_Reader.Read(kPiece);
    run.conditionals.push_back({SRun::STATE_TRUE, Location()});
    run.positions.push_back({rawTokens.first, filePath});
    for (const std::string& name : presets.explicitIncludes) {
        const auto header = fileData.find(simplifyPath(name));
        if (header != fileData.end())
            run.positions.push_back({header->second.tokens->first, header->first});
    }
    const bool isWhole = RunTokens(run);
    for (std::size_t i = 1; isWhole && i < run.conditionals.size(); ++i) {
        const Location& opened = run.conditionals[i].opened;
        errorText += store.FileName(opened) + " : " + std::to_string(opened.line) + " : #endif not found\n";
        Warn("no #endif closes the condition of line " + std::to_string(opened.line), opened);
    }
    return CheckErrorResult() && isWhole;
}

void Checker::DefinePresets(SRun& run)
{
    for (const std::string& preset : presets.defines) {
        if (preset.empty())
            continue;
        const std::size_t equals = preset.find('=');
        if (presets.undefines.contains(preset.substr(0, preset.find_first_of("=("))))
            continue;
        auto macro = std::make_unique<Macro>(preset.substr(0, equals),
                                             equals == preset.npos ? "1" : preset.substr(equals + 1), store);
        run.macros.Add(std::move(macro));
    }
    for (const Macro::enKind kind : {Macro::KIND_FILE, Macro::KIND_LINE, Macro::KIND_COUNTER})
        run.macros.Add(std::make_unique<Macro>(kind, store));
}

bool Checker::RunTokens(SRun& run)
{
    for (;;) {
        if (run.current.token == nullptr) {
            if (run.positions.empty())
                return true;
            run.current = std::move(run.positions.back());
            run.positions.pop_back();
            continue;
        }
        if (const Token* const ink = FirstInk(run.current.token); ink != nullptr && ink->op == '#') {
            if (!RunDirective(run, ink))
                return false;
        } else if (!run.IsLive()) {
            AddAllTokensCurrLine(run, run.isVerbatim);
        } else if (!RunLine(run)) {
            return false;
        }
    }
}

// The tokens of an ordinary line, and those of the lines that a macro's arguments run over.
bool Checker::RunLine(SRun& run)
{
    std::uint32_t line = run.current.token->sourceLine;
    while (run.current.token != nullptr && run.current.token->sourceLine == line) {
        const Token& token = *run.current.token;
        const Macro* const macro = run.macros.Find(token);
        if (macro != nullptr && run.isExpanding) {
            if (!preprocessToken(run, line))
                return false;
            continue;
        }
        Take(run);
        if (token.hidden || run.isExpanding)
            continue;
        if (!run.statementCalls.empty())
            FollowStatementCall(run, token);
        if (macro != nullptr && macro->EndsStatement())
            KeepStatement(run, *macro, token);
    }
    return true;
}

// Expands the macro at the current token. `line` becomes the line where its call ends.
bool Checker::preprocessToken(SRun& run, std::uint32_t& line)
{
    const Token& name = *run.current.token;
    const Token* const before = name.previous;
    if (!run.isBehindExpansion) {
        const bool isAdjacent = before != nullptr && before->sourceLine == line && !before->IsWhite();
        run.lastText = isAdjacent ? before->str : std::string_view();
    } else if (run.expansionLine != line) {
        run.lastText.clear();
    }
    ExpansionWriter writer(m_Writer, name, run.lastText);
    Token* last = nullptr;
    try {
        run.current.token = run.expander.ExpandCall(
            run.current.token,
            [&](const Token& token) {
                if (!name.hidden)
                    writer.Add(token);
            },
            &last);
    } catch (const Macro::Error& error) {
        Report(SYNTAX_ERROR, error.location,
               "failed to expand '" + std::string(name.str) + "', " + error.what());
        return false;
    }
    m_Writer.Flush(); // the tokens of an expansion live until the next
    run.lastText = std::string(writer.LastText());
    line = last->sourceLine;
    run.expansionLine = line;
    run.isBehindExpansion = !name.hidden;
    return true;
}

// The token after one of the source's, for which another piece of the main source may have to be read. What
// the run has done with makes room for it, but for the token before the current one, which this may have to
// stand apart from.
Token* Checker::Following(SRun& run, const Token& token)
{
    while (token.next == nullptr && !token.hidden && m_HasMore) {
        const Token* const current = run.current.token;
        if (current->previous != nullptr)
            rawTokens.DeleteBefore(current->previous);
        m_HasMore = m_Reader.Read(kPiece);
    }
    return token.next;
}

// Writes the current token and goes to the next one.
void Checker::Take(SRun& run)
{
    const Token& token = *run.current.token;
    if (!token.hidden) {
        if (run.isBehindExpansion) {
            if (token.sourceLine == run.expansionLine && !token.IsWhite() &&
                WouldJoin(run.lastText, token.str))
                m_Writer.Write(" ", token.sourceLine);
            run.isBehindExpansion = false;
        }
        m_Writer.Write(token);
    }
    run.current.token = Following(run, token);
}

// Goes to the next line, which keeps its indentation.
void Checker::AddAllTokensCurrLine(SRun& run, bool keep)
{
    const std::uint32_t line = run.current.token->sourceLine;
    while (run.current.token != nullptr && run.current.token->sourceLine == line) {
        if (keep) {
            Take(run);
            continue;
        }
        run.current.token = Following(run, *run.current.token);
    }
}

// A macro whose replacement ends a statement still ends one where it isn't expanded, after its arguments if
// it takes some.
void Checker::KeepStatement(SRun& run, const Macro& macro, const Token& name)
{
    const Token* following = run.current.token;
    while (following != nullptr && following->IsWhite())
        following = Following(run, *following);
    const char op = following == nullptr ? '\0' : following->op;
    if (!macro.IsFunctionLike()) {
        if (op != ';')
            AddSemicolon(name);
    } else if (op == '(') {
        if (run.statementCalls.empty())
            run.parentheses = 0;
        run.statementCalls.push_back(run.parentheses);
    }
}

void Checker::FollowStatementCall(SRun& run, const Token& taken)
{
    if (taken.op == '(')
        ++run.parentheses;
    if (taken.op != ')' || run.parentheses == 0 || --run.parentheses != run.statementCalls.back())
        return;
    run.statementCalls.pop_back();
    const Token* following = run.current.token;
    while (following != nullptr && following->IsWhite())
        following = Following(run, *following);
    if (following == nullptr || following->op != ';')
        AddSemicolon(taken);
}

void Checker::AddSemicolon(const Token& before)
{
    m_Writer.Write(";", before.sourceLine);
}

bool Checker::FailRun(const Token& where, std::string message)
{
    Report(SYNTAX_ERROR, where.location, std::move(message));
    return false;
}

} // namespace MacroPreprocessorChecker
