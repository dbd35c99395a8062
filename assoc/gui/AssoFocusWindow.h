#pragma once

#include <QWidget>

class AssoOpenGLScene;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;

// "Region focus": the X window (start, end and step sliders, "Fix # of nodes to display")
// and the Y range (two edits) of the associative-law plot, plus a reset button.
class AssoFocusWindow : public QWidget
{
    Q_OBJECT

public:
    explicit AssoFocusWindow(AssoOpenGLScene* scene);

    // Shows the scene's current window and range; moving the sliders here does not call back.
    void refresh();
    bool fixesNodeCount() const;
    QString yMinText() const;
    QString yMaxText() const;

    QSlider* startSlider() const { return startPoint; }
    QSlider* endSlider() const { return endPoint; }
    QSlider* stepSlider() const { return stepSize; }
    QLineEdit* yMinEdit() const { return yMin; }
    QLineEdit* yMaxEdit() const { return yMax; }
    QCheckBox* fixCheckBox() const { return fixNodes; }
    QPushButton* resetButton() const { return reset; }

private:
    QSlider* addSlider(class QGridLayout* grid, int row, const QString& caption, QLabel*& value);

    AssoOpenGLScene* scene;
    QSlider* startPoint;
    QSlider* endPoint;
    QSlider* stepSize;
    QLabel* startValue = nullptr;
    QLabel* endValue = nullptr;
    QLabel* stepValue = nullptr;
    QCheckBox* fixNodes;
    QLineEdit* yMin;
    QLineEdit* yMax;
    QPushButton* reset;
};
