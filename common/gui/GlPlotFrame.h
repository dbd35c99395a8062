#pragma once

class QPainter;

namespace quillon
{

// The OpenGL part of a plot scene's background pass. Constructing one switches the painter
// to native OpenGL painting, saves every attribute and both matrix stacks and points the
// viewport at the whole device in device pixels; destroying it restores all of that, so the
// painter's foreground text is never hidden by state the plot left behind (a depth test
// left on, say).
class GlPlotFrame
{
public:
    explicit GlPlotFrame(QPainter* painter);
    ~GlPlotFrame();
    GlPlotFrame(const GlPlotFrame&) = delete;
    GlPlotFrame& operator=(const GlPlotFrame&) = delete;

    // White clear colour, depth test on, colour and depth buffers cleared.
    void clearToWhite();

    // Orthographic box left..right x bottom..top, near 0.1, far 1000, seen by a camera at
    // (0, 0, 20) looking at the origin with y up: the projection all plots share.
    void lookAtOrthographic(double left, double right, double bottom, double top);

private:
    QPainter* painter;
};

} // namespace quillon
