#include "app/MainWindow.h"

#include "app/AnimationKeys.h"
#include "app/GraphicsView.h"
#include "app/PickGestures.h"
#include "app/PictureExportDialog.h"
#include "app/TabMenuSet.h"
#include "assoc/gui/AssoColorMap.h"
#include "assoc/gui/AssoFocusWindow.h"
#include "assoc/gui/AssoHelpWindow.h"
#include "assoc/gui/AssoOpenGLScene.h"
#include "assoc/gui/AssoOverviewWindow.h"
#include "assoc/gui/AssoSelectionWindow.h"
#include "assoc/gui/AssoUserMenu.h"
#include "common/gui/FileRoutines.h"
#include "common/gui/TabPageArea.h"
#include "inspect/gui/InspectorWindow.h"
#include "pentagon/gui/PentagonColorMap.h"
#include "pentagon/gui/PentagonFocusWindow.h"
#include "pentagon/gui/PentagonHelpWindow.h"
#include "pentagon/gui/PentagonMiniMap.h"
#include "pentagon/gui/PentagonOpenGLScene.h"
#include "pentagon/gui/PentagonOverviewWindow.h"
#include "pentagon/gui/PentagonPanel.h"
#include "pentagon/gui/PentagonUserMenu.h"
#include "roots/gui/RootsHelpWindow.h"
#include "roots/gui/RootsOverviewWindow.h"
#include "roots/gui/RootsPage.h"
#include "roots/gui/RootsUserMenu.h"
#include "sine/gui/SineColorMap.h"
#include "sine/gui/SineFocusWindow.h"
#include "sine/gui/SineHelpWindow.h"
#include "sine/gui/SineOpenGLScene.h"
#include "sine/gui/SineOverviewWindow.h"
#include "sine/gui/SineSelectionWindow.h"
#include "sine/gui/SineStatusWindow.h"
#include "sine/gui/SineUserMenu.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QResizeEvent>
#include <QTimer>

