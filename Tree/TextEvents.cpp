#include "Tree/TextEvents.h"

#include "Tree/TreeCharacters.h"

#include <algorithm>

using namespace TreeNames;

namespace {

constexpr std::size_t kRecentNames = 1024;
constexpr std::size_t kMostAttributes = 32;
constexpr std::size_t kLongestRun = 0x7FFFFFFF;

} // namespace

CTextEvents::CTextEvents(std::string_view text) : m_Text(text), m_Recent(kRecentNames, kNoName)
{
    for (const char* const name : kTreeNames)
        Intern(name);
    ReadProlog();
}

// ---- The queue ----

STreeEvent& CTextEvents::AppendEvent(enTreeEvent kind, std::uint64_t offset, std::uint64_t length)
{
    Demand(length <= kLongestRun);
    STreeEvent& event = Append();
    event = {.offset = offset,
             .name = kNoName,
             .length = static_cast<std::uint32_t>(length),
             .extent = 0,
             .kind = kind,
             .flags = 0};
    return event;
}

bool CTextEvents::Knows(std::uint64_t index, std::uint8_t flags)
{
    for (;;) {
        const STreeEvent& event = At(index);
        if ((event.flags & flags) != 0)
            return true;
        if (event.kind == enTreeEvent::Leaf || event.extent != 0)
            return false;
        ReadOn();
    }
}

std::uint32_t CTextEvents::Intern(std::string_view name)
{
    const std::size_t half = name.size() / 2;
    const auto letter = [&](std::size_t at) { return std::size_t{static_cast<unsigned char>(name[at])}; };
    const std::size_t sum =
        name.size() * 67 + letter(name.size() - 1) * 5 + letter(half) * 131 + letter(half / 2) * 29;
    std::uint32_t& recent = m_Recent[sum % kRecentNames];
    if (recent != kNoName && m_Names[recent] == name)
        return recent;
    if (const auto found = m_Numbers.find(name); found != m_Numbers.end())
        return recent = found->second;
    recent = static_cast<std::uint32_t>(m_Names.size());
    m_Names.emplace_back(m_NameTexts.emplace_back(name));
    m_Numbers.emplace(m_Names.back(), recent);
    return recent;
}

// ---- What it writes ----

void CTextEvents::WriteLeaf(const STreeEvent& event, CTextBlock& out)
{
    WriteStart(event, out);
    if (event.extent == 0) {
        out.Write("/>");
        return;
    }
    out.Write('>');
    WriteCharacters(event, out);
    WriteEnd(event.name, out);
}

void CTextEvents::WriteStart(const STreeEvent& event, CTextBlock& out)
{
    if ((event.flags & STreeEvent::kIsVerbatimTag) != 0) {
        const std::uint64_t bracket = (event.flags & STreeEvent::kIsEmptyTag) != 0 ? 2 : 1;
        out.Write(m_Text.substr(event.offset, event.length - bracket));
        return;
    }
    out.Write("<");
    out.Write(Name(event.name));
    WriteAttributes(Attributes(event), out);
}

void CTextEvents::WriteEnd(std::uint32_t name, CTextBlock& out) const
{
    out.Write("</");
    out.Write(Name(name));
    out.Write(">");
}

std::string_view CTextEvents::Characters(const STreeEvent& event) const
{
    return event.kind == enTreeEvent::Leaf ? m_Text.substr(event.offset + event.length, event.extent)
                                           : m_Text.substr(event.offset, event.length);
}

void CTextEvents::WriteCharacters(const STreeEvent& event, CTextBlock& out)
{
    if ((event.flags & STreeEvent::kIsVerbatim) != 0) {
        out.Write(Characters(event));
        return;
    }
    m_Piece.clear();
    AppendSerialised(Characters(event), enRun::Text, m_Piece);
    out.Write(m_Piece);
}

void CTextEvents::WriteComment(const STreeEvent& event, CTextBlock& out)
{
    m_Piece = "<!--";
    AppendSerialised(Characters(event), enRun::Comment, m_Piece);
    out.Write(m_Piece.append("-->"));
}

void CTextEvents::AppendCharactersOf(const STreeEvent& event, std::string& out) const
{
    AppendCharacters(Characters(event), enRun::Text, out);
}

// ---- The reader ----

void CTextEvents::ReadProlog()
{
    for (const std::string_view declaration :
         {"<?xml version=\"1.0\" ?>", "<?xml version=\"1.0\"?>", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
          "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>"})
        if (m_Text.starts_with(declaration)) {
            m_At = declaration.size();
            break;
        }
    StepBlanks();
    Demand(!IsAtEnd() && Byte() == '<');
}

