// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition/view/FolderViewAccessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "composition/view/FolderView.h"

namespace quorvane {

namespace {

class FolderViewAccessible : public QAccessibleWidget {
 public:
  explicit FolderViewAccessible(FolderView* view) : QAccessibleWidget(view, QAccessible::Canvas) {}

  [[nodiscard]] QString text(QAccessible::Text text) const override {
    const auto* view = static_cast<const FolderView*>(widget());
    switch (text) {
      case QAccessible::Name:
        return view->folderName().isEmpty() ? FolderView::tr("Folder icon, no folder")
                                            : FolderView::tr("Icon of %1").arg(view->folderName());
      case QAccessible::Value:
        return view->labelDescription();
      case QAccessible::Description:
        // Screen readers ask for no value but a number's: what it is stands here as well.
        return view->labelDescription() + QLatin1String(". ") + view->toolTip();
      default:
        return QAccessibleWidget::text(text);
    }
  }
};

QAccessibleInterface* make(const QString& /*className*/, QObject* object) {
  auto* view = qobject_cast<FolderView*>(object);
  return view != nullptr ? new FolderViewAccessible(view) : nullptr;
}

}  // namespace

void installFolderViewAccessibility() {
  QAccessible::installFactory(make);  // knows a factory that is there already
}

}  // namespace quorvane
