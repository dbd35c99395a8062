#pragma once

#include "assoc/engine/AssoRecurrence.h"
#include "common/gui/ColorMapWindow.h"

#include <array>

class AssoOpenGLScene;
class QGroupBox;
class QRadioButton;

// "Color map": edits the colour of one evaluation order, with red, green and blue sliders or
// by clicking one of 48 preset colours; "Apply" gives the scene the colour, "Reset" takes the
// scene's current colour back.
class AssoColorMap : public quillon::ColorMapWindow
{
    Q_OBJECT

public:
    explicit AssoColorMap(AssoOpenGLScene* scene);

    int targetOrder() const { return target; }
    QRadioButton* targetButton(int order) const { return targets[order]; }

public slots:
    void targetChanged(int order);
    void targetChanged1(bool chosen);
    void targetChanged2(bool chosen);
    void targetChanged3(bool chosen);
    void targetChanged4(bool chosen);
    void targetChanged5(bool chosen);
    void Rchanged(int value);
    void Gchanged(int value);
    void Bchanged(int value);
    void applyColorChange();
    void resetColorChange();

protected:
    void refresh() override;
    void layOut() override;

private:
    void takeSceneColor(int order);

    AssoOpenGLScene* scene;
    int target = -1;
    QGroupBox* targetGroup;
    std::array<QRadioButton*, kAssoOrderCount> targets{};
};
