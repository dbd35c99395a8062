#include "common/gui/HelpTextWindow.h"

#include <QResizeEvent>
#include <QTextBrowser>

HelpTextWindow::HelpTextWindow(const QString& title, const QString& text)
    : QWidget(nullptr), textBrowser(new QTextBrowser(this))
{
    setWindowTitle(title);
    textBrowser->setReadOnly(true);
    textBrowser->setPlainText(text);
    textBrowser->setGeometry(1, 1, width() - 2, height() - 2);
}

void HelpTextWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    textBrowser->setGeometry(1, 1, event->size().width() - 2, event->size().height() - 2);
}
