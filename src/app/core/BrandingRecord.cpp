// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/BrandingRecord.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <array>
#include <functional>

#include "foundation/KeptFiles.h"
#include "iconfamily/CustomIcon.h"
#include "iconfamily/IconFile.h"

namespace quorvane {

namespace {

constexpr int recordVersion = 1;
constexpr std::size_t recordBytes = 64 * 1024;
const std::string recordName = "record.json";
const std::string originalName = "original";
const std::string marksName = "marks";
const std::string keptBackupName = "backup.icns";

const QString versionKey = QStringLiteral("version");
const QString backupKey = QStringLiteral("had_backup");
const QString originalTimeKey = QStringLiteral("modified_before");
const QString ourTimeKey = QStringLiteral("modified_by_us");
const QString ourDateKey = QStringLiteral("modified_by_us_before_reset");
const QString brandedKey = QStringLiteral("branded");
const QString unfinishedKey = QStringLiteral("unfinished");

constexpr std::array operations{BrandingOperation::Apply, BrandingOperation::Revert, BrandingOperation::Reset};

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

Result<void> changeRecord(Folder& folder, const std::function<void(QJsonObject&)>& change) {
  Folder record = TRY(folder.openChild(BrandingRecord::folderName, Folder::Access::Write));
  QJsonObject values = TRY(readRecord(record));
  change(values);
  return writeRecord(record, values);
}

Result<void> noteReset(Folder& folder, const QJsonObject& values, bool isOurDate) {
  if (values.contains(ourDateKey)) return {};
  return changeRecord(folder, [&](QJsonObject& changed) {
    changed[unfinishedKey] = QString::fromStdString(operationName(BrandingOperation::Reset));
    changed[ourDateKey] = isOurDate;
  });
}

Result<std::uint64_t> sizeOf(const Folder& folder, int depth) {
  std::uint64_t size = 0;
  for (const std::string& name : TRY(folder.names())) {
    const auto info = TRY(folder.statusOf(name));
    if (info && S_ISREG(info->st_mode)) size += static_cast<std::uint64_t>(info->st_size);
    if (info && S_ISDIR(info->st_mode) && depth > 0)
      size += TRY(sizeOf(TRY(folder.openChild(name, Folder::Access::Read)), depth - 1));
  }
  return size;
}

}  // namespace

WantedMarks noMarks() {
  return {.picture = {}, .hiddenFile = {}, .formerlyHidden = {iconFileNames.begin(), iconFileNames.end()}};
}

std::string operationName(BrandingOperation operation) {
  switch (operation) {
    case BrandingOperation::Apply:
      return "apply";
    case BrandingOperation::Revert:
      return "revert";
    case BrandingOperation::Reset:
      break;
  }
  return "reset";
}

Result<std::optional<BrandingState>> BrandingRecord::state(const Folder& folder) {
  const auto info = TRY(folder.statusOf(folderName));
  if (!info) return std::optional<BrandingState>();
  const Folder record = TRY(folder.openChild(folderName, Folder::Access::Read));
  if (!TRY(record.statusOf(recordName)))
    return Error::refused("stands in the way; it is not a record of ours").at(record.path());
  const QJsonObject values = TRY(readRecord(record));
  BrandingState state{.isBranded = values[brandedKey].toBool(), .unfinished = {}};
  for (const auto operation : operations)
    if (values[unfinishedKey].toString().toStdString() == operationName(operation)) state.unfinished = operation;
  return std::optional(state);
}

Result<std::uint64_t> BrandingRecord::size(const Folder& folder) {
  const auto info = TRY(folder.statusOf(folderName));
  if (!info || !S_ISDIR(info->st_mode)) return std::uint64_t{0};
  return sizeOf(TRY(folder.openChild(folderName, Folder::Access::Read)), 1);
}

Result<void> BrandingRecord::check(const Folder& folder, const ForkStore& forks) {
  const Folder record = TRY(folder.openChild(folderName, Folder::Access::Read));
  const QJsonObject values = TRY(readRecord(record));
  const auto backup = TRY(record.statusOf(keptBackupName));
  if (values[backupKey].toBool() && !(backup && S_ISREG(backup->st_mode)))
    return Error::invalidInput("the kept backup is missing").at(record.pathOf(keptBackupName));
  if (const auto marks = TRY(originalMarks(folder, Folder::Access::Read)))
    for (const std::string& name : TRY(marks->names()))
      if (const auto kept = TRY(marks->statusOf(name)); kept && !S_ISREG(kept->st_mode))
        return Error::invalidInput("what is kept is no plain file").at(marks->pathOf(name));
  return forks.checkOriginal(TRY(record.openChild(originalName, Folder::Access::Read)));
}

Result<void> BrandingRecord::checkWritable(const Folder& folder) {
  if (!TRY(folder.statusOf(folderName))) return {};
  return TRY(folder.openChild(folderName, Folder::Access::Read)).checkWritable();
}

Result<std::optional<IconFamily>> BrandingRecord::originalIcon(const Folder& folder, const ForkStore& forks) {
  const Folder record = TRY(folder.openChild(folderName, Folder::Access::Read));
  return readOriginalIcon(TRY(record.openChild(originalName, Folder::Access::Read)), forks);
}

Result<std::optional<Folder>> BrandingRecord::originalMarks(const Folder& folder, Folder::Access access) {
  const Folder record = TRY(folder.openChild(folderName, Folder::Access::Read));
  if (!TRY(record.statusOf(marksName))) return std::optional<Folder>();
  return std::optional<Folder>(TRY(record.openChild(marksName, access)));
}

Result<void> BrandingRecord::make(Folder& folder, const IconServices& services, const std::string& backupName) {
  const struct stat before = TRY(folder.status());
  const std::string temporary = Folder::temporaryName();
  const auto build = [&]() -> Result<void> {
    Folder record = TRY(folder.makeChild(temporary));
    Folder original = TRY(record.makeChild(originalName));
    TRY_VOID(services.forks.saveOriginal(folder, original));
    if (services.marks != nullptr) {
      Folder marks = TRY(record.makeChild(marksName));
      TRY_VOID(services.marks->saveOriginal(folder, marks));
    }
    const bool hadBackup = TRY(keepFile(folder, backupName, record, keptBackupName));
    return writeRecord(record, {{versionKey, recordVersion},
                                {backupKey, hadBackup},
                                {originalTimeKey, timeText(before.st_mtim)},
                                {unfinishedKey, QString::fromStdString(operationName(BrandingOperation::Apply))}});
  };
  auto done = build();
  if (done.ok()) done = folder.rename(temporary, folder, folderName);
  if (!done.ok()) (void)folder.removeChild(temporary);
  return done;
}

Result<void> BrandingRecord::begin(Folder& folder, BrandingOperation operation) {
  return changeRecord(
      folder, [&](QJsonObject& values) { values[unfinishedKey] = QString::fromStdString(operationName(operation)); });
}

Result<void> BrandingRecord::abandon(Folder& folder, const BrandingState& before) {
  return before.unfinished ? begin(folder, *before.unfinished) : finish(folder, before.isBranded);
}

Result<void> BrandingRecord::finish(Folder& folder, bool isBranded) {
  const struct stat now = TRY(folder.status());
  return changeRecord(folder, [&](QJsonObject& values) {
    values.remove(unfinishedKey);
    values.remove(ourDateKey);
    values[brandedKey] = isBranded;
    values[ourTimeKey] = timeText(now.st_mtim);
  });
}

Result<FolderMarks::Notes> BrandingRecord::restore(Folder& folder, const IconServices& services,
                                                   const std::string& backupName) {
  const struct stat now = TRY(folder.status());
  timespec modified = now.st_mtim;
  FolderMarks::Notes notes;
  {
    const Folder record = TRY(folder.openChild(folderName, Folder::Access::Read));
    const QJsonObject values = TRY(readRecord(record));
    // The date from before comes back only when nobody but us changed the folder since. A reset that was interrupted
    // has found that out already.
    const bool isOurDate = values[ourDateKey].toBool(values[ourTimeKey].toString() == timeText(now.st_mtim));
    if (isOurDate) modified = timeFrom(values[originalTimeKey].toString()).value_or(modified);
    // Looked at before anything is changed: a reset that cannot be finished is not begun.
    TRY_VOID(check(folder, services.forks));
    TRY_VOID(noteReset(folder, values, isOurDate));
    TRY_VOID(services.forks.restoreOriginal(folder, TRY(record.openChild(originalName, Folder::Access::Read))));
    // Whatever names the picture goes before the picture does: a file manager would show a broken one.
    if (services.marks != nullptr) {
      auto original = TRY(originalMarks(folder, Folder::Access::Write));
      notes = TRY(services.marks->set(folder, noMarks(), original ? &*original : nullptr));
    }
    if (values[backupKey].toBool()) {
      TRY_VOID(putBackFile(record, keptBackupName, folder, backupName));
    } else {
      TRY_VOID(folder.removeFile(backupName));
    }
  }
  TRY_VOID(folder.removeChild(folderName));
  // Somebody else's folder cannot be dated; nothing rests on it.
  (void)folder.setTimes(now.st_atim, modified);
  return notes;
}

}  // namespace quorvane
