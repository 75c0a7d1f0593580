#include "Grammar/Runtime/yyLexer.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

// The buffers of a scanner, which hold a text in memory.

namespace {

constexpr std::size_t kStackStep = 8;

} // namespace

yybuffer_state* yyLexer::yyscan_string(const char* text)
{
    return yyscan_bytes(text, static_cast<int>(std::strlen(text)));
}

yybuffer_state* yyLexer::yyscan_bytes(const char* bytes, int n)
{
    const auto size = static_cast<std::size_t>(n);
    CMemory<char> copy(static_cast<char*>(std::malloc(size + 2)));
    if (!copy)
        throw std::bad_alloc();
    std::memcpy(copy.get(), bytes, size);
    copy[size] = 0;
    copy[size + 1] = 0;
    yybuffer_state* const buffer = yyscan_buffer(copy.get(), n + 2);
    if (!buffer)
        yyfatal_error("bad buffer in yyscan_bytes()");
    (void)copy.release();
    buffer->yy_is_our_buffer = 1;
    return buffer;
}

yybuffer_state* yyLexer::yyscan_buffer(char* base, int size)
{
    if (size < 2 || base[size - 2] != 0 || base[size - 1] != 0)
        return nullptr;
    auto* const buffer = new yybuffer_state;
    buffer->yy_buf_size = size - 2;
    buffer->yy_ch_buf = base;
    buffer->yy_buf_pos = base;
    buffer->yy_n_chars = buffer->yy_buf_size;
    yyswitch_to_buffer(buffer);
    return buffer;
}

void yyLexer::yyswitch_to_buffer(yybuffer_state* buffer)
{
    yyensure_buffer_stack();
    if (yycurrent_buffer() == buffer)
        return;
    if (yybuffer_state* const current = yycurrent_buffer()) {
        yykeep_text();
        *yy_c_buf_p = yy_hold_char;
        current->yy_buf_pos = yy_c_buf_p;
        current->yy_n_chars = yy_n_chars;
    }
    yycurrent_buffer_lvalue() = buffer;
    yyload_buffer_state();
    yy_did_buffer_switch_on_eof = 1;
}

void yyLexer::yypush_buffer_state(yybuffer_state* buffer)
{
    if (!buffer)
        return;
    yyensure_buffer_stack();
    if (yybuffer_state* const current = yycurrent_buffer()) {
        yykeep_text();
        *yy_c_buf_p = yy_hold_char;
        current->yy_buf_pos = yy_c_buf_p;
        current->yy_n_chars = yy_n_chars;
        ++yy_buffer_stack_top;
    }
    yycurrent_buffer_lvalue() = buffer;
    yyload_buffer_state();
    yy_did_buffer_switch_on_eof = 1;
}

void yyLexer::yypop_buffer_state()
{
    if (!yy_buffer_stack)
        return;
    if (yycurrent_buffer()) {
        yydelete_buffer(yycurrent_buffer());
        yycurrent_buffer_lvalue() = nullptr;
    }
    if (yy_buffer_stack_top > 0)
        --yy_buffer_stack_top;
    if (yycurrent_buffer()) {
        yyload_buffer_state();
        yy_did_buffer_switch_on_eof = 1;
    }
}

void yyLexer::yydelete_buffer(yybuffer_state* buffer)
{
    if (!buffer)
        return;
    if (buffer == yycurrent_buffer()) {
        yykeep_text();
        yycurrent_buffer_lvalue() = nullptr;
    }
    if (buffer->yy_is_our_buffer)
        std::free(buffer->yy_ch_buf);
    delete buffer;
}

void yyLexer::yyload_buffer_state()
{
    const yybuffer_state* const buffer = yycurrent_buffer();
    yy_n_chars = buffer->yy_n_chars;
    yytext_ptr = buffer->yy_buf_pos;
    yy_c_buf_p = buffer->yy_buf_pos;
    yyin = buffer->yy_input_file;
    yy_hold_char = *yy_c_buf_p;
}

