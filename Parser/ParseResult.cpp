#include "Parser/ParseResult.h"

#include "Tree/TreeFlattener.h"

#include <utility>

void CParseResult::SetText(Uve::U8CString text)
{
    m_Parser.reset();
    m_Text = std::move(text);
}

void CParseResult::TakeTree(const std::shared_ptr<CSQLGrammarParser>& parser)
{
    if (!parser->Tree()) {
        SetText(std::move(parser->m_Extension.m_strParsedXml));
        return;
    }
    m_Text = {};
    m_Parser = parser;
}

Uve::U8CString& CParseResult::Text()
{
    if (const auto parser = std::exchange(m_Parser, nullptr)) {
        std::string text;
        WriteTree(parser->Tree(), text);
        m_Text = std::move(text);
        parser->ReleaseTree();
    }
    return m_Text;
}

bool CParseResult::FlattenFragments(std::string_view declaration)
{
    const auto parser = std::exchange(m_Parser, nullptr);
    if (!parser)
        return false;
    std::string text;
    FlattenTree(parser->Tree(), text, declaration);
    m_Text = std::move(text);
    parser->ReleaseTree();
    return true;
}

void CParseResult::swap(CParseResult& other) noexcept
{
    m_Text.swap(other.m_Text);
    m_Parser.swap(other.m_Parser);
}
