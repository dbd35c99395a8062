#include "pentagon/engine/PentagonEngine.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{

uint32_t bits(float v)
{
    uint32_t b = 0;
    std::memcpy(&b, &v, sizeof b);
    return b;
}

std::vector<uint32_t> bitsOf(const PentagonPoints& points)
{
    std::vector<uint32_t> all;
    for (const float v : points.coordinates) {
        all.push_back(bits(v));
    }
    return all;
}

PentagonEngine regularPentagon()
{
    PentagonEngine engine;
    engine.setRegular(true);
    engine.resetHistory();
    return engine;
}

struct Range {
    uint32_t xMin, xMax, yMin, yMax;
};

void expectRange(const PentagonRange& range, const Range& expected)
{
    EXPECT_EQ(bits(range.xMin), expected.xMin);
    EXPECT_EQ(bits(range.xMax), expected.xMax);
    EXPECT_EQ(bits(range.yMin), expected.yMin);
    EXPECT_EQ(bits(range.yMax), expected.yMax);
}

void applySteps(PentagonEngine& engine, const std::string& steps)
{
    for (const char step : steps) {
        if (step == 'I') {
            engine.in();
        } else {
            engine.out();
        }
    }
}

} // namespace

// The regular pentagon's vertices carry the errors of pi cut to 3.1415925.
TEST(PentagonEngine, RegularPentagonHasTheTruncatedPiVertices)
{
    const PentagonEngine engine = regularPentagon();
    EXPECT_EQ(
        bitsOf(engine.getInitialPoints()),
        (std::vector<uint32_t>{0x3F800000u, 0x00000000u, 0x3E9E377Cu, 0x3F737870u, 0xBF4F1BBBu,
                               0x3F16791Au, 0xBF4F1BBEu, 0xBF167916u, 0x3E9E376Fu, 0xBF737872u}));
    EXPECT_EQ(bitsOf(engine.getCurrentPoints()), bitsOf(engine.getInitialPoints()));
    EXPECT_EQ(engine.getHistory().size(), 1u);
    EXPECT_EQ(engine.getStatusList(), std::vector<int>{0});
}

// With epsilon 0.1, e = single(1 + single(0.1)) = single(1.1): (0,0), (0,1), (1,e), (e,1),
// (1,0); the view is square around it, 10% larger: half = single(single(0.55) * single(1.1)).
TEST(PentagonEngine, DefaultPentagonAndItsFittedView)
{
    const PentagonEngine engine;
    EXPECT_EQ(engine.getEpsilon(), 0.1f);
    EXPECT_EQ(bitsOf(engine.getInitialPoints()),
              (std::vector<uint32_t>{0, 0, 0, 0x3F800000u, 0x3F800000u, 0x3F8CCCCDu, 0x3F8CCCCDu,
                                     0x3F800000u, 0x3F800000u, 0}));
    expectRange(engine.fittedRange(), {0xBD6147B0u, 0x3F93D70Au, 0xBD6147B0u, 0x3F93D70Au});
}

// The view is widened by the single-precision 1.1: a pentagon spanning 6/1024 by 5/1024
// has half = single(3/1024 * single(1.1)) = 0x3B533334 (the double 1.1 would give ...33).
TEST(PentagonEngine, ViewIsWidenedBySingleOnePointOne)
{
    PentagonEngine engine;
    engine.setUserMode(true);
    engine.resetHistory();
    const float unit = 1.0f / 1024.0f;
    for (const auto& [x, y] : {std::pair{0.0f, 0.0f},
                               {6 * unit, 0.0f},
                               {6 * unit, 4 * unit},
                               {3 * unit, 5 * unit},
                               {0.0f, 4 * unit}}) {
        engine.addManualPoint(x, y);
    }
    ASSERT_EQ(engine.getHistory().size(), 1u);
    expectRange(engine.fittedRange(), {0xB99999A0u, 0x3BC9999Au, 0xBA4CCCD0u, 0x3BB9999Au});
}

