#include "Tests/Support/ServerSetup.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

std::string FindServerProgram(std::string_view name, const std::string& moreFolders)
{
    const char* const path = std::getenv("PATH");
    std::istringstream folders(std::string(path ? path : "") + ':' + std::string(kServerFolders) + ':' +
                               moreFolders);
    for (std::string folder; std::getline(folders, folder, ':');) {
        const std::string candidate = folder + '/' + std::string(name);
        if (!folder.empty() && access(candidate.c_str(), X_OK) == 0)
            return candidate;
    }
    return {};
}

std::string ServerFolderPrefix()
{
    constexpr std::uintmax_t kWantedBytes = 256u << 20;
    const char* const memory = "/dev/shm";
    std::error_code error;
    const bool isRoomy =
        access(memory, W_OK | X_OK) == 0 && fs::space(memory, error).available >= kWantedBytes;
    return (isRoomy && !error ? fs::path(memory) : fs::temp_directory_path()) / "uvlive-";
}

std::vector<std::string> MariaDbArguments(const std::string& folder)
{
    return {"--no-defaults",
            "--datadir=" + folder + "/data",
            "--tmpdir=" + folder + "/data",
            "--socket=" + folder + "/socket",
            "--pid-file=" + folder + "/pid",
            "--skip-networking",
            "--skip-grant-tables",
            "--character-set-server=utf8mb4",
            "--performance-schema=OFF",
            "--debug-no-sync",
            "--innodb-flush-method=nosync",
            "--innodb-doublewrite=OFF",
            "--innodb-flush-log-at-trx-commit=0",
            "--innodb-buffer-pool-size=32M",
            "--innodb-log-file-size=16M",
            "--innodb-file-per-table=OFF",
            "--innodb-fast-shutdown=2"};
}
