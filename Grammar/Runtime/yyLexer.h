#pragma once

#include "Grammar/Runtime/ScannerTables.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

// One input buffer of a scanner. Sizes and positions are bytes.
struct yybuffer_state
{
    std::FILE* yy_input_file = nullptr; // null for a memory buffer
    char* yy_ch_buf = nullptr;          // the text; ends in two NUL bytes
    char* yy_buf_pos = nullptr;         // saved scan position
    int yy_buf_size = 0;                // usable size, without the two NULs
    int yy_n_chars = 0;                 // bytes of text held
    int yy_is_our_buffer = 0;           // yy_ch_buf is freed with this record
    int yy_is_interactive = 0;          // the stream is a terminal: a line at a time
    int yy_at_bol = 1;                  // the next match starts at the beginning of a line
    int yy_bs_lineno = 1;
    int yy_bs_column = 0;
    int yy_fill_buffer = 0; // can be refilled from the stream
    enum : int
    {
        kNew,
        kNormal,
        kEofPending
    };
    int yy_buffer_status = kNew;
    int yy_is_changed = 0; // yyunput has written into the text
};

// The table-driven scanner without its language: the state, the buffers and the tables. What depends on the
// grammar is a virtual operation. The machine is in yyFlexLexer; the note in yyFlexDriver.h tells how it
// works.
class yyLexer
{
public:
    yyLexer();
    yyLexer(const yyLexer&) = delete;
    yyLexer& operator=(const yyLexer&) = delete;
    virtual ~yyLexer();

    // Allocates the state buffer at its initial size. Call once, after the tables are there.
    // Returns: 1, or 0 if memory is short.
    virtual int yycreate();
    // Switches to start condition `state`.
    // Returns: its coded form.
    // Throws:  std::out_of_range if the tables have no such condition.
    virtual int yybegin(int state);
    // Returns: the next token, 0 at the end of the text.
    virtual int yylex() = 0;
    virtual void yyinit_locals();
    // Ends a scan: afterwards another text can be scanned. Keeps the tables.
    virtual void yycleanup();
    virtual void yyinitialize();
    virtual void yyinittables();
    // Walks from yy_cp until nothing leads on.
    virtual void yymatch() = 0;
    // Backs up to the longest match; `act` is its rule.
    virtual void yyfindrule(int& act) = 0;
    // Installs the text to scan.
    virtual void yyinputbuffer() = 0;
    virtual void yyremove_tables();
    // Position counter: `n` bytes were walked, or given back.
    virtual void yyincrementchar(int n) = 0;
    virtual void yydecrementchar(int n) = 0;
    // True if `act` is the end-of-file rule of a start condition.
    virtual bool yycheck_state_eof(int act) = 0;
    // Runs the action of rule `act`. Sets yy_action_returns if the result is a token.
    virtual int yyaction(int act) = 0;
    virtual void yydestroy();
    // Writes the text to standard error and ends the process.
    [[noreturn]] virtual void yyfatal_error(const char* text);
    virtual void yyerror(const char* text);
    // Returns: the byte after the match, which it consumes; 0 at the end.
    virtual int yyinput();

    // Shares `tables` and derives the constants from them.
    void yyset_tables(std::shared_ptr<const CScannerTables> tables);
    void yyset_lastdfa(std::size_t count) { yy_last_dfa = count - 3; }
    void yyset_jambase(std::size_t count);
    void yyset_rules_num(int n) { yy_end_of_buffer_action = n; }

    // Scan a copy of the text, or of `n` bytes.
    yybuffer_state* yyscan_string(const char* text);
    yybuffer_state* yyscan_bytes(const char* bytes, int n);
    // Scans `base` in place, which the caller keeps; its last two bytes must be NUL.
    // Returns: the buffer, null if they aren't.
    yybuffer_state* yyscan_buffer(char* base, int size);

