#pragma once

#include <string>

namespace quillon
{

// printf-style formatting that always uses the C locale, so that every number the program
// shows or writes has '.' as its decimal point whatever LANG or LC_ALL say. The application
// object switches the C library to the user's locale at start-up; this helper is immune.
std::string cformat(const char* format, ...) __attribute__((format(printf, 1, 2)));

} // namespace quillon
