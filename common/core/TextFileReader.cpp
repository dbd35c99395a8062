#include "common/core/TextFileReader.h"

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
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
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
    for (;;) {
        const ssize_t count = ::read(fd, chunk, sizeof chunk);
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
        if (buffer.size() + static_cast<size_t>(count) > maxBytes) {
            error = describeFailure(path, "the file is too large");
            return false;
        }
        buffer.append(chunk, static_cast<size_t>(count));
    }
    contents.swap(buffer);
    return true;
}

} // namespace quillon
