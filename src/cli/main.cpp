// SPDX-License-Identifier: GPL-3.0-or-later
#include <malloc.h>
#include <unistd.h>

#include <QGuiApplication>
#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <memory>

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/ExitCode.h"
#include "cli/Terminal.h"
#include "cli/Thumbnail.h"
#include "iconfamily/AppleDoubleForkStore.h"
#include "iconfamily/FamilyPicture.h"
#include "imaging/Image.h"
#include "system/FileManagerNotices.h"
#include "system/FolderMarks.h"
#include "system/KindIcons.h"

namespace {

using namespace quorvane;
using namespace quorvane::cli;

/// Hands over to the window program beside this one; returns only when that cannot be.
void startWindow(char** argv) {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  const std::string window = (self.parent_path() / "quorvane-window").string();
  if (!error) ::execv(window.c_str(), argv);
}

int complainOfUse(char** argv) {
  if (argv[1] == nullptr) {
    std::fputs("Use: quorvane COMMAND ...\nTry 'quorvane --help'.\n", stderr);
  } else {
    const std::string nearest = nearestWord(argv[1], commandWords());
    std::fprintf(stderr, "quorvane: unknown command '%s'%s\nTry 'quorvane --help'.\n",
                 printable(std::string_view(argv[1])).c_str(),
                 nearest.empty() ? "" : (", did you mean '" + nearest + "'?").c_str());
  }
  return exitWrongUse;
}

/// An option or a command; all else is for the window, or wrong.
bool isForProgram(std::string_view first) {
  return first.starts_with("-") || std::ranges::find(commandWords(), first) != commandWords().end();
}

bool isForWindow(int argc, char** argv) {
  if (argc < 2) return true;
  const std::string_view first = argv[1];
  if (isForProgram(first)) return false;
  // Any other single word that names nothing is a command that was mistyped.
  std::error_code error;
  return first.find('/') != std::string_view::npos || first.starts_with("file:") ||
         std::filesystem::exists(std::filesystem::symlink_status(first, error));
}

/// The exit code of a run whose results may not have reached standard output: no success then. A closed pipe is the
/// reader's choice.
int codeAfterOutput(int code) {
  errno = 0;
  const bool isFlushed = std::fflush(stdout) == 0;
  if ((isFlushed && std::ferror(stdout) == 0) || errno == EPIPE) return code;
  std::fprintf(stderr, "quorvane: cannot write to standard output%s%s\n", errno == 0 ? "" : ": ",
               errno == 0 ? "" : std::strerror(errno));
  return code == exitDone ? exitFailed : code;
}

/// Pictures come and go by megabytes. By default each is mapped and unmapped again: thousands of page faults a folder,
/// for which threads wait for each other.
void keepFreedMemory() {
  ::mallopt(M_MMAP_THRESHOLD, 16 << 20);
  ::mallopt(M_TRIM_THRESHOLD, 64 << 20);
}

/// Text needs fonts, fonts need this; other commands start faster without.
bool drawsText(Command command) {
  return command == Command::Apply || command == Command::Render;
}

/// Beside what it is told to use, Qt looks for a display in the session's runtime folder, and makes one in the
/// temporary folder where there is none. This keeps that from being made.
std::unique_ptr<QGuiApplication> makeGuiApplication(int& argc, char** argv) {
  const bool hasFolder = qEnvironmentVariableIsSet("TMPDIR");
  const QByteArray folder = qgetenv("TMPDIR");
  qputenv("TMPDIR", "/dev/null");
  auto application = std::make_unique<QGuiApplication>(argc, argv);
  hasFolder ? qputenv("TMPDIR", folder) : qunsetenv("TMPDIR");
  return application;
}

}  // namespace

int main(int argc, char** argv) {
  if (isThumbnailCall(argc, argv)) return writeThumbnail(argv, AppleDoubleForkStore());
  if (isForWindow(argc, argv)) startWindow(argv);
  if (argc < 2 || !isForProgram(argv[1])) return complainOfUse(argv);
  const auto parsed = parseArguments(argc, argv);
  if (const auto* finished = std::get_if<Finished>(&parsed)) return codeAfterOutput(finished->exitCode);
  const auto& arguments = std::get<Arguments>(parsed);

  keepFreedMemory();
  // Never a display, whatever the session has; and no word of Qt's among ours.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& words) {
    if (type != QtFatalMsg) return;
    // It would end with a crash: no file handles, no memory. Nothing has been begun that would have to be finished.
    std::fprintf(stderr, "quorvane: cannot start: %s\n", qPrintable(words));
    ::_exit(exitFailed);
  });
  std::unique_ptr<QCoreApplication> application;
  if (drawsText(arguments.command)) {
    application = makeGuiApplication(argc, argv);
  } else {
    application = std::make_unique<QCoreApplication>(argc, argv);
  }
  // Qt has just taken the user's: half of each message would be in another language than ours.
  std::setlocale(LC_MESSAGES, "C");
  watchSignals();

  Image::registerReader(familyPictureReader());
  AppleDoubleForkStore forks;
  const auto kinds = makeDesktopKindIcons();
  StampingNotices notices;
  const auto metadata = makeDesktopMetadata();
  const auto marks = makeDesktopMarks(*metadata);
  FamilyCache families;
  return codeAfterOutput(run(
      arguments, {.forks = forks, .kinds = *kinds, .notices = notices, .families = &families, .marks = marks.get()}));
}
