// What servers need that a test starts for itself: their programs, a folder, and settings under which they start quickly.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Where packages put servers, in the form of PATH.
inline constexpr std::string_view kServerFolders =
    "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin";

// Looked up along PATH, where packages put servers, and in `moreFolders`, which has the form of PATH.
// Returns: the path; empty if there is no such program.
std::string FindServerProgram(std::string_view name, const std::string& moreFolders = {});

// What the name of a server's folder begins with. It is in memory if there is room: MariaDB writes files for each table, and
// waits for the disk in spite of all options.
std::string ServerFolderPrefix();

// For a MariaDB whose data are nobody's after the test: `folder` has a folder "data", and gets the socket "socket" and
// the file "pid". Without tables of rights there is nothing to install.
std::vector<std::string> MariaDbArguments(const std::string& folder);
