#include "pentagon/engine/PentagonGeometry.h"

#include "common/core/SingleRange.h"

#include <cmath>

using quillon::isFiniteSingle;

namespace
{

// Two points closer than this in x (and then in y) make a line vertical (or degenerate).
constexpr double kSameCoordinate = 1e-11;

struct LineCoefficients {
    float a = 0;
    float b = 0;
    float c = 0;
};

float roundedDifference(float from, float to)
{
    return float(double(from) - double(to));
}

// The line through (x1, y1) and (x2, y2) as a x + b y = c; false when the two points coincide
// within kSameCoordinate. A NaN difference counts as not below the threshold.
bool lineThrough(float x1, float y1, float x2, float y2, LineCoefficients& line)
{
    const float dx = roundedDifference(x1, x2);
    if (std::fabs(dx) < kSameCoordinate) {
        const float dy = roundedDifference(y1, y2);
        if (std::fabs(dy) < kSameCoordinate) {
            return false;
        }
        line = {1.0f, 0.0f, x1};
        return true;
    }
    const float dy = roundedDifference(y1, y2);
    if (std::fabs(dy) < kSameCoordinate) {
        line = {0.0f, 1.0f, y1};
        return true;
    }
    // Divided by the x coordinate of larger magnitude; the ratio stays in double.
    if (std::fabs(x2) <= std::fabs(x1)) {
        const double r = double(x2) / double(x1);
        line = {float((double(y2) - double(y1)) / double(x1)), float(1.0 - r),
                float(double(y2) - r * double(y1))};
    } else {
        const double q = double(x1) / double(x2);
        line = {float((double(y1) - double(y2)) / double(x2)), float(1.0 - q),
                float(double(y1) - q * double(y2))};
    }
    return true;
}

// 0 for a usable number, else the status it causes.
int valueStatus(float v)
{
    if (!isNotNan(v)) {
        return StatusNan;
    }
    return isFiniteSingle(v) ? StatusOk : StatusNotFinite;
}

int coefficientsStatus(const LineCoefficients& first, const LineCoefficients& second)
{
    for (const float v : {first.a, first.b, first.c, second.a, second.b, second.c}) {
        if (const int status = valueStatus(v); status != StatusOk) {
            return status;
        }
    }
    return StatusOk;
}

// Solves the two lines around the larger |a|: y first, then x from the rounded y. No test for
// a zero denominator comes first.
void solve(const LineCoefficients& first, const LineCoefficients& second, PentagonPoint out)
{
    if (std::fabs(second.a) <= std::fabs(first.a)) {
        const double r = double(second.a) / double(first.a);
        out.y = float((double(second.c) - r * double(first.c)) /
                      (double(second.b) - r * double(first.b)));
        out.x = float((double(first.c) - double(first.b) * double(out.y)) / double(first.a));
    } else {
        const double s = double(first.a) / double(second.a);
        out.y = float((double(first.c) - s * double(second.c)) /
                      (double(first.b) - s * double(second.b)));
        out.x = float((double(second.c) - double(second.b) * double(out.y)) / double(second.a));
    }
}

bool aheadOf(float x, float y, float fromX, float fromY, float towardsX, float towardsY)
{
    return isAhead(roundedDifference(x, fromX), roundedDifference(y, fromY),
                   roundedDifference(towardsX, fromX), roundedDifference(towardsY, fromY));
}

} // namespace

const char* pentagonStatusMessage(int status)
{
    switch (status) {
    case StatusNotPentagon:
        return "Error! New five points can not form a pentagon! \n";
    case StatusNan:
        return "Error! NAN error occurs! \n";
    case StatusNotFinite:
        return "Error! Not a finite number error occurs! \n";
    case StatusParallel:
        return "Error! Two lines are parallel! \n";
    default:
        return "";
    }
}

bool isNotNan(float v)
{
    return v == v;
}

bool isAhead(float ax, float ay, float bx, float by)
{
    const float s = float(double(ax) * double(bx) + double(ay) * double(by));
    return s >= 0.0f;
}

int intersectLines(float x1, float y1, float x2, float y2, float x3, float y3, float x4, float y4,
                   PentagonPoint out)
{
    LineCoefficients first;
    LineCoefficients second;
    if (!lineThrough(x1, y1, x2, y2, first) || !lineThrough(x3, y3, x4, y4, second)) {
        return StatusParallel;
    }
    if (const int status = coefficientsStatus(first, second); status != StatusOk) {
        return status;
    }
    solve(first, second, out);
    for (const float v : {out.y, out.x}) {
        if (const int status = valueStatus(v); status != StatusOk) {
            return status;
        }
    }
    if (!aheadOf(out.x, out.y, x1, y1, x2, y2) || !aheadOf(out.x, out.y, x3, y3, x4, y4)) {
        return StatusNotPentagon;
    }
    return StatusOk;
}
