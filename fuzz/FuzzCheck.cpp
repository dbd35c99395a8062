#include "fuzz/FuzzCheck.h"

#include <cstdio>
#include <cstdlib>

std::string inputText(const uint8_t* data, size_t size)
{
    return std::string(reinterpret_cast<const char*>(data), size);
}

std::string printable(const std::string& text)
{
    std::string shown;
    for (unsigned char byte : text) {
        if (byte >= 0x20 && byte < 0x7f && byte != '\\') {
            shown += static_cast<char>(byte);
        } else {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02x", byte);
            shown += escaped;
        }
    }
    return shown;
}

void check(bool condition, const std::string& what, const std::string& input)
{
    if (condition) {
        return;
    }
    std::fprintf(stderr, "check failed: %s\ninput: \"%s\"\n", what.c_str(),
                 printable(input).c_str());
    std::abort();
}
