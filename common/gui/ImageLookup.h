#pragma once

// The program's images are looked up by the picture library, which the command line shares
// with the windows; widget code finds the lookup here beside the other widget helpers.
#include "common/picture/ImageLookup.h"
