#include "pentagon/engine/PentagonEngine.h"

#include <algorithm>
#include <cmath>

namespace
{

// New point Pi of an In: the crossing of the two diagonals that do not pass through Qi.
constexpr std::array<PentagonStepRow, 5> kInTable{{
    {1, 2, 4, 5, 3},
    {2, 3, 5, 1, 4},
    {3, 4, 1, 2, 5},
    {4, 5, 2, 3, 1},
    {5, 1, 3, 4, 2},
}};

// New point Pi of an Out: where the two edges next to the edge opposite Qi meet, extended.
constexpr std::array<PentagonStepRow, 5> kOutTable{{
    {1, 2, 3, 5, 4},
    {2, 1, 5, 3, 4},
    {3, 4, 5, 2, 1},
    {4, 5, 1, 3, 2},
    {5, 1, 2, 4, 3},
}};

// The angles of the regular pentagon's vertices, multiples of 2 pi / 5 with pi cut to
// 3.1415925; the first is computed and rounded to single, so exactly 0.
constexpr double kTruncatedPi = 3.141592502593994;
const std::array<double, 5> kRegularAngles = {double(float(2.0 * kTruncatedPi * 0.0)),
                                              1.2566369771957397, 2.5132739543914795,
                                              3.769911050796509, 5.026547908782959};

float roundedAbsDifference(float a, float b)
{
    return float(std::fabs(double(a) - double(b)));
}

// b when b >= a or when the two are unordered, else a: a NaN on either side is kept.
float propagatingMax(float a, float b)
{
    return a > b ? a : b;
}

} // namespace

const std::array<PentagonStepRow, 5>& pentagonStepTable(bool isOut)
{
    return isOut ? kOutTable : kInTable;
}

PentagonEngine::PentagonEngine()
{
    resetHistory();
}

void PentagonEngine::in()
{
    step(pentagonStepTable(false), false);
}

void PentagonEngine::out()
{
    step(pentagonStepTable(true), true);
}

void PentagonEngine::step(const std::array<PentagonStepRow, 5>& table, bool isOut)
{
    if (hasFailed()) {
        return;
    }
    previousPoints = currentPoints;
    (isOut ? numOuts : numIns) += 1;
    insMinusOuts = numIns - numOuts;
    statusList.push_back(StatusOk);
    const PentagonPoints& q = previousPoints;
    for (const PentagonStepRow& row : table) {
        if (statusList.back() != StatusOk) {
            break;
        }
        statusList.back() = intersectLines(
            q.x(row.lineAFrom), q.y(row.lineAFrom), q.x(row.lineATowards), q.y(row.lineATowards),
            q.x(row.lineBFrom), q.y(row.lineBFrom), q.x(row.lineBTowards), q.y(row.lineBTowards),
            PentagonPoint{currentPoints.x(row.newPoint), currentPoints.y(row.newPoint)});
    }
    if (statusList.back() != StatusOk) {
        return;
    }
    if (insMinusOuts == 0) {
        distanceToInitial();
    }
    appendToHistory(currentPoints);
    operationKinds.push_back(isOut);
    PentagonOperationCount counts =
        operationCounts.empty() ? PentagonOperationCount{} : operationCounts.back();
    (isOut ? counts.numOuts : counts.numIns) += 1;
    operationCounts.push_back(counts);
    fitViewToHistory();
}

void PentagonEngine::buildInitialPentagon()
{
    if (regular && animatedExample) {
        for (int point = 1; point <= 5; ++point) {
            const double angle = kRegularAngles[size_t(point - 1)];
            initialPoints.x(point) = float(std::cos(angle));
            initialPoints.y(point) = float(std::sin(angle));
        }
    } else {
        const float e = float(1.0 + double(epsilon));
        initialPoints.coordinates = {0.0f, 0.0f, 0.0f, 1.0f, 1.0f, e, e, 1.0f, 1.0f, 0.0f};
    }
    startHistory();
}

void PentagonEngine::startHistory()
{
    currentPoints = initialPoints;
    previousPoints = initialPoints;
    appendToHistory(initialPoints);
}

// Every entry of the history pairs with a status 0 (a failed step never enters it, and no
// step follows a failure), so all of them count for the view: the bounds start at the first
// entry's P1 and are widened with every coordinate in history order, a smaller value lowering
// the minimum and otherwise a larger one raising the maximum.
void PentagonEngine::appendToHistory(const PentagonPoints& pentagon)
{
    if (history.empty()) {
        historyBounds = {pentagon.x(1), pentagon.x(1), pentagon.y(1), pentagon.y(1)};
    }
    history.push_back(pentagon);
    const auto widen = [](float value, float& low, float& high) {
        if (value < low) {
            low = value;
        } else if (value > high) {
            high = value;
        }
    };
    for (int point = 1; point <= 5; ++point) {
        widen(pentagon.x(point), historyBounds.xMin, historyBounds.xMax);
        widen(pentagon.y(point), historyBounds.yMin, historyBounds.yMax);
    }
}

