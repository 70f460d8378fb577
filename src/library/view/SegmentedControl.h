// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRadioButton>
#include <QTimer>
#include <QWidget>
#include <vector>

namespace quorvane {

/// One of a few choices side by side. The arrow keys choose; a drag that waits over one chooses it.
class SegmentedControl : public QWidget {
  Q_OBJECT
 public:
  explicit SegmentedControl(const QStringList& titles, QWidget* parent = nullptr);

  [[nodiscard]] int selected() const;
  /// Sends nothing when it is chosen already.
  void setSelected(int segment);
  [[nodiscard]] QRadioButton* segment(int number) const { return _segments[static_cast<std::size_t>(number)]; }

 Q_SIGNALS:
  void selectionChanged(int segment);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<QRadioButton*> _segments;
};

}  // namespace quorvane
