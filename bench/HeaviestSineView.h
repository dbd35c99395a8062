#pragma once

class MainWindow;
class SineOpenGLScene;

// The heaviest view a user can reach on the Sine tab of `window`: N = 10000, window 0..9999
// at step 1, all twelve approaches with trend lines, drop lines, every label and the legend,
// in a view of the benchmarks' plot size. Returns the tab's scene.
SineOpenGLScene* showHeaviestSineView(MainWindow& window);