// Every successful step appends one pentagon, one kind and the running counts; the history
// stays one longer than the two lists.
TEST(PentagonEngine, StepsKeepTheHistoryAndCountsInStep)
{
    PentagonEngine engine;
    applySteps(engine, "IIIIIOOOOO");
    EXPECT_FALSE(engine.hasFailed());
    EXPECT_EQ(engine.getHistory().size(), 11u);
    EXPECT_EQ(engine.getStatusList(), std::vector<int>(11, 0));
    EXPECT_EQ(engine.getOperationKinds(),
              (std::vector<bool>{false, false, false, false, false, true, true, true, true, true}));
    const std::vector<PentagonOperationCount> counts = engine.getOperationCounts();
    ASSERT_EQ(counts.size(), 10u);
    EXPECT_EQ(counts.front(), (PentagonOperationCount{1, 0}));
    EXPECT_EQ(counts[4], (PentagonOperationCount{5, 0}));
    EXPECT_EQ(counts.back(), (PentagonOperationCount{5, 5}));
    EXPECT_EQ(engine.getNumIns(), 5);
    EXPECT_EQ(engine.getNumOuts(), 5);
    EXPECT_EQ(engine.getInsMinusOuts(), 0);
    EXPECT_EQ(bitsOf(engine.getHistory().back()), bitsOf(engine.getCurrentPoints()));

    engine.clearHistory();
    EXPECT_EQ(engine.getHistory().size(), 1u);
    EXPECT_EQ(engine.getNumIns(), 0);
    EXPECT_EQ(engine.getDistance(), 0.0f);
    EXPECT_TRUE(engine.getOperationCounts().empty());
    EXPECT_EQ(bitsOf(engine.getCurrentPoints()), bitsOf(engine.getInitialPoints()));
}

// k Ins and then k Outs should give the regular pentagon back; the drift (the largest
// coordinate-wise deviation, exact bits below) grows with k, from one ulp of 1 at k = 1.
TEST(PentagonEngine, DistanceGrowsWithMorePairedSteps)
{
    const std::pair<int, uint32_t> expected[] = {
        {1, 0x34000000u}, {2, 0x34C00000u}, {3, 0x35700000u}, {5, 0x369C0000u},
        {6, 0x37460000u}, {7, 0x37A10000u}, {8, 0x384F0000u}};
    for (const auto& [pairs, distance] : expected) {
        PentagonEngine engine = regularPentagon();
        applySteps(engine, std::string(size_t(pairs), 'I') + std::string(size_t(pairs), 'O'));
        EXPECT_FALSE(engine.hasFailed()) << pairs;
        EXPECT_EQ(bits(engine.getDistance()), distance) << pairs;
    }
    // Alternating In and Out, the drift stays within a few ulps.
    PentagonEngine alternating = regularPentagon();
    applySteps(alternating, "IO");
    EXPECT_EQ(bits(alternating.getDistance()), 0x34000000u);
    applySteps(alternating, "IOIOIOIOIOIOIO");
    EXPECT_EQ(bits(alternating.getDistance()), 0x34E00000u);
    // The distance is measured only when Ins and Outs are even.
    applySteps(alternating, "I");
    EXPECT_EQ(bits(alternating.getDistance()), 0x34E00000u);
}

// Ten Ins of the Default pentagon (epsilon 0.1) succeed; in the eleventh the second new
// point lies behind a start point (code 1). P1 and the failed P2 have been written, P3 to P5
// are those of the tenth In; later steps change nothing, counts included.
TEST(PentagonEngine, ElevenInsOfTheDefaultPentagonEndInAFailure)
{
    PentagonEngine engine;
    applySteps(engine, "IIIIIIIIII");
    EXPECT_FALSE(engine.hasFailed());
    const PentagonPoints tenth = engine.getCurrentPoints();
    EXPECT_EQ(bitsOf(tenth), (std::vector<uint32_t>{
                                 0x3F56CCC1u, 0x3F56CCC1u, 0x3F570644u, 0x3F570644u, 0x3F59259Cu,
                                 0x3F59259Bu, 0x3F592E47u, 0x3F592E45u, 0x3F57C09Du, 0x3F57C09Cu}));
    engine.in();
    EXPECT_EQ(engine.lastStatus(), StatusNotPentagon);
    EXPECT_EQ(
        bitsOf(engine.getCurrentPoints()),
        (std::vector<uint32_t>{0x3F57EDE9u, 0x3F57EDE8u, 0x3F594182u, 0x3F594181u, 0x3F59259Cu,
                               0x3F59259Bu, 0x3F592E47u, 0x3F592E45u, 0x3F57C09Du, 0x3F57C09Cu}));
    EXPECT_EQ(bitsOf(engine.getPreviousPoints()), bitsOf(tenth));
    EXPECT_EQ(bitsOf(engine.getHistory().back()), bitsOf(tenth));
    const auto expectFailedState = [&engine] {
        EXPECT_EQ(engine.getNumIns(), 11);
        EXPECT_EQ(engine.getNumOuts(), 0);
        EXPECT_EQ(engine.getHistory().size(), 11u);
        EXPECT_EQ(engine.getOperationCounts().size(), 10u);
        std::vector<int> statuses(11, StatusOk);
        statuses.push_back(StatusNotPentagon);
        EXPECT_EQ(engine.getStatusList(), statuses);
        EXPECT_EQ(engine.validPentagons().size(), 11u);
    };
    expectFailedState();
    applySteps(engine, "IOIO");
    expectFailedState();
    engine.resetHistory();
    EXPECT_FALSE(engine.hasFailed());
    EXPECT_EQ(engine.getNumIns(), 0);
}

