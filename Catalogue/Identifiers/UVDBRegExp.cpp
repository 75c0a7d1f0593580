#include "Catalogue/Identifiers/UVDBRegExp.h"

#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVEEncoding.h"
#include "UVEnvironment/UVEUnicode.h"
#include "UVEnvironment/UVEXmlText.h"

#include <pcre.h>

#include <climits>
#include <cstddef>
#include <ctime>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::string_view kSpecial = "*+?{^.$|([";

// A limit of steps alone bounds nothing: the engine counts anew at each place where a match may start, and
// one step may run over the whole text. So patterns are compiled with a callout before each of their
// items, and the callouts end the search when its time is up. The recursion limit is for patterns that don't
// become machine code: some 500 bytes of stack a level.
constexpr unsigned long kStepLimit = 10'000'000;
constexpr unsigned long kRecursionLimit = 2'000;
constexpr double kSecondsLimit = 2.0;
constexpr int kCalloutsBetweenLooks = 256;
constexpr int kMachineStackBytes = 32 * 1024;
constexpr int kMachineStackLimitBytes = 1024 * 1024;

// Processor time: a busy machine doesn't change results.
double ThreadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

class CMatchBudget
{
public:
    // Counts one more callout. The time starts at the first look, so that short texts never ask for it.
    bool IsSpent()
    {
        if (--m_CalloutsToLook > 0)
            return false;
        m_CalloutsToLook = kCalloutsBetweenLooks;
        const double now = ThreadSeconds();
        if (m_End == 0)
            m_End = now + kSecondsLimit;
        return now > m_End;
    }

private:
    double m_End = 0;
    int m_CalloutsToLook = kCalloutsBetweenLooks;
};

thread_local CMatchBudget* t_Budget = nullptr;

// The callout is one for the whole process. Calls for matches that aren't ours go on to whoever was there.
class CCalloutHook
{
public:
    CCalloutHook() : m_Earlier(pcre_callout) { pcre_callout = &CCalloutHook::Call; }
    ~CCalloutHook()
    {
        if (pcre_callout == &CCalloutHook::Call)
            pcre_callout = m_Earlier;
    }
    CCalloutHook(const CCalloutHook&) = delete;
    CCalloutHook& operator=(const CCalloutHook&) = delete;

    static CCalloutHook& Install()
    {
        static CCalloutHook hook;
        return hook;
    }

private:
    static int Call(pcre_callout_block* block)
    {
        if (t_Budget && block->callout_data == t_Budget)
            return t_Budget->IsSpent() ? PCRE_ERROR_MATCHLIMIT : 0;
        return Install().m_Earlier ? Install().m_Earlier(block) : 0;
    }

    int (*m_Earlier)(pcre_callout_block*);
};

class CBudgetScope
{
public:
    explicit CBudgetScope(CMatchBudget& budget) : m_Earlier(t_Budget) { t_Budget = &budget; }
    ~CBudgetScope() { t_Budget = m_Earlier; }
    CBudgetScope(const CBudgetScope&) = delete;
    CBudgetScope& operator=(const CBudgetScope&) = delete;

private:
    CMatchBudget* m_Earlier;
};

// A compiled pattern. It counts in bytes.
class CRegExp
{
public:
    // With `machineCode` matching is several times faster; making it costs more than one match of a short
    // text.
    CRegExp(const std::string& pattern, int options, bool machineCode);

    // Null for a pattern that compiled.
    const char* Error() const { return m_Error; }
    int ErrorOffset() const { return m_ErrorOffset; }

    int GroupCount() const { return m_GroupCount; }

    // Looks for the first match at or after `start`. `places` gets two offsets for the match and for each
    // group, -1 where a group took no part.
    // Returns: a positive number for a match, PCRE_ERROR_NOMATCH, or another negative code.
    int Match(std::string_view text, int start, int options, std::vector<int>& places, CMatchBudget& budget);

private:
    template <class T, void (*kFree)(T*)>
    struct SFree
    {
        void operator()(T* object) const { kFree(object); }
    };
    static void FreePattern(pcre* pattern) { pcre_free(pattern); }

