#include "roots/engine/RootsCellColors.h"

namespace
{

constexpr quillon::ColorTriple kBlack{0, 0, 0};
constexpr quillon::ColorTriple kRed{255, 0, 0};
// The green component is 1 on purpose.
constexpr quillon::ColorTriple kBlue{0, 1, 255};
constexpr quillon::ColorTriple kPink{255, 0, 255};
constexpr quillon::ColorTriple kDarkBand{200, 200, 200};
constexpr quillon::ColorTriple kLightBand{245, 245, 245};

} // namespace

std::optional<quillon::ColorTriple> rootsCellInk(int agreement, int variant)
{
    const quillon::ColorTriple oddOneOut[3] = {kRed, kBlue, kPink};
    switch (agreement) {
    case 0:
        return kBlack;
    case 3:
        return oddOneOut[variant];
    case -1:
    case -2:
    case -3:
        return -agreement - 1 == variant ? oddOneOut[variant] : kBlack;
    default:
        return std::nullopt;
    }
}

quillon::ColorTriple rootsRowBackground(RootsRow row)
{
    switch (row) {
    case RowFourAC:
    case RowLargeRoot:
    case RowSmallRoot:
        return kLightBand;
    default:
        return kDarkBand;
    }
}
