#include "common/core/SafeFileWriter.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon
{
namespace
{

std::string describeFailure(const std::string& path, int errorNumber)
{
    return "cannot write \"" + path + "\": " + std::strerror(errorNumber);
}

std::string temporarySibling(const std::string& path)
{
    static std::atomic<unsigned> counter{0};
    return path + ".tmp-" + std::to_string(getpid()) + "-" + std::to_string(counter++);
}

bool writeAll(int fd, const std::string& contents)
{
    const char* data = contents.data();
    size_t remaining = contents.size();
    while (remaining > 0) {
        const ssize_t written = ::write(fd, data, remaining);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        data += written;
        remaining -= static_cast<size_t>(written);
    }
    return true;
}

void keepExistingPermissions(int fd, const std::string& path)
{
    struct stat existing;
    if (::stat(path.c_str(), &existing) == 0 && S_ISREG(existing.st_mode)) {
        ::fchmod(fd, existing.st_mode & 07777);
    }
}

} // namespace

bool writeFileAtomically(const std::string& path, const std::string& contents, std::string& error)
{
    if (path.empty()) {
        error = "cannot write a file without a name";
        return false;
    }
    const std::string temporary = temporarySibling(path);
    const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0) {
        error = describeFailure(path, errno);
        return false;
    }
    keepExistingPermissions(fd, path);
    bool ok = writeAll(fd, contents) && ::fsync(fd) == 0;
    int failure = errno;
    if (::close(fd) != 0 && ok) {
        ok = false;
        failure = errno;
    }
    if (ok && ::rename(temporary.c_str(), path.c_str()) != 0) {
        ok = false;
        failure = errno;
    }
    if (!ok) {
        ::unlink(temporary.c_str());
        error = describeFailure(path, failure);
    }
    return ok;
}

} // namespace quillon