    std::unique_ptr<pcre, SFree<pcre, FreePattern>> m_Pattern;
    std::unique_ptr<pcre_extra, SFree<pcre_extra, pcre_free_study>> m_Study;
    std::unique_ptr<pcre_jit_stack, SFree<pcre_jit_stack, pcre_jit_stack_free>> m_MachineStack;
    const char* m_Error = nullptr;
    int m_ErrorOffset = 0;
    int m_GroupCount = 0;
};

CRegExp::CRegExp(const std::string& pattern, int options, bool machineCode)
{
    m_Pattern.reset(
        pcre_compile(pattern.c_str(), options | PCRE_AUTO_CALLOUT, &m_Error, &m_ErrorOffset, nullptr));
    if (!m_Pattern)
        return;
    CCalloutHook::Install();

    const char* studyError = nullptr;
    const int studyOptions = PCRE_STUDY_EXTRA_NEEDED | (machineCode ? PCRE_STUDY_JIT_COMPILE : 0);
    m_Study.reset(pcre_study(m_Pattern.get(), studyOptions, &studyError));
    if (!m_Study) {
        m_Error = studyError ? studyError : "out of memory";
        return;
    }
    if (machineCode) {
        m_MachineStack.reset(pcre_jit_stack_alloc(kMachineStackBytes, kMachineStackLimitBytes));
        if (m_MachineStack)
            pcre_assign_jit_stack(m_Study.get(), nullptr, m_MachineStack.get());
    }
    m_Study->flags |= PCRE_EXTRA_MATCH_LIMIT | PCRE_EXTRA_MATCH_LIMIT_RECURSION | PCRE_EXTRA_CALLOUT_DATA;
    m_Study->match_limit = kStepLimit;
    m_Study->match_limit_recursion = kRecursionLimit;
    pcre_fullinfo(m_Pattern.get(), m_Study.get(), PCRE_INFO_CAPTURECOUNT, &m_GroupCount);
}

int CRegExp::Match(std::string_view text, int start, int options, std::vector<int>& places,
                   CMatchBudget& budget)
{
    const CBudgetScope scope(budget);
    m_Study->callout_data = &budget;
    const std::size_t offsetCount = (static_cast<std::size_t>(m_GroupCount) + 1) * 3; // a third is workspace
    places.assign(offsetCount, -1);
    return pcre_exec(m_Pattern.get(), m_Study.get(), text.data(), static_cast<int>(text.size()), start,
                     options, places.data(), static_cast<int>(offsetCount));
}

// Texts are checked here, once; the engine would check the whole text at each call.
int EncodingOptions(std::string_view text, std::string_view pattern)
{
    if (UVDB::IsValidUTF8(text) && UVDB::IsValidUTF8(pattern))
        return PCRE_UTF8 | PCRE_NO_UTF8_CHECK;
    return PCRE_NEVER_UTF;
}

int ExecOptions(int compileOptions)
{
    return compileOptions & PCRE_NO_UTF8_CHECK;
}

struct SFlag
{
    char letter;
    int option;
};

constexpr SFlag kFlags[] = {
    {'U', PCRE_UNGREEDY}, {'i', PCRE_CASELESS}, {'m', PCRE_MULTILINE},
    {'s', PCRE_DOTALL},   {'x', PCRE_EXTENDED},
};

int FlagOptions(Uve::U8CString flags)
{
    flags.Replace("C++", "");
    int options = 0;
    for (const SFlag& flag : kFlags)
        if (flags.find(flag.letter) != std::string::npos)
            options |= flag.option;
    return options;
}

void TraceFailure(const char* operation, const std::string& pattern, const char* reason, int offset)
{
    CLogWrapper::WriteTraceF("\n%s(%s) : FAILED: %s (offset %d)", operation, pattern.c_str(), reason, offset);
}

void AppendItem(Uve::U8CString& nodes, std::string_view text, const std::vector<int>& places, int groupCount)
{
    nodes += "<Item ";
    for (int group = 1; group <= groupCount; ++group) {
        const int begin = places[static_cast<std::size_t>(group) * 2];
        const int end = places[static_cast<std::size_t>(group) * 2 + 1];
        Uve::U8CString capture;
        if (begin >= 0 && begin <= end)
            capture = text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
        nodes += "res" + std::to_string(group) + "='";
        nodes += UVDBEscapeXML(capture);
        nodes += "' ";
    }
    nodes += "></Item>";
}

