#include "common/gui/TabPageArea.h"

#include <QWidget>

namespace quillon
{

QSize tabPageArea(const QWidget* page, QSize offered)
{
    const QWidget* stack = page->parentWidget();
    if (stack == nullptr || !stack->testAttribute(Qt::WA_Resized)) {
        return offered;
    }
    return stack->contentsRect().size();
}

} // namespace quillon
