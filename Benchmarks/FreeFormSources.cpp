// Sources in free form: with directives, include files, blocks of script, macros, embedded SQL.
#include "Benchmarks/PreparationSources.h"
#include "Benchmarks/SourceWriter.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

constexpr std::string_view kNames[] = {"customer", "orderLine", "total",  "price",
                                       "index",    "buffer",    "status", "result"};

std::string IncludeName(CSourceWriter& writer, std::string_view stem, std::string_view extension)
{
    return std::string(stem) + writer.Digits(1, kIncludeFileCount) + std::string(extension);
}

void WriteFile(const std::string& path, const std::string& text)
{
    std::ofstream out(path, std::ios::binary);
    out << text << std::flush;
    if (!out)
        throw std::runtime_error("can't write " + path);
}

} // namespace

void AddFoxPro(CSourceWriter& writer)
{
    const auto name = [&] { return writer.Pick(kNames); };
    writer.Add("PROCEDURE " + name() + writer.Digits(1, 9999));
    writer.Add("   * " + writer.Phrase(4, 10) + (writer.Chance(20) ? "; été" : ""));
    writer.Add("   LOCAL lc" + name() + ", ln" + name() + "   && " + writer.Phrase(2, 6));
    writer.Add("   SELECT " + name() + ", SUM(" + name() + ") AS n;");
    writer.Add("      FROM " + name() + ";");
    writer.Add("      WHERE " + name() + " > " + writer.Digits(1, 999) + " ;");
    writer.Add("      INTO CURSOR cur" + name());
    writer.Add("   lcText = \"" + writer.Phrase(2, 5) + "; " + writer.Phrase(1, 3) + "\"");
    writer.Add("   lcLong = '" + writer.Phrase(2, 5) + " ;");
    writer.Add("      " + writer.Phrase(1, 3) + "' + 'déjà vu'");
    for (int line = writer.Number(2, 8); line > 0; --line)
        writer.Add("   REPLACE " + name() + " WITH " + name() + " * " + writer.Digits(1, 99) + " IN " +
                   name());
    writer.Add("   =MESSAGEBOX('" + writer.Phrase(2, 4) + "') ; && " + writer.Phrase(1, 5));
    writer.Add("ENDPROC");
    writer.Add("");
}

void AddPascal(CSourceWriter& writer)
{
    const auto name = [&] { return writer.Pick(kNames); };
    const auto statement = [&](std::string_view indent) {
        writer.Add(std::string(indent) + name() + " := " + name() + " + Length('" + writer.Phrase(1, 3) +
                   "');");
    };
    writer.Add("{ " + writer.Phrase(5, 12) + " }");
    writer.Add("procedure T" + name() + "." + name() + writer.Digits(1, 9999) + "(const A: string);");
    writer.Add("{$IFDEF MSWINDOWS}");
    statement("  ");
    writer.Add("{$ELSE}");
    statement("  ");
    writer.Add("{$ENDIF}");
    writer.Add("var {$IFDEF UNICODE} S: WideString {$ELSE} S: AnsiString {$ENDIF};");
    writer.Add("begin");
    for (int line = writer.Number(6, 20); line > 0; --line)
        statement("  ");
    writer.Add("  {$IFDEF DELPHI7_OR_HIGHER}");
    writer.Add("  {$IFNDEF " + writer.Phrase(1, 1) + "_SUPPORT}");
    statement("    ");
    writer.Add("  {$ELSE}");
    statement("    ");
    writer.Add("  {$ENDIF}");
    writer.Add("  {$ELSE}");
    statement("  ");
    writer.Add("  {$ENDIF}");
    writer.Add("  (* " + writer.Phrase(3, 9) + " *) // " + writer.Phrase(2, 6));
    if (writer.Chance(20))
        writer.Add("  {$R-,Q-} {$WARN SYMBOL_PLATFORM OFF}");
    writer.Add("end;");
    writer.Add("");
}

