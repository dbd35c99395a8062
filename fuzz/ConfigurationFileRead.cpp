#include "fuzz/ConfigurationFileRead.h"

#include "common/core/TextFileReader.h"
#include "fuzz/FuzzCheck.h"
#include "tests/common/TemporaryFolder.h"

#include <fstream>

std::string readThroughFile(const std::string& bytes)
{
    static const TemporaryFolder folder;
    const std::string path = folder.file("configuration.txt");
    {
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file << bytes;
        check(bool(file), "the fuzzer could not write its input to " + path, bytes);
    }
    std::string contents;
    std::string error;
    check(quillon::readTextFile(path, quillon::kMaxConfigurationFileBytes, contents, error),
          "readTextFile failed on a readable file: " + error, bytes);
    check(contents == bytes.substr(0, quillon::kMaxConfigurationFileBytes),
          "readTextFile returned other bytes than the file holds", bytes);
    return contents;
}
