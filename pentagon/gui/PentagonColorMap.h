#pragma once

#include "common/gui/ColorMapWindow.h"

class PentagonOpenGLScene;
class QComboBox;
class QGroupBox;
class QLabel;

// "Color map": edits the colours the Pentagon tab draws with (the five entered points, the
// initial pentagon and the newest one), chosen under "Item:", with red, green and blue sliders
// or by clicking one of 56 preset colours; "Apply" gives the scene the colour, "Reset" takes
// the stored colour back. The two older ages are listed but drawn in fixed greys, so they
// show their grey and cannot be applied.
class PentagonColorMap : public quillon::ColorMapWindow
{
    Q_OBJECT

public:
    explicit PentagonColorMap(PentagonOpenGLScene* scene);

    int selectedItem() const { return item; }
    QComboBox* itemComboBox() const { return items; }
    QLabel* fixedGreyNote() const { return greyNote; }

public slots:
    void targetChanged(int i);
    void Rchanged(int value);
    void Gchanged(int value);
    void Bchanged(int value);
    void applyColorChange();
    void resetColorChange();

protected:
    void refresh() override;
    void layOut() override;

private:
    bool itemHasStoredColor() const;
    quillon::ColorTriple storedColor() const;

    PentagonOpenGLScene* scene;
    int item = 0;
    QGroupBox* itemGroup;
    QComboBox* items;
    QLabel* greyNote;
};
