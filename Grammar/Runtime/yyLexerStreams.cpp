#include "Grammar/Runtime/yyLexer.h"

#include <algorithm>
#include <cstring>
#include <new>

// Buffers that are read from a stream, piece by piece. This system scans memory: none of it is on the way of
// a text.

namespace {

constexpr int kDefaultBufferSize = 16384;
constexpr int kReadSize = 8192;

} // namespace

void yyLexer::yyrestart(std::FILE* stream)
{
    if (!yycurrent_buffer()) {
        yyensure_buffer_stack();
        yycurrent_buffer_lvalue() = yycreate_buffer(stream, kDefaultBufferSize);
    }
    yyinit_buffer(yycurrent_buffer(), stream);
    yyload_buffer_state();
}

yybuffer_state* yyLexer::yycreate_buffer(std::FILE* stream, int size)
{
    auto* const text = static_cast<char*>(std::malloc(static_cast<std::size_t>(size) + 2));
    if (!text)
        throw std::bad_alloc();
    auto* const buffer = new yybuffer_state;
    buffer->yy_buf_size = size;
    buffer->yy_ch_buf = text;
    buffer->yy_is_our_buffer = 1;
    yyinit_buffer(buffer, stream);
    return buffer;
}

void yyLexer::yyinit_buffer(yybuffer_state* buffer, std::FILE* stream)
{
    yyflush_buffer(buffer);
    buffer->yy_input_file = stream;
    buffer->yy_fill_buffer = stream ? 1 : 0;
    if (buffer != yycurrent_buffer()) {
        buffer->yy_bs_lineno = 1;
        buffer->yy_bs_column = 0;
    }
    buffer->yy_is_interactive = 0;
}

void yyLexer::yyflush_buffer(yybuffer_state* buffer)
{
    if (!buffer)
        return;
    if (buffer == yycurrent_buffer())
        yykeep_text();
    buffer->yy_n_chars = 0;
    buffer->yy_ch_buf[0] = 0;
    buffer->yy_ch_buf[1] = 0;
    buffer->yy_buf_pos = buffer->yy_ch_buf;
    buffer->yy_at_bol = 1;
    buffer->yy_buffer_status = yybuffer_state::kNew;
    if (buffer == yycurrent_buffer())
        yyload_buffer_state();
}

int yyLexer::yyread_stream(char* into, int most)
{
    const yybuffer_state* const buffer = yycurrent_buffer();
    if (!yyin)
        return 0;
    if (buffer->yy_is_interactive) {
        int count = 0;
        int c = 0;
        while (count < most && (c = std::getc(yyin)) != EOF) {
            into[count++] = static_cast<char>(c);
            if (c == '\n')
                break;
        }
        if (c == EOF && std::ferror(yyin))
            yyfatal_error("input in flex scanner failed");
        return count;
    }
    const std::size_t count = std::fread(into, 1, static_cast<std::size_t>(most), yyin);
    if (count == 0 && std::ferror(yyin))
        yyfatal_error("input in flex scanner failed");
    return static_cast<int>(count);
}

// Refills the current buffer from its stream, after the `kept` bytes of the match that go to its front.
yyLexer::enRefill yyLexer::yyrefill_buffer(int kept)
{
    yybuffer_state* const buffer = yycurrent_buffer();
    std::memmove(buffer->yy_ch_buf, yytext_ptr, static_cast<std::size_t>(kept));
    if (buffer->yy_buffer_status == yybuffer_state::kEofPending) {
        yy_n_chars = 0;
    } else {
        const int room = buffer->yy_buf_size - kept - 1;
        if (room <= 0)
            yyfatal_error("input buffer overflow, can't enlarge buffer because scanner uses REJECT");
        yy_n_chars = yyread_stream(buffer->yy_ch_buf + kept, std::min(room, kReadSize));
    }
    enRefill result = Continue;
    if (yy_n_chars == 0) {
        if (kept == 0) {
            result = EndOfFile;
            yyrestart(yyin);
        } else {
            result = LastMatch;
            buffer->yy_buffer_status = yybuffer_state::kEofPending;
        }
    }
    if (yy_n_chars + kept > buffer->yy_buf_size) {
        const int size = yy_n_chars + kept + yy_n_chars / 2;
        auto* const text =
            static_cast<char*>(std::realloc(buffer->yy_ch_buf, static_cast<std::size_t>(size) + 2));
        if (!text)
            yyfatal_error("out of dynamic memory in yyget_next_buffer()");
        buffer->yy_ch_buf = text;
        buffer->yy_buf_size = size;
    }
    yy_n_chars += kept;
    buffer->yy_n_chars = yy_n_chars;
    buffer->yy_ch_buf[yy_n_chars] = 0;
    buffer->yy_ch_buf[yy_n_chars + 1] = 0;
    yytext_ptr = buffer->yy_ch_buf;
    return result;
}
