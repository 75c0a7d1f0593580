// After the generated scanner.
int g_nativeBufferSize = 16384;
const char* g_nativeBase;

void NativeStartScan()
{
    const int size = static_cast<int>(g_native.text->size());
    g_nativeBufferSize = size + 2;
    yylex_destroy();
    const YY_BUFFER_STATE buffer = yy_scan_bytes(g_native.text->data(), size);
    g_nativeBase = buffer->yy_ch_buf;
    yylineno = 1;
    m_Extension.m_nStartState = SS_GENERAL;
    BEGIN SS_GENERAL;
}

void NativeEndScan()
{
    yylex_destroy();
}
