#pragma once

#include "common/gui/ColorMapWindow.h"

class SineOpenGLScene;
class SineStatusWindow;
class QComboBox;
class QGroupBox;

// "Color map": edits the colour of the library line or of one approach, chosen with
// "Method:", with red, green and blue sliders and a preview; "Apply" gives the scene the
// colour, "Reset" takes the scene's colour back.
class SineColorMap : public quillon::ColorMapWindow
{
    Q_OBJECT

public:
    explicit SineColorMap(SineOpenGLScene* scene);

    // The status window whose swatches follow an applied colour; none by default.
    void setStatusWindow(SineStatusWindow* window) { statusWindow = window; }

    // 0 is the library sine, 1..12 the approaches (the combo box's index).
    int targetSlot() const { return target; }
    QComboBox* methodComboBox() const { return methods; }

public slots:
    void targetChanged(int slot);
    void Rchanged(int value);
    void Gchanged(int value);
    void Bchanged(int value);
    void applyColorChange();
    void resetColorChange();

protected:
    void layOut() override;

private:
    void takeSceneColor();

    SineOpenGLScene* scene;
    SineStatusWindow* statusWindow = nullptr;
    int target = 0;
    QGroupBox* methodGroup;
    QComboBox* methods;
};
