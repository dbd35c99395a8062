#pragma once

// Colour triples become QColors in the picture library, which the command line shares with
// the windows; widget code finds the conversion here beside the other widget helpers.
#include "common/picture/QtColor.h"
