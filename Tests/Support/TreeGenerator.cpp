#include "Tests/Support/TreeGenerator.h"

#include "Tests/Support/TreePieces.h"

#include <algorithm>
#include <vector>

namespace {

// Damage at one place of the whole text.
enum class enDamage
{
    Cut,
    Drop,
    Repeat,
    Nul,
    Second,
    Behind,
    Before,
    Bom,
    Header,
    DocType,
    count
};

} // namespace

std::size_t CChoices::Below(std::size_t count)
{
    if (m_IsRandom)
        return m_Random() % count;
    std::size_t value = 0;
    for (std::size_t range = 1; range < count && !m_Bytes.empty(); range *= 256) {
        value = value * 256 + m_Bytes.front();
        m_Bytes = m_Bytes.subspan(1);
    }
    return value % count;
}

void CTreeGenerator::Attributes()
{
    // in the order of the list with a random start, so that none comes twice
    const std::size_t count = m_Choices.Once(3) ? m_Choices.Below(5) : 1;
    const std::size_t first = m_Choices.Below(std::size(kAttributes));
    for (std::size_t i = 0; i < count; ++i) {
        m_strText += Of({" ", " ", "  ", "\n", "\t "});
        m_strText += kAttributes[(first + i) % std::size(kAttributes)];
        m_strText += Of({"=", "=", " = "});
        AttributeValue();
    }
}

void CTreeGenerator::AttributeValue()
{
    const char quote = m_Choices.Once(3) ? '\'' : '"';
    m_strText += quote;
    for (std::size_t left = m_Choices.Below(4); left > 0; --left) {
        const std::string_view piece = Of(kPieces);
        if (piece.front() != quote)
            m_strText += piece;
    }
    m_strText += quote;
}

void CTreeGenerator::Start(std::string_view name, bool hasAttributes)
{
    ++m_nElements;
    m_strText += '<';
    m_strText += name;
    if (hasAttributes)
        Attributes();
    if (m_Choices.Once(24))
        m_strText += Of({" ", "\n"});
    m_strText += '>';
}

void CTreeGenerator::End(std::string_view name)
{
    m_strText += "</";
    m_strText += name;
    if (m_Choices.Once(24))
        m_strText += Of({" ", "\n\t"});
    m_strText += '>';
}

void CTreeGenerator::Empty(std::string_view name)
{
    if (m_Choices.Once(2)) {
        Start(name, m_Choices.Once(8));
        End(name);
    } else {
        ++m_nElements;
        m_strText += '<';
        m_strText += name;
        if (m_Choices.Once(8))
            Attributes();
        m_strText += Of({"/>", " />"});
    }
}

void CTreeGenerator::Text(std::size_t pieces)
{
    const std::size_t start = m_strText.size() < 2 ? 0 : m_strText.size() - 2;
    for (; pieces > 0; --pieces)
        m_strText += Of(kPieces);
    // the one sequence that text may not hold
    for (std::size_t at = m_strText.find("]]>", start); at != m_strText.npos; at = m_strText.find("]]>", at))
        m_strText.replace(at, 3, "]]&gt;");
}

void CTreeGenerator::Comment()
{
    m_strText += Of({"<!-- c -->", "<!---->", "<!-- <a/> &amp; > -->", "<!--\r\n\té-->", "<!--T__SPACE-->",
                     "<!-- - - -->"});
}

// What may stand between any two elements.
void CTreeGenerator::Filler()
{
    switch (m_Choices.Below(12)) {
    case 9:
        Text(1 + m_Choices.Below(2));
        break;
    case 10:
        Comment();
        break;
    case 11:
        Space();
        break;
    default:
        break;
    }
    if (m_CanBeOdd && m_Choices.Once(400)) {
        m_strText += Of(kOddities);
        m_IsPlain = false;
    }
}

