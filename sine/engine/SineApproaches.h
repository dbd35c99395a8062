#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

constexpr int kSineApproachCount = 12;

// One approach's series: the terms computed, their codes (all 0, then one non-zero code when
// the series stopped early, so one element more than the terms) and the partial sums.
struct SineSeries {
    std::vector<float> terms;
    std::vector<int32_t> codes;
    std::vector<float> sums;
};

enum class SineInput { Original, Reduced };
enum class SineTermMethod { DirectEvaluation, TermUpdate };
enum class SineSummation { Naive, NegPos, Kahan };

// One of the twelve ways: which argument, how the terms are formed, how they are summed, and
// the names the program shows and writes for it.
struct SineApproach {
    SineInput input;
    SineTermMethod termMethod;
    SineSummation summation;
    const char* longName;      // input + term method + summation
    const char* shortCode;     // as written into the exports, with its comma and blank
    const char* termFirstName; // term method + input + summation
};

// Func1 .. Func12 in index order (index 0 is Func1).
const std::array<SineApproach, kSineApproachCount>& sineApproaches();

// Runs one approach for X degrees and `count` terms into `series` (cleared first).
void runSineApproach(const SineApproach& approach, int degrees, int count, SineSeries& series);

// The index of the last valid partial sum: the first non-zero code among indices 0 .. count-1
// less one, or count - 1 when there is none.
int sineErrorIteration(const std::vector<int32_t>& codes, int count);

// Everything one computation yields.
struct SineResults {
    int degrees = 0;
    int count = 0;
    float librarySine = 0.0f;
    std::array<SineSeries, kSineApproachCount> series;
    std::array<int, kSineApproachCount> errorIteration{};
    // The partial sum at the error iteration and its difference to the library sine (formed in
    // double, rounded to single); absent when the series has no valid partial sum there (it
    // stopped at its first term, or the count is below 1).
    std::array<std::optional<float>, kSineApproachCount> value;
    std::array<std::optional<float>, kSineApproachCount> error;
};

// The library sine, then Func1 .. Func12 in order with their error iterations, values and
// errors.
void computeSine(int degrees, int count, SineResults& results);
