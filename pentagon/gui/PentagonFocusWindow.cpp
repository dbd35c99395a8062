#include "pentagon/gui/PentagonFocusWindow.h"

#include "common/core/CFormat.h"
#include "common/gui/GroupBoxStyle.h"
#include "pentagon/gui/PentagonOpenGLScene.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

PentagonFocusWindow::PentagonFocusWindow(PentagonOpenGLScene* scene) : QWidget(nullptr)
{
    setWindowTitle(tr("Region focus"));
    setFont(QFont(QStringLiteral("Arial")));
    setStyleSheet(quillon::groupBoxStyleSheet());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeGroup(tr("Focus on X dimension"), 0, tr("X Min:"), tr("X Max:")));
    layout->addWidget(makeGroup(tr("Focus on Y dimension"), 2, tr("Y Min:"), tr("Y Max:")));
    auto* apply = new QPushButton(tr("Apply"));
    auto* reset = new QPushButton(tr("Reset"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(apply);
    buttons->addWidget(reset);
    layout->addLayout(buttons);

    connect(fields[0], &QLineEdit::returnPressed, scene, &PentagonOpenGLScene::updateXmin);
    connect(fields[1], &QLineEdit::returnPressed, scene, &PentagonOpenGLScene::updateXmax);
    connect(fields[2], &QLineEdit::returnPressed, scene, &PentagonOpenGLScene::updateYmin);
    connect(fields[3], &QLineEdit::returnPressed, scene, &PentagonOpenGLScene::updateYmax);
    connect(reset, &QPushButton::clicked, scene, &PentagonOpenGLScene::resetXY);
    connect(apply, &QPushButton::clicked, scene, &PentagonOpenGLScene::XYapply);
}

QWidget* PentagonFocusWindow::makeGroup(const QString& title, int first, const QString& lowCaption,
                                        const QString& highCaption)
{
    auto* group = new QGroupBox(title);
    auto* grid = new QGridLayout(group);
    const QString captions[] = {lowCaption, highCaption};
    for (int row = 0; row < 2; ++row) {
        // Until the scene first shows its range.
        fields[first + row] = new QLineEdit(QStringLiteral("-1.0"));
        grid->addWidget(new QLabel(captions[row]), row, 0);
        grid->addWidget(fields[first + row], row, 1);
    }
    return group;
}

void PentagonFocusWindow::showRange(const PentagonRange& range)
{
    const float values[] = {range.xMin, range.xMax, range.yMin, range.yMax};
    for (int i = 0; i < 4; ++i) {
        fields[i]->setText(QString::fromStdString(quillon::cformat("%f", double(values[i]))));
        // A long number shows its sign and leading digits, not its last decimals.
        fields[i]->home(false);
    }
}
