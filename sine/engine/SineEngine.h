#pragma once

#include <cstdint>
#include <vector>

// The building blocks of sin(x) by its Taylor series in single precision. Every value stored
// is a float rounded exactly where the demonstration says; an expression that spans several
// operations is evaluated in double from the single operands and rounded once when stored.

// Codes recorded after the last term of a series that stopped early. "Underflow" is this
// module's word for a value below -FLT_MAX (overflow towards minus infinity); a NaN is
// recorded as Overflow. Code 3 is never produced, but every consumer understands it.
enum SineCode : int32_t {
    SineOk = 0,
    SineOverflow = 1,
    SineUnderflow = 2,
    SineNan = 3,
};

// The code a tested value gets: Overflow above FLT_MAX or NaN, Underflow below -FLT_MAX,
// SineOk otherwise (the bounds compared in double).
int32_t sineRangeCode(float value);

// X degrees to single-precision radians with the constant 3.141592502593994 (one unit in
// the last place below single-precision pi, on purpose): single(double(X) * pi' / 180).
float sineDegreesToRadians(int degrees);

// The math library's sine of the single-rounded radian value, rounded to single.
float sineLibrary(int degrees);

// Reduces `degrees` to 0..90 and flips `sign` so that sin(X) = sign * sin(reduced).
void sineReduceRange(float& sign, int& degrees);

// m! as a running single-precision product 1 * 1 * 2 * ... * m (infinite from 35! on).
float sineFactorial(int m);

// x^e by square-and-multiply in single precision (e >= 1).
float sinePower(float x, int exponent);

// Direct evaluation: term n = (sigma * factor) * x^(2n+1) / (2n+1)!, each computed from
// scratch, for n = 0 .. count-1; stops at the first power, factorial or quotient out of range
// with its code (a power or factorial overflow counts as Underflow when sigma * factor < 0).
void sineDirectEvaluation(float x, std::vector<float>& terms, std::vector<int32_t>& codes,
                          int count, float factor);

// Term update: each term from the previous one, t <- (t * x) / (2n) then (x * t) / (2n + 1);
// stops at the first signed term out of range with its code.
void sineTermUpdate(float x, std::vector<float>& terms, std::vector<int32_t>& codes, int count,
                    float factor);

// The three summations. Each appends one partial sum per term; a non-zero code among the
// terms' codes appends that term and stops (a guard the generators never trigger). The lists
// are taken by value, as copies.
void sineNaiveSum(std::vector<float> terms, std::vector<int32_t> codes, std::vector<float>& sums);
void sineNegPosSum(std::vector<float> terms, std::vector<int32_t> codes, std::vector<float>& sums);
void sineKahanSum(std::vector<float> terms, std::vector<int32_t> codes, std::vector<float>& sums);
