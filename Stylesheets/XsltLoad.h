// Rule files: stylesheets and XML files beside the host's executable, plain or packed, and how stylesheets
// among them take in others. Names are UTF-8 and count from the base folder, which is the rules folder or, if
// the host has none (CRS mode), the folder "crs". A file whose first byte isn't "<" is an archive (see
// Compressor.h).
//
// A stylesheet is looked for under several names, the first file that opens is taken: with its ending as
// given (.xslt), with .crs, with .cr, each of them with and without "_" after it.
//
// Rule files come from outside. A file that isn't below the base folder, because its name or a link leads out
// of it, isn't loaded. More than 1 GiB is not read, be it in one file or in all that one stylesheet takes in;
// an archive whose payload is damaged is refused. An archive with a bad header, which a plain file with a
// blank at its start is too, counts as an empty file. The trace names the file in each case.
#pragma once

#include "Stylesheets/ConditionComments.h"
#include "Stylesheets/RulesFolder.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <functional>
#include <string>

// The rule files of one host.
class CRuleFiles
{
public:
    // Called with each file of global variables before its conditions are decided: its name and its text.
    using GlobalVariablesVisitor = std::function<void(const std::string& name, const std::string& text)>;

    // Beside the executable of this process, as the free functions below have it.
    CRuleFiles();
    // As if the executable stood in this directory.
    explicit CRuleFiles(const Uve::U8CString& hostDirectory);

    // The folder that names count from, with a slash at its end.
    const std::string& BaseFolder() const { return m_BaseFolder; }
    bool IsCrsMode() const { return m_IsCrsMode; }

    // As the free functions.
    [[nodiscard]] int LoadXml(Uve::U8CString& out, const Uve::U8CString& name) const;
    [[nodiscard]] int LoadStylesheet(std::string& out, const std::string& name) const;
    [[nodiscard]] int ReadUnusedFlag(bool& unused, const std::string& name) const;
    [[nodiscard]] int AddTemplates(std::string& main, const std::string& name) const;
    [[nodiscard]] int ResolveImports(Uve::U8CString& text, const Uve::U8CString& first,
                                     const Uve::U8CString& second, const Uve::U8CString& third,
                                     const GlobalVariablesVisitor& visitor = {}) const;
    [[nodiscard]] int ResolveImports(Uve::U8CString& text, const Uve::U8CString& tag,
                                     const Uve::U8CString& first, const Uve::U8CString& second,
                                     const Uve::U8CString& third,
                                     const GlobalVariablesVisitor& visitor = {}) const;

private:
    class CImports;

    std::string m_BaseFolder;
    bool m_IsCrsMode = false;
};

// True if the host has no rules folder beside its executable. An empty one is enough not to be in CRS mode.
bool isCRSmode();

// Reads a whole file. The path is the system's own.
// Returns: 0; -1, with `out` empty, if it can't be opened or is more than 1 GiB.
int ReadFromFile(std::string& out, const std::string& path);

// Loads a rule file that is XML, under `name` or with "_" after it.
// Returns: 0; -1, with `out` empty, if there is none.
int LoadXMLFromFile(Uve::U8CString& out, const Uve::U8CString& name);

// Loads a stylesheet, what it imports not included.
// Returns: 0; -1, with `out` empty, if there is none.
int LoadXSLTFromFile(std::string& out, const std::string& name);

// Whether the stylesheet says that it is unused, by the header of its archive; a plain file doesn't say.
// Returns: 0; -1, with `unused` false, if there is none.
int LoadXSLTFromFileEx(bool& unused, const std::string& name);

// Puts templates of the stylesheet `name` after the last template of `main`: what stands from its first
// "<!-- From:" to its last template. Without that mark, or without a template in `main`, nothing happens.
// Returns: 0; -1 if there is no such stylesheet.
int LoadSubXSLT(std::string& main, const std::string& name);

// Puts in place of each import and include line of a rule stylesheet the stylesheet that it names, imports of
// that one included, without its declaration and its outer element. Outside CRS mode the names count from the
// folder .Precompiled in the base folder. The other three arguments say which conversion is at hand, for
// files of global variables (a name that contains "GlobalVariables"), see ProcessGlobalVariables.
// Returns: 0; negative, with `text` as far as whole passes got, if a file is missing or damaged, a line isn't
//          complete, a name leads out of the base folder, the conditions are at fault, or a stylesheet takes
//          in itself, more than 100 in a row, or more than 10000 in all. The trace says which.
int ImportResolveFile(Uve::U8CString& text, const Uve::U8CString& first, const Uve::U8CString& second,
                      const Uve::U8CString& third);

// The same for one kind of line: `tag` is its beginning through the quotation mark before the name. What
// is taken in has both kinds resolved. `text` changes only with 0.
int ImportResolveFile(Uve::U8CString& text, const Uve::U8CString& tag, const Uve::U8CString& first,
                      const Uve::U8CString& second, const Uve::U8CString& third);
