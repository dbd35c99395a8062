#pragma once

#include <string>

namespace quillon
{

// Writes `contents` where `path` points, as a whole file or not at all.
//
// Symbolic links at the end of the path (also chains of them, and relative ones, which count
// from the link's own folder) are followed; the link stays a link and its final target is
// written. A dangling link creates its target.
//
// A regular file, or a name that does not exist yet, is replaced atomically: the bytes go to a
// new temporary file with a short name (".quillon-" and eight random letters or digits) in the
// target's own folder, which is flushed to disk and then renamed over the target. A failure at
// any point (no such folder, a folder that takes no new file, no permission, disk full) leaves
// whatever was there untouched and no temporary file behind. A replaced file keeps its
// permission bits.
//
// A named pipe, a device or another special file cannot be replaced and is written directly.
// A folder is never written.
//
// Returns true on success. On failure returns false and puts a one-line reason, naming
// `path` as given, into `error`.
bool writeFileAtomically(const std::string& path, const std::string& contents, std::string& error);

} // namespace quillon
