// The form of a grammar's text files. Their readers take any text and pass over what they can't use; a
// language loads only if nothing is passed over.
#pragma once

#include <string>

enum class enMachine
{
    Scanner,
    Parser
};

// An action text of which each line is one record, by a number of its own, of operations that the machine
// executes, each with all its operands.
// Throws: Uve::U8CString with the line for the log, which names actions.dat in `directory` and the line.
void CheckActionText(const std::string& directory, const std::string& text, enMachine machine);

// A defines text of which each line is a name and a number.
// Throws: Uve::U8CString with the line for the log, which names `file` in `directory` and the line.
void CheckDefinesText(const std::string& directory, const char* file, const std::string& text);
