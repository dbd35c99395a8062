#pragma once

#include "inspect/engine/InspectionReport.h"
#include "inspect/gui/Inspection.h"

#include <QWidget>

class InspectorBits;
class QLabel;
class QPlainTextEdit;
class QPushButton;

// "Inspector": everything about one number the program computed: where it came from, its
// bits as coloured boxes, its exact decimal with the digits that agree with the true value
// highlighted, its neighbours and ulp, the true value and the errors. "Copy" puts the whole
// report on the clipboard as text.
class InspectorWindow : public QWidget
{
    Q_OBJECT

public:
    InspectorWindow();

    void inspect(const Inspection& inspection);
    // Shows why there is nothing to inspect at `source`.
    void showNothing(const QString& source, const QString& reason);

    // The report as "Copy" puts it on the clipboard.
    const QString& reportText() const { return report; }
    QPushButton* copyButton() const { return copy; }

private:
    void copyReport() const;

    QLabel* sourceLabel;
    InspectorBits* bitBoxes;
    QLabel* decimalLabel;
    QPlainTextEdit* reportView;
    QLabel* noteLabel;
    QPushButton* copy;
    QString report;
};
