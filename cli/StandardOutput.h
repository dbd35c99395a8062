#pragma once

#include "cli/CliCommand.h"

#include <string>

// Standard output is a file like any other: a write to it that fails (a full disk, a closed
// descriptor, a pipe nobody reads) is reported and makes quillon-cli exit with a file error.

// Run first thing in main(). A standard descriptor that the caller closed is taken by
// /dev/null opened for reading only, so that writes to it still fail instead of landing in
// whatever file the program opens next; and a pipe without a reader makes a write fail with
// EPIPE instead of killing the program, so that it can say so.
void prepareStandardStreams();

// Writes `text` to the output stream and flushes it. Returns ExitSuccess, or ExitFileError
// after the line "<who>: cannot write standard output: <reason>" on the error stream.
int writeOutput(const CliStreams& streams, const std::string& text, const std::string& who);
