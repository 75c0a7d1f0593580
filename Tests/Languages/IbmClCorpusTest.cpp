// Whole programs: the statements of the tree beside those that a reader of lines finds.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Preparation/Formatters/IbmCl.h"
#include "Tests/Languages/LanguageFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

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

std::optional<bool> IsClean(const CSyntaxTree& tree, const SElement& statement,
                            const std::vector<SUnexpectedToken>& unexpected)
{
    // what an error has left is the line end, and the label if there is one
    const std::vector<SElement> tokens = tree.Tokens(statement);
    const bool isLabelAlone = tokens.size() == 3 && tokens.front().name == "T__LABEL";
    const bool hasError = std::ranges::any_of(unexpected, [&](const SUnexpectedToken& token) {
        return token.offset >= statement.from && token.offset < statement.end;
    });
    return !hasError &&
           (isLabelAlone || tree.Markup(statement).find("<pl_sql_statement>") != std::string::npos);
}

// Each text as it stands and with its lines joined, as hosts prepare it.
SLineCoverage CoverAll(const char* what, const std::vector<std::string>& paths)
{
    const SLineJudge judge = {[](const std::string& text) { return CLineReader(text).Read(); }, IsClean};
    SLineCoverage coverage;
    for (const std::string& path : paths) {
        SCOPED_TRACE(path);
        const std::string text = ReadFile(path);
        CoverLines(IbmCl(), text, judge, coverage);
        CoverLines(IbmCl(), std::string(FormatIbmCl(text + '\n').text) + '\n', judge, coverage);
    }
    TellCoverage(what, paths.size(), coverage);
    return coverage;
}

TEST(IbmClCorpus, SamplesHoldTheStatementsOfTheirLines)
{
    const SLineCoverage coverage = CoverAll("samples", SamplePaths("IBMCL"));
    EXPECT_EQ(coverage.statements, 2U * 58);
    EXPECT_EQ(coverage.clean, coverage.statements);
    EXPECT_EQ(coverage.nodes, coverage.statements);
    EXPECT_EQ(coverage.unexpected, 0U);
}

// Set UV_CORPUS to a folder with cl/<project>/<program> to have real programs covered too.
TEST(IbmClCorpus, RealProgramsParse)
{
    const std::vector<std::string> paths = CorpusPaths("cl");
    EXPECT_TRUE(paths.empty() || CoverAll("corpus", paths).Percent() >= 90.0);
}

} // namespace
