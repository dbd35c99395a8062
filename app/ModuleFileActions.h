#pragma once

#include <QString>
#include <array>
#include <functional>

class QWidget;

// The twelve File-menu entries that ask for a file name and hand it to a module.
enum class FileAction {
    RootsSaveTxt,
    PentagonOpen,
    PentagonSave,
    PentagonSaveTxt,
    AssoOpen,
    AssoSave,
    AssoSaveTxt,
    AssoSaveCsv,
    SineOpen,
    SineSave,
    SineSaveTxt,
    SineSaveCsv,
    Count
};

// A module routine that reads or writes the named file. It returns a one-line reason when it
// failed (and then changed nothing), or an empty text when it worked.
using FileRoutine = std::function<QString(const QString& fileName)>;

// How one file action asks for its name.
struct FileDialogSetup {
    bool opensFile; // an open dialog; otherwise a save dialog
    const char* title;
    const char* filter;
    const char* slot; // the main-window slot that runs the action, in SLOT() form
};

const FileDialogSetup& fileDialogSetup(FileAction action);

// Tells the user how a file routine went: an "open file ... done" or "save file ... done" line
// on standard output, or the failure in a message box and on standard error.
void reportFileOutcome(QWidget* parent, bool opened, const QString& fileName, const QString& error);

// The modules' file routines, one per action, and the one dialog that all of them share.
class ModuleFileActions
{
public:
    void setRoutine(FileAction action, FileRoutine routine);
    bool hasRoutine(FileAction action) const;

    // Asks for a file name with a standard dialog starting in the working directory. A
    // cancelled dialog does nothing; otherwise the name reaches the routine exactly as the
    // dialog returned it (any characters, no extension added). Success is confirmed with an
    // "open file ... done" or "save file ... done" line on standard output; a failure is
    // shown in a message box and written to standard error.
    void run(FileAction action, QWidget* parent) const;

private:
    std::array<FileRoutine, static_cast<size_t>(FileAction::Count)> routines;
};
