// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/PopUpButton.h"

#include <QPainter>
#include <QShortcut>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace quorvane {
namespace {

constexpr int tagRole = Qt::UserRole;
constexpr int keyRole = Qt::UserRole + 1;
constexpr int captionRole = Qt::UserRole + 2;

QKeySequence sequence(const QString& key, unsigned mask) {
  const QChar character = key.front();
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  // A capital letter stands for itself with Shift.
  if ((mask & PopUpButton::shiftKeyMask) || character.isUpper()) modifiers |= Qt::ShiftModifier;
  if (mask & PopUpButton::controlKeyMask) modifiers |= Qt::MetaModifier;
  if (mask & PopUpButton::alternateKeyMask) modifiers |= Qt::AltModifier;
  if (mask & PopUpButton::commandKeyMask) modifiers |= Qt::ControlModifier;
  return QKeySequence(QKeyCombination(modifiers, static_cast<Qt::Key>(character.toUpper().unicode())));
}

void setFlags(QStandardItem& item, bool enabled) {
  item.setEnabled(enabled);
  item.setSelectable(enabled);
  item.setData(!enabled, captionRole);
}

/// Items with air round them; captions muted and in bold; separators as hairlines.
class ItemDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    if (_isSeparator(index)) return {20, 9};
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width() + 28, option.fontMetrics.height() + 12};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QPalette& palette = option.palette;
    if (_isSeparator(index)) {
      painter->fillRect(QRect(option.rect.left() + 6, option.rect.center().y(), option.rect.width() - 12, 1),
                        palette.color(QPalette::Mid));
      return painter->restore();
    }
    const bool caption = index.data(captionRole).toBool();
    const bool lit = !caption && (option.state & (QStyle::State_Selected | QStyle::State_MouseOver));
    if (lit) {
      painter->setPen(Qt::NoPen);
      painter->setBrush(palette.color(QPalette::Active, QPalette::Highlight));
      painter->drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), 6, 6);
    }
    QFont font = option.font;
    font.setWeight(caption ? QFont::DemiBold : QFont::Normal);
    painter->setFont(font);
    const auto role = caption ? QPalette::PlaceholderText : lit ? QPalette::HighlightedText : QPalette::Text;
    painter->setPen(palette.color(QPalette::Active, role));
    const int indent = caption ? 10 : 14;
    const auto alignment = QStyle::visualAlignment(option.direction, Qt::AlignLeading | Qt::AlignVCenter);
    painter->drawText(
        option.rect.adjusted(indent, 0, -indent, 0), static_cast<int>(alignment) | Qt::TextSingleLine,
        option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, option.rect.width() - 2 * indent));
    painter->restore();
  }

 private:
  static bool _isSeparator(const QModelIndex& index) {
    return index.data(Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
  }
};

}  // namespace

PopUpButton::PopUpButton(QWidget* parent) : QComboBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
  setItemDelegate(new ItemDelegate(this));
  connect(this, &QComboBox::activated, this, [this](int index) { Q_EMIT action(tagAt(index)); });
}

void PopUpButton::addItemWithTitle(const QString& title, int tag, const std::optional<QString>& keyEquivalent,
                                   unsigned modifierMask) {
  addItem(title, tag);
  const int index = count() - 1;
  if (!_autoenablesItems) setItemEnabled(index, tag >= 0);
  if (!keyEquivalent || keyEquivalent->isEmpty()) return;
  const QKeySequence keys = sequence(*keyEquivalent, modifierMask);
  setItemData(index, QVariant::fromValue(keys), keyRole);
  setItemData(index, keys.toString(QKeySequence::NativeText), Qt::ToolTipRole);
  auto* shortcut = new QShortcut(keys, this);
  const QPersistentModelIndex item(model()->index(index, modelColumn(), rootModelIndex()));
  connect(shortcut, &QShortcut::activated, this, [this, item] {
    if (!item.isValid() || !isItemEnabled(item.row())) return;
    setCurrentIndex(item.row());
    Q_EMIT action(tagAt(item.row()));
  });
}

void PopUpButton::addItemWithTitle(const QString& title, int tag, const std::optional<QString>& keyEquivalent) {
  addItemWithTitle(title, tag, keyEquivalent, commandKeyMask);
}

void PopUpButton::addItemWithTitle(const QString& title, int tag) {
  addItemWithTitle(title, tag, std::nullopt);
}

void PopUpButton::addSeparatorItem() {
  insertSeparator(count());
}

bool PopUpButton::selectItemWithTag(int tag) {
  const int index = indexOfItemWithTag(tag);
  if (index < 0) return false;
  setCurrentIndex(index);
  return true;
}

int PopUpButton::indexOfItemWithTag(int tag) const {
  return findData(tag, tagRole, Qt::MatchExactly);
}

int PopUpButton::tagAt(int index) const {
  return itemData(index, tagRole).toInt();
}

int PopUpButton::selectedTag() const {
  return tagAt(currentIndex());
}

QKeySequence PopUpButton::keySequenceAt(int index) const {
  return itemData(index, keyRole).value<QKeySequence>();
}

void PopUpButton::setAutoenablesItems(bool autoenables) {
  _autoenablesItems = autoenables;
  auto* items = qobject_cast<QStandardItemModel*>(model());
  for (int index = 0; autoenables && items && index < count(); ++index) {
    if (itemData(index, tagRole).isValid()) setFlags(*items->item(index), true);
  }
}

void PopUpButton::setItemEnabled(int index, bool enabled) {
  auto* items = qobject_cast<QStandardItemModel*>(model());
  QStandardItem* item = items && !_autoenablesItems ? items->item(index) : nullptr;
  if (!item || !itemData(index, tagRole).isValid()) return;
  setFlags(*item, enabled);
}

bool PopUpButton::isItemEnabled(int index) const {
  return model()->flags(model()->index(index, modelColumn(), rootModelIndex())) & Qt::ItemIsEnabled;
}

void PopUpButton::wheelEvent(QWheelEvent* event) {
  if (!hasFocus()) return event->ignore();
  QComboBox::wheelEvent(event);
}

}  // namespace quorvane
