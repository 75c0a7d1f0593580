// Expanding macro calls. Nothing recurses: the replacements that are being read, and the arguments that are
// being expanded, stand on stacks of their own.
#pragma once

#include "Preparation/Macro.h"
#include "Preparation/MacroTokens.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace MacroPreprocessorChecker::internal {

class MacroExpander
{
public:
    // Gets the tokens of an expansion, one by one; they live until the next call. White space is among them.
    using Sink = std::function<void(const Token&)>;

    // Gives the token after one of the source's, null after the last.
    using Follow = std::function<Token*(const Token&)>;

    // What a token that isn't the source's counts for, in bytes of the limit.
    static constexpr std::size_t kTokenCost = 96;

    // Borrows `macros` and `store`. `limit`: what one call may hold, and what all may give, in bytes.
    MacroExpander(const MacroTable& macros, TokenStore& store, std::size_t limit, Follow follow);
    ~MacroExpander();

    // Expands the call of a macro at `name`, a name in its list.
    // Returns: the token after the call; `lastOfCall`, if not null, gets the last token of the call itself.
    // Throws:  Macro::Error.
    Token* ExpandCall(Token* name, const Sink& sink, Token** lastOfCall = nullptr);

    // Expands the tokens from `from` to the end of its logical line. With `keepsDefined`, the operand of
    // "defined" stays as it is.
    // Throws: Macro::Error.
    void ExpandLine(Token* from, bool keepsDefined, const Sink& sink);

private:
    using Items = std::vector<SMacroItem>;

    // What is being read: a macro's replacement or an argument.
    struct SContext
    {
        const Macro* macro = nullptr; // the replacement's, not to be expanded until it has been read
        const SMacroItem* at = nullptr;
        const SMacroItem* end = nullptr;
        Items own; // what `at` points into, unless it is somebody else's
    };

    struct SArgument
    {
        Items items{};
        Items expanded{};
        bool isExpanded = false; // otherwise the items stand for themselves
    };

    // A call whose arguments have been found.
    struct SCall
    {
        const Macro* macro = nullptr;
        std::vector<SArgument> arguments;
        std::size_t current = 0;
    };

    // The expansion of one argument of a call; the outermost job has no call.
    struct SJob
    {
        std::size_t firstContext = 0;
        Items output;
        SCall call;
    };

    void Start(Token* from, std::uint32_t line, const Sink& sink);
    void Stop();
    void Drive(bool readsSource);
    bool Next(SMacroItem& item, bool readsSource);
    void ReadItem(SMacroItem item);
    bool KeepsForDefined(const Token& token);
    void Emit(const SMacroItem& item);
    void EmitComputed(const Macro& macro);

    bool IsSourceToken(const Token* token) const;
    bool TakeOpenParenthesis();
    bool NextOfArguments(SMacroItem& item);
    SCall CollectArguments(const Macro& macro);
    void CheckArgumentCount(SCall& call) const;
    void ContinueCall(SCall call);
    void FinishArgument();
    bool HasMacroNames(const Items& items) const;

    void PushPlain(const Macro& macro);
    void PushItems(const Macro* macro, Items items);
    void PopContext();
    Items Substitute(const SCall& call);
    std::size_t SubstituteJoined(const SCall& call, std::size_t part, Items& result);
    Items Operand(const SCall& call, const SMacroPart& part);
    void Join(const Macro& macro, Items& left, const Items& right);
    const Token* expandHash(const Items& argument);
    const Token* expandHashHash(const Macro& macro, std::string_view left, std::string_view right);
    const Token* Make(std::string text);
    const Token* MakeBlank();
    void Append(Items& items, const SMacroItem& item);
    Items NewItems();
    void Recycle(Items items);
    void Work();
    [[noreturn]] void FailOverLimit() const;

    const MacroTable& m_Macros;
    TokenStore& m_Store;
    TokenList m_Made; // tokens that this call has made
    std::size_t m_Limit;
    Follow m_Follow;
    std::size_t m_Held = 0;  // by this call, in lists of items
    std::size_t m_Given = 0; // by all calls
    std::size_t m_Steps = 0; // of all calls
    unsigned m_Counter = 0;

    std::vector<SContext> m_Contexts;
    std::vector<SJob> m_Jobs;
    std::vector<Items> m_Spare;   // empty, for the memory that they hold
    Token* m_Source = nullptr;    // next token of the source
    Token* m_LastTaken = nullptr; // the one before it
    std::uint32_t m_OnlyLine = 0; // the source ends with this line; 0: with its list
    Location m_Where;             // of the call
    const Token* m_Blank = nullptr;
    const Sink* m_Sink = nullptr;
    bool m_KeepsDefined = false;
    enum
    {
        DEFINED_NO,
        DEFINED_WORD,
        DEFINED_OPEN
    } m_Defined = DEFINED_NO;
};

} // namespace MacroPreprocessorChecker::internal
