#pragma once

#include <QString>
#include <functional>

class QAbstractButton;
class QAction;
class QColor;
class QGraphicsView;
class QImage;
class QLineEdit;
class QMainWindow;
class QPoint;
class QWidget;

// The action titled `actionText` in the menu titled `menuTitle` of the window's menu bar as
// it is now; null when there is none.
QAction* menuBarAction(QMainWindow& window, const QString& menuTitle, const QString& actionText);

// Triggers the menu entry and returns the visible top-level window titled `title` that it
// shows; null when the entry is missing or disabled or no such window shows.
QWidget* popMenuWindow(QMainWindow& window, const QString& menuTitle, const QString& actionText,
                       const QString& title);

// Answers the next modal dialog: shortly after one opens, `answer` is called with it and
// should close it; a dialog still open afterwards is closed. Call before the action that
// opens the dialog.
void answerNextModalDialog(std::function<void(QWidget*)> answer);

// Whether the image holds a pixel of exactly this colour between columns fromX and toX (toX
// -1: the right edge). Plots are drawn without smoothing, so a curve's pixels have its exact
// colour.
bool hasColor(const QImage& image, const QColor& color, int fromX = 0, int toX = -1);

// Moves the pointer to `pos` in the widget and delivers the move before it returns.
// QTest::mouseMove only asks the X server to move its pointer; the server's motion event can
// come back after the next click, which then lands where the pointer was before.
void movePointer(QWidget* widget, const QPoint& pos);

// Clicks a check box or radio button on its indicator, where a person clicks it (a click far
// right of a wide button's text does nothing).
void clickIndicator(QAbstractButton* button);

// Replaces a line edit's text by typing, as a person does: select all, delete, type.
void retype(QLineEdit* edit, const QString& text);

// Chooses `path` in the file dialog that the File menu's entry opens. False when the entry is
// missing or disabled.
bool chooseFileThroughMenu(QMainWindow& window, const QString& entry, const QString& path);

// Shows the window, chooses its tab number `tab` and waits until the plot view on the page's
// placeholder `placeholder` is exposed and laid out; returns that view, or null (after a
// failed check) when it never was.
QGraphicsView* showPlotTab(QMainWindow& window, int tab, const char* placeholder);

// showPlotTab, then stops that tab's animation timer (object name `timer`), so that a test
// ticks the animation itself.
QGraphicsView* showStoppedPlotTab(QMainWindow& window, int tab, const char* placeholder,
                                  const char* timer);

// The plot view's last frame as OpenGL drew it.
QImage grabPlotFrame(QGraphicsView* view);
