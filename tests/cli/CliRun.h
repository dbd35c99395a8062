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
