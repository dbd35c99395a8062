#include "sine/engine/SineApproaches.h"

#include "sine/engine/SineEngine.h"

namespace
{

using Input = SineInput;
using Method = SineTermMethod;
using Sum = SineSummation;

// The short code of Func8 reads "NI", not "NP": the files have always been written so.
const std::array<SineApproach, kSineApproachCount> kApproaches = {{
    {Input::Original, Method::DirectEvaluation, Sum::Naive, "Original X + Direct eva + Naive",
     "EX-DE-NA, ", "Direct eva + Original X + Naive"},
    {Input::Original, Method::DirectEvaluation, Sum::NegPos, "Original X + Direct eva + NegPos",
     "EX-DE-NP, ", "Direct eva + Original X + NegPos"},
    {Input::Original, Method::DirectEvaluation, Sum::Kahan, "Original X + Direct eva + Kahan",
     "EX-DE-KH, ", "Direct eva + Original X + Kahan"},
    {Input::Original, Method::TermUpdate, Sum::Naive, "Original X + Term update + Naive",
     "EX-TU-NA, ", "Term update + Original X + Naive"},
    {Input::Original, Method::TermUpdate, Sum::NegPos, "Original X + Term update + NegPos",
     "EX-TU-NP, ", "Term update + Original X + NegPos"},
    {Input::Original, Method::TermUpdate, Sum::Kahan, "Original X + Term update + Kahan",
     "EX-TU-KH, ", "Term update + Original X + Kahan"},
    {Input::Reduced, Method::DirectEvaluation, Sum::Naive, "Reduced X + Direct eva + Naive",
     "RX-DE-NA, ", "Direct eva + Reduced X + Naive"},
    {Input::Reduced, Method::DirectEvaluation, Sum::NegPos, "Reduced X + Direct eva + NegPos",
     "RX-DE-NI, ", "Direct eva + Reduced X + NegPos"},
    {Input::Reduced, Method::DirectEvaluation, Sum::Kahan, "Reduced X + Direct eva + Kahan",
     "RX-DE-KH, ", "Direct eva + Reduced X + Kahan"},
    {Input::Reduced, Method::TermUpdate, Sum::Naive, "Reduced X + Term update + Naive",
     "RX-TU-NA, ", "Term update + Reduced X + Naive"},
    {Input::Reduced, Method::TermUpdate, Sum::NegPos, "Reduced X + Term update + NegPos",
     "RX-TU-NP, ", "Term update + Reduced X + NegPos"},
    {Input::Reduced, Method::TermUpdate, Sum::Kahan, "Reduced X + Term update + Kahan",
     "RX-TU-KH, ", "Term update + Reduced X + Kahan"},
}};

void generateTerms(const SineApproach& approach, float x, int count, float factor,
                   SineSeries& series)
{
    if (approach.termMethod == Method::DirectEvaluation) {
        sineDirectEvaluation(x, series.terms, series.codes, count, factor);
    } else {
        sineTermUpdate(x, series.terms, series.codes, count, factor);
    }
}

void sumSeries(const SineApproach& approach, SineSeries& series)
{
    switch (approach.summation) {
    case Sum::Naive:
        sineNaiveSum(series.terms, series.codes, series.sums);
        break;
    case Sum::NegPos:
        sineNegPosSum(series.terms, series.codes, series.sums);
        break;
    case Sum::Kahan:
        sineKahanSum(series.terms, series.codes, series.sums);
        break;
    }
}

} // namespace

const std::array<SineApproach, kSineApproachCount>& sineApproaches()
{
    return kApproaches;
}

void runSineApproach(const SineApproach& approach, int degrees, int count, SineSeries& series)
{
    series.terms.clear();
    series.codes.clear();
    series.sums.clear();
    float factor = 1.0f;
    if (approach.input == Input::Reduced) {
        sineReduceRange(factor, degrees);
    }
    generateTerms(approach, sineDegreesToRadians(degrees), count, factor, series);
    sumSeries(approach, series);
}

int sineErrorIteration(const std::vector<int32_t>& codes, int count)
{
    for (int i = 0; i < count && size_t(i) < codes.size(); ++i) {
        if (codes[i] != SineOk) {
            return i - 1;
        }
    }
    return count - 1;
}

void computeSine(int degrees, int count, SineResults& results)
{
    results.degrees = degrees;
    results.count = count;
    results.librarySine = sineLibrary(degrees);
    for (int k = 0; k < kSineApproachCount; ++k) {
        SineSeries& series = results.series[k];
        // The table lists the approaches three by three, one argument and term method with its
        // three summations: the terms are generated once per three (the costly part).
        const int firstOfGroup = k - k % 3;
        if (k == firstOfGroup) {
            runSineApproach(kApproaches[k], degrees, count, series);
        } else {
            series.terms = results.series[firstOfGroup].terms;
            series.codes = results.series[firstOfGroup].codes;
            series.sums.clear();
            sumSeries(kApproaches[k], series);
        }
        const int last = sineErrorIteration(series.codes, count);
        results.errorIteration[k] = last;
        results.value[k].reset();
        results.error[k].reset();
        if (last >= 0 && size_t(last) < series.sums.size()) {
            results.value[k] = series.sums[last];
            results.error[k] =
                static_cast<float>(double(series.sums[last]) - double(results.librarySine));
        }
    }
}
