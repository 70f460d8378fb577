// SPDX-License-Identifier: GPL-3.0-or-later
// window_pictures FOLDER [PREFIX]: draws the window in its states, in light and dark, into PNG pictures and ends.
// QT_SCALE_FACTOR=2 gives those of a dense screen, -reverse those from right to left, QUORVANE_LONG=1 longer texts,
// QUORVANE_LARGE=1 fonts twice as large, LANGUAGE=de those in a language.
#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

#include "LongTexts.h"
#include "TestWindow.h"
#include "app/AboutController.h"
#include "app/OverlayGroup.h"
#include "app/SheetPrompts.h"
#include "app/SheetUpdateView.h"
#include "app/Translations.h"
#include "composition/view/PreviewStrip.h"
#include "library/view/LibraryPanels.h"
#include "library/view/LibraryTableView.h"
#include "ui/ApplicationIcon.h"
#include "ui/HVColorWell.h"
#include "ui/LabelTextField.h"
#include "ui/Sheet.h"
#include "ui/Theme.h"

namespace quorvane::test {
namespace {

/// Lets the window settle: previews are drawn in a thread of their own.
void settle(int milliseconds = 700) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

class Pictures {
 public:
  Pictures(QString folder, QString prefix) : _folder(std::move(folder)), _prefix(std::move(prefix)) {}
  void take(QWidget& widget, const QString& name, int milliseconds = 700) {
    settle(milliseconds);
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

void putBuiltinIcons(const TestWindow& test) {
  std::filesystem::copy(QUORVANE_BUILTIN, test.tree / "BaseIcons", std::filesystem::copy_options::recursive);
}

void takeAll(Pictures& pictures) {
  TestWindow test;
  putBuiltinIcons(test);
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
  test.controller->setTint(QColor(0x58, 0xB3, 0x68));
  test.controller->setOverlayDrawing(OverlayEmblem{QStringLiteral("star")});
  test.ui()._folderView->setOverlaySelected(true);
  test.ui()._folderView->setFocus();
  test.ui()._folderView->setCanvasLabelCenter({64, 36});
  pictures.take(test.window, QStringLiteral("13-overlay"));
  OverlayPopup* chooser = test.ui()._overlayGroup->choose();
  pictures.take(*chooser, QStringLiteral("14-choose-overlay"));
  chooser->close();
  test.controller->removeOverlay();
  test.controller->setTint(std::nullopt);
  test.controller->apply();
  settle();
  edit(test);
  test.ui()._baseColumn->library()->builtinTableView()->selectRow(3);
  pictures.take(test.window, QStringLiteral("4-after-apply"), 2500);
  test.window.resize(1280, 720 - 37);
  test.controller->setBaseIcon(plainImage(QColor(QStringLiteral("#3a9d5d")), 512));
  test.ui()._folderView->setMagnification(3);
  pictures.take(test.window, QStringLiteral("5-base-picture"));

  test.panels.colorPanel().showPanel();
  pictures.take(test.panels.colorPanel(), QStringLiteral("11-color-panel"));
  test.panels.colorPanel().hidePanel();
  test.panels.fontPanel().showPanel();
  pictures.take(test.panels.fontPanel(), QStringLiteral("12-font-panel"));
}

/// A set with the program's own pictures of kinds of files.
void makeSet(const std::filesystem::path& library, const char* name, std::initializer_list<const char*> icons) {
  std::filesystem::create_directories(library / name);
  for (const char* icon : icons) {
    const std::filesystem::path drawing = std::filesystem::path(QUORVANE_PICTURES) / (std::string(icon) + ".svg");
    const auto image = Image::imageWithContentsOfFile(drawing);
    if (image) static_cast<void>(Image(*image).writeToPNGFile(library / name / (std::string(icon) + ".png")).ok());
  }
}

void takeLibrary(Pictures& pictures) {
  TestWindow test;
  qputenv("HOME", QByteArray::fromStdString(test.folder.parent_path().string()));
  putBuiltinIcons(test);
  makeSet(test.tree / "Icons", "Office", {"folder", "folder-open", "document", "application", "harddisk", "trash"});
  makeSet(test.tree / "Icons", "Photographs of the garden", {"folder", "document"});
  makeSet(test.tree / "Icons", "Later", {});
  test.launch();
  test.window.resize(1250, 720);
  edit(test);
  LibraryView& view = *test.ui()._baseColumn->library();
  view.setLibrary(LibraryView::Builtin);
  view.builtinTableView()->selectRow(1);
  view.builtinTableView()->setFocus();
  pictures.take(test.window, QStringLiteral("13-library-builtin"), 2500);
  view.setLibrary(LibraryView::Custom);
  auto& sets = test.library.customIconSetArrayController();
  const auto showSet = [&](const char* name) {
    for (const auto& set : sets.arrangedObjects())
      if (set->name() == name) test.library.select(set);
  };
  showSet("Office");
  view.customTableView()->selectRow(1);
  pictures.take(test.window, QStringLiteral("14-library-custom"), 2500);
  view.setIconSide(32);
  pictures.take(test.window, QStringLiteral("15-library-small"), 2500);
  view.setIconSide(128);
  view.setSetsWidth(90);
  pictures.take(test.window, QStringLiteral("15-library-large"), 2500);
  view.setSetsWidth(162);
  view.setIconSide(64);
  const auto dragged = std::make_unique<QMimeData>();
  dragged->setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/a.png"))});
  QWidget* viewport = view.customTableView()->viewport();
  QDragEnterEvent enter(QPoint(40, 90), Qt::CopyAction, dragged.get(), Qt::LeftButton, {});
  QApplication::sendEvent(viewport, &enter);
  Q_EMIT test.library.adder().progressed(QStringLiteral("Adding 20 icons…"), 7, 20);
  pictures.take(test.window, QStringLiteral("16-library-drop-and-progress"));
  Q_EMIT test.library.adder().finished();
  QDragLeaveEvent leave;
  QApplication::sendEvent(viewport, &leave);
  showSet("Later");
  pictures.take(test.window, QStringLiteral("17-library-empty-set"));
  view.perform(LibraryCommand::RenameSet);
  pictures.take(test.window, QStringLiteral("17-library-rename"));
  view.searchField()->setFocus();
  view.searchField()->setText(QStringLiteral("fol"));
  pictures.take(test.window, QStringLiteral("18-library-search"), 2500);
  view.searchField()->setText(QStringLiteral("zebra"));
  pictures.take(test.window, QStringLiteral("18-library-search-empty"));
  view.searchField()->clear();
  QTimer::singleShot(2500, [&] {
    if (auto* panel = test.window.findChild<QFileDialog*>()) {
      panel->setDirectory(QString::fromStdString((test.tree / "Icons/Office").string()));
      settle();
      auto* files = panel->findChild<QTreeView*>();
      files->setCurrentIndex(files->model()->index(3, 0, files->rootIndex()));
      settle(1500);
    }
    pictures.take(test.window, QStringLiteral("19-library-add"));
    test.window.cancelSheets();
  });
  static_cast<void>(sheetLibraryPrompts(test.window, test.libraryServices).chooseIcon());
}

/// The windows beside the main one, and the sheets on them.
void takeSideWindows(Pictures& pictures) {
  TestWindow test;
  test.launch();
  PreferenceController& preferences = test.controller->preferenceController();
  QTimer::singleShot(400, [&] {
    preferences._setFont({QStringLiteral("Noto Sans"), QStringLiteral("Bold"), 50});
    preferences.outlets()._colorWell->setColor(QColor(QStringLiteral("#b00020")));
    // The screen that there is not is small.
    preferences.window().resize(preferences.window().wantedSize());
    pictures.take(preferences.window(), QStringLiteral("15-preferences"));
    preferences.showColorPanel(nullptr);
    pictures.take(preferences.window(), QStringLiteral("16-default-color"));
    preferences.closeColorPanel(nullptr);
    preferences.showFontPanel(nullptr);
    pictures.take(preferences.window(), QStringLiteral("17-default-font"));
    preferences.closeFontPanel(nullptr);
    preferences.cancel(nullptr);
  });
  test.controller->perform(MenuCommand::Preferences);
  test.controller->perform(MenuCommand::About);
  SideWindow& about = test.controller->aboutController()->window();
  about.resize(about.wantedSize());
  pictures.take(about, QStringLiteral("18-about"));
  QTimer::singleShot(400, [&] {
    pictures.take(about, QStringLiteral("19-licence"));
    about.cancelSheets();
  });
  test.controller->aboutController()->showLicence(nullptr);
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
      {QStringLiteral("20-newer-version"),
       [](TestWindow& test) {
         SheetUpdateView(test.window)
             .offer({.version = QStringLiteral("1.2"),
                     .runningVersion = QStringLiteral("1.1"),
                     .published = QStringLiteral("3 March 2026"),
                     .news = QStringLiteral("Version 1.2 mends what you told us of.\n\n• Labels of "
                                            "many lines are fitted in half the time\n• The base "
                                            "pictures can be searched\n• Folders on read-only disks "
                                            "are named before anything is tried"),
                     .pageHost = QStringLiteral("quorvane.test")});
       }},
      {QStringLiteral("21-newest-version"),
       [](TestWindow& test) {
         SheetUpdateView(test.window)
             .tell(QStringLiteral("You Have the Newest Version"),
                   QStringLiteral("Quorvane 1.1 is the newest version there is."), {});
       }},
      {QStringLiteral("22-waiting"),
       [](TestWindow& test) {
         SheetUpdateView view(test.window);
         view.beginWaiting([] {});
         settle(2500);
       }},
      {QStringLiteral("13-dock-tip"), [](TestWindow& test) { test.controller->runDockTipSheet(); }},
      {QStringLiteral("14-share"), [](TestWindow& test) { test.controller->runShareOnFacebookSheet(); }},
  };
  for (const Asked& sheet : sheets) {
    // The prompts need the window, and the window the prompts.
    struct Late : UserPrompts {
      HVWindow* window = nullptr;
      [[nodiscard]] bool hasSheet() const override { return false; }
      int run(const Prompt& prompt) override {
        if (prompt.kind == Prompt::Kind::Message)
          return window->runMessageSheetWithTitle(prompt.title, prompt.message), 1;
        const auto button = [](const QString& title) { return title.isEmpty() ? std::nullopt : std::optional(title); };
        return window->runPromptSheetWithTitle(prompt.title, prompt.message, button(prompt.defaultButton),
                                               button(prompt.alternateButton), button(prompt.otherButton),
                                               prompt.details);
      }
    } prompts;
    TestWindow test({.mode = WorkQueue::Mode::AtOnce, .prompts = &prompts, .notices = nullptr});
    prompts.window = &test.window;
    putBuiltinIcons(test);
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
  QCoreApplication::setApplicationVersion(QStringLiteral("0.1.0"));
  QGuiApplication::setWindowIcon(applicationIcon({}));
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc < 2) return 2;
  QDir().mkpath(QString::fromLocal8Bit(argv[1]));
  const Translations translations(QLocale::system().uiLanguages());
  test::LongTexts longTexts;
  if (qEnvironmentVariableIsSet("QUORVANE_LONG")) QCoreApplication::installTranslator(&longTexts);
  Sheet::setAnimated(false);
  Drawer::setAnimated(false);
  QFont font(QStringLiteral("Noto Sans"));
  font.setPointSizeF(qEnvironmentVariableIsSet("QUORVANE_LARGE") ? 20 : 10);
  QApplication::setFont(font);
  Theme theme(nullptr);
  for (const auto scheme : {Theme::Scheme::Light, Theme::Scheme::Dark}) {
    theme.setScheme(scheme);
    theme.apply();
    const QString prefix = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    test::Pictures pictures(
        QString::fromLocal8Bit(argv[1]),
        prefix + (scheme == Theme::Scheme::Dark ? QStringLiteral("dark-") : QStringLiteral("light-")));
    if (!qEnvironmentVariableIsSet("QUORVANE_SIDE_ONLY")) {
      test::takeAll(pictures);
      test::takeLibrary(pictures);
      test::takeSheets(pictures);
    }
    test::takeSideWindows(pictures);
  }
  return 0;
}
