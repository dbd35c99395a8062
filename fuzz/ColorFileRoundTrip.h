#pragma once

#include "fuzz/ConfigurationFileRead.h"
#include "fuzz/FuzzCheck.h"

#include <string>

// Loads `input` as a configuration file into `settings` (the program's starting values), the
// way the load routine does, then checks that whatever the reader took from it comes back
// unchanged when the module's writer saves it and the reader loads that file into settings
// that differ from it everywhere (`elsewhere`).
template <typename Settings>
void checkConfigurationRoundTrip(const std::string& input, Settings settings,
                                 const Settings& elsewhere,
                                 void (*read)(const std::string&, Settings&),
                                 std::string (*write)(const Settings&))
{
    read(readThroughFile(input), settings);
    Settings reloaded = elsewhere;
    read(write(settings), reloaded);
    check(reloaded == settings,
          "the settings read from the file change when saved and loaded again", input);
}