void yyLexer::yyensure_buffer_stack()
{
    if (yy_buffer_stack && yy_buffer_stack_top + 1 < yy_buffer_stack_max)
        return;
    const std::size_t slots = yy_buffer_stack_max + kStackStep;
    auto stack = std::make_unique<yybuffer_state*[]>(slots);
    std::copy(yy_buffer_stack.get(), yy_buffer_stack.get() + yy_buffer_stack_max, stack.get());
    yy_buffer_stack = std::move(stack);
    yy_buffer_stack_max = slots;
}

void yyLexer::yyend_buffer_at(int n)
{
    yybuffer_state* const buffer = yycurrent_buffer();
    char* const end = buffer->yy_ch_buf + n;
    std::copy_n(end, m_lstCut.size(), m_lstCut.begin());
    std::fill_n(end, m_lstCut.size(), '\0');
    buffer->yy_n_chars = n;
    yy_n_chars = n;
}

void yyLexer::yygive_back_end()
{
    yybuffer_state* const buffer = yycurrent_buffer();
    std::ranges::copy(m_lstCut, buffer->yy_ch_buf + yy_n_chars);
    buffer->yy_n_chars = buffer->yy_buf_size;
    yy_n_chars = buffer->yy_buf_size;
    yy_hold_char = *yy_c_buf_p;
}

yyLexer::enRefill yyLexer::yyget_next_buffer()
{
    yybuffer_state* const buffer = yycurrent_buffer();
    if (yy_c_buf_p > buffer->yy_ch_buf + yy_n_chars + 1) {
        yyerror("flex scanner internal error--end of buffer missed");
        return EndOfFile;
    }
    const auto kept =
        static_cast<int>(yy_c_buf_p - yytext_ptr) - 1; // of the match, without the NUL that ended it
    if (buffer->yy_fill_buffer)
        return yyrefill_buffer(kept);
    return kept == 0 ? EndOfFile : LastMatch;
}

void yyLexer::yyunput(int c, char* bp)
{
    yykeep_text();
    char* cp = yy_c_buf_p;
    *cp = yy_hold_char;
    yybuffer_state* const buffer = yycurrent_buffer();
    buffer->yy_is_changed = 1;
    if (cp < buffer->yy_ch_buf + 2) {
        // make room at the front by moving the text to the end of the buffer
        const int count = yy_n_chars + 2;
        char* const target = buffer->yy_ch_buf + buffer->yy_buf_size + 2 - count;
        const std::ptrdiff_t shift = target - buffer->yy_ch_buf;
        std::memmove(target, buffer->yy_ch_buf, static_cast<std::size_t>(count));
        cp += shift;
        bp += shift;
        buffer->yy_n_chars = yy_n_chars = buffer->yy_buf_size;
        if (cp < buffer->yy_ch_buf + 2)
            yyfatal_error("flex scanner push-back overflow");
    }
    *--cp = static_cast<char>(c);
    if (c == '\n')
        --yylineno;
    yytext_ptr = bp;
    yy_hold_char = *cp;
    yy_c_buf_p = cp;
}

int yyLexer::yyinput()
{
    yykeep_text();
    *yy_c_buf_p = yy_hold_char;
    if (*yy_c_buf_p == 0) {
        const yybuffer_state* const buffer = yycurrent_buffer();
        if (yy_c_buf_p < buffer->yy_ch_buf + yy_n_chars) {
            *yy_c_buf_p = 0; // a NUL of the text itself
        } else {
            const std::ptrdiff_t offset = yy_c_buf_p - yytext_ptr;
            ++yy_c_buf_p;
            const enRefill refill = yyget_next_buffer();
            if (refill != Continue) {
                yy_c_buf_p = yytext_ptr + offset;
                yy_hold_char = *yy_c_buf_p;
                return 0;
            }
            yy_c_buf_p = yytext_ptr + offset;
        }
    }
    const int c = static_cast<unsigned char>(*yy_c_buf_p);
    *yy_c_buf_p = 0;
    yy_hold_char = *++yy_c_buf_p;
    yyat_bol() = c == '\n';
    if (yyat_bol())
        ++yylineno;
    return c;
}