void AddProgress(CSourceWriter& writer)
{
    const auto name = [&] { return writer.Pick(kNames); };
    writer.Add("/* " + writer.Phrase(4, 12) + " */");
    writer.Add("DEFINE VARIABLE " + name() + " AS CHARACTER NO-UNDO INITIAL \"" + writer.Phrase(1, 4) +
               "\".");
    writer.Add("{" + IncludeName(writer, "part", ".i") + "}");
    writer.Add("FOR EACH " + name() + " WHERE " + name() + "." + name() + " = {&DEFAULT-KEY} NO-LOCK:");
    for (int line = writer.Number(10, 30); line > 0; --line)
        writer.Add("    ASSIGN " + name() + "." + name() + " = " + name() + " + " + writer.Digits(1, 99) +
                   ". /* " + writer.Phrase(1, 4) + " */");
    writer.Add("    {" + IncludeName(writer, "filled", ".i") + " " + name() + " &table=" + name() +
               " &key=\"" + name() + "\"}");
    writer.Add("END.");
    writer.Add("&IF DEFINED(EXCLUDE-" + name() + ") = 0 &THEN");
    writer.Add("    RUN " + name() + ".p (INPUT " + name() + ", OUTPUT " + name() + ").");
    writer.Add("&ENDIF");
    writer.Add("");
}

void AddAsp(CSourceWriter& writer)
{
    const auto name = [&] { return writer.Pick(kNames); };
    writer.Add("<!-- " + writer.Phrase(3, 9) + " -->");
    if (writer.Chance(50))
        writer.Add("<!--#include file=\"" + IncludeName(writer, "part", ".inc") + "\"-->");
    writer.Add("<table class=\"" + name() + "\">");
    for (int row = writer.Number(2, 8); row > 0; --row)
        writer.Add("  <tr><td>" + writer.Phrase(2, 6) + "</td><td><%= " + name() + "(\"" + name() +
                   "\") %></td></tr>");
    writer.Add("</table>");
    writer.Add("<%");
    for (int line = writer.Number(3, 15); line > 0; --line)
        writer.Add("  If " + name() + " < " + writer.Digits(1, 99) + " Then " + name() + " = \"" +
                   writer.Phrase(1, 4) + "\" ' " + writer.Phrase(1, 4));
    writer.Add("%>");
    if (writer.Chance(30)) {
        writer.Add("<script language=VBScript runat=server>");
        writer.Add("Function " + name() + writer.Digits(1, 9999) + "(a, b)");
        writer.Add("  " + name() + " = a & b & \"" + writer.Phrase(1, 4) + "\"");
        writer.Add("End Function");
        writer.Add("</script>");
    }
    if (writer.Chance(20))
        writer.Add("<script>var " + name() + " = document.getElementById('" + name() + "');</script>");
}

void AddMacroC(CSourceWriter& writer)
{
    const auto name = [&] { return writer.Pick(kNames); };
    const std::string number = std::to_string(writer.Size());
    writer.Add("/* " + writer.Phrase(5, 15) + " */");
    if (writer.Chance(10))
        writer.Add("#include \"" + IncludeName(writer, "limits", ".h") + "\"");
    writer.Add("#define LIMIT_" + number + " (" + writer.Digits(1, 999) + " * UNIT)");
    writer.Add("#define CLAMP_" + number + "(a, b) ((a) > (b) ? (b) : (a)) /* " + writer.Phrase(1, 4) +
               " */");
    writer.Add("static int " + name() + "_" + number + "(const char* text, int " + name() + ")");
    writer.Add("{");
    for (int line = writer.Number(6, 20); line > 0; --line) {
        switch (writer.Number(0, 5)) {
        case 0:
            writer.Add("    total += CLAMP_" + number + "(" + name() + " + " + writer.Digits(1, 99) +
                       ", LIMIT_" + number + ");");
            break;
        case 1:
            writer.Add("    trace(\"" + writer.Phrase(2, 5) + "\\n\", " + name() + "); // " +
                       writer.Phrase(1, 5));
            break;
        case 2:
            writer.Add("    if (" + name() + " == SIZE_" + writer.Digits(1, kIncludeFileCount) + ")");
            writer.Add("        return -1;");
            break;
        default:
            writer.Add("    " + name() + "->" + name() + "[" + writer.Digits(0, 9) + "] = 0x" +
                       writer.Digits(10, 99) + "u << 2;");
        }
    }
    writer.Add("#if defined(WITH_TRACE) && UNIT > " + writer.Digits(1, 9));
    writer.Add("    TRACE(\"" + writer.Phrase(1, 3) + "\", total);");
    writer.Add("#elif UNIT + 1 == 5");
    writer.Add("    total = JOIN(LIMIT_, " + number + ");");
    writer.Add("#else");
    writer.Add("    total = 0;");
    writer.Add("#endif");
    writer.Add("    return total;");
    writer.Add("}");
    if (writer.Chance(50))
        writer.Add("#undef CLAMP_" + number);
    writer.Add("");
}

