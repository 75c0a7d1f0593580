// The scanner of the model engine, with its actions.
#include "Catalogue/UVDBParserNames.h"
#include "Tests/Support/ModelEngine.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr const char* kToStart = "m_Extension.m_nStartState";
constexpr int kMostEmptyMatches = 10000;

std::string Unquoted(const std::string& text)
{
    return text.size() > 1 && text.front() == '"' ? text.substr(1, text.size() - 2) : text;
}

} // namespace

// ---- Scanner ----

void CModelEngine::StartScan(const std::string& text)
{
    m_query = text;
    m_at = m_length = m_lastLength = m_brackets = m_emptyMatches = 0;
    m_match.clear();
    m_line = 1;
    m_isLineStart = true;
    m_indents.clear();
    m_owed.clear();
    m_stacks.clear();
    m_saved.clear();
    m_condition = m_startCondition = StartCondition();
}

int CModelEngine::StartCondition()
{
    const int number = UVDBGetNumberByParserName(m_grammar);
    const auto general = m_conditions.find("SS_GENERAL");
    const bool isForAny = number == 14 || number == 64 || number == 108;
    if (general != m_conditions.end() && (isForAny || number == m_settings.db))
        return general->second;
    return m_conditions["INITIAL"];
}

int CModelEngine::Step(int state, unsigned char byte) const
{
    const auto& base = m_scan.at("base");
    const auto& chk = m_scan.at("chk");
    while (chk[static_cast<std::size_t>(base[static_cast<std::size_t>(state)] + byte)] != state)
        state = m_scan.at("def")[static_cast<std::size_t>(state)];
    return m_scan.at("nxt")[static_cast<std::size_t>(base[static_cast<std::size_t>(state)] + byte)];
}

int CModelEngine::Scan()
{
    if (!m_owed.empty()) {
        const std::string name = m_owed.back();
        const int token = Token(name, 0, 0, true);
        m_owed.pop_back();
        return token;
    }
    const auto& accept = m_scan.at("accept");
    const auto& base = m_scan.at("base");
    const auto& list = m_scan.at("acclist");
    const int jam = base[accept.size() - 2];
    for (;;) {
        const int from = m_at;
        const auto size = static_cast<int>(m_query.size());
        if (from == size) {
            const bool isKnown = std::any_of(m_conditions.begin(), m_conditions.end(),
                                             [&](const auto& entry) { return entry.second == m_condition; });
            if (!isKnown)
                throw std::runtime_error("no end-of-file rule");
            m_match = m_query.substr(static_cast<std::size_t>(size - m_lastLength));
            return 0;
        }
        // as far as the tables lead
        std::vector<int> states{m_condition * 2 + 1 + (m_isLineStart ? 1 : 0)};
        do
            states.push_back(
                Step(states.back(), static_cast<unsigned char>(m_query[static_cast<std::size_t>(m_at++)])));
        while (m_at < size && base[static_cast<std::size_t>(states.back())] != jam);
        // back to the longest prefix that a rule accepts, and to the end of a rule's head
        int rule = 0;
        int head = 0;
        int at = accept[static_cast<std::size_t>(states.back())];
        while (rule == 0) {
            if (at != 0 && at < accept[static_cast<std::size_t>(states.back() + 1)]) {
                const int entry = list[static_cast<std::size_t>(at++)];
                if ((entry & 0x4000) != 0 || head != 0)
                    rule = entry == head ? entry & ~0x4000 : 0;
                else if ((entry & 0x2000) != 0)
                    head = (entry & ~0x2000) | 0x4000;
                else
                    rule = entry;
                continue;
            }
            states.pop_back();
            if (states.empty())
                throw std::runtime_error("no rule");
            --m_at;
            at = accept[static_cast<std::size_t>(states.back())];
        }
        m_length = m_at - from;
        m_match = m_query.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(m_length));
        if (m_scan.at("rule_can_match_eol")[static_cast<std::size_t>(rule)] != 0)
            m_line += static_cast<int>(std::count(m_match.begin(), m_match.end(), '\n'));
        if (m_length > 0)
            m_isLineStart = m_match.back() == '\n';
        const std::optional<int> token = RunActions(rule);
        m_lastLength = m_length;
        m_emptyMatches = m_length == 0 ? m_emptyMatches + 1 : 0;
        if (m_emptyMatches > kMostEmptyMatches)
            throw std::runtime_error("matches nothing for ever");
        if (token)
            return *token;
    }
}

