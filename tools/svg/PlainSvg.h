// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace quorvane::svg {

/// What QtSvg complains of goes to standard error under this name from now on, and makes rendering fail. Once, first
/// thing in main().
void watchComplaints(const char* program);

/// The first element that is not plain drawing, empty when there is none. QtSvg passes over filters, masks and clips
/// without a word and would need fonts for text, so a picture that uses one would be built wrong unnoticed.
QString foreignElement(const QByteArray& picture);

/// The picture, fitted into `pixels`: 16 bits a channel, premultiplied, each pixel the mean of samples x samples. Null
/// after a message when QtSvg does not understand it to the last element.
QImage renderPlainSvg(const QByteArray& picture, QSize pixels, int samples);

}  // namespace quorvane::svg
