#include "app/InspectorPicker.h"

#include "inspect/gui/InspectorWindow.h"
#include "inspect/gui/RootsInspection.h"
#include "roots/gui/RootsPage.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>

InspectorPicker::InspectorPicker(InspectorWindow* window, const RootsPage& rootsPage,
                                 QObject* parent)
    : QObject(parent), window(window), rootsPage(rootsPage)
{
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            rootsPage.valueCell(RootsRow(row), variant)->installEventFilter(this);
        }
    }
}

bool InspectorPicker::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonRelease ||
        static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) {
        return false;
    }
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            if (watched == rootsPage.valueCell(RootsRow(row), variant)) {
                pickRootsCell(row, variant);
                return true;
            }
        }
    }
    return false;
}

void InspectorPicker::pickRootsCell(int row, int variant)
{
    const auto picked = rootsInspection(rootsPage.solver(), RootsRow(row), variant);
    if (const auto* inspection = std::get_if<Inspection>(&picked)) {
        window->inspect(*inspection);
    } else {
        window->showNothing(rootsCellSource(RootsRow(row), variant), std::get<QString>(picked));
    }
    showWindow();
}

void InspectorPicker::showWindow()
{
    if (!window->isVisible()) {
        window->show();
    }
}
