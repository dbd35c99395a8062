#include "roots/gui/RootsPage.h"

#include "common/core/CFormat.h"
#include "common/gui/FieldValidators.h"
#include "common/gui/FileRoutines.h"
#include "common/gui/GroupBoxStyle.h"
#include "common/gui/PageChild.h"
#include "common/gui/TabPageArea.h"
#include "common/picture/ImageLookup.h"
#include "common/picture/QtColor.h"
#include "roots/engine/RootsCellColors.h"
#include "roots/engine/RootsFieldRule.h"
#include "roots/engine/RootsTextExport.h"

#include <QDoubleValidator>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

using quillon::cformat;

namespace
{

const char* const kRowGroupNames[] = {"roots_g_solution", "roots_g_b2", "roots_g_4ac",
                                      "roots_g_sqrt",     "roots_g_L",  "roots_g_LR",
                                      "roots_g_S",        "roots_g_SR"};
const char* const kRowHeadingNames[] = {"roots_solution",    "roots_b2_label",    "roots_ac_label",
                                        "roots_sqrt_label",  "roots_root1_label", "roots_result1",
                                        "roots_root2_label", "roots_result2"};
// %1 is the column, 1..4.
const char* const kCellNamePatterns[] = {
    "roots_solution%1_label", "roots_b2_label_%1", "roots_ac_label_%1",    "roots_sqrt_label_%1",
    "roots_root1_label_%1",   "roots_result1_%1",  "roots_root2_label_%1", "roots_result2_%1"};
const char* const kColumnHeadings[] = {"Naive\nSingle P.", "Cancellation\nSingle P.",
                                       "Naive\nDouble P.", "Naive\nHigh P."};
// A label shown beside a row's heading label: a caption before it or a formula after it.
struct HeadingCompanion {
    int row;
    const char* name;
    bool before;
};
const HeadingCompanion kHeadingCompanions[] = {{3, "roots_sqrt_formula", false},
                                               {5, "roots_result1_caption", true},
                                               {7, "roots_result2_caption", true}};

// The page's spacing between blocks and inside groups, in pixels.
constexpr int kSpacing = 8;
// The widest text a cell can show: "%.12e" of a negative number with a three-digit exponent.
const char* const kWidestCellText = "-1.234567890123e-100";
// The share of a band's width the row headings get at least.
constexpr double kHeadingShare = 0.18;

QDoubleValidator* fieldValidator(const RootsFieldRange& range, QObject* owner)
{
    return quillon::decimalFieldValidator(range.bottom, range.top, range.decimals, owner);
}

void fillWith(QWidget* widget, const QColor& background)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::All, QPalette::Window, background);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

int preferredWidth(const QWidget* widget)
{
    return widget->sizeHint().width();
}

// The width of labels placed side by side at their preferred widths, a spacing apart.
int sideBySideWidth(const QList<QLabel*>& labels)
{
    int width = kSpacing * int(labels.size() - 1);
    for (const QLabel* label : labels) {
        width += preferredWidth(label);
    }
    return width;
}

} // namespace

RootsPage::RootsPage(QWidget* page, std::FILE* trace) : page(page), rootsSolver(trace)
{
    findWidgets();
    stylePage();
    setUpInputs();
    showResults();
    highlightDifferences();
}

RootsPage::~RootsPage() = default;

void RootsPage::findWidgets()
{
    aValue = quillon::pageChild<QLineEdit>(page, QStringLiteral("roots_a_value"));
    bValue = quillon::pageChild<QLineEdit>(page, QStringLiteral("roots_b_value"));
    cValue = quillon::pageChild<QLineEdit>(page, QStringLiteral("roots_c_value"));
    calculateButton = quillon::pageChild<QPushButton>(page, QStringLiteral("roots_calculate"));
    for (int row = 0; row <= kRootsRowCount; ++row) {
        rowGroups[row] =
            quillon::pageChild<QGroupBox>(page, QString::fromLatin1(kRowGroupNames[row]));
        grid[row][0] = quillon::pageChild<QLabel>(page, QString::fromLatin1(kRowHeadingNames[row]));
        for (int column = 1; column <= kRootsVariantCount; ++column) {
            const QString name = QString::fromLatin1(kCellNamePatterns[row]).arg(column);
            grid[row][column] = quillon::pageChild<QLabel>(page, name);
        }
        headings[row] = {grid[row][0]};
    }
    for (const HeadingCompanion& companion : kHeadingCompanions) {
        auto* label = quillon::pageChild<QLabel>(page, QString::fromLatin1(companion.name));
        headings[companion.row].insert(companion.before ? 0 : 1, label);
    }
}

void RootsPage::setUpInputs()
{
    writeBackSingleCopies();
    aValidator = fieldValidator(kRootsAField, page);
    bValidator = fieldValidator(kRootsBCField, page);
    cValidator = fieldValidator(kRootsBCField, page);
    aValue->setValidator(aValidator);
    bValue->setValidator(bValidator);
    cValue->setValidator(cValidator);
}

