// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/ApplyFailure.h"

#include <QCoreApplication>
#include <cerrno>

#include "foundation/base/Text.h"

namespace quorvane {

namespace {

QString translated(const char* text) {
  return QCoreApplication::translate("ApplyFailure", text);
}

/// What to do about a failed system call; null when there is nothing better to say than about any other.
const char* adviceFor(int systemCode) {
  switch (systemCode) {
    case EACCES:
    case EPERM:
      return QT_TRANSLATE_NOOP("ApplyFailure",
                               "You may not change this folder. Give yourself write permission in the folder's "
                               "properties, or ask its owner.");
    case EROFS:
      return QT_TRANSLATE_NOOP("ApplyFailure",
                               "The disk cannot be written to. Remove its write protection, or copy the folder to "
                               "another disk and brand the copy.");
    case ENOSPC:
    case EDQUOT:
      return QT_TRANSLATE_NOOP("ApplyFailure", "There is no room left. Delete something on this disk and try again.");
    case EIO:
    case ENODEV:
    case ENXIO:
      return QT_TRANSLATE_NOOP("ApplyFailure",
                               "The disk does not work as it should. Make sure that it is connected, and copy what "
                               "matters to another one.");
    case ENOTCONN:
    case EHOSTDOWN:
    case EHOSTUNREACH:
    case ETIMEDOUT:
    case ESTALE:
      return QT_TRANSLATE_NOOP("ApplyFailure",
                               "The file server does not answer. Connect to it anew, open the folder and try again.");
    case ENAMETOOLONG:
      return QT_TRANSLATE_NOOP("ApplyFailure", "The path is too long. Move the folder to a place with a shorter path.");
    case EMFILE:
    case ENFILE:
    case ENOMEM:
      return QT_TRANSLATE_NOOP("ApplyFailure", "The computer is short of memory. Close other programs and try again.");
    default:
      return nullptr;
  }
}

const char* adviceFor(const Error& error) {
  if (const char* advice = adviceFor(error.systemCode())) return advice;
  switch (error.kind()) {
    case ErrorKind::NotFound:
      return QT_TRANSLATE_NOOP("ApplyFailure",
                               "The folder is no longer there. It may have been moved or renamed: open it anew.");
    case ErrorKind::Refused:
      return QT_TRANSLATE_NOOP("ApplyFailure",
                               "Something is in the way that is not ours to touch. Move it away, or wait until the "
                               "other program is done, and try again.");
    case ErrorKind::Unsupported:
      return QT_TRANSLATE_NOOP("ApplyFailure",
                               "The disk cannot keep an icon with a folder. Move the folder to another disk.");
    case ErrorKind::InvalidInput:
    case ErrorKind::TooLarge:
      return QT_TRANSLATE_NOOP("ApplyFailure",
                               "The item named above cannot be used. Choose another picture, or move the item away, "
                               "and try again.");
    case ErrorKind::Broken:
      return QT_TRANSLATE_NOOP("ApplyFailure", "This should not happen. Please report it, with the text above.");
    case ErrorKind::System:
      break;
  }
  return QT_TRANSLATE_NOOP("ApplyFailure", "Make sure that the folder can be changed, and try again.");
}

QString details(const char* what, const std::filesystem::path& folder, const Error& error, const QString& reason) {
  // In one go: a name may look like a placeholder.
  return QStringLiteral("%1\n\n%2\n\n%3")
      .arg(translated(what).replace(QLatin1String("%1"), QString::fromStdString(printable(folder))),
           translated(QT_TRANSLATE_NOOP("ApplyFailure", "Reason: %1")).replace(QLatin1String("%1"), reason),
           translated(adviceFor(error)));
}

}  // namespace

QString applyFailureDetails(const std::filesystem::path& folder, const Error& error, const QString& reason) {
  return details(QT_TRANSLATE_NOOP("ApplyFailure", "The icon of the folder %1 could not be set."), folder, error,
                 reason);
}

QString revertFailureDetails(const std::filesystem::path& folder, const Error& error, const QString& reason) {
  return details(QT_TRANSLATE_NOOP("ApplyFailure", "The former icon of the folder %1 could not be put back."), folder,
                 error, reason);
}

}  // namespace quorvane
