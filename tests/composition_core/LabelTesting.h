// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRectF>

#include "composition/core/LabelValues.h"
#include "imaging/Image.h"

namespace quorvane {

/// A look of black DejaVu Sans at that size in the middle of the canvas: what a machine's own fonts are does not
/// matter.
LabelLook plainLook(double fontSize);

/// The only bitmap of the image.
QImage pixelsOf(const Image& image);

/// What is not transparent, in points of a picture that many points high, y upwards; empty when nothing is.
/// `alpha` is the least that counts.
QRectF inkOf(const Image& image, int alpha = 128);

/// A picture of `points` a side with one bitmap of `pixels` a side, a different colour in each corner.
Image squareBase(float points, int pixels);

/// Largest difference of a channel between two pictures of the same size; 256 when the sizes differ.
int largestDifference(const QImage& a, const QImage& b);

}  // namespace quorvane
