#include "app/NameOnlyFileIconProvider.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QIcon>

// Matching by extension only never opens the file.
QMimeType NameOnlyFileIconProvider::mimeTypeOfName(const QFileInfo& info) const
{
    return mimeDatabase.mimeTypeForFile(info.fileName(), QMimeDatabase::MatchExtension);
}

QIcon NameOnlyFileIconProvider::icon(const QFileInfo& info) const
{
    if (info.isRoot()) {
        return icon(QAbstractFileIconProvider::Drive);
    }
    if (info.isDir()) {
        return icon(QAbstractFileIconProvider::Folder);
    }
    return QIcon::fromTheme(mimeTypeOfName(info).iconName(), icon(QAbstractFileIconProvider::File));
}

QString NameOnlyFileIconProvider::type(const QFileInfo& info) const
{
    if (info.isRoot()) {
        return QCoreApplication::translate("NameOnlyFileIconProvider", "Drive");
    }
    if (info.isDir()) {
        return QCoreApplication::translate("NameOnlyFileIconProvider", "Folder");
    }
    const QMimeType mimeType = mimeTypeOfName(info);
    return mimeType.comment().isEmpty() ? mimeType.name() : mimeType.comment();
}
