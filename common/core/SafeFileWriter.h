#pragma once

#include <string>

namespace quillon
{

// Writes a whole file or nothing. The bytes go to a new temporary file in the target's folder,
// which is flushed to disk and then renamed over the target, so a failure at any point (no
// such folder, no permission, disk full, the target is a folder) leaves whatever was at the
// path untouched and no stray file behind. An existing target keeps its permission bits.
//
// Returns true on success. On failure returns false and puts a one-line reason, naming the
// path, into `error`.
bool writeFileAtomically(const std::string& path, const std::string& contents, std::string& error);

} // namespace quillon