    // Gives back all but the first `n` bytes of the match.
    void yyless(int n);
    void yyless_lineno(int n);
    // Pushes one byte back before the match.
    void yyunput(int c, char* bp);

    // Buffers may nest: the one on top is scanned, and where it was left the one below goes on.
    void yyswitch_to_buffer(yybuffer_state* buffer);
    void yypush_buffer_state(yybuffer_state* buffer);
    void yypop_buffer_state();
    void yydelete_buffer(yybuffer_state* buffer);
    void yyload_buffer_state();
    void yyensure_buffer_stack();

    // Buffers that are read from a stream, for scanners that have one (yyLexerStreams.cpp). None in this
    // system has.
    // Owner: the scanner closes its streams.
    void yyrestart(std::FILE* stream);
    yybuffer_state* yycreate_buffer(std::FILE* stream, int size);
    void yyinit_buffer(yybuffer_state* buffer, std::FILE* stream);
    void yyflush_buffer(yybuffer_state* buffer);

    int yyget_lineno() const { return yylineno; }
    std::FILE* yyget_in() const { return yyin; }
    std::FILE* yyget_out() const { return yyout; }
    int yyget_leng() const { return yyleng; }
    char* yyget_text() const { return yytext; }
    int yyget_debug() const { return yy_flex_debug; }
    void yyset_lineno(int line) { yylineno = line; }
    void yyset_in(std::FILE* stream) { yyin = stream; }
    void yyset_out(std::FILE* stream) { yyout = stream; }
    void yyset_debug(int on) { yy_flex_debug = on; }

    int& yyat_bol() { return yycurrent_buffer_lvalue()->yy_at_bol; }
    yybuffer_state*& yycurrent_buffer_lvalue() { return yy_buffer_stack[yy_buffer_stack_top]; }
    yybuffer_state* yycurrent_buffer() const
    {
        return yy_buffer_stack ? yy_buffer_stack[yy_buffer_stack_top] : nullptr;
    }
    // The scan is at the end of its buffer.
    // Returns: 1 if the text ends there; 0 if the buffer has more of it now, and the scan goes on.
    virtual int yywrap() { return 1; }
    // Byte offset of the match in the buffer.
    std::size_t yymatch_offset() const
    {
        const yybuffer_state* const buffer = yycurrent_buffer();
        return buffer && yytext_ptr ? static_cast<std::size_t>(yytext_ptr - buffer->yy_ch_buf) : 0;
    }

    std::size_t yymatch_end() const { return yymatch_offset() + static_cast<std::size_t>(yyleng); }

    int yylineno = 1; // from 1
    // The current match, NUL-terminated. It stands in the buffer, where the NUL holds the place of a byte;
    // what touches the buffer between two matches makes a copy first.
    char* yytext = nullptr;
    int yyleng = 0;    // bytes in it
    int yyoldleng = 0; // bytes in the match before
    int yy_start = 0;  // start condition in coded form: 2 * condition + 1
    int yy_action_returns = 0;
    int yy_action_failed = 0;

protected:
    struct SFree
    {
        void operator()(void* memory) const { std::free(memory); }
    };
    template <class T>
    using CMemory = std::unique_ptr<T[], SFree>;

    // A rule in the accept list that has a trailing context is marked, and so is the end of its head.
    static constexpr int kTrailingMask = 0x2000;
    static constexpr int kTrailingHeadMask = 0x4000;

    enum enRefill
    {
        Continue,
        EndOfFile,
        LastMatch
    };

