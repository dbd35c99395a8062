#pragma once

#include "sine/engine/SineApproaches.h"

#include <QWidget>
#include <array>

class SineOpenGLScene;
class QCheckBox;
class QPushButton;

// "Selections": which approaches are drawn, one check box under each leaf of a three-level
// header (argument, term method, summation), plus the library line's "Sine" box and the
// "None" and "All" buttons.
class SineSelectionWindow : public QWidget
{
    Q_OBJECT

public:
    explicit SineSelectionWindow(SineOpenGLScene* scene);

    // Shows the scene's choices; setting the boxes here does not call back.
    void synchronise();

    // Slot 0 is the library's "Sine" box, 1..12 the approaches' boxes.
    QCheckBox* checkBox(int slot) const { return boxes[slot]; }
    QPushButton* noneButton() const { return none; }
    QPushButton* allButton() const { return all; }

private:
    QWidget* makeTable();
    QWidget* makeLibraryRow();
    void connectToScene();

    SineOpenGLScene* scene;
    std::array<QCheckBox*, kSineApproachCount + 1> boxes{};
    QPushButton* none;
    QPushButton* all;
};
