// The textbook machine: a stack of token sequences, the source at its bottom. A macro's replacement is pushed
// and read again, its name being disabled until it has been read; a name met while disabled is painted and
// never expanded. Deviations: an argument is expanded as a job of its own on an explicit stack, so that calls
// in arguments of calls take no stack of the machine's; white space is carried along; and the outermost job
// hands its tokens on at once, so that what an expansion bomb holds is little and what it gives is counted.
#include "Preparation/MacroExpansion.h"

#include <algorithm>
#include <utility>

namespace MacroPreprocessorChecker::internal {

namespace {

// A step takes some ten nanoseconds: this many for each byte of the limit end a bomb in seconds.
constexpr std::size_t kStepsForByte = 1;
constexpr std::size_t kLeastItemSize = 4;

constexpr std::size_t kMostReserved = 16; // arguments
constexpr std::size_t kMostSpares = 64;   // lists of items
constexpr std::size_t kLargestSpare = 1024;

bool IsWhite(const SMacroItem& item)
{
    return item.token->SkipWhenNextOrPrev();
}

// What white space counts for while it is held, by its kind: however long it is, it isn't copied.
constexpr std::size_t kHeldWhite[] = {0, 7, 6, 7};

std::size_t HeldSize(const Token& token)
{
    return token.SkipWhenNextOrPrev() ? kHeldWhite[token.kind] : std::max(token.str.size(), kLeastItemSize);
}

// The text is what counts, save for a line's end, which breaks the output into tokens.
std::size_t GivenSize(const Token& token)
{
    return token.IsNextLineToken() ? 2 * MacroExpander::kTokenCost : token.str.size();
}

} // namespace

MacroExpander::MacroExpander(const MacroTable& macros, TokenStore& store, std::size_t limit, Follow follow)
    : m_Macros(macros), m_Store(store), m_Made(store), m_Limit(limit), m_Follow(std::move(follow))
{}

MacroExpander::~MacroExpander() = default;

Token* MacroExpander::ExpandCall(Token* name, const Sink& sink, Token** lastOfCall)
{
    m_KeepsDefined = false;
    Start(m_Follow(*name), 0, sink);
    m_Where = name->location;
    m_LastTaken = name;
    try {
        ReadItem({name});
        Drive(false);
    } catch (...) {
        Stop();
        throw;
    }
    Stop();
    if (lastOfCall != nullptr)
        *lastOfCall = m_LastTaken;
    return m_Source;
}

void MacroExpander::ExpandLine(Token* from, bool keepsDefined, const Sink& sink)
{
    m_KeepsDefined = keepsDefined;
    m_Defined = DEFINED_NO;
    Start(from, from->sourceLine, sink);
    m_Where = from->location;
    m_LastTaken = from;
    try {
        Drive(true);
    } catch (...) {
        Stop();
        throw;
    }
    Stop();
}

void MacroExpander::Start(Token* from, std::uint32_t line, const Sink& sink)
{
    m_Source = from;
    m_OnlyLine = line;
    m_Sink = &sink;
    m_Held = 0;
    m_Made.clear();
    m_Blank = nullptr;
    m_Jobs.emplace_back();
}

void MacroExpander::Stop()
{
    while (!m_Contexts.empty())
        PopContext();
    m_Jobs.clear();
}

// ---- Reading ----

void MacroExpander::Drive(bool readsSource)
{
    SMacroItem item;
    for (;;) {
        if (Next(item, readsSource))
            ReadItem(item);
        else if (m_Jobs.size() > 1)
            FinishArgument();
        else
            return;
    }
}

// The next item of the current job; the outermost one goes on with the source only if it is asked to.
bool MacroExpander::Next(SMacroItem& item, bool readsSource)
{
    Work();
    while (m_Contexts.size() > m_Jobs.back().firstContext) {
        SContext& context = m_Contexts.back();
        if (context.at != context.end) {
            item = *context.at++;
            return true;
        }
        PopContext();
    }
    if (!readsSource || m_Jobs.size() > 1 || !IsSourceToken(m_Source))
        return false;
    item = {m_Source};
    m_Where = m_Source->location;
    m_LastTaken = m_Source;
    m_Source = m_Follow(*m_Source);
    return true;
}

bool MacroExpander::IsSourceToken(const Token* token) const
{
    return token != nullptr && (m_OnlyLine == 0 || token->sourceLine == m_OnlyLine);
}

void MacroExpander::ReadItem(SMacroItem item)
{
    const Token& token = *item.token;
    if (token.comment)
        return Emit({MakeBlank()});
    if (m_KeepsDefined && KeepsForDefined(token))
        return Emit(item);
    if (!token.name || item.isPainted)
        return Emit(item);
    const Macro* const macro = m_Macros.Find(token);
    if (macro == nullptr)
        return Emit(item);
    if (macro->isExpanding)
        return Emit({item.token, true});
    if (macro->Kind() != Macro::KIND_DEFINED)
        return EmitComputed(*macro);
    if (macro->IsFunctionLike()) {
        if (!TakeOpenParenthesis())
            return Emit(item);
        return ContinueCall(CollectArguments(*macro));
    }
    if (macro->IsPlain())
        return PushPlain(*macro);
    SCall call;
    call.macro = macro;
    PushItems(macro, Substitute(call));
}

// Follows "defined X" and "defined ( X )".
bool MacroExpander::KeepsForDefined(const Token& token)
{
    if (token.SkipWhenNextOrPrev())
        return m_Defined != DEFINED_NO;
    if (m_Defined == DEFINED_NO) {
        if (token.str == "defined")
            m_Defined = DEFINED_WORD;
        return m_Defined == DEFINED_WORD;
    }
    m_Defined = m_Defined == DEFINED_WORD && token.op == '(' ? DEFINED_OPEN : DEFINED_NO;
    return true;
}

void MacroExpander::Emit(const SMacroItem& item)
{
    if (m_Jobs.size() > 1) {
        Append(m_Jobs.back().output, item);
        return;
    }
    m_Given += GivenSize(*item.token);
    if (m_Given > m_Limit)
        FailOverLimit();
    (*m_Sink)(*item.token);
}

void MacroExpander::EmitComputed(const Macro& macro)
{
    switch (macro.Kind()) {
    case Macro::KIND_FILE:
        return Emit({Make(escapeString(m_Store.FileName(m_Where)))});
    case Macro::KIND_LINE:
        return Emit({Make(std::to_string(m_Where.line))});
    default:
        return Emit({Make(std::to_string(m_Counter++))});
    }
}

// ---- Calls ----

// Looks for the "(" after a function-like macro's name, also after the end of the replacements that are
// being read, and takes it. Without one everything stays as it was.
bool MacroExpander::TakeOpenParenthesis()
{
    const SJob& job = m_Jobs.back();
    for (std::size_t i = m_Contexts.size(); i-- > job.firstContext;) {
        Work();
        const SContext& context = m_Contexts[i];
        const SMacroItem* const found =
            std::find_if(context.at, context.end, [](const SMacroItem& item) { return !IsWhite(item); });
        if (found == context.end)
            continue;
        if (found->token->op != '(')
            return false;
        while (m_Contexts.size() > i + 1)
            PopContext();
        m_Contexts[i].at = found + 1;
        return true;
    }
    if (m_Jobs.size() > 1)
        return false;
    Token* open = m_Source;
    while (IsSourceToken(open) && open->IsWhite())
        open = m_Follow(*open);
    if (!IsSourceToken(open) || open->op != '(')
        return false;
    while (!m_Contexts.empty())
        PopContext();
    m_LastTaken = open;
    m_Source = m_Follow(*open);
    return true;
}

// The next item inside the parentheses, not expanded. A comment, and a new line of the source, are blanks.
bool MacroExpander::NextOfArguments(SMacroItem& item)
{
    Work();
    const SJob& job = m_Jobs.back();
    while (m_Contexts.size() > job.firstContext) {
        SContext& context = m_Contexts.back();
        if (context.at != context.end) {
            item = *context.at++;
            if (item.token->name && !item.isPainted) {
                const Macro* const macro = m_Macros.Find(*item.token);
                item.isPainted = macro != nullptr && macro->isExpanding;
            }
            return true;
        }
        PopContext();
    }
    if (m_Jobs.size() > 1 || !IsSourceToken(m_Source))
        return false;
    if (m_Source->sourceLine != m_LastTaken->sourceLine) {
        m_LastTaken = m_Source;
        if (!m_Source->IsWhite()) {
            item = {MakeBlank()};
            return true;
        }
    }
    if (StartsDirective(m_Source))
        throw Macro::Error(m_Where, "it is invalid to use a preprocessor directive as macro parameter");
    item = {m_Source->comment ? MakeBlank() : m_Source};
    m_LastTaken = m_Source;
    m_Source = m_Follow(*m_Source);
    return true;
}

MacroExpander::SCall MacroExpander::CollectArguments(const Macro& macro)
{
    SCall call;
    call.macro = &macro;
    call.arguments.reserve(std::clamp<std::size_t>(macro.ParameterCount(), 1, kMostReserved));
    call.arguments.push_back({.items = NewItems()});
    std::size_t depth = 1;
    for (SMacroItem item;;) {
        if (!NextOfArguments(item))
            throw Macro::Error(m_Where,
                               "no end of the arguments of macro '" + std::string(macro.Name()) + "'.");
        const char op = item.token->op;
        if (op == '(')
            ++depth;
        else if (op == ')' && --depth == 0)
            break;
        const bool isRest = macro.IsVariadic() && call.arguments.size() == macro.ParameterCount();
        if (op == ',' && depth == 1 && !isRest) {
            call.arguments.push_back({.items = NewItems()});
            m_Held += sizeof(Items);
        } else {
            Append(call.arguments.back().items, item);
        }
    }
    for (SArgument& argument : call.arguments) {
        Items& items = argument.items;
        for (auto edge = items.begin(); edge != items.end() && IsWhite(*edge); ++edge)
            edge->isEdge = true;
        for (auto edge = items.rbegin(); edge != items.rend() && IsWhite(*edge); ++edge)
            edge->isEdge = true;
    }
    CheckArgumentCount(call);
    return call;
}

// "f()" is a call without arguments or with an empty one, as the macro wants it; a variadic argument may be
// missing.
void MacroExpander::CheckArgumentCount(SCall& call) const
{
    const Macro& macro = *call.macro;
    const std::size_t wanted = macro.ParameterCount();
    if (wanted == 0 && call.arguments.size() == 1 && std::ranges::all_of(call.arguments[0].items, IsWhite))
        call.arguments.clear();
    else if (macro.IsVariadic() && call.arguments.size() + 1 == wanted)
        call.arguments.emplace_back();
    if (call.arguments.size() != wanted)
        throw Macro::wrongNumberOfParameters(m_Where, macro.Name());
}

bool MacroExpander::HasMacroNames(const Items& items) const
{
    return std::ranges::any_of(items, [&](const SMacroItem& item) {
        return item.token->name && !item.isPainted && m_Macros.Find(*item.token) != nullptr;
    });
}

// Expands the arguments from the current one on, each as a job; after the last one the call is replaced.
void MacroExpander::ContinueCall(SCall call)
{
    for (; call.current < call.arguments.size(); ++call.current) {
        const Items& argument = call.arguments[call.current].items;
        if (!call.macro->WantsExpanded(call.current) || !HasMacroNames(argument))
            continue;
        SContext context;
        context.at = argument.data();
        context.end = argument.data() + argument.size();
        SJob job;
        job.firstContext = m_Contexts.size();
        job.output = NewItems();
        job.call = std::move(call); // its items stay where they are
        m_Contexts.push_back(std::move(context));
        m_Jobs.push_back(std::move(job));
        return;
    }
    PushItems(call.macro, Substitute(call));
    for (SArgument& argument : call.arguments) {
        Recycle(std::move(argument.items));
        Recycle(std::move(argument.expanded));
    }
}

void MacroExpander::FinishArgument()
{
    SJob job = std::move(m_Jobs.back());
    m_Jobs.pop_back();
    SArgument& argument = job.call.arguments[job.call.current++];
    argument.expanded = std::move(job.output);
    argument.isExpanded = true;
    ContinueCall(std::move(job.call));
}

// ---- Replacements ----

void MacroExpander::PushPlain(const Macro& macro)
{
    SContext context;
    context.macro = &macro;
    context.at = macro.PlainItems().data();
    context.end = context.at + macro.PlainItems().size();
    macro.isExpanding = true;
    m_Contexts.push_back(std::move(context));
}

void MacroExpander::PushItems(const Macro* macro, Items items)
{
    SContext context;
    context.macro = macro;
    context.own = std::move(items);
    context.at = context.own.data();
    context.end = context.at + context.own.size();
    macro->isExpanding = true;
    m_Contexts.push_back(std::move(context));
}

void MacroExpander::PopContext()
{
    if (m_Contexts.back().macro != nullptr)
        m_Contexts.back().macro->isExpanding = false;
    Recycle(std::move(m_Contexts.back().own));
    m_Contexts.pop_back();
}

MacroExpander::Items MacroExpander::Substitute(const SCall& call)
{
    const Macro& macro = *call.macro;
    if (macro.HasOpenHashHash())
        throw Macro::invalidHashHash(m_Where, macro.Name());
    Items result = NewItems();
    const std::vector<SMacroPart>& parts = macro.Parts();
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const SMacroPart& part = parts[i];
        if (part.joinsNext) {
            i = SubstituteJoined(call, i, result);
        } else if (part.parameter < 0) {
            Append(result, {part.token});
        } else {
            const SArgument& argument = call.arguments[static_cast<std::size_t>(part.parameter)];
            if (part.isStringized)
                Append(result, {expandHash(argument.items)});
            else
                for (const SMacroItem& item : argument.isExpanded ? argument.expanded : argument.items)
                    Append(result, item);
        }
    }
    return result;
}

