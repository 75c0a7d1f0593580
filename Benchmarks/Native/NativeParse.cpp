#include "Benchmarks/Native/NativeParse.h"

#include "Benchmarks/Native/NativeSupport.h"
#include "Tree/FragmentTree.h"

#include <NativeParser.h> // generated
#include <utility>

SNativeState g_native;
int yylex();

namespace {

void Append(NativeValue& node, FragmentRef fragment)
{
    SpliceFragments(g_native.pool, node.m_pFirst, node.m_pLast, fragment, fragment);
}

void SplicePending(NativeValue& node)
{
    SpliceFragments(g_native.pool, node.m_pFirst, node.m_pLast, node.m_pPendingFirst, node.m_pPendingLast);
    node.m_pPendingFirst = kNoFragment;
    node.m_pPendingLast = kNoFragment;
}

void WriteRoot(const NativeValue& root)
{
    const auto lead = static_cast<std::uint32_t>(root.m_nStart >= 1 ? root.m_nStart : 0);
    const int end = root.m_nStart + root.m_nLength;
    const auto tail = static_cast<std::uint32_t>(end > 0 ? end : 0);
    const std::uint32_t sql = NATIVE_ELEMENT("SQL");
    NativeValue whole;
    Append(whole, g_native.pool.NewTag(enFragment::Open, sql));
    Append(whole, g_native.pool.NewSpace(0, lead));
    SpliceFragments(g_native.pool, whole.m_pFirst, whole.m_pLast, root.m_pFirst, root.m_pLast);
    const auto rest = static_cast<std::uint32_t>(g_native.text->size()) - tail;
    Append(whole, g_native.pool.NewSpace(tail, rest));
    Append(whole, g_native.pool.NewTag(enFragment::Close, sql));
    WriteTree({&g_native.pool, whole.m_pFirst, *g_native.text}, g_native.xml);
}

void Start(const std::string& text)
{
    g_native.text = &text;
    g_native.pool.Release();
    g_native.conditions.clear();
    g_native.tokens = 0;
    g_native.errors = 0;
    g_native.brackets = 0;
    g_native.lineStart = 0;
    g_native.prevChar = 0;
    NativeStartScan();
}

} // namespace

void NativeToken(NativeValue& node, std::uint32_t element, int start, int length, int line)
{
    ++g_native.tokens;
    const std::string& text = *g_native.text;
    const int end = start + length;
    if (end > g_native.prevChar) {
        int at = start - 1;
        while (at >= g_native.prevChar && text[static_cast<std::size_t>(at)] != '\n')
            --at;
        if (at > g_native.lineStart)
            g_native.lineStart = at;
        g_native.prevChar = end;
    }
    node = NativeValue();
    node.m_pFirst =
        g_native.pool.NewToken(element, static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(length),
                               static_cast<std::uint32_t>(line), start - g_native.lineStart - 1);
    node.m_pLast = node.m_pFirst;
    node.m_nStart = start;
    node.m_nLength = length;
    node.m_nLine = static_cast<unsigned>(line);
}

NativeValue NativeReduce(std::uint32_t element, bool isRoot, const NativeValue* children, int count,
                         int errorIndex)
{
    NativeValue node;
    if (count == 0) {
        Append(node, g_native.pool.NewTag(enFragment::Empty, element));
        return node;
    }
    Append(node, g_native.pool.NewTag(enFragment::Open, element));
    int lastEnd = -1;
    for (int index = 0; index < count; ++index) {
        if (index == errorIndex)
            continue;
        const NativeValue& child = children[index];
        if (node.m_nStart == -1) {
            node.m_nStart = child.m_nStart;
            node.m_nLine = child.m_nLine;
        }
        if (lastEnd != -1 && child.m_nStart != -1) {
            const int gap = child.m_nStart - lastEnd;
            node.m_nLength += gap;
            if (gap > 0)
                Append(node, g_native.pool.NewSpace(static_cast<std::uint32_t>(lastEnd),
                                                    static_cast<std::uint32_t>(gap)));
        }
        if (child.m_nLength != 0) {
            node.m_nLength += child.m_nLength;
            SplicePending(node);
            SpliceFragments(g_native.pool, node.m_pFirst, node.m_pLast, child.m_pFirst, child.m_pLast);
            lastEnd = child.m_nStart + child.m_nLength;
        } else {
            SpliceFragments(g_native.pool, node.m_pPendingFirst, node.m_pPendingLast, child.m_pFirst,
                            child.m_pLast);
        }
    }
    SplicePending(node);
    Append(node, g_native.pool.NewTag(enFragment::Close, element));
    if (isRoot)
        WriteRoot(node);
    return node;
}

SNativeResult NativeParse(const std::string& text)
{
    Start(text);
    SNativeResult result;
    result.isParsed = yyparse() == 0;
    NativeEndScan();
    g_native.pool.Release();
    result.tokens = g_native.tokens;
    result.errors = g_native.errors;
    result.xml = std::exchange(g_native.xml, std::string());
    return result;
}

std::size_t NativeScan(const std::string& text)
{
    Start(text);
    while (yylex() != 0) {
        // the fragments of a parse are none of a scan's business
        if (g_native.pool.Count() > 4096)
            g_native.pool.Release();
    }
    NativeEndScan();
    g_native.pool.Release();
    return g_native.tokens;
}
