#pragma once

#include <QWidget>

class QTextBrowser;

// A top-level window that shows one read-only text: the help and user-menu windows of every
// tab. The browser sits one pixel inside the window's edges and follows its size.
class HelpTextWindow : public QWidget
{
    Q_OBJECT

public:
    HelpTextWindow(const QString& title, const QString& text);

    QTextBrowser* browser() const { return textBrowser; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QTextBrowser* textBrowser;
};