    // Ends the match at the scan position.
    void yybefore_action()
    {
        yytext_ptr = yy_bp;
        yytext = yytext_ptr;
        yyoldleng = yyleng;
        yyleng = static_cast<int>(yy_cp - yy_bp);
        yy_hold_char = *yy_cp;
        *yy_cp = 0;
        yy_c_buf_p = yy_cp;
    }
    // Makes `text` the match, outside of the buffer.
    void yyset_text(std::string_view text);
    // Takes the match out of the buffer, before that is touched.
    void yykeep_text();
    // Writes `text` over the match, as a copy over an array: what it doesn't reach stays.
    void yyreplace_text(std::string_view text);
    void yyrule_setup()
    {
        if (yyleng > 0)
            yycurrent_buffer_lvalue()->yy_at_bol = yytext[yyleng - 1] == '\n';
    }
    // Between two matches: the text ends at byte `n` of the buffer, until it is given back its end.
    void yyend_buffer_at(int n);
    void yygive_back_end();
    int yyget_previous_state();
    enRefill yyget_next_buffer();
    // Makes room for a match of `n` bytes.
    // Returns: false if the text may not grow any more.
    bool yycheck_for_overflow(int n) { return n < yy_text_size || yygrow_text(n); }
    bool yytext_relocate(int size);

    // What the tables say.
    int yystart_condition() const { return (yy_start - 1) / 2; }
    int yystart_state() { return yy_start + yyat_bol(); }
    int yystep(int state, unsigned char byte) const;
    // The rules that a state accepts are a part of the accept list: from the first entry, 0 for none, to the
    // end.
    int yyfirst_rule(int state) const { return yy_accept[state]; }
    int yyend_of_rules(int state) const { return yy_accept[state + 1]; }
    int yyrule_at(int entry) const { return yy_acclist[entry]; }
    bool yycan_match_eol(int rule) const { return yy_rule_can_match_eol[rule] != 0; }
    // Where a NUL of the text itself leads; 0 if no rule knows it.
    int yynul_state(int state) const
    {
        return static_cast<std::size_t>(state) <= yy_last_dfa ? yy_NUL_trans[state] : 0;
    }

    std::FILE* yyin = nullptr;
    std::FILE* yyout = nullptr;
    int yy_flex_debug = 0;
    char* yy_cp = nullptr;      // scan position
    char* yy_bp = nullptr;      // start of the current match
    char* yytext_ptr = nullptr; // start of the match inside the buffer
    int yy_current_state = 0;
    std::unique_ptr<yybuffer_state*[]> yy_buffer_stack;
    std::size_t yy_buffer_stack_top = 0;
    std::size_t yy_buffer_stack_max = 0;
    int yy_n_chars = 0;
    int yy_init = 0;
    int yy_match_length = 0; // bytes walked since yylex was entered
    char yy_hold_char = 0;   // the byte that the NUL after the match has replaced
    char* yy_c_buf_p = nullptr;
    int yy_did_buffer_switch_on_eof = 0;
    int* yy_state_buf = nullptr; // states of the current match
    int* yy_state_ptr = nullptr; // one after the last
    int yy_lp = 0;
    int yy_looking_for_trail_begin = 0;
    int yy_text_size = 0; // bytes that may be walked for a match; the state buffer has twice as many slots
    int yy_text_initial_size = 0;
    int yy_text_max_size = 0; // 0: none
    int yy_end_of_buffer_action = 0;
    std::size_t yy_last_dfa = 0;
    int yy_jam_base = 0;

    std::shared_ptr<const CScannerTables> m_spTables;
    // The tables as the loops read them; they belong to m_spTables.
    const int* yy_accept = nullptr;
    const int* yy_NUL_trans = nullptr;
    const int* yy_base = nullptr;
    const int* yy_def = nullptr;
    const int* yy_nxt = nullptr;
    const int* yy_chk = nullptr;
    const int* yy_rule_can_match_eol = nullptr;
    const int* yy_acclist = nullptr;

private:
    bool yygrow_text(int n);
    enRefill yyrefill_buffer(int kept);
    int yyread_stream(char* into, int most);

    std::string m_textCopy;         // of a match that doesn't stand in the buffer
    std::array<char, 2> m_lstCut{}; // the bytes in whose places the NULs of an earlier end stand
    CMemory<int> yy_state_initial, yy_state_grown;
};
