// Beside the system's own preprocessor: what it accepts must be accepted and give the same tokens. Left out,
// since the two are meant to differ there:
//  - include files and #pragma lines: ours keep or drop the line and bring no text in
//  - arithmetic without sign (1u > -1), and operands that C doesn't evaluate (0 && 1/0): here all is signed
//  and folded
//  - __LINE__ in arguments over several lines: here it is the line of the macro's name
//  - names and operators cut by a continued line: here these are two tokens
//  - a number with a point or a sign after a name that comes out of a macro: theirs may print the two as one
//  word
//  - a character constant right after a number: here the apostrophe separates digits
//  - __VA_OPT__, and what the compiler predefines
#include "Tests/Preparation/MacroFixture.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <optional>
#include <random>
#include <set>

namespace {

// The tokens of C text, comments and the lines of directives left out.
std::vector<std::string> CTokens(std::string_view text)
{
    constexpr std::string_view operators[] = {"<<=", ">>=", "...", "++", "--", "->", "<<", ">>",
                                              "<=",  ">=",  "==",  "!=", "&&", "||", "+=", "-=",
                                              "*=",  "/=",  "%=",  "&=", "|=", "^=", "##"};
    const auto isWord = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
               c == '$';
    };
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    std::vector<std::string> tokens;
    bool isLineStart = true;
    for (std::size_t at = 0; at < text.size();) {
        const char c = text[at];
        const char next = at + 1 < text.size() ? text[at + 1] : '\0';
        std::size_t end = at + 1;
        if (c == '\n' || c == ' ' || c == '\t' || c == '\f' || c == '\v' || (c == '\\' && next == '\n')) {
            isLineStart = c == '\n' || (isLineStart && c != '\\');
            at += c == '\\' ? 2 : 1;
            continue;
        }
        if (c == '/' && next == '*') {
            end = text.find("*/", at + 2);
            at = end == text.npos ? text.size() : end + 2;
            continue;
        }
        if ((c == '/' && next == '/') || (c == '#' && isLineStart)) {
            do
                at = std::min(text.find('\n', at + 1), text.size());
            while (at < text.size() && text[at - 1] == '\\');
            continue;
        }
        isLineStart = false;
        if (isDigit(c) || (c == '.' && isDigit(next))) {
            while (end < text.size() && (isWord(text[end]) || text[end] == '.' ||
                                         ((text[end] == '+' || text[end] == '-') &&
                                          std::string_view("eEpP").find(text[end - 1]) < 4)))
                ++end;
        } else if (isWord(c)) {
            while (end < text.size() && isWord(text[end]))
                ++end;
        }
        if (end < text.size() && (text[end] == '"' || text[end] == '\'') && text[end - 1] == 'L' &&
            end == at + 1)
            ++end; // a prefix
        const char quote = text[end - 1];
        if (quote == '"' || quote == '\'') {
            while (end < text.size() && text[end] != quote)
                end += text[end] == '\\' ? 2u : 1u;
            end = std::min(end + 1, text.size());
        } else if (end == at + 1) {
            for (const std::string_view sign : operators)
                if (text.substr(at).starts_with(sign)) {
                    end = at + sign.size();
                    break;
                }
        }
        tokens.emplace_back(text.substr(at, end - at));
        at = end;
    }
    return tokens;
}

class MacroDifferential : public CMacroFolder
{
protected:
    // Nothing if the system's preprocessor doesn't accept the source.
    std::optional<std::string> System(const std::string& source, const std::vector<std::string>& defines = {})
    {
        Write("in.c", source);
        std::string options;
        for (const std::string& define : defines)
            options += " -D" + define;
        std::FILE* const pipe = popen(
            ("cpp -P -undef -nostdinc -std=gnu11" + options + ' ' + Path("in.c") + " 2>/dev/null").c_str(),
            "r");
        if (pipe == nullptr)
            return std::nullopt;
        std::string text;
        char block[4096];
        for (std::size_t got; (got = std::fread(block, 1, sizeof(block), pipe)) > 0;)
            text.append(block, got);
        return pclose(pipe) == 0 ? std::optional(text) : std::nullopt;
    }

    // Returns: true if the system accepts the source; then ours has to.
    bool Compare(const std::string& source, const std::vector<std::string>& defines = {})
    {
        const auto expected = System(source, defines);
        if (!expected)
            return false;
        MacroPreprocessorChecker::DefaultPresetValues presets;
        presets.defines.assign(defines.begin(), defines.end());
        const SMacroRun run = RunMacros(2, source, presets, Path("in.c"));
        if (!run.isDone) {
            ADD_FAILURE() << run.errors << source;
            return true;
        }
        const std::vector<std::string> ours = CTokens(run.text);
        const std::vector<std::string> theirs = CTokens(*expected);
        const auto [at, there] = std::ranges::mismatch(ours, theirs);
        if (at != ours.end() || there != theirs.end())
            ADD_FAILURE() << "token " << at - ours.begin() << ": " << (at == ours.end() ? "the end" : *at)
                          << " for " << (there == theirs.end() ? "the end" : *there) << " in\n"
                          << source << "\nours:\n"
                          << run.text << "\ntheirs:\n"
                          << *expected;
        return true;
    }

