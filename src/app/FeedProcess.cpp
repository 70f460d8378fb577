// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FeedProcess.h"

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

/// It ends by itself before; this is for when it cannot.
constexpr int patienceSeconds = feedSeconds + 5;
constexpr qsizetype reasonCharacters = 2000;

FeedOutcome outcomeOf(int code) {
  const auto outcome = static_cast<FeedOutcome>(code);
  return code == 0 || (outcome >= FeedOutcome::AddressRefused && outcome <= FeedOutcome::RedirectRefused)
             ? outcome
             : FeedOutcome::Failed;
}

}  // namespace

FeedProcess::FeedProcess(QString program) : _program(std::move(program)) {
  _patience.setSingleShot(true);
  connect(&_patience, &QTimer::timeout, this, [this] {
    _end({.outcome = FeedOutcome::TooSlow, .reason = QStringLiteral("%1 did not end").arg(_program)});
  });
}

FeedProcess::~FeedProcess() {
  if (!_process) return;
  _process->disconnect(this);
  _process->kill();
  // Which is at once.
  _process->waitForFinished(2000);
}

void FeedProcess::fetch(const QString& address, std::function<void(const FeedAnswer&)> answered) {
  cancel();
  _answered = std::move(answered);
  _process = std::make_unique<QProcess>();
  QProcess* process = _process.get();
  connect(process, &QProcess::readyReadStandardOutput, this, &FeedProcess::_take);
  connect(process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
    _take();
    if (!_process) return;
    FeedAnswer answer{.feed = _feed,
                      .reason = QString::fromUtf8(_process->readAllStandardError()).trimmed().left(reasonCharacters)};
    if (status == QProcess::NormalExit) answer.outcome = outcomeOf(code);
    if (answer.outcome == FeedOutcome::Failed && answer.reason.isEmpty())
      answer.reason = QStringLiteral("%1 ended with %2").arg(_program).arg(code);
    _end(std::move(answer));
  });
  connect(
      process, &QProcess::errorOccurred, this,
      [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart && _process)
          _end({.reason = _program + QStringLiteral(": ") + _process->errorString()});
      },
      // It may be told of before start() returns.
      Qt::QueuedConnection);
  process->setStandardInputFile(QProcess::nullDevice());
  _patience.start(patienceSeconds * 1000);
  process->start(_program, {address, QString::number(feedSeconds)});
}

void FeedProcess::cancel() {
  _patience.stop();
  _answered = nullptr;
  _feed.clear();
  if (!_process) return;
  // Not at once: this may be one of its own signals.
  QProcess* process = _process.release();
  process->disconnect(this);
  connect(process, &QProcess::finished, process, &QObject::deleteLater);
  process->kill();
  if (process->state() == QProcess::NotRunning) process->deleteLater();
}

void FeedProcess::_take() {
  _feed += _process->readAllStandardOutput();
  if (static_cast<std::size_t>(_feed.size()) > limits::feedBytes)
    _end({.outcome = FeedOutcome::TooLarge, .reason = QStringLiteral("more than %1 bytes").arg(limits::feedBytes)});
}

void FeedProcess::_end(FeedAnswer answer) {
  const auto answered = std::move(_answered);
  cancel();
  if (answered) answered(answer);
}

}  // namespace quorvane
