#include "inspect/gui/InspectorWindow.h"

#include "inspect/gui/InspectorBits.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

QString lineValue(const std::vector<ReportLine>& lines, const char* name)
{
    for (const ReportLine& line : lines) {
        if (line.name == name) {
            return QString::fromStdString(line.value);
        }
    }
    return QString();
}

// The bit pattern's hexadecimal digits written out as bits.
QString bitString(const QString& hexPattern, int width)
{
    const qulonglong bits = hexPattern.mid(2).toULongLong(nullptr, 16);
    return QStringLiteral("%1").arg(bits, width, 2, QLatin1Char('0'));
}

// The exact decimal with its first `agreeing` significant digits on a green ground.
QString highlightedDecimal(const QString& decimal, int agreeing)
{
    QString html;
    int significant = 0;
    bool started = false;
    for (const QChar ch : decimal) {
        if (ch.isDigit() && (started || ch != QLatin1Char('0'))) {
            started = true;
            ++significant;
            if (significant <= agreeing) {
                html +=
                    QStringLiteral("<span style=\"background-color:#b8f0b8\">%1</span>").arg(ch);
                continue;
            }
        }
        html += ch;
    }
    return html;
}

} // namespace

InspectorWindow::InspectorWindow()
    : QWidget(nullptr), sourceLabel(new QLabel), bitBoxes(new InspectorBits),
      decimalLabel(new QLabel), reportView(new QPlainTextEdit), noteLabel(new QLabel),
      copy(new QPushButton(tr("Copy")))
{
    setWindowTitle(tr("Inspector"));
    sourceLabel->setObjectName(QStringLiteral("inspector_source"));
    decimalLabel->setObjectName(QStringLiteral("inspector_decimal"));
    reportView->setObjectName(QStringLiteral("inspector_report"));
    noteLabel->setObjectName(QStringLiteral("inspector_note"));
    QFont bold = sourceLabel->font();
    bold.setBold(true);
    sourceLabel->setFont(bold);
    sourceLabel->setText(tr("Pick a number: a cell of the Roots grid, a node of a plot or a "
                            "vertex of a pentagon."));
    sourceLabel->setWordWrap(true);
    decimalLabel->setWordWrap(true);
    decimalLabel->setTextFormat(Qt::RichText);
    decimalLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    reportView->setReadOnly(true);
    reportView->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    // Names end before the values start: the longest, "unbiased exponent", is 17 characters.
    reportView->setTabStopDistance(reportView->fontMetrics().horizontalAdvance(QLatin1Char(' ')) *
                                   19);
    reportView->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    noteLabel->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(sourceLabel);
    layout->addWidget(bitBoxes);
    layout->addWidget(decimalLabel);
    layout->addWidget(reportView, 1);
    layout->addWidget(noteLabel);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(copy);
    layout->addLayout(buttons);
    connect(copy, &QPushButton::clicked, this, &InspectorWindow::copyReport);
    resize(680, 560);
}

void InspectorWindow::inspect(const Inspection& inspection)
{
    const std::vector<ReportLine> lines =
        inspectionReport(inspection.value, inspection.format,
                         inspection.reference ? inspection.reference->get() : nullptr);
    const bool single = inspection.format == FloatFormat::Single;
    sourceLabel->setText(inspection.source);
    bitBoxes->showBits(bitString(lineValue(lines, "bits"), single ? 32 : 64), single ? 8 : 11);
    const QString agreeing = lineValue(lines, "correct digits");
    const QString decimal = lineValue(lines, "exact decimal");
    decimalLabel->setText(highlightedDecimal(
        decimal, agreeing == QLatin1String("exact") ? int(decimal.size()) : agreeing.toInt()));
    QString text = QString::fromStdString(::reportText(lines));
    if (!inspection.context.empty()) {
        text += QLatin1Char('\n') + QString::fromStdString(::reportText(inspection.context));
    }
    reportView->setPlainText(text);
    noteLabel->setText(inspection.referenceNote);
    report = inspection.source + QLatin1Char('\n') + text +
             (inspection.referenceNote.isEmpty() ? QString()
                                                 : inspection.referenceNote + QLatin1Char('\n'));
}

void InspectorWindow::showNothing(const QString& source, const QString& reason)
{
    sourceLabel->setText(source);
    bitBoxes->showBits(QString(), 0);
    decimalLabel->clear();
    reportView->setPlainText(reason);
    noteLabel->clear();
    report = source + QLatin1Char('\n') + reason + QLatin1Char('\n');
}

void InspectorWindow::copyReport() const
{
    QApplication::clipboard()->setText(report);
}
