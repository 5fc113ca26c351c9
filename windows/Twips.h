#pragma once

// Window positions and sizes are reckoned in twips, 1/1440 inch; a device-independent pixel is 15 of them.

namespace calvoro {

constexpr int kTwipsPerPixel = 15;

constexpr int TwipsToPixels(int twips) {
    return twips / kTwipsPerPixel;
}
constexpr int PixelsToTwips(int pixels) {
    return pixels * kTwipsPerPixel;
}

}  // namespace calvoro