void AddEmbeddedSql(CSourceWriter& writer)
{
    const auto name = [&] { return writer.Pick(kNames); };
    writer.Add("/* " + writer.Phrase(5, 12) + " costs $" + writer.Digits(1, 99) + " */");
    writer.Add("int " + name() + writer.Digits(1, 9999) + "(char* text)");
    writer.Add("{");
    writer.Add("    $int " + name() + ";");
    writer.Add("    $char " + name() + "[" + writer.Digits(10, 99) + "];");
    for (int line = writer.Number(4, 12); line > 0; --line)
        writer.Add("    " + name() + " = lookup(\"" + writer.Phrase(1, 4) + "\", " + writer.Digits(1, 99) +
                   "); // " + writer.Phrase(1, 4));
    writer.Add("    $select " + name() + ", " + name() + " into $" + name() + ", $" + name());
    writer.Add("        from " + name() + " where " + name() + " = $" + name() + ";");
    writer.Add("    $declare c" + writer.Digits(1, 99) + " cursor for select * from " + name() + ";");
    writer.Add("    $open c" + writer.Digits(1, 99) + ";");
    writer.Add("    EXEC SQL fetch c" + writer.Digits(1, 99) + " into $" + name() + ", :" + name() + ";");
    writer.Add("    if (sqlca.sqlcode != 0)");
    writer.Add("        return -1;");
    if (writer.Chance(30)) {
        writer.Add("    EXEC SQL BEGIN DECLARE SECTION;");
        writer.Add("    $double " + name() + ";");
        writer.Add("    EXEC SQL END DECLARE SECTION;");
    }
    writer.Add("    return 0;");
    writer.Add("}");
    writer.Add("");
}

std::string MakeSource(enSourceKind kind, std::size_t size)
{
    // by enSourceKind
    static constexpr void (*kGenerators[])(CSourceWriter&) = {
        AddCobolFixed, AddCobolFree, AddJcl,      AddIbmCl, AddFoxPro, AddRpgWithDefinitions,
        AddRpgOlder,   AddPascal,    AddProgress, AddAsp,   AddMacroC, AddEmbeddedSql,
    };
    static_assert(std::size(kGenerators) == static_cast<std::size_t>(enSourceKind::EmbeddedSql) + 1);
    CSourceWriter writer;
    if (kind == enSourceKind::EmbeddedSql)
        writer.Add("$include sqlca;\n$typedef int quantity;");
    while (writer.Size() < size)
        kGenerators[static_cast<std::size_t>(kind)](writer);
    return writer.Take();
}

void WriteIncludeFiles(const std::string& folder)
{
    for (int file = 1; file <= kIncludeFileCount; ++file) {
        const std::string number = std::to_string(file);
        const std::string next = std::to_string(file + 1);
        CSourceWriter writer;

        for (int line = 0; line < 5 + file % 7; ++line)
            writer.Add("DEFINE BUFFER b" + number + " FOR " + writer.Phrase(1, 1) + ". /* " +
                       writer.Phrase(2, 6) + " */");
        // one of four takes another one in, which doesn't
        if (file % 4 == 1)
            writer.Add("{part" + next + ".i}");
        WriteFile(folder + "/part" + number + ".i", writer.Take());

        for (int line = 0; line < 4; ++line)
            writer.Add("FIND FIRST {&table} WHERE {&table}.{&key} = {1} NO-ERROR. /* " + writer.Phrase(2, 6) +
                       " */");
        WriteFile(folder + "/filled" + number + ".i", writer.Take());

        for (int line = 0; line < 8; ++line)
            writer.Add("<p>" + writer.Phrase(4, 12) + " <%= shared(\"" + number + "\") %></p>");
        WriteFile(folder + "/part" + number + ".inc", writer.Take());

        writer.Add("#ifndef LIMITS_" + number + "\n#define LIMITS_" + number);
        writer.Add("#define SIZE_" + number + " (UNIT * " + number + ")");
        writer.Add("#ifndef TRACE\n#define TRACE(text, value) trace(text, (value) + UNIT)\n#endif\n#endif");
        WriteFile(folder + "/limits" + number + ".h", writer.Take());
    }
}
