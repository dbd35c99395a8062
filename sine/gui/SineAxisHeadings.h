#pragma once

#include "sine/engine/SineApproaches.h"

#include <QString>
#include <Qt>
#include <functional>

class QGridLayout;
class QLabel;

// The twelve approaches in index order run through the three axes with the argument slowest
// and the summation fastest, so each argument heads a run of six approaches and each term
// method within it a run of three. The status and selection windows lay their tables out on
// these runs.
constexpr int kSineSummationCount = 3;
constexpr int kSineTermMethodCount = 2;
constexpr int kSineTermMethodRun = kSineSummationCount;
constexpr int kSineInputRun = kSineTermMethodCount * kSineSummationCount;

// The names of the axes' values: "Original X" / "Reduced X", "Direct evaluation" / "Term
// update", "Naive" / "NegPos" / "Kahan".
QString sineInputName(SineInput input);
QString sineTermMethodName(SineTermMethod method);
QString sineSummationName(SineSummation summation);

// A table cell: the text centred in a plain box, so that the boxes draw the table's lines.
QLabel* sineTableCell(const QString& text);

// Heads the approach cells of a grid, which run along `along` from cell `first`: in `line`
// (the row, or for vertical runs the column), one cell over each run of `run` consecutive
// approaches, spanning the run, with the text `heading` gives for the run's first approach.
void addSineHeadingRuns(QGridLayout* grid, Qt::Orientation along, int line, int first, int run,
                        const std::function<QString(const SineApproach&)>& heading);
