#pragma once

#include <QFileIconProvider>
#include <QMimeDatabase>

// Icons and type names for the file dialogs, chosen from a file's name and kind alone. Qt's
// own provider reads the first bytes of any file whose name does not tell its type, and such a
// read can block for good (the kernel log under /proc, a file on a hung network mount): the
// dialog's file model then never finishes that folder, and closing the dialog waits for it,
// so the whole program stops answering.
class NameOnlyFileIconProvider : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& info) const override;
    QString type(const QFileInfo& info) const override;

private:
    QMimeType mimeTypeOfName(const QFileInfo& info) const;

    QMimeDatabase mimeDatabase;
};
