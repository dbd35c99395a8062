#pragma once

#include <string>

// The superuser passes every file permission check, so a folder without write permission
// stops everyone but root, and a test of "a read-only folder" proves nothing when it runs as
// root (as CI does). While an object of this class lives, the calling thread gives up the
// capabilities that override file permissions (CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH,
// CAP_FOWNER) from its effective set, so the folder's permissions hold for root as for any
// other user; the destructor takes them back. For other users, who lack them, nothing changes.
class FilePermissionsEnforced
{
public:
    FilePermissionsEnforced();
    ~FilePermissionsEnforced();
    FilePermissionsEnforced(const FilePermissionsEnforced&) = delete;
    FilePermissionsEnforced& operator=(const FilePermissionsEnforced&) = delete;

    // Empty when the capabilities are given up, otherwise why they could not be.
    const std::string& failure() const { return reason; }

    // For a child process between fork() and exec(): gives the same capabilities up for good,
    // also for the program that exec() starts (which as root would otherwise get them back).
    // Uses only calls that are safe there. Returns false with errno set on failure.
    static bool giveUpForGood();

private:
    std::string reason;
    bool restore = false;
    unsigned savedEffective[2] = {0, 0};
};
