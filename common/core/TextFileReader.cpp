#include "common/core/TextFileReader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon
{
namespace
{

std::string describeFailure(const std::string& path, const std::string& reason)
{
    return "cannot read \"" + path + "\": " + reason;
}

// Closes the descriptor on every way out of readTextFile.
class DescriptorGuard
{
public:
    explicit DescriptorGuard(int fd) : fd(fd) {}
    ~DescriptorGuard() { ::close(fd); }
    DescriptorGuard(const DescriptorGuard&) = delete;
    DescriptorGuard& operator=(const DescriptorGuard&) = delete;

private:
    int fd;
};

} // namespace

bool readTextFile(const std::string& path, size_t maxBytes, std::string& contents,
                  std::string& error)
{
    // Without O_NONBLOCK, opening a named pipe would wait for a writer that may never come.
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        error = describeFailure(path, std::strerror(errno));
        return false;
    }
    DescriptorGuard guard(fd);
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        error = describeFailure(path, "not a regular file");
        return false;
    }
    std::string buffer;
    char chunk[4096];
    while (buffer.size() < maxBytes) {
        const ssize_t count = ::read(fd, chunk, std::min(sizeof chunk, maxBytes - buffer.size()));
        if (count < 0) {
            if (errno == EINTR) {
                continue;
            }
            error = describeFailure(path, std::strerror(errno));
            return false;
        }
        if (count == 0) {
            break;
        }
        buffer.append(chunk, static_cast<size_t>(count));
    }
    contents.swap(buffer);
    return true;
}

} // namespace quillon
