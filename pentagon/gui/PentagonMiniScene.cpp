#include "pentagon/gui/PentagonMiniScene.h"

#include "common/core/CFormat.h"
#include "common/picture/ImageLookup.h"
#include "pentagon/engine/PentagonGeometry.h"
#include "pentagon/gui/PentagonOpenGLScene.h"

#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneWheelEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace
{

// Each column's share of the list's width: check mark, operation, Ins, Outs, status.
constexpr double kColumnShares[5] = {0.19, 0.19, 0.12, 0.12, 0.38};
constexpr int kCheckSize = 18;
const QColor kHeadingShade(225, 225, 225);
const QColor kSelectingShade(255, 244, 179);
const QColor kRowRule(200, 200, 200);

QString countText(int count)
{
    return QString::fromStdString(quillon::cformat("%d", count));
}

QString statusText(int status)
{
    switch (status) {
    case StatusOk:
        return QStringLiteral("OK");
    case StatusNotPentagon:
        return QStringLiteral("Failed: not a pentagon");
    case StatusNan:
        return QStringLiteral("Failed: NaN");
    case StatusNotFinite:
        return QStringLiteral("Failed: not finite");
    default:
        return QStringLiteral("Failed: parallel lines");
    }
}

double columnLeft(int column, double width)
{
    double left = 0;
    for (int c = 0; c < column; ++c) {
        left += kColumnShares[c] * width;
    }
    return left;
}

} // namespace

PentagonMiniScene::PentagonMiniScene(PentagonOpenGLScene* pentagonScene, QScrollBar* scrollBar,
                                     int listHeight, QObject* parent)
    : QGraphicsScene(parent), pentagonScene(pentagonScene), scrollBar(scrollBar),
      listHeight(listHeight)
{
    rebuild();
    updateRange();
}

double PentagonMiniScene::rowHeight() const
{
    return double(listHeight) / double(rowCount);
}

int PentagonMiniScene::rowAt(double y) const
{
    return int(y / rowHeight());
}

// Empties the selection; an empty history also scrolls back to the top.
void PentagonMiniScene::rebuild()
{
    const size_t entries = pentagonScene->engine().getHistory().size();
    if (entries == 0) {
        scrollBar->setValue(0);
        scrollIndex = scrollBar->value();
    }
    selected.assign(entries, false);
    pentagonScene->repaint();
}

void PentagonMiniScene::updateRange()
{
    const int entries = int(pentagonScene->engine().getHistory().size());
    scrollBar->setMaximum(entries > 1 ? entries : 0);
    selected.resize(size_t(entries), false);
    update();
}

void PentagonMiniScene::historyRestarted()
{
    selected.assign(pentagonScene->engine().getHistory().size(), false);
    updateRange();
}

void PentagonMiniScene::operationChoose(bool on)
{
    selectionMode = on;
    rebuild();
    pentagonScene->setSelectionMode(on);
    if (on) {
        pentagonScene->fitToSelection();
    } else {
        pentagonScene->fitToHistory();
    }
    update();
}

void PentagonMiniScene::indexChanged(int value)
{
    scrollIndex = value;
    updateRange();
    update();
}

// Rows past the newest entry (or the failed step listed there) have nothing to mark.
void PentagonMiniScene::toggleEntry(int entry)
{
    if (size_t(entry) >= selected.size()) {
        return;
    }
    selected[size_t(entry)] = !selected[size_t(entry)];
    pentagonScene->fitToSelection();
}

void PentagonMiniScene::clearSelection()
{
    selected.assign(selected.size(), false);
    pentagonScene->fitToSelection();
}

void PentagonMiniScene::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mousePressEvent(event);
    if (event->isAccepted()) {
        return;
    }
    if (event->button() == Qt::LeftButton) {
        const int row = rowAt(event->scenePos().y());
        if (row == 0) {
            operationChoose(!selectionMode);
        } else if (selectionMode && entryInRow(row) >= 0) {
            toggleEntry(entryInRow(row));
        }
    } else if (event->button() == Qt::RightButton) {
        clearSelection();
    }
    update();
}

void PentagonMiniScene::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseMoveEvent(event);
    if (event->isAccepted()) {
        return;
    }
    if (event->buttons() & Qt::LeftButton) {
        event->accept();
    }
    update();
}

