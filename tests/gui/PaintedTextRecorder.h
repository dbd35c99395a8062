#pragma once

#include <QColor>
#include <QList>
#include <QPaintDevice>
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
