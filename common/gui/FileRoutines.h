#pragma once

#include <QString>
#include <string>

namespace quillon
{

// The file routines of the tabs, in the form the main window's file actions take: each returns
// why it failed (and then changed nothing), or an empty text.

// Writes `contents` as the whole file at `path`, or nothing.
QString writeWholeFile(const QString& path, const std::string& contents);

// Reads the beginning of a configuration file into `text` (left alone on failure).
QString readConfigurationFile(const QString& path, std::string& text);

} // namespace quillon
