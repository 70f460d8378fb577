// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/UpdateView.h"

class QLayout;

namespace quorvane {

class MessageText;

/// Offers a newer version, as a sheet's content: what is new, and whose page a button would open. It ends with one of
/// these codes.
class UpdateSheet : public QWidget {
  Q_OBJECT
 public:
  static constexpr int openPage = 1;
  static constexpr int later = 0;  ///< Escape, too
  static constexpr int skip = 2;

  explicit UpdateSheet(const UpdateOffer& offer);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  MessageText* _news = nullptr;
  QLayout* _buttons = nullptr;
};

}  // namespace quorvane
