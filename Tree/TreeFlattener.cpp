#include "Tree/TreeFlattener.h"

#include "Tree/TextOverwriter.h"
#include "Tree/TreeAttributes.h"
#include "Tree/TreeEvents.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

// Nothing but delimiters in delimiters makes a tree grow more than this.
constexpr std::size_t kMostGrowth = 16;
constexpr std::size_t kAlwaysAllowed = std::size_t{1} << 20;

// What the children of an element get.
enum class enChildren : std::uint8_t
{
    Templates,      // the templates; characters and comments are copied
    ElementsOnly,   // the templates; nothing but elements counts
    ListItems,      // children of the list's name are opened up, the others copied
    Statements,     // the templates; lists of delimited statements are opened up
    Body,           // the body loop
    LabeledFirst,   // the content of labeled statements now, the delimiters at the end
    LabeledContent, // the content of labeled statements
};

// What stands behind the children.
enum class enEnding : std::uint8_t
{
    Nothing,
    EndTag,
    Delimiters,        // the element's own, or a supplied one; ends a full statement
    SuppliedDelimiter, // if the element has none and a data division stands before it; ends a full statement
    EmptyDelimiter,    // ends a full statement
    PlainStatement,    // end tag, empty delimiter; ends a full statement
    BodyDelimiter,     // the delimiter step of a body; ends a full statement
};

// An element that is being walked through.
struct SFrame
{
    std::uint32_t name;    // in the tree
    std::uint32_t outName; // what EndTag writes
    enChildren children = enChildren::Templates;
    enEnding ending = enEnding::Nothing;
    bool hasDelimiter = false;          // among its children so far
    bool hasFoundDelimiter = false;     // by the delimiter step
    bool isBehindDataDivision = false;  // a data division is among its earlier siblings
    bool hasPassedDataDivision = false; // among its children so far
    bool isExcursion = false;           // behind it the walk goes on at the ending of the frame below
    std::uint8_t stage = 0;             // of its ending
    std::uint64_t end = 0;              // its last event, from stage 1 on
    std::uint64_t delimiter = 0;        // Delimiters: the first, then the next to copy; 0 for none
};

class CTreeFlattener
{
public:
    // Writes over `tree`. Borrows it.
    explicit CTreeFlattener(std::string& tree)
        : m_Events(tree), m_Out(tree), m_MostOutput(tree.size() * kMostGrowth + kAlwaysAllowed)
    {}

    void Run(std::string_view declaration)
    {
        Write(declaration);
        Write("\n");
        const std::size_t declared = m_Out.size();
        Apply(0, kNoName, false, false);
        while (!m_Frames.empty())
            Step();
        if (m_Events.At(m_At).kind != enTreeEvent::Finish)
            throw STreeDeclined();
        if (m_Out.size() > declared)
            Write("\n");
        m_Out.Finish();
    }

private:
    // ---- the walk ----

    void Step();
    void Child(std::uint64_t index);
    void BodyChild(std::uint64_t index, std::uint32_t name);
    void Apply(std::uint64_t index, std::uint32_t parent, bool isBehindDataDivision, bool isExcursion);
    void CopyElement(std::uint64_t index, SFrame frame);
    void CopyMacro(std::uint64_t index);
    void Enter(std::uint64_t index, const SFrame& frame);
    void Leave();
    void Pop();
    bool GoToNextDelimiter();
    bool GoToBodyDelimiter();
    template <class Matches>
    std::uint64_t FindSibling(std::uint64_t from, Matches&& matches);
    std::uint64_t FindDelimiter(std::uint64_t from);
    std::string MacroText(std::uint64_t index);
    TreeAttributes AttributesOf(const STreeEvent& event) const
    {
        return ReadAttributes(m_Events.Slice(event.offset, event.length));
    }

    // ---- the output ----

    void Write(std::string_view text)
    {
        if (!m_Out.Takes(text))
            m_Out.Settle(text, m_Events.At(FirstNeeded()).offset);
    }
    std::uint64_t FirstNeeded() const { return m_Kept.empty() ? m_At : std::min(m_At, m_Kept.front()); }