// Other epsilons fail earlier or later, and with epsilon 0.2 with another code: after 13 Ins
// every point lies on y = x, and the 14th In crosses a line with itself (0/0, code 2).
TEST(PentagonEngine, RepeatedInsFailByEpsilon)
{
    const struct {
        float epsilon;
        int failingIn;
        int status;
    } cases[] = {{0.2f, 14, StatusNan},
                 {0.05f, 9, StatusNotPentagon},
                 {0.01f, 7, StatusNotPentagon},
                 {0.5f, 17, StatusNotPentagon}};
    for (const auto& expected : cases) {
        PentagonEngine engine;
        engine.setEpsilon(expected.epsilon);
        engine.resetHistory();
        int ins = 0;
        while (!engine.hasFailed() && ins < 40) {
            engine.in();
            ++ins;
        }
        EXPECT_EQ(ins, expected.failingIn) << expected.epsilon;
        EXPECT_EQ(engine.lastStatus(), expected.status) << expected.epsilon;
    }
}

// Out starts its counts from (0, 1).
TEST(PentagonEngine, FirstOutCountsFromZeroIns)
{
    PentagonEngine engine = regularPentagon();
    engine.out();
    ASSERT_FALSE(engine.hasFailed());
    EXPECT_EQ(engine.getOperationCounts(), (std::vector<PentagonOperationCount>{{0, 1}}));
    EXPECT_EQ(engine.getOperationKinds(), std::vector<bool>{true});
}

// Manual points: three collinear points pass; a crossing order fails at the fourth click and
// the next click replaces the rejected point; after five points the history starts.
TEST(PentagonEngine, ManualPointsMustStayConvex)
{
    PentagonEngine engine;
    engine.setUserMode(true);
    engine.resetHistory();
    EXPECT_TRUE(engine.getHistory().empty());
    const PentagonRange& range = engine.fittedRange();
    EXPECT_EQ(range.xMin, -1.0f);
    EXPECT_EQ(range.yMax, 1.0f);
    engine.addManualPoint(0, 0);
    engine.addManualPoint(1, 0);
    engine.addManualPoint(2, 0);
    EXPECT_EQ(engine.getUserPointCount(), 3);

    engine.resetHistory();
    engine.addManualPoint(0, 0);
    engine.addManualPoint(1, 1);
    engine.addManualPoint(1, 0);
    EXPECT_EQ(engine.getUserPointCount(), 3);
    // (0, 1) after (1, 0) crosses the edge (0,0)-(1,1).
    engine.addManualPoint(0, 1);
    EXPECT_EQ(engine.getUserPointCount(), 3);
    EXPECT_FALSE(engine.getConvexSoFar());

    // A reset after a rejected click does not refuse the next pentagon's first points.
    engine.resetHistory();
    for (const auto& [x, y] :
         {std::pair{0.0f, 0.0f}, {1.0f, 0.0f}, {1.0f, 1.0f}, {0.5f, 1.5f}, {0.0f, 1.0f}}) {
        engine.addManualPoint(x, y);
    }
    EXPECT_EQ(engine.getUserPointCount(), 5);
    ASSERT_EQ(engine.getHistory().size(), 1u);
    EXPECT_EQ(engine.getInitialPoints().y(4), 1.5f);
    engine.addManualPoint(9, 9);
    EXPECT_EQ(engine.getUserPointCount(), 5);
    EXPECT_EQ(engine.getInitialPoints().x(5), 0.0f);

    // Clearing keeps the entered pentagon.
    engine.in();
    engine.clearHistory();
    EXPECT_EQ(engine.getHistory().size(), 1u);
    EXPECT_EQ(engine.getInitialPoints().y(4), 1.5f);
    EXPECT_EQ(engine.getUserPointCount(), 5);
}

