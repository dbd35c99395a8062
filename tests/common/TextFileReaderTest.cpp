#include "common/core/TextFileReader.h"
#include "tests/common/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

using quillon::readTextFile;

TEST(TextFileReader, ReadsTheWholeFileAsItIs)
{
    TemporaryFolder folder;
    const std::string path = folder.file("colors.conf");
    std::ofstream(path, std::ios::binary) << "Func0 Color R 1 G 2 B 3\r\nsecond line";
    std::string contents;
    std::string error;
    ASSERT_TRUE(readTextFile(path, 1024, contents, error)) << error;
    EXPECT_EQ(contents, "Func0 Color R 1 G 2 B 3\r\nsecond line");
}

TEST(TextFileReader, MissingFileFailsAndLeavesContentsAlone)
{
    TemporaryFolder folder;
    std::string contents = "unchanged";
    std::string error;
    EXPECT_FALSE(readTextFile(folder.file("missing.conf"), 1024, contents, error));
    EXPECT_EQ(contents, "unchanged");
    EXPECT_NE(error.find("missing.conf"), std::string::npos) << error;
}

TEST(TextFileReader, FolderIsNotAFile)
{
    TemporaryFolder folder;
    std::string contents = "unchanged";
    std::string error;
    EXPECT_FALSE(readTextFile(folder.path(), 1024, contents, error));
    EXPECT_EQ(contents, "unchanged");
    EXPECT_NE(error.find("not a regular file"), std::string::npos) << error;
}

TEST(TextFileReader, FileOverTheLimitIsRefused)
{
    TemporaryFolder folder;
    const std::string path = folder.file("big.conf");
    std::ofstream(path) << std::string(2000, 'x');
    std::string contents = "unchanged";
    std::string error;
    EXPECT_FALSE(readTextFile(path, 1999, contents, error));
    EXPECT_EQ(contents, "unchanged");
    EXPECT_NE(error.find("too large"), std::string::npos) << error;
    EXPECT_TRUE(readTextFile(path, 2000, contents, error)) << error;
    EXPECT_EQ(contents.size(), 2000u);
}

TEST(TextFileReader, DeviceFilesAreRefused)
{
    std::string contents;
    std::string error;
    EXPECT_FALSE(readTextFile("/dev/zero", 1024, contents, error));
    EXPECT_TRUE(contents.empty());
}
