#include "Tree/TreeEvents.h"

#include "UVEnvironment/UVECodePoints.h"

#include <algorithm>
#include <array>

namespace {

// What a byte is to a reader of names and characters.
constexpr std::uint8_t kNameStart = 1;
constexpr std::uint8_t kNameByte = 2;
constexpr std::uint8_t kPlainText = 4;  // a serialiser writes it as it stands, as it does in
constexpr std::uint8_t kPlainValue = 8; // the value of an attribute between quotation marks
constexpr std::uint8_t kControl = 16;   // no character of XML: becomes "^"
constexpr std::uint8_t kBlank = 32;

constexpr std::array<std::uint8_t, 256> kClasses = [] {
    std::array<std::uint8_t, 256> classes{};
    for (int byte = 1; byte < 128; ++byte) {
        std::uint8_t of = 0;
        const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_';
        if (isLetter)
            of |= kNameStart;
        if (isLetter || (byte >= '0' && byte <= '9') || byte == '-' || byte == '.')
            of |= kNameByte;
        if (byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r')
            of |= kBlank;
        else if (byte < ' ')
            of |= kControl;
        const bool isMarkup = byte == '<' || byte == '>' || byte == '&';
        if (byte >= ' ' && !isMarkup && byte != ']')
            of |= kPlainText;
        if (byte >= ' ' && !isMarkup && byte != '"')
            of |= kPlainValue;
        classes[static_cast<std::size_t>(byte)] = of;
    }
    classes['\t'] |= kPlainText;
    classes['\n'] |= kPlainText;
    return classes;
}();

bool Is(char byte, std::uint8_t of)
{
    return (kClasses[static_cast<unsigned char>(byte)] & of) != 0;
}

constexpr std::size_t kRecentNames = 1024;
constexpr std::size_t kLongestName = 50000;
constexpr std::size_t kMostAttributes = 32;
constexpr std::size_t kLongestRun = 0x7FFFFFFF;

constexpr const char* kTreeNames[] = {
    "pl_sql_statements",
    "body_pl_sql_statements",
    "delimited_pl_sql_statements",
    "delimited_pl_sql_statement",
    "labeled_pl_sql_statement",
    "pl_sql_statement",
    "pl_sql_statement_delimiter",
    "pl_sql_statement_label",
    "full_pl_sql_statement",
    "expression",
    "CONCAT_item_list",
    "accumulate_expression",
    "main_source_section",
    "program_data_division_clause",
    "T__SPACE",
};
static_assert(std::size(kTreeNames) == kTreeNameCount);

struct SReference
{
    std::string_view text;
    char character;
    bool isVerbatim; // a serialiser writes it in text and in values
};

constexpr SReference kReferences[] = {
    {"&lt;", '<', true},    {"&gt;", '>', true},     {"&amp;", '&', true},
    {"&quot;", '"', false}, {"&apos;", '\'', false},
};

const SReference* FindReference(std::string_view text)
{
    const auto* const found = std::find_if(std::begin(kReferences), std::end(kReferences),
                                           [&](const SReference& row) { return text.starts_with(row.text); });
    return found != std::end(kReferences) ? found : nullptr;
}

// Of "&#10;" or "&#xA;" in front of `text`. Returns: the bytes, 0 if there is none or it stands for no
// character of XML.
std::size_t DecodeCharacterReference(std::string_view text, unsigned int& codePoint)
{
    const bool isHex = text.starts_with("&#x");
    std::size_t at = isHex ? 3 : 2;
    const std::size_t first = at;
    codePoint = 0;
    for (; at < text.size() && text[at] != ';'; ++at) {
        const char c = text[at];
        unsigned int digit = 16;
        if (c >= '0' && c <= '9')
            digit = static_cast<unsigned int>(c - '0');
        else if (isHex && ((c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F')))
            digit = static_cast<unsigned int>((c | 0x20) - 'a') + 10;
        if (digit == 16)
            return 0;
        codePoint = codePoint * (isHex ? 16 : 10) + digit;
        if (codePoint > Uve::CodePoints::kLast)
            return 0;
    }
    const bool isCharacter = codePoint >= 0x20 || codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
    if (at == first || at == text.size() || !isCharacter || !Uve::CodePoints::IsScalarValue(codePoint) ||
        codePoint == 0xFFFE || codePoint == 0xFFFF)
        return 0;
    return at + 1;
}

// Of the character in front of `text`, which isn't ASCII. Returns: its bytes, 0 if it is malformed.
std::size_t MultibyteLength(std::string_view text)
{
    const auto decoded =
        Uve::CodePoints::DecodeUtf8(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return decoded.kind == Uve::CodePoints::enDecoded::Character ? decoded.length : 0;
}

// Whether U+FFFE or U+FFFF stands in front of `text`: like control characters they are none of XML.
constexpr std::size_t kNonCharacterBytes = 3;
bool IsNonCharacter(std::string_view text)
{
    return text.starts_with("\xEF\xBF\xBE") || text.starts_with("\xEF\xBF\xBF");
}

} // namespace

bool IsTreeName(std::string_view name)
{
    return !name.empty() && name.size() <= kLongestName && Is(name.front(), kNameStart) &&
           std::all_of(name.begin(), name.end(), [](char c) { return Is(c, kNameByte); });
}

bool IsTreeText(std::string_view text)
{
    const auto isPlain = [](char c) { return c > 0 && static_cast<unsigned char>(c) < 0x80; };
    for (auto at = text.begin();;) {
        at = std::find_if_not(at, text.end(), isPlain);
        if (at == text.end())
            return true;
        const std::size_t length =
            *at == 0 ? 0 : MultibyteLength(text.substr(static_cast<std::size_t>(at - text.begin())));
        if (length == 0)
            return false;
        at += static_cast<std::ptrdiff_t>(length);
    }
}

CTreeEvents::CTreeEvents(std::string_view text) : m_Text(text), m_Recent(kRecentNames, kNoName)
{
    for (const char* const name : kTreeNames)
        Intern(name);
    ReadProlog();
}

// ---- The queue ----

STreeEvent& CTreeEvents::Append(enTreeEvent kind, std::uint64_t offset, std::uint64_t length)
{
    Demand(length <= kLongestRun);
    if ((m_End >> kBlockBits) - m_FirstBlock == m_Blocks.size())
        m_Blocks.push_back(std::make_unique_for_overwrite<STreeEvent[]>(kBlockMask + 1));
    STreeEvent& event = Stored(m_End++);
    event = {.offset = offset,
             .name = kNoName,
             .length = static_cast<std::uint32_t>(length),
             .extent = 0,
             .kind = kind,
             .flags = 0};
    return event;
}

bool CTreeEvents::Knows(std::uint64_t index, std::uint8_t flags)
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

std::uint64_t CTreeEvents::Behind(std::uint64_t index)
{
    if (At(index).kind != enTreeEvent::Start)
        return index + 1;
    while (Stored(index).extent == 0)
        ReadOn();
    return index + Stored(index).extent + 1;
}

void CTreeEvents::Forget(std::uint64_t index)
{
    while ((index >> kBlockBits) > m_FirstBlock && m_Blocks.size() > 1) {
        m_Blocks.pop_front();
        ++m_FirstBlock;
    }
}

std::uint32_t CTreeEvents::Intern(std::string_view name)
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

// ---- The reader ----

void CTreeEvents::ReadProlog()
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

void CTreeEvents::ReadOn()
{
    if (m_IsRootRead) {
        StepBlanks();
        Demand(IsAtEnd());
        Append(enTreeEvent::Finish, m_At, 0);
        return;
    }
    Demand(!IsAtEnd());
    if (Byte() == '<') {
        ReadMarkup();
        return;
    }
    // characters behind a tag are read with it: these stand behind a comment
    const std::size_t from = m_At;
    const bool isVerbatim = StepCharacters();
    AppendText(from, isVerbatim);
}

void CTreeEvents::AppendText(std::size_t from, bool isVerbatim)
{
    if (m_At == from)
        return;
    Append(enTreeEvent::Text, from, m_At - from).flags = isVerbatim ? STreeEvent::kIsVerbatim : 0;
    Mark(m_Open.back(), STreeEvent::kHasCharacters);
}

void CTreeEvents::ReadMarkup()
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

void CTreeEvents::ReadComment()
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
    Append(enTreeEvent::Comment, from, end - from).flags = isVerbatim ? STreeEvent::kIsVerbatim : 0;
    m_At = end + 3;
}

void CTreeEvents::ReadStartTag()
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
        StepBehindEndTag(name);
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
    m_Open.push_back({m_End - 1, name});
    AppendText(content, isVerbatim);
}

STreeEvent& CTreeEvents::AppendElement(enTreeEvent kind, std::uint32_t name, std::uint8_t flags,
                                       std::size_t from, std::size_t length)
{
    STreeEvent& event = Append(kind, from, length);
    event.name = name;
    event.flags = flags;
    return event;
}

void CTreeEvents::ReadEndTag()
{
    const std::size_t from = m_At;
    Demand(!m_Open.empty());
    const SOpen open = m_Open.back();
    StepBehindEndTag(open.name);
    m_Open.pop_back();
    m_IsRootRead = m_Open.empty();
    const std::uint64_t extent = m_End - open.index;
    Demand(extent <= kLongestRun);
    if (IsRetained(open.index))
        Stored(open.index).extent = static_cast<std::uint32_t>(extent);
    if (!m_Open.empty() && open.hasCharacters)
        Mark(m_Open.back(), STreeEvent::kHasCharacters);
    Append(enTreeEvent::End, from, m_At - from).name = open.name;
    const std::size_t behind = m_At;
    if (!m_IsRootRead) {
        const bool isVerbatim = StepCharacters();
        AppendText(behind, isVerbatim);
    }
}

// ---- Steps ----

void CTreeEvents::StepBlanks()
{
    while (!IsAtEnd() && Is(m_Text[m_At], kBlank))
        ++m_At;
}

std::string_view CTreeEvents::StepName()
{
    const std::size_t from = m_At;
    Demand(!IsAtEnd() && Is(m_Text[m_At], kNameStart));
    while (!IsAtEnd() && Is(m_Text[m_At], kNameByte))
        ++m_At;
    Demand(m_At - from <= kLongestName);
    return m_Text.substr(from, m_At - from);
}

void CTreeEvents::StepBehindEndTag(std::uint32_t name)
{
    const std::string_view text = m_Names[name];
    m_At += 2;
    Demand(m_Text.substr(m_At).starts_with(text));
    m_At += text.size();
    StepBlanks();
    Demand(!IsAtEnd() && Byte() == '>');
    ++m_At;
}

bool CTreeEvents::StepCharacters()
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
bool CTreeEvents::StepAttributes()
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
        const std::size_t behindName = m_At;
        StepBlanks();
        Demand(!IsAtEnd() && Byte() == '=');
        ++m_At;
        StepBlanks();
        isVerbatim = m_At == behindName + 1 && isVerbatim;
        isVerbatim = StepValue() && isVerbatim;
    }
}

bool CTreeEvents::StepValue()
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

bool CTreeEvents::StepReference()
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

bool CTreeEvents::StepMultibyte()
{
    const std::string_view rest = m_Text.substr(m_At);
    const std::size_t length = MultibyteLength(rest);
    Demand(length != 0);
    m_At += length;
    return !IsNonCharacter(rest);
}

// ---- Characters ----

namespace {

// Hands the characters of a run over: spans that need nothing, and each character that may need something.
template <class Sink>
void ForEachPiece(std::string_view run, enRun kind, Sink&& sink)
{
    std::size_t at = 0;
    while (at < run.size()) {
        const std::size_t from = at;
        while (at < run.size() && (kClasses[static_cast<unsigned char>(run[at])] & kPlainValue) != 0)
            ++at;
        if (at > from)
            sink(run.substr(from, at - from));
        if (at == run.size())
            return;
        char c = run[at];
        if (c == '&' && kind != enRun::Comment) {
            const std::string_view rest = run.substr(at);
            if (const SReference* const reference = FindReference(rest)) {
                sink(std::string_view(&reference->character, 1));
                at += reference->text.size();
                continue;
            }
            unsigned int codePoint = 0;
            at += DecodeCharacterReference(rest, codePoint);
            char bytes[4];
            sink(std::string_view(bytes,
                                  static_cast<std::size_t>(Uve::CodePoints::EncodeUtf8(codePoint, bytes))));
            continue;
        }
        if (IsNonCharacter(run.substr(at))) {
            sink("^");
            at += kNonCharacterBytes;
            continue;
        }
        ++at;
        if (c == '\r') {
            at += at < run.size() && run[at] == '\n' ? 1u : 0u;
            c = '\n';
        }
        if (Is(c, kBlank) && kind == enRun::Value)
            c = ' ';
        else if (Is(c, kControl))
            c = '^';
        sink(std::string_view(&c, 1));
    }
}

std::string_view EscapedInText(char c)
{
    switch (c) {
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '&':
        return "&amp;";
    case '\r':
        return "&#13;";
    default:
        return {};
    }
}

std::string_view EscapedInValue(char c)
{
    switch (c) {
    case '"':
        return "&quot;";
    case '\t':
        return "&#9;";
    case '\n':
        return "&#10;";
    default:
        return EscapedInText(c);
    }
}

} // namespace

void AppendCharacters(std::string_view run, enRun kind, std::string& out)
{
    ForEachPiece(run, kind, [&](std::string_view piece) { out += piece; });
}

void AppendSerialised(std::string_view run, enRun kind, std::string& out)
{
    ForEachPiece(run, kind, [&](std::string_view piece) {
        std::string_view escaped;
        if (piece.size() == 1 && kind != enRun::Comment)
            escaped = kind == enRun::Text ? EscapedInText(piece[0]) : EscapedInValue(piece[0]);
        out += escaped.empty() ? piece : escaped;
    });
}

void AppendEscapedValue(std::string_view characters, std::string& out)
{
    for (std::size_t at = 0; at < characters.size(); ++at) {
        const std::string_view escaped = EscapedInValue(characters[at]);
        if (escaped.empty())
            out += characters[at];
        else
            out += escaped;
    }
}
