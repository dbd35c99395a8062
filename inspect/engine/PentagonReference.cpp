#include "inspect/engine/PentagonReference.h"

#include "inspect/engine/ErrorReport.h"
#include "inspect/engine/GmpRational.h"
#include "pentagon/engine/PentagonEngine.h"

#include <gmp.h>

namespace
{

// Points 1 .. 5 as exact rationals, x and y.
struct ExactPentagon {
    std::array<GmpRational, 5> x;
    std::array<GmpRational, 5> y;
};

size_t bitsOf(mpq_srcptr q)
{
    return mpz_sizeinbase(mpq_numref(q), 2) + mpz_sizeinbase(mpq_denref(q), 2);
}

// Where the line from A towards B crosses the line from C towards D: false when they do not
// (parallel, or a line given by one point twice).
bool crossing(mpq_srcptr ax, mpq_srcptr ay, mpq_srcptr bx, mpq_srcptr by, mpq_srcptr cx,
              mpq_srcptr cy, mpq_srcptr dx, mpq_srcptr dy, mpq_ptr x, mpq_ptr y)
{
    // a x + b y = c for each line, from a = y2 - y1, b = x1 - x2, c = a x1 + b y1.
    GmpRational a1, b1, c1, a2, b2, c2, t, determinant;
    mpq_sub(a1.get(), by, ay);
    mpq_sub(b1.get(), ax, bx);
    mpq_mul(c1.get(), a1.get(), ax);
    mpq_mul(t.get(), b1.get(), ay);
    mpq_add(c1.get(), c1.get(), t.get());
    mpq_sub(a2.get(), dy, cy);
    mpq_sub(b2.get(), cx, dx);
    mpq_mul(c2.get(), a2.get(), cx);
    mpq_mul(t.get(), b2.get(), cy);
    mpq_add(c2.get(), c2.get(), t.get());
    mpq_mul(determinant.get(), a1.get(), b2.get());
    mpq_mul(t.get(), a2.get(), b1.get());
    mpq_sub(determinant.get(), determinant.get(), t.get());
    if (mpq_sgn(determinant.get()) == 0) {
        return false;
    }
    mpq_mul(x, c1.get(), b2.get());
    mpq_mul(t.get(), c2.get(), b1.get());
    mpq_sub(x, x, t.get());
    mpq_div(x, x, determinant.get());
    mpq_mul(y, a1.get(), c2.get());
    mpq_mul(t.get(), a2.get(), c1.get());
    mpq_sub(y, y, t.get());
    mpq_div(y, y, determinant.get());
    return true;
}

// One In or Out on `pentagon`; an empty reason when it succeeded.
std::string stepExactly(ExactPentagon& pentagon, bool isOut)
{
    ExactPentagon next;
    for (const PentagonStepRow& row : pentagonStepTable(isOut)) {
        const auto x = [&](int point) { return pentagon.x[size_t(point - 1)].get(); };
        const auto y = [&](int point) { return pentagon.y[size_t(point - 1)].get(); };
        const size_t target = size_t(row.newPoint - 1);
        if (!crossing(x(row.lineAFrom), y(row.lineAFrom), x(row.lineATowards), y(row.lineATowards),
                      x(row.lineBFrom), y(row.lineBFrom), x(row.lineBTowards), y(row.lineBTowards),
                      next.x[target].get(), next.y[target].get())) {
            return "two of its lines do not cross";
        }
        if (bitsOf(next.x[target].get()) > kPentagonReplayBitLimit ||
            bitsOf(next.y[target].get()) > kPentagonReplayBitLimit) {
            return "its numbers grew past " + std::to_string(kPentagonReplayBitLimit) + " bits";
        }
    }
    for (size_t i = 0; i < 5; ++i) {
        mpq_swap(pentagon.x[i].get(), next.x[i].get());
        mpq_swap(pentagon.y[i].get(), next.y[i].get());
    }
    return std::string();
}

std::array<MpfrNumber, 10> referenceNumbers()
{
    return {MpfrNumber(kReferenceBits), MpfrNumber(kReferenceBits), MpfrNumber(kReferenceBits),
            MpfrNumber(kReferenceBits), MpfrNumber(kReferenceBits), MpfrNumber(kReferenceBits),
            MpfrNumber(kReferenceBits), MpfrNumber(kReferenceBits), MpfrNumber(kReferenceBits),
            MpfrNumber(kReferenceBits)};
}

} // namespace

PentagonReplay replayExactly(const PentagonPoints& initial, const std::vector<bool>& kinds,
                             size_t steps)
{
    PentagonReplay replay{referenceNumbers(), false, std::string()};
    if (steps > kPentagonReplayStepLimit) {
        replay.why = "more than " + std::to_string(kPentagonReplayStepLimit) + " steps";
        return replay;
    }
    ExactPentagon pentagon;
    for (int point = 1; point <= 5; ++point) {
        mpq_set_d(pentagon.x[size_t(point - 1)].get(), double(initial.x(point)));
        mpq_set_d(pentagon.y[size_t(point - 1)].get(), double(initial.y(point)));
    }
    for (size_t step = 0; step < steps && step < kinds.size(); ++step) {
        if (const std::string why = stepExactly(pentagon, kinds[step]); !why.empty()) {
            replay.why = "step " + std::to_string(step + 1) + ": " + why;
            return replay;
        }
    }
    for (size_t i = 0; i < 5; ++i) {
        mpfr_set_q(replay.coordinates[2 * i].get(), pentagon.x[i].get(), MPFR_RNDN);
        mpfr_set_q(replay.coordinates[2 * i + 1].get(), pentagon.y[i].get(), MPFR_RNDN);
    }
    replay.complete = true;
    return replay;
}
