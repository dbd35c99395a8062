#pragma once

#include <QObject>

class InspectorWindow;
class RootsPage;

// Turns the gestures that pick a number into inspections: a click on a cell of the Roots
// grid shows that cell in the inspector (and the inspector itself).
class InspectorPicker : public QObject
{
    Q_OBJECT

public:
    InspectorPicker(InspectorWindow* window, const RootsPage& rootsPage, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void pickRootsCell(int row, int variant);
    void showWindow();

    InspectorWindow* window;
    const RootsPage& rootsPage;
};
