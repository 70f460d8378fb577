// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

#include "foundation/base/Limits.h"
#include "ui/CursorCustomCursors.h"
#include "ui/ElidedLabel.h"
#include "ui/HVColorWell.h"
#include "ui/HVTableView.h"
#include "ui/LabelTextField.h"
#include "ui/PopUpButton.h"
#include "ui/SharedPanels.h"
#include "ui/Slider.h"
#include "ui/TextFieldTrimmedStringAdditions.h"
#include "ui/TransparentTextView.h"

namespace quorvane::test {
namespace {

void show(QWidget& widget) {
  widget.show();
  widget.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&widget));
}

/// Carries out Return as the main controller does.
struct Delegate : LabelTextFieldDelegate {
  void showFirstStep(LabelTextField&) override { ++firstSteps; }
  void controlTextDidChange(LabelTextField& field) override { texts << field.stringValue(); }
  bool controlTextViewDoCommandBySelector(LabelTextField& control, LabelTextField& textView,
                                          TextCommand command) override {
    commands.push_back(command);
    if (command != TextCommand::InsertNewline || !takesReturn) return false;
    const TextRange range = textView.selectedRange();
    QString text = control.stringValue();
    text.replace(range.location, range.length, QStringLiteral("\n"));
    control.setStringValue(text);
    textView.setSelectedRange({range.location + 1, range.length});
    return true;
  }
  bool takesReturn = true;
  int firstSteps = 0;
  QStringList texts;
  std::vector<TextCommand> commands;
};

TEST(LabelTextFieldTest, ReturnBreaksTheLineAndTabLeaves) {
  QWidget window;
  QHBoxLayout row(&window);
  LabelTextField field;
  QLineEdit next;
  row.addWidget(&field);
  row.addWidget(&next);
  Delegate delegate;
  field.setDelegate(&delegate);
  show(window);
  field.setFocus();
  field.setStringValue(QStringLiteral("AB"));
  EXPECT_TRUE(delegate.texts.isEmpty()) << "set by code";
  for (const bool takes : {true, false}) {
    delegate.takesReturn = takes;
    field.setStringValue(QStringLiteral("AB"));
    field.setSelectedRange({1, 0});
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(field.stringValue(), QStringLiteral("A\nB"));
    EXPECT_EQ(field.selectedRange(), (TextRange{2, 0}));
    EXPECT_EQ(delegate.texts.size(), takes ? 0 : 1);
  }
  delegate.takesReturn = true;
  field.setStringValue(QStringLiteral("abcd"));
  field.setSelectedRange({0, 4});
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(field.selectedRange(), (TextRange{1, 0})) << "cut at the end of the text";
  field.undo();
  EXPECT_EQ(field.stringValue(), QStringLiteral("abcd"));
  QTest::keyClick(&field, Qt::Key_Tab);
  EXPECT_TRUE(next.hasFocus());
}

TEST(LabelTextFieldTest, TakesPlainTextUpToTheLimit) {
  LabelTextField field;
  Delegate delegate;
  field.setDelegate(&delegate);
  auto* data = new QMimeData;
  data->setHtml(QStringLiteral("<b>bold</b>"));
  data->setText(QStringLiteral("one\r\ntwo\u2028thr\x1b") + QStringLiteral("ee"));
  QApplication::clipboard()->setMimeData(data);
  field.paste();
  EXPECT_EQ(field.stringValue(), QStringLiteral("one\ntwo\nthree"));
  EXPECT_EQ(delegate.texts.size(), 1);
  QApplication::clipboard()->setText(QStringLiteral("é").repeated(limits::labelBytes));
  field.paste();
  const qsizetype bytes = field.stringValue().toUtf8().size();
  EXPECT_LE(bytes, limits::labelBytes);
  EXPECT_GE(bytes, limits::labelBytes - 8);
  QTest::keyClicks(&field, QStringLiteral("xyzxyzxyzxyz"));
  EXPECT_LE(field.stringValue().toUtf8().size(), limits::labelBytes);
  field.setStringValue(QStringLiteral("\n").repeated(5000));
  EXPECT_EQ(field.stringValue().count(QLatin1Char('\n')), limits::labelLines - 1);
}

TEST(LabelTextFieldTest, ClickWhileDisabledShowsTheFirstStep) {
  LabelTextField field;
  Delegate delegate;
  field.setDelegate(&delegate);
  show(field);
  for (const bool enabled : {true, false}) {
    field.setEnabled(enabled);
    QTest::mouseClick(field.windowHandle(), Qt::LeftButton, {}, field.rect().center());
    EXPECT_EQ(delegate.firstSteps, enabled ? 0 : 1);
  }
}

