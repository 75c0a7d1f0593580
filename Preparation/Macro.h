// Macros: what a definition says, and the table of those that are defined.
#pragma once

#include "Preparation/MacroTokens.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace MacroPreprocessorChecker::internal {

// One element of a macro's replacement. Comments are blanks here; there is no white space beside a "##".
struct SMacroPart
{
    const Token* token = nullptr; // of a parameter: its name
    int parameter = -1;           // index, or -1
    bool isStringized = false;    // "#" stands before the parameter
    bool joinsNext = false;       // "##" stands after it
};

// A token on its way through an expansion.
struct SMacroItem
{
    const Token* token = nullptr; // borrowed
    bool isPainted = false;       // a name found while its own macro was being expanded: it stays as it is
    bool isEdge = false; // white space around an argument: printed, but no part of a string made of it
};

class Macro
{
public:
    class Error : public std::runtime_error
    {
    public:
        Error(const Location& where, const std::string& text) : std::runtime_error(text), location(where) {}
        Location location;
    };
    class wrongNumberOfParameters : public Error
    {
    public:
        wrongNumberOfParameters(const Location& where, std::string_view macro)
            : Error(where, "Wrong number of parameters for macro '" + std::string(macro) + "'.")
        {}
    };
    class invalidHashHash : public Error
    {
    public:
        invalidHashHash(const Location& where, std::string_view macro)
            : Error(where, "Invalid ## usage when expanding '" + std::string(macro) + "'.")
        {}
    };

    // Those that the expansion computes.
    enum enKind
    {
        KIND_DEFINED,
        KIND_FILE,
        KIND_LINE,
        KIND_COUNTER
    };

    // From the "#" of a "#define" line, whose tokens are copied.
    // Borrows: `store`, which outlives the macro, as the other constructors do, and the texts of the tokens.
    // Throws:  Error if the line is none.
    Macro(const Token* hash, TokenStore& store);

    // From a text: `left` is NAME or NAME(PARAMETERS), `value` the replacement.
    // Throws: std::runtime_error if it can't be read.
    Macro(const std::string& left, const std::string& value, TokenStore& store);

    // One of the computed macros.
    Macro(enKind kind, TokenStore& store);

    Macro(const Macro&) = delete;
    Macro& operator=(const Macro&) = delete;

    std::string_view Name() const { return m_Name; }
    enKind Kind() const { return m_Kind; }
    bool IsFunctionLike() const { return m_IsFunctionLike; }
    bool IsVariadic() const { return m_IsVariadic; }
    std::size_t ParameterCount() const { return m_Parameters.size(); }
    const std::vector<SMacroPart>& Parts() const { return m_Parts; }

    // The replacement, if it is used as it stands: an object-like macro without "##".
    bool IsPlain() const { return m_IsPlain; }
    const std::vector<SMacroItem>& PlainItems() const { return m_PlainItems; }

    // A "##" has nothing on one of its sides.
    bool HasOpenHashHash() const { return m_HasOpenHashHash; }

    // Some use of the parameter wants its argument expanded.
    bool WantsExpanded(std::size_t parameter) const { return m_WantsExpanded[parameter]; }

    // The texts of the replacement without white space between them.
    std::string ReplacementText() const;

    // The replacement ends in ";", looking through braces after it.
    bool EndsStatement() const { return m_EndsStatement; }

    // Set by the expansion while the replacement is read again.
    mutable bool isExpanding = false;

private:
    struct SParameter
    {
        std::string_view name;
        int index = 0;
    };

    bool parseDefine(const Token* nameToken);
    const Token* ParseParameters(const Token* open);
    int ParameterOf(const Token* token) const;
    void CopyReplacement(const Token* from, std::uint32_t line);
    void BuildParts();

    std::string_view m_Name;
    enKind m_Kind = KIND_DEFINED;
    bool m_IsFunctionLike = false;
    bool m_IsVariadic = false;
    bool m_IsPlain = false;
    bool m_HasOpenHashHash = false;
    bool m_EndsStatement = false;
    std::vector<SParameter> m_Parameters; // by name
    std::vector<bool> m_WantsExpanded;
    std::vector<SMacroPart> m_Parts;
    std::vector<SMacroItem> m_PlainItems;
    TokenList m_Tokens; // the replacement; its texts are the source's
};

// The macros that are defined, by the numbers of their names.
class MacroTable
{
public:
    // Borrows `names`, which outlives the table.
    explicit MacroTable(NameTable& names) : m_Names(names) {}

    // Null if the token is no macro's name.
    const Macro* Find(const Token& token) const
    {
        if (!token.name)
            return nullptr;
        // the reader numbers the names of the source; those that a macro makes are looked up
        const std::uint32_t number = token.nameNumber != 0 ? token.nameNumber : m_Names.Find(token.str);
        return number < m_Macros.size() ? m_Macros[number].get() : nullptr;
    }
    // Replaces an earlier macro of the name.
    void Replace(std::unique_ptr<Macro> macro) { At(macro->Name()) = std::move(macro); }
    // Keeps an earlier macro of the name.
    void Add(std::unique_ptr<Macro> macro)
    {
        if (std::unique_ptr<const Macro>& known = At(macro->Name()); known == nullptr)
            known = std::move(macro);
    }
    void Erase(std::string_view name)
    {
        if (const std::uint32_t number = m_Names.Find(name); number != 0 && number < m_Macros.size())
            m_Macros[number].reset();
    }

private:
    std::unique_ptr<const Macro>& At(std::string_view name)
    {
        const std::uint32_t number = m_Names.Number(name);
        if (number >= m_Macros.size())
            m_Macros.resize(number + 1);
        return m_Macros[number];
    }

    NameTable& m_Names;
    std::vector<std::unique_ptr<const Macro>> m_Macros; // null: not defined
};

} // namespace MacroPreprocessorChecker::internal