    void CloseTag()
    {
        if (m_IsTagOpen)
            Write(">");
        m_IsTagOpen = false;
    }
    void StartTag(std::string_view name)
    {
        CloseTag();
        Write("<");
        Write(name);
        m_IsTagOpen = true;
    }
    void EndTag(std::string_view name)
    {
        if (m_IsTagOpen)
            Write("/>");
        else {
            Write("</");
            Write(name);
            Write(">");
        }
        m_IsTagOpen = false;
        if (m_Out.size() > m_MostOutput)
            throw std::length_error("the flattened tree grows out of bounds");
    }
    void EmptyElement(enTreeName name)
    {
        StartTag(m_Events.Name(name));
        EndTag({});
    }
    void StartFullStatement(bool isDelimited, bool isLabeled)
    {
        StartTag(m_Events.Name(kFullStatement));
        Write(isDelimited ? " delimited=\"1\"" : " delimited=\"0\"");
        Write(isLabeled ? " labeled=\"1\"" : " labeled=\"0\"");
    }
    void EndFullStatement() { EndTag(m_Events.Name(kFullStatement)); }
    void WriteText(std::uint64_t offset, std::uint64_t length, bool isVerbatim);
    void WriteSerialised(std::string_view run, enRun kind);
    void WriteComment(const STreeEvent& event);
    void WriteAttributes(const TreeAttributes& attributes);
    void StartTagAsRead(const STreeEvent& event);

    CTreeEvents m_Events;
    CTextOverwriter m_Out;
    std::string m_Piece; // of text that is written otherwise than it was read
    std::size_t m_MostOutput;
    std::uint64_t m_At = 0;
    bool m_IsTagOpen = false;
    std::vector<SFrame> m_Frames;
    std::uint64_t m_SiblingsEnd = 0;   // see FindSibling
    std::vector<std::uint64_t> m_Kept; // events that are gone back to, the earliest first
};

bool IsNestedOnPurpose(std::uint32_t name)
{
    return name == kExpression || name == kConcatItemList || name == kAccumulateExpression;
}

// ---- The walk ----

void CTreeFlattener::Step()
{
    if (m_Frames.back().stage != 0) {
        Leave();
        return;
    }
    const STreeEvent event = m_Events.At(m_At);
    switch (event.kind) {
    case enTreeEvent::Start:
    case enTreeEvent::Leaf:
        Child(m_At);
        break;
    case enTreeEvent::End:
        Leave();
        break;
    case enTreeEvent::Text:
    case enTreeEvent::Comment:
        if (m_Frames.back().children == enChildren::Templates) {
            if (event.kind == enTreeEvent::Text)
                WriteText(event.offset, event.length, (event.flags & STreeEvent::kIsVerbatim) != 0);
            else
                WriteComment(event);
        }
        ++m_At;
        break;
    case enTreeEvent::Finish:
        throw std::logic_error("an element without its end");
    }
    m_Events.Forget(FirstNeeded());
}

void CTreeFlattener::Child(std::uint64_t index)
{
    SFrame& parent = m_Frames.back();
    const std::uint32_t name = m_Events.At(index).name;
    const bool isBehindDataDivision = parent.hasPassedDataDivision;
    parent.hasPassedDataDivision = isBehindDataDivision || name == kDataDivisionClause;
    parent.hasDelimiter = parent.hasDelimiter || name == kDelimiter;
    switch (parent.children) {
    case enChildren::Templates:
    case enChildren::ElementsOnly:
        Apply(index, parent.name, isBehindDataDivision, false);
        return;
    case enChildren::ListItems:
        if (name == parent.name)
            Enter(index, {.name = name, .outName = kNoName, .children = enChildren::ListItems});
        else
            CopyElement(index, {.name = name, .outName = name, .ending = enEnding::EndTag});
        return;
    case enChildren::Statements:
        if (name == kDelimitedStatements)
            Enter(index, {.name = name, .outName = kNoName});
        else
            Apply(index, parent.name, isBehindDataDivision, false);
        return;
    case enChildren::Body:
        BodyChild(index, name);
        return;
    case enChildren::LabeledFirst:
        if (name == kDelimiter && parent.delimiter == 0) {
            parent.delimiter = index;
            m_Kept.push_back(index);
        }
        [[fallthrough]];
    case enChildren::LabeledContent:
        if (name == kLabeledStatement)
            Enter(index, {.name = name, .outName = kNoName, .children = enChildren::ElementsOnly});
        else
            m_At = m_Events.Behind(index);
        return;
    }
}

