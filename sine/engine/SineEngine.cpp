#include "sine/engine/SineEngine.h"

#include <cmath>

namespace
{

constexpr double kFloatMax = 3.4028234663852886e38;
// The single-precision number nearest to 3.1415925, one unit in the last place below
// single-precision pi.
constexpr double kPi = 3.141592502593994;

float single(double value)
{
    return static_cast<float>(value);
}

bool aboveRange(float value)
{
    return double(value) > kFloatMax;
}

bool belowRange(float value)
{
    return double(value) < -kFloatMax;
}

// The code of a power or factorial out of range: its own sign's code, or Underflow whenever
// the term it belongs to is negative.
int32_t directEvaluationCode(int32_t code, float signedFactor)
{
    return signedFactor < 0.0f ? SineUnderflow : code;
}

// Applies `step` to each term while its code is SineOk; a non-zero code ends the sums with
// the term itself.
template <typename Step>
void sumTerms(const std::vector<float>& terms, const std::vector<int32_t>& codes,
              std::vector<float>& sums, Step step)
{
    for (size_t i = 0; i < terms.size(); ++i) {
        if (codes[i] != SineOk) {
            sums.push_back(terms[i]);
            return;
        }
        sums.push_back(step(terms[i]));
    }
}

} // namespace

int32_t sineRangeCode(float value)
{
    if (std::isnan(value) || aboveRange(value)) {
        return SineOverflow;
    }
    return belowRange(value) ? SineUnderflow : SineOk;
}

float sineDegreesToRadians(int degrees)
{
    return single(double(degrees) * kPi / 180.0);
}

float sineLibrary(int degrees)
{
    return single(std::sin(double(sineDegreesToRadians(degrees))));
}

void sineReduceRange(float& sign, int& degrees)
{
    if (degrees < 0) {
        sign = -sign;
        degrees = -degrees;
    }
    while (degrees >= 360) {
        degrees -= 360;
    }
    if (degrees >= 180) {
        sign = -sign;
        degrees -= 180;
    }
    if (degrees >= 90) {
        degrees = 180 - degrees;
    }
}

float sineFactorial(int m)
{
    float product = 1.0f;
    for (int factor = 1; factor <= m; ++factor) {
        product = single(double(product) * double(factor));
    }
    return product;
}

float sinePower(float x, int exponent)
{
    float result = 1.0f;
    float base = x;
    for (;;) {
        if (exponent % 2 == 1) {
            result = result * base;
        }
        const int previous = exponent;
        exponent /= 2;
        if (previous < 2) {
            return result;
        }
        base = base * base;
    }
}

void sineDirectEvaluation(float x, std::vector<float>& terms, std::vector<int32_t>& codes,
                          int count, float factor)
{
    for (int n = 0; n < count; ++n) {
        const float sigma = n % 2 == 0 ? 1.0f : -1.0f;
        const float signedFactor = sigma * factor;
        // A NaN power or factorial is not caught here; its quotient is.
        const float power = sinePower(x, 2 * n + 1);
        if (aboveRange(power) || belowRange(power)) {
            const int32_t code = aboveRange(power) ? SineOverflow : SineUnderflow;
            codes.push_back(directEvaluationCode(code, signedFactor));
            return;
        }
        const float factorial = sineFactorial(2 * n + 1);
        if (aboveRange(factorial) || belowRange(factorial)) {
            codes.push_back(directEvaluationCode(SineOverflow, signedFactor));
            return;
        }
        const float quotient = power / factorial;
        if (const int32_t code = sineRangeCode(quotient); code != SineOk) {
            codes.push_back(code);
            return;
        }
        terms.push_back(signedFactor * quotient);
        codes.push_back(SineOk);
    }
}

void sineTermUpdate(float x, std::vector<float>& terms, std::vector<int32_t>& codes, int count,
                    float factor)
{
    float t = x;
    float sigma = 1.0f;
    float counter = 1.0f;
    for (int n = 0; n < count; ++n) {
        const float value = sigma * t;
        if (const int32_t code = sineRangeCode(value); code != SineOk) {
            codes.push_back(code);
            return;
        }
        terms.push_back(factor * value);
        codes.push_back(SineOk);
        const float first = counter + 1.0f;
        t = single(double(t) * double(x) / double(first));
        const float second = first + 1.0f;
        t = single(double(x) * double(t) / double(second));
        counter = second;
        sigma = -sigma;
    }
}

void sineNaiveSum(std::vector<float> terms, std::vector<int32_t> codes, std::vector<float>& sums)
{
    float sum = 0.0f;
    sumTerms(terms, codes, sums, [&sum](float term) { return sum = sum + term; });
}

void sineNegPosSum(std::vector<float> terms, std::vector<int32_t> codes, std::vector<float>& sums)
{
    float negative = 0.0f;
    float positive = 0.0f;
    sumTerms(terms, codes, sums, [&](float term) {
        // A zero term goes to the negative accumulator.
        if (term <= 0.0f) {
            negative = negative + term;
        } else {
            positive = positive + term;
        }
        return negative + positive;
    });
}

void sineKahanSum(std::vector<float> terms, std::vector<int32_t> codes, std::vector<float>& sums)
{
    float sum = 0.0f;
    float compensation = 0.0f;
    sumTerms(terms, codes, sums, [&](float term) {
        const float y = term - compensation;
        const float t = sum + y;
        // One expression from the rounded t, evaluated in double and rounded once.
        compensation = single((double(t) - double(sum)) - double(y));
        sum = t;
        return t;
    });
}
