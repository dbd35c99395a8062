#pragma once

#include "pentagon/engine/PentagonEngine.h"

#include <QWidget>

class PentagonOpenGLScene;
class QLineEdit;

// The pentagon tab's "Region focus" window: the data range the plot shows, as four fields
// ("X Min:", "X Max:" and "Y Min:", "Y Max:") that the scene reads on Return or "Apply", and a
// "Reset" that refits the range to the drawn pentagons.
class PentagonFocusWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PentagonFocusWindow(PentagonOpenGLScene* scene);

    // Writes the range into the four fields with "%f".
    void showRange(const PentagonRange& range);

    QLineEdit* xMinEdit() const { return fields[0]; }
    QLineEdit* xMaxEdit() const { return fields[1]; }
    QLineEdit* yMinEdit() const { return fields[2]; }
    QLineEdit* yMaxEdit() const { return fields[3]; }

private:
    QWidget* makeGroup(const QString& title, int first, const QString& lowCaption,
                       const QString& highCaption);

    QLineEdit* fields[4] = {};
};
