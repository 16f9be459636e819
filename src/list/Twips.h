// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

// Lengths in the settings are twips, 1/1440 inch. A logical pixel has 15 of them at every scale of the
// screen.
inline constexpr int TwipsPerPixel = 15;

// The greatest length of a window or column, in pixels; longer ones from a damaged setting are cut.
inline constexpr int LongestLength = 32767;

constexpr int PixelsOf(int twips) { return std::clamp(twips / TwipsPerPixel, -LongestLength, LongestLength); }

constexpr int TwipsOf(int pixels) { return pixels * TwipsPerPixel; }

// The length to store for these pixels: the stored one if it gives the same pixels, so that an unchanged
// length does not shrink with every start.
constexpr int TwipsToStore(int pixels, int storedTwips) {
    return PixelsOf(storedTwips) == pixels ? storedTwips : TwipsOf(pixels);
}