std::optional<int> CModelEngine::RunActions(int rule)
{
    const auto record = m_scanActions.find(rule);
    if (record == m_scanActions.end())
        return std::nullopt;
    for (SAction& action : record->second) {
        // the quotes leave the stored operand
        if (action.keyword == "CPY_TOKEN_ACTION" || action.keyword == "IFSTRCMP_ACTION")
            action.operands[0] = Unquoted(action.operands[0]);
        if (const std::optional<int> token = m_handlers.at(action.keyword)(action.operands))
            return token;
    }
    return std::nullopt;
}

void CModelEngine::FillHandlers()
{
    const auto none = std::optional<int>();
    const auto add = [&](const char* keyword, Handler handler) { m_handlers[keyword] = std::move(handler); };
    add("BEGIN", [=, this](const Operands& o) { return Begin(o[0]), none; });
    add("ColoringFunc", [=, this](const Operands& o) {
        Color(std::to_string(Number(o[0])) + ' ' + std::to_string(MatchStart()) + ' ' +
              std::to_string(m_at - 1) + '\n');
        return none;
    });
    add("TOKEN_ACTION", [this](const Operands& o) { return Token(o[0]); });
    add("TOKEN_ACTIONE", [this](const Operands& o) { return Token(o[0], Number(o[1])); });
    add("TOKEN_INDENT_ACTION", [this](const Operands&) { return Indentation(); });
    add("CPY_TOKEN_ACTION", [this](const Operands& o) {
        const auto length = static_cast<int>(m_match.size());
        m_match = o[1];
        return Token(o[0], 0, length);
    });
    add("yytext", [this](const Operands& o) {
        m_lookaheadNode = SNode();
        const auto index = static_cast<std::size_t>(Number(o[0]));
        const char byte = index < m_match.size() ? m_match[index] : '\0';
        return static_cast<int>(static_cast<signed char>(byte));
    });
    add("strtmp.Format", [=, this](const Operands& o) {
        const bool isOfOneNumber = std::count(o[0].begin(), o[0].end(), '%') == 1;
        Color(isOfOneNumber ? Replaced(o[0], "%d", std::to_string(m_at)) : o[0]);
        return none;
    });
    add("strcpy", [=, this](const Operands& o) { return m_match = Unquoted(o[1]), none; });
    add("CODE_ACTION", [this](const Operands& o) { return CodeAction(o); });
    add("SelecTokenByAPISourceDBVal",
        [this](const Operands& o) { return Token(m_settings.sourceDb != o[0] ? o[1] : o[2], 4); });
    add("IFSTRCMP_ACTION", [=, this](const Operands& o) {
        return (m_match == o[0]) == (Number(o[1]) != 0) ? std::optional<int>(Token(o[2])) : none;
    });
    add("GET_FIRST_IF_CPP_DIRECTIVE_PARSE_ON",
        [=, this](const Operands& o) { return BeginNamed(o[m_settings.isCppDirectiveParse ? 0 : 1]), none; });
    add("BRACKETS_ACTION", [=, this](const Operands& o) {
        const int number = Number(o[0]);
        if (number == 1)
            m_brackets = 1;
        else if (number == 2)
            ++m_brackets;
        else if (number == 3) {
            --m_brackets;
            Uve::U8CString text(m_match);
            if (!m_skips.empty() && text.MakeUpper().Find("END") != -1)
                m_skips.pop_back();
        }
        return none;
    });
    add("IF_BRACKETS_ACTION", [=, this](const Operands& o) {
        const int number = Number(o[0]);
        if (number == 1 && m_brackets < 2)
            m_condition = m_startCondition;
        if (number == 2 && m_brackets == 0)
            Color(std::to_string(MatchStart()) + ' ');
        if (number == 3 && m_brackets == 0)
            Color(std::to_string(m_at - 1) + '\n');
        if (m_brackets == 0)
            m_condition = m_startCondition;
        return none;
    });
    add("STRING_ACTION", [=, this](const Operands& o) { return StringAction(Number(o[0])), none; });
    add("PATTERNS_ACTION", [=, this](const Operands& o) {
        BeginNamed(o[m_isCr ? 0 : 1]);
        m_brackets = m_isCr ? m_brackets : 1;
        return none;
    });
    add("PATTERN_ACTION", [=, this](const Operands& o) {
        if (!m_isCr)
            BeginNamed(o[1]);
        return none;
    });
    add("ACTION_BY_OPTION", [=, this](const Operands& o) {
        const auto option = m_settings.options.find(o[0]);
        const std::size_t pair = option != m_settings.options.end() && option->second == "1" ? 1 : 3;
        if (o[pair] != "BEGIN")
            return std::optional<int>(Token(o[pair + 1]));
        Begin(o[pair + 1]);
        return none;
    });
    add("STACK_ACTION", [=, this](const Operands& o) {
        if (o[0] == "PUSH")
            ++m_stacks[o[1]];
        else if (o[0] == "POP" && m_stacks.contains(o[1]) && m_stacks[o[1]] > 0)
            --m_stacks[o[1]];
        return none;
    });
    add("SET_CONDITION", [=, this](const Operands& o) { return SaveCondition(o[0]), none; });
    add("CONDITIONAL_BEGIN",
        [=, this](const Operands& o) { return Begin(o[m_saved.contains(o[0]) ? 1 : 2]), none; });
    add("CONDITIONAL_TOKEN_ACTION", [=, this](const Operands& o) {
        const std::string& token = o[IsConditionTrue(o[0], o[1]) ? 2 : 3];
        return token == "NO_ACTION" ? none : std::optional<int>(Token(token));
    });
}

