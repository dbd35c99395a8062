#include "common/core/SafeFileWriter.h"
#include "tests/common/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>

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
