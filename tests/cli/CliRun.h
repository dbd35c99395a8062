#pragma once

#include <QString>
#include <QStringList>

// What one run of quillon-cli did.
struct CliRun {
    int exitCode = -1;
    QString out;
    QString err;

    // Runs the quillon-cli that this build made with `arguments` and waits for it.
    static CliRun of(const QStringList& arguments);
};

// The whole text of a file, or "<cannot read PATH>" when it cannot be read, so that a
// comparison with it fails and names the file.
QString fileText(const QString& path);
