#include "Tree/TreeFlattener.h"

#include "Tree/FragmentEvents.h"
#include "Tree/LargeMemory.h"
#include "Tree/TextBlock.h"
#include "Tree/TextEvents.h"
#include "Tree/TreeAttributes.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace TreeNames;

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

// What stands after the children.
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
    bool isExcursion = false;           // after it the walk goes on at the ending of the frame below
    std::uint8_t stage = 0;             // of its ending
    std::uint64_t end = 0;              // its last event, from stage 1 on
    std::uint64_t delimiter = 0;        // Delimiters: the first, then the next to copy; 0 for none
};

// `Events` is a reader of events, told at CTreeEvents, which also writes what its events stand for.
template <class Events>
class CTreeFlattener
{
public:
    // Appends to `out` the flattening of the tree that `source` holds, `treeBytes` long as text.
    template <class Source>
    CTreeFlattener(const Source& source, std::size_t treeBytes, std::string& out)
        : m_Events(source), m_Out(out), m_MostOutput(treeBytes * kMostGrowth + kAlwaysAllowed)
    {}

    void Run(std::string_view declaration)
    {
        m_Out.Write(declaration);
        m_Out.Write('\n');
        const std::size_t declared = m_Out.size();
        ApplyTo(0, kNoName, false);
        while (!m_Frames.empty())
            Step();
        if (m_Events.At(m_At).kind != enTreeEvent::Finish)
            throw STreeDeclined();
        if (m_Out.size() > declared)
            m_Out.Write('\n');
        m_Out.Flush();
    }

private:
    // ---- the walk ----

    // `event` is a copy of the one at `index`: reading ahead moves them.
    void Step();
    void Child(std::uint64_t index, const STreeEvent& event);
    void BodyChild(std::uint64_t index, const STreeEvent& event);
    void Apply(std::uint64_t index, const STreeEvent& event, std::uint32_t parent, bool isBehindDataDivision,
               bool isExcursion);
    void ApplyTo(std::uint64_t index, std::uint32_t parent, bool isExcursion)
    {
        const STreeEvent event = m_Events.At(index);
        Apply(index, event, parent, false, isExcursion);
    }
    // With the ending EndTag all of a leaf, otherwise its tag, and on to what it holds.
    void CopyElement(std::uint64_t index, const STreeEvent& event, const SFrame& frame);
    void CopyLeaf(std::uint64_t index, const STreeEvent& event, bool isExcursion);
    bool IsMacro(std::uint32_t name, std::uint32_t parent) const;
    void CopyMacro(std::uint64_t index);
    void Enter(std::uint64_t index, const STreeEvent& event, const SFrame& frame);
    void Leave();
    bool GoToNextDelimiter();
    bool GoToBodyDelimiter();
    template <class Matches>
    std::uint64_t FindSibling(std::uint64_t from, Matches&& matches);
    std::uint64_t FindDelimiter(std::uint64_t from);
    std::string MacroText(std::uint64_t index);
    std::uint64_t FirstNeeded() const { return m_Kept.empty() ? m_At : std::min(m_At, m_Kept.front()); }

    // ---- the output ----

    void CloseTag()
    {
        if (m_IsTagOpen)
            m_Out.Write('>');
        m_IsTagOpen = false;
    }
    void StartTag(const STreeEvent& event)
    {
        CloseTag();
        m_Events.WriteStart(event, m_Out);
        m_IsTagOpen = true;
    }
    void StartTag(std::uint32_t name)
    {
        CloseTag();
        m_Out.Write('<');
        m_Out.Write(m_Events.Name(name));
        m_IsTagOpen = true;
    }
    void EndTag(std::uint32_t name)
    {
        if (m_IsTagOpen)
            m_Out.Write("/>");
        else
            m_Events.WriteEnd(name, m_Out);
        m_IsTagOpen = false;
        if (m_Out.size() > m_MostOutput)
            throw std::length_error("the flattened tree grows out of bounds");
    }
    void EmptyElement(std::uint32_t name)
    {
        StartTag(name);
        EndTag(name);
    }
    void StartFullStatement(bool isDelimited, bool isLabeled)
    {
        StartTag(kFullStatement);
        m_Out.Write(isDelimited ? " delimited=\"1\"" : " delimited=\"0\"");
        m_Out.Write(isLabeled ? " labeled=\"1\"" : " labeled=\"0\"");
    }
    void EndFullStatement() { EndTag(kFullStatement); }
    void Characters(const STreeEvent& event)
    {
        CloseTag();
        m_Events.WriteCharacters(event, m_Out);
    }