// A reflex angle is refused too: (0,0), (2,0), (1,0.5) and then (1,2) puts the third point
// inside.
TEST(PentagonEngine, ReflexAngleIsRefused)
{
    PentagonEngine engine;
    engine.setUserMode(true);
    engine.resetHistory();
    engine.addManualPoint(0, 0);
    engine.addManualPoint(2, 0);
    engine.addManualPoint(1, 0.5f);
    engine.addManualPoint(1, 2);
    EXPECT_EQ(engine.getUserPointCount(), 3);
}

// The regular shape belongs to the animated example: outside it the built-in pentagon is the
// Default one, (0,0), (0,1), (1,e), (e,1), (1,0) with e = single(1 + single(0.1)) = 0x3F8CCCCD,
// whatever setRegular() chose; back in the example the regular one returns.
TEST(PentagonEngine, RegularShapeOnlyInTheAnimatedExample)
{
    PentagonEngine engine = regularPentagon();
    engine.setAnimatedExample(false);
    engine.resetHistory();
    const std::vector<uint32_t> defaultShape = {
        0, 0, 0, 0x3F800000u, 0x3F800000u, 0x3F8CCCCDu, 0x3F8CCCCDu, 0x3F800000u, 0x3F800000u, 0};
    EXPECT_EQ(bitsOf(engine.getInitialPoints()), defaultShape);
    EXPECT_EQ(bitsOf(engine.getHistory().front()), defaultShape);
    engine.clearHistory();
    EXPECT_EQ(bitsOf(engine.getInitialPoints()), defaultShape);

    engine.setAnimatedExample(true);
    engine.resetHistory();
    EXPECT_EQ(bits(engine.getInitialPoints().x(1)), 0x3F800000u);
    EXPECT_EQ(bits(engine.getInitialPoints().y(2)), 0x3F737870u);
}

// Clear while points are being entered throws them away: the entry starts again from none,
// with no history and the view at -1 .. 1, and the next five clicks alone make the pentagon.
TEST(PentagonEngine, ClearWhileEnteringStartsTheEntryAgain)
{
    PentagonEngine engine;
    engine.setUserMode(true);
    engine.resetHistory();
    engine.addManualPoint(-0.5f, -0.5f);
    engine.addManualPoint(0.5f, -0.5f);
    engine.addManualPoint(0.5f, 0.5f);
    engine.clearHistory();
    EXPECT_EQ(engine.getUserPointCount(), 0);
    EXPECT_TRUE(engine.getHistory().empty());
    EXPECT_EQ(engine.getStatusList(), std::vector<int>{0});
    EXPECT_EQ(engine.getNumIns(), 0);
    expectRange(engine.fittedRange(), {0xBF800000u, 0x3F800000u, 0xBF800000u, 0x3F800000u});

    const std::vector<std::pair<float, float>> clicks = {
        {-0.25f, -0.75f}, {0.75f, -0.25f}, {0.5f, 0.5f}, {-0.25f, 0.75f}, {-0.75f, 0.0f}};
    for (const auto& [x, y] : clicks) {
        engine.addManualPoint(x, y);
    }
    ASSERT_EQ(engine.getUserPointCount(), 5);
    ASSERT_EQ(engine.getHistory().size(), 1u);
    for (int point = 1; point <= 5; ++point) {
        EXPECT_EQ(engine.getInitialPoints().x(point), clicks[size_t(point - 1)].first) << point;
        EXPECT_EQ(engine.getInitialPoints().y(point), clicks[size_t(point - 1)].second) << point;
    }
}
