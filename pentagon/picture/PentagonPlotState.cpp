#include "pentagon/picture/PentagonPlotState.h"

PentagonPlotState pentagonPlotStateFor(const PentagonEngine& engine,
                                       const PentagonColorSettings& colours)
{
    PentagonPlotState state;
    state.pentagons = engine.validPentagons();
    state.enteringPoints = engine.isEnteringPoints();
    state.enteredPoints = engine.getCurrentPoints();
    state.enteredCount = engine.getUserPointCount();
    state.colours = colours;
    state.range = engine.fittedRange();
    state.lastStatus = engine.lastStatus();
    return state;
}