TEST(PopUpButtonTest, ItemsByTag) {
  PopUpButton button;
  button.setAutoenablesItems(false);
  button.addItemWithTitle(QStringLiteral("None"), 0);
  button.addItemWithTitle(QStringLiteral("Caption"), -1);
  button.addSeparatorItem();
  button.addItemWithTitle(QStringLiteral("E"), 6, QStringLiteral("e"));
  button.addItemWithTitle(QStringLiteral("F"), 7, QStringLiteral("f"),
                          PopUpButton::shiftKeyMask | PopUpButton::alternateKeyMask);
  QSignalSpy action(&button, &PopUpButton::action);
  EXPECT_TRUE(button.selectItemWithTag(6));
  EXPECT_FALSE(button.selectItemWithTag(5));
  EXPECT_EQ(button.selectedTag(), 6);
  EXPECT_TRUE(button.selectItemWithTag(0));
  EXPECT_EQ(button.currentIndex(), 0) << "a separator is no item with tag 0";
  EXPECT_EQ(button.keySequenceAt(3), QKeySequence(QStringLiteral("Ctrl+E")));
  EXPECT_EQ(button.keySequenceAt(4), QKeySequence(QStringLiteral("Alt+Shift+F")));
  EXPECT_TRUE(button.keySequenceAt(0).isEmpty());
  EXPECT_EQ(action.count(), 0);
  show(button);
  QTest::keyClick(&button, Qt::Key_Down);
  EXPECT_EQ(button.selectedTag(), 6) << "the caption is skipped";
  QTest::keyClick(&button, Qt::Key_F, Qt::AltModifier | Qt::ShiftModifier);
  EXPECT_EQ(button.selectedTag(), 7);
  EXPECT_EQ(action.count(), 2);
}

TEST(HVColorWellTest, TogglesThePanelOrSendsItsAction) {
  SharedPanels panels;
  HVColorWell well(&panels.colorPanel());
  HVColorWell other(&panels.colorPanel());
  show(well);
  other.activate(true);
  QSignalSpy changed(&well, &HVColorWell::colorChanged);
  QTest::mousePress(&well, Qt::LeftButton);
  EXPECT_FALSE(well.isActive());
  QTest::mouseRelease(&well, Qt::LeftButton);
  EXPECT_TRUE(well.isActive() && panels.colorPanel().isVisible());
  EXPECT_FALSE(other.isActive());
  well.setColor(Qt::red);
  EXPECT_EQ(panels.colorPanel().color(), QColor(Qt::red));
  Q_EMIT panels.colorPanel().colorChanged(QColor(0, 0, 255, 128));
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&well)->text(QAccessible::Value),
            QStringLiteral("#0000ff (blue), 50% opaque"));
  QTest::keyClick(&well, Qt::Key_Space);
  EXPECT_FALSE(well.isActive() || panels.colorPanel().isVisible());
  QTest::keyClick(&well, Qt::Key_Space);
  panels.colorPanel().close();
  EXPECT_FALSE(well.isActive()) << "closed by the user";
  int actions = 0;
  well.setTarget(&well, [&](HVColorWell&) { ++actions; });
  QTest::mouseClick(&well, Qt::LeftButton);
  EXPECT_EQ(actions, 1);
  EXPECT_FALSE(panels.colorPanel().isVisible());
}

TEST(SharedPanelsTest, SetByCodeIsSilentAndContentIsLent) {
  SharedPanels panels;
  QSignalSpy colors(&panels.colorPanel(), &ColorPanel::colorChanged);
  QSignalSpy fonts(&panels.fontPanel(), &FontPanel::fontChanged);
  panels.colorPanel().setColor(QColor(1, 2, 3, 4));
  panels.fontPanel().setPanelFont(QStringLiteral("DejaVu Sans"), QStringLiteral("Nonesuch"), 36.5);
  panels.fontPanel().showPanel();
  QTest::qWait(1);
  EXPECT_EQ(colors.count() + fonts.count(), 0);
  EXPECT_EQ(panels.colorPanel().color(), QColor(1, 2, 3, 4));
  auto* size = panels.fontPanel().findChild<QLineEdit*>(QString(), Qt::FindChildrenRecursively);
  ASSERT_TRUE(size);
  for (auto* edit : panels.fontPanel().findChildren<QLineEdit*>()) {
    if (edit->text() == QStringLiteral("37")) size = edit;
  }
  size->clear();
  QTest::keyClicks(size, QStringLiteral("48"));
  ASSERT_GE(fonts.count(), 1);
  EXPECT_EQ(fonts.last(), (QVariantList{QStringLiteral("DejaVu Sans"), QStringLiteral("Nonesuch"), 48.0}));
  {
    QWidget box;
    panels.colorPanel().showPanel();
    panels.colorPanel().moveContentInto(box);
    EXPECT_FALSE(panels.colorPanel().isVisible());
    box.show();
    EXPECT_TRUE(panels.colorPanel().isContentLent());
  }
  EXPECT_FALSE(panels.colorPanel().isContentLent());
  panels.colorPanel().showPanel();
  EXPECT_FALSE(panels.colorPanel().findChildren<QLineEdit*>().isEmpty()) << "the box's end did not take the content";
  QTest::keyClick(&panels.colorPanel(), Qt::Key_Escape);
  EXPECT_FALSE(panels.colorPanel().isVisible());
}