namespace
{

// The content size the pages are laid out for before the window is first shown.
constexpr int kInitialContentWidth = 800;
constexpr int kInitialContentHeight = 570;
// The part of the window's height that the menu bar takes.
constexpr int kMenuBarAllowance = 30;
// The title of every tab's "What am I looking at?" window.
const QString kOverviewTitle = QStringLiteral("What am I looking at?");

// A plotting scene's picture of what its view shows, for a file.
template <typename Scene> quillon::PictureDescriber filePictureOf(const Scene* scene)
{
    return [scene](QSize size) { return scene->picture(size, quillon::PictureUse::File); };
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), ui(std::make_unique<Ui::MainWindowClass>())
{
    ui->setupUi(this);
    setWindowTitle(QStringLiteral("Quillon"));
    ui->tabWidget->setFont(QFont(QStringLiteral("Arial")));
    buildMenus();
    setUpRootsTab();

    setUpPentagonTab();
    setUpAssoTab();
    setUpSineTab();
    setUpInspector();
    setUpAnimationKeys();

    connect(ui->tabWidget, &QTabWidget::currentChanged, this, &MainWindow::tab_Index_Changed);
    tab_Index_Changed(RootsTab);
    layOutPages(kInitialContentWidth, kInitialContentHeight);
    ui->roots_win->parentWidget()->installEventFilter(this);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildMenus()
{
    for (int tab = 0; tab < TabCount; ++tab) {
        menuSets[tab] = std::make_unique<TabMenuSet>(menuTable(static_cast<TabIndex>(tab)), this);
        for (QMenu* menu : menuSets[tab]->menus()) {
            for (QAction* action : menu->actions()) {
                action->setEnabled(false);
            }
        }
    }
    enableActionFor(kExitSlot);
}

// Enables the entry of `slot` in every tab that has one (each tab has its own "&Exit").
void MainWindow::enableActionFor(const char* slot)
{
    for (const auto& menuSet : menuSets) {
        if (QAction* action = menuSet->actionForSlot(slot)) {
            action->setEnabled(true);
        }
    }
}

void MainWindow::setUpRootsTab()
{
    rootsPage = std::make_unique<RootsPage>(ui->roots_win);
    installAuxiliaryWindow(AuxWindow::RootsHelp, new RootsHelpWindow(tr("About")));
    enableActionFor(SLOT(roots_exportPicture()));
    installAuxiliaryWindow(AuxWindow::RootsUserMenu, new RootsUserMenu(tr("Help")));
    installAuxiliaryWindow(AuxWindow::RootsOverview, new RootsOverviewWindow(kOverviewTitle));
    connect(ui->roots_a_value, &QLineEdit::returnPressed, this, &MainWindow::roots_updateA);
    connect(ui->roots_b_value, &QLineEdit::returnPressed, this, &MainWindow::roots_updateB);
    connect(ui->roots_c_value, &QLineEdit::returnPressed, this, &MainWindow::roots_updateC);
    connect(ui->roots_calculate, &QPushButton::clicked, this, &MainWindow::roots_calculate);
    setFileRoutine(FileAction::RootsSaveTxt,
                   [this](const QString& fileName) { return rootsPage->saveTextData(fileName); });
    for (const char* slot :
         {SLOT(roots_useExample1()), SLOT(roots_useExample2()), SLOT(roots_useExample3())}) {
        enableActionFor(slot);
    }
}

void MainWindow::setUpPentagonTab()
{
    pentagonScene =
        new PentagonOpenGLScene(PentagonPanel::find(ui->pentagon_win), &pentagonColors, this);
    auto* focus = new PentagonFocusWindow(pentagonScene);
    auto* miniMap = new PentagonMiniMap(pentagonScene);
    pentagonScene->setFocusWindow(focus);
    pentagonScene->setMiniMap(miniMap);
    installAuxiliaryWindow(AuxWindow::PentagonColorMap, new PentagonColorMap(pentagonScene));
    installAuxiliaryWindow(AuxWindow::PentagonMiniMap, miniMap);
    installAuxiliaryWindow(AuxWindow::PentagonFocus, focus);
    installAuxiliaryWindow(AuxWindow::PentagonHelp, new PentagonHelpWindow(tr("About")));
    installAuxiliaryWindow(AuxWindow::PentagonUserMenu, new PentagonUserMenu(tr("Help")));
    installAuxiliaryWindow(AuxWindow::PentagonOverview, new PentagonOverviewWindow(kOverviewTitle));
    pentagonView = attachPlotView(ui->pentagon_VisWindow, pentagonScene);
    connectPentagonPanel();

    PentagonOpenGLScene* scene = pentagonScene;
    setFileRoutine(FileAction::PentagonOpen,
                   [scene](const QString& name) { return scene->loadConfiguration(name); });
    setFileRoutine(FileAction::PentagonSave,
                   [scene](const QString& name) { return scene->saveConfiguration(name); });
    setFileRoutine(FileAction::PentagonSaveTxt,
                   [scene](const QString& name) { return scene->saveHistoryText(name); });
    enableActionFor(SLOT(pentagon_exportPicture()));
    pentagonTimer = new QTimer(this);
    pentagonTimer->setObjectName(QStringLiteral("pentagon_timer"));
    connect(pentagonTimer, &QTimer::timeout, scene, &PentagonOpenGLScene::runningMan);
    pentagonTimer->start(400);
}

void MainWindow::connectPentagonPanel()
{
    PentagonOpenGLScene* scene = pentagonScene;
    const std::pair<QPushButton*, void (PentagonOpenGLScene::*)()> buttons[] = {
        {ui->pentagon_In, &PentagonOpenGLScene::in},
        {ui->pentagon_Out, &PentagonOpenGLScene::out},
        {ui->pentagon_clean, &PentagonOpenGLScene::clearHistory},
        {ui->pentagon_Default, &PentagonOpenGLScene::resetToDefault}};
    for (const auto& [button, slot] : buttons) {
        connect(button, &QPushButton::clicked, scene, slot);
    }
    const std::pair<QAbstractButton*, void (PentagonOpenGLScene::*)(bool)> toggles[] = {
        {ui->pentagon_sequentialOrder, &PentagonOpenGLScene::setSequentialOrder},
        {ui->pentagon_alternativeOrder, &PentagonOpenGLScene::setAlternativeOrder},
        {ui->pentagon_epsilon1, &PentagonOpenGLScene::setEpsilon1},
        {ui->pentagon_epsilon2, &PentagonOpenGLScene::setEpsilon2},
        {ui->pentagon_epsilon3, &PentagonOpenGLScene::setEpsilon3},
        {ui->pentagon_epsilon4, &PentagonOpenGLScene::setEpsilon4},
        {ui->pentagon_epsilon5, &PentagonOpenGLScene::setEpsilon5},
        {ui->pentagon_epsilon6, &PentagonOpenGLScene::setEpsilon6},
        {ui->pentagon_userInput, &PentagonOpenGLScene::UserPentagon},
        {ui->pentagon_animateInput, &PentagonOpenGLScene::needAnimation},
        {ui->pentagon_autoInput, &PentagonOpenGLScene::autoPentagon},
        {ui->pentagon_animate_regular, &PentagonOpenGLScene::regularPentagon},
        {ui->pentagon_animate_default, &PentagonOpenGLScene::defaultPentagon},
        {ui->pentagon_xvalues, &PentagonOpenGLScene::XIndices},
        {ui->pentagon_yvalues, &PentagonOpenGLScene::YIndices},
        {ui->pentagon_xaxis, &PentagonOpenGLScene::XAxis},
        {ui->pentagon_yaxis, &PentagonOpenGLScene::YAxis}};
    for (const auto& [button, slot] : toggles) {
        connect(button, &QAbstractButton::toggled, scene, slot);
    }
    // The panel opens in the animated example's state: its epsilon choices stay hidden.
    ui->pentagon_g_epsilon->hide();
}

void MainWindow::setUpAssoTab()
{
    assoTimer = new QTimer(this);
    assoTimer->setObjectName(QStringLiteral("associativelaw_timer"));
    assoScene = new AssoOpenGLScene(AssoPanel::find(ui->associativelaw_win, assoTimer), this);
    connect(assoTimer, &QTimer::timeout, assoScene, &AssoOpenGLScene::runningMan);
    auto* selection = new AssoSelectionWindow(assoScene);
    auto* focus = new AssoFocusWindow(assoScene);
    assoScene->setSelectionWindow(selection);
    assoScene->setFocusWindow(focus);
    installAuxiliaryWindow(AuxWindow::AssoColorMap, new AssoColorMap(assoScene));
    installAuxiliaryWindow(AuxWindow::AssoSelection, selection);
    installAuxiliaryWindow(AuxWindow::AssoHelp, new AssoHelpWindow(tr("About")));
    installAuxiliaryWindow(AuxWindow::AssoUserMenu, new AssoUserMenu(tr("Help")));
    installAuxiliaryWindow(AuxWindow::AssoOverview, new AssoOverviewWindow(kOverviewTitle));
    installAuxiliaryWindow(AuxWindow::AssoFocus, focus);
    assoView = attachPlotView(ui->associativelaw_VisWindow, assoScene);

    AssoOpenGLScene* scene = assoScene;
    connect(ui->associativelaw_iteration_input, &QLineEdit::returnPressed, scene,
            &AssoOpenGLScene::updateMaxItera);
    connect(ui->associativelaw_X_input, &QLineEdit::returnPressed, scene,
            &AssoOpenGLScene::updateX);
    connect(ui->associativelaw_R_input, &QLineEdit::returnPressed, scene,
            &AssoOpenGLScene::updateR);
    connect(ui->associativelaw_calculate, &QPushButton::clicked, scene,
            &AssoOpenGLScene::calculate);
    connect(ui->associativelaw_showXAxis, &QCheckBox::toggled, scene,
            &AssoOpenGLScene::setNeedXAxis);
    connect(ui->associativelaw_showYAxis, &QCheckBox::toggled, scene,
            &AssoOpenGLScene::setNeedYAxis);
    connect(ui->associativelaw_showXIndices, &QCheckBox::toggled, scene,
            &AssoOpenGLScene::need2ShowXIndices);
    connect(ui->associativelaw_showYIndices, &QCheckBox::toggled, scene,
            &AssoOpenGLScene::need2ShowYIndices);
    connect(ui->associativelaw_showLabels, &QCheckBox::toggled, scene,
            &AssoOpenGLScene::need2ShowLabels);
    connect(ui->associativelaw_acceleration, &QPushButton::clicked, scene,
            &AssoOpenGLScene::accelerate);
    connect(ui->associativelaw_deceleration, &QPushButton::clicked, scene,
            &AssoOpenGLScene::decelerate);
    connect(ui->associativelaw_pause, &QPushButton::clicked, scene, &AssoOpenGLScene::pause);
    connect(ui->associativelaw_time_slider, &QSlider::valueChanged, scene,
            &AssoOpenGLScene::setTimeStartpoint);
    ui->associativelaw_showXIndices->setChecked(true);
    ui->associativelaw_showLabels->setChecked(true);
    scene->setUpPanel();

    setFileRoutine(FileAction::AssoOpen,
                   [scene](const QString& name) { return scene->loadColorFile(name); });
    setFileRoutine(FileAction::AssoSave,
                   [scene](const QString& name) { return scene->saveColorFile(name); });
    setFileRoutine(FileAction::AssoSaveTxt,
                   [scene](const QString& name) { return scene->saveTextData(name); });
    setFileRoutine(FileAction::AssoSaveCsv,
                   [scene](const QString& name) { return scene->saveCsvData(name); });
    enableActionFor(SLOT(asso_exportPicture()));
    assoTimer->start(400);
}

void MainWindow::setUpSineTab()
{
    sineTimer = new QTimer(this);
    sineTimer->setObjectName(QStringLiteral("sine_timer"));
    sineScene = new SineOpenGLScene(SinePanel::find(ui->sine_win, sineTimer), this);
    connect(sineTimer, &QTimer::timeout, sineScene, &SineOpenGLScene::runningMan);
    auto* selection = new SineSelectionWindow(sineScene);
    auto* status = new SineStatusWindow(sineScene);
    auto* colorMap = new SineColorMap(sineScene);
    auto* focus = new SineFocusWindow(sineScene);
    sineScene->setSelectionWindow(selection);
    sineScene->setStatusWindow(status);
    sineScene->setFocusWindow(focus);
    colorMap->setStatusWindow(status);
    installAuxiliaryWindow(AuxWindow::SineSelection, selection);
    installAuxiliaryWindow(AuxWindow::SineStatus, status);
    installAuxiliaryWindow(AuxWindow::SineColorMap, colorMap);
    installAuxiliaryWindow(AuxWindow::SineHelp, new SineHelpWindow(tr("About")));
    installAuxiliaryWindow(AuxWindow::SineUserMenu, new SineUserMenu(tr("Help")));
    connectSinePanel();
    installAuxiliaryWindow(AuxWindow::SineFocus, focus);
    installSineOverview();
    sineView = attachPlotView(ui->sine_VisWindow, sineScene);
    sineScene->setUpPanel();

    SineOpenGLScene* scene = sineScene;
    // A loaded colour file shows in the colour map and the status window's swatches too.
    setFileRoutine(FileAction::SineOpen, [scene, colorMap, status](const QString& name) {
        const QString failure = scene->loadColorFile(name);
        if (failure.isEmpty()) {
            colorMap->resetColorChange();
            status->refreshColors();
        }
        return failure;
    });
    setFileRoutine(FileAction::SineSave,
                   [scene](const QString& name) { return scene->saveColorFile(name); });
    setFileRoutine(FileAction::SineSaveTxt,
                   [scene](const QString& name) { return scene->saveTextData(name); });
    setFileRoutine(FileAction::SineSaveCsv,
                   [scene](const QString& name) { return scene->saveCsvData(name); });
    enableActionFor(SLOT(sine_exportPicture()));
    sineTimer->start(400);
}

// The overview quotes the library line's distance from the true sine for the current X, so
// it is rewritten after each input that sets X (connected after the scene reads the input).
void MainWindow::installSineOverview()
{
    auto* overview = new SineOverviewWindow(kOverviewTitle, sineScene);
    installAuxiliaryWindow(AuxWindow::SineOverview, overview);
    connect(ui->sine_X_input, &QLineEdit::returnPressed, overview, &SineOverviewWindow::refresh);
    connect(ui->sine_calculate, &QPushButton::clicked, overview, &SineOverviewWindow::refresh);
}

void MainWindow::connectSinePanel()
{
    SineOpenGLScene* scene = sineScene;
    connect(ui->sine_iteration_input, &QLineEdit::returnPressed, scene,
            &SineOpenGLScene::updateMaxItera);
    connect(ui->sine_X_input, &QLineEdit::returnPressed, scene, &SineOpenGLScene::updateX);
    connect(ui->sine_calculate, &QPushButton::clicked, scene, &SineOpenGLScene::calculate);
    const std::pair<QCheckBox*, void (SineOpenGLScene::*)(bool)> boxes[] = {
        {ui->sine_showboundary, &SineOpenGLScene::setShowBoundary},
        {ui->sine_showvalues, &SineOpenGLScene::setShowValues},
        {ui->sine_showXAxis, &SineOpenGLScene::setNeedXAxis},
        {ui->sine_showYAxis, &SineOpenGLScene::setNeedYAxis},
        {ui->sine_showXIndices, &SineOpenGLScene::need2ShowXIndices},
        {ui->sine_showYIndices, &SineOpenGLScene::need2ShowYIndices},
        {ui->sine_showLabels, &SineOpenGLScene::need2ShowLabels},
        {ui->sine_needErrorComparison, &SineOpenGLScene::needErrorComparison}};
    for (const auto& [box, slot] : boxes) {
        connect(box, &QCheckBox::toggled, scene, slot);
    }
    connect(ui->sine_deceleration, &QPushButton::clicked, scene, &SineOpenGLScene::decelerate);
    connect(ui->sine_acceleration, &QPushButton::clicked, scene, &SineOpenGLScene::accelerate);
    connect(ui->sine_pause, &QPushButton::clicked, scene, &SineOpenGLScene::pause);
    connect(ui->sine_time_slider, &QSlider::valueChanged, scene,
            &SineOpenGLScene::setTimeStartpoint);
}

void MainWindow::setUpInspector()
{
    auto* inspector = new InspectorWindow();
    installAuxiliaryWindow(AuxWindow::Inspector, inspector);
    new PickGestures(inspector, *rootsPage, assoScene, sineScene, pentagonScene, this);
}

// Space, "+" and "-" press the animation buttons of the tab shown. The pentagon's animation
// has no pause and no speed buttons: its start button ("Start", then "Restart") starts it
// again, and only while the animated example is chosen; in the other modes that button
// resets the history instead, which is no key's business. The Roots tab has no animation.
void MainWindow::setUpAnimationKeys()
{
    PentagonOpenGLScene* pentagon = pentagonScene;
    std::array<AnimationButtons, TabCount> buttons;
    buttons[PentagonTab] = {ui->pentagon_Default, nullptr, nullptr,
                            [pentagon] { return pentagon->isAnimating(); }};
    buttons[AssoTab] = {ui->associativelaw_pause,
                        ui->associativelaw_acceleration,
                        ui->associativelaw_deceleration,
                        {}};
    buttons[SineTab] = {ui->sine_pause, ui->sine_acceleration, ui->sine_deceleration, {}};
    new AnimationKeys(this, ui->tabWidget, std::move(buttons));
}

void MainWindow::popInspectorWindow()
{
    auxiliaryWindows.pop(AuxWindow::Inspector);
}

void MainWindow::roots_popOverviewWindow()
{
    auxiliaryWindows.pop(AuxWindow::RootsOverview);
}

void MainWindow::pentagon_popOverviewWindow()
{
    auxiliaryWindows.pop(AuxWindow::PentagonOverview);
}

void MainWindow::asso_popOverviewWindow()
{
    auxiliaryWindows.pop(AuxWindow::AssoOverview);
}

void MainWindow::sine_popOverviewWindow()
{
    auxiliaryWindows.pop(AuxWindow::SineOverview);
}

void MainWindow::exportPicture(const quillon::PictureDescriber& describe, QSize viewSize,
                               QSize referenceSize)
{
    PictureExportDialog dialog(viewSize, this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString fileName = dialog.fileName();
    const QByteArray bytes = quillon::pictureFileBytes(
        describe, dialog.pictureSize(), referenceSize, *quillon::pictureFormatFor(fileName));
    reportFileOutcome(this, false, fileName,
                      quillon::writeWholeFile(fileName, bytes.toStdString()));
}

void MainWindow::roots_exportPicture()
{
    const RootsPage* page = rootsPage.get();
    exportPicture([page](QSize size) { return page->picture(size); }, page->gridSize(),
                  kRootsPictureSize);
}

void MainWindow::pentagon_exportPicture()
{
    exportPicture(filePictureOf(pentagonScene), pentagonView->viewport()->size(),
                  quillon::kDefaultPlotViewSize);
}

void MainWindow::asso_exportPicture()
{
    exportPicture(filePictureOf(assoScene), assoView->viewport()->size(),
                  quillon::kDefaultPlotViewSize);
}

void MainWindow::sine_exportPicture()
{
    exportPicture(filePictureOf(sineScene), sineView->viewport()->size(),
                  quillon::kDefaultPlotViewSize);
}

void MainWindow::installAuxiliaryWindow(AuxWindow window, QWidget* widget)
{
    auxiliaryWindows.install(window, widget);
    enableActionFor(popSlotOf(window));
}

void MainWindow::setFileRoutine(FileAction action, FileRoutine routine)
{
    fileActions.setRoutine(action, std::move(routine));
    enableActionFor(fileDialogSetup(action).slot);
}

GraphicsView* MainWindow::attachPlotView(QWidget* placeholder, QGraphicsScene* scene)
{
    auto* view = new GraphicsView();
    view->setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    view->setScene(scene);
    view->setParent(placeholder);
    view->setGeometry(placeholder->rect());
    view->setAttribute(Qt::WA_MouseTracking);
    view->setRenderHints(QPainter::Antialiasing);
    return view;
}

std::array<quillon::OpenGLPlotScene*, TabCount> MainWindow::plotScenesByTab() const
{
    return {nullptr, pentagonScene, assoScene, sineScene};
}

void MainWindow::tab_Index_Changed(int index)
{
    if (index < 0 || index >= TabCount) {
        return;
    }
    menuSets[index]->installInto(menuBar());
    // A plot view starts drawing with OpenGL when its tab is first shown: until then the
    // window needs no OpenGL at all, which keeps loading it out of the program's start-up.
    const std::array<GraphicsView*, TabCount> views{nullptr, pentagonView, assoView, sineView};
    if (views[index] != nullptr) {
        views[index]->useOpenGLViewport();
    }
    const auto scenes = plotScenesByTab();
    for (int tab = 0; tab < TabCount; ++tab) {
        if (tab != index && scenes[tab] != nullptr) {
            scenes[tab]->setPaused(true);
            scenes[tab]->repaint();
        }
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    auxiliaryWindows.closeAll();
    event->accept();
}

void MainWindow::closeEvent()
{
    close();
    auxiliaryWindows.closeAll();
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    layOutPages(event->size().width(), event->size().height() - kMenuBarAllowance);
}

// The pages are laid out in the area of the tab widget's page stack, which the tab widget
// sizes only after the window's own resize event when the window is first shown; so the
// pages are laid out again whenever that area changes.
bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == ui->roots_win->parentWidget()) {
        layOutPages(width(), height() - kMenuBarAllowance);
    }
    return QMainWindow::eventFilter(watched, event);
}

// Lays out every page, hidden ones included, so that a tab looks right the moment it is
// chosen.
void MainWindow::layOutPages(int width, int height)
{
    rootsPage->layOut(width, height);
    layOutPlotPage(ui->pentagon_VisWindow, ui->pentagon_ControlWindow, pentagonView, width, height);
    layOutPlotPage(ui->associativelaw_VisWindow, ui->associativelaw_ControlWindow, assoView, width,
                   height);
    layOutPlotPage(ui->sine_VisWindow, ui->sine_ControlWindow, sineView, width, height);
}

// The control panel takes a quarter of the page, or the width its widgets need when that is
// more; the plot fills the rest. Both span the page's full height.
void MainWindow::layOutPlotPage(QWidget* placeholder, QWidget* panel, GraphicsView* view, int width,
                                int height)
{
    const QSize area = quillon::tabPageArea(placeholder->parentWidget(), QSize(width, height));
    const int gap = 6;
    const int panelWidth = qMax(area.width() / 4, panel->minimumSizeHint().width());
    const int plotWidth = area.width() - panelWidth - 2 * gap;
    placeholder->setGeometry(0, 0, plotWidth, area.height());
    view->setGeometry(placeholder->rect());
    panel->setGeometry(plotWidth + gap, 0, panelWidth, area.height());
}

void MainWindow::roots_updateA()
{
    rootsPage->updateA();
}
void MainWindow::roots_updateB()
{
    rootsPage->updateB();
}
void MainWindow::roots_updateC()
{
    rootsPage->updateC();
}
void MainWindow::roots_calculate()
{
    rootsPage->calculate();
}
void MainWindow::roots_useExample1()
{
    rootsPage->useExample(1);
}
void MainWindow::roots_useExample2()
{
    rootsPage->useExample(2);
}
void MainWindow::roots_useExample3()
{
    rootsPage->useExample(3);
}
void MainWindow::roots_saveTXTFile()
{
    fileActions.run(FileAction::RootsSaveTxt, this);
}
void MainWindow::roots_popHelpWindow()
{
    auxiliaryWindows.pop(AuxWindow::RootsHelp);
}
void MainWindow::roots_popUserMenu()
{
    auxiliaryWindows.pop(AuxWindow::RootsUserMenu);
}

void MainWindow::pentagon_openFile()
{
    fileActions.run(FileAction::PentagonOpen, this);
}
void MainWindow::pentagon_saveFile()
{
    fileActions.run(FileAction::PentagonSave, this);
}
void MainWindow::pentagon_popColorMapWindow()
{
    auxiliaryWindows.pop(AuxWindow::PentagonColorMap);
}
void MainWindow::pentagon_popMiniMapWindow()
{
    auxiliaryWindows.pop(AuxWindow::PentagonMiniMap);
}
void MainWindow::pentagon_popSettingWindow()
{
    auxiliaryWindows.pop(AuxWindow::PentagonFocus);
}
void MainWindow::pentagon_popHelpWindow()
{
    auxiliaryWindows.pop(AuxWindow::PentagonHelp);
}
void MainWindow::pentagon_popUserMenu()
{
    auxiliaryWindows.pop(AuxWindow::PentagonUserMenu);
}
void MainWindow::pentagon_saveTXTFile()
{
    fileActions.run(FileAction::PentagonSaveTxt, this);
}

void MainWindow::asso_openFile()
{
    fileActions.run(FileAction::AssoOpen, this);
}
void MainWindow::asso_saveFile()
{
    fileActions.run(FileAction::AssoSave, this);
}
void MainWindow::asso_popSettingWindow()
{
    auxiliaryWindows.pop(AuxWindow::AssoFocus);
}
void MainWindow::asso_popSelectionWindow()
{
    auxiliaryWindows.pop(AuxWindow::AssoSelection);
}
void MainWindow::asso_popColorMapWindow()
{
    auxiliaryWindows.pop(AuxWindow::AssoColorMap);
}
void MainWindow::asso_popHelpWindow()
{
    auxiliaryWindows.pop(AuxWindow::AssoHelp);
}
void MainWindow::asso_popUserMenu()
{
    auxiliaryWindows.pop(AuxWindow::AssoUserMenu);
}
void MainWindow::asso_saveTXTFile()
{
    fileActions.run(FileAction::AssoSaveTxt, this);
}
void MainWindow::asso_saveCSVFile()
{
    fileActions.run(FileAction::AssoSaveCsv, this);
}

void MainWindow::sine_openFile()
{
    fileActions.run(FileAction::SineOpen, this);
}
void MainWindow::sine_saveFile()
{
    fileActions.run(FileAction::SineSave, this);
}
void MainWindow::sine_popSettingWindow()
{
    auxiliaryWindows.pop(AuxWindow::SineFocus);
}
void MainWindow::sine_popSelectionWindow()
{
    auxiliaryWindows.pop(AuxWindow::SineSelection);
}
void MainWindow::sine_popStatusWindow()
{
    auxiliaryWindows.pop(AuxWindow::SineStatus);
}
void MainWindow::sine_popColorMapWindow()
{
    auxiliaryWindows.pop(AuxWindow::SineColorMap);
}
void MainWindow::sine_popHelpWindow()
{
    auxiliaryWindows.pop(AuxWindow::SineHelp);
}
void MainWindow::sine_popUserMenu()
{
    auxiliaryWindows.pop(AuxWindow::SineUserMenu);
}
void MainWindow::sine_saveTXTFile()
{
    fileActions.run(FileAction::SineSaveTxt, this);
}
void MainWindow::sine_saveCSVFile()
{
    fileActions.run(FileAction::SineSaveCsv, this);
}
