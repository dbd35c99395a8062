#pragma once

#include "assoc/engine/AssoRecurrence.h"

#include <QWidget>
#include <array>

class AssoOpenGLScene;
class QCheckBox;
class QRadioButton;

// "Selections": which evaluation orders are drawn, and whether their differences to a base
// order are drawn instead.
class AssoSelectionWindow : public QWidget
{
    Q_OBJECT

public:
    explicit AssoSelectionWindow(AssoOpenGLScene* scene);

    // Shows the scene's choices: the order check boxes, the base order, comparison.
    void synchronise();

    QCheckBox* orderCheckBox(int order) const { return orders[order]; }
    QRadioButton* baseRadioButton(int order) const { return bases[order]; }
    QCheckBox* comparisonCheckBox() const { return comparison; }

public slots:
    // The base buttons can be chosen only while comparison is on; while it is, the scene's
    // base order is the one shown as checked.
    void setChecks();

private:
    void showBaseOrder();

    AssoOpenGLScene* scene;
    std::array<QCheckBox*, kAssoOrderCount> orders{};
    std::array<QRadioButton*, kAssoOrderCount> bases{};
    QCheckBox* comparison;
};
