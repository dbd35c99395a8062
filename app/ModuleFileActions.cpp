#include "app/ModuleFileActions.h"

#include "app/NameOnlyFileIconProvider.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QObject>
#include <cstdio>

namespace
{

constexpr const char* kOpenTitle = "Open Document";
constexpr const char* kSaveTitle = "Save Document";
constexpr const char* kConfFilter = "Document files (*.conf);;All files (*.*)";
constexpr const char* kSaveConfFilter = "Documents (*.conf)";
constexpr const char* kTxtFilter = "Documents (*.txt)";
constexpr const char* kCsvFilter = "Documents (*.csv)";

const FileDialogSetup kSetups[] = {
    {false, kSaveTitle, kTxtFilter, SLOT(roots_saveTXTFile())},
    {true, kOpenTitle, kConfFilter, SLOT(pentagon_openFile())},
    {false, kSaveTitle, kSaveConfFilter, SLOT(pentagon_saveFile())},
    {false, kSaveTitle, kTxtFilter, SLOT(pentagon_saveTXTFile())},
    {true, kOpenTitle, kConfFilter, SLOT(asso_openFile())},
    {false, kSaveTitle, kSaveConfFilter, SLOT(asso_saveFile())},
    {false, kSaveTitle, kTxtFilter, SLOT(asso_saveTXTFile())},
    {false, kSaveTitle, kCsvFilter, SLOT(asso_saveCSVFile())},
    {true, kOpenTitle, kConfFilter, SLOT(sine_openFile())},
    {false, kSaveTitle, kSaveConfFilter, SLOT(sine_saveFile())},
    {false, kSaveTitle, kTxtFilter, SLOT(sine_saveTXTFile())},
    {false, kSaveTitle, kCsvFilter, SLOT(sine_saveCSVFile())},
};
static_assert(std::size(kSetups) == static_cast<size_t>(FileAction::Count));

size_t indexOf(FileAction action)
{
    return static_cast<size_t>(action);
}

// The dialog that the static QFileDialog functions make, with one change: it tells files
// apart by name only and never reads one to show it.
QString askFileName(QWidget* parent, const FileDialogSetup& setup)
{
    NameOnlyFileIconProvider icons;
    QFileDialog dialog(parent, QObject::tr(setup.title), QDir::currentPath(),
                       QObject::tr(setup.filter));
    dialog.setIconProvider(&icons);
    if (setup.opensFile) {
        dialog.setFileMode(QFileDialog::ExistingFile);
    } else {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
    }
    if (dialog.exec() != QDialog::Accepted) {
        return QString();
    }
    return dialog.selectedFiles().value(0);
}

} // namespace

const FileDialogSetup& fileDialogSetup(FileAction action)
{
    return kSetups[indexOf(action)];
}

void ModuleFileActions::setRoutine(FileAction action, FileRoutine routine)
{
    routines[indexOf(action)] = std::move(routine);
}

bool ModuleFileActions::hasRoutine(FileAction action) const
{
    return static_cast<bool>(routines[indexOf(action)]);
}

void ModuleFileActions::run(FileAction action, QWidget* parent) const
{
    const FileRoutine& routine = routines[indexOf(action)];
    if (!routine) {
        return;
    }
    const FileDialogSetup& setup = fileDialogSetup(action);
    const QString fileName = askFileName(parent, setup);
    if (fileName.isEmpty()) {
        return;
    }
    reportFileOutcome(parent, setup.opensFile, fileName, routine(fileName));
}

void reportFileOutcome(QWidget* parent, bool opened, const QString& fileName, const QString& error)
{
    if (error.isEmpty()) {
        std::printf("%s file %s done\n", opened ? "open" : "save",
                    fileName.toLocal8Bit().constData());
        std::fflush(stdout);
        return;
    }
    std::fprintf(stderr, "%s\n", error.toLocal8Bit().constData());
    QMessageBox::warning(parent, QObject::tr("Quillon"), error);
}
