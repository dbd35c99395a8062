#include "app/AuxiliaryWindowSet.h"

#include <QObject>
#include <QWidget>

const char* popSlotOf(AuxWindow window)
{
    static const char* const popSlots[] = {
        SLOT(roots_popHelpWindow()),        SLOT(roots_popUserMenu()),
        SLOT(roots_popOverviewWindow()),    SLOT(pentagon_popColorMapWindow()),
        SLOT(pentagon_popMiniMapWindow()),  SLOT(pentagon_popSettingWindow()),
        SLOT(pentagon_popHelpWindow()),     SLOT(pentagon_popUserMenu()),
        SLOT(pentagon_popOverviewWindow()), SLOT(asso_popColorMapWindow()),
        SLOT(asso_popSelectionWindow()),    SLOT(asso_popSettingWindow()),
        SLOT(asso_popHelpWindow()),         SLOT(asso_popUserMenu()),
        SLOT(asso_popOverviewWindow()),     SLOT(sine_popSelectionWindow()),
        SLOT(sine_popStatusWindow()),       SLOT(sine_popColorMapWindow()),
        SLOT(sine_popSettingWindow()),      SLOT(sine_popHelpWindow()),
        SLOT(sine_popUserMenu()),           SLOT(sine_popOverviewWindow()),
        SLOT(popInspectorWindow()),
    };
    static_assert(std::size(popSlots) == static_cast<size_t>(AuxWindow::Count));
    return popSlots[static_cast<size_t>(window)];
}

AuxiliaryWindowSet::AuxiliaryWindowSet() = default;
AuxiliaryWindowSet::~AuxiliaryWindowSet() = default;

void AuxiliaryWindowSet::install(AuxWindow window, QWidget* widget)
{
    windows[static_cast<size_t>(window)].reset(widget);
}

QWidget* AuxiliaryWindowSet::get(AuxWindow window) const
{
    return windows[static_cast<size_t>(window)].get();
}

void AuxiliaryWindowSet::pop(AuxWindow window) const
{
    QWidget* widget = get(window);
    if (widget != nullptr && !widget->isVisible()) {
        widget->show();
    }
}

void AuxiliaryWindowSet::closeAll() const
{
    for (const auto& widget : windows) {
        if (widget) {
            widget->close();
        }
    }
}
