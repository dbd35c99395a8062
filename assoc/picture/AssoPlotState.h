#pragma once

#include "assoc/engine/AssoFiles.h"
#include "assoc/engine/AssoRecurrence.h"
#include "common/picture/IndexPlotState.h"

#include <QImage>
#include <array>

// Everything a frame of the Associative Law plot shows, as the tab's scene holds it: the
// five sequences, what is drawn of them and how, the pointer and the inspector's ring. The
// defaults are the tab's at start-up.
struct AssoPlotState : quillon::IndexPlotState {
    const AssoSequences* results = nullptr;
    AssoColors colours = kAssoDefaultColors;
    std::array<bool, kAssoOrderCount> needFunc = {true, true, true, true, true};
    bool compare = false;
    int baseFunc = 0;
    bool showErrorMessages = false;
    int highlightedFunc = -1;
    int curveWidthOffset = 2;
    float highlightedDepth = 3.0f;
    float normalDepth = 2.0f;
    float gridDepth = 0.0f;
    float formulaAspect = 14.788462f;

    std::array<QImage, kAssoOrderCount> formulaImages;

    // What a picture made without a scene needs (the formula images too).
    void prepareForPicture();
};
