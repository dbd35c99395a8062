#pragma once

#include <array>
#include <memory>

class QWidget;

// The twenty-two auxiliary windows of the four tabs and the inspector, each opened by one pop
// slot of the main window.
enum class AuxWindow {
    RootsHelp,
    RootsUserMenu,
    RootsOverview,
    PentagonColorMap,
    PentagonMiniMap,
    PentagonFocus,
    PentagonHelp,
    PentagonUserMenu,
    PentagonOverview,
    AssoColorMap,
    AssoSelection,
    AssoFocus,
    AssoHelp,
    AssoUserMenu,
    AssoOverview,
    SineSelection,
    SineStatus,
    SineColorMap,
    SineFocus,
    SineHelp,
    SineUserMenu,
    SineOverview,
    Inspector,
    Count
};

// The main-window slot (in SLOT() form) that shows the window.
const char* popSlotOf(AuxWindow window);

// Owns the auxiliary windows: parentless, modeless top-level widgets created once and kept
// for the main window's lifetime. A module installs each of its windows here; a slot whose
// window is not installed has nothing to show.
class AuxiliaryWindowSet
{
public:
    AuxiliaryWindowSet();
    ~AuxiliaryWindowSet();
    AuxiliaryWindowSet(const AuxiliaryWindowSet&) = delete;
    AuxiliaryWindowSet& operator=(const AuxiliaryWindowSet&) = delete;

    // Takes ownership of `widget` as the given window.
    void install(AuxWindow window, QWidget* widget);
    QWidget* get(AuxWindow window) const;

    // Shows the window when it is hidden. A visible window is left as it is: not raised,
    // not activated.
    void pop(AuxWindow window) const;

    // Closes every installed window.
    void closeAll() const;

private:
    std::array<std::unique_ptr<QWidget>, static_cast<size_t>(AuxWindow::Count)> windows;
};
