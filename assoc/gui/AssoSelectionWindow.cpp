#include "assoc/gui/AssoSelectionWindow.h"

#include "assoc/gui/AssoOpenGLScene.h"
#include "common/gui/CheckBoxStyle.h"
#include "common/gui/GroupBoxStyle.h"
#include "common/picture/ImageLookup.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace
{

// The formula image of an order at the height of a check box row.
QIcon formulaIcon(int order)
{
    return QIcon(
        QPixmap::fromImage(quillon::loadImage(QStringLiteral("func%1.png").arg(order + 1))));
}

constexpr QSize kFormulaIconSize(296, 20);

} // namespace

AssoSelectionWindow::AssoSelectionWindow(AssoOpenGLScene* scene)
    : QWidget(nullptr), scene(scene), comparison(new QCheckBox(tr("Show comparison")))
{
    setWindowTitle(tr("Selections"));
    setFont(QFont(QStringLiteral("Arial")));
    // One sheet for the window: both boxes and every check box (the radio buttons keep the
    // plain look).
    setStyleSheet(quillon::groupBoxStyleSheet() + quillon::checkBoxStyleSheet());

    auto* functions = new QGroupBox(tr("Function visualization"));
    auto* functionsLayout = new QVBoxLayout(functions);
    functionsLayout->addWidget(new QLabel(tr("Select the function to render:")));
    auto* baseGroup = new QGroupBox(tr("Comparison"));
    auto* baseLayout = new QVBoxLayout(baseGroup);
    baseLayout->addWidget(comparison);
    baseLayout->addWidget(new QLabel(tr("Select the base function:")));
    auto* exclusive = new QButtonGroup(this);
    for (int k = 0; k < kAssoOrderCount; ++k) {
        orders[k] = new QCheckBox;
        orders[k]->setIcon(formulaIcon(k));
        orders[k]->setIconSize(kFormulaIconSize);
        functionsLayout->addWidget(orders[k]);
        bases[k] = new QRadioButton;
        bases[k]->setIcon(formulaIcon(k));
        bases[k]->setIconSize(kFormulaIconSize);
        exclusive->addButton(bases[k]);
        baseLayout->addWidget(bases[k]);
    }
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(functions);
    layout->addWidget(baseGroup);

    synchronise();
    connect(orders[0], &QCheckBox::toggled, scene, &AssoOpenGLScene::needFunc0);
    connect(orders[1], &QCheckBox::toggled, scene, &AssoOpenGLScene::needFunc1);
    connect(orders[2], &QCheckBox::toggled, scene, &AssoOpenGLScene::needFunc2);
    connect(orders[3], &QCheckBox::toggled, scene, &AssoOpenGLScene::needFunc3);
    connect(orders[4], &QCheckBox::toggled, scene, &AssoOpenGLScene::needFunc4);
    connect(comparison, &QCheckBox::toggled, scene, &AssoOpenGLScene::needErrorComparison);
    connect(comparison, &QCheckBox::toggled, this, &AssoSelectionWindow::setChecks);
    connect(bases[0], &QRadioButton::toggled, scene, &AssoOpenGLScene::setBaseFunc1);
    connect(bases[1], &QRadioButton::toggled, scene, &AssoOpenGLScene::setBaseFunc2);
    connect(bases[2], &QRadioButton::toggled, scene, &AssoOpenGLScene::setBaseFunc3);
    connect(bases[3], &QRadioButton::toggled, scene, &AssoOpenGLScene::setBaseFunc4);
    connect(bases[4], &QRadioButton::toggled, scene, &AssoOpenGLScene::setBaseFunc5);
}

void AssoSelectionWindow::setChecks()
{
    const bool comparing = comparison->isChecked();
    for (QRadioButton* base : bases) {
        base->setCheckable(comparing);
        // Changing checkability clears the check mark without repainting the button.
        base->update();
    }
    if (comparing) {
        showBaseOrder();
    }
}

// Checked through the exclusive group, which unchecks whichever button it last knew as
// checked; the scene ignores that button's toggled(false).
void AssoSelectionWindow::showBaseOrder()
{
    QRadioButton* base = bases[scene->baseFunction()];
    const QSignalBlocker blocker(base);
    base->setChecked(true);
}

void AssoSelectionWindow::synchronise()
{
    for (int k = 0; k < kAssoOrderCount; ++k) {
        const QSignalBlocker blocker(orders[k]);
        orders[k]->setChecked(scene->isFuncNeeded(k));
    }
    {
        const QSignalBlocker blocker(comparison);
        comparison->setChecked(scene->isComparing());
    }
    setChecks();
}
