#pragma once

#include "sine/engine/SineApproaches.h"

#include <QWidget>
#include <array>

class SineOpenGLScene;
class QGridLayout;
class QLabel;

// "Status": a table of the last computation, one row per approach (headed by its argument,
// term method and summation) and one for the library sine, with the colour each is drawn in,
// the value, its error with respect to the library and the error iteration.
class SineStatusWindow : public QWidget
{
    Q_OBJECT

public:
    explicit SineStatusWindow(SineOpenGLScene* scene);

    // Writes the scene's results and colours into the table. An approach without a valid
    // partial sum shows no value and no error; the library row shows only its value.
    void refresh();
    // Paints the swatches in the scene's colours.
    void refreshColors();

protected:
    // The scene refreshes the table only while it is shown, so showing it catches up.
    void showEvent(QShowEvent* event) override;

private:
    // The cells of one row; slot 0 is the library sine, 1..12 the approaches.
    struct Row {
        QLabel* color = nullptr;
        QLabel* value = nullptr;
        QLabel* error = nullptr;
        QLabel* iteration = nullptr;
    };

    QWidget* makeTable();
    void addHeadings(QGridLayout* grid) const;
    void addRowCells(QGridLayout* grid, int gridRow, int slot);

    SineOpenGLScene* scene;
    std::array<Row, kSineApproachCount + 1> rows{};
};
