#include "common/gui/PlotFocusWindow.h"

#include "common/core/CFormat.h"
#include "common/gui/CheckBoxStyle.h"
#include "common/gui/FiniteNumberValidator.h"
#include "common/gui/GroupBoxStyle.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <cmath>

namespace quillon
{

namespace
{

// Sets a slider's range and value without signalling and writes the value beside it.
void showOnSlider(QSlider* slider, QLabel* label, int minimum, int maximum, int value)
{
    const QSignalBlocker blocker(slider);
    slider->setRange(minimum, maximum);
    slider->setValue(value);
    label->setText(QString::fromStdString(cformat("%d", value)));
}

// A long number shows its start: its sign and leading digits, not its last decimals.
void showOnEdit(QLineEdit* edit, float value)
{
    edit->setText(QString::fromStdString(cformat("%f", double(value))));
    edit->home(false);
}

// The field's text read as the scenes read it (text that is no number reads as 0); nothing
// when it reads as infinity or NaN.
std::optional<float> finiteNumber(const QLineEdit* edit)
{
    const float value = edit->text().toFloat();
    return std::isfinite(value) ? std::optional<float>(value) : std::nullopt;
}

} // namespace

PlotFocusWindow::PlotFocusWindow()
    : QWidget(nullptr), layout(new QVBoxLayout(this)),
      fixNodes(new QCheckBox(tr("Fix # of nodes to display"))), yMin(new QLineEdit),
      yMax(new QLineEdit), refusal(new QLabel)
{
    setWindowTitle(tr("Region focus"));
    setFont(QFont(QStringLiteral("Arial")));
    layout->addWidget(makeXGroup());
    layout->addWidget(makeYGroup());
}

QWidget* PlotFocusWindow::makeXGroup()
{
    auto* group = new QGroupBox(tr("Focus on X dimension"));
    group->setStyleSheet(groupBoxStyleSheet());
    auto* grid = new QGridLayout(group);
    startPoint = addSlider(grid, 0, tr("Start point"), startValue);
    endPoint = addSlider(grid, 1, tr("End point"), endValue);
    stepSize = addSlider(grid, 2, tr("Step size"), stepValue);
    startValue->setObjectName(QStringLiteral("startValue"));
    endValue->setObjectName(QStringLiteral("endValue"));
    stepValue->setObjectName(QStringLiteral("stepValue"));
    fixNodes->setStyleSheet(checkBoxStyleSheet());
    grid->addWidget(fixNodes, 3, 0, 1, 3);
    return group;
}

QWidget* PlotFocusWindow::makeYGroup()
{
    auto* group = new QGroupBox(tr("Focus on Y dimension"));
    group->setStyleSheet(groupBoxStyleSheet());
    auto* grid = new QGridLayout(group);
    grid->addWidget(new QLabel(tr("Y Min:")), 0, 0);
    grid->addWidget(yMin, 0, 1);
    grid->addWidget(new QLabel(tr("Y Max:")), 1, 0);
    grid->addWidget(yMax, 1, 1);
    refusal->setObjectName(QStringLiteral("yRefusal"));
    refusal->setStyleSheet(QStringLiteral("color: red"));
    refusal->hide();
    grid->addWidget(refusal, 2, 0, 1, 2);
    for (QLineEdit* edit : {yMin, yMax}) {
        edit->setValidator(new FiniteNumberValidator(edit));
        connect(edit, &QLineEdit::inputRejected, refusal,
                [this] { showRefusal(tr("Only finite numbers")); });
        connect(edit, &QLineEdit::textEdited, refusal, [this] { showRefusal(QString()); });
    }
    return group;
}

QSlider* PlotFocusWindow::addSlider(QGridLayout* grid, int row, const QString& caption,
                                    QLabel*& value)
{
    auto* slider = new QSlider(Qt::Horizontal);
    value = new QLabel;
    value->setMinimumWidth(48);
    grid->addWidget(new QLabel(caption), row, 0);
    grid->addWidget(slider, row, 1);
    grid->addWidget(value, row, 2);
    return slider;
}

void PlotFocusWindow::addButtonRow(std::initializer_list<QPushButton*> buttons)
{
    auto* row = new QHBoxLayout;
    for (QPushButton* button : buttons) {
        row->addWidget(button);
    }
    layout->addLayout(row);
}

void PlotFocusWindow::showFocus(const PlotXWindow& window, int n, float yMinimum, float yMaximum)
{
    showOnSlider(startPoint, startValue, 0, window.end - 1, window.start);
    showOnSlider(endPoint, endValue, window.start, n - 1, window.end);
    showOnSlider(stepSize, stepValue, 1, n - 1, window.step);
    showOnEdit(yMin, yMinimum);
    showOnEdit(yMax, yMaximum);
}

bool PlotFocusWindow::fixesNodeCount() const
{
    return fixNodes->isChecked();
}

QString PlotFocusWindow::yMinText() const
{
    return yMin->text();
}

QString PlotFocusWindow::yMaxText() const
{
    return yMax->text();
}

void PlotFocusWindow::showRefusal(const QString& text)
{
    refusal->setText(text);
    refusal->setVisible(!text.isEmpty());
}

std::optional<float> PlotFocusWindow::yMinNumber() const
{
    return finiteNumber(yMin);
}

std::optional<float> PlotFocusWindow::yMaxNumber() const
{
    return finiteNumber(yMax);
}

} // namespace quillon