void RootsPage::stylePage()
{
    page->setFont(QFont(QStringLiteral("Arial")));
    // One sheet for the page styles all its boxes: the two titled ones and the rows.
    page->setStyleSheet(quillon::groupBoxStyleSheet());
    for (int row = 0; row <= kRootsRowCount; ++row) {
        for (QLabel* label : grid[row]) {
            label->setAlignment(Qt::AlignCenter);
            // Keeps neighbouring cells' numbers apart even when a text fills its cell.
            label->setContentsMargins(kSpacing / 2, 0, kSpacing / 2, 0);
        }
        for (QLabel* label : headings[row]) {
            label->setAlignment(Qt::AlignCenter);
        }
        if (row > 0) {
            fillWith(rowGroups[row], quillon::toQColor(rootsRowBackground(RootsRow(row - 1))));
        }
    }
    for (int column = 0; column < kRootsVariantCount; ++column) {
        grid[0][column + 1]->setText(QString::fromLatin1(kColumnHeadings[column]));
    }
    const auto showImage = [this](const char* labelName, const char* imageName) {
        quillon::pageChild<QLabel>(page, QString::fromLatin1(labelName))
            ->setPixmap(QPixmap(quillon::imagePath(QString::fromLatin1(imageName))));
    };
    showImage("roots_title", "ax2+bx+c=0.png");
    showImage("roots_b2_label", "b2.png");
    showImage("roots_ac_label", "4ac.png");
    showImage("roots_sqrt_formula", "b2-4ac.png");
    showImage("roots_result1", "ax2+bx+c=.png");
    showImage("roots_result2", "ax2+bx+c=.png");
    quillon::pageChild<QLabel>(page, QStringLiteral("roots_title"))->setAlignment(Qt::AlignCenter);
}

void RootsPage::readA()
{
    if (rootsSolver.readA(aValue->text().toStdString())) {
        aValue->setText(QString::fromStdString(cformat("%f", 1e-11)));
    }
}

void RootsPage::updateA()
{
    readA();
    recomputeAndShow();
}

void RootsPage::updateB()
{
    rootsSolver.readB(bValue->text().toStdString());
    recomputeAndShow();
}

void RootsPage::updateC()
{
    rootsSolver.readC(cValue->text().toStdString());
    recomputeAndShow();
}

void RootsPage::calculate()
{
    readA();
    rootsSolver.readB(bValue->text().toStdString());
    rootsSolver.readC(cValue->text().toStdString());
    recomputeAndShow();
}

void RootsPage::recomputeAndShow()
{
    rootsSolver.recomputeAll();
    showResults();
    highlightDifferences();
}

void RootsPage::useExample(int number)
{
    rootsSolver.useExample(number);
    showResults();
    highlightDifferences();
    writeBackSingleCopies();
}

void RootsPage::writeBackSingleCopies()
{
    aValue->setText(QString::fromStdString(cformat("%f", double(rootsSolver.singleA()))));
    bValue->setText(QString::fromStdString(cformat("%f", double(rootsSolver.singleB()))));
    cValue->setText(QString::fromStdString(cformat("%f", double(rootsSolver.singleC()))));
}

void RootsPage::showResults()
{
    const RootsGrid texts = rootsSolver.showResults();
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            grid[row + 1][variant + 1]->setText(QString::fromStdString(texts[row][variant]));
        }
    }
}

void RootsPage::highlightDifferences()
{
    const RootsAgreements agreements = rootsSolver.classifyRows();
    for (int row = 0; row < kRootsRowCount; ++row) {
        const QColor background = quillon::toQColor(rootsRowBackground(RootsRow(row)));
        for (int variant = 0; variant < 3; ++variant) {
            const auto ink = rootsCellInk(agreements[row], variant);
            if (!ink) {
                continue;
            }
            QLabel* cell = grid[row + 1][variant + 1];
            QPalette palette = cell->palette();
            palette.setColor(QPalette::All, QPalette::WindowText, quillon::toQColor(*ink));
            cell->setPalette(palette);
            fillWith(cell, background);
        }
    }
    page->update();
}

QString RootsPage::saveTextData(const QString& fileName) const
{
    return quillon::writeWholeFile(fileName, rootsTextExport(rootsSolver));
}

