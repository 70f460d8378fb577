// SPDX-License-Identifier: GPL-3.0-or-later
// window_pictures FOLDER [PREFIX]: draws the window in its states, in light and dark, into PNG pictures and ends.
// QT_SCALE_FACTOR=2 gives those of a dense screen, -reverse those from right to left, QUORVANE_LONG=1 longer texts.
#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QMimeData>
#include <QTimer>
#include <QTranslator>
#include <QUrl>

#include "TestWindow.h"
#include "app/OverlayGroup.h"
#include "app/SheetPrompts.h"
#include "composition/view/PreviewStrip.h"
#include "ui/HVColorWell.h"
#include "ui/LabelTextField.h"
#include "ui/Sheet.h"
#include "ui/Theme.h"

namespace quorvane::test {
namespace {

/// Every text two fifths longer, as in a wordy language.
class LongTexts : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char*, const char* text, const char*, int) const override {
    const QString source = QString::fromUtf8(text);
    if (source.size() < 3 || source.contains(QLatin1Char('%'))) return source;
    return source + QStringLiteral("ungenheit und mehr").left(std::max<qsizetype>(2, source.size() * 2 / 5));
  }
};

/// Lets the window settle: previews are drawn in a thread of their own.
void settle(int milliseconds = 700) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

class Pictures {
 public:
  Pictures(QString folder, QString prefix) : _folder(std::move(folder)), _prefix(std::move(prefix)) {}
  void take(QWidget& widget, const QString& name) {
    settle();
    widget.grab().save(_folder + QLatin1Char('/') + _prefix + name + QStringLiteral(".png"));
  }

 private:
  QString _folder;
  QString _prefix;
};

void type(const TestWindow& test, const QString& text) {
  test.ui()._labelTF->setStringValue(text);
  test.controller->controlTextDidChange(*test.ui()._labelTF);
}

void edit(TestWindow& test) {
  test.controller->applicationOpenFile(test.folder);
  test.controller->setFont({QStringLiteral("Noto Sans"), QStringLiteral("Bold"), 28});
  test.controller->setColor(Qt::white);
  test.controller->_setEffect(2);
  test.ui()._folderView->setCanvasLabelCenter({64, 56});
  type(test, QStringLiteral("Paid\n2026"));
}

void takeAll(Pictures& pictures) {
  TestWindow test;
  // For a path as people have it.
  qputenv("HOME", QByteArray::fromStdString(test.folder.parent_path().string()));
  test.launch();
  test.window.resize(1180, 690);
  pictures.take(test.window, QStringLiteral("1-empty"));
  test.window.resize(1920, 1080);
  pictures.take(test.window, QStringLiteral("1-empty-large"));
  test.window.resize(1180, 690);

  QMimeData dragged;
  dragged.setUrls({QUrl::fromLocalFile(QString::fromStdString(test.folder.string()))});
  QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, {});
  QApplication::sendEvent(&test.window, &enter);
  pictures.take(test.window, QStringLiteral("2-folder-over-window"));
  QDragLeaveEvent leave;
  QApplication::sendEvent(&test.window, &leave);

  edit(test);
  pictures.take(test.window, QStringLiteral("3-editing"));
  test.window.resize(1920, 1080);
  pictures.take(test.window, QStringLiteral("3-editing-large"));
  test.window.resize(1180, 690);
  test.controller->apply();
  settle();
  edit(test);
  pictures.take(test.window, QStringLiteral("4-after-apply"));
  test.window.resize(1280, 720 - 37);
  test.controller->setBaseIcon(plainImage(QColor(QStringLiteral("#3a9d5d")), 512));
  test.ui()._folderView->setMagnification(3);
  pictures.take(test.window, QStringLiteral("5-base-picture"));

  test.controller->setBaseIcon(std::nullopt);
  test.ui()._folderView->setMagnification(2);
  test.controller->setTint(QColor(0x58, 0xB3, 0x68));
  test.controller->setOverlayDrawing(OverlayEmblem{QStringLiteral("star")});
  test.ui()._folderView->setOverlaySelected(true);
  test.ui()._folderView->setFocus();
  test.ui()._folderView->setCanvasLabelCenter({64, 24});
  settle(4000);
  pictures.take(test.window, QStringLiteral("13-overlay"));
  OverlayPopup* chooser = test.ui()._overlayGroup->choose();
  pictures.take(*chooser, QStringLiteral("14-choose-overlay"));
  chooser->close();

  test.panels.colorPanel().showPanel();
  pictures.take(test.panels.colorPanel(), QStringLiteral("11-color-panel"));
  test.panels.colorPanel().hidePanel();
  test.panels.fontPanel().showPanel();
  pictures.take(test.panels.fontPanel(), QStringLiteral("12-font-panel"));
}