void CModelEngine::Begin(const std::string& condition)
{
    if (condition == kToStart)
        m_condition = m_startCondition;
    else if (std::to_string(Number(condition)) == condition)
        m_condition = Number(condition);
    else
        BeginNamed(condition);
}

void CModelEngine::SkipTo(const std::string& condition)
{
    BeginNamed(condition);
    m_brackets = 1;
}

int CModelEngine::Token(const std::string& name, int color, int length, bool isPseudo)
{
    const std::string text = isPseudo ? std::string() : m_match;
    // the byte before the match, and from there back to a line feed
    int q = m_at - m_length - 1;
    int lineStart = m_lineStart;
    if (m_at > m_previous) {
        while (q >= m_previous && m_query[static_cast<std::size_t>(q)] != '\n')
            --q;
        if (q > lineStart)
            m_lineStart = lineStart = q;
        m_previous = m_at;
    } else if (m_at <= lineStart) {
        while (q >= 0 && m_query[static_cast<std::size_t>(q)] != '\n')
            --q;
        lineStart = q;
    }
    const int pos = m_at - m_length - lineStart - 1;
    m_lookaheadNode = SNode();
    m_lookaheadNode.text = "<T" + name + " type=\"TOKEN\" line=\"" + std::to_string(m_line - 1) +
                           "\" pos=\"" + std::to_string(pos) + "\">" + EscapedToken(text) + "</T" + name +
                           ">";
    m_lookaheadNode.line = m_line;
    m_lookaheadNode.length = length > 0 ? length : static_cast<int>(text.size());
    m_lookaheadNode.start = m_at - m_length;
    Color(std::to_string(color) + ' ' + std::to_string(m_at - m_length) + ' ' + std::to_string(m_at - 1) +
          '\n');
    return m_tokens["T" + name];
}

std::optional<int> CModelEngine::Indentation()
{
    int width = 0;
    for (const char c : m_match)
        width += c == ' ' ? 1 : c == '\t' ? 4 : 0;
    for (const auto& stack : m_stacks)
        if (stack.second > 0)
            return std::nullopt;
    const int top = m_indents.empty() ? 0 : m_indents.back();
    if (width == top)
        return std::nullopt;
    if (width > top) {
        m_indents.push_back(width);
        return Token("__INDENT");
    }
    m_indents.pop_back();
    const int token = Token("__UNINDENT");
    for (; !m_indents.empty() && m_indents.back() > width; m_indents.pop_back())
        m_owed.emplace_back("__UNINDENT");
    return token;
}

void CModelEngine::GiveBack(int keep)
{
    const std::string rest = m_match.substr(static_cast<std::size_t>(keep));
    m_line -= static_cast<int>(std::count(rest.begin(), rest.end(), '\n'));
    m_at -= m_length - keep;
    m_length = keep;
    m_match.resize(static_cast<std::size_t>(keep));
}

std::optional<int> CModelEngine::CodeAction(const Operands& operands)
{
    switch (Number(operands[0])) {
    case 0:
        if (!m_match.starts_with("[SELECT "))
            return std::nullopt;
        GiveBack(1);
        return Token(operands[1]);
    case 1:
        return Token(operands[m_settings.isMssqlQid ? 1 : 2]);
    case 2: {
        const bool isOld =
            m_settings.versionMajor < 7 || (m_settings.versionMajor == 7 && m_settings.versionMinor < 50);
        return Token(operands[isOld ? 1 : 2]);
    }
    case 3:
        if (Uve::U8CString(m_settings.uiType).CollateNoCase("FORMS") != 0)
            return Token(operands[2]);
        BeginNamed("SS_COBOL_FORM");
        return Token(operands[1]);
    default:
        return std::nullopt;
    }
}

