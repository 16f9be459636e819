// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

// Lengths in the settings are twips, 1/1440 inch. A logical pixel has 15 of them at every scale of the
// screen.
inline constexpr int TwipsPerPixel = 15;

// No window or column is longer, in pixels; what a damaged setting asks for beyond it is cut.
inline constexpr int LongestLength = 32767;

constexpr int PixelsOf(int twips) { return std::clamp(twips / TwipsPerPixel, -LongestLength, LongestLength); }

constexpr int TwipsOf(int pixels) { return pixels * TwipsPerPixel; }

// The length to store for these pixels: the stored one where it gives the same pixels, so that a length that
// nobody changed does not shrink with every start.
constexpr int TwipsToStore(int pixels, int storedTwips) {
    return PixelsOf(storedTwips) == pixels ? storedTwips : TwipsOf(pixels);
}
