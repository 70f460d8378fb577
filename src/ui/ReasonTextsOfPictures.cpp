// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ReasonTexts.h"

#include <QtGlobal>

namespace quorvane::reasons {

namespace {

constexpr const char* pictureTexts[] = {
    // Icon families.
    QT_TRANSLATE_NOOP("Reasons", "not an icon family"),
    QT_TRANSLATE_NOOP("Reasons", "an icon family without a whole element"),
    QT_TRANSLATE_NOOP("Reasons", "the icon family holds no whole picture"),
    QT_TRANSLATE_NOOP("Reasons", "icon family with too many elements"),
    QT_TRANSLATE_NOOP("Reasons", "icon family element too long"),
    QT_TRANSLATE_NOOP("Reasons", "icon family too long"),
    QT_TRANSLATE_NOOP("Reasons", "the image has no picture to make an icon of"),
    QT_TRANSLATE_NOOP("Reasons", "element '%1' holds neither PNG nor JPEG 2000"),
    QT_TRANSLATE_NOOP("Reasons", "element '%1' holds neither ARGB, PNG nor JPEG 2000"),
    QT_TRANSLATE_NOOP("Reasons", "element '%1' holds a picture of %2 x %3 pixels"),
    QT_TRANSLATE_NOOP("Reasons", "element '%1' is too short"),
    QT_TRANSLATE_NOOP("Reasons", "element '%1' was given %2 bytes"),
    QT_TRANSLATE_NOOP("Reasons", "there is no element '%1'"),
    QT_TRANSLATE_NOOP("Reasons", "'%1' is not the type of a picture"),
    QT_TRANSLATE_NOOP("Reasons", "element pixels do not fill a bitmap"),
    QT_TRANSLATE_NOOP("Reasons", "an element form is not handled"),
    QT_TRANSLATE_NOOP("Reasons", "packed colour with too many pixels"),
    QT_TRANSLATE_NOOP("Reasons", "packed colour does not unpack to its pixels"),
    QT_TRANSLATE_NOOP("Reasons", "packed picture with too many pixels"),
    QT_TRANSLATE_NOOP("Reasons", "packed picture does not unpack to its pixels"),
    // Pictures of any kind.
    QT_TRANSLATE_NOOP("Reasons", "file is empty"),
    QT_TRANSLATE_NOOP("Reasons", "file is cut off"),
    QT_TRANSLATE_NOOP("Reasons", "out of memory"),
    QT_TRANSLATE_NOOP("Reasons", "the file holds no picture"),
    QT_TRANSLATE_NOOP("Reasons", "not a picture that can be read"),
    QT_TRANSLATE_NOOP("Reasons", "an icon family, not a picture"),
    QT_TRANSLATE_NOOP("Reasons", "animations in the format MNG are not read"),
    QT_TRANSLATE_NOOP("Reasons", "compressed vector pictures are not read"),
    QT_TRANSLATE_NOOP("Reasons", "vector picture defines entities"),
    QT_TRANSLATE_NOOP("Reasons", "vector picture refers to other files"),
    QT_TRANSLATE_NOOP("Reasons", "vector picture has too many parts"),
    QT_TRANSLATE_NOOP("Reasons", "picture of %1 x %2 pixels"),
    QT_TRANSLATE_NOOP("Reasons", "the picture cannot be decoded"),
    QT_TRANSLATE_NOOP("Reasons", "a picture without size"),
    QT_TRANSLATE_NOOP("Reasons", "cannot be decoded"),
    // PNG, JPEG and TIFF.
    QT_TRANSLATE_NOOP("Reasons", "not a PNG file"),
    QT_TRANSLATE_NOOP("Reasons", "PNG file is cut off"),
    QT_TRANSLATE_NOOP("Reasons", "PNG header is cut off"),
    QT_TRANSLATE_NOOP("Reasons", "PNG file does not begin with a header"),
    QT_TRANSLATE_NOOP("Reasons", "PNG header states an impossible size"),
    QT_TRANSLATE_NOOP("Reasons", "PNG header states an unknown kind of pixels"),
    QT_TRANSLATE_NOOP("Reasons", "PNG file holds far more data than its pixels need"),
    QT_TRANSLATE_NOOP("Reasons", "PNG picture of %1 x %2 pixels"),
    QT_TRANSLATE_NOOP("Reasons", "PNG picture is too large"),
    QT_TRANSLATE_NOOP("Reasons", "unexpected layout"),
    QT_TRANSLATE_NOOP("Reasons", "no pixels to write as PNG"),
    QT_TRANSLATE_NOOP("Reasons", "compressing a PNG"),
    QT_TRANSLATE_NOOP("Reasons", "PNG pixels do not fit their bound"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG file is cut off"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG file of more than %1 scans"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG picture is too large"),
    QT_TRANSLATE_NOOP("Reasons", "not a TIFF picture of inks or with transparent greys"),
    QT_TRANSLATE_NOOP("Reasons", "TIFF picture is damaged or cut off"),
    QT_TRANSLATE_NOOP("Reasons", "TIFF picture has no pixels"),
    // JPEG 2000.
    QT_TRANSLATE_NOOP("Reasons", "not a JPEG 2000 file"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 file is cut off"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 file has a box without room for its header"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 file has no picture"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 codestream does not begin with its size"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 codestream has an unknown marker"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 header does not say how it is coded"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 header states an impossible size"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 header states an impossible coding"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 tile states an impossible length"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture has %1 components"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture has too many components"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture has unusable components"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture has components of unequal size"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture has more than 16 bits a sample"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture is in a colour space that is not read"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture has no colour"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture is too large"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture of %1 x %2 pixels"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture of %1 x %2 pixels is of too many pixels"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture of %1 x %2 pixels is of too many tiles"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture of %1 x %2 pixels is of too many code blocks"),
    QT_TRANSLATE_NOOP("Reasons", "JPEG 2000 picture of %1 x %2 pixels is of too many packets"),
    // Layered pictures.
    QT_TRANSLATE_NOOP("Reasons", "not a layered picture (PSD)"),
    QT_TRANSLATE_NOOP("Reasons", "PSD file is cut off"),
    QT_TRANSLATE_NOOP("Reasons", "PSD file has no palette"),
    QT_TRANSLATE_NOOP("Reasons", "PSD picture has no pixels"),
    QT_TRANSLATE_NOOP("Reasons", "PSD pictures of separate inks are not read"),
    QT_TRANSLATE_NOOP("Reasons", "PSD picture is in a colour mode that is not read"),
    QT_TRANSLATE_NOOP("Reasons", "PSD picture has %1 bits a sample in a mode without them"),
    QT_TRANSLATE_NOOP("Reasons", "PSD picture has %1 channels"),
    QT_TRANSLATE_NOOP("Reasons", "PSD picture is compressed in a way that is not read"),
    QT_TRANSLATE_NOOP("Reasons", "PSD picture has a row that is too short"),
    QT_TRANSLATE_NOOP("Reasons", "PSD picture is too large"),
};

}  // namespace

std::span<const char* const> ofPictures() {
  return pictureTexts;
}

}  // namespace quorvane::reasons
