#pragma once

#include <QSize>

class QWidget;

namespace quillon
{

// The size a tab page's layout routine places the page's widgets in. The main window offers
// its own width and its height less an allowance for the menu bar, which is more than a page
// gets: the tab bar, the status bar and the frames take their share. Once the tab widget has
// sized its page stack, the stack's size is the real one, the same for every page, shown or
// hidden; before that, the offered size is all there is.
QSize tabPageArea(const QWidget* page, QSize offered);

} // namespace quillon
