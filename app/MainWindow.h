#pragma once

#include "app/AuxiliaryWindowSet.h"
#include "app/MenuTable.h"
#include "app/ModuleFileActions.h"
#include "common/picture/PictureFile.h"
#include "pentagon/engine/PentagonFiles.h"

#include <QMainWindow>
#include <array>
#include <memory>

class AssoOpenGLScene;
class RootsPage;
class GraphicsView;
class PentagonOpenGLScene;
class SineOpenGLScene;
class TabMenuSet;
class QGraphicsScene;
class QTimer;

namespace quillon
{
class OpenGLPlotScene;
}

namespace Ui
{
class MainWindowClass;
}

// The program's one top-level window: a tab per demonstration, the menu bar of the current
// tab, and ownership of every module object and auxiliary window. Modules plug in through
// installAuxiliaryWindow() and setFileRoutine(); until something is installed behind a menu
// entry, that entry stays disabled.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // Takes ownership of `widget` as the given auxiliary window and enables its menu entry.
    void installAuxiliaryWindow(AuxWindow window, QWidget* widget);

    // Makes `routine` receive the names chosen for the file action and enables its entry.
    void setFileRoutine(FileAction action, FileRoutine routine);

public slots:
    void roots_updateA();
    void roots_updateB();
    void roots_updateC();
    void roots_calculate();
    void roots_useExample1();
    void roots_useExample2();
    void roots_useExample3();
    void roots_saveTXTFile();
    void roots_popHelpWindow();
    void roots_popUserMenu();
    void pentagon_openFile();
    void pentagon_saveFile();
    void pentagon_popColorMapWindow();
    void pentagon_popMiniMapWindow();
    void pentagon_popSettingWindow();
    void pentagon_popHelpWindow();
    void pentagon_popUserMenu();
    void pentagon_saveTXTFile();
    void asso_openFile();
    void asso_saveFile();
    void asso_popSettingWindow();
    void asso_popSelectionWindow();
    void asso_popColorMapWindow();
    void asso_popHelpWindow();
    void asso_popUserMenu();
    void asso_saveTXTFile();
    void asso_saveCSVFile();
    void sine_openFile();
    void sine_saveFile();
    void sine_popSettingWindow();
    void sine_popSelectionWindow();
    void sine_popStatusWindow();
    void sine_popColorMapWindow();
    void sine_popHelpWindow();
    void sine_popUserMenu();
    void sine_saveTXTFile();
    void sine_saveCSVFile();
    void tab_Index_Changed(int index);
    // "&Export picture ...", an addition just above each tab's "&Exit".
    void roots_exportPicture();
    void pentagon_exportPicture();
    void asso_exportPicture();
    void sine_exportPicture();
    // "&Inspector ...", an addition at the end of every tab's last tool menu.
    void popInspectorWindow();
    // "&What am I looking at? ...", an addition after each tab's described Help entries.
    void roots_popOverviewWindow();
    void pentagon_popOverviewWindow();
    void asso_popOverviewWindow();
    void sine_popOverviewWindow();
    // The target of every "&Exit" entry: closes this window and every auxiliary window.
    void closeEvent();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildMenus();
    void setUpRootsTab();
    void setUpPentagonTab();
    void connectPentagonPanel();
    void setUpAssoTab();
    void setUpSineTab();
    void setUpInspector();
    void setUpAnimationKeys();
    void connectSinePanel();
    void installSineOverview();
    void enableActionFor(const char* slot);
    // Asks for a file and a size, then writes the picture `describe` gives, laid out from a
    // view of `referenceSize`; `viewSize` is the size the tab shows it at now.
    void exportPicture(const quillon::PictureDescriber& describe, QSize viewSize,
                       QSize referenceSize);
    GraphicsView* attachPlotView(QWidget* placeholder, QGraphicsScene* scene);
    void layOutPages(int width, int height);
    static void layOutPlotPage(QWidget* placeholder, QWidget* panel, GraphicsView* view, int width,
                               int height);
    std::array<quillon::OpenGLPlotScene*, TabCount> plotScenesByTab() const;

    std::unique_ptr<Ui::MainWindowClass> ui;
    AuxiliaryWindowSet auxiliaryWindows;
    ModuleFileActions fileActions;
    std::array<std::unique_ptr<TabMenuSet>, TabCount> menuSets;

    std::unique_ptr<RootsPage> rootsPage;
    PentagonColorSettings pentagonColors;
    PentagonOpenGLScene* pentagonScene = nullptr;
    QTimer* pentagonTimer = nullptr;
    GraphicsView* pentagonView = nullptr;
    AssoOpenGLScene* assoScene = nullptr;
    QTimer* assoTimer = nullptr;
    QTimer* sineTimer = nullptr;
    GraphicsView* assoView = nullptr;
    SineOpenGLScene* sineScene = nullptr;
    GraphicsView* sineView = nullptr;
};
