#pragma once

#include "pentagon/engine/PentagonGeometry.h"

#include <list>
#include <vector>

// Cumulative In and Out counts after one successful operation.
struct PentagonOperationCount {
    int numIns = 0;
    int numOuts = 0;

    friend bool operator==(const PentagonOperationCount& a, const PentagonOperationCount& b)
    {
        return a.numIns == b.numIns && a.numOuts == b.numOuts;
    }
};

// One row of a step's table: new point `newPoint` is where the line from `lineAFrom` towards
// `lineATowards` crosses the line from `lineBFrom` towards `lineBTowards` (points of the
// pentagon before the step).
struct PentagonStepRow {
    int newPoint;
    int lineAFrom;
    int lineATowards;
    int lineBFrom;
    int lineBTowards;
};

// The rows of an In step (the diagonals' crossings) or of an Out step (the extended edges'
// meeting points), in the order the step computes them.
const std::array<PentagonStepRow, 5>& pentagonStepTable(bool isOut);

// The data range a view shows.
struct PentagonRange {
    float xMin = 0;
    float xMax = 0;
    float yMin = 0;
    float yMax = 0;
};

// The In/Out demonstration's state: a pentagon, the history of every successful step and the
// status of every attempted one. In replaces the pentagon by the one its diagonals cross in,
// Out by the one its extended edges meet in; in single precision they stop undoing each other.
// The scene of the Pentagon tab owns one and draws it.
class PentagonEngine
{
public:
    PentagonEngine();

    void in();
    void out();

    // Starts over with the chosen shape (or, in manual mode, with no points yet).
    void resetHistory();
    // Starts over from the same initial pentagon; while one is being entered, discards the
    // points entered so far and the entry starts again from none.
    void clearHistory();

    // Adds a clicked point of a manually entered pentagon (ignored after the fifth); a point
    // that makes the polygon so far non-convex is taken back.
    void addManualPoint(float x, float y);
    bool isConvexSoFar() const;

    void setEpsilon(float value) { epsilon = value; }
    void setRegular(bool value) { regular = value; }
    // The regular shape belongs to the animated example: outside it the built-in pentagon is
    // the Default one, whatever setRegular() chose.
    void setAnimatedExample(bool value) { animatedExample = value; }
    void setUserMode(bool value) { userMode = value; }

    float getEpsilon() const { return epsilon; }
    bool isRegular() const { return regular; }
    bool isUserMode() const { return userMode; }
    // In manual mode before the fifth point: no pentagon yet, only the points entered so far.
    bool isEnteringPoints() const { return userMode && userPointCount < 5; }
    // The status of the last step begun (0 before any).
    int lastStatus() const { return statusList.back(); }
    bool hasFailed() const { return lastStatus() != StatusOk; }

    const PentagonPoints& getInitialPoints() const { return initialPoints; }
    const PentagonPoints& getCurrentPoints() const { return currentPoints; }
    const PentagonPoints& getPreviousPoints() const { return previousPoints; }
    const std::list<PentagonPoints>& getHistory() const { return history; }
    const std::vector<int>& getStatusList() const { return statusList; }
    const std::vector<PentagonOperationCount>& getOperationCounts() const
    {
        return operationCounts;
    }
    const std::vector<bool>& getOperationKinds() const { return operationKinds; }
    int getNumIns() const { return numIns; }
    int getNumOuts() const { return numOuts; }
    int getInsMinusOuts() const { return insMinusOuts; }
    float getDistance() const { return distance; }
    int getUserPointCount() const { return userPointCount; }
    bool getConvexSoFar() const { return convexSoFar; }
    // The range fitted to the valid pentagons of the history (or -1..1 while points are
    // being entered).
    const PentagonRange& fittedRange() const { return range; }

    // The history entries whose status is 0, in order: the pentagons that are drawn and
    // exported.
    std::vector<PentagonPoints> validPentagons() const;

private:
    void step(const std::array<PentagonStepRow, 5>& table, bool isOut);
    void buildInitialPentagon();
    void startHistory();
    void clearCounts();
    void distanceToInitial();
    void appendToHistory(const PentagonPoints& pentagon);
    void fitViewToHistory();

    std::vector<PentagonOperationCount> operationCounts;
    std::vector<bool> operationKinds;
    float epsilon = 0.1f;
    PentagonPoints initialPoints;
    PentagonPoints currentPoints;
    PentagonPoints previousPoints;
    std::list<PentagonPoints> history;
    std::vector<int> statusList{StatusOk};
    bool convexSoFar = true;
    int userPointCount = 0;
    int numIns = 0;
    int numOuts = 0;
    int insMinusOuts = 0;
    float distance = 0;
    bool regular = false;
    bool animatedExample = true;
    bool userMode = false;
    PentagonRange range;
    // The smallest and largest coordinates of the history's pentagons, widened as each one
    // is appended, so that fitting the view does not walk the whole history on every step.
    PentagonRange historyBounds;
};
