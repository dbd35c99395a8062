#pragma once

#include <QGraphicsScene>
#include <vector>

class PentagonOpenGLScene;
class QScrollBar;

// The "Selections" window's list of the In/Out history, newest first: one row per pentagon with
// its check mark, operation, running counts and status, under a heading row. Clicking the
// heading turns selection mode on or off (clearing every mark); in selection mode clicking a
// row marks or unmarks its pentagon, and the pentagon scene draws only the marked ones. A
// right click clears every mark.
class PentagonMiniScene : public QGraphicsScene
{
    Q_OBJECT

public:
    // `listHeight` is the height of the list in pixels; it fixes the rows' height for good.
    PentagonMiniScene(PentagonOpenGLScene* pentagonScene, QScrollBar* scrollBar, int listHeight,
                      QObject* parent = nullptr);

    bool isSelected(size_t entry) const { return entry < selected.size() && selected[entry]; }
    bool inSelectionMode() const { return selectionMode; }
    int getScrollIndex() const { return scrollIndex; }

    // The history entry listed in `row` (1 .. rowCount - 1), which may lie outside the history.
    int entryInRow(int row) const { return scrollIndex - row + 2; }
    // The list row under a height in the scene; row 0 is the heading.
    int rowAt(double y) const;

    // After every step and start-over of the pentagon scene: the scroll bar reaches the newest
    // entries, new entries start unmarked, and a history that started over loses every mark.
    void updateRange();
    void historyRestarted();

public slots:
    void operationChoose(bool on);
    void indexChanged(int value);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void wheelEvent(QGraphicsSceneWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;

private:
    void rebuild();
    void toggleEntry(int entry);
    void clearSelection();
    double rowHeight() const;
    void drawHeading(QPainter* painter, double width) const;
    void drawEntry(QPainter* painter, int row, int entry, double width) const;
    void drawFailedStep(QPainter* painter, int row, double width) const;
    void drawCells(QPainter* painter, int row, const QStringList& texts, double width) const;

    PentagonOpenGLScene* pentagonScene;
    QScrollBar* scrollBar;
    std::vector<bool> selected;
    int rowCount = 11;
    bool selectionMode = false;
    int scrollIndex = 0;
    int listHeight;
};
