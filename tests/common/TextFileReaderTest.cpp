#include "common/core/TextFileReader.h"
#include "tests/common/TemporaryFolder.h"

#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

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

TEST(TextFileReader, FileOverTheLimitIsReadUpToTheLimit)
{
    TemporaryFolder folder;
    const std::string path = folder.file("big.conf");
    std::ofstream(path) << std::string(1999, 'x') << 'y';
    std::string contents;
    std::string error;
    ASSERT_TRUE(readTextFile(path, 1999, contents, error)) << error;
    EXPECT_EQ(contents, std::string(1999, 'x'));
    ASSERT_TRUE(readTextFile(path, 2000, contents, error)) << error;
    EXPECT_EQ(contents, std::string(1999, 'x') + 'y');
    ASSERT_TRUE(readTextFile(path, 5000, contents, error)) << error;
    EXPECT_EQ(contents.size(), 2000u);
}

TEST(TextFileReader, HugeConfigurationFileGivesItsBeginning)
{
    TemporaryFolder folder;
    const std::string path = folder.file("huge.conf");
    const std::string firstLine = "Func0 Color R 10 G 20 B 30\n";
    std::string text = firstLine;
    while (text.size() < 3u << 20) {
        text += "Func1 Color R " + std::to_string(text.size() % 256) + " G 0 B 0\n";
    }
    std::ofstream(path, std::ios::binary) << text;
    std::string contents;
    std::string error;
    ASSERT_TRUE(readTextFile(path, quillon::kMaxConfigurationFileBytes, contents, error)) << error;
    EXPECT_EQ(contents, text.substr(0, quillon::kMaxConfigurationFileBytes));
    EXPECT_EQ(contents.compare(0, firstLine.size(), firstLine), 0);
}

TEST(TextFileReader, NamedPipeIsRefusedWithoutWaitingForAWriter)
{
    TemporaryFolder folder;
    const std::string fifo = folder.file("pipe");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    // Should the reader wait for a writer, this one comes after two seconds and ends the wait.
    std::atomic<bool> done{false};
    std::thread lateWriter([&] {
        for (int tick = 0; tick < 200 && !done; ++tick) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        if (!done) {
            ::close(::open(fifo.c_str(), O_WRONLY | O_NONBLOCK));
        }
    });
    const auto start = std::chrono::steady_clock::now();
    std::string contents = "unchanged";
    std::string error;
    const bool read = readTextFile(fifo, 1024, contents, error);
    const auto waited = std::chrono::steady_clock::now() - start;
    done = true;
    lateWriter.join();
    EXPECT_FALSE(read);
    EXPECT_LT(waited, std::chrono::seconds(1));
    EXPECT_EQ(contents, "unchanged");
    EXPECT_NE(error.find("not a regular file"), std::string::npos) << error;
}

TEST(TextFileReader, DeviceFilesAreRefused)
{
    std::string contents;
    std::string error;
    EXPECT_FALSE(readTextFile("/dev/zero", 1024, contents, error));
    EXPECT_TRUE(contents.empty());
}
