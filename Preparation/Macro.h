// Macros: what a definition says, and the table of those that are defined.
#pragma once

#include "Preparation/MacroTokens.h"

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace MacroPreprocessorChecker::internal {

// One element of a macro's replacement. Comments are blanks here; there is no white space beside a "##".
struct SMacroPart
{
    const Token* token = nullptr; // of a parameter: its name
    int parameter = -1;           // index, or -1
    bool isStringized = false;    // "#" stands before the parameter
    bool joinsNext = false;       // "##" stands behind it
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
        wrongNumberOfParameters(const Location& where, const std::string& macro)
            : Error(where, "Wrong number of parameters for macro '" + macro + "'.")
        {}
    };
    class invalidHashHash : public Error
    {
    public:
        invalidHashHash(const Location& where, const std::string& macro)
            : Error(where, "Invalid ## usage when expanding '" + macro + "'.")
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

    // From the "#" of a "#define" line, whose tokens are copied. Throws: Error if the line is none.
    // Borrows `names`, which outlives the macro, as the other constructors do.
    Macro(const Token* hash, FileNames& names);

    // From a text: `left` is NAME or NAME(PARAMETERS), `value` the replacement. Throws: std::runtime_error if
    // it can't be read.
    Macro(const std::string& left, const std::string& value, FileNames& names);

    // One of the computed macros.
    Macro(enKind kind, FileNames& names);

    Macro(const Macro&) = delete;
    Macro& operator=(const Macro&) = delete;

    const std::string& Name() const { return m_Name; }
    enKind Kind() const { return m_Kind; }
    bool IsFunctionLike() const { return m_IsFunctionLike; }
    bool IsVariadic() const { return m_IsVariadic; }
    bool IsValueDefinedInSource() const { return m_IsDefinedInSource; }
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

    // The replacement ends in ";", looking through braces behind it.
    bool EndsStatement() const { return m_EndsStatement; }

    // Set by the expansion while the replacement is read again.
    mutable bool isExpanding = false;

private:
    bool parseDefine(const Token* nameToken);
    const Token* ParseParameters(const Token* open, std::unordered_map<std::string, int>& indexes);
    void CopyReplacement(const Token* from, std::uint32_t line);
    void BuildParts(const std::unordered_map<std::string, int>& indexes);

    std::string m_Name;
    enKind m_Kind = KIND_DEFINED;
    bool m_IsFunctionLike = false;
    bool m_IsVariadic = false;
    bool m_IsDefinedInSource = false;
    bool m_IsPlain = false;
    bool m_HasOpenHashHash = false;
    bool m_EndsStatement = false;
    std::vector<std::string> m_Parameters;
    std::vector<bool> m_WantsExpanded;
    std::vector<SMacroPart> m_Parts;
    std::vector<SMacroItem> m_PlainItems;
    TokenList m_Tokens; // the replacement
};

class MacroTable
{
public:
    // Null if the name is no macro.
    const Macro* Find(const std::string& name) const
    {
        const auto at = m_Macros.find(name);
        return at == m_Macros.end() ? nullptr : at->second.get();
    }
    void Replace(const std::string& name, std::unique_ptr<Macro> macro) { m_Macros[name] = std::move(macro); }
    void Add(const std::string& name, std::unique_ptr<Macro> macro)
    {
        m_Macros.try_emplace(name, std::move(macro));
    }
    void Erase(const std::string& name) { m_Macros.erase(name); }

private:
    std::unordered_map<std::string, std::unique_ptr<Macro>> m_Macros;
};

} // namespace MacroPreprocessorChecker::internal
