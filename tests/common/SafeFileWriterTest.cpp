#include "common/core/SafeFileWriter.h"
#include "tests/common/FilePermissionsEnforced.h"
#include "tests/common/FileSizeLimit.h"
#include "tests/common/TemporaryFolder.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using quillon::writeFileAtomically;
namespace fs = std::filesystem;

namespace
{

std::string contentsOf(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

size_t entriesIn(const std::string& folder)
{
    return static_cast<size_t>(std::distance(fs::directory_iterator(folder), {}));
}

unsigned permissionsOf(const std::string& path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0 ? info.st_mode & 07777 : 0;
}

// Starts a process that copies everything it reads from the named pipe `fifo` into the file
// `copy`, as `cat fifo > copy` would, and exits with 0 once the writer has closed the pipe.
pid_t startPipeReader(const std::string& fifo, const std::string& copy)
{
    const pid_t child = ::fork();
    if (child != 0) {
        return child;
    }
    const int in = ::open(fifo.c_str(), O_RDONLY);
    const int out = ::open(copy.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    char buffer[4096];
    ssize_t count = -1;
    while (in >= 0 && out >= 0 && (count = ::read(in, buffer, sizeof buffer)) > 0) {
        if (::write(out, buffer, static_cast<size_t>(count)) != count) {
            ::_exit(1);
        }
    }
    ::_exit(count == 0 ? 0 : 1);
}

// Waits up to ten seconds for `child`, then stops it. True when it exited with status 0.
bool exitedCleanly(pid_t child)
{
    for (int tick = 0; tick < 1000; ++tick) {
        int status = 0;
        if (::waitpid(child, &status, WNOHANG) == child) {
            return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    return false;
}

} // namespace

TEST(SafeFileWriter, WritesTheExactBytes)
{
    TemporaryFolder folder;
    const std::string path = folder.file("data.txt");
    const std::string bytes = std::string("line one\nline two\r\n") + '\0' + "end";
    std::string error;
    ASSERT_TRUE(writeFileAtomically(path, bytes, error)) << error;
    EXPECT_EQ(contentsOf(path), bytes);
    EXPECT_EQ(entriesIn(folder.path()), 1u);
}

TEST(SafeFileWriter, ReplacesAnExistingFileAndKeepsItsPermissions)
{
    TemporaryFolder folder;
    const std::string path = folder.file("data.txt");
    std::string error;
    ASSERT_TRUE(writeFileAtomically(path, "old", error)) << error;
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    ASSERT_TRUE(writeFileAtomically(path, "new contents", error)) << error;
    EXPECT_EQ(contentsOf(path), "new contents");
    struct stat info;
    ASSERT_EQ(::stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0640u);
    EXPECT_EQ(entriesIn(folder.path()), 1u);
}

TEST(SafeFileWriter, MissingFolderFailsAndCreatesNothing)
{
    TemporaryFolder folder;
    const std::string path = folder.file("no-such-folder/data.txt");
    std::string error;
    EXPECT_FALSE(writeFileAtomically(path, "x", error));
    EXPECT_NE(error.find(path), std::string::npos) << error;
    EXPECT_NE(error.find("No such file or directory"), std::string::npos) << error;
    EXPECT_EQ(entriesIn(folder.path()), 0u);
}

TEST(SafeFileWriter, FolderThatRefusesNewFilesIsNamedAsTheCause)
{
    // /proc/version exists, but /proc holds no files but its own: creating one there fails
    // with ENOENT, which must not be passed on as "No such file or directory".
    for (const std::string path : {"/proc/version", "/proc/quillon-new.txt"}) {
        std::string error;
        EXPECT_FALSE(writeFileAtomically(path, "x", error)) << path;
        EXPECT_EQ(error, "cannot write \"" + path + "\": its folder does not allow a new file");
    }
    std::ifstream version("/proc/version");
    EXPECT_TRUE(version.good());
}

TEST(SafeFileWriter, PathThatIsAFolderFailsAndLeavesItAlone)
{
    TemporaryFolder folder;
    const std::string path = folder.file("a-folder");
    fs::create_directory(path);
    std::ofstream(folder.file("a-folder/inside.txt")) << "kept";
    std::string error;
    EXPECT_FALSE(writeFileAtomically(path, "x", error));
    EXPECT_NE(error.find(path), std::string::npos) << error;
    EXPECT_TRUE(fs::is_directory(path));
    EXPECT_EQ(contentsOf(folder.file("a-folder/inside.txt")), "kept");
    EXPECT_EQ(entriesIn(folder.path()), 1u) << "no temporary file may be left behind";
}

TEST(SafeFileWriter, UnwritableLocationFails)
{
    std::string error;
    EXPECT_FALSE(writeFileAtomically("/proc/quillon-cannot-write-here.txt", "x", error));
    EXPECT_FALSE(error.empty());
    EXPECT_FALSE(fs::exists("/proc/quillon-cannot-write-here.txt"));
}

TEST(SafeFileWriter, EmptyNameFails)
{
    std::string error;
    EXPECT_FALSE(writeFileAtomically("", "x", error));
    EXPECT_FALSE(error.empty());
}

TEST(SafeFileWriter, NamesWithAnyCharactersWork)
{
    TemporaryFolder folder;
    const std::string path = folder.file("Überprüfung 100% %s %n ✓.txt");
    std::string error;
    ASSERT_TRUE(writeFileAtomically(path, "ok", error)) << error;
    EXPECT_EQ(contentsOf(path), "ok");
}

TEST(SafeFileWriter, AnyNameTheFileSystemAcceptsWorks)
{
    TemporaryFolder folder;
    const std::string path = folder.file(std::string(255, 'n'));
    std::string error;
    ASSERT_TRUE(writeFileAtomically(path, "long name", error)) << error;
    EXPECT_EQ(contentsOf(path), "long name");
    EXPECT_EQ(entriesIn(folder.path()), 1u);
}

TEST(SafeFileWriter, FailureWhileWritingLeavesTheOldFileUntouched)
{
    TemporaryFolder folder;
    const std::string path = folder.file("data.txt");
    std::string error;
    ASSERT_TRUE(writeFileAtomically(path, "old contents", error)) << error;
    bool written = true;
    {
        const FileSizeLimit diskAlmostFull(100);
        written = writeFileAtomically(path, std::string(4096, 'x'), error);
    }
    EXPECT_FALSE(written);
    EXPECT_NE(error.find(path), std::string::npos) << error;
    EXPECT_NE(error.find(std::strerror(EFBIG)), std::string::npos) << error;
    EXPECT_EQ(contentsOf(path), "old contents");
    EXPECT_EQ(entriesIn(folder.path()), 1u) << "no temporary file may be left behind";
}

TEST(SafeFileWriter, ReadOnlyFolderLeavesTheOldFileUntouched)
{
    TemporaryFolder folder;
    const std::string path = folder.file("data.txt");
    std::string error;
    ASSERT_TRUE(writeFileAtomically(path, "old contents", error)) << error;
    ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
    bool written = true;
    {
        const FilePermissionsEnforced asAnyUser;
        ASSERT_EQ(asAnyUser.failure(), "");
        written = writeFileAtomically(path, "new contents", error);
    }
    ::chmod(folder.path().c_str(), 0700);
    EXPECT_FALSE(written);
    EXPECT_NE(error.find(std::strerror(EACCES)), std::string::npos) << error;
    EXPECT_EQ(contentsOf(path), "old contents");
    EXPECT_EQ(entriesIn(folder.path()), 1u);
}

TEST(SafeFileWriter, LinkToAFileInAnotherFolderStaysALinkAndItsTargetIsReplaced)
{
    TemporaryFolder links;
    TemporaryFolder files;
    const std::string target = files.file("target.txt");
    const std::string link = links.file("link.txt");
    std::string error;
    ASSERT_TRUE(writeFileAtomically(target, "old", error)) << error;
    ASSERT_EQ(::chmod(target.c_str(), 0640), 0);
    fs::create_symlink(target, link);
    ASSERT_TRUE(writeFileAtomically(link, "new contents", error)) << error;
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::read_symlink(link), target);
    EXPECT_EQ(contentsOf(target), "new contents");
    EXPECT_EQ(permissionsOf(target), 0640u);
    EXPECT_EQ(entriesIn(links.path()), 1u);
    EXPECT_EQ(entriesIn(files.path()), 1u);
}

TEST(SafeFileWriter, RelativeLinkIsFollowedFromTheLinksOwnFolder)
{
    TemporaryFolder folder;
    fs::create_directory(folder.file("links"));
    fs::create_directory(folder.file("files"));
    const std::string target = folder.file("files/target.txt");
    const std::string link = folder.file("links/link.txt");
    std::string error;
    ASSERT_TRUE(writeFileAtomically(target, "old", error)) << error;
    fs::create_symlink("../files/target.txt", link);
    ASSERT_TRUE(writeFileAtomically(link, "new contents", error)) << error;
    EXPECT_EQ(fs::read_symlink(link), "../files/target.txt");
    EXPECT_EQ(contentsOf(target), "new contents");
    EXPECT_EQ(entriesIn(folder.file("links")), 1u);
    EXPECT_EQ(entriesIn(folder.file("files")), 1u);
    EXPECT_EQ(entriesIn(folder.path()), 2u);
}

TEST(SafeFileWriter, ChainOfLinksEndsAtTheFileThatIsReplaced)
{
    TemporaryFolder first;
    TemporaryFolder second;
    const std::string target = second.file("target.txt");
    const std::string middle = second.file("middle.txt");
    const std::string link = first.file("link.txt");
    std::string error;
    ASSERT_TRUE(writeFileAtomically(target, "old", error)) << error;
    fs::create_symlink("target.txt", middle);
    fs::create_symlink(middle, link);
    ASSERT_TRUE(writeFileAtomically(link, "new contents", error)) << error;
    EXPECT_EQ(fs::read_symlink(link), middle);
    EXPECT_EQ(fs::read_symlink(middle), "target.txt");
    EXPECT_EQ(contentsOf(target), "new contents");
    EXPECT_EQ(entriesIn(first.path()), 1u);
    EXPECT_EQ(entriesIn(second.path()), 2u);
}

TEST(SafeFileWriter, DanglingLinkCreatesItsTarget)
{
    TemporaryFolder links;
    TemporaryFolder files;
    const std::string target = files.file("new.txt");
    const std::string link = links.file("link.txt");
    fs::create_symlink(target, link);
    std::string error;
    ASSERT_TRUE(writeFileAtomically(link, "created", error)) << error;
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(contentsOf(target), "created");
    EXPECT_EQ(entriesIn(links.path()), 1u);
    EXPECT_EQ(entriesIn(files.path()), 1u);
}

TEST(SafeFileWriter, LinkLoopFailsAndCreatesNothing)
{
    TemporaryFolder folder;
    const std::string first = folder.file("first");
    const std::string second = folder.file("second");
    fs::create_symlink("second", first);
    fs::create_symlink("first", second);
    std::string error;
    EXPECT_FALSE(writeFileAtomically(first, "x", error));
    EXPECT_NE(error.find(first), std::string::npos) << error;
    EXPECT_NE(error.find(std::strerror(ELOOP)), std::string::npos) << error;
    EXPECT_TRUE(fs::is_symlink(first));
    EXPECT_TRUE(fs::is_symlink(second));
    EXPECT_EQ(entriesIn(folder.path()), 2u);
}

TEST(SafeFileWriter, NamedPipeIsWrittenDirectlyToItsReader)
{
    TemporaryFolder folder;
    const std::string fifo = folder.file("pipe");
    const std::string copy = folder.file("copy");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    std::string bytes;
    for (int i = 0; i < 200000; ++i) {
        bytes += static_cast<char>(i % 251);
    }
    const pid_t reader = startPipeReader(fifo, copy);
    ASSERT_GT(reader, 0);
    std::string error;
    EXPECT_TRUE(writeFileAtomically(fifo, bytes, error)) << error;
    EXPECT_TRUE(exitedCleanly(reader));
    EXPECT_EQ(contentsOf(copy), bytes);
    struct stat info;
    ASSERT_EQ(::lstat(fifo.c_str(), &info), 0);
    EXPECT_TRUE(S_ISFIFO(info.st_mode));
    EXPECT_EQ(entriesIn(folder.path()), 2u);
}

TEST(SafeFileWriter, DeviceIsWrittenDirectly)
{
    std::string error;
    EXPECT_TRUE(writeFileAtomically("/dev/null", "discarded", error)) << error;
    struct stat info;
    ASSERT_EQ(::lstat("/dev/null", &info), 0);
    EXPECT_TRUE(S_ISCHR(info.st_mode));
    for (const auto& entry : fs::directory_iterator("/dev")) {
        EXPECT_NE(entry.path().filename().string().rfind(".quillon-", 0), 0u) << entry.path();
    }
}
