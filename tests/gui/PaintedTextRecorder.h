#pragma once

#include <QColor>
#include <QList>
#include <QPaintDevice>
#include <QPainter>
#include <QPointF>
#include <QSize>
#include <QString>
#include <memory>

class QPaintEngine;

// One text a painter drew: where its baseline starts, what it says and in which pen colour.
struct PaintedText {
    QPointF position;
    QString text;
    QColor color;
};

// A paint device that draws nothing and remembers every text painted on it, so a test can
// read exactly what a scene's foreground writes (labels, messages, readouts) instead of
// guessing from pixels.
class PaintedTextRecorder : public QPaintDevice
{
public:
    explicit PaintedTextRecorder(QSize size);
    ~PaintedTextRecorder() override;

    QPaintEngine* paintEngine() const override;
    const QList<PaintedText>& texts() const;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    QSize size;
    std::unique_ptr<Engine> engine;
};

// The texts a plot scene's foreground pass paints in a view of the given size, read from a
// recorder instead of from pixels. The pass is protected in the scene; a class derived from it
// names the member so that it can be called on the scene itself.
template <typename Scene> QList<PaintedText> foregroundTexts(Scene* scene, QSize size)
{
    struct Foreground : Scene {
        static void draw(Scene* target, QPainter* painter, const QRectF& rect)
        {
            (target->*(&Foreground::drawForeground))(painter, rect);
        }
    };
    PaintedTextRecorder recorder(size);
    QPainter painter(&recorder);
    Foreground::draw(scene, &painter, QRectF(QPointF(0, 0), size));
    painter.end();
    return recorder.texts();
}
