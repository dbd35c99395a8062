#include "tests/common/FilePermissionsEnforced.h"

#include <cerrno>
#include <cstring>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

// The capabilities that let a process ignore file permission bits; all lie in the first of
// the two 32-bit words of a capability set.
constexpr unsigned kOverrides =
    (1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH) | (1u << CAP_FOWNER);
constexpr int kOverrideNumbers[] = {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH, CAP_FOWNER};

struct CapabilitySets {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3] = {};
};

// The C library has no wrapper for these two system calls.
bool readCapabilities(CapabilitySets& sets)
{
    return ::syscall(SYS_capget, &sets.header, sets.data) == 0;
}

bool writeCapabilities(CapabilitySets& sets)
{
    return ::syscall(SYS_capset, &sets.header, sets.data) == 0;
}

} // namespace

FilePermissionsEnforced::FilePermissionsEnforced()
{
    CapabilitySets sets;
    if (!readCapabilities(sets)) {
        reason = std::string("capget: ") + std::strerror(errno);
        return;
    }
    savedEffective[0] = sets.data[0].effective;
    savedEffective[1] = sets.data[1].effective;
    sets.data[0].effective &= ~kOverrides;
    if (!writeCapabilities(sets)) {
        reason = std::string("capset: ") + std::strerror(errno);
        return;
    }
    restore = true;
}

FilePermissionsEnforced::~FilePermissionsEnforced()
{
    CapabilitySets sets;
    if (restore && readCapabilities(sets)) {
        sets.data[0].effective = savedEffective[0];
        sets.data[1].effective = savedEffective[1];
        writeCapabilities(sets);
    }
}

bool FilePermissionsEnforced::giveUpForGood()
{
    // Out of the bounding set first: exec() gives root every capability in it. Dropping needs
    // CAP_SETPCAP, which only root has; for anyone else exec() grants nothing anyway.
    for (const int capability : kOverrideNumbers) {
        if (::prctl(PR_CAPBSET_DROP, capability, 0, 0, 0) != 0 && ::geteuid() == 0) {
            return false;
        }
    }
    CapabilitySets sets;
    if (!readCapabilities(sets)) {
        return false;
    }
    sets.data[0].effective &= ~kOverrides;
    sets.data[0].permitted &= ~kOverrides;
    sets.data[0].inheritable &= ~kOverrides;
    return writeCapabilities(sets);
}
