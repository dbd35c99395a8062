#pragma once

#include <array>
#include <cstddef>

// One pentagon: ten single-precision coordinates in the order P1.x, P1.y, ..., P5.x, P5.y.
// Points are numbered 1 to 5.
struct PentagonPoints {
    std::array<float, 10> coordinates{};

    float& x(int point) { return coordinates[std::size_t(2 * (point - 1))]; }
    float& y(int point) { return coordinates[std::size_t(2 * (point - 1) + 1)]; }
    float x(int point) const { return coordinates[std::size_t(2 * (point - 1))]; }
    float y(int point) const { return coordinates[std::size_t(2 * (point - 1) + 1)]; }
};

// A point written by intersectLines.
struct PentagonPoint {
    float& x;
    float& y;
};

// The result of one intersection, and so of one step.
enum PentagonStatus {
    StatusOk = 0,
    // The crossing lies behind the start point of one of the two lines.
    StatusNotPentagon = 1,
    StatusNan = 2,
    StatusNotFinite = 3,
    // One of the two lines is given by two points that coincide within 1e-11 (not two
    // genuinely parallel lines: those end in a division by zero, code 3 or 2).
    StatusParallel = 4,
};

// The message the scene shows for a status code, with its blank before the line break; empty
// for StatusOk.
const char* pentagonStatusMessage(int status);

// True when v equals itself.
bool isNotNan(float v);

// True when the single-rounded dot product ax*bx + ay*by is at least 0 (false for NaN).
bool isAhead(float ax, float ay, float bx, float by);

// Where line A, from (x1, y1) towards (x2, y2), crosses line B, from (x3, y3) towards
// (x4, y4). Each line's coefficients a x + b y = c are single-rounded, the crossing is solved
// in double around the larger |a| and each coordinate rounded once; `out` is written as soon
// as the crossing is solved, before it is checked, and left alone on an earlier return.
int intersectLines(float x1, float y1, float x2, float y2, float x3, float y3, float x4, float y4,
                   PentagonPoint out);