TEST(SliderTest, TellsTheUsersActsOnly) {
  Slider slider;
  Slider::Range range;
  range.minimum = -1;
  range.defaultValue = 0.25;
  range.typedMaximum = 4;
  slider.setRange(range);
  slider.setName(QStringLiteral("Shear"));
  show(slider);
  QSignalSpy changed(&slider, &Slider::valueChanged);
  slider.setValue(0.333);
  EXPECT_EQ(slider.value(), 0.333) << "as it was set, not rounded to a step";
  EXPECT_EQ(changed.count(), 0);
  slider.sendAction();
  EXPECT_EQ(changed.takeFirst().at(0).toDouble(), 0.333);
  const std::vector<std::pair<std::function<void()>, double>> acts = {
      {[&] { QTest::keyClick(slider.track(), Qt::Key_Right); }, 0.34},
      {[&] { QTest::mouseDClick(slider.track(), Qt::LeftButton); }, 0.25},
      {[&] { QTest::mouseClick(slider.track(), Qt::LeftButton, {}, QPoint(slider.track()->width() - 2, 14)); }, 1},
      {[&] {
         slider.number()->selectAll();
         QTest::keyClicks(slider.number(), QLocale().toString(3.5));
         QTest::keyClick(slider.number(), Qt::Key_Return);
       },
       3.5},
  };
  for (const auto& [act, value] : acts) {
    act();
    EXPECT_EQ(slider.value(), value);
    EXPECT_EQ(changed.takeLast().at(0).toDouble(), value);
  }
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(slider.track());
  EXPECT_EQ(accessible->valueInterface()->maximumValue().toDouble(), 1);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Shear"));
  slider.number()->setFocus();
  QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(slider.track(), &wheel);
  EXPECT_EQ(slider.value(), 3.5);
}

TEST(HVTableViewTest, ReturnEndsEditingOrGoesOn) {
  for (const bool ends : {true, false}) {
    QStandardItemModel model(3, 2);
    HVTableView table;
    table.setModel(&model);
    table.setReturnKeyEndsEditing(ends);
    show(table);
    table.setCurrentIndex(model.index(0, 0));
    table.edit(model.index(0, 0));
    auto* editor = table.findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    QTest::keyClicks(editor, QStringLiteral("new"));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();  // the delegate takes its time
    EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("new"));
    EXPECT_EQ(table.currentIndex().row(), ends ? 0 : 1);
    EXPECT_EQ(QApplication::focusWidget() == &table, ends);
    if (ends) table.edit(table.currentIndex());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(table.currentIndex().column(), 1) << "Tab goes to the next cell";
  }
}

TEST(CursorsTest, AreKeptAndSeenOnAnyGround) {
  EXPECT_EQ(&hvOpenHandCursor(), &hvOpenHandCursor());
  for (const QCursor* cursor : {&crossCursor(), &moveCursor(), &hvOpenHandCursor(), &hvClosedHandCursor(),
                                &diagUpCursor(), &diagDownCursor()}) {
    EXPECT_EQ(cursor->hotSpot(), QPoint(8, 8));
    const QImage image = cursor->pixmap().toImage();
    EXPECT_EQ(image.deviceIndependentSize(), QSizeF(16, 16));
    int bright = 0;
    int dark = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor color = image.pixelColor(x, y);
        if (color.alpha() > 200)
          ++(color.lightness() > 200 ? bright : color.lightness() < 80 ? dark : x ? bright : dark);
      }
    }
    EXPECT_GT(bright, 10);
    EXPECT_GT(dark, 10);
  }
}

TEST(SmallTextsTest, TrimElideAndStayStatic) {
  QLineEdit field(QStringLiteral("  abc\t"));
  EXPECT_EQ(trimmedStringValue(field), QStringLiteral("abc"));
  trimWhitespaces(field);
  EXPECT_EQ(field.text(), QStringLiteral("abc"));
  EXPECT_EQ(trimmedOfWhitespaces(QStringLiteral(" \na\n ")), QStringLiteral("\na\n"));
  EXPECT_EQ(trimmedOfWhitespaces(QStringLiteral(" \t ")), QString());

  ElidedLabel label(QStringLiteral("/home/\u202Egnp.exe\n/") + QStringLiteral("long/").repeated(40));
  label.resize(200, 20);
  EXPECT_TRUE(label.isElided());
  EXPECT_LE(label.fontMetrics().horizontalAdvance(label.shownText()), 200);
  EXPECT_TRUE(label.shownText().startsWith(QStringLiteral("/home/\\u{202")));

  TransparentTextView view;
  view.setHtml(QStringLiteral("<b>text</b>"));
  show(view);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
  EXPECT_FALSE(view.textCursor().hasSelection() || view.hasFocus());
}

}  // namespace
}  // namespace quorvane::test
