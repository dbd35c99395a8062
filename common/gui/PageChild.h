#pragma once

#include <QString>
#include <QWidget>

namespace quillon
{

// The widget named `name` on a tab's page of the main window's form. The form and the code that
// reads it belong together; a missing widget is a programming error, reported at once.
template <typename Widget> Widget* pageChild(QWidget* page, const QString& name)
{
    auto* widget = page->findChild<Widget*>(name);
    if (widget == nullptr) {
        qFatal("the page %s has no widget named %s", qPrintable(page->objectName()),
               qPrintable(name));
    }
    return widget;
}

} // namespace quillon
