#include "Tools/uvparse/PathNeeds.h"

#include "Tools/uvparse/PathTokens.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

namespace uvparse {

namespace {

bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> texts)
{
    return std::ranges::find(texts, text) != texts.end();
}

// Looks at each word by itself: what it demands doesn't depend on where it stands, but for its neighbours.
class CNeedsReader
{
public:
    explicit CNeedsReader(std::string_view expression) : m_Tokens(ReadPathTokens(expression)) {}

    SPathNeeds Read()
    {
        for (m_At = 0; m_At < m_Tokens.size(); ++m_At) {
            const bool isOperand = !m_EndsOperand;
            m_EndsOperand = true; // of most
            switch (Kind(0)) {
            case enPathToken::Name:
                if (isOperand)
                    ReadName();
                else
                    ReadOperator(false);
                break;
            case enPathToken::Symbol:
                ReadSymbol(isOperand);
                break;
            default:
                break;
            }
        }
        return m_Needs;
    }

private:
    enPathToken Kind(int ahead) const
    {
        const std::size_t at = m_At + static_cast<std::size_t>(ahead);
        return at < m_Tokens.size() ? m_Tokens[at].kind : enPathToken::End;
    }
    std::string_view Text(int ahead) const
    {
        const std::size_t at = m_At + static_cast<std::size_t>(ahead);
        return at < m_Tokens.size() && Kind(ahead) != enPathToken::Literal ? m_Tokens[at].text
                                                                           : std::string_view();
    }

    void ReadSymbol(bool isOperand)
    {
        const std::string_view text = Text(0);
        if (text == "*" && isOperand) {
            ReadTest("");
        } else if (text == "." || text == "..") {
            // The node at hand and those around it are there anyway; all nodes are not.
            if (Text(-1) == "//")
                NeedAllNodes();
        } else if (text == "(") {
            m_EndsOperand = false;
            m_Brackets.push_back(m_At);
        } else if (text == ")") {
            m_Opened = m_Brackets.empty() ? 0 : m_Brackets.back();
            if (!m_Brackets.empty())
                m_Brackets.pop_back();
        } else if (text != "]") {
            m_EndsOperand = false;
            if (!IsOneOf(text, {"/", "//", "|", "[", ",", "@", "::", ":", "$"}))
                ReadOperator(isOperand);
        }
    }

    // Comparing and calculating take the text of nodes, but for attributes.
    void ReadOperator(bool isSign)
    {
        m_EndsOperand = false;
        if (IsOneOf(Text(0), {"and", "or"}))
            return;
        if ((!isSign && !IsTextlessBefore()) || !IsTextlessAfter())
            NeedTexts();
    }

    static bool IsTextlessFunction(std::string_view name)
    {
        return IsOneOf(name, {"count", "position", "last", "name", "local-name"});
    }
    bool IsTextlessBefore() const
    {
        if (Kind(-1) == enPathToken::Number || Kind(-1) == enPathToken::Literal)
            return true;
        if (Text(-1) == ")")
            return m_Opened > 0 && IsTextlessFunction(m_Tokens[m_Opened - 1].text);
        return Kind(-1) == enPathToken::Name && Text(-2) == "@";
    }
    bool IsTextlessAfter() const
    {
        if (Kind(1) == enPathToken::Number || Kind(1) == enPathToken::Literal || Text(1) == "-")
            return true;
        if (Kind(1) == enPathToken::Name && Text(2) == "(")
            return IsTextlessFunction(Text(1));
        return Text(1) == "@" && Kind(2) == enPathToken::Name && Text(3) != "/" && Text(3) != "//";
    }

    void ReadName()
    {
        const std::string_view name = Text(0);
        if (Text(1) == "::") {
            m_Needs.areNamespaces |= name == "namespace";
        } else if (Text(1) != "(") {
            ReadTest(name);
        } else if (IsOneOf(name, {"node", "text", "comment", "processing-instruction"})) {
            ReadTest(std::string(name) + "()");
        } else if (name == "namespace-uri") {
            m_Needs.areNamespaces = true;
        } else if (!IsTextlessFunction(name) && !IsOneOf(name, {"not", "boolean", "true", "false"})) {
            NeedTexts();
        }
    }

    // `name`: empty for a wildcard, with brackets for a type.
    void ReadTest(std::string_view name)
    {
        const bool hasAxis = Text(-1) == "::";
        const std::string_view axis = Text(-1) == "@" ? "attribute" : hasAxis ? Text(-2) : "child";
        const std::string_view before = Text(Text(-1) == "@" ? -2 : hasAxis ? -3 : -1);
        const bool isType = name.ends_with("()");
        if (before == "//") {
            // What is below them is among what is looked for; for anything else all of them are seen.
            if (isType || !IsOneOf(axis, {"child", "descendant", "descendant-or-self", "self"}))
                NeedAllNodes();
            else if (name.empty())
                m_Needs.areAllElements = true;
        }
        if (axis == "attribute") {
            if (isType || name.empty())
                m_Needs.areAllAttributes = true;
            else
                m_Needs.attributes.emplace_back(name);
        } else if (!isType && !name.empty()) {
            m_Needs.elements.emplace_back(name);
        } else if (!IsOneOf(axis, {"self", "parent", "ancestor", "ancestor-or-self"})) {
            m_Needs.areAllElements = true;
            if (isType)
                NeedAllNodes();
        }
    }

    void NeedTexts() { m_Needs.texts = std::max(m_Needs.texts, enPathTexts::Joined); }
    void NeedAllNodes()
    {
        m_Needs.areAllElements = true;
        m_Needs.texts = enPathTexts::Nodes;
    }

    std::vector<SPathToken> m_Tokens;
    std::size_t m_At = 0;
    bool m_EndsOperand = false; // what comes next is an operator
    std::vector<std::size_t> m_Brackets;
    std::size_t m_Opened = 0; // where the bracket opened that was closed last
    SPathNeeds m_Needs;
};

} // namespace

SPathNeeds NeedsOfPath(std::string_view expression)
{
    return CNeedsReader(expression).Read();
}

} // namespace uvparse
