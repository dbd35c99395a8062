#pragma once

#include "roots/engine/RootsGrid.h"
#include "roots/engine/RootsSolver.h"
#include "roots/picture/RootsGridPicture.h"

#include <QList>
#include <QString>
#include <array>
#include <cstdio>

class QDoubleValidator;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRect;
class QWidget;

// Binds the Roots page of the main window's form to a RootsSolver: reads the a, b, c fields,
// writes the grid's texts and colours, lays the page out, and saves the text export. The
// widgets are found by their object names on the page.
class RootsPage
{
public:
    explicit RootsPage(QWidget* page, std::FILE* trace = stdout);
    ~RootsPage();
    RootsPage(const RootsPage&) = delete;
    RootsPage& operator=(const RootsPage&) = delete;

    const RootsSolver& solver() const { return rootsSolver; }
    // The grid's picture as the page shows it now (its cells' colours included).
    quillon::PlotPicture picture(QSize viewSize) const;
    // The size the grid has on the page now.
    QSize gridSize() const;

    // Enter in a field: read that coefficient, recompute, show.
    void updateA();
    void updateB();
    void updateC();
    // The Calculate button: read a, b and c as they stand, recompute, show.
    void calculate();
    // An Examples entry (1..3): take the example, recompute, show, and write the
    // single-precision copies of a, b, c back into the fields.
    void useExample(int number);

    // The grid's label that shows quantity `row` of column `variant`.
    QLabel* valueCell(RootsRow row, int variant) const { return grid[row + 1][variant + 1]; }

    // Writes the text export to `fileName`; returns why it failed, or an empty text.
    QString saveTextData(const QString& fileName) const;

    // Places the page's widgets. The main window offers its width and its height less a
    // menu-bar allowance; the page is laid out in the space the tab widget really gives it
    // once the window is shown (see tabPageArea()), and in the offered size before.
    void layOut(int width, int height);

private:
    void findWidgets();
    void setUpInputs();
    void stylePage();
    void readA();
    void recomputeAndShow();
    void showResults();
    void highlightDifferences();
    void writeBackSingleCopies();
    int inputRowHeight() const;
    void layOutInputs(QGroupBox* input);
    void layOutGrid(QGroupBox* output);
    int headingColumnWidth(int bandWidth) const;
    void layOutHeading(int row, const QRect& column);

    QWidget* page;
    RootsSolver rootsSolver;
    QLineEdit* aValue = nullptr;
    QLineEdit* bValue = nullptr;
    QLineEdit* cValue = nullptr;
    QPushButton* calculateButton = nullptr;
    QDoubleValidator* aValidator = nullptr;
    QDoubleValidator* bValidator = nullptr;
    QDoubleValidator* cValidator = nullptr;
    // [row + 1][column + 1]: row 0 holds the column headings, column 0 the row headings.
    std::array<std::array<QLabel*, kRootsVariantCount + 1>, kRootsRowCount + 1> grid{};
    std::array<QGroupBox*, kRootsRowCount + 1> rowGroups{};
    // The labels of each row's heading, left to right: the grid's heading label, with the
    // caption or typeset formula that some rows show beside it.
    std::array<QList<QLabel*>, kRootsRowCount + 1> headings{};
};