void PentagonMiniScene::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseReleaseEvent(event);
    if (!event->isAccepted()) {
        update();
    }
}

void PentagonMiniScene::wheelEvent(QGraphicsSceneWheelEvent* event)
{
    QGraphicsScene::wheelEvent(event);
    if (!event->isAccepted()) {
        update();
    }
}

void PentagonMiniScene::keyPressEvent(QKeyEvent* event)
{
    QGraphicsScene::keyPressEvent(event);
    if (!event->isAccepted()) {
        update();
    }
}

// The heading, then from row 1 down the entries scrollIndex + 1, scrollIndex, ... so that a
// click on a row marks the entry drawn in it.
void PentagonMiniScene::drawForeground(QPainter* painter, const QRectF& rect)
{
    Q_UNUSED(rect);
    const double width = sceneRect().width();
    painter->setFont(QFont(QStringLiteral("times"), 11));
    painter->setPen(Qt::black);
    drawHeading(painter, width);
    const int entries = int(pentagonScene->engine().getHistory().size());
    for (int row = 1; row < rowCount; ++row) {
        const int entry = entryInRow(row);
        painter->setPen(Qt::black);
        if (entry >= 0 && entry < entries) {
            drawEntry(painter, row, entry, width);
        } else if (entry == entries && entries > 0 && pentagonScene->engine().hasFailed()) {
            drawFailedStep(painter, row, width);
        }
        painter->setPen(kRowRule);
        painter->drawLine(QPointF(0, (row + 1) * rowHeight() - 1),
                          QPointF(width, (row + 1) * rowHeight() - 1));
    }
}

void PentagonMiniScene::drawHeading(QPainter* painter, double width) const
{
    painter->fillRect(QRectF(0, 0, width, rowHeight()),
                      selectionMode ? kSelectingShade : kHeadingShade);
    drawCells(
        painter, 0,
        {tr("Need selection"), tr("Operation"), tr("# of Ins"), tr("# of Outs"), tr("Status")},
        width);
}

void PentagonMiniScene::drawEntry(QPainter* painter, int row, int entry, double width) const
{
    const QImage check = quillon::loadImage(selected[size_t(entry)] ? QStringLiteral("c.png")
                                                                    : QStringLiteral("u.png"));
    const double top = row * rowHeight() + (rowHeight() - kCheckSize) / 2;
    painter->drawImage(QRectF(6, top, kCheckSize, kCheckSize), check);
    const PentagonEngine& engine = pentagonScene->engine();
    const QString status = statusText(engine.getStatusList()[size_t(entry)]);
    if (entry == 0) {
        drawCells(painter, row, {QString(), tr("Initial pentagon"), QString(), QString(), status},
                  width);
        return;
    }
    const PentagonOperationCount& counts = engine.getOperationCounts()[size_t(entry - 1)];
    const QString operation = engine.getOperationKinds()[size_t(entry - 1)] ? tr("Out") : tr("In");
    drawCells(painter, row,
              {QString(), operation, countText(counts.numIns), countText(counts.numOuts), status},
              width);
}

// The step that failed has no pentagon to mark; it is listed after the newest entry with the
// counts that include it and the reason it failed.
void PentagonMiniScene::drawFailedStep(QPainter* painter, int row, double width) const
{
    const PentagonEngine& engine = pentagonScene->engine();
    const std::vector<PentagonOperationCount>& counts = engine.getOperationCounts();
    const int insBefore = counts.empty() ? 0 : counts.back().numIns;
    const QString operation = engine.getNumIns() > insBefore ? tr("In") : tr("Out");
    painter->setPen(Qt::red);
    drawCells(painter, row,
              {QString(), operation, countText(engine.getNumIns()), countText(engine.getNumOuts()),
               statusText(engine.lastStatus())},
              width);
}

void PentagonMiniScene::drawCells(QPainter* painter, int row, const QStringList& texts,
                                  double width) const
{
    for (int column = 0; column < int(texts.size()); ++column) {
        const QRectF cell(columnLeft(column, width) + 6, row * rowHeight(),
                          kColumnShares[column] * width - 6, rowHeight());
        painter->drawText(cell, Qt::AlignLeft | Qt::AlignVCenter, texts[column]);
    }
}
