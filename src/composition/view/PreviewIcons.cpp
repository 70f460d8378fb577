// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/PreviewIcons.h"

#include <cmath>

#include "composition/core/LabelRenderer.h"
#include "composition/core/OverlayRenderer.h"

namespace quorvane {

bool PreviewSubject::operator==(const PreviewSubject& other) const {
  return picture.isSameAs(other.picture) && overlay == other.overlay && label == other.label && look == other.look &&
         density == other.density;
}

PreviewIcons makePreviewIcons(const PreviewSubject& subject, const IconForms& forms) {
  const Image ground =
      subject.overlay ? OverlayRenderer(*subject.overlay).iconWithBase(subject.picture) : subject.picture;
  const Image composed = LabelRenderer(subject.look)._iconWithBase(ground, subject.label);
  const Image written = forms ? forms(composed) : composed;
  PreviewIcons result;
  for (std::size_t i = 0; i < previewSizes.size(); ++i) {
    const int pixels = static_cast<int>(std::lround(previewSizes[i] * subject.density));
    result.icons[i] = written.rendered(pixels, pixels).toImage();
  }
  if (subject.label) result.legibility = LabelLegibility::of(ground, *subject.label, subject.look);
  return result;
}

}  // namespace quorvane
