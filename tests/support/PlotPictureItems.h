#pragma once

#include "common/picture/PlotPicture.h"

#include <variant>
#include <vector>

// The overlay items of one kind in a described frame, in painting order.
template <typename Item> std::vector<Item> itemsOf(const quillon::PlotPicture& picture)
{
    std::vector<Item> items;
    for (const quillon::PlotOverlayItem& item : picture.overlay) {
        if (const Item* found = std::get_if<Item>(&item)) {
            items.push_back(*found);
        }
    }
    return items;
}