    static bool HasSystem() { return std::system("cpp --version > /dev/null 2>&1") == 0; }
};

// Programs of definitions, conditions and uses. Each macro is used with as many arguments as it takes.
class Generator
{
public:
    explicit Generator(unsigned seed) : m_Random(seed) {}

    std::string Program()
    {
        m_Text.clear();
        m_Macros.clear();
        const int lines = 8 + Below(25);
        for (int i = 0; i < lines; ++i)
            Line(2);
        return m_Text;
    }

private:
    struct SMacro
    {
        std::string name;
        int parameters = -1; // -1: object-like
        bool isVariadic = false;
    };

    template <class T>
    const T& AnyOf(const std::vector<T>& values)
    {
        return values[static_cast<std::size_t>(Below(static_cast<int>(values.size())))];
    }
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_Random); }
    template <std::size_t N>
    std::string OneOf(const char* const (&texts)[N])
    {
        return texts[Below(N)];
    }

    void Line(int depth)
    {
        switch (Below(10)) {
        case 0:
        case 1:
        case 2:
            return Define();
        case 3:
            if (depth > 0)
                return Conditional(depth - 1);
            [[fallthrough]];
        case 4:
            if (Below(3) == 0) {
                m_Text += "#undef " + Name() + "\n";
                return;
            }
            [[fallthrough]];
        default:
            m_Text += Text(4 + Below(8), {}) + ";" + (Below(4) == 0 ? " // end\n" : "\n");
        }
    }

    std::string Name() { return OneOf({"A", "B", "C", "D", "f", "g", "h", "k"}); }

    void Define()
    {
        SMacro macro{Name()};
        std::vector<std::string> parameters;
        std::string line = "#define " + macro.name;
        if (Below(2) == 0) {
            macro.parameters = Below(4);
            for (int i = 0; i < macro.parameters; ++i)
                parameters.push_back(std::string(1, static_cast<char>('x' + i)));
            macro.isVariadic = macro.parameters > 0 && Below(4) == 0;
            line += '(';
            for (int i = 0; i < macro.parameters; ++i)
                line += (i > 0 ? ", " : "") + (macro.isVariadic && i + 1 == macro.parameters
                                                   ? std::string("...")
                                                   : parameters[static_cast<std::size_t>(i)]);
            line += ')';
            if (macro.isVariadic)
                parameters.back() = "__VA_ARGS__";
        }
        line += ' ' + Body(parameters);
        std::erase_if(m_Macros, [&](const SMacro& known) { return known.name == macro.name; });
        m_Macros.push_back(macro);
        m_Text += line + (Below(4) == 0 ? " /* c */\n" : "\n");
    }

    std::string Body(const std::vector<std::string>& parameters)
    {
        std::string body;
        const int pieces = Below(6);
        for (int i = 0; i < pieces; ++i) {
            if (!parameters.empty() && Below(4) == 0) {
                body += '#' + AnyOf(parameters) + ' ';
            } else if (!parameters.empty() && Below(4) == 0) {
                body +=
                    OneOf({"p", "q", "A", "f"}) + (Below(2) == 0 ? "##" : " ## ") + AnyOf(parameters) + ' ';
            } else {
                body += Text(1, parameters);
            }
            if (Below(6) == 0)
                body += "\\\n  ";
        }
        return body;
    }

    std::string Text(int pieces, const std::vector<std::string>& parameters, int depth = 3)
    {
        std::string text;
        for (int i = 0; i < pieces; ++i) {
            const int kind = Below(12);
            if (kind < 5 && !m_Macros.empty())
                text += Use(AnyOf(m_Macros), parameters, depth);
            else if (kind < 8 && !parameters.empty())
                text += AnyOf(parameters);
            else
                text += OneOf({"v", "w", "1", "0x1f", "25e3", "\"s\\n\"", " 'c'", "+", "-", "(v)", "*", "<<",
                               "A", "f"});
            if (Below(3) > 0)
                text += OneOf({" ", " ", " ", "  ", " /* x */ ", "\t"});
            else if (Below(3) == 0)
                text += '-';
        }
        return text;
    }

    std::string Use(const SMacro& macro, const std::vector<std::string>& parameters, int depth)
    {
        if (macro.parameters < 0 || Below(8) == 0)
            return macro.name;
        std::string call = macro.name + (Below(5) == 0 ? " (" : "(");
        const int count = macro.parameters + (macro.isVariadic ? Below(3) : 0);
        for (int i = 0; i < count; ++i) {
            call += i > 0 ? OneOf({",", ", ", " ,"}) : std::string();
            // mostly what "##" joins
            call += depth == 0 || Below(2) == 0 ? OneOf({"v", "1", "w2", "(1, 2)", "", "A", "f"})
                                                : Text(1 + Below(2), parameters, depth - 1);
        }
        return call + ')';
    }

    std::string Condition(int depth)
    {
        if (depth == 0 || Below(3) == 0)
            return OneOf(
                {"0", "1", "A", "B", "defined A", "defined(f)", "!defined C", "2", "07", "'a'", "unknown"});
        if (Below(5) == 0)
            return '(' + Condition(depth - 1) + " ? " + Condition(depth - 1) + " : " + Condition(depth - 1) +
                   ')';
        return '(' + Condition(depth - 1) + ' ' +
               OneOf({"+", "-", "*", "<<", "<", ">", "<=", ">=", "==", "!=", "&", "|", "^", "&&", "||"}) +
               ' ' + OneOf({"", "-", "!", "~"}) + Condition(depth - 1) + ')';
    }

    void Conditional(int depth)
    {
        m_Text += OneOf({"#ifdef A", "#ifndef f", "#  if 1", "#if 0"}) + "\n";
        if (Below(2) == 0)
            m_Text.replace(m_Text.find_last_of('#'), m_Text.npos, "#if " + Condition(3) + '\n');
        for (int i = Below(4); i >= 0; --i)
            Line(depth);
        if (Below(2) == 0) {
            m_Text += "#elif " + Condition(2) + '\n';
            Line(depth);
        }
        if (Below(2) == 0) {
            m_Text += "#else\n";
            Line(depth);
        }
        m_Text += "#endif\n";
    }

    std::mt19937 m_Random;
    std::string m_Text;
    std::vector<SMacro> m_Macros;
};

