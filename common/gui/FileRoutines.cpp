#include "common/gui/FileRoutines.h"

#include "common/core/SafeFileWriter.h"
#include "common/core/TextFileReader.h"

namespace quillon
{

QString writeWholeFile(const QString& path, const std::string& contents)
{
    std::string error;
    return writeFileAtomically(path.toStdString(), contents, error) ? QString()
                                                                    : QString::fromStdString(error);
}

QString readConfigurationFile(const QString& path, std::string& text)
{
    std::string error;
    return readTextFile(path.toStdString(), kMaxConfigurationFileBytes, text, error)
               ? QString()
               : QString::fromStdString(error);
}

} // namespace quillon
