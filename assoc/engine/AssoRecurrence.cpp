#include "assoc/engine/AssoRecurrence.h"

#include "common/core/SingleRange.h"

namespace
{

// The code for a rounded step result, AssoOk when it is in range.
int32_t codeOf(float value)
{
    if (quillon::withinSingleRange(value)) {
        return AssoOk;
    }
    return double(value) > quillon::kSingleMax ? AssoOverflow : AssoUnderflow;
}

// Stores one rounded step result and returns its code. The orders chain their steps with ||,
// so the first failing step ends the evaluation and the later ones are not computed.
int32_t step(float& target, float value)
{
    target = value;
    return codeOf(value);
}

// The last step: its result reaches `out` before it is tested.
int32_t finish(float result, float& out)
{
    out = result;
    return codeOf(result);
}

} // namespace

int32_t evalOrder1(float x, float r, float& out)
{
    float a, b, c, d;
    int32_t code;
    if ((code = step(a, 1.0f + r)) || (code = step(b, a * x)) || (code = step(c, x * x)) ||
        (code = step(d, r * c))) {
        return code;
    }
    return finish(b - d, out);
}

int32_t evalOrder2(float x, float r, float& out)
{
    float a, b, c, d;
    int32_t code;
    if ((code = step(a, 1.0f + r)) || (code = step(b, a * x)) || (code = step(c, r * x)) ||
        (code = step(d, x * c))) {
        return code;
    }
    return finish(b - d, out);
}

int32_t evalOrder3(float x, float r, float& out)
{
    float a, c, e;
    int32_t code;
    if ((code = step(a, 1.0f + r)) || (code = step(c, r * x)) || (code = step(e, a - c))) {
        return code;
    }
    return finish(x * e, out);
}

int32_t evalOrder4(float x, float r, float& out)
{
    // The product R * x is computed once and used twice.
    float p, q, s;
    int32_t code;
    if ((code = step(p, x * r)) || (code = step(q, 1.0f - p)) || (code = step(s, x * q))) {
        return code;
    }
    return finish(s + p, out);
}

int32_t evalOrder5(float x, float r, float& out)
{
    float s, t, u;
    int32_t code;
    if ((code = step(s, x * x)) || (code = step(t, x - s)) || (code = step(u, t * r))) {
        return code;
    }
    return finish(x + u, out);
}

void computeSequences(float r, float x0, int n, AssoSequences& sequences)
{
    using Evaluation = int32_t (*)(float, float, float&);
    static const Evaluation evaluations[kAssoOrderCount] = {evalOrder1, evalOrder2, evalOrder3,
                                                            evalOrder4, evalOrder5};
    for (int k = 0; k < kAssoOrderCount; ++k) {
        sequences.values[k].clear();
        sequences.errors[k].clear();
        sequences.values[k].push_back(x0);
        sequences.errors[k].push_back(AssoOk);
    }
    float slot = 0.0f;
    for (int i = 1; i < n; ++i) {
        for (int k = 0; k < kAssoOrderCount; ++k) {
            const int32_t code = evaluations[k](sequences.values[k][i - 1], r, slot);
            sequences.values[k].push_back(slot);
            sequences.errors[k].push_back(code);
        }
    }
}