TEST_F(MacroDifferential, GeneratedProgramsGiveTheSameTokens)
{
    ASSERT_TRUE(HasSystem()) << "there is no cpp, though it comes with the compiler";
    const char* const wish = std::getenv("UV_MACRO_SEED");
    const unsigned seed =
        wish != nullptr ? static_cast<unsigned>(std::strtoul(wish, nullptr, 10)) : 20240607u;
    std::cout << "seed " << seed << '\n';
    Generator generator(seed);
    int compared = 0;
    int tried = 0;
    for (; compared < 320 && tried < 3000 && !HasFailure(); ++tried)
        compared += Compare(generator.Program());
    std::cout << compared << " of " << tried << " programs compared\n";
    EXPECT_EQ(compared, 320);
}

// ---- Real sources ----

struct SSource
{
    std::string text;            // without its #include lines
    std::set<std::string> names; // those that conditions ask for
};

SSource WithoutIncludes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    SSource source;
    for (std::string line; std::getline(file, line);) {
        std::erase(line, '\r');
        std::string squeezed = line;
        std::erase_if(squeezed, [](char c) { return c == ' ' || c == '\t'; });
        if (squeezed.starts_with("#include") || squeezed.starts_with("#pragma"))
            line.clear();
        if (squeezed.starts_with("#if") || squeezed.starts_with("#elif"))
            for (const std::string& token : CTokens(line.substr(line.find('#') + 1)))
                if (token.size() > 3 &&
                    std::ranges::all_of(token,
                                        [](char c) {
                                            return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                                                   c == '_';
                                        }) &&
                    !(token[0] >= '0' && token[0] <= '9'))
                    source.names.insert(token);
        source.text += line + '\n';
    }
    return source;
}

// Set UV_CORPUS to a folder with c-macros/<project>/<file>.c to have real sources compared too.
TEST_F(MacroDifferential, RealSourcesGiveTheSameTokens)
{
    const char* const corpus = std::getenv("UV_CORPUS");
    if (corpus == nullptr || *corpus == '\0' || !HasSystem())
        return;
    const std::filesystem::path folder = std::filesystem::path(corpus) / "c-macros";
    ASSERT_TRUE(std::filesystem::is_directory(folder)) << folder;
    std::mt19937 random(1);
    int compared = 0;
    int tried = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const auto extension = entry.path().extension();
        if (!entry.is_regular_file() || (extension != ".c" && extension != ".h"))
            continue;
        SCOPED_TRACE(entry.path());
        const SSource source = WithoutIncludes(entry.path().string());
        for (int round = 0; round < 4; ++round, ++tried) {
            std::vector<std::string> defines; // none, then some of those that are asked for
            for (const std::string& name : source.names)
                if (round > 0 && random() % 3 != 0)
                    defines.push_back(name);
            compared += Compare(source.text, defines);
        }
    }
    std::cout << compared << " of " << tried << " variants compared\n";
    EXPECT_GT(compared, tried / 2);
}

} // namespace