void CTreeGenerator::Space()
{
    const bool hasAttributes = m_Choices.Once(2);
    switch (m_Choices.Below(8)) {
    case 0:
    case 1:
        Start("T__SPACE", hasAttributes);
        End("T__SPACE");
        break;
    case 2:
        Start("T__SPACE", hasAttributes);
        Comment();
        End("T__SPACE");
        break;
    case 3: // as empty as one without a child
        Start("T__SPACE", hasAttributes);
        Empty(m_Choices.Once(3) ? "T__SPACE" : "a");
        End("T__SPACE");
        break;
    case 4:
        Start("T__SPACE", hasAttributes);
        Start("a");
        Text(1);
        End("a");
        Empty(m_Choices.Once(3) ? "T__SPACE" : "T__T__SPACE");
        End("T__SPACE");
        break;
    default:
        Start("T__SPACE", hasAttributes);
        Text(1 + m_Choices.Below(3));
        End("T__SPACE");
        break;
    }
}

void CTreeGenerator::Token(std::string_view name)
{
    Start(name, !m_Choices.Once(3));
    Text(m_Choices.Below(4));
    if (m_Choices.Once(20))
        Comment();
    End(name);
}

void CTreeGenerator::Macro(std::string_view parent)
{
    const std::string name = "T__" + std::string(parent);
    Start(name, m_Choices.Once(2));
    if (m_Choices.Once(8))
        Comment();
    const std::string_view macro = Of(kMacros);
    if (macro.find('&') == macro.npos && m_Choices.Once(6)) { // the string value goes through elements
        const std::size_t cut = std::min(macro.find(Of({'{', '=', '#', '[', '}'})), macro.size());
        const std::string inner = m_Choices.Once(4) ? name : "a";
        m_strText += macro.substr(0, cut);
        Start(inner);
        m_strText += macro.substr(cut);
        End(inner);
    } else {
        m_strText += macro;
    }
    End(name);
}

void CTreeGenerator::Content(std::string_view name, int depth)
{
    for (std::size_t left = m_Choices.Below(5); left > 0; --left) {
        Filler();
        Element(name, depth + 1);
    }
    Filler();
}

// Items of a list, each beside the rest of the list or before it or after it.
void CTreeGenerator::Chain(std::string_view name, int depth)
{
    const std::size_t levels = 1 + m_Choices.Below(4);
    const std::size_t side = m_Choices.Below(3); // left, right, either
    std::vector<bool> isBehind;
    for (std::size_t level = 0; level < levels; ++level) {
        Start(name, m_Choices.Once(8));
        const bool isRight = side == 1 || (side == 2 && m_Choices.Once(2));
        if (isRight) {
            Filler();
            Element(name, depth + 1);
            Filler();
        }
        isBehind.push_back(!isRight);
    }
    Element(name, depth + 1);
    for (; !isBehind.empty(); isBehind.pop_back()) {
        if (isBehind.back()) {
            Filler();
            Element(name, depth + 1);
        }
        End(name);
    }
}

void CTreeGenerator::Delimiter()
{
    constexpr std::string_view kName = "pl_sql_statement_delimiter";
    if (m_Choices.Once(4)) {
        Empty(kName);
        return;
    }
    Start(kName, m_Choices.Once(6));
    if (m_Choices.Once(8))
        Macro(kName);
    else if (m_Choices.Once(8))
        Empty(kName);
    else
        Token("T__SEMICOLON");
    End(kName);
}

void CTreeGenerator::Statement(int depth)
{
    Start("pl_sql_statement", m_Choices.Once(8));
    Content("pl_sql_statement", depth + 1);
    End("pl_sql_statement");
}

void CTreeGenerator::LabeledStatement(int depth)
{
    constexpr std::string_view kName = "labeled_pl_sql_statement";
    Start(kName, m_Choices.Once(8));
    Filler();
    if (!m_Choices.Once(4)) {
        Start("pl_sql_statement_label");
        Token("T_ID");
        End("pl_sql_statement_label");
    }
    Filler();
    if (!m_Choices.Once(4))
        Statement(depth + 1);
    if (m_Choices.Once(6))
        Element(kName, depth + 1);
    End(kName);
}

void CTreeGenerator::DelimitedStatement(int depth)
{
    constexpr std::string_view kName = "delimited_pl_sql_statement";
    Start(kName, m_Choices.Once(8));
    Filler();
    if (m_Choices.Once(6))
        Delimiter();
    if (m_Choices.Once(2))
        LabeledStatement(depth + 1);
    else if (!m_Choices.Once(6))
        Statement(depth + 1);
    if (m_Choices.Once(10))
        LabeledStatement(depth + 1);
    Filler();
    if (m_Choices.Once(3))
        Delimiter();
    if (m_Choices.Once(12))
        Element(kName, depth + 1);
    End(kName);
}

