// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ReasonTexts.h"

#include <QtGlobal>

namespace quorvane::reasons {

namespace {

constexpr const char* libraryTexts[] = {
    // The icon library.
    QT_TRANSLATE_NOOP("Reasons", "there is no picture in the folder"),
    QT_TRANSLATE_NOOP("Reasons", "no picture in the folder can be read"),
    QT_TRANSLATE_NOOP("Reasons", "too many pictures for one set"),
    QT_TRANSLATE_NOOP("Reasons", "cannot be read back"),
    QT_TRANSLATE_NOOP("Reasons", "cannot read the set"),
    QT_TRANSLATE_NOOP("Reasons", "there is no home folder for a library"),
    QT_TRANSLATE_NOOP("Reasons", "the set holds icons"),
    QT_TRANSLATE_NOOP("Reasons", "the set's folder holds other files, and there is no trash for them"),
    QT_TRANSLATE_NOOP("Reasons", "%1 of the icons cannot be brought back from the trash"),
    QT_TRANSLATE_NOOP("Reasons", "the set cannot be brought back from the trash"),
    QT_TRANSLATE_NOOP("Reasons", "no name of a set"),
    QT_TRANSLATE_NOOP("Reasons", "it is one of our own"),
    // Zip files of sets.
    QT_TRANSLATE_NOOP("Reasons", "not a zip file that can be read"),
    QT_TRANSLATE_NOOP("Reasons", "an entry has no name"),
    QT_TRANSLATE_NOOP("Reasons", "an entry has no length"),
    QT_TRANSLATE_NOOP("Reasons", "it is longer than it says"),
    QT_TRANSLATE_NOOP("Reasons", "the zip file holds no icons"),
    QT_TRANSLATE_NOOP("Reasons", "the zip file holds icons in several folders"),
    QT_TRANSLATE_NOOP("Reasons", "no picture in the zip file can be read"),
    QT_TRANSLATE_NOOP("Reasons", "the zip file names '%1', which leads elsewhere"),
    QT_TRANSLATE_NOOP("Reasons", "the zip file holds '%1', which is no plain file"),
    QT_TRANSLATE_NOOP("Reasons", "the zip file names '%1' twice, or in other letters"),
    QT_TRANSLATE_NOOP("Reasons", "the zip file has too many entries"),
    QT_TRANSLATE_NOOP("Reasons", "the zip file is encrypted"),
    QT_TRANSLATE_NOOP("Reasons", "the zip file unpacks to far more than its length"),
    QT_TRANSLATE_NOOP("Reasons", "too much for one zip file"),
    QT_TRANSLATE_NOOP("Reasons", "cannot make a zip file"),
    QT_TRANSLATE_NOOP("Reasons", "what was made cannot be read"),
    // Looks.
    QT_TRANSLATE_NOOP("Reasons", "there is no such look"),
    QT_TRANSLATE_NOOP("Reasons", "there is a look named '%1' already"),
    QT_TRANSLATE_NOOP("Reasons", "'%1' cannot be the name of a look"),
    QT_TRANSLATE_NOOP("Reasons", "the look's \"%1\" is no text"),
    QT_TRANSLATE_NOOP("Reasons", "the look's \"%1\" is no number"),
    QT_TRANSLATE_NOOP("Reasons", "the look's \"%1\" is no pair of numbers"),
    QT_TRANSLATE_NOOP("Reasons", "the look's \"%1\" is no base64 text"),
    QT_TRANSLATE_NOOP("Reasons", "the look's \"%1\" is no name of an effect"),
    QT_TRANSLATE_NOOP("Reasons", "the look's \"overlay\" and \"overlay-picture\" exclude each other"),
    QT_TRANSLATE_NOOP("Reasons", "the look's \"overlay-picture\" cannot be used"),
    QT_TRANSLATE_NOOP("Reasons", "is longer than %1 bytes, no look file"),
    QT_TRANSLATE_NOOP("Reasons", "is no JSON"),
    QT_TRANSLATE_NOOP("Reasons", "is no look file"),
    QT_TRANSLATE_NOOP("Reasons", "was written by a newer version of this program"),
    QT_TRANSLATE_NOOP("Reasons", "the look's base picture '%1'"),
    QT_TRANSLATE_NOOP("Reasons", "the name of the base picture is no text that a look can hold"),
    QT_TRANSLATE_NOOP("Reasons", "the look is longer than %1 bytes"),
    QT_TRANSLATE_NOOP("Reasons",
                      "a look refers only to pictures in its own folder or below; copy the picture there first"),
    QT_TRANSLATE_NOOP("Reasons", "the label's shadow is none of the effects that a look can hold"),
    QT_TRANSLATE_NOOP("Reasons", "there is no emblem '%1'"),
    QT_TRANSLATE_NOOP("Reasons", "there is no emblem '%1', did you mean '%2'?"),
    QT_TRANSLATE_NOOP("Reasons", "there is no effect '%1'; use %2"),
    QT_TRANSLATE_NOOP("Reasons", "%1 takes a number from %2 to %3, not '%4'"),
    QT_TRANSLATE_NOOP("Reasons", "%1 takes X,Y, numbers within a million, not '%2'"),
    QT_TRANSLATE_NOOP("Reasons", "'%1' is no colour; use #rgb, #rrggbb, #rrggbbaa or a name"),
    QT_TRANSLATE_NOOP("Reasons", "'%1' is no overlay; use emblem:NAME, emoji:X or none"),
    QT_TRANSLATE_NOOP("Reasons", "takes one emoji or other character"),
    QT_TRANSLATE_NOOP("Reasons", "takes one emoji or other character, not '%1'"),
    QT_TRANSLATE_NOOP("Reasons", "the font's name is longer than %1 bytes"),
    QT_TRANSLATE_NOOP("Reasons", "no font '%1' is installed"),
    QT_TRANSLATE_NOOP("Reasons", "the font '%1' has no style '%2'; it has"),
    QT_TRANSLATE_NOOP("Reasons", "the label is longer than %1 bytes"),
    QT_TRANSLATE_NOOP("Reasons", "the label holds a zero byte"),
    QT_TRANSLATE_NOOP("Reasons", "there is no placeholder {%1} for labels, only {name}; a brace itself is written {{"),
    QT_TRANSLATE_NOOP("Reasons", "the label is not UTF-8 text"),
    // Pictures laid over the base picture.
    QT_TRANSLATE_NOOP("Reasons", "the picture cannot be kept in so few bytes"),
    QT_TRANSLATE_NOOP("Reasons", "the picture is longer than %1 bytes"),
    QT_TRANSLATE_NOOP("Reasons", "the picture is no PNG file"),
    // The list of versions.
    QT_TRANSLATE_NOOP("Reasons", "this is no list of versions"),
    QT_TRANSLATE_NOOP("Reasons", "it has a document type"),
    QT_TRANSLATE_NOOP("Reasons", "an element has too many attributes"),
    QT_TRANSLATE_NOOP("Reasons", "its elements are nested too deeply"),
    QT_TRANSLATE_NOOP("Reasons", "its first element is not \"rss\""),
    QT_TRANSLATE_NOOP("Reasons", "it has too many versions"),
    QT_TRANSLATE_NOOP("Reasons", "the list is too long"),
    QT_TRANSLATE_NOOP("Reasons", "not an https address"),
    QT_TRANSLATE_NOOP("Reasons", "no whole answer in %1 s"),
    QT_TRANSLATE_NOOP("Reasons", "%1 bytes"),
    QT_TRANSLATE_NOOP("Reasons", "%1 of %2 bytes"),
    QT_TRANSLATE_NOOP("Reasons", "redirected to %1"),
    QT_TRANSLATE_NOOP("Reasons", "redirected more than %1 times"),
    QT_TRANSLATE_NOOP("Reasons", "the proxy in the environment is not understood"),
    QT_TRANSLATE_NOOP("Reasons", "%1 did not end"),
    QT_TRANSLATE_NOOP("Reasons", "%1 ended with %2"),
    QT_TRANSLATE_NOOP("Reasons", "it is not in UTF-8"),
};

}  // namespace

std::span<const char* const> ofLibrary() {
  return libraryTexts;
}

}  // namespace quorvane::reasons
