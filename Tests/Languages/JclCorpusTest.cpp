// Real jobs: the statements of the tree beside those that a reader of lines finds.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Languages/LanguageFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

CLanguage& Jcl()
{
    static CLanguage language("JCL", UVDB_DB_JCL);
    return language;
}

// Finds statements without a grammar, by columns and commas. What begins with "/*" or "//*" is none to it.
class CLineReader
{
public:
    // The offset of the first byte of each statement.
    std::vector<std::size_t> Read(const std::string& text)
    {
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = std::min(text.find('\n', at), text.size());
            std::string line = text.substr(at, std::min<std::size_t>(end - at, 72));
            line.erase(line.find_last_not_of(" \t\r\x1A") + 1);
            if (!IsData(line) && line.starts_with("//") && !line.starts_with("//*"))
                TakeLine(line, at);
            at = end + 1;
        }
        return m_lstStarts;
    }

private:
    bool IsData(const std::string& line)
    {
        if (m_strDelimiter.empty())
            return false;
        const std::string firstWord = line.substr(0, line.find(' '));
        const bool isEnd = firstWord == m_strDelimiter;
        const bool isStatement = m_EndsAtStatement && line.starts_with("//");
        if (isEnd || isStatement)
            m_strDelimiter.clear();
        return !isStatement;
    }

    void TakeLine(const std::string& line, std::size_t offset)
    {
        const bool goesOn = m_GoesOn && line.starts_with("// ");
        std::string fields = line.substr(2);
        if (!goesOn) {
            m_lstStarts.push_back(offset);
            m_strOperation.clear();
            m_strOperands.clear();
            m_InString = false;
            std::istringstream words(fields);
            std::string word;
            if (!fields.starts_with(' '))
                words >> word;
            words >> m_strOperation >> std::ws;
            std::getline(words, fields);
        } else {
            fields.erase(0, m_InString ? 13 : fields.find_first_not_of(' '));
        }
        if (m_strOperation == "IF") {
            m_GoesOn = fields.find("THEN") == fields.npos;
            return;
        }
        // the first blank outside of a string ends the operands
        std::size_t size = 0;
        for (; size < fields.size() && (m_InString || fields[size] != ' '); ++size)
            m_InString ^= fields[size] == '\'';
        m_strOperands += fields.substr(0, size);
        m_GoesOn = m_InString || m_strOperands.ends_with(',');
        if (!m_GoesOn && m_strOperation == "DD")
            BeginData();
    }

    void BeginData()
    {
        const std::string first = m_strOperands.substr(0, m_strOperands.find(','));
        if (first != "*" && first != "DATA")
            return;
        m_strDelimiter = "/*";
        m_EndsAtStatement = first == "*";
        const std::size_t at = m_strOperands.find("DLM=");
        if (at == m_strOperands.npos)
            return;
        m_EndsAtStatement = false;
        m_strDelimiter = m_strOperands.substr(at + 4, m_strOperands.find(',', at) - at - 4);
        std::erase(m_strDelimiter, '\'');
    }

    std::vector<std::size_t> m_lstStarts;
    std::string m_strOperation, m_strOperands; // of the last statement
    std::string m_strDelimiter;                // empty outside of data
    bool m_EndsAtStatement = false;            // the data do
    bool m_GoesOn = false;
    bool m_InString = false;
};

std::optional<bool> IsClean(const CSyntaxTree& tree, const SElement& statement,
                            const std::vector<SUnexpectedToken>&)
{
    const std::vector<SElement> tokens = tree.Tokens(statement);
    if (tokens.empty() || tokens.front().name != "T__SLASHES")
        return std::nullopt;
    return tree.Markup(statement).find("<error_statement>") == std::string::npos;
}

SLineCoverage CoverAll(const char* what, const std::vector<std::string>& paths)
{
    const SLineJudge judge = {[](const std::string& text) { return CLineReader().Read(text); }, IsClean};
    SLineCoverage coverage;
    for (const std::string& path : paths) {
        SCOPED_TRACE(path);
        CoverLines(Jcl(), ReadFile(path), judge, coverage);
    }
    TellCoverage(what, paths.size(), coverage);
    return coverage;
}

TEST(JclCorpus, SamplesHoldTheStatementsOfTheirLines)
{
    const SLineCoverage coverage = CoverAll("samples", SamplePaths("JCL"));
    EXPECT_GE(coverage.statements, 45U);
    EXPECT_EQ(coverage.clean, coverage.statements);
    EXPECT_EQ(coverage.nodes, coverage.statements);
    EXPECT_EQ(coverage.unexpected, 0U);
}

// Set UV_CORPUS to a folder with jcl/<project>/<job> to have real jobs covered too.
TEST(JclCorpus, RealJobsParse)
{
    const std::vector<std::string> paths = CorpusPaths("jcl");
    EXPECT_TRUE(paths.empty() || CoverAll("corpus", paths).Percent() >= 90.0);
}

} // namespace
