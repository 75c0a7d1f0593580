// Pages with server-side script: takes the include files in and marks the blocks of VBScript.
//
//     <% x = 1 %>    =>    <%
//                          'ORVANTA_VB_CODEBLOCK_0
//                           x = 1 'ORVANTA_VB_CODEBLOCK_0
//                          %>
#pragma once

#include "Preparation/PreparedText.h"

#include <cstddef>
#include <string_view>
#include <vector>

struct SAspOptions
{
    Uve::U8CString filePath; // the page; include files are looked for in its directory
    // How many bytes longer than the page it may become by its include files.
    std::size_t expansionLimit = std::size_t{64} << 20;
    Uve::U8CString includeRoot{}; // see CIncludeRoot
};

struct SAspBlock
{
    Uve::U8CString marker; // names the option that holds the block
    Uve::U8CString text;
};

struct SAspPage
{
    SPreparedText prepared;
    std::vector<SAspBlock> blocks; // in the order of their numbers: "<% %>" first, then script elements
    Uve::U8CString script;         // all blocks, each between two markers
    std::vector<Uve::U8CString> messages; // for the log, as they are to be written
};

// Include files lose their line feeds, and their own includes stay as they are. One that is missing or can't
// be read gives a message and a note, and the directive disappears; so does one that would exceed the limit.
SAspPage FormatAsp(std::string_view source, const SAspOptions& options);
