#pragma once

#include "common/core/PlotXWindow.h"

#include <QWidget>
#include <initializer_list>
#include <optional>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QVBoxLayout;

namespace quillon
{

// A plotting tab's "Region focus" window: the group "Focus on X dimension" (start, end and
// step sliders with their values, "Fix # of nodes to display") and the group "Focus on Y
// dimension" (the "Y Min:" and "Y Max:" edits). Each tab's window connects the controls to its
// scene and adds its own buttons below them.
class PlotFocusWindow : public QWidget
{
    Q_OBJECT

public:
    bool fixesNodeCount() const;
    QString yMinText() const;
    QString yMaxText() const;
    // The Y fields read as numbers; nothing for text that reads as infinity or NaN. Typing
    // such text is refused, with a note under the fields.
    std::optional<float> yMinNumber() const;
    std::optional<float> yMaxNumber() const;

    QSlider* startSlider() const { return startPoint; }
    QSlider* endSlider() const { return endPoint; }
    QSlider* stepSlider() const { return stepSize; }
    QLineEdit* yMinEdit() const { return yMin; }
    QLineEdit* yMaxEdit() const { return yMax; }
    QCheckBox* fixCheckBox() const { return fixNodes; }

protected:
    PlotFocusWindow();

    // A row of buttons under the two groups.
    void addButtonRow(std::initializer_list<QPushButton*> buttons);
    // Shows a window of indices of a plot with n indices and its Y range. The sliders keep
    // start below end and both within 0 .. n - 1; setting them here emits nothing, so the
    // scene that already holds these numbers is not called back.
    void showFocus(const PlotXWindow& window, int n, float yMinimum, float yMaximum);

private:
    QWidget* makeXGroup();
    QWidget* makeYGroup();
    QSlider* addSlider(QGridLayout* grid, int row, const QString& caption, QLabel*& value);
    // The note under the Y fields; an empty text hides it.
    void showRefusal(const QString& text);

    QVBoxLayout* layout;
    QSlider* startPoint = nullptr;
    QSlider* endPoint = nullptr;
    QSlider* stepSize = nullptr;
    QLabel* startValue = nullptr;
    QLabel* endValue = nullptr;
    QLabel* stepValue = nullptr;
    QCheckBox* fixNodes;
    QLineEdit* yMin;
    QLineEdit* yMax;
    QLabel* refusal;
};

} // namespace quillon
