#include "sine/gui/SineAxisHeadings.h"

#include <QGridLayout>
#include <QLabel>

QString sineInputName(SineInput input)
{
    return input == SineInput::Original ? QStringLiteral("Original X")
                                        : QStringLiteral("Reduced X");
}

QString sineTermMethodName(SineTermMethod method)
{
    return method == SineTermMethod::DirectEvaluation ? QStringLiteral("Direct evaluation")
                                                      : QStringLiteral("Term update");
}

QString sineSummationName(SineSummation summation)
{
    switch (summation) {
    case SineSummation::Naive:
        return QStringLiteral("Naive");
    case SineSummation::NegPos:
        return QStringLiteral("NegPos");
    case SineSummation::Kahan:
        return QStringLiteral("Kahan");
    }
    return {};
}

QLabel* sineTableCell(const QString& text)
{
    auto* cell = new QLabel(text);
    cell->setAlignment(Qt::AlignCenter);
    cell->setFrameShape(QFrame::Box);
    cell->setFrameShadow(QFrame::Plain);
    cell->setMargin(2);
    return cell;
}

void addSineHeadingRuns(QGridLayout* grid, Qt::Orientation along, int line, int first, int run,
                        const std::function<QString(const SineApproach&)>& heading)
{
    for (int k = 0; k < kSineApproachCount; k += run) {
        QLabel* cell = sineTableCell(heading(sineApproaches()[k]));
        if (along == Qt::Horizontal) {
            grid->addWidget(cell, line, first + k, 1, run);
        } else {
            grid->addWidget(cell, first + k, line, run, 1);
        }
    }
}
