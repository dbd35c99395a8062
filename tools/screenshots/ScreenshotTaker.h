#pragma once

#include <QString>
#include <functional>

class MainWindow;

// Shows one main window and saves what the screen shows of it after each scenario has put
// it into a state.
class ScreenshotTaker
{
public:
    explicit ScreenshotTaker(QString outputFolder);

    // Runs `arrange` on the window, lets it paint, and saves as `fileName` the screen under the
    // window and every other window left visible.
    bool take(MainWindow& window, const QString& fileName,
              const std::function<void(MainWindow&)>& arrange) const;

private:
    QString outputFolder;
};