void CTreeFlattener::BodyChild(std::uint64_t index, std::uint32_t name)
{
    if (name == kDelimiter) {
        m_At = m_Events.Behind(index);
        return;
    }
    if (name != kDelimitedStatement) {
        Apply(index, kBodyStatements, m_Frames.back().hasPassedDataDivision, false);
        return;
    }
    SFrame frame{.name = name, .outName = kNoName, .ending = enEnding::BodyDelimiter};
    StartFullStatement(true, true);
    if (m_Events.Knows(index, STreeEvent::kHasLabeled))
        frame.children = enChildren::LabeledContent;
    else
        EmptyElement(kLabel);
    Enter(index, frame);
}

// The main template, its cases in their order, and the rules beside it.
void CTreeFlattener::Apply(std::uint64_t index, std::uint32_t parent, bool isBehindDataDivision,
                           bool isExcursion)
{
    const std::uint32_t name = m_Events.At(index).name;
    SFrame frame{.name = name,
                 .outName = kNoName,
                 .isBehindDataDivision = isBehindDataDivision,
                 .isExcursion = isExcursion};
    if (name == kSpace && !m_Events.Knows(index, STreeEvent::kHasCharacters)) {
        m_At = m_Events.Behind(index);
        return;
    }
    if (name == parent && name != kBodyStatements && !IsNestedOnPurpose(name)) {
        Enter(index, frame);
        return;
    }
    if (name == kBodyStatements) {
        frame.children = enChildren::Body;
        if (parent != kBodyStatements) {
            StartTag(m_Events.Name(kStatements));
            frame.outName = kStatements;
            frame.ending = enEnding::EndTag;
        }
        Enter(index, frame);
        return;
    }
    if (name != parent && !IsNestedOnPurpose(name) && name != kMainSourceSection &&
        m_Events.Knows(index, STreeEvent::kHasItsName)) {
        StartTag(m_Events.Name(name));
        frame.children = enChildren::ListItems;
        frame.outName = name;
        frame.ending = enEnding::EndTag;
        Enter(index, frame);
        return;
    }
    switch (name) {
    case kDelimitedStatement:
        if (m_Events.Knows(index, STreeEvent::kHasLabeled)) {
            StartFullStatement(true, true);
            frame.children = enChildren::LabeledFirst;
            frame.ending = enEnding::Delimiters;
        } else {
            StartFullStatement(true, false);
            EmptyElement(kLabel);
            frame.ending = enEnding::SuppliedDelimiter;
        }
        Enter(index, frame);
        return;
    case kLabeledStatement:
        StartFullStatement(false, true);
        frame.ending = enEnding::EmptyDelimiter;
        Enter(index, frame);
        return;
    case kStatement:
        frame.outName = name;
        if (parent == kStatements) {
            StartFullStatement(false, false);
            EmptyElement(kLabel);
            frame.ending = enEnding::PlainStatement;
        } else
            frame.ending = enEnding::EndTag;
        CopyElement(index, frame);
        return;
    case kStatements:
        StartTag(m_Events.Name(name));
        frame.children = enChildren::Statements;
        frame.outName = name;
        frame.ending = enEnding::EndTag;
        Enter(index, frame);
        return;
    default:
        break;
    }
    if (m_Events.IsTerminal(name) &&
        m_Events.Name(name).substr(3) == (parent != kNoName ? m_Events.Name(parent) : std::string_view())) {
        CopyMacro(index);
        return;
    }
    frame.outName = name;
    frame.ending = enEnding::EndTag;
    CopyElement(index, frame);
}

void CTreeFlattener::CopyElement(std::uint64_t index, SFrame frame)
{
    StartTagAsRead(m_Events.At(index));
    Enter(index, frame);
}

