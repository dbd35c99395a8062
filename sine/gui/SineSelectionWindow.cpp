#include "sine/gui/SineSelectionWindow.h"

#include "common/gui/CheckBoxStyle.h"
#include "common/gui/GroupBoxStyle.h"
#include "sine/gui/SineAxisHeadings.h"
#include "sine/gui/SineOpenGLScene.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

// The scene's flag slot of each box, in slot order: the library line, then Func1..Func12.
using NeedSlot = void (SineOpenGLScene::*)(bool);
const std::array<NeedSlot, kSineApproachCount + 1> kNeedSlots = {
    &SineOpenGLScene::needBaseSin, &SineOpenGLScene::needFunc1,  &SineOpenGLScene::needFunc2,
    &SineOpenGLScene::needFunc3,   &SineOpenGLScene::needFunc4,  &SineOpenGLScene::needFunc5,
    &SineOpenGLScene::needFunc6,   &SineOpenGLScene::needFunc7,  &SineOpenGLScene::needFunc8,
    &SineOpenGLScene::needFunc9,   &SineOpenGLScene::needFunc10, &SineOpenGLScene::needFunc11,
    &SineOpenGLScene::needFunc12};

// The header's rows, top to bottom, and the row of the check boxes below them.
enum Row {
    SineInputRow,
    InputRow,
    TermEvaluationRow,
    TermMethodRow,
    SummationMethodRow,
    SummationRow,
    CheckBoxRow,
};

} // namespace

SineSelectionWindow::SineSelectionWindow(SineOpenGLScene* scene)
    : QWidget(nullptr), scene(scene), none(new QPushButton(tr("None"))),
      all(new QPushButton(tr("All")))
{
    setWindowTitle(tr("Selections"));
    setFont(QFont(QStringLiteral("Arial")));
    // One sheet for the window draws every check box with the program's own marks.
    setStyleSheet(quillon::checkBoxStyleSheet());
    boxes[SineOpenGLScene::kLibrary] = new QCheckBox(tr("Sine"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeTable());
    layout->addWidget(makeLibraryRow());
    synchronise();
    connectToScene();
}

QWidget* SineSelectionWindow::makeTable()
{
    auto* table = new QGroupBox;
    table->setStyleSheet(quillon::groupBoxStyleSheet());
    auto* grid = new QGridLayout(table);
    grid->setSpacing(0);
    const QString sineInput = tr("Sine input");
    const QString termEvaluation = tr("Term evaluation");
    const QString summationMethod = tr("Summation method");
    addSineHeadingRuns(grid, Qt::Horizontal, SineInputRow, 0, kSineApproachCount,
                       [&](const SineApproach&) { return sineInput; });
    addSineHeadingRuns(grid, Qt::Horizontal, InputRow, 0, kSineInputRun,
                       [](const SineApproach& approach) { return sineInputName(approach.input); });
    addSineHeadingRuns(grid, Qt::Horizontal, TermEvaluationRow, 0, kSineInputRun,
                       [&](const SineApproach&) { return termEvaluation; });
    addSineHeadingRuns(grid, Qt::Horizontal, TermMethodRow, 0, kSineTermMethodRun,
                       [](const SineApproach& approach) {
                           return sineTermMethodName(approach.termMethod) +
                                  QStringLiteral(" method");
                       });
    addSineHeadingRuns(grid, Qt::Horizontal, SummationMethodRow, 0, kSineTermMethodRun,
                       [&](const SineApproach&) { return summationMethod; });
    addSineHeadingRuns(grid, Qt::Horizontal, SummationRow, 0, 1, [](const SineApproach& approach) {
        return sineSummationName(approach.summation);
    });
    for (int k = 1; k <= kSineApproachCount; ++k) {
        boxes[k] = new QCheckBox;
        grid->addWidget(boxes[k], CheckBoxRow, k - 1, Qt::AlignHCenter);
    }
    return table;
}

QWidget* SineSelectionWindow::makeLibraryRow()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(boxes[SineOpenGLScene::kLibrary]);
    layout->addStretch();
    layout->addWidget(new QLabel(tr("Select")));
    layout->addWidget(none);
    layout->addWidget(all);
    return row;
}

void SineSelectionWindow::connectToScene()
{
    for (int slot = 0; slot <= kSineApproachCount; ++slot) {
        connect(boxes[slot], &QCheckBox::toggled, scene, kNeedSlots[slot]);
    }
    connect(none, &QPushButton::clicked, scene, &SineOpenGLScene::allUnchoose);
    connect(all, &QPushButton::clicked, scene, &SineOpenGLScene::allchoose);
}

void SineSelectionWindow::synchronise()
{
    for (int slot = 0; slot <= kSineApproachCount; ++slot) {
        const QSignalBlocker blocker(boxes[slot]);
        boxes[slot]->setChecked(scene->isNeeded(slot));
    }
}
