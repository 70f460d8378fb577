// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QThreadPool>
#include <QWidget>
#include <optional>

#include "composition/view/PreviewIcons.h"

class QPainter;

namespace quorvane {

class IconComposition;

/// Shows the icon as it will look in file managers: at 128, 64, 48, 32 and 16 pixels, on a light and on a dark ground,
/// and in a line below what would make its label hard to read. The two grounds share the width side by side where there
/// is room, else one stands below the other.
///
/// All is computed in a thread of its own. While one preview is being made only the latest wish is kept, so that
/// showing a composition anew at every step of a drag costs the caller next to nothing.
class PreviewStrip : public QWidget {
  Q_OBJECT

 public:
  /// `forms`: see IconForms.
  explicit PreviewStrip(IconForms forms, QWidget* parent = nullptr);
  ~PreviewStrip() override;

  /// Shows the composition as it is now: soon. Without a picture the grounds stay empty.
  void setComposition(const IconComposition& composition);

  /// What makes the label hard to read, in sentences; empty when nothing does.
  [[nodiscard]] const QString& hint() const { return _hint; }
  [[nodiscard]] static QString hintFor(const LabelLegibility& legibility);

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void hintChanged(const QString& hint);
  /// A preview is finished and shown, and no newer one is wanted.
  void settled();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] std::array<QRect, 2> grounds() const;
  /// Where the icons stand, in the order of previewSizes: in the middle of the ground. Nowhere, when it is too narrow.
  [[nodiscard]] static std::array<QRect, previewSizes.size()> iconPlaces(const QRect& ground);
  [[nodiscard]] QRect hintRect() const;
  void drawIcons(QPainter& painter);
  void start(PreviewSubject subject);
  void finished(const PreviewIcons& icons);
  void setHint(const QString& hint);

  IconForms _forms;
  PreviewIcons _icons;
  QString _hint;
  std::optional<PreviewSubject> _wanted;   ///< the latest wish; none without a picture
  std::optional<PreviewSubject> _running;  ///< what is being made
  QThreadPool _pool;                       ///< one thread; last, so that it ends before what it uses
};

}  // namespace quorvane
