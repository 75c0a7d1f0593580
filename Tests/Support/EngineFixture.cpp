#include "Tests/Support/EngineFixture.h"

#include "Grammar/UVGrammarManifest.h"
#include "UVEnvironment/FileHelper.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace {

STable<int> ReadTable(const std::string& path)
{
    STable<int> table;
    table.values.reset(UVDBGrammarKeeper::GetBinaryTableFromFile<int>(path.c_str(), table.count));
    return table;
}

std::string ReadAll(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("can't read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Unescaped(std::string_view text)
{
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\' || at + 1 == text.size()) {
            plain += text[at];
            continue;
        }
        switch (text[++at]) {
        case 'n':
            plain += '\n';
            break;
        case 't':
            plain += '\t';
            break;
        case 's':
            plain += ' ';
            break;
        case 'x':
            plain += static_cast<char>(std::stoi(std::string(text.substr(at + 1, 2)), nullptr, 16));
            at += 2;
            break;
        default:
            plain += text[at];
        }
    }
    return plain;
}

void Set(SEngineSettings& settings, const std::string& key, const std::string& value)
{
    const std::map<std::string, bool*> flags = {
        {"cr", &settings.isCr},
        {"development", &settings.isDevelopmentMode},
        {"mssqlqid", &settings.isMssqlQid},
        {"cpp", &settings.isCppDirectiveParse},
        {"ignoredefines", &settings.ignoresDefines},
    };
    const std::map<std::string, int*> numbers = {
        {"db", &settings.db}, {"major", &settings.versionMajor}, {"minor", &settings.versionMinor}};
    if (const auto flag = flags.find(key); flag != flags.end())
        *flag->second = value == "1";
    else if (const auto number = numbers.find(key); number != numbers.end())
        *number->second = std::stoi(value);
    else if (key == "source")
        settings.sourceDb = value;
    else if (key == "ui")
        settings.uiType = value;
    else
        settings.options[key] = value;
}

// 'text', with line feeds and other bytes that a case file can't show escaped.
std::string Quoted(const std::string& text)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string quoted = "'";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n')
            quoted += "\\n";
        else if (c == '\t')
            quoted += "\\t";
        else if (byte < 0x20 || byte >= 0x7f)
            quoted += std::string("\\x") + kDigits[byte >> 4] + kDigits[byte & 15];
        else
            quoted += c;
    }
    return quoted + "'";
}

} // namespace

std::ostream& operator<<(std::ostream& out, const SParseOutcome& outcome)
{
    out << "result " << outcome.result << (outcome.hasThrown ? ", thrown" : "") << ", last error "
        << outcome.lastError << '\n';
    for (const auto& [line, text] : outcome.errors)
        out << "unexpected in line " << line << ": " << text << '\n';
    return out << outcome.tree << '\n' << outcome.coloring;
}

std::string GrammarFolder(const std::string& grammar, const char* part)
{
    return std::string(Uve::GetPathOfExe()) + "/Grammar/" + grammar + "/" + part + "/";
}

CEngine::CEngine(const std::string& grammar, bool isCr)
    : m_Lexer(grammar.c_str(), isCr), m_Parser(grammar.c_str(), isCr)
{
    Link();
}

CEngine::CEngine(const std::string& scannerGrammar, const std::string& parserGrammar)
    : m_Lexer(scannerGrammar.c_str(), false), m_Parser(parserGrammar.c_str(), false)
{
    Link();
}

void CEngine::Link()
{
    if (m_Parser.yycreate(&m_Lexer) == 0 || m_Lexer.yycreate(&m_Parser) == 0)
        throw std::runtime_error("scanner and parser can't be linked");
}

SParseOutcome CEngine::Parse(const std::string& text, const SEngineSettings& settings)
{
    CSQLGrammarLexerImplementation& scan = m_Lexer.m_Extension;
    scan.m_bMSSQLQID = settings.isMssqlQid;
    scan.m_bCppDirectiveParse = settings.isCppDirectiveParse;
    scan.m_bIgnoreDefines = settings.ignoresDefines;
    scan.m_strAPISourceDB = settings.sourceDb;
    scan.m_strSrcUIType = settings.uiType;
    scan.m_mapOptions.clear();
    for (const auto& [name, value] : settings.options)
        scan.m_mapOptions[name] = value;
    scan.m_strColoring = "";
    m_Lexer.m_nDBVersionMajor = settings.versionMajor;
    m_Lexer.m_nDBVersionMinor = settings.versionMinor;
    m_Parser.m_Extension.set_DevelopmentMode(settings.isDevelopmentMode);
    m_Parser.m_Extension.m_mapErrors.clear();
    m_Parser.m_Extension.m_lstUnexpected.clear();

    SParseOutcome outcome;
    m_strException.clear();
    try {
        m_strQuery = text;
        m_Parser.m_Extension.set_Query(m_strQuery);
        m_Lexer.set_Query(m_strQuery, settings.db);
        outcome.result = m_Parser.yyparse();
    } catch (const std::exception& error) {
        outcome.hasThrown = true;
        m_strException = error.what();
    }
    outcome.tree = m_Parser.m_Extension.m_strParsedXml;
    if (m_Parser.Tree())
        WriteTree(m_Parser.Tree(), outcome.tree);
    outcome.coloring = scan.m_strColoring;
    outcome.lastError = m_Parser.m_Extension.m_strLastError;
    outcome.errors = m_Parser.m_Extension.m_mapErrors;
    return outcome;
}

void CEngine::UseCompressedTables()
{
    const std::shared_ptr<CScannerTables> tables = ReadScannerTables(m_Lexer.m_strParserName);
    tables->Compile("", static_cast<int>(m_Lexer.m_mapStartConditions.size()));
    tables->DropCompiled();
    m_Lexer.yyset_tables(tables);
}

