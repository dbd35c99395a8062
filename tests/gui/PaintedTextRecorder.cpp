#include "tests/gui/PaintedTextRecorder.h"

#include <QGuiApplication>
#include <QPaintEngine>
#include <QScreen>

class PaintedTextRecorder::Engine : public QPaintEngine
{
public:
    Engine() : QPaintEngine(QPaintEngine::AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    Type type() const override { return QPaintEngine::User; }

    void drawTextItem(const QPointF& position, const QTextItem& item) override
    {
        texts.append({painter()->transform().map(position), item.text(), painter()->pen().color()});
    }
    // Everything else is drawn nowhere.
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
    }
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawLines(const QLineF*, int) override {}
    void drawRects(const QRectF*, int) override {}
    void drawEllipse(const QRectF&) override {}
    void drawPoints(const QPointF*, int) override {}

    QList<PaintedText> texts;
};

PaintedTextRecorder::PaintedTextRecorder(QSize size)
    : size(size), engine(std::make_unique<Engine>())
{
}

PaintedTextRecorder::~PaintedTextRecorder() = default;

QPaintEngine* PaintedTextRecorder::paintEngine() const
{
    return engine.get();
}

const QList<PaintedText>& PaintedTextRecorder::texts() const
{
    return engine->texts;
}

int PaintedTextRecorder::metric(PaintDeviceMetric metric) const
{
    // The screen's resolution, so that fonts measure as they do in the real view.
    const QScreen* screen = QGuiApplication::primaryScreen();
    switch (metric) {
    case PdmWidth:
        return size.width();
    case PdmHeight:
        return size.height();
    case PdmDpiX:
    case PdmPhysicalDpiX:
        return int(screen->logicalDotsPerInchX());
    case PdmDpiY:
    case PdmPhysicalDpiY:
        return int(screen->logicalDotsPerInchY());
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return int(QPaintDevice::devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}
