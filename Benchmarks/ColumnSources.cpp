// Sources whose columns or line ends mean something.
#include "Benchmarks/SourceWriter.h"

namespace {

constexpr std::string_view kCobolFields[] = {"CUST-BALANCE", "WS-TOTAL",   "ORDER-QTY", "INV-NUMBER",
                                             "WS-INDEX",     "LAST-SEEN",  "RATE-CODE", "WS-RETURN-CODE",
                                             "LINE-COUNT",   "REPORT-DATE"};
constexpr std::string_view kFields[] = {"CUSNO",  "ORDQTY", "TOTAL",  "PRICE",
                                        "STATUS", "LINENO", "RESULT", "NAME"};

std::string CobolStatement(CSourceWriter& writer)
{
    const std::string first = writer.Pick(kCobolFields);
    const std::string second = writer.Pick(kCobolFields);
    switch (writer.Number(0, 6)) {
    case 0:
        return "MOVE " + first + " TO " + second + ".";
    case 1:
        return "ADD " + writer.Digits(1, 99) + "   TO " + second;
    case 2:
        return "COMPUTE " + first + " = " + second + " * " + writer.Digits(2, 9) + " + 1.";
    case 3:
        return "PERFORM " + writer.Digits(100, 999) + "-" + first + "   UNTIL " + second + " > 10.";
    case 4:
        return "DISPLAY '" + writer.Phrase(2, 4) + "' " + first + ".";
    case 5:
        return "05  " + first + "     PIC 9(" + writer.Digits(1, 9) + ")V99   COMP-3.";
    default:
        return "WRITE REPORT-LINE FROM " + first + " AFTER 1.";
    }
}

} // namespace

void AddCobolFixed(CSourceWriter& writer)
{
    const auto card = [&](char indicator, const std::string& text) {
        const std::string sequence = Sequence(writer.Size() / 8, 6);
        writer.Add(Padded(sequence + indicator + text, 72) + "PAYR" + Sequence(writer.Size() / 80, 4));
    };
    for (int line = 0; line < 12; ++line)
        card(' ', "    " + CobolStatement(writer));
    for (int line = writer.Number(1, 4); line > 0; --line)
        card('*', " " + writer.Phrase(4, 10));
    card(' ', "    IF " + writer.Pick(kCobolFields) + " > ZERO,");
    card(' ', "        " + CobolStatement(writer));
    card('D', "    DISPLAY 'TRACE " + writer.Phrase(1, 2) + "'.");
    const std::string literal = writer.Phrase(6, 9);
    card(' ', Padded("    MOVE '" + literal, 65));
    card('-', "    '" + literal + "' TO " + writer.Pick(kCobolFields) + ".");
    writer.Add("      \tMOVE SPACES\tTO " + writer.Pick(kCobolFields) + ".");
    if (writer.Chance(30))
        writer.Add("");
    if (writer.Chance(20))
        card(' ', "    COPY " + writer.Pick(kFields) + ".");
    if (writer.Chance(10))
        writer.Add("-INC " + writer.Pick(kFields));
}

void AddCobolFree(CSourceWriter& writer)
{
    const auto line = [&](const std::string& text) { writer.Add(Sequence(writer.Size() / 8, 6) + text); };
    for (int count = 0; count < 12; ++count)
        line("     " + CobolStatement(writer));
    for (int count = writer.Number(1, 3); count > 0; --count)
        line("* " + writer.Phrase(4, 12));
    line(" if " + writer.Pick(kCobolFields) + " > zero,");
    line("     " + CobolStatement(writer));
    line("     STRING '" + writer.Phrase(3, 6));
    line("-    '" + writer.Phrase(3, 6) + "' DELIMITED BY SIZE INTO " + writer.Pick(kCobolFields) + ".");
    if (writer.Chance(30))
        writer.Add("");
}

void AddJcl(CSourceWriter& writer)
{
    const auto card = [&](const std::string& text) {
        writer.Add(Padded(text, 72) + Sequence(writer.Size() / 8, 8));
    };
    card("//" + Padded("JOB" + writer.Digits(1, 9999), 8) + " JOB (" + writer.Digits(1000, 9999) + "),'" +
         writer.Phrase(1, 2) + "',CLASS=A,");
    card("//             MSGCLASS=X,NOTIFY=&SYSUID");
    for (int step = writer.Number(1, 5); step > 0; --step) {
        card("//* " + writer.Phrase(4, 9));
        card("//" + Padded("STEP" + writer.Digits(10, 99), 8) + " EXEC PGM=PAY" + writer.Digits(100, 999) +
             ",REGION=0M");
        card("//INPUT    DD DSN=PROD.LEDGER.G" + writer.Digits(1000, 9999) + "V00,DISP=SHR");
        card("//OUTPUT   DD DSN=PROD.REPORT.FINAL,DISP=(NEW,CATLG,DELETE),");
        card("//            SPACE=(CYL,(" + writer.Digits(1, 90) + ",5),RLSE),UNIT=SYSDA");
        card("//SYSIN    DD *");
        for (int line = writer.Number(2, 8); line > 0; --line)
            card("  " + writer.Phrase(3, 8));
        card("/*");
    }
    if (writer.Chance(20))
        writer.Add("");
}

