#include "cli/AssocCommand.h"
#include "cli/CliRunner.h"
#include "cli/PentagonCommand.h"
#include "cli/RootsCommand.h"
#include "cli/SineCommand.h"
#include "cli/StandardOutput.h"
#include "cli/ValueReportCommand.h"

#include <QGuiApplication>

namespace
{

QtMessageHandler qtMessageHandler = nullptr;

// While the application object starts, Qt remarks on the desktop session it finds (such as
// "XDG_RUNTIME_DIR not set"), which says nothing about quillon-cli's work and would break the
// rule that an error is one line on standard error; only what stops Qt is passed on.
void keepStartUpFailuresOnly(QtMsgType type, const QMessageLogContext& context,
                             const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        qtMessageHandler(type, context, message);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    prepareStandardStreams();
    // Pictures need the fonts of a QGuiApplication but no screen: the offscreen platform opens
    // no display connection and no OpenGL context, whatever DISPLAY or QT_QPA_PLATFORM say,
    // so quillon-cli draws the same pictures on a server without X.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qtMessageHandler = qInstallMessageHandler(keepStartUpFailuresOnly);
    QGuiApplication application(argc, argv);
    qInstallMessageHandler(qtMessageHandler);
    CliRunner runner;
    runner.addCommand(std::make_unique<RootsCommand>());
    runner.addCommand(std::make_unique<AssocCommand>());
    runner.addCommand(std::make_unique<SineCommand>());
    runner.addCommand(std::make_unique<PentagonCommand>());
    runner.addCommand(std::make_unique<ValueReportCommand>());
    return runner.run(QCoreApplication::arguments(), {stdout, stderr});
}
