// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

#include "app/UpdateView.h"

namespace quorvane {

class HVWindow;

/// Talks by sheets on a window, which must outlive it.
class SheetUpdateView : public UpdateView {
 public:
  explicit SheetUpdateView(HVWindow& window) : _window(window) {}
  ~SheetUpdateView() override { endWaiting(); }

  [[nodiscard]] bool isOccupied() const override;
  void beginWaiting(std::function<void()> givenUp) override;
  void endWaiting() override;
  void tell(const QString& title, const QString& message, const QString& details) override;
  UpdateAnswer offer(const UpdateOffer& offer) override;

 private:
  HVWindow& _window;
  QPointer<QWidget> _waitingSheet;
};

}  // namespace quorvane