// The mask as a pattern for a whole name. "[" stays, so a mask brings classes along; the bracket that closes
// no group is a character.
std::string MaskPattern(std::string_view mask)
{
    std::string pattern = "(?:";
    for (const char c : mask) {
        if (c == '*')
            pattern += ".*";
        else if (c == '?')
            pattern += '.';
        else {
            if (c != '[' && (c == ')' || kSpecial.find(c) != std::string_view::npos))
                pattern += '\\';
            pattern += c;
        }
    }
    return pattern + ")\\z";
}

} // namespace

Uve::U8CString UVDBESCRegExp(const char* text)
{
    std::string escaped;
    for (const char c : std::string_view(text ? text : "")) {
        if (kSpecial.find(c) != std::string_view::npos)
            escaped += '\\';
        escaped += c;
    }
    return escaped;
}

bool UVDBMatchRegExp(const char* name, const char* mask)
{
    const std::string_view nameText(name ? name : "");
    const std::string_view maskText(mask ? mask : "");
    if (maskText.find_first_of("*[?") == std::string_view::npos)
        return nameText == maskText;
    if (nameText.size() > INT_MAX) {
        TraceFailure("UVDBMatchRegExp", std::string(maskText), "the name is too long", 0);
        return false;
    }

    const std::string pattern = MaskPattern(maskText);
    const int options = EncodingOptions(nameText, maskText);
    CRegExp regExp(pattern, options | PCRE_CASELESS | PCRE_DOTALL | PCRE_ANCHORED, false);
    if (regExp.Error()) {
        TraceFailure("UVDBMatchRegExp", pattern, regExp.Error(), regExp.ErrorOffset());
        return false;
    }
    CMatchBudget budget;
    std::vector<int> places;
    const int result = regExp.Match(nameText, 0, ExecOptions(options), places, budget);
    if (result < 0 && result != PCRE_ERROR_NOMATCH)
        TraceFailure("UVDBMatchRegExp", pattern, "matching ended with an error", result);
    return result > 0;
}

Uve::U8CString UVDBRegExp2Nodeset(const Uve::U8CString& text, const Uve::U8CString& regExp,
                                  const Uve::U8CString& flags)
{
    constexpr const char* kNoItems = "<Items></Items>";
    constexpr const char* kOperation = "UVDBRegExp2Nodeset";
    if (text.size() > INT_MAX) {
        TraceFailure(kOperation, regExp, "the text is too long", 0);
        return kNoItems;
    }
    const int options = EncodingOptions(text, regExp);
    CRegExp pattern(regExp, options | FlagOptions(flags), true);
    if (pattern.Error()) {
        TraceFailure(kOperation, regExp, pattern.Error(), pattern.ErrorOffset());
        return kNoItems;
    }

    Uve::U8CString nodes("<Items>");
    CMatchBudget budget;
    std::vector<int> places;
    const char* const end = text.data() + text.size();
    int start = 0;
    int emptiness = 0; // after an empty match the next one at the same place mustn't be empty
    while (start <= static_cast<int>(text.size())) {
        const int result = pattern.Match(text, start, ExecOptions(options) | emptiness, places, budget);
        if (result == PCRE_ERROR_NOMATCH)
            break;
        if (result < 0) {
            TraceFailure(kOperation, regExp, "matching ended with an error", result);
            return kNoItems;
        }
        AppendItem(nodes, text, places, pattern.GroupCount());
        if (places[1] > start) {
            start = places[1];
            emptiness = places[0] == places[1] ? PCRE_NOTEMPTY_ATSTART : 0;
        } else if (emptiness == 0) {
            emptiness = PCRE_NOTEMPTY_ATSTART;
        } else {
            // \K can put the end of a match before the place where the search began.
            const char* const here = text.data() + start;
            start += here < end ? static_cast<int>(Uve::utf8_width(here, end)) : 1;
            emptiness = 0;
        }
    }
    nodes += "</Items>";
    return nodes;
}