// A row of parts with "##" between them, from the left. An empty argument joins as nothing. The comma before
// a variadic argument isn't joined to it, but goes with it if it is empty.
// Returns: the index of the row's last part.
std::size_t MacroExpander::SubstituteJoined(const SCall& call, std::size_t part, Items& result)
{
    const Macro& macro = *call.macro;
    const std::vector<SMacroPart>& parts = macro.Parts();
    Items row = Operand(call, parts[part]);
    while (parts[part].joinsNext) {
        const bool isComma = parts[part].token->op == ',' && parts[part].parameter < 0;
        ++part;
        const Items right = Operand(call, parts[part]);
        const bool isRest = macro.IsVariadic() && !parts[part].isStringized &&
                            parts[part].parameter + 1 == static_cast<int>(macro.ParameterCount());
        if (isComma && isRest && right.empty() && !row.empty())
            row.pop_back();
        else if (isComma && isRest)
            row.insert(row.end(), right.begin(), right.end());
        else
            Join(macro, row, right);
    }
    for (const SMacroItem& item : row)
        Append(result, item);
    return part;
}

// What a part stands for where its argument isn't expanded, without white space around it.
MacroExpander::Items MacroExpander::Operand(const SCall& call, const SMacroPart& part)
{
    if (part.parameter < 0)
        return {{part.token}};
    const Items& argument = call.arguments[static_cast<std::size_t>(part.parameter)].items;
    if (part.isStringized)
        return {{expandHash(argument)}};
    const auto from = std::ranges::find_if_not(argument, IsWhite);
    const auto end = std::find_if_not(argument.rbegin(), argument.rend(), IsWhite).base();
    return from < end ? Items(from, end) : Items();
}

