#pragma once

#include <cstdint>

namespace quillon
{

// One colour as the program stores it: three 32-bit components meant to lie in 0..255.
// Values outside that range are kept as they are (configuration files may hold them);
// OpenGL receives each component divided by 255.
struct ColorTriple {
    int32_t red = 0;
    int32_t green = 0;
    int32_t blue = 0;

    float redF() const { return static_cast<float>(red) / 255.0f; }
    float greenF() const { return static_cast<float>(green) / 255.0f; }
    float blueF() const { return static_cast<float>(blue) / 255.0f; }

    friend bool operator==(const ColorTriple& a, const ColorTriple& b)
    {
        return a.red == b.red && a.green == b.green && a.blue == b.blue;
    }
    friend bool operator!=(const ColorTriple& a, const ColorTriple& b) { return !(a == b); }
};

} // namespace quillon
