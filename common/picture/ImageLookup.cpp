#include "common/picture/ImageLookup.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

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
    // Several windows show the same formula images; each file is decoded once per run (the
    // copies share the decoded pixels), which keeps repeated decoding out of the start-up time.
    static QHash<QString, QImage> decoded;
    const QString path = imagePath(fileName);
    const auto found = decoded.constFind(path);
    if (found != decoded.constEnd()) {
        return *found;
    }
    QImage image(path);
    decoded.insert(path, image);
    return image;
}

} // namespace quillon