void MacroExpander::Join(const Macro& macro, Items& left, const Items& right)
{
    if (left.empty() || right.empty()) {
        left.insert(left.end(), right.begin(), right.end());
        return;
    }
    left.back() = {expandHashHash(macro, left.back().token->str, right.front().token->str)};
    left.insert(left.end(), right.begin() + 1, right.end());
}

const Token* MacroExpander::expandHashHash(const Macro& macro, std::string_view left, std::string_view right)
{
    std::string text = std::string(left).append(right);
    if (!IsOneToken(text))
        throw Macro::invalidHashHash(m_Where, macro.Name());
    return Make(std::move(text));
}

// The argument's text as a string, with one blank where its tokens stand apart.
const Token* MacroExpander::expandHash(const Items& argument)
{
    std::string text = "\"";
    bool isApart = false;
    for (const SMacroItem& item : argument) {
        if (IsWhite(item)) {
            isApart |= !item.isEdge;
            continue;
        }
        if (isApart && text.size() > 1)
            text += ' ';
        isApart = false;
        const std::string_view str = item.token->str;
        if (!IsStringText(str) && !IsCharacterText(str)) {
            text += str;
            continue;
        }
        for (const char c : str) {
            if (c == '\\' || c == '"')
                text += '\\';
            text += c;
        }
    }
    text += '"';
    return Make(std::move(text));
}