    Events m_Events;
    CTextBlock m_Out;
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

template <class Events>
void CTreeFlattener<Events>::Step()
{
    if (m_Frames.back().stage != 0) {
        Leave();
        return;
    }
    const STreeEvent event = m_Events.At(m_At);
    switch (event.kind) {
    case enTreeEvent::Start:
    case enTreeEvent::Leaf:
        Child(m_At, event);
        break;
    case enTreeEvent::End:
        Leave();
        break;
    case enTreeEvent::Text:
    case enTreeEvent::Comment:
        if (m_Frames.back().children == enChildren::Templates) {
            CloseTag();
            if (event.kind == enTreeEvent::Text)
                m_Events.WriteCharacters(event, m_Out);
            else
                m_Events.WriteComment(event, m_Out);
        }
        ++m_At;
        break;
    case enTreeEvent::Finish:
        throw std::logic_error("an element without its end");
    }
    m_Events.Forget(FirstNeeded());
}

template <class Events>
void CTreeFlattener<Events>::Child(std::uint64_t index, const STreeEvent& event)
{
    SFrame& parent = m_Frames.back();
    const std::uint32_t name = event.name;
    const bool isBehindDataDivision = parent.hasPassedDataDivision;
    parent.hasPassedDataDivision = isBehindDataDivision || name == kDataDivisionClause;
    parent.hasDelimiter = parent.hasDelimiter || name == kDelimiter;
    switch (parent.children) {
    case enChildren::Templates:
    case enChildren::ElementsOnly:
        Apply(index, event, parent.name, isBehindDataDivision, false);
        return;
    case enChildren::ListItems:
        if (name == parent.name)
            Enter(index, event, {.name = name, .outName = kNoName, .children = enChildren::ListItems});
        else
            CopyElement(index, event, {.name = name, .outName = name, .ending = enEnding::EndTag});
        return;
    case enChildren::Statements:
        if (name == kDelimitedStatements)
            Enter(index, event, {.name = name, .outName = kNoName});
        else
            Apply(index, event, parent.name, isBehindDataDivision, false);
        return;
    case enChildren::Body:
        BodyChild(index, event);
        return;
    case enChildren::LabeledFirst:
        if (name == kDelimiter && parent.delimiter == 0) {
            parent.delimiter = index;
            m_Kept.push_back(index);
        }
        [[fallthrough]];
    case enChildren::LabeledContent:
        if (name == kLabeledStatement)
            Enter(index, event, {.name = name, .outName = kNoName, .children = enChildren::ElementsOnly});
        else
            m_At = m_Events.After(index);
        return;
    }
}

template <class Events>
void CTreeFlattener<Events>::BodyChild(std::uint64_t index, const STreeEvent& event)
{
    const std::uint32_t name = event.name;
    if (name == kDelimiter) {
        m_At = m_Events.After(index);
        return;
    }
    if (name != kDelimitedStatement) {
        Apply(index, event, kBodyStatements, m_Frames.back().hasPassedDataDivision, false);
        return;
    }
    SFrame frame{.name = name, .outName = kNoName, .ending = enEnding::BodyDelimiter};
    StartFullStatement(true, true);
    if (m_Events.Knows(index, STreeEvent::kHasLabeled))
        frame.children = enChildren::LabeledContent;
    else
        EmptyElement(kLabel);
    Enter(index, event, frame);
}

// The main template, its cases in their order, and the rules beside it.
template <class Events>
void CTreeFlattener<Events>::Apply(std::uint64_t index, const STreeEvent& event, std::uint32_t parent,
                                   bool isBehindDataDivision, bool isExcursion)
{
    const std::uint32_t name = event.name;
    // Tokens and spaces, which are most of a tree: no case is for them.
    if (event.kind == enTreeEvent::Leaf && event.extent != 0 && name >= kSpace && name != parent &&
        !IsMacro(name, parent)) {
        CopyLeaf(index, event, isExcursion);
        return;
    }
    SFrame frame{.name = name,
                 .outName = kNoName,
                 .isBehindDataDivision = isBehindDataDivision,
                 .isExcursion = isExcursion};
    if (name == kSpace && !m_Events.Knows(index, STreeEvent::kHasCharacters)) {
        m_At = m_Events.After(index);
        return;
    }
    if (name == parent && name != kBodyStatements && !IsNestedOnPurpose(name)) {
        Enter(index, event, frame);
        return;
    }
    if (name == kBodyStatements) {
        frame.children = enChildren::Body;
        if (parent != kBodyStatements) {
            StartTag(kStatements);
            frame.outName = kStatements;
            frame.ending = enEnding::EndTag;
        }
        Enter(index, event, frame);
        return;
    }
    if (name != parent && !IsNestedOnPurpose(name) && name != kMainSourceSection &&
        m_Events.Knows(index, STreeEvent::kHasItsName)) {
        StartTag(name);
        frame.children = enChildren::ListItems;
        frame.outName = name;
        frame.ending = enEnding::EndTag;
        Enter(index, event, frame);
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
        Enter(index, event, frame);
        return;
    case kLabeledStatement:
        StartFullStatement(false, true);
        frame.ending = enEnding::EmptyDelimiter;
        Enter(index, event, frame);
        return;
    case kStatement:
        frame.outName = name;
        if (parent == kStatements) {
            StartFullStatement(false, false);
            EmptyElement(kLabel);
            frame.ending = enEnding::PlainStatement;
        } else
            frame.ending = enEnding::EndTag;
        CopyElement(index, event, frame);
        return;
    case kStatements:
        StartTag(name);
        frame.children = enChildren::Statements;
        frame.outName = name;
        frame.ending = enEnding::EndTag;
        Enter(index, event, frame);
        return;
    default:
        break;
    }
    if (IsMacro(name, parent)) {
        CopyMacro(index);
        return;
    }
    frame.outName = name;
    frame.ending = enEnding::EndTag;
    CopyElement(index, event, frame);
}

template <class Events>
void CTreeFlattener<Events>::CopyElement(std::uint64_t index, const STreeEvent& event, const SFrame& frame)
{
    if (event.kind == enTreeEvent::Leaf && frame.ending == enEnding::EndTag) {
        CopyLeaf(index, event, frame.isExcursion);
        return;
    }
    StartTag(event);
    Enter(index, event, frame);
}

template <class Events>
void CTreeFlattener<Events>::CopyLeaf(std::uint64_t index, const STreeEvent& event, bool isExcursion)
{
    CloseTag();
    m_Events.WriteLeaf(event, m_Out);
    m_At = isExcursion ? index : index + 1;
}

// Goes to the children of the element, or right through a leaf to its ending.
template <class Events>
void CTreeFlattener<Events>::Enter(std::uint64_t index, const STreeEvent& event, const SFrame& frame)
{
    m_Frames.push_back(frame);
    m_At = index;
    if (event.kind == enTreeEvent::Start) {
        ++m_At;
        return;
    }
    if (event.extent != 0 && frame.children == enChildren::Templates)
        Characters(event);
    Leave();
}

// The ending of the uppermost element, whose last event is the current one. An ending that copies a delimiter
// from elsewhere goes there, and is called again after it.
template <class Events>
void CTreeFlattener<Events>::Leave()
{
    SFrame& frame = m_Frames.back();
    if (frame.stage == 0)
        frame.end = m_At;
    switch (frame.ending) {
    case enEnding::Nothing:
        break;
    case enEnding::EndTag:
        EndTag(frame.outName);
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
        EndTag(frame.outName);
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

// The delimiters of a labeled statement stand after its content, wherever they stood before.
// Returns: false after the last one.
template <class Events>
bool CTreeFlattener<Events>::GoToNextDelimiter()
{
    SFrame& frame = m_Frames.back();
    frame.stage = 1;
    const std::uint64_t delimiter = frame.delimiter;
    if (delimiter == 0)
        return false;
    frame.delimiter =
        FindSibling(m_Events.After(delimiter), [](std::uint32_t name) { return name == kDelimiter; });
    ApplyTo(delimiter, frame.name, true);
    return true;
}

// A statement in a body takes the delimiter that stands after it, and the last one that which stands after
// the body.
// Returns: false if there is none, or no further one.
template <class Events>
bool CTreeFlattener<Events>::GoToBodyDelimiter()
{
    SFrame& frame = m_Frames.back();
    if (frame.stage == 0) {
        frame.stage = 1;
        m_Kept.push_back(frame.end);
        if (const std::uint64_t delimiter = FindDelimiter(frame.end + 1)) {
            frame.hasFoundDelimiter = true;
            ApplyTo(delimiter, kBodyStatements, true);
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
            ApplyTo(delimiter, depth > 2 ? m_Frames[depth - 3].name : kNoName, true);
            return true;
        }
    }
    m_At = frame.end; // what stands after it is still needed
    m_Kept.pop_back();
    return false;
}

// The first element from the event `from` on, among what is left of its siblings, whose name matches. 0 if
// there is none; m_SiblingsEnd is the event that ends them then.
template <class Events>
template <class Matches>
std::uint64_t CTreeFlattener<Events>::FindSibling(std::uint64_t from, Matches&& matches)
{
    for (;; from = m_Events.After(from)) {
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
template <class Events>
std::uint64_t CTreeFlattener<Events>::FindDelimiter(std::uint64_t from)
{
    const std::uint64_t sibling =
        FindSibling(from, [&](std::uint32_t name) { return !m_Events.IsTerminal(name); });
    return sibling != 0 && m_Events.At(sibling).name == kDelimiter ? sibling : 0;
}

// ---- Macros ----

template <class Events>
bool CTreeFlattener<Events>::IsMacro(std::uint32_t name, std::uint32_t parent) const
{
    return m_Events.IsTerminal(name) &&
           m_Events.Name(name).substr(3) == (parent != kNoName ? m_Events.Name(parent) : std::string_view());
}

// What stands between the first "{" and the next "}" in the element's characters.
template <class Events>
std::string CTreeFlattener<Events>::MacroText(std::uint64_t index)
{
    std::string characters;
    const std::uint64_t after = m_Events.After(index);
    for (std::uint64_t at = index; at < after; ++at) {
        const STreeEvent& event = m_Events.At(at);
        if (event.kind == enTreeEvent::Text || event.kind == enTreeEvent::Leaf)
            m_Events.AppendCharactersOf(event, characters);
    }
    const std::size_t open = characters.find('{');
    const std::size_t close = open == std::string::npos ? open : characters.find('}', open);
    return close == std::string::npos ? std::string() : characters.substr(open + 1, close - open - 1);
}

template <class Events>
void CTreeFlattener<Events>::CopyMacro(std::uint64_t index)
{
    const std::string text = MacroText(index);
    const STreeEvent event = m_Events.At(index);
    TreeAttributes attributes = m_Events.Attributes(event);
    AddMacroAttributes(text, attributes);
    StartTag(event.name);
    WriteAttributes(attributes, m_Out);
    CloseTag();
    m_Out.Write("{MACRO}");
    EndTag(event.name);
    m_At = m_Events.After(index);
}

// Room for what flattening adds to most trees: the declaration and some statements' tags.
constexpr std::size_t kMoreRoom = 4096;

} // namespace

bool FlattenTree(std::string_view tree, std::string& out, std::string_view declaration)
{
    out.clear();
    try {
        ReserveLarge(out, tree.size() + kMoreRoom);
        CTreeFlattener<CTextEvents>(tree, tree.size(), out).Run(declaration);
        return true;
    } catch (const STreeDeclined&) {
        out = std::string();
        return false;
    } catch (...) {
        out = std::string();
        throw;
    }
}

void FlattenTree(const SFragmentTree& tree, std::string& out, std::string_view declaration)
{
    struct SRelease
    {
        CFragmentPool& pool;
        ~SRelease() { pool.Release(); }
    } const release{*tree.pool};
    out.clear();
    try {
        const std::size_t bytes = MeasureTree(tree);
        ReserveLarge(out, bytes + kMoreRoom);
        CTreeFlattener<CFragmentEvents>(tree, bytes, out).Run(declaration);
    } catch (...) {
        out = std::string();
        throw;
    }
}
