#include "common/core/SafeFileWriter.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon
{
namespace
{

// The kernel's own limit on symbolic links followed while resolving one path.
constexpr int kMaxLinkHops = 40;
// A clash of two random names is already unlikely; this many in a row means something is wrong.
constexpr int kMaxTemporaryNameAttempts = 100;
constexpr int kTemporaryNameRandomLength = 8;

// Where the bytes go once the links are followed, and what is there now.
struct WriteTarget {
    std::string path;
    bool exists = false;
    struct stat info = {};
};

// Not an errno: the target's folder exists but refuses to hold a new file (as /proc does,
// which answers "No such file or directory" about a folder that is plainly there).
constexpr int kFolderRefusesNewFile = -1;

std::string describeFailure(const std::string& path, int errorNumber)
{
    const std::string reason = errorNumber == kFolderRefusesNewFile
                                   ? "its folder does not allow a new file"
                                   : std::strerror(errorNumber);
    return "cannot write \"" + path + "\": " + reason;
}

bool isAbsolute(const std::string& path)
{
    return !path.empty() && path[0] == '/';
}

// The folder of `path` with its trailing '/', or "" for a bare name.
std::string folderPrefix(const std::string& path)
{
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// The text stored in the symbolic link at `path`. Returns false with errno set on failure.
bool readLinkText(const std::string& path, std::string& text)
{
    std::string buffer(PATH_MAX, '\0');
    const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
    if (length < 0) {
        return false;
    }
    if (static_cast<size_t>(length) == buffer.size()) {
        errno = ENAMETOOLONG;
        return false;
    }
    text.assign(buffer, 0, static_cast<size_t>(length));
    return true;
}

// Follows the symbolic links at the end of `path` as opening it would, except that a missing
// name ends the walk instead of failing: a dangling link names the file to create. realpath()
// cannot be used because it fails for exactly that case.
bool resolveTarget(const std::string& path, WriteTarget& target, int& failure)
{
    target.path = path;
    for (int hops = 0;; ++hops) {
        if (::lstat(target.path.c_str(), &target.info) != 0) {
            failure = errno;
            target.exists = false;
            return failure == ENOENT;
        }
        if (!S_ISLNK(target.info.st_mode)) {
            target.exists = true;
            return true;
        }
        if (hops == kMaxLinkHops) {
            failure = ELOOP;
            return false;
        }
        std::string linkText;
        if (!readLinkText(target.path, linkText)) {
            failure = errno;
            return false;
        }
        target.path = isAbsolute(linkText) ? linkText : folderPrefix(target.path) + linkText;
    }
}

std::string randomTemporaryName()
{
    static const char kAlphabet[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    thread_local std::mt19937 generator{std::random_device{}()};
    std::uniform_int_distribution<size_t> pick(0, sizeof kAlphabet - 2);
    std::string name = ".quillon-";
    for (int i = 0; i < kTemporaryNameRandomLength; ++i) {
        name += kAlphabet[pick(generator)];
    }
    return name;
}

// Creates a new empty file with a short random name in the folder `folder` (given as a
// prefix), trying another name when one is taken. Returns the descriptor, or -1 with errno set.
int createTemporaryFile(const std::string& folder, std::string& temporary)
{
    for (int attempt = 0; attempt < kMaxTemporaryNameAttempts; ++attempt) {
        temporary = folder + randomTemporaryName();
        const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST) {
            return fd;
        }
    }
    return -1;
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

// Closes `fd` after the steps that gave `ok`; records the first failure, theirs or the close's.
bool closeAfter(int fd, bool ok, int& failure)
{
    if (!ok) {
        failure = errno;
    }
    if (::close(fd) != 0 && ok) {
        failure = errno;
        return false;
    }
    return ok;
}

bool keepPermissions(int fd, const WriteTarget& target)
{
    return !target.exists || ::fchmod(fd, target.info.st_mode & 07777) == 0;
}

// Whether `folder` (given as a prefix, "" for the working folder) is an existing folder.
bool isFolder(const std::string& folder)
{
    struct stat info = {};
    return ::stat(folder.empty() ? "." : folder.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool replaceAtomically(const WriteTarget& target, const std::string& contents, int& failure)
{
    std::string temporary;
    const std::string folder = folderPrefix(target.path);
    const int fd = createTemporaryFile(folder, temporary);
    if (fd < 0) {
        failure = errno == ENOENT && isFolder(folder) ? kFolderRefusesNewFile : errno;
        return false;
    }
    const bool written = keepPermissions(fd, target) && writeAll(fd, contents) && ::fsync(fd) == 0;
    bool ok = closeAfter(fd, written, failure);
    if (ok && ::rename(temporary.c_str(), target.path.c_str()) != 0) {
        failure = errno;
        ok = false;
    }
    if (!ok) {
        ::unlink(temporary.c_str());
    }
    return ok;
}

// A pipe or a device cannot be replaced by another file; its reader gets the bytes directly.
bool writeInPlace(const WriteTarget& target, const std::string& contents, int& failure)
{
    const int fd = ::open(target.path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        failure = errno;
        return false;
    }
    return closeAfter(fd, writeAll(fd, contents), failure);
}

bool writeTo(const WriteTarget& target, const std::string& contents, int& failure)
{
    if (!target.exists || S_ISREG(target.info.st_mode)) {
        return replaceAtomically(target, contents, failure);
    }
    if (S_ISDIR(target.info.st_mode)) {
        failure = EISDIR;
        return false;
    }
    return writeInPlace(target, contents, failure);
}

} // namespace

bool writeFileAtomically(const std::string& path, const std::string& contents, std::string& error)
{
    if (path.empty()) {
        error = "cannot write a file without a name";
        return false;
    }
    WriteTarget target;
    int failure = 0;
    if (!resolveTarget(path, target, failure) || !writeTo(target, contents, failure)) {
        error = describeFailure(path, failure);
        return false;
    }
    return true;
}

} // namespace quillon