void CTreeGenerator::Body(int depth)
{
    constexpr std::string_view kName = "body_pl_sql_statements";
    Start(kName, m_Choices.Once(8));
    for (std::size_t left = m_Choices.Below(5); left > 0; --left) {
        Filler();
        switch (m_Choices.Below(10)) {
        case 0:
        case 1:
        case 2:
        case 3:
            DelimitedStatement(depth + 1);
            break;
        case 4:
        case 5:
            Delimiter();
            break;
        case 6:
            if (depth < 6)
                Body(depth + 1);
            break;
        case 7:
            Token(Of(kTokens));
            break;
        default:
            Element(kName, depth + 1);
        }
    }
    Filler();
    End(kName);
    if (m_Choices.Once(3)) {
        Filler();
        if (m_Choices.Once(3))
            Token(Of(kTokens));
        Delimiter();
    }
}

void CTreeGenerator::StatementList(int depth)
{
    constexpr std::string_view kNames[] = {"pl_sql_statements", "delimited_pl_sql_statements"};
    const std::string_view name = Of(kNames);
    Start(name, m_Choices.Once(8));
    if (m_Choices.Once(6))
        Empty("program_data_division_clause");
    for (std::size_t left = m_Choices.Below(4); left > 0; --left) {
        Filler();
        switch (m_Choices.Below(8)) {
        case 0:
        case 1:
            Statement(depth + 1);
            break;
        case 2:
            LabeledStatement(depth + 1);
            break;
        case 3:
        case 4:
            DelimitedStatement(depth + 1);
            break;
        case 5:
            if (depth < 6)
                StatementList(depth + 1);
            break;
        case 6:
            Start("delimited_pl_sql_statements", m_Choices.Once(8));
            DelimitedStatement(depth + 2);
            Filler();
            DelimitedStatement(depth + 2);
            End("delimited_pl_sql_statements");
            break;
        default:
            Element(name, depth + 1);
        }
    }
    Filler();
    End(name);
}

void CTreeGenerator::Element(std::string_view parent, int depth)
{
    if (depth > 9 || m_nElements > m_nLimit) {
        Empty(Of(kTokens));
        return;
    }
    switch (m_Choices.Below(20)) {
    case 0:
    case 1:
        Token(Of(kTokens));
        break;
    case 2:
        Empty(m_Choices.Once(2) ? Of(kRoles) : Of(kRules));
        break;
    case 3:
    case 4:
        Space();
        break;
    case 5:
    case 6:
        Macro(parent);
        break;
    case 7:
    case 8:
        Chain(m_Choices.Once(2) ? Of(kRoles) : Of(kRules), depth);
        break;
    case 9:
        Chain(parent, depth);
        break;
    case 10:
    case 11:
        Body(depth);
        break;
    case 12:
    case 13:
        StatementList(depth);
        break;
    case 14:
        DelimitedStatement(depth);
        break;
    case 15:
        LabeledStatement(depth);
        break;
    case 16:
        Empty("program_data_division_clause");
        Filler();
        DelimitedStatement(depth);
        break;
    default: {
        const std::string_view name = m_Choices.Once(3) ? Of(kRules) : Of(kRoles);
        Start(name, m_Choices.Once(6));
        Content(name, depth);
        End(name);
    }
    }
}