// Goes to the children of the element, or right through a leaf to its ending.
void CTreeFlattener::Enter(std::uint64_t index, const SFrame& frame)
{
    const STreeEvent event = m_Events.At(index);
    m_Frames.push_back(frame);
    m_At = index;
    if (event.kind == enTreeEvent::Start) {
        ++m_At;
        return;
    }
    if (event.extent != 0 && frame.children == enChildren::Templates)
        WriteText(event.offset + event.length, event.extent, (event.flags & STreeEvent::kIsVerbatim) != 0);
    Leave();
}

// The ending of the uppermost element, whose last event is the current one. An ending that copies a delimiter
// from elsewhere goes there, and is called again behind it.
void CTreeFlattener::Leave()
{
    SFrame& frame = m_Frames.back();
    if (frame.stage == 0)
        frame.end = m_At;
    switch (frame.ending) {
    case enEnding::Nothing:
        break;
    case enEnding::EndTag:
        EndTag(m_Events.Name(frame.outName));
        break;
    case enEnding::Delimiters:
        if (GoToNextDelimiter())
            return;
        if (frame.hasDelimiter)
            m_Kept.pop_back();
        [[fallthrough]];
    case enEnding::SuppliedDelimiter:
        if (!frame.hasDelimiter && frame.isBehindDataDivision)
            EmptyElement(kDelimiter);
        EndFullStatement();
        break;
    case enEnding::PlainStatement:
        EndTag(m_Events.Name(frame.outName));
        [[fallthrough]];
    case enEnding::EmptyDelimiter:
        EmptyElement(kDelimiter);
        EndFullStatement();
        break;
    case enEnding::BodyDelimiter:
        if (GoToBodyDelimiter())
            return;
        if (!frame.hasFoundDelimiter)
            EmptyElement(kDelimiter);
        EndFullStatement();
        break;
    }
    // the frame below an excursion goes on with its own ending, wherever the walk stands
    m_At = frame.isExcursion ? m_At : frame.end + 1;
    m_Frames.pop_back();
}

// The delimiters of a labeled statement stand behind its content, wherever they stood before.
// Returns: false behind the last one.
bool CTreeFlattener::GoToNextDelimiter()
{
    SFrame& frame = m_Frames.back();
    frame.stage = 1;
    const std::uint64_t delimiter = frame.delimiter;
    if (delimiter == 0)
        return false;
    frame.delimiter =
        FindSibling(m_Events.Behind(delimiter), [](std::uint32_t name) { return name == kDelimiter; });
    Apply(delimiter, frame.name, false, true);
    return true;
}

// A statement in a body takes the delimiter that stands behind it, and the last one that which stands behind
// the body. Returns: false if there is none, or no further one.
bool CTreeFlattener::GoToBodyDelimiter()
{
    SFrame& frame = m_Frames.back();
    if (frame.stage == 0) {
        frame.stage = 1;
        m_Kept.push_back(frame.end);
        if (const std::uint64_t delimiter = FindDelimiter(frame.end + 1)) {
            frame.hasFoundDelimiter = true;
            Apply(delimiter, kBodyStatements, false, true);
            return true;
        }
    }
    if (frame.stage == 1) {
        frame.stage = 2;
        const std::uint64_t next =
            FindSibling(frame.end + 1, [](std::uint32_t name) { return name == kDelimitedStatement; });
        const std::uint64_t delimiter = next == 0 ? FindDelimiter(m_SiblingsEnd + 1) : 0;
        if (delimiter != 0) {
            frame.hasFoundDelimiter = true;
            const std::size_t depth = m_Frames.size();
            Apply(delimiter, depth > 2 ? m_Frames[depth - 3].name : kNoName, false, true);
            return true;
        }
    }
    m_At = frame.end; // what stands behind it is still needed
    m_Kept.pop_back();
    return false;
}

// The first element from the event `from` on, among what is left of its siblings, whose name matches. 0 if
// there is none; m_SiblingsEnd is the event that ends them then.
template <class Matches>
std::uint64_t CTreeFlattener::FindSibling(std::uint64_t from, Matches&& matches)
{
    for (;; from = m_Events.Behind(from)) {
        const STreeEvent& event = m_Events.At(from);
        if (event.kind == enTreeEvent::End || event.kind == enTreeEvent::Finish) {
            m_SiblingsEnd = from;
            return 0;
        }
        if (event.name != kNoName && matches(event.name))
            return from;
    }
}

