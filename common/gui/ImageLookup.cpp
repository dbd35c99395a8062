#include "common/gui/ImageLookup.h"

#include <QDir>
#include <QFileInfo>

namespace quillon
{

QString imagePath(const QString& fileName)
{
    const QFileInfo local(QDir::current(), fileName);
    if (local.isFile()) {
        return local.absoluteFilePath();
    }
    return QStringLiteral(":/images/") + fileName;
}

QImage loadImage(const QString& fileName)
{
    return QImage(imagePath(fileName));
}

} // namespace quillon