void takeSheets(Pictures& pictures) {
  struct Asked {
    QString name;
    std::function<void(TestWindow&)> ask;
  };
  const Asked sheets[] = {
      {QStringLiteral("6-first-step"), [](TestWindow& test) { test.controller->showFirstStep(nullptr); }},
      {QStringLiteral("7-failed"),
       [](TestWindow& test) {
         edit(test);
         std::filesystem::remove_all(test.folder);
         test.controller->apply();
         settle();
       }},
      {QStringLiteral("8-shortcuts"), [](TestWindow& test) { test.controller->perform(MenuCommand::Shortcuts); }},
      {QStringLiteral("9-save-look"), [](TestWindow& test) { test.controller->perform(MenuCommand::SaveLook); }},
      {QStringLiteral("10-looks"), [](TestWindow& test) { test.controller->perform(MenuCommand::ManageLooks); }},
  };
  for (const Asked& sheet : sheets) {
    // The prompts need the window, and the window the prompts.
    struct Late : UserPrompts {
      HVWindow* window = nullptr;
      [[nodiscard]] bool hasSheet() const override { return false; }
      int run(const Prompt& prompt) override {
        if (prompt.kind == Prompt::Kind::Message)
          return window->runMessageSheetWithTitle(prompt.title, prompt.message), 1;
        window->runPromptSheetWithTitle(prompt.title, prompt.message, prompt.defaultButton, {}, {}, prompt.details);
        return 1;
      }
    } prompts;
    TestWindow test({.mode = WorkQueue::Mode::AtOnce, .prompts = &prompts, .notices = nullptr});
    prompts.window = &test.window;
    test.launch();
    test.window.resize(1180, 690);
    QTimer::singleShot(1500, [&] {
      pictures.take(test.window, sheet.name);
      test.window.cancelSheets();
    });
    sheet.ask(test);
  }
}

}  // namespace
}  // namespace quorvane::test

int main(int argc, char** argv) {
  using namespace quorvane;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("Quorvane"));
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc < 2) return 2;
  QDir().mkpath(QString::fromLocal8Bit(argv[1]));
  test::LongTexts longTexts;
  if (qEnvironmentVariableIsSet("QUORVANE_LONG")) QCoreApplication::installTranslator(&longTexts);
  Sheet::setAnimated(false);
  Drawer::setAnimated(false);
  QFont font(QStringLiteral("Noto Sans"));
  font.setPointSizeF(10);
  QApplication::setFont(font);
  Theme theme(nullptr);
  for (const auto scheme : {Theme::Scheme::Light, Theme::Scheme::Dark}) {
    theme.setScheme(scheme);
    theme.apply();
    const QString prefix = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    test::Pictures pictures(
        QString::fromLocal8Bit(argv[1]),
        prefix + (scheme == Theme::Scheme::Dark ? QStringLiteral("dark-") : QStringLiteral("light-")));
    test::takeAll(pictures);
    test::takeSheets(pictures);
  }
  return 0;
}