void AddIbmCl(CSourceWriter& writer)
{
    writer.Add("/* " + writer.Phrase(4, 10) + " */");
    writer.Add("             DCL        VAR(&" + writer.Pick(kFields) + ") TYPE(*CHAR) LEN(" +
               writer.Digits(1, 99) + ")");
    writer.Add("             CHGVAR     VAR(&" + writer.Pick(kFields) + ") VALUE('" + writer.Phrase(1, 4) +
               "')");
    writer.Add("             IF         COND(&" + writer.Pick(kFields) + " *EQ ' ') THEN(GOTO +");
    writer.Add("                          CMDLBL(END" + writer.Digits(1, 99) + "))");
    writer.Add("             SNDPGMMSG  MSG('" + writer.Phrase(3, 6) + " -");
    writer.Add(writer.Phrase(2, 4) + "') +   ");
    writer.Add("                          TOPGMQ(*PRV)");
    writer.Add("             CALL       PGM(QGPL/PAY" + writer.Digits(100, 999) + ") PARM(&" +
               writer.Pick(kFields) + " +");
    writer.Add("                          &" + writer.Pick(kFields) + " +");
    writer.Add("                          &" + writer.Pick(kFields) + ")");
    writer.Add("             MONMSG     MSGID(CPF" + writer.Digits(1000, 9999) + ") EXEC(DO)\r");
    writer.Add("             ENDDO\r");
    if (writer.Chance(30))
        writer.Add("");
}

namespace {

// A calculation, whose columns both layouts have apart from the operation's.
std::string Calculation(CSourceWriter& writer, std::size_t operation, const std::string& name,
                        const std::string& rest)
{
    std::string line = Padded(Sequence(writer.Size() / 60, 5) + "C", operation - 14);
    line = Padded(line + (writer.Chance(30) ? writer.Pick(kFields) : std::string()), operation);
    return Padded(line + name, operation + 10) + rest;
}

void AddCalculations(CSourceWriter& writer, std::size_t operation)
{
    const auto field = [&] { return writer.Pick(kFields); };
    writer.Add(Calculation(writer, operation, "IF", field() + " = " + field()));
    writer.Add(Calculation(writer, operation, "EVAL", field() + " = " + writer.Digits(1, 99)));
    writer.Add(Calculation(writer, operation, "DOW", field() + " < " + writer.Digits(1, 99)));
    for (int line = writer.Number(2, 6); line > 0; --line)
        writer.Add(Padded(Calculation(writer, operation, "MOVE", "'" + writer.Phrase(1, 1) + "'"), 50) +
                   field());
    writer.Add(Calculation(writer, operation, "ENDDO", ""));
    writer.Add(Calculation(writer, operation, "ENDIF", ""));
    writer.Add(Padded(Calculation(writer, operation, "ADD", "1"), 80) + " " + writer.Phrase(2, 5));
    writer.Add("      * " + writer.Phrase(4, 9));
}

} // namespace

void AddRpgWithDefinitions(CSourceWriter& writer)
{
    const auto line = [&](char letter, const std::string& fields) {
        writer.Add(Sequence(writer.Size() / 60, 5) + letter + fields);
    };
    line('H', " DATEDIT(*YMD) OPTION(*SRCSTMT)");
    line('F', Padded(writer.Pick(kFields), 10) + "IF   E           K DISK    USROPN");
    for (int count = writer.Number(1, 4); count > 0; --count)
        line('D', " " + Padded(writer.Pick(kFields), 17) + "S             " + writer.Digits(1, 15) +
                      "P 2 INZ(" + writer.Digits(0, 99) + ")");
    line('P', " " + Padded(writer.Pick(kFields), 17) + "B                   EXPORT");
    AddCalculations(writer, 25);
    AddCalculations(writer, 25);
    line('I', Padded(writer.Pick(kFields), 10) + "NS  01");
    line('O', Padded(writer.Pick(kFields), 10) + "E            " + writer.Phrase(1, 2));
    writer.Add("      /FREE");
    for (int count = writer.Number(2, 6); count > 0; --count)
        writer.Add("        " + writer.Pick(kFields) + " = %trim(" + writer.Pick(kFields) + ") + '" +
                   writer.Phrase(1, 3) + "'; // " + writer.Phrase(1, 4));
    writer.Add("      /END-FREE");
    line('P', "                 E");
    if (writer.Chance(30))
        writer.Add("");
}

void AddRpgOlder(CSourceWriter& writer)
{
    const auto line = [&](char letter, const std::string& fields) {
        writer.Add(Sequence(writer.Size() / 60, 5) + letter + fields);
    };
    line('F', Padded(writer.Pick(kFields), 8) + "IF  E           K        DISK           KINFDS INFDS");
    line('E', "                    TAB    10  10  5 0");
    line('L', Padded(writer.Pick(kFields), 8) + " 066FL 060OL");
    AddCalculations(writer, 27);
    AddCalculations(writer, 27);
    line('I', Padded(writer.Pick(kFields), 8) + "NS  01   1 C1   2 C2                     " +
                  writer.Pick(kFields));
    line('O', Padded(writer.Pick(kFields), 8) + "D  1     01             " + writer.Pick(kFields));
    line('C', "/EXEC SQL SELECT NAME INTO :NAME");
    line('C', "+ FROM LEDGER WHERE CUSNO = :CUSNO");
    line('C', "/END-EXEC");
    if (writer.Chance(30))
        writer.Add("");
}
