#include "tests/gui/GuiTestSupport.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QColor>
#include <QCursor>
#include <QGraphicsView>
#include <QImage>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QOpenGLWidget>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>

QAction* menuBarAction(QMainWindow& window, const QString& menuTitle, const QString& actionText)
{
    for (QAction* menuAction : window.menuBar()->actions()) {
        QMenu* menu = menuAction->menu();
        if (menu == nullptr || menu->title() != menuTitle) {
            continue;
        }
        for (QAction* action : menu->actions()) {
            if (action->text() == actionText) {
                return action;
            }
        }
    }
    return nullptr;
}

QWidget* popMenuWindow(QMainWindow& window, const QString& menuTitle, const QString& actionText,
                       const QString& title)
{
    QAction* action = menuBarAction(window, menuTitle, actionText);
    if (action == nullptr || !action->isEnabled()) {
        return nullptr;
    }
    action->trigger();
    for (QWidget* topLevel : QApplication::topLevelWidgets()) {
        if (topLevel->isVisible() && topLevel->windowTitle() == title) {
            return topLevel;
        }
    }
    return nullptr;
}

void answerNextModalDialog(std::function<void(QWidget*)> answer)
{
    auto* poll = new QTimer();
    poll->setInterval(20);
    QObject::connect(poll, &QTimer::timeout, [poll, answer]() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !dialog->isVisible()) {
            return;
        }
        poll->stop();
        poll->deleteLater();
        // Let the dialog finish setting itself up (its folder model loads in the background)
        // before answering, as a person would.
        QTimer::singleShot(150, dialog, [dialog, answer]() {
            answer(dialog);
            // A failed check inside the answer must not leave the test waiting forever.
            if (dialog->isVisible()) {
                dialog->close();
            }
        });
    });
    poll->start();
}

bool hasColor(const QImage& image, const QColor& color, int fromX, int toX)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    const int end = toX < 0 ? rgb.width() : std::min(toX, rgb.width());
    for (int y = 0; y < rgb.height(); ++y) {
        for (int x = std::max(fromX, 0); x < end; ++x) {
            if (QColor(rgb.pixel(x, y)) == color) {
                return true;
            }
        }
    }
    return false;
}

void movePointer(QWidget* widget, const QPoint& pos)
{
    // The server's pointer goes to the same place, so that its late motion event repeats the
    // position instead of taking it back.
    QCursor::setPos(widget->mapToGlobal(pos));
    QWidget* topLevel = widget->window();
    QTest::mouseMove(topLevel->windowHandle(), widget->mapTo(topLevel, pos));
}

void clickIndicator(QAbstractButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
}

void retype(QLineEdit* edit, const QString& text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClicks(edit, text);
}

bool chooseFileThroughMenu(QMainWindow& window, const QString& entry, const QString& path)
{
    QAction* action = menuBarAction(window, QStringLiteral("&File"), entry);
    if (action == nullptr || !action->isEnabled()) {
        return false;
    }
    answerNextModalDialog([path](QWidget* dialog) {
        auto* nameEdit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(nameEdit != nullptr);
        nameEdit->setText(path);
        QTest::keyClick(nameEdit, Qt::Key_Return);
    });
    action->trigger();
    return true;
}

QGraphicsView* showPlotTab(QMainWindow& window, int tab, const char* placeholder)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return nullptr;
    }
    window.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(tab);
    auto* view =
        window.findChild<QWidget*>(QString::fromLatin1(placeholder))->findChild<QGraphicsView*>();
    if (view == nullptr || !QTest::qWaitForWindowExposed(view)) {
        return nullptr;
    }
    const bool laidOut = QTest::qWaitFor([view] { return view->sceneRect().width() > 100; });
    return laidOut ? view : nullptr;
}

QGraphicsView* showStoppedPlotTab(QMainWindow& window, int tab, const char* placeholder,
                                  const char* timer)
{
    QGraphicsView* view = showPlotTab(window, tab, placeholder);
    if (auto* ticks = window.findChild<QTimer*>(QString::fromLatin1(timer))) {
        ticks->stop();
    }
    return view;
}

QImage grabPlotFrame(QGraphicsView* view)
{
    QApplication::processEvents();
    return qobject_cast<QOpenGLWidget*>(view->viewport())->grabFramebuffer();
}