std::shared_ptr<CScannerTables> ReadScannerTables(const std::string& grammar)
{
    auto tables = std::make_shared<CScannerTables>();
    const std::string folder = GrammarFolder(grammar, "Lexer");
    tables->accept = ReadTable(folder + "accept.dat");
    tables->base = ReadTable(folder + "base.dat");
    tables->chk = ReadTable(folder + "chk.dat");
    tables->def = ReadTable(folder + "def.dat");
    tables->NUL_trans = ReadTable(folder + "NUL_trans.dat");
    tables->nxt = ReadTable(folder + "nxt.dat");
    tables->rule_can_match_eol = ReadTable(folder + "rule_can_match_eol.dat");
    tables->acclist = ReadTable(folder + "acclist.dat");
    return tables;
}

std::string Sketch(std::string_view tree)
{
    std::string sketch;
    std::vector<std::string> open;
    std::vector<bool> isMerged;
    const auto add = [&](const std::string& piece) {
        if (!sketch.empty() && sketch.back() != '(')
            sketch += ' ';
        sketch += piece;
    };
    ForEachTag(tree, [&](std::string_view tag, std::string_view escaped) {
        const std::string name(tag);
        if (name == "SQL" || name == "/SQL" || name.starts_with("/T"))
            return;
        if (name.front() == '/') {
            if (open.empty() || "/" + open.back() != name)
                throw std::runtime_error("the tree closes " + name);
            if (!isMerged.back())
                sketch += ')';
            open.pop_back();
            isMerged.pop_back();
        } else if (name.front() == 'T') {
            std::string text;
            AppendPlain(escaped, text);
            if (name != "T__SPACE")
                add(name.substr(1) + Quoted(text));
            else if (!text.empty())
                add(Quoted(text));
        } else {
            const bool merges = !open.empty() && open.back() == name && sketch.back() == '(';
            if (!merges)
                add(name + "(");
            open.push_back(name);
            isMerged.push_back(merges);
        }
    });
    return sketch;
}

bool FitsIntoXml(std::string_view text)
{
    return text.find_first_of("\x0c\x10") == std::string_view::npos;
}

std::string WithoutPositions(std::string_view tree)
{
    std::string text;
    constexpr std::string_view kPos = " pos=\"";
    for (std::size_t at = tree.find(kPos); at != std::string_view::npos; at = tree.find(kPos)) {
        text += tree.substr(0, at);
        tree.remove_prefix(tree.find('"', at + kPos.size()) + 1);
    }
    return text.append(tree);
}

std::vector<SGrammarCase> ReadGrammarCases(const std::string& grammar)
{
    const std::string path = UV_SOURCE_DIR "/Tests/Grammars/" + grammar + "/Cases.txt";
    std::istringstream lines(ReadAll(path));
    std::vector<SGrammarCase> cases;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (line.empty() || line.front() == '#')
            continue;
        const std::size_t colon = line.find(':');
        const std::string key = line.substr(0, colon);
        const std::string value = colon + 2 < line.size() ? line.substr(colon + 2) : std::string();
        if (key == "input" || key == "broken") {
            cases.emplace_back();
            cases.back().line = number;
            cases.back().input = Unescaped(value);
            cases.back().isBroken = key == "broken";
        } else if (key == "given") {
            std::istringstream words(value);
            for (std::string word; words >> word;)
                Set(cases.back().settings, word.substr(0, word.find('=')), word.substr(word.find('=') + 1));
        } else if (key == "tree")
            cases.back().tree = value;
        else if (key == "errors")
            cases.back().errors = value;
        else if (key == "coloring")
            cases.back().coloring = value;
        else
            throw std::runtime_error(path + ":" + std::to_string(number) + ": " + line);
    }
    return cases;
}

CGrammarCopy::CGrammarCopy(const std::string& grammar)
    : m_strName(grammar + "Copy" + std::to_string(getpid()))
{
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(GrammarFolder(grammar, "Lexer")).parent_path().parent_path();
    m_strFolder = (folder.parent_path() / m_strName).string();
    fs::remove_all(m_strFolder);
    fs::copy(folder, m_strFolder, fs::copy_options::recursive);
    m_strManifest = Read(kManifestName);
    fs::remove(Path(kManifestName));
    for (const auto& entry : fs::recursive_directory_iterator(m_strFolder)) {
        const std::string file = fs::relative(entry.path(), m_strFolder);
        if (entry.is_regular_file() && Read(file).starts_with("\x1f\x8b"))
            SetTable(file, Table(file));
    }
}

CGrammarCopy::~CGrammarCopy()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_strFolder, ignored);
}

std::string CGrammarCopy::Read(const std::string& file) const
{
    return ReadAll(Path(file));
}

void CGrammarCopy::RestoreManifest() const
{
    Write(kManifestName, m_strManifest);
}

void CGrammarCopy::Write(const std::string& file, std::string_view content) const
{
    // a new file each time: one that is cut and written again is flushed to the disk
    std::filesystem::remove(Path(file));
    std::ofstream out(Path(file), std::ios::binary);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!out.flush())
        throw std::runtime_error("can't write " + Path(file));
}

std::vector<int> CGrammarCopy::Table(const std::string& file) const
{
    const STable<int> table = ReadTable(Path(file));
    return {table.values.get(), table.values.get() + table.count};
}

void CGrammarCopy::SetTable(const std::string& file, const std::vector<int>& entries) const
{
    std::string content(4 * (entries.size() + 1), '\0');
    const auto count = static_cast<std::uint32_t>(entries.size());
    std::memcpy(content.data(), &count, 4);
    std::memcpy(content.data() + 4, entries.data(), 4 * entries.size());
    Write(file, content);
}
