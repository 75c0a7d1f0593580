// Progress 4GL: takes the include files in. A reference reads "{file.i arguments}".
#pragma once

#include "Preparation/PreparedText.h"

#include <cstddef>
#include <string_view>

struct SProgressOptions
{
    // The source file. A file that isn't found by its own name is looked for in this one's directory, by the
    // last part of its name.
    Uve::U8CString filePath;
    // How many bytes longer than the source the text may become.
    std::size_t expansionLimit = std::size_t{64} << 20;
    Uve::U8CString includeRoot{}; // see CIncludeRoot
    // Folders where the faithful form looks for files, separated by ",", ";" or ":".
    Uve::U8CString propath{};
};

// In rounds: each takes the first reference, fills its arguments into the file's text ("&name=value" wherever
// "{&name}" stands, a plain value into the first "{&...}" that is left), and puts that in the place of every
// reference to the same file. A file that is missing or can't be read has no text. Values and files are
// format strings of the regular expression library: "$" and backslash sequences have their meaning there.
// A reference to a file that is open where it stands, the source among them, stays in the text.
// Ends when no other reference is left; with a trace line after 1,000 rounds, and before the round that would
// exceed the limit, leave some million pieces of text, or spend minutes on format strings.
// Notes tell of files that aren't there, of references that stay, and of the bounds; their lines are those of
// the source, where an included file names the file those of the reference that brought it in.
SPreparedText FormatProgress(std::string_view source, const SProgressOptions& options);

// The same by the rules of the language. Each reference has its own arguments: "{1}" is a value by its place,
// empty if there is none, "{&name}" one by its name in any case of letters, "{0}" the file's name, "{*}" and
// "{&*}" are all; a "{&name}" without an argument stays. Values and files are taken as they are. In comments,
// and after "~", braces mean nothing. A file is looked for by its name as it is written, with "/" for "\\",
// in the folders of `propath`, and in the directory of the source, there by the last part of its name too. A
// name that doesn't end in ".i" is one only if there is such a file; otherwise the braces stay. After the
// bound of the expansion the rest of the source comes as it is.
SPreparedText FormatProgressFaithfully(std::string_view source, const SProgressOptions& options);
