#include "CliRunner.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    CliRunner runner;
    return runner.run(QCoreApplication::arguments(), {stdout, stderr});
}