void CModelEngine::Define(const std::string& text, const std::string& mark, bool hasPipe, bool isCut)
{
    Uve::U8CString name(text);
    const int pipe = name.Find("|");
    const int count = hasPipe && pipe != -1 ? pipe - 3 : name.GetLength();
    name = name.Mid(name.Find(mark) + static_cast<int>(mark.size()), count);
    name.Trim("\n").Trim();
    if (isCut && name.Find(">>") != -1)
        name = name.Left(name.Find(">>"));
    name.Trim("\n").Trim();
    m_defines.push_back(name);
}

void CModelEngine::Conditional(int from, const std::string& set, bool isUpper, bool skipIfDefined,
                               const std::string& state)
{
    Uve::U8CString symbol(m_match);
    symbol = symbol.Mid(from, symbol.GetLength());
    symbol.Trim(set.c_str()).Trim();
    if (isUpper)
        symbol.MakeUpper();
    const bool isDefined = std::find(m_defines.begin(), m_defines.end(), symbol) != m_defines.end();
    const bool isSkipped = !(isUpper && m_settings.ignoresDefines) && isDefined == skipIfDefined;
    if (isSkipped)
        SkipTo(state);
    m_skips.push_back(isSkipped);
}

void CModelEngine::Else(const std::string& state)
{
    const bool wasSkipped = !m_skips.empty() && m_skips.back();
    if (!m_skips.empty())
        m_skips.pop_back();
    if (!wasSkipped)
        SkipTo(state);
}

void CModelEngine::StringAction(int number)
{
    switch (number) {
    case 1: {
        Uve::U8CString symbol(m_match);
        symbol = symbol.Mid(8, symbol.GetLength());
        m_defines.push_back(symbol.Trim("}").Trim().MakeUpper());
        break;
    }
    case 2:
        return Conditional(7, "}", true, false, "SS_DIR_COMMENT");
    case 3:
        return Conditional(8, "}", true, true, "SS_DIR_COMMENT");
    case 4: {
        Uve::U8CString text(m_match);
        for (const char* const set : {"\n", "\t", "`", " "})
            text.Trim(set).Trim();
        if (std::find(m_defines.begin(), m_defines.end(), text) != m_defines.end()) {
            m_defines.clear();
            m_condition = m_startCondition;
        }
        break;
    }
    case 7:
        Color(std::to_string(m_at - 1) + '\n');
        [[fallthrough]];
    case 6:
        Color(std::to_string(MatchStart()) + ' ');
        [[fallthrough]];
    case 5:
        return Define(m_match, "<<", false, false);
    case 8:
        return Define(m_match, "<<-", true, false);
    case 9:
        if (!m_settings.ignoresDefines)
            Else("SS_DIR_COMMENT");
        else if (!m_skips.empty())
            m_skips.pop_back();
        break;
    case 10:
        return Define(m_match, "<<", false, true);
    case 11:
        return Define(m_match, "<<-", true, true);
    case 12:
        return Conditional(7, "*)", false, false, "SS_COMMENT_DIR");
    case 13:
        return Conditional(8, "*)", false, true, "SS_COMMENT_DIR");
    case 19:
        return Else("SS_COMMENT_DIR");
    default:
        break;
    }
}

void CModelEngine::SaveCondition(const std::string& condition)
{
    std::string text = m_match;
    for (std::size_t quote = text.find_first_of("\"'"); quote != std::string::npos;
         quote = text.find_first_of("\"'"))
        text.erase(quote == 0 || text[quote - 1] != '\\' ? quote : quote - 1, 1);
    m_saved.emplace(condition, Replaced(Replaced(text, "\\$", "$"), "\\\\", "\\"));
}

bool CModelEngine::IsConditionTrue(const std::string& condition, const std::string& value)
{
    if (condition == "STATE")
        return m_condition == (value == kToStart ? m_startCondition : m_conditions[value]);
    const auto saved = m_saved.find(condition);
    if (saved == m_saved.end() || saved->second != m_match)
        return false;
    m_saved.erase(saved);
    m_condition = m_startCondition;
    return true;
}