void CTextEvents::ReadOn()
{
    if (m_IsRootRead) {
        StepBlanks();
        Demand(IsAtEnd());
        AppendEvent(enTreeEvent::Finish, m_At, 0);
        return;
    }
    Demand(!IsAtEnd());
    if (Byte() == '<') {
        ReadMarkup();
        return;
    }
    // characters after a tag are read with it: these stand after a comment
    const std::size_t from = m_At;
    const bool isVerbatim = StepCharacters();
    AppendText(from, isVerbatim);
}

void CTextEvents::AppendText(std::size_t from, bool isVerbatim)
{
    if (m_At == from)
        return;
    AppendEvent(enTreeEvent::Text, from, m_At - from).flags = isVerbatim ? STreeEvent::kIsVerbatim : 0;
    Mark(m_Open.back(), STreeEvent::kHasCharacters);
}

void CTextEvents::ReadMarkup()
{
    Demand(m_At + 1 < m_Text.size());
    const char next = m_Text[m_At + 1];
    if (next == '/')
        ReadEndTag();
    else if (next == '!')
        ReadComment();
    else
        ReadStartTag();
}

void CTextEvents::ReadComment()
{
    Demand(m_Text.substr(m_At).starts_with("<!--") && !m_Open.empty());
    const std::size_t from = m_At + 4;
    const std::size_t end = m_Text.find("--", from);
    Demand(end != std::string_view::npos && m_Text.substr(end).starts_with("-->"));
    bool isVerbatim = true;
    for (m_At = from; m_At < end;) {
        if (Byte() >= 0x80)
            isVerbatim = StepMultibyte() && isVerbatim;
        else {
            Demand(Byte() != 0);
            isVerbatim = isVerbatim && Byte() != '\r' && !Is(m_Text[m_At], kControl);
            ++m_At;
        }
    }
    AppendEvent(enTreeEvent::Comment, from, end - from).flags = isVerbatim ? STreeEvent::kIsVerbatim : 0;
    m_At = end + 3;
}

void CTextEvents::ReadStartTag()
{
    const std::size_t from = m_At++;
    const std::uint32_t name = Intern(StepName());
    if (!m_Open.empty()) {
        SOpen& parent = m_Open.back();
        if (parent.name == name)
            Mark(parent, STreeEvent::kHasItsName);
        if (name == kLabeledStatement)
            Mark(parent, STreeEvent::kHasLabeled);
    }
    std::uint8_t flags = StepAttributes() ? STreeEvent::kIsVerbatimTag : 0;
    const bool isEmptyTag = Byte() == '/';
    m_At += isEmptyTag ? 2 : 1;
    Demand(m_At <= m_Text.size() && m_Text[m_At - 1] == '>');
    const std::size_t content = m_At;
    if (isEmptyTag) {
        flags |= STreeEvent::kIsEmptyTag | STreeEvent::kIsVerbatim;
        AppendElement(enTreeEvent::Leaf, name, flags, from, content - from);
        m_IsRootRead = m_Open.empty();
        return;
    }

    const bool isVerbatim = StepCharacters();
    const std::size_t end = m_At;
    // the commonest element by far is a token: one event instead of three
    if (m_Text.substr(m_At).starts_with("</")) {
        StepOverEndTag(name);
        flags |= isVerbatim ? STreeEvent::kIsVerbatim : 0;
        if (end > content) {
            flags |= STreeEvent::kHasCharacters;
            if (!m_Open.empty())
                Mark(m_Open.back(), STreeEvent::kHasCharacters);
        }
        Demand(end - content <= kLongestRun);
        AppendElement(enTreeEvent::Leaf, name, flags, from, content - from).extent =
            static_cast<std::uint32_t>(end - content);
        m_IsRootRead = m_Open.empty();
        return;
    }
    AppendElement(enTreeEvent::Start, name, flags, from, content - from);
    m_Open.push_back({End() - 1, name});
    AppendText(content, isVerbatim);
}

STreeEvent& CTextEvents::AppendElement(enTreeEvent kind, std::uint32_t name, std::uint8_t flags,
                                       std::size_t from, std::size_t length)
{
    STreeEvent& event = AppendEvent(kind, from, length);
    event.name = name;
    event.flags = flags;
    return event;
}

