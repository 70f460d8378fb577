// SPDX-License-Identifier: GPL-3.0-or-later
// ui_gallery [FOLDER]: shows every control of the window; with a folder, writes pictures of them in light and dark into
// it and ends. QT_SCALE_FACTOR=2 gives the pictures of a dense screen, -reverse those from right to left.
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>

#include "ui/ActionIcons.h"
#include "ui/CursorCustomCursors.h"
#include "ui/DesktopAppearance.h"
#include "ui/ElidedLabel.h"
#include "ui/HVColorWell.h"
#include "ui/HVWindow.h"
#include "ui/LabelTextField.h"
#include "ui/PopUpButton.h"
#include "ui/SharedPanels.h"
#include "ui/Slider.h"
#include "ui/Theme.h"

namespace quorvane {
namespace {

QLabel* caption(const QString& text) {
  auto* label = new QLabel(text);
  label->setProperty("caption", true);
  return label;
}

QFrame* card() {
  auto* frame = new QFrame;
  frame->setProperty("card", true);
  return frame;
}

Slider* slider(const Slider::Range& range, double value) {
  auto* made = new Slider;
  made->setRange(range);
  made->setValue(value);
  return made;
}

PopUpButton* effects() {
  auto* button = new PopUpButton;
  button->setAutoenablesItems(false);
  button->addItemWithTitle(QStringLiteral("No effect"), 0);
  button->addSeparatorItem();
  button->addItemWithTitle(QStringLiteral("Shadow"), -1);
  button->addItemWithTitle(QStringLiteral("Soft shadow"), 1);
  button->addItemWithTitle(QStringLiteral("Sharp shadow"), 3);
  button->addItemWithTitle(QStringLiteral("Glow"), -2);
  button->addItemWithTitle(QStringLiteral("Red glow"), 6);
  button->selectItemWithTag(1);
  return button;
}

QWidget* controls(SharedPanels& panels) {
  auto* frame = card();
  auto* form = new QFormLayout(frame);
  form->setContentsMargins(18, 18, 18, 18);
  form->setVerticalSpacing(12);
  form->setHorizontalSpacing(14);
  form->setLabelAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  auto* label = new LabelTextField;
  label->setStringValue(QStringLiteral("Holiday\nPhotos"));
  form->addRow(caption(QStringLiteral("Label")), label);
  auto* disabled = new LabelTextField;
  disabled->setPlaceholderText(QStringLiteral("Drop a folder first"));
  disabled->setEnabled(false);
  disabled->setVisibleLines(1);
  form->addRow(caption(QStringLiteral("No folder")), disabled);
  form->addRow(caption(QStringLiteral("Size")), slider({10, 120, 1, 36, 0, 1, 512, QStringLiteral(" pt"), 1}, 36));
  form->addRow(caption(QStringLiteral("Zeilenabstand")), slider({0, 2, 0.01, 0, 2, 0, 2, {}, 1}, 1.2));
  form->addRow(caption(QStringLiteral("Shear")), slider({-1, 1, 0.01, 0, 2, -4, 4, {}, 1}, -0.35));
  form->addRow(caption(QStringLiteral("Rotation")), slider({-180, 180, 1, 0, 0, -180, 180, QStringLiteral("°"), 1}, 0));
  form->addRow(caption(QStringLiteral("Opacity")), slider({0, 1, 0.01, 1, 0, 0, 1, QStringLiteral(" %"), 100}, 1));
  auto* off = slider({0, 1, 0.01, 0, 2, 0, 1, {}, 1}, 0.4);
  off->setEnabled(false);
  form->addRow(caption(QStringLiteral("Disabled")), off);
  auto* wells = new QHBoxLayout;
  for (const QColor& color : {QColor(Qt::white), QColor(0xb0, 0, 0x20), QColor(0, 90, 200, 110), QColor(Qt::black)}) {
    auto* well = new HVColorWell(&panels.colorPanel());
    well->setColor(color);
    wells->addWidget(well);
    if (color == Qt::black) well->setEnabled(false);
    if (color.alpha() < 255) well->activate(true);
  }
  form->addRow(caption(QStringLiteral("Color")), wells);
  form->addRow(caption(QStringLiteral("Effect")), effects());
  form->addRow(caption(QStringLiteral("Name")), new QLineEdit(QStringLiteral("New Set")));
  auto* checks = new QHBoxLayout;
  for (const bool on : {false, true}) {
    auto* check = new QCheckBox(on ? QStringLiteral("On") : QStringLiteral("Use the last color"));
    check->setChecked(on);
    checks->addWidget(check);
    auto* radio = new QRadioButton;
    radio->setAutoExclusive(false);
    radio->setChecked(on);
    checks->addWidget(radio);
  }
  form->addRow(QString(), checks);
  return frame;
}

QWidget* icons() {
  auto* frame = card();
  auto* column = new QVBoxLayout(frame);
  column->setContentsMargins(18, 18, 18, 18);
  auto* grid = new QGridLayout;
  int index = 0;
  for (const QString& name : actionIconNames()) {
    auto* button = new QToolButton;
    button->setIcon(actionIcon(name));
    button->setIconSize(QSize(24, 24));
    button->setToolTip(name);
    button->setEnabled(index % 7 != 6);
    auto* small = new QLabel;
    small->setPixmap(actionIcon(name).pixmap(QSize(16, 16), small->devicePixelRatioF()));
    grid->addWidget(button, index / 7 * 2, index % 7, Qt::AlignCenter);
    grid->addWidget(small, index / 7 * 2 + 1, index % 7, Qt::AlignCenter);
    ++index;
  }
  column->addLayout(grid);
  auto* cursors = new QHBoxLayout;
  for (const QCursor* cursor : {&crossCursor(), &moveCursor(), &hvOpenHandCursor(), &hvClosedHandCursor(),
                                &diagUpCursor(), &diagDownCursor()}) {
    auto* label = new QLabel;
    label->setPixmap(cursor->pixmap());
    label->setCursor(*cursor);
    label->setAlignment(Qt::AlignCenter);
    cursors->addWidget(label);
  }
  column->addLayout(cursors);
  column->addStretch(1);
  auto* buttons = new QHBoxLayout;
  auto* revert = new QPushButton(actionIcon(QStringLiteral("revert")), QStringLiteral("Revert"));
  auto* apply =
      new QPushButton(actionIcon(QStringLiteral("apply"), QPalette::HighlightedText), QStringLiteral("Apply"));
  apply->setDefault(true);
  auto* off = new QPushButton(actionIcon(QStringLiteral("close")), QStringLiteral("Disabled"));
  off->setEnabled(false);
  for (QPushButton* button : {off, revert, apply}) buttons->addWidget(button);
  column->addLayout(buttons);
  auto* path = new ElidedLabel(
      QStringLiteral("/home/ann/Pictures/2024/Somewhere far away\n/A long name that does not fit/Holiday"));
  path->setForegroundRole(QPalette::PlaceholderText);
  column->addWidget(path);
  return frame;
}

void save(QWidget& widget, const QString& folder, const QString& name) {
  widget.grab().save(QDir(folder).filePath(name + QLatin1String(".png")));
}

void pictures(HVWindow& window, SharedPanels& panels, const QString& folder, const QString& scheme) {
  save(window, folder, scheme);
  const QString details = QStringLiteral("/home/ann/Invoices: Permission denied");
  QTimer::singleShot(50, &window, [&] {
    save(window, folder, scheme + QLatin1String("-alert"));
    window.cancelSheets();
  });
  window.runPromptSheetWithTitle(
      QStringLiteral("Unable to Set Icon"),
      QStringLiteral("The icon of “Invoices 2026” was not changed, since nothing may be written into the folder."),
      QStringLiteral("Try Again"), QStringLiteral("Cancel"), QStringLiteral("Don't Save"), details);
  QTimer::singleShot(50, &window, [&] {
    for (auto* toggle : window.alertPanel()->findChildren<QToolButton*>()) {
      if (toggle->isCheckable()) toggle->setChecked(true);
    }
    QApplication::processEvents();
    save(window, folder, scheme + QLatin1String("-long"));
    window.cancelSheets();
  });
  window.runPromptSheetWithTitle(
      QStringLiteral("Wiederherstellung der ursprünglichen Ordnersymbole fehlgeschlagen"),
      QStringLiteral("/media/Sicherungen/").repeated(20) + QStringLiteral("\nDie Rechnungsunterlagen. ").repeated(30),
      QStringLiteral("Trotzdem fortfahren"), QStringLiteral("Abbrechen"), {}, details);
  panels.colorPanel().show();
  panels.fontPanel().setPanelFont(QStringLiteral("DejaVu Sans"), QStringLiteral("Bold"), 36);
  panels.fontPanel().show();
  QApplication::processEvents();
  save(panels.colorPanel(), folder, scheme + QLatin1String("-colors"));
  save(panels.fontPanel(), folder, scheme + QLatin1String("-fonts"));
  auto* popUp = window.findChild<PopUpButton*>();
  popUp->showPopup();
  QApplication::processEvents();
  save(*popUp->view()->window(), folder, scheme + QLatin1String("-popup"));
  popUp->hidePopup();
  panels.colorPanel().hidePanel();
  panels.fontPanel().hidePanel();
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  using namespace quorvane;
  QApplication application(argc, argv);
  DesktopAppearance appearance;
  Theme theme(&appearance);
  theme.apply();
  SharedPanels panels;
  HVWindow window;
  window.setTitle(QStringLiteral("Controls"));
  QAction* open = window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Open"));
  open->setShortcut(QKeySequence::Open);
  QObject::connect(open, &QAction::triggered, [] { qInfo("opened"); });
  window.menuBar()->addMenu(QStringLiteral("&Edit"))->addAction(QStringLiteral("&Undo"));
  auto* content = new QWidget;
  auto* row = new QHBoxLayout(content);
  row->setContentsMargins(16, 12, 16, 16);
  row->setSpacing(14);
  row->addWidget(controls(panels), 1);
  row->addWidget(icons());
  window.setCentralWidget(content);
  const auto buttons = window.findChildren<QPushButton*>();
  for (QPushButton* button : buttons) {
    QObject::connect(button, &QPushButton::clicked, &window, [&window] {
      const int code = window.runPromptSheetWithTitle(
          QStringLiteral("Unable to Set Icon"), QStringLiteral("Nothing may be written into the folder “Invoices”."),
          QStringLiteral("Try Again"), QStringLiteral("Cancel"), QStringLiteral("Don't Save"),
          QStringLiteral("/home/ann/Invoices: Permission denied"));
      qInfo("answered %d", code);
    });
  }
  window.resize(860, 620);
  window.show();
  const QString folder = application.arguments().value(1);
  if (folder.isEmpty()) {
    appearance.start();
    return QApplication::exec();
  }
  Sheet::setAnimated(false);
  theme.setScheme(Theme::Scheme::Light);
  pictures(window, panels, folder, QStringLiteral("light"));
  theme.setScheme(Theme::Scheme::Dark);
  pictures(window, panels, folder, QStringLiteral("dark"));
  return 0;
}