void PentagonEngine::clearCounts()
{
    distance = 0;
    numIns = 0;
    numOuts = 0;
    insMinusOuts = 0;
    history.clear();
    operationKinds.clear();
    operationCounts.clear();
    statusList.assign(1, StatusOk);
}

void PentagonEngine::resetHistory()
{
    clearCounts();
    if (!userMode) {
        buildInitialPentagon();
        fitViewToHistory();
    } else {
        range = {-1.0f, 1.0f, -1.0f, 1.0f};
        userPointCount = 0;
    }
}

void PentagonEngine::clearHistory()
{
    // Before the fifth point there is no pentagon to keep, and the initial points still hold
    // coordinates that were never clicked.
    if (isEnteringPoints()) {
        resetHistory();
        return;
    }
    if (!history.empty()) {
        initialPoints = history.front();
    }
    clearCounts();
    if (userMode) {
        userPointCount = 5;
        startHistory();
    } else {
        buildInitialPentagon();
    }
    fitViewToHistory();
}

void PentagonEngine::distanceToInitial()
{
    float d = roundedAbsDifference(currentPoints.x(1), initialPoints.x(1));
    for (int point = 1; point <= 5; ++point) {
        d = propagatingMax(d, roundedAbsDifference(currentPoints.x(point), initialPoints.x(point)));
        d = propagatingMax(d, roundedAbsDifference(currentPoints.y(point), initialPoints.y(point)));
    }
    distance = d;
}

std::vector<PentagonPoints> PentagonEngine::validPentagons() const
{
    std::vector<PentagonPoints> valid;
    auto status = statusList.begin();
    for (auto entry = history.begin(); entry != history.end() && status != statusList.end();
         ++entry, ++status) {
        if (*status == StatusOk) {
            valid.push_back(*entry);
        }
    }
    return valid;
}

void PentagonEngine::fitViewToHistory()
{
    if (history.empty()) {
        return;
    }
    const PentagonRange& b = historyBounds;
    const float cx = float((double(b.xMax) + double(b.xMin)) * 0.5);
    const float cy = float((double(b.yMax) + double(b.yMin)) * 0.5);
    const float halfSpan =
        float(0.5 * std::max(double(b.xMax) - double(b.xMin), double(b.yMax) - double(b.yMin)));
    const float half = float(double(halfSpan) * double(1.1f));
    range = {float(double(cx) - double(half)), float(double(cx) + double(half)),
             float(double(cy) - double(half)), float(double(cy) + double(half))};
}

bool PentagonEngine::isConvexSoFar() const
{
    const int n = userPointCount;
    const PentagonPoints& p = currentPoints;
    for (int i = 1; i <= n; ++i) {
        const int j = i == n ? 1 : i + 1;
        bool haveReference = false;
        float reference = 0;
        for (int k = 1; k <= n; ++k) {
            if (k == i || k == j) {
                continue;
            }
            const double cross = double(float(double(p.y(k)) - double(p.y(i)))) *
                                     double(float(double(p.x(j)) - double(p.x(i)))) -
                                 double(float(double(p.x(k)) - double(p.x(i)))) *
                                     double(float(double(p.y(j)) - double(p.y(i))));
            const float c = float(cross);
            if (!haveReference) {
                reference = c;
                haveReference = true;
            } else if (double(c) * double(reference) < 0.0) {
                return false;
            }
        }
    }
    return true;
}

void PentagonEngine::addManualPoint(float x, float y)
{
    if (userPointCount >= 5) {
        return;
    }
    userPointCount += 1;
    initialPoints.x(userPointCount) = x;
    initialPoints.y(userPointCount) = y;
    currentPoints.x(userPointCount) = x;
    currentPoints.y(userPointCount) = y;
    // Only a test that has just run can take the point back: a failed test before a reset
    // must not refuse the first points of the next pentagon.
    if (userPointCount >= 3) {
        convexSoFar = isConvexSoFar();
        if (!convexSoFar) {
            userPointCount -= 1;
        }
    }
    if (userPointCount == 5) {
        startHistory();
        fitViewToHistory();
    }
}
