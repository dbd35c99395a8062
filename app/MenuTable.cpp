#include "app/MenuTable.h"

#include <QObject>
#include <algorithm>
#include <cstring>

const char* const kExitSlot = SLOT(closeEvent());

namespace
{

constexpr QKeySequence::StandardKey NoKey = QKeySequence::UnknownKey;

MenuEntry separator(const char* menu)
{
    return {menu, nullptr, nullptr, NoKey, nullptr};
}

MenuEntry exitEntry()
{
    return {"&File", "&Exit", "Exit", NoKey, kExitSlot};
}

std::vector<MenuEntry> rootsMenus()
{
    return {
        {"&File", "&Save data to a txt file ...", "Save data to a txt file", NoKey,
         SLOT(roots_saveTXTFile())},
        separator("&File"),
        exitEntry(),
        {"&Examples", "&Example 1: regular example", "Use example 1 for demonstration.", NoKey,
         SLOT(roots_useExample1())},
        {"&Examples", "&Example 2: b^2 >> 4ac", "Use example 2 for demonstration.", NoKey,
         SLOT(roots_useExample2())},
        {"&Examples", "&Example 3: b^2 ~ 4ac", "Use example 3 for demonstration.", NoKey,
         SLOT(roots_useExample3())},
        {"&Help", "&About ...", "Show Help", NoKey, SLOT(roots_popHelpWindow())},
        {"&Help", "&Help ...", "Show Help", NoKey, SLOT(roots_popUserMenu())},
    };
}

std::vector<MenuEntry> pentagonMenus()
{
    return {
        {"&File", "&Open a configuration file ...", "Open a fonfigure file", QKeySequence::Open,
         SLOT(pentagon_openFile())},
        {"&File", "&Save to a configuration file ...", "Save to a configuration file ...",
         QKeySequence::Save, SLOT(pentagon_saveFile())},
        {"&File", "&Save data to a txt file ...", "Save data to a txt file", NoKey,
         SLOT(pentagon_saveTXTFile())},
        separator("&File"),
        exitEntry(),
        separator("&Tools"),
        {"&Tools", "&Focus regions ...", "Focus on a particular region", NoKey,
         SLOT(pentagon_popSettingWindow())},
        separator("&Tools"),
        {"&Tools", "&Selections ...", "Select operation history", NoKey,
         SLOT(pentagon_popMiniMapWindow())},
        separator("&Tools"),
        {"&Tools", "&Color map ...", "Show color map", NoKey, SLOT(pentagon_popColorMapWindow())},
        {"&Help", "&About ...", "Show Help", NoKey, SLOT(pentagon_popHelpWindow())},
        {"&Help", "&Help ...", "Show Help", NoKey, SLOT(pentagon_popUserMenu())},
    };
}

std::vector<MenuEntry> assoMenus()
{
    return {
        {"&File", "&Open a configuration file ...", "Open a configuration file", QKeySequence::Open,
         SLOT(asso_openFile())},
        {"&File", "&Save to a configuration file ...", "Save to a configuration file",
         QKeySequence::Save, SLOT(asso_saveFile())},
        separator("&File"),
        {"&File", "&Save data to a txt file ...", "Save data to a txt file", NoKey,
         SLOT(asso_saveTXTFile())},
        {"&File", "&Save data to a csv file ...", "Save data to a CSV file", NoKey,
         SLOT(asso_saveCSVFile())},
        separator("&File"),
        exitEntry(),
        {"&Tools", "&Region focus ...", "Choose focus region", NoKey,
         SLOT(asso_popSettingWindow())},
        separator("&Tools"),
        {"&Tools", "&Selections ...", "Select methods", NoKey, SLOT(asso_popSelectionWindow())},
        separator("&Tools"),
        {"&Tools", "&Color map ...", "Show color map", NoKey, SLOT(asso_popColorMapWindow())},
        {"&Help", "&About ...", "Show Help", NoKey, SLOT(asso_popHelpWindow())},
        {"&Help", "&Help ...", "Show Help", NoKey, SLOT(asso_popUserMenu())},
    };
}

std::vector<MenuEntry> sineMenus()
{
    return {
        {"&File", "&Open a configuration file ...", "Open a configuration file ...",
         QKeySequence::Open, SLOT(sine_openFile())},
        {"&File", "&Save to a configuration file ...", "Save to a configuration file ...",
         QKeySequence::Save, SLOT(sine_saveFile())},
        separator("&File"),
        {"&File", "&Save data to a txt file ...", "Save data to a txt file", NoKey,
         SLOT(sine_saveTXTFile())},
        {"&File", "&Save data to a CSV file ...", "Save data to a CSV file", NoKey,
         SLOT(sine_saveCSVFile())},
        separator("&File"),
        exitEntry(),
        {"&Tools", "&Region focus ...", "Choose focus region", NoKey,
         SLOT(sine_popSettingWindow())},
        separator("&Tools"),
        {"&Tools", "&Selections ...", "Select methods", NoKey, SLOT(sine_popSelectionWindow())},
        separator("&Tools"),
        {"&Tools", "&Status ...", "Method status", NoKey, SLOT(sine_popStatusWindow())},
        separator("&Tools"),
        {"&Tools", "&Color map ...", "Show color map", NoKey, SLOT(sine_popColorMapWindow())},
        {"&Help", "&About ...", "Show Help", NoKey, SLOT(sine_popHelpWindow())},
        {"&Help", "&Help ...", "Show Help", NoKey, SLOT(sine_popUserMenu())},
    };
}

// "&Inspector ...", added after the last entry of the menu `menu` (each tab's last tool menu).
std::vector<MenuEntry> withInspector(std::vector<MenuEntry> entries, const char* menu)
{
    auto last = entries.end();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (std::strcmp(entry->menu, menu) == 0) {
            last = entry + 1;
        }
    }
    entries.insert(last,
                   {menu, "&Inspector ...", "Inspect a number: its bits, exact value and error",
                    NoKey, SLOT(popInspectorWindow()), QKeySequence(Qt::CTRL | Qt::Key_I)});
    return entries;
}

