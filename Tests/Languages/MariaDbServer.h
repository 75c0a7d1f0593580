// A MariaDB server of one's own, with nothing in it but the database kMariaDbDatabase, on a socket in a temporary folder. It
// is there for questions: whoever connects is root, and nobody may rely on what another one has stored.
// A process beside this one watches over both: it ends the server and removes the folder, whichever way this process ends.
#pragma once

#include <string>
#include <sys/types.h>

class CMariaDbServer
{
public:
    // Returns: the name of the program that isn't installed; empty if there is one.
    static std::string GetMissing();

    // Waits until the server answers.
    // Throws: std::runtime_error with the server's log if it doesn't.
    CMariaDbServer();
    CMariaDbServer(const CMariaDbServer&) = delete;
    CMariaDbServer& operator=(const CMariaDbServer&) = delete;
    // In a fork of the process that made it, it leaves the server alone.
    ~CMariaDbServer();

    const std::string& GetFolder() const { return m_Folder; }
    std::string GetSocket() const { return m_Folder + "/socket"; }

private:
    void WaitForServer(int lifeline) const;
    void Stop();

    std::string m_Folder;
    pid_t m_Owner = -1;
    pid_t m_Guard = -1;
};

inline constexpr const char* kMariaDbDatabase = "uv_scratch";
