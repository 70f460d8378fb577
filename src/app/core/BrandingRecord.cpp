// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/BrandingRecord.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

constexpr int recordVersion = 1;
constexpr std::size_t recordBytes = 64 * 1024;
const std::string recordName = "record.json";
const std::string originalName = "original";
const std::string keptBackupName = "backup.icns";

const QString versionKey = QStringLiteral("version");
const QString backupKey = QStringLiteral("had_backup");
const QString originalTimeKey = QStringLiteral("modified_before");
const QString ourTimeKey = QStringLiteral("modified_by_us");

// Seconds and nanoseconds as text: JSON numbers hold no 64-bit times.
QString timeText(const timespec& time) {
  return QStringLiteral("%1.%2").arg(time.tv_sec).arg(time.tv_nsec, 9, 10, QLatin1Char('0'));
}

std::optional<timespec> timeFrom(const QString& text) {
  const qsizetype dot = text.indexOf(u'.');
  bool hasSeconds = false;
  bool hasNanoseconds = false;
  timespec time{};
  time.tv_sec = text.left(dot).toLongLong(&hasSeconds);
  time.tv_nsec = text.mid(dot + 1).toLong(&hasNanoseconds);
  if (dot < 0 || !hasSeconds || !hasNanoseconds || time.tv_nsec < 0 || time.tv_nsec > 999'999'999) return std::nullopt;
  return time;
}

Result<void> writeRecord(Folder& record, const QJsonObject& values) {
  const QByteArray json = QJsonDocument(values).toJson();
  TRY_VOID(record.writeFile(recordName, ByteView(reinterpret_cast<const std::uint8_t*>(json.constData()),
                                                 static_cast<std::size_t>(json.size()))));
  return {};
}

Result<QJsonObject> readRecord(const Folder& record) {
  const auto bytes = TRY(record.readFile(recordName, recordBytes));
  if (!bytes) return Error(ErrorKind::NotFound, "holds no record of what was there before").at(record.path());
  const QByteArray json(reinterpret_cast<const char*>(bytes->data()), static_cast<qsizetype>(bytes->size()));
  const QJsonObject values = QJsonDocument::fromJson(json).object();
  if (values[versionKey].toInt() != recordVersion)
    return Error::invalidInput("is damaged, or was written by a newer version").at(record.pathOf(recordName));
  return values;
}

/// Replaces a file by a kept one; the kept one stays, so that it can be done again.
Result<void> putBack(const Folder& from, const std::string& keptName, Folder& to, const std::string& name) {
  const std::string temporary = Folder::temporaryName();
  TRY_VOID(from.preserve(keptName, to, temporary));
  // Two names of one file cannot be renamed over each other; the first then simply goes.
  if (const auto renamed = to.rename(temporary, to, name); !renamed) return renamed;
  return to.removeFile(temporary);
}

}  // namespace

Result<bool> BrandingRecord::exists(const Folder& folder) {
  const auto info = TRY(folder.statusOf(folderName));
  if (!info) return false;
  const Folder record = TRY(folder.openChild(folderName, Folder::Access::Read));
  if (!TRY(record.statusOf(recordName)))
    return Error::refused("stands in the way; it is not a record of ours").at(record.path());
  TRY(readRecord(record));
  return true;
}

Result<void> BrandingRecord::make(Folder& folder, const ForkStore& forks, const std::string& backupName) {
  const struct stat before = TRY(folder.status());
  const std::string temporary = Folder::temporaryName();
  const auto build = [&]() -> Result<void> {
    Folder record = TRY(folder.makeChild(temporary));
    Folder original = TRY(record.makeChild(originalName));
    TRY_VOID(forks.saveOriginal(folder, original));
    const bool hadBackup = TRY(folder.statusOf(backupName)).has_value();
    if (hadBackup) TRY_VOID(folder.preserve(backupName, record, keptBackupName));
    return writeRecord(
        record, {{versionKey, recordVersion}, {backupKey, hadBackup}, {originalTimeKey, timeText(before.st_mtim)}});
  };
  auto done = build();
  if (done.ok()) done = folder.rename(temporary, folder, folderName);
  if (!done.ok()) (void)folder.removeChild(temporary);
  return done;
}

Result<void> BrandingRecord::noteChanged(Folder& folder) {
  if (!TRY(exists(folder))) return {};
  Folder record = TRY(folder.openChild(folderName, Folder::Access::Write));
  QJsonObject values = TRY(readRecord(record));
  values[ourTimeKey] = timeText(TRY(folder.status()).st_mtim);
  return writeRecord(record, values);
}

Result<void> BrandingRecord::restore(Folder& folder, ForkStore& forks, const std::string& backupName) {
  const struct stat now = TRY(folder.status());
  timespec modified = now.st_mtim;
  {
    const Folder record = TRY(folder.openChild(folderName, Folder::Access::Read));
    const QJsonObject values = TRY(readRecord(record));
    // The date from before comes back only when nobody but us changed the folder since.
    if (values[ourTimeKey].toString() == timeText(now.st_mtim))
      modified = timeFrom(values[originalTimeKey].toString()).value_or(modified);
    // Looked at before anything is changed: a reset that cannot be finished is not begun.
    if (values[backupKey].toBool() && !TRY(record.statusOf(keptBackupName)))
      return Error::invalidInput("the kept backup is missing").at(record.pathOf(keptBackupName));
    TRY_VOID(forks.restoreOriginal(folder, TRY(record.openChild(originalName, Folder::Access::Read))));
    if (values[backupKey].toBool()) {
      TRY_VOID(putBack(record, keptBackupName, folder, backupName));
    } else {
      TRY_VOID(folder.removeFile(backupName));
    }
  }
  TRY_VOID(folder.removeChild(folderName));
  // Somebody else's folder cannot be dated; nothing rests on it.
  (void)folder.setTimes(now.st_atim, modified);
  return {};
}

}  // namespace quorvane