// "&Export picture ...", added just above "&Exit", where desktop programs keep their exports.
std::vector<MenuEntry> withPictureExport(std::vector<MenuEntry> entries, const char* slot)
{
    const auto exit = std::find_if(entries.begin(), entries.end(), [](const MenuEntry& entry) {
        return entry.slot != nullptr && std::strcmp(entry.slot, kExitSlot) == 0;
    });
    entries.insert(exit, {"&File", "&Export picture ...",
                          "Export what the tab shows as a PNG or SVG picture", NoKey, slot});
    return entries;
}

// "&What am I looking at? ...", added after the described entries of the Help menu.
std::vector<MenuEntry> withOverview(std::vector<MenuEntry> entries, const char* slot)
{
    entries.push_back({"&Help", "&What am I looking at? ...",
                       "What the demonstration shows, its colours and its keys", NoKey, slot});
    return entries;
}

} // namespace

const std::vector<MenuEntry>& menuTable(TabIndex tab)
{
    static const std::vector<MenuEntry> tables[TabCount] = {
        withOverview(withInspector(withPictureExport(rootsMenus(), SLOT(roots_exportPicture())),
                                   "&Examples"),
                     SLOT(roots_popOverviewWindow())),
        withOverview(
            withInspector(withPictureExport(pentagonMenus(), SLOT(pentagon_exportPicture())),
                          "&Tools"),
            SLOT(pentagon_popOverviewWindow())),
        withOverview(
            withInspector(withPictureExport(assoMenus(), SLOT(asso_exportPicture())), "&Tools"),
            SLOT(asso_popOverviewWindow())),
        withOverview(
            withInspector(withPictureExport(sineMenus(), SLOT(sine_exportPicture())), "&Tools"),
            SLOT(sine_popOverviewWindow()))};
    return tables[tab];
}
