#pragma once

#include <cstddef>
#include <string>

namespace quillon
{

// Configuration files are a few hundred bytes; anything far larger is not one of ours.
constexpr size_t kMaxConfigurationFileBytes = 1 << 20;

// Reads a whole regular file of at most `maxBytes` bytes into `contents`. Returns false and a
// one-line reason naming the path in `error` when the file cannot be opened or read, is not
// a regular file, or is larger than the limit; `contents` is then unchanged.
bool readTextFile(const std::string& path, size_t maxBytes, std::string& contents,
                  std::string& error);

} // namespace quillon
