#include "Tools/uvgrammar-score/CleanStatements.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/MarkupScanner.h"
#include "Tools/uvparse/TreeText.h"

#include <algorithm>
#include <utility>

namespace uvscore {

SParsedText ParseForExperiments(CTextParser& parser, const std::string& path)
{
    SParsedText parsed = parser.ParseFile(path);
    if (!parsed.result.pass.empty())
        parsed = parser.ParseText(std::move(parsed.prepared), path);
    if (!parsed.result.pass.empty() && parsed.prepared != parsed.source)
        throw CToolFailure("no experiments: prepared again, the text is another one");
    return parsed;
}

std::vector<SCleanStatement> FindCleanStatements(const SParsedText& text)
{
    std::vector<SCleanStatement> found;
    const std::vector<STokenPlace> tokens = FindTokens(text.result.output, text.prepared);
    auto token = tokens.begin();
    for (const SStatement& statement :
         FindStatements(text.result.output, text.prepared, text.result.findings)) {
        if (!statement.IsClean() || statement.tree.empty())
            continue;
        SCleanStatement clean{statement.begin, statement.end, FormOf(statement.tree), {}};
        while (token != tokens.end() && token->begin < clean.begin)
            ++token;
        for (; token != tokens.end() && token->end <= clean.end; ++token)
            clean.tokens.push_back(*token);
        found.push_back(std::move(clean));
    }
    return found;
}

std::string FormOf(std::string_view tree)
{
    std::string form;
    bool isSpace = false;
    uvparse::CMarkupScanner scanner(tree);
    for (uvparse::SMarkup markup; scanner.Next(markup);) {
        if (markup.name == "T__SPACE") {
            isSpace = markup.kind == uvparse::enMarkup::Start;
            continue;
        }
        if (isSpace)
            continue;
        if (markup.kind == uvparse::enMarkup::Start && uvparse::IsTokenElement(markup.name))
            form.append(1, '<').append(markup.name).append(1, '>'); // its place stands in its attributes
        else
            form += markup.text;
    }
    return form;
}

std::vector<std::size_t> ShareSamples(const std::vector<SScoredFile>& files, std::size_t samples)
{
    std::vector<std::size_t> clean;
    std::size_t all = 0;
    for (const SScoredFile& file : files) {
        clean.push_back(
            static_cast<std::size_t>(std::ranges::count_if(file.statements, &SScoredStatement::IsClean)));
        all += clean.back();
    }
    if (all <= samples)
        return clean;
    // What is left of a sample goes to the next file.
    std::vector<std::size_t> shares;
    std::size_t before = 0;
    for (const std::size_t count : clean) {
        shares.push_back((before + count) * samples / all - before * samples / all);
        before += count;
    }
    return shares;
}

} // namespace uvscore