void CTreeGenerator::Damage()
{
    const std::size_t at = m_Choices.Below(m_strText.size() + 1);
    switch (static_cast<enDamage>(m_Choices.Below(static_cast<std::size_t>(enDamage::count)))) {
    case enDamage::Cut:
        m_strText.resize(at);
        break;
    case enDamage::Drop:
        m_strText.erase(at, 1 + m_Choices.Below(12));
        break;
    case enDamage::Repeat:
        m_strText.insert(at, m_strText.substr(at, 1 + m_Choices.Below(12)));
        break;
    case enDamage::Nul:
        m_strText.insert(at, 1, '\0');
        break;
    case enDamage::Second:
        m_strText += "<a/>";
        break;
    case enDamage::Behind:
        m_strText += Of({"x", "<?pi x?>", "<!-- c -->", "&#32;", "\xFF", "\x01", "<![CDATA[ ]]>", "</a>"});
        break;
    case enDamage::Before:
        m_strText.insert(0,
                         Of({" ", "x", "<?pi x?>", "<!-- c -->", "&#32;", "\xFF", "\x01", "<", "\n<?xml?>"}));
        break;
    case enDamage::Bom:
        m_strText.insert(0, "\uFEFF");
        break;
    case enDamage::Header:
        m_strText.insert(
            0,
            Of({"<?xml version='1.0'?>", "<?xml version=\"1.1\"?>", "<?xml encoding=\"UTF-8\"?>",
                "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>",
                "<?xml version=\"1.0\" encoding=\"UTF-16\"?>", "<?xml version=\"1.0\" standalone=\"yes\"?>",
                "<?XML version=\"1.0\"?>", "<?xml version=\"1.0\"", "<?xml version=\"2.0\"?>",
                "<?xml version=\"1.0\" encoding=\"nosuch\"?>"}));
        break;
    default:
        m_strText.insert(0, Of({"<!DOCTYPE SQL>", "<!DOCTYPE SQL [<!ENTITY e \"<a>v</a>\">]>",
                                "<!DOCTYPE SQL SYSTEM \"nosuch.dtd\">",
                                "<!DOCTYPE SQL [<!ATTLIST a b CDATA \"1\">]>", "<!DOCTYPE"}));
        break;
    }
}

std::string ListTree(std::string_view list, std::size_t items, bool isLeftRecursive)
{
    const std::string open = "<" + std::string(list) + ">";
    const std::string close = "</" + std::string(list) + ">";
    const std::string item = "<item>a</item>";
    std::string tree = "<SQL>";
    for (std::size_t i = 0; i < items; ++i)
        tree += isLeftRecursive ? open : open + item;
    for (std::size_t i = 0; i < items; ++i)
        tree += isLeftRecursive ? item + close : close;
    return tree + "</SQL>";
}

SGeneratedTree CTreeGenerator::Tree()
{
    m_strText.clear();
    m_nElements = 0;
    m_nLimit = 4 + m_Choices.Below(40);
    m_IsPlain = true;
    m_CanBeOdd = true;

    m_strText += Of(kHeaders);
    if (m_Choices.Once(4))
        m_strText += Of(kMargins);
    if (m_Choices.Once(32)) { // nothing that a parse gives stands outside the root
        Comment();
        m_IsPlain = false;
    }
    switch (m_Choices.Below(8)) {
    case 0:
    case 1:
    case 2: { // as a parse leaves it
        const std::string_view name = "SQL";
        Start(name);
        Space();
        Start(name);
        Content(name, 1);
        End(name);
        Space();
        End(name);
        break;
    }
    case 3: {
        const std::string_view name = Of(kRoles);
        Start(name, m_Choices.Once(4));
        Content(name, 0);
        End(name);
        break;
    }
    case 4:
        Chain(Of(kRoles), 0);
        break;
    default:
        Start("a");
        Content("a", 0);
        End("a");
    }
    if (m_Choices.Once(32)) {
        Comment();
        m_IsPlain = false;
    }
    if (m_Choices.Once(4))
        m_strText += Of(kMargins);
    if (m_Choices.Once(24)) {
        Damage();
        m_IsPlain = false;
    }
    return {m_strText, m_IsPlain};
}

std::string CTreeGenerator::LargeTree(std::size_t elements)
{
    m_CanBeOdd = false;
    m_strText.clear();
    m_nElements = 0;
    Start("SQL");
    Space();
    Start("SQL");
    std::size_t lists = 0;
    while (m_nElements < elements) {
        m_nLimit = m_nElements + 200;
        if (m_Choices.Once(20) && lists < 40) {
            Start("pl_sql_statements");
            ++lists;
        }
        Filler();
        Element("SQL", 1);
    }
    for (; lists > 0; --lists)
        End("pl_sql_statements");
    End("SQL");
    Space();
    End("SQL");
    return m_strText;
}
