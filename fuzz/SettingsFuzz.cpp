// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>

#include "foundation/SettingsText.h"

using namespace quorvane;

// Settings that can be read can be changed and written, and read the same again; what the change did not touch stays.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  auto settings = SettingsText::parse({input, size});
  if (!settings) return 0;
  const QString key = QStringLiteral("counted");
  const SettingsChanges changes{{key, SettingsChange::add(1, {})}};
  const QVariantMap wished = changedSettings(settings->values(), changes);
  settings->apply(changes);
  const auto text = settings->text();
  if (!text && text.error().kind() == ErrorKind::TooLarge) return 0;
  if (!text) std::abort();
  const auto again = SettingsText::parse(*text);
  if (!again || *again->text() != *text) std::abort();
  const QVariantMap values = again->values();
  if (values.keys() != wished.keys()) std::abort();
  for (auto item = values.begin(); item != values.end(); ++item) {
    const QVariant& other = wished[item.key()];
    const bool isReal = item->typeId() == QMetaType::Double;
    if (item->typeId() != other.typeId() || (!isReal && item->typeId() != QMetaType::QVariantList && *item != other &&
                                             item->typeId() != QMetaType::QVariantMap))
      std::abort();
  }
  return 0;
}