void CTextEvents::ReadEndTag()
{
    const std::size_t from = m_At;
    Demand(!m_Open.empty());
    const SOpen open = m_Open.back();
    StepOverEndTag(open.name);
    m_Open.pop_back();
    m_IsRootRead = m_Open.empty();
    const std::uint64_t extent = End() - open.index;
    Demand(extent <= kLongestRun);
    if (IsRetained(open.index))
        Stored(open.index).extent = static_cast<std::uint32_t>(extent);
    if (!m_Open.empty() && open.hasCharacters)
        Mark(m_Open.back(), STreeEvent::kHasCharacters);
    AppendEvent(enTreeEvent::End, from, m_At - from).name = open.name;
    const std::size_t after = m_At;
    if (!m_IsRootRead) {
        const bool isVerbatim = StepCharacters();
        AppendText(after, isVerbatim);
    }
}

// ---- Steps ----

void CTextEvents::StepBlanks()
{
    while (!IsAtEnd() && Is(m_Text[m_At], kBlank))
        ++m_At;
}

std::string_view CTextEvents::StepName()
{
    const std::size_t from = m_At;
    Demand(!IsAtEnd() && Is(m_Text[m_At], kNameStart));
    while (!IsAtEnd() && Is(m_Text[m_At], kNameByte))
        ++m_At;
    Demand(m_At - from <= kLongestTreeName);
    return m_Text.substr(from, m_At - from);
}

void CTextEvents::StepOverEndTag(std::uint32_t name)
{
    const std::string_view text = m_Names[name];
    m_At += 2;
    Demand(m_Text.substr(m_At).starts_with(text));
    m_At += text.size();
    StepBlanks();
    Demand(!IsAtEnd() && Byte() == '>');
    ++m_At;
}

bool CTextEvents::StepCharacters()
{
    bool isVerbatim = true;
    while (!IsAtEnd() && Byte() != '<') {
        if (Is(m_Text[m_At], kPlainText))
            ++m_At;
        else if (Byte() == '&')
            isVerbatim = StepReference() && isVerbatim;
        else if (Byte() == ']') {
            Demand(!m_Text.substr(m_At).starts_with("]]>"));
            ++m_At;
        } else if (Byte() >= 0x80)
            isVerbatim = StepMultibyte() && isVerbatim;
        else {
            Demand(Byte() != 0);
            isVerbatim = false;
            ++m_At;
        }
    }
    return isVerbatim;
}

// Up to the bracket or the slash.
bool CTextEvents::StepAttributes()
{
    bool isVerbatim = true;
    m_AttributeNames.clear();
    for (;;) {
        const std::size_t from = m_At;
        StepBlanks();
        Demand(!IsAtEnd());
        if (Byte() == '>' || Byte() == '/')
            return isVerbatim && m_At == from;
        Demand(m_At > from);
        isVerbatim = isVerbatim && m_At == from + 1 && m_Text[from] == ' ';
        const std::string_view name = StepName();
        Demand(name != "xmlns" && m_AttributeNames.size() < kMostAttributes &&
               std::find(m_AttributeNames.begin(), m_AttributeNames.end(), name) == m_AttributeNames.end());
        m_AttributeNames.push_back(name);
        const std::size_t afterName = m_At;
        StepBlanks();
        Demand(!IsAtEnd() && Byte() == '=');
        ++m_At;
        StepBlanks();
        isVerbatim = m_At == afterName + 1 && isVerbatim;
        isVerbatim = StepValue() && isVerbatim;
    }
}

bool CTextEvents::StepValue()
{
    Demand(!IsAtEnd());
    const char quote = m_Text[m_At++];
    Demand(quote == '"' || quote == '\'');
    bool isVerbatim = quote == '"';
    for (;;) {
        Demand(!IsAtEnd());
        if (m_Text[m_At] == quote)
            break;
        if (Is(m_Text[m_At], kPlainValue))
            ++m_At;
        else if (Byte() == '&')
            isVerbatim = StepReference() && isVerbatim;
        else if (Byte() >= 0x80)
            isVerbatim = StepMultibyte() && isVerbatim;
        else {
            Demand(Byte() != '<' && Byte() != 0);
            isVerbatim = false;
            ++m_At;
        }
    }
    ++m_At;
    return isVerbatim;
}

bool CTextEvents::StepReference()
{
    const std::string_view rest = m_Text.substr(m_At);
    if (const SReference* const reference = FindReference(rest)) {
        m_At += reference->text.size();
        return reference->isVerbatim;
    }
    unsigned int codePoint = 0;
    const std::size_t length = rest.starts_with("&#") ? DecodeCharacterReference(rest, codePoint) : 0;
    Demand(length != 0);
    m_At += length;
    return false;
}

bool CTextEvents::StepMultibyte()
{
    const std::string_view rest = m_Text.substr(m_At);
    const std::size_t length = MultibyteLength(rest);
    Demand(length != 0);
    m_At += length;
    return !IsNonCharacter(rest);
}
