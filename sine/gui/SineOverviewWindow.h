#pragma once

#include "common/gui/HelpTextWindow.h"

class SineOpenGLScene;

// The Sine tab's "What am I looking at?" window: what the plot, its colours and keys show, and
// how far the "C++ Math lib" reference lies from the true sine for the scene's current X.
class SineOverviewWindow : public HelpTextWindow
{
    Q_OBJECT

public:
    SineOverviewWindow(const QString& title, const SineOpenGLScene* scene);

    static QString overviewText(int degrees);

    // |sin(x) - sin(X degrees)|, x being X degrees in single-precision radians as the tab
    // computes it: how far the library line's argument alone puts it from the truth.
    static double libraryArgumentError(int degrees);

public slots:
    // Rewrites the text for the scene's X; call it after X changes.
    void refresh();

protected:
    // The text may be stale while the window was hidden, so showing it catches up.
    void showEvent(QShowEvent* event) override;

private:
    const SineOpenGLScene* scene;
};