// The next sibling that isn't a token, if it is a delimiter, otherwise 0.
std::uint64_t CTreeFlattener::FindDelimiter(std::uint64_t from)
{
    const std::uint64_t sibling =
        FindSibling(from, [&](std::uint32_t name) { return !m_Events.IsTerminal(name); });
    return sibling != 0 && m_Events.At(sibling).name == kDelimiter ? sibling : 0;
}

// ---- Macros ----

// What stands between the first "{" and the next "}" in the element's characters.
std::string CTreeFlattener::MacroText(std::uint64_t index)
{
    std::string characters;
    const std::uint64_t behind = m_Events.Behind(index);
    for (std::uint64_t at = index; at < behind; ++at) {
        const STreeEvent& event = m_Events.At(at);
        if (event.kind == enTreeEvent::Text)
            AppendCharacters(m_Events.Slice(event.offset, event.length), enRun::Text, characters);
        else if (event.kind == enTreeEvent::Leaf)
            AppendCharacters(m_Events.Slice(event.offset + event.length, event.extent), enRun::Text,
                             characters);
    }
    const std::size_t open = characters.find('{');
    const std::size_t close = open == std::string::npos ? open : characters.find('}', open);
    return close == std::string::npos ? std::string() : characters.substr(open + 1, close - open - 1);
}

void CTreeFlattener::CopyMacro(std::uint64_t index)
{
    const std::string text = MacroText(index);
    const STreeEvent event = m_Events.At(index);
    TreeAttributes attributes = AttributesOf(event);
    AddMacroAttributes(text, attributes);
    StartTag(m_Events.Name(event.name));
    WriteAttributes(attributes);
    CloseTag();
    Write("{MACRO}");
    EndTag(m_Events.Name(event.name));
    m_At = m_Events.Behind(index);
}

// ---- The output ----

void CTreeFlattener::WriteText(std::uint64_t offset, std::uint64_t length, bool isVerbatim)
{
    CloseTag();
    const std::string_view run = m_Events.Slice(offset, length);
    if (isVerbatim)
        Write(run);
    else
        WriteSerialised(run, enRun::Text);
}

void CTreeFlattener::WriteComment(const STreeEvent& event)
{
    CloseTag();
    Write("<!--");
    WriteSerialised(m_Events.Slice(event.offset, event.length), enRun::Comment);
    Write("-->");
}

void CTreeFlattener::WriteSerialised(std::string_view run, enRun kind)
{
    m_Piece.clear();
    AppendSerialised(run, kind, m_Piece);
    Write(m_Piece);
}

void CTreeFlattener::WriteAttributes(const TreeAttributes& attributes)
{
    for (const auto& [name, value] : attributes) {
        Write(" ");
        Write(name);
        Write("=\"");
        m_Piece.clear();
        AppendEscapedValue(value, m_Piece);
        Write(m_Piece);
        Write("\"");
    }
}

void CTreeFlattener::StartTagAsRead(const STreeEvent& event)
{
    if ((event.flags & STreeEvent::kIsVerbatimTag) != 0) {
        CloseTag();
        const std::uint64_t bracket = (event.flags & STreeEvent::kIsEmptyTag) != 0 ? 2 : 1;
        Write(m_Events.Slice(event.offset, event.length - bracket));
        m_IsTagOpen = true;
        return;
    }
    StartTag(m_Events.Name(event.name));
    WriteAttributes(AttributesOf(event));
}

} // namespace

bool FlattenTreeInPlace(std::string& tree, std::string_view declaration)
{
    try {
        CTreeFlattener(tree).Run(declaration);
        return true;
    } catch (const STreeDeclined&) {
        tree = std::string();
        return false;
    } catch (...) {
        tree = std::string();
        throw;
    }
}

bool FlattenTree(std::string_view tree, std::string& out, std::string_view declaration)
{
    out = tree;
    return FlattenTreeInPlace(out, declaration);
}
