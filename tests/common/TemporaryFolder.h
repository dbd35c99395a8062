#pragma once

#include <string>

// A fresh folder under the system's temporary directory, removed with everything in it when
// the object goes.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return folder; }
    std::string file(const std::string& name) const { return folder + "/" + name; }

private:
    std::string folder;
};
