#include "Grammar/UVGrammarKeeper.h"
#include "Grammar/UVGrammarKeeperText.h"
#include "UVEnvironment/LogSystem.h"

#include <algorithm>
#include <cerrno>

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kAlphanumerics = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

// Words of action code that say nothing to the engine: declarations and results of the macros.
constexpr std::string_view kPlumbing[] = {"UVDB::CString strtmp;", "strtmp", "m_Extension.m_strParsedXml",
                                          "+=", "return"};

template <class TWords>
std::string_view WordAt(const CGeneratedText& cursor, const TWords& words)
{
    const auto found = std::find_if(std::begin(words), std::end(words),
                                    [&](std::string_view word) { return cursor.StartsWith(word); });
    return found == std::end(words) ? std::string_view() : *found;
}

void SkipComment(CGeneratedText& cursor)
{
    constexpr std::string_view kClosing = "*/";
    cursor.Seek(kClosing);
    cursor.Advance(kClosing.size());
    cursor.SkipSymbols(CGeneratedText::kWhiteSpace);
}

// After the brace of a conditional block and its white space.
void SkipToBlock(CGeneratedText& cursor)
{
    cursor.SkipUntilSymbols("{");
    cursor.Advance(1);
    cursor.SkipSymbols(CGeneratedText::kWhiteSpace);
}

bool IsSkippedLine(const CGeneratedText& cursor)
{
    return cursor.StartsWith("#line") || cursor.StartsWith("//");
}

// "(a, b)" as " a b"; a ";" right away is a statement without arguments.
void CopyArguments(CGeneratedText& cursor, std::string& out)
{
    cursor.SkipSymbols("( ");
    if (cursor.Peek() == ';')
        return;
    while (!cursor.AtEnd()) {
        const std::size_t from = cursor.ByteOffset();
        cursor.SkipUntilSymbols(",)");
        out += cursor.From(from);
        const bool isLast = cursor.Peek() != ',';
        cursor.Advance(1);
        if (isLast)
            return;
        out += ' ';
        // A line end within the arguments would end the record.
        cursor.SkipSymbols(CGeneratedText::kWhiteSpace);
    }
}

// From after the opening brace of a rule's body to where its record ends.
void CopyStatements(CGeneratedText& cursor, std::string& out)
{
    const std::string wordOrLine = std::string(kAlphanumerics) + "/#";
    cursor.SkipUntilSymbols(wordOrLine);
    while (IsSkippedLine(cursor))
        cursor.SkipLine();
    if (cursor.StartsWith("#ifdef"))
        SkipToBlock(cursor);

    while (!cursor.AtEnd()) {
        if (!WordAt(cursor, UVDBGrammarKeeper::seekingTokens).empty()) {
            const auto result = UVDBGrammarKeeper::ProcessToken(cursor, out);
            if (result == UVDBGrammarKeeper::kStatementEndsRecord)
                return;
            if (result == UVDBGrammarKeeper::kStatementHasArguments)
                CopyArguments(cursor, out);
        } else if (cursor.Peek() == '}' || cursor.StartsWith("break;") || cursor.StartsWith("YY_BREAK"))
            return;
        else if (cursor.IsOneOf("\n \t\r;"))
            cursor.Advance(1);
        else if (!WordAt(cursor, kPlumbing).empty()) {
            cursor.SkipUntilSymbols(CGeneratedText::kWhiteSpace);
            cursor.SkipSymbols(CGeneratedText::kWhiteSpace);
        } else if (IsSkippedLine(cursor))
            cursor.SkipLine();
        else if (cursor.StartsWith("/*"))
            SkipComment(cursor);
        else if (cursor.StartsWith("#ifdef"))
            SkipToBlock(cursor);
        else {
            const std::size_t from = cursor.ByteOffset();
            cursor.SkipUntilSymbols(CGeneratedText::kWhiteSpace);
            const std::string word(cursor.From(from));
            out += "ERROR: unknown token '" + word + "'";
            CLogWrapper::WriteTraceF("\nUVGrammarKeeper: SaveActionsToFile(): Unknown token: %s",
                                     word.c_str());
        }
    }
}

} // namespace

UVDBGrammarKeeper::enStatementResult UVDBGrammarKeeper::ProcessToken(CGeneratedText& cursor, std::string& out)
{
    const std::string_view word = WordAt(cursor, seekingTokens);
    if (!out.ends_with(' '))
        out += ' ';
    out.append(word).append(1, ' ');
    cursor.Advance(word.size());

    if (word == GetGrammarKeyword(enGrammarKeyword::Begin).name) {
        cursor.SkipSymbols(CGeneratedText::kWhiteSpace);
        const std::size_t from = cursor.ByteOffset();
        cursor.SkipUntilSymbols(";}");
        std::string_view operand = cursor.From(from);
        operand = operand.substr(0, operand.find_last_not_of(CGeneratedText::kWhiteSpace) + 1);
        out.append(operand).append(1, ' ');
        return kStatementDone;
    }
    if (word == GetGrammarKeyword(enGrammarKeyword::Yytext).name) {
        cursor.SkipSymbols(" [");
        const std::size_t from = cursor.ByteOffset();
        cursor.SkipUntilSymbols(" ]\n");
        out += cursor.From(from);
        return kStatementEndsRecord;
    }
    return kStatementHasArguments;
}

int UVDBGrammarKeeper::SaveActionsToFile(const std::string& source, const std::string& directory)
{
    constexpr std::string_view kCase = "case";
    std::string text;
    if (ReadFromFile(text, source.c_str()) != 0) {
        CLogWrapper::WriteTraceF("\nUVGrammarKeeper: Can't read file: %s, error: %d", source.c_str(), errno);
        return -1;
    }
    const bool isLexer = IsFileLexer(source);
    const std::string_view endMarker = isLexer ? "end of action switch" : "yyerrlab:";
    CGeneratedText cursor(text);
    if (!cursor.Seek(isLexer ? "do_action:" : "yyreduce:"))
        return -1;

    std::string actions;
    while (!cursor.StartsWith(endMarker)) {
        if (cursor.AtEnd())
            return -1;
        if (!cursor.StartsWith(kCase)) {
            cursor.Advance(1);
            continue;
        }
        cursor.Advance(kCase.size());
        cursor.SkipSymbols(" \t");
        const std::size_t numberAt = cursor.ByteOffset();
        cursor.SkipSymbols(kDigits);
        const std::string_view number = cursor.From(numberAt);
        if (number.empty())
            continue;
        cursor.SkipUntilCaseSymbols("{");
        if (cursor.Peek() != '{')
            continue;
        cursor.Advance(1);
        actions.append(number).append(1, ' ');
        CopyStatements(cursor, actions);
        actions += '\n';
    }
    return WriteToFile(actions, (directory + "actions.dat").c_str());
}
