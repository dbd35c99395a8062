#pragma once

#include <cstddef>
#include <string>

namespace quillon
{

// Configuration files are a few hundred bytes and their readers only need the first words, so
// no more than this is read from the start of a file, however large the file is.
constexpr size_t kMaxConfigurationFileBytes = 1 << 20;

// Reads the first `maxBytes` bytes of a regular file of any size (all of it when it is
// shorter) into `contents`. Returns false and a one-line reason naming the path in `error`
// when the file cannot be opened or read or is not a regular file (a folder, a device, a
// pipe); `contents` is then unchanged.
bool readTextFile(const std::string& path, size_t maxBytes, std::string& contents,
                  std::string& error);

} // namespace quillon
