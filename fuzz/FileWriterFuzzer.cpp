// writeFileAtomically, the one routine every save goes through: a whole file or nothing. The
// first byte picks the situation (bit 0: a file is already there; bit 1: the path is a
// symbolic link to the name), then comes the file name (up to a NUL; '/' becomes '_', so every
// write stays in the fuzzer's own temporary folder), then the contents.
#include "common/core/SafeFileWriter.h"
#include "fuzz/FuzzCheck.h"
#include "tests/common/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sys/stat.h>

namespace
{

namespace fs = std::filesystem;

const std::string kLinkName = "link";
const std::string kOldContents = "the file as it was\n";
constexpr fs::perms kOldPermissions =
    fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;

struct WriteCase {
    bool fileExists = false;
    bool throughLink = false;
    std::string name;
    std::string contents;
};

WriteCase writeCase(const std::string& input)
{
    WriteCase made;
    made.fileExists = (input[0] & 1) != 0;
    const size_t end = input.find('\0', 1);
    made.name = input.substr(1, end == std::string::npos ? std::string::npos : end - 1);
    for (char& c : made.name) {
        if (c == '/') {
            c = '_';
        }
    }
    if (made.name.empty() || made.name == "." || made.name == "..") {
        made.name = "file";
    }
    made.throughLink = (input[0] & 2) != 0 && made.name != kLinkName;
    made.contents = end == std::string::npos ? std::string() : input.substr(end + 1);
    return made;
}

std::set<std::string> entriesOf(const std::string& folder)
{
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

std::string contentsOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

void prepare(const WriteCase& write, const TemporaryFolder& folder, const std::string& input)
{
    if (write.fileExists) {
        std::ofstream file(folder.file(write.name), std::ios::binary);
        file << kOldContents;
        // A name too long for the file system cannot exist beforehand; that case stays a
        // write to a new name.
        if (file) {
            file.close();
            fs::permissions(folder.file(write.name), kOldPermissions);
        }
    }
    if (write.throughLink) {
        std::error_code failed;
        fs::create_symlink(write.name, folder.file(kLinkName), failed);
        check(!failed, "the fuzzer could not make its symbolic link", input);
    }
}

void checkWritten(const WriteCase& write, const TemporaryFolder& folder,
                  const std::set<std::string>& before, const std::string& input)
{
    std::set<std::string> expected = before;
    expected.insert(write.name);
    check(entriesOf(folder.path()) == expected,
          "the folder holds other files than the written one (a temporary file left behind?)",
          input);
    check(contentsOf(folder.file(write.name)) == write.contents,
          "the written file does not hold exactly the contents", input);
    if (write.throughLink) {
        check(fs::is_symlink(folder.file(kLinkName)), "the symbolic link is no longer a link",
              input);
    }
    if (before.count(write.name) != 0) {
        const fs::perms now = fs::status(folder.file(write.name)).permissions();
        check((now & fs::perms::all) == kOldPermissions,
              "the replaced file lost its permission bits", input);
    }
}

void checkUntouched(const WriteCase& write, const TemporaryFolder& folder,
                    const std::set<std::string>& before, const std::string& error,
                    const std::string& input)
{
    check(!error.empty(), "a failed write gives no reason", input);
    check(entriesOf(folder.path()) == before, "a failed write changed the folder", input);
    if (before.count(write.name) != 0) {
        check(contentsOf(folder.file(write.name)) == kOldContents,
              "a failed write changed the existing file", input);
    }
}

void emptyFolder(const TemporaryFolder& folder)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(folder.path())) {
        fs::remove_all(entry.path());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const TemporaryFolder folder;
    if (size == 0) {
        return 0;
    }
    const std::string input = inputText(data, size);
    const WriteCase write = writeCase(input);
    prepare(write, folder, input);
    const std::set<std::string> before = entriesOf(folder.path());
    const std::string path = folder.file(write.throughLink ? kLinkName : write.name);
    std::string error;
    if (quillon::writeFileAtomically(path, write.contents, error)) {
        checkWritten(write, folder, before, input);
    } else {
        checkUntouched(write, folder, before, error, input);
    }
    emptyFolder(folder);
    return 0;
}