void RootsPage::layOut(int width, int height)
{
    const QSize area = quillon::tabPageArea(page, QSize(width, height));
    auto* title = quillon::pageChild<QLabel>(page, QStringLiteral("roots_title"));
    auto* input = quillon::pageChild<QGroupBox>(page, QStringLiteral("roots_inputGroup"));
    auto* output = quillon::pageChild<QGroupBox>(page, QStringLiteral("roots_outputGroup"));
    const int innerWidth = area.width() - 2 * kSpacing;

    const int titleHeight = qMax(title->sizeHint().height(), area.height() * 7 / 100);
    title->setGeometry(kSpacing, kSpacing / 2, innerWidth, titleHeight);
    const QMargins inputFrame = input->contentsMargins();
    const int inputHeight =
        inputFrame.top() + inputFrame.bottom() + inputRowHeight() + 2 * kSpacing;
    input->setGeometry(kSpacing, title->geometry().bottom() + 1 + kSpacing / 2, innerWidth,
                       inputHeight);
    const int outputTop = input->geometry().bottom() + 1 + kSpacing;
    output->setGeometry(kSpacing, outputTop, innerWidth, area.height() - kSpacing - outputTop);
    layOutInputs(input);
    layOutGrid(output);
}

int RootsPage::inputRowHeight() const
{
    return qMax(aValue->sizeHint().height(), calculateButton->sizeHint().height());
}

// One row, centred in the group: a, b and c, each a label and a field that share the width
// the Calculate button leaves.
void RootsPage::layOutInputs(QGroupBox* input)
{
    const QRect contents = input->contentsRect().adjusted(kSpacing, 0, -kSpacing, 0);
    const int rowHeight = inputRowHeight();
    const int top = contents.top() + (contents.height() - rowHeight) / 2;
    const int buttonWidth = qMax(preferredWidth(calculateButton), contents.width() / 6);
    const std::array<std::pair<QLabel*, QLineEdit*>, 3> fields = {
        std::pair{quillon::pageChild<QLabel>(page, QStringLiteral("roots_a_label")), aValue},
        std::pair{quillon::pageChild<QLabel>(page, QStringLiteral("roots_b_label")), bValue},
        std::pair{quillon::pageChild<QLabel>(page, QStringLiteral("roots_c_label")), cValue}};
    int labelsWidth = 0;
    for (const auto& field : fields) {
        labelsWidth += preferredWidth(field.first) + kSpacing / 2;
    }
    const int fieldWidth =
        (contents.width() - buttonWidth - labelsWidth - 3 * 2 * kSpacing) / int(fields.size());
    int x = contents.left();
    for (const auto& [label, edit] : fields) {
        label->setGeometry(x, top, preferredWidth(label), rowHeight);
        x += preferredWidth(label) + kSpacing / 2;
        edit->setGeometry(x, top, fieldWidth, rowHeight);
        x += fieldWidth + 2 * kSpacing;
    }
    calculateButton->setGeometry(contents.right() + 1 - buttonWidth, top, buttonWidth, rowHeight);
}

// Eight bands of equal height below the group's title: the column headings and the seven
// quantities. Each band holds the row heading and the four variants' cells.
void RootsPage::layOutGrid(QGroupBox* output)
{
    const QRect contents = output->contentsRect().adjusted(kSpacing / 2, 0, -kSpacing / 2, 0);
    const int bandPitch = contents.height() / (kRootsRowCount + 1);
    const int headingWidth = headingColumnWidth(contents.width());
    for (int row = 0; row <= kRootsRowCount; ++row) {
        QGroupBox* band = rowGroups[row];
        band->setGeometry(contents.left(), contents.top() + row * bandPitch, contents.width(),
                          bandPitch - kSpacing / 2);
        const QRect inside = band->contentsRect();
        layOutHeading(row, QRect(inside.left(), inside.top(), headingWidth, inside.height()));
        const int cellWidth = (inside.width() - headingWidth) / kRootsVariantCount;
        for (int column = 1; column <= kRootsVariantCount; ++column) {
            grid[row][column]->setGeometry(inside.left() + headingWidth + (column - 1) * cellWidth,
                                           inside.top(), cellWidth, inside.height());
        }
    }
}

// Wide enough for every row's heading labels side by side; a fixed share of the band when the
// cells can spare it, as they need room for their widest text.
int RootsPage::headingColumnWidth(int bandWidth) const
{
    int widestHeading = 0;
    for (const QList<QLabel*>& labels : headings) {
        widestHeading = qMax(widestHeading, sideBySideWidth(labels) + 2 * kSpacing);
    }
    const QFontMetrics metrics = grid[1][1]->fontMetrics();
    const int cellsNeed =
        kRootsVariantCount *
        (metrics.horizontalAdvance(QString::fromLatin1(kWidestCellText)) + 2 * kSpacing);
    return qMax(widestHeading, qMin(int(bandWidth * kHeadingShare), bandWidth - cellsNeed));
}

// The heading labels of a row side by side, centred in the heading column.
void RootsPage::layOutHeading(int row, const QRect& column)
{
    const QList<QLabel*>& labels = headings[row];
    if (labels.size() == 1) {
        labels.front()->setGeometry(column);
        return;
    }
    int x = column.left() + (column.width() - sideBySideWidth(labels)) / 2;
    for (QLabel* label : labels) {
        label->setGeometry(x, column.top(), preferredWidth(label), column.height());
        x += preferredWidth(label) + kSpacing;
    }
}
