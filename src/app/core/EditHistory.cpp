// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/EditHistory.h"

#include <QCoreApplication>
#include <utility>

namespace quorvane {

namespace {

struct Texts {
  const char* undo;
  const char* redo;
};

// Whole texts: in other languages the parts do not join like this.
Texts textsOf(EditKind kind) {
  switch (kind) {
    case EditKind::Label:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Typing"), QT_TRANSLATE_NOOP("EditHistory", "Redo Typing")};
    case EditKind::Position:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Move Label"), QT_TRANSLATE_NOOP("EditHistory", "Redo Move Label")};
    case EditKind::Font:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Font"), QT_TRANSLATE_NOOP("EditHistory", "Redo Font")};
    case EditKind::FontSize:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Font Size"), QT_TRANSLATE_NOOP("EditHistory", "Redo Font Size")};
    case EditKind::Color:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Colour"), QT_TRANSLATE_NOOP("EditHistory", "Redo Colour")};
    case EditKind::Effect:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Effect"), QT_TRANSLATE_NOOP("EditHistory", "Redo Effect")};
    case EditKind::LineSpacing:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Line Spacing"),
              QT_TRANSLATE_NOOP("EditHistory", "Redo Line Spacing")};
    case EditKind::Shear:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Shear"), QT_TRANSLATE_NOOP("EditHistory", "Redo Shear")};
    case EditKind::Rotation:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Rotation"), QT_TRANSLATE_NOOP("EditHistory", "Redo Rotation")};
    case EditKind::Opacity:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Opacity"), QT_TRANSLATE_NOOP("EditHistory", "Redo Opacity")};
    case EditKind::BaseIcon:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Choose Icon"),
              QT_TRANSLATE_NOOP("EditHistory", "Redo Choose Icon")};
    case EditKind::Tint:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Tint"), QT_TRANSLATE_NOOP("EditHistory", "Redo Tint")};
    case EditKind::Overlay:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Overlay"), QT_TRANSLATE_NOOP("EditHistory", "Redo Overlay")};
    case EditKind::OverlayPosition:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Move Overlay"),
              QT_TRANSLATE_NOOP("EditHistory", "Redo Move Overlay")};
    case EditKind::OverlaySize:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Overlay Size"),
              QT_TRANSLATE_NOOP("EditHistory", "Redo Overlay Size")};
    case EditKind::OverlayOpacity:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Overlay Opacity"),
              QT_TRANSLATE_NOOP("EditHistory", "Redo Overlay Opacity")};
    case EditKind::OverlayColor:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Overlay Colour"),
              QT_TRANSLATE_NOOP("EditHistory", "Redo Overlay Colour")};
    case EditKind::Transform:
      return {QT_TRANSLATE_NOOP("EditHistory", "Undo Reset"), QT_TRANSLATE_NOOP("EditHistory", "Redo Reset")};
    case EditKind::Look:
      break;
  }
  return {QT_TRANSLATE_NOOP("EditHistory", "Undo Look"), QT_TRANSLATE_NOOP("EditHistory", "Redo Look")};
}

QString translated(const char* text) {
  return QCoreApplication::translate("EditHistory", text);
}

}  // namespace

EditHistory::EditHistory(IconComposition& composition, Clock clock)
    : _composition(composition), _clock(std::move(clock)), _present(EditedValues::of(composition)) {}

void EditHistory::note() {
  if (_isRestoring) return;
  const EditedValues values = EditedValues::of(_composition);
  const auto kind = editBetween(_present, values);
  if (!kind) return;
  add(values, *kind);
  _present = values;
  tell();
}

bool EditHistory::isContinued(EditKind kind, std::chrono::steady_clock::time_point now) const {
  if (_undoable.empty()) return false;
  if (_openSteps > 0) return _hasOpenStep;
  const Step& last = _undoable.back();
  // Each choice of an icon or an effect is one that was meant.
  const bool isGradual =
      kind != EditKind::BaseIcon && kind != EditKind::Effect && kind != EditKind::Look && kind != EditKind::Overlay;
  return !_isClosed && isGradual && last.kind == kind && now - last.at <= burstPause;
}

void EditHistory::add(const EditedValues& values, EditKind kind) {
  const auto now = _clock();
  _redoable.clear();
  if (isContinued(kind, now)) {
    Step& last = _undoable.back();
    last.after = values;
    last.at = now;
    const auto whole = editBetween(last.before, values);
    if (!whole) {
      // Back where it began: there is nothing to take back.
      _undoable.pop_back();
      _hasOpenStep = false;
      _isClosed = true;
      return;
    }
    last.kind = _openKind.value_or(*whole);
    return;
  }
  _undoable.push_back({_present, values, _openKind.value_or(kind), now});
  if (_undoable.size() > depth) _undoable.pop_front();
  _isClosed = false;
  _hasOpenStep = _openSteps > 0;
}

void EditHistory::beginStep(std::optional<EditKind> kind) {
  note();
  if (_openSteps++ > 0) return;
  _openKind = kind;
  _hasOpenStep = false;
}

void EditHistory::endStep() {
  if (_openSteps == 0) return;
  note();
  if (--_openSteps > 0) return;
  _openKind.reset();
  _hasOpenStep = false;
  _isClosed = true;
}

void EditHistory::clear() {
  _undoable.clear();
  _redoable.clear();
  _present = EditedValues::of(_composition);
  _isClosed = true;
  _hasOpenStep = false;
  tell();
}

void EditHistory::show(const EditedValues& values) {
  _isRestoring = true;
  values.applyTo(_composition);
  _isRestoring = false;
  _present = values;
  _isClosed = true;
  tell();
}

bool EditHistory::undo() {
  note();
  if (_openSteps > 0 || _undoable.empty()) return false;
  Step step = std::move(_undoable.back());
  _undoable.pop_back();
  const EditedValues values = step.before;
  _redoable.push_back(std::move(step));
  show(values);
  return true;
}

bool EditHistory::redo() {
  note();
  if (_openSteps > 0 || _redoable.empty()) return false;
  Step step = std::move(_redoable.back());
  _redoable.pop_back();
  const EditedValues values = step.after;
  _undoable.push_back(std::move(step));
  show(values);
  return true;
}

QString EditHistory::undoText() const {
  return canUndo() ? translated(textsOf(_undoable.back().kind).undo)
                   : translated(QT_TRANSLATE_NOOP("EditHistory", "Undo"));
}

QString EditHistory::redoText() const {
  return canRedo() ? translated(textsOf(_redoable.back().kind).redo)
                   : translated(QT_TRANSLATE_NOOP("EditHistory", "Redo"));
}

void EditHistory::tell() const {
  if (_listener) _listener();
}

}  // namespace quorvane
