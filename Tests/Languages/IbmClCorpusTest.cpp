// Whole programs: the statements of the tree beside those that a reader of lines finds.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Languages/LanguageFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <set>

namespace {

CLanguage& IbmCl()
{
    static CLanguage language("IBMCL", UVDB_DB_IBM_CL);
    return language;
}

// Finds statements without a grammar: a line that holds more than space and comments begins one, and a plus
// or minus at the end of a line makes the next one part of it.
class CLineReader
{
public:
    explicit CLineReader(const std::string& text) : m_strText(text) {}

    // The offset of the first byte of each statement.
    std::vector<std::size_t> Read()
    {
        for (std::size_t at = 0; at < m_strText.size(); ++at) {
            const char c = m_strText[at];
            if (c == '\n') {
                m_InStatement = m_InStatement && (m_Last == '+' || m_Last == '-');
                m_InString = m_InString && m_InStatement;
                m_Last = '\n';
            } else if (!m_InString && IsComment(at)) {
                at = std::min(m_strText.find("*/", at + 2), m_strText.size() - 2) + 1;
            } else if (std::isspace(static_cast<unsigned char>(c)) == 0) {
                if (!m_InStatement)
                    m_lstStarts.push_back(at);
                m_InStatement = true;
                m_InString ^= c == '\'';
                m_Last = c;
            }
        }
        return m_lstStarts;
    }

private:
    bool IsComment(std::size_t at) const
    {
        // LIBRARY/*ALL isn't one
        const auto isWord = [&](std::size_t place) {
            return place < m_strText.size() &&
                   std::isalnum(static_cast<unsigned char>(m_strText[place])) != 0;
        };
        return m_strText.compare(at, 2, "/*") == 0 && !(at > 0 && isWord(at - 1) && isWord(at + 2));
    }

    const std::string& m_strText;
    std::vector<std::size_t> m_lstStarts;
    char m_Last = '\n'; // of the line, but for space and comments
    bool m_InStatement = false;
    bool m_InString = false;
};

// The text with one command a line.
std::string Joined(const std::string& text)
{
    std::string joined;
    char sign = '\0';
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        line.erase(line.find_last_not_of('\r') + 1);
        if (sign == '+')
            line.erase(0, line.find_first_not_of(" \t"));
        sign = line.ends_with('+') || line.ends_with('-') ? line.back() : '\0';
        if (sign != '\0')
            line.pop_back();
        joined += sign == '\0' ? line + '\n' : line;
        at = end + 1;
    }
    return joined;
}

struct SCoverage
{
    std::size_t statements = 0; // that the reader of lines finds
    std::size_t clean = 0;      // those that the tree has in the same place, without an error
    std::size_t nodes = 0;      // statements of the trees
    std::size_t unexpected = 0; // tokens

    double Percent() const
    {
        return statements == 0 ? 0.0 : 100.0 * static_cast<double>(clean) / static_cast<double>(statements);
    }
};

void Cover(const std::string& text, SCoverage& coverage)
{
    const SLanguageParse parse = IbmCl().Parse(text);
    ASSERT_TRUE(parse.isComplete);
    EXPECT_TRUE(SourceOfTree(parse.tree) == text);
    coverage.unexpected += parse.unexpected.size();

    const CSyntaxTree tree(parse.tree);
    std::set<std::size_t> starts; // of those without an error
    for (const SElement& statement : tree.Statements()) {
        ++coverage.nodes;
        // what an error has left is the line end, and the label if there is one
        const std::vector<SElement> tokens = tree.Tokens(statement);
        const bool isLabelAlone = tokens.size() == 3 && tokens.front().name == "T__LABEL";
        const bool hasError = std::ranges::any_of(parse.unexpected, [&](const SUnexpectedToken& token) {
            return token.offset >= statement.from && token.offset < statement.end;
        });
        if (!hasError &&
            (isLabelAlone || tree.Markup(statement).find("<pl_sql_statement>") != std::string::npos))
            starts.insert(statement.from);
    }
    for (const std::size_t start : CLineReader(text).Read()) {
        ++coverage.statements;
        coverage.clean += starts.contains(start);
    }
}

// Each text as it stands and with its lines joined.
SCoverage CoverAll(const char* what, const std::vector<std::string>& paths)
{
    SCoverage both;
    for (const bool isJoined : {false, true}) {
        SCoverage coverage;
        for (const std::string& path : paths) {
            SCOPED_TRACE(path);
            const std::string text = ReadFile(path);
            Cover(isJoined ? Joined(text) : text, coverage);
        }
        std::cout << what << (isJoined ? ", joined: " : ": ") << paths.size() << " files, "
                  << coverage.statements << " statements, " << coverage.nodes << " in the trees, "
                  << coverage.clean << " in the same place and clean (" << coverage.Percent() << " %), "
                  << coverage.unexpected << " unexpected tokens\n";
        both.statements += coverage.statements;
        both.clean += coverage.clean;
        both.nodes += coverage.nodes;
        both.unexpected += coverage.unexpected;
    }
    return both;
}

TEST(IbmClCorpus, SamplesHoldTheStatementsOfTheirLines)
{
    const SCoverage coverage = CoverAll("samples", SamplePaths("IBMCL"));
    EXPECT_EQ(coverage.statements, 2U * 58);
    EXPECT_EQ(coverage.clean, coverage.statements);
    EXPECT_EQ(coverage.nodes, coverage.statements);
    EXPECT_EQ(coverage.unexpected, 0U);
}

// Set UV_CORPUS to a folder with cl/<project>/<program> to have real programs covered too.
TEST(IbmClCorpus, RealProgramsParse)
{
    const char* const corpus = std::getenv("UV_CORPUS");
    if (corpus == nullptr || *corpus == '\0')
        return;
    const std::filesystem::path folder = std::filesystem::path(corpus) / "cl";
    ASSERT_TRUE(std::filesystem::is_directory(folder)) << folder;
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && !entry.path().filename().string().starts_with("LICENSE."))
            paths.push_back(entry.path().string());
    std::ranges::sort(paths);
    ASSERT_FALSE(paths.empty());
    const SCoverage coverage = CoverAll("corpus", paths);
    RecordProperty("statements", static_cast<int>(coverage.statements));
    RecordProperty("clean", static_cast<int>(coverage.clean));
    RecordProperty("unexpected", static_cast<int>(coverage.unexpected));
    EXPECT_GE(coverage.Percent(), 90.0);
}

} // namespace
