#pragma once

#include <QString>

// Paragraphs that the "What am I looking at?" windows of the tabs with an index plot share.

// The dotted horizontal lines every index plot draws behind its curves.
QString referenceLinesOverview();

// Space, "+" and "-" on a tab whose animation has a pause button and speed buttons.
QString animationKeysOverview();