// ---- Tokens and limits ----

const Token* MacroExpander::Make(std::string text)
{
    m_Held += text.size() + kTokenCost;
    if (m_Held > m_Limit)
        FailOverLimit();
    return m_Made.push_back(m_Made.Keep(std::move(text)), m_Where);
}

const Token* MacroExpander::MakeBlank()
{
    if (m_Blank == nullptr)
        m_Blank = m_Made.push_back(TOKEN_SPACES, " ", m_Where);
    return m_Blank;
}

void MacroExpander::Append(Items& items, const SMacroItem& item)
{
    m_Held += HeldSize(*item.token);
    if (m_Held > m_Limit)
        FailOverLimit();
    items.push_back(item);
}

// Lists are made for each call, so their memory is used again, save for that of a few large ones.
MacroExpander::Items MacroExpander::NewItems()
{
    if (m_Spare.empty())
        return {};
    Items items = std::move(m_Spare.back());
    m_Spare.pop_back();
    return items;
}

void MacroExpander::Recycle(Items items)
{
    if (items.capacity() == 0 || items.capacity() > kLargestSpare || m_Spare.size() == kMostSpares)
        return;
    items.clear();
    m_Spare.push_back(std::move(items));
}

void MacroExpander::Work()
{
    if (++m_Steps / kStepsForByte > m_Limit)
        FailOverLimit();
}

void MacroExpander::FailOverLimit() const
{
    throw Macro::Error(m_Where,
                       "the expansion goes beyond the limit of " + std::to_string(m_Limit) + " bytes.");
}

} // namespace MacroPreprocessorChecker::internal
