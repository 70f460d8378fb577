// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QKeySequence>
#include <optional>

namespace quorvane {

/// A pop-up button whose items are known by whole-number tags. Items may share a tag: the first counts.
class PopUpButton : public QComboBox {
  Q_OBJECT
 public:
  /// Bits of a modifier mask. Command is the Ctrl key here, Control the Meta key.
  static constexpr unsigned shiftKeyMask = 0x20000;
  static constexpr unsigned controlKeyMask = 0x40000;
  static constexpr unsigned alternateKeyMask = 0x80000;
  static constexpr unsigned commandKeyMask = 0x100000;

  explicit PopUpButton(QWidget* parent = nullptr);

  /// Adds an item at the end. A key equivalent is one character that chooses the item together with the modifiers, as
  /// if the user had; nullopt or an empty one: none.
  void addItemWithTitle(const QString& title, int tag, const std::optional<QString>& keyEquivalent,
                        unsigned modifierMask);
  void addItemWithTitle(const QString& title, int tag, const std::optional<QString>& keyEquivalent);
  void addItemWithTitle(const QString& title, int tag);
  /// A line between items; it has the tag 0 and is never found by it.
  void addSeparatorItem();

  /// Chooses the item without sending the action; false when there is none.
  bool selectItemWithTag(int tag);
  /// -1 when there is none.
  [[nodiscard]] int indexOfItemWithTag(int tag) const;
  [[nodiscard]] int tagAt(int index) const;
  /// 0 when no item is chosen.
  [[nodiscard]] int selectedTag() const;
  /// Empty when the item has none.
  [[nodiscard]] QKeySequence keySequenceAt(int index) const;

  /// While on, as at first, every item can be chosen. Off, setItemEnabled decides.
  void setAutoenablesItems(bool autoenables);
  /// A disabled item is a caption: drawn as such, and skipped by mouse, keys and selection by typing.
  void setItemEnabled(int index, bool enabled);
  [[nodiscard]] bool isItemEnabled(int index) const;

 Q_SIGNALS:
  /// The user chose an item, also the one that was chosen already.
  void action(int tag);

 protected:
  /// The wheel chooses only while the button has the focus: else scrolling past would change it.
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool _autoenablesItems = true;
};

}  // namespace quorvane
