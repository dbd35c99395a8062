#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// Where quillon-cli's standard output goes in a run.
enum class OutputSink {
    Captured,          // a pipe the test reads: CliRun::out
    FullDisk,          // /dev/full, where every write fails with "No space left on device"
    Closed,            // no descriptor 1 at all
    PipeWithoutReader, // a pipe whose reading end is closed, as after `| head -c 0`
};

// What one run of quillon-cli did.
struct CliRun {
    int exitCode = -1;
    QString out;
    QString err;

    // Runs the quillon-cli that this build made with `arguments` and waits for it. A run
    // that a signal ends keeps exitCode -1.
    static CliRun of(const QStringList& arguments, OutputSink sink = OutputSink::Captured);

    // Runs like `of`, but quillon-cli starts without the capabilities that let the superuser
    // ignore file permissions (FilePermissionsEnforced), so that a read-only folder stops it
    // whoever runs the tests. If it cannot give them up, it exits with status 126.
    static CliRun obeyingFilePermissions(const QStringList& arguments);

    // Runs like `of`, with `environment` as quillon-cli's whole environment.
    static CliRun inEnvironment(const QStringList& arguments,
                                const QProcessEnvironment& environment);
};

// The whole text of a file, or "<cannot read PATH>" when it cannot be read, so that a
// comparison with it fails and names the file.
QString fileText(const QString& path);

// The bytes of a file, or "<cannot read PATH>" when it cannot be read.
QByteArray fileBytes(const QString& path);

// Writes `bytes` as the whole file at `path`; false when that failed.
bool writeFileBytes(const QString& path, const QByteArray& bytes);

// The names of everything in `folder`, hidden files too (a temporary file left behind shows).
QStringList folderEntries(const QString& folder);
