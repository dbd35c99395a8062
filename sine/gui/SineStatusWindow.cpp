#include "sine/gui/SineStatusWindow.h"

#include "common/core/CFormat.h"
#include "common/gui/GroupBoxStyle.h"
#include "common/picture/QtColor.h"
#include "sine/gui/SineAxisHeadings.h"
#include "sine/gui/SineOpenGLScene.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <optional>

using quillon::cformat;

namespace
{

// The table's columns: three of headings, then the four of results.
enum Column {
    InputColumn,
    TermMethodColumn,
    SummationColumn,
    ColorColumn,
    ValueColumn,
    ErrorColumn,
    IterationColumn,
};

constexpr int kHeadingRow = 0;
constexpr int kFirstApproachRow = 1;
constexpr int kLibraryRow = kFirstApproachRow + kSineApproachCount;
constexpr QSize kSwatchSize(40, 18);

QString scientific(float value)
{
    return QString::fromStdString(cformat("%.3e", double(value)));
}

QString scientificOrEmpty(const std::optional<float>& value)
{
    return value ? scientific(*value) : QString();
}

QString nameSuffix(int slot)
{
    return slot == SineOpenGLScene::kLibrary ? QStringLiteral("sine")
                                             : QString::fromStdString(cformat("%d", slot));
}

QLabel* namedCell(const QString& role, int slot)
{
    QLabel* cell = sineTableCell(QString());
    cell->setObjectName(QStringLiteral("sine_status_%1_%2").arg(role, nameSuffix(slot)));
    return cell;
}

QLabel* swatchCell(int slot)
{
    QLabel* cell = namedCell(QStringLiteral("color"), slot);
    cell->setMinimumSize(kSwatchSize);
    cell->setAutoFillBackground(true);
    return cell;
}

void paintSwatch(QLabel* swatch, const quillon::ColorTriple& color)
{
    QPalette palette = swatch->palette();
    palette.setColor(QPalette::Window, quillon::toQColor(color));
    swatch->setPalette(palette);
}

} // namespace

SineStatusWindow::SineStatusWindow(SineOpenGLScene* scene) : QWidget(nullptr), scene(scene)
{
    setWindowTitle(tr("Status"));
    setFont(QFont(QStringLiteral("Arial")));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeTable());
    refresh();
}

QWidget* SineStatusWindow::makeTable()
{
    auto* table = new QGroupBox;
    table->setStyleSheet(quillon::groupBoxStyleSheet());
    auto* grid = new QGridLayout(table);
    grid->setSpacing(0);
    addHeadings(grid);
    for (int k = 1; k <= kSineApproachCount; ++k) {
        addRowCells(grid, kFirstApproachRow + k - 1, k);
    }
    grid->addWidget(sineTableCell(tr("Sine")), kLibraryRow, InputColumn, 1,
                    ColorColumn - InputColumn);
    addRowCells(grid, kLibraryRow, SineOpenGLScene::kLibrary);
    return table;
}

void SineStatusWindow::addHeadings(QGridLayout* grid) const
{
    const QString titles[] = {
        tr("Sine input"), tr("Term evaluation"),          tr("Summation"),      tr("Color"),
        tr("Value"),      tr("Error respect to library"), tr("Error iteration")};
    int column = InputColumn;
    for (const QString& title : titles) {
        grid->addWidget(sineTableCell(title), kHeadingRow, column++);
    }
    addSineHeadingRuns(grid, Qt::Vertical, InputColumn, kFirstApproachRow, kSineInputRun,
                       [](const SineApproach& approach) { return sineInputName(approach.input); });
    addSineHeadingRuns(
        grid, Qt::Vertical, TermMethodColumn, kFirstApproachRow, kSineTermMethodRun,
        [](const SineApproach& approach) { return sineTermMethodName(approach.termMethod); });
    addSineHeadingRuns(
        grid, Qt::Vertical, SummationColumn, kFirstApproachRow, 1,
        [](const SineApproach& approach) { return sineSummationName(approach.summation); });
}

void SineStatusWindow::addRowCells(QGridLayout* grid, int gridRow, int slot)
{
    Row& row = rows[slot];
    row.color = swatchCell(slot);
    row.value = namedCell(QStringLiteral("value"), slot);
    row.error = namedCell(QStringLiteral("error"), slot);
    row.iteration = namedCell(QStringLiteral("iteration"), slot);
    grid->addWidget(row.color, gridRow, ColorColumn);
    grid->addWidget(row.value, gridRow, ValueColumn);
    grid->addWidget(row.error, gridRow, ErrorColumn);
    grid->addWidget(row.iteration, gridRow, IterationColumn);
}

void SineStatusWindow::refresh()
{
    const SineResults& results = scene->results();
    rows[SineOpenGLScene::kLibrary].value->setText(scientific(results.librarySine));
    for (int k = 1; k <= kSineApproachCount; ++k) {
        rows[k].value->setText(scientificOrEmpty(results.value[k - 1]));
        rows[k].error->setText(scientificOrEmpty(results.error[k - 1]));
        rows[k].iteration->setText(
            QString::fromStdString(cformat("%d", results.errorIteration[k - 1])));
    }
    refreshColors();
}

void SineStatusWindow::showEvent(QShowEvent* event)
{
    refresh();
    QWidget::showEvent(event);
}

void SineStatusWindow::refreshColors()
{
    for (int slot = 0; slot <= kSineApproachCount; ++slot) {
        paintSwatch(rows[slot].color, scene->colors()[slot]);
    }
}
