// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "foundation/WorkQueue.h"

class QLabel;

namespace quorvane {

/// What a chosen file would look like as an icon: at several sizes, with which sizes it holds. It is read on a thread
/// of its own, and as it would be when it is added.
class IconPreview : public QWidget {
  Q_OBJECT
 public:
  struct Look {
    std::vector<QImage> pictures;  ///< one for each size that is shown
    std::vector<int> heldSizes;    ///< sides in pixels, ascending, that the file itself holds
  };
  /// nullopt: nothing can be shown. Called on any thread; the sides are in pixels.
  using Reader = std::function<std::optional<Look>(const std::filesystem::path& path, const std::vector<int>& sides)>;

  explicit IconPreview(Reader reader, WorkQueue::Mode mode = WorkQueue::Mode::InBackground, QWidget* parent = nullptr);

  /// An empty path shows nothing.
  void setPath(const std::filesystem::path& path);
  /// What is said about the file.
  [[nodiscard]] QString text() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void _show(const std::optional<Look>& look);

  Reader _reader;
  std::vector<QImage> _pictures;
  QLabel* _words;
  QWidget* _place;
  std::optional<WorkQueue::Ticket> _reading;
  WorkQueue _queue;
};

}  // namespace quorvane
