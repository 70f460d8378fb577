// SPDX-License-Identifier: GPL-3.0-or-later
#include "SetWriter.h"

#include <QXmlStreamWriter>
#include <initializer_list>
#include <system_error>

#include "foundation/FileWriting.h"
#include "iconfamily/IconFamily.h"

namespace quorvane::baseicons {

namespace {

namespace fs = std::filesystem;

Result<void> writeList(const QStringList& names, const fs::path& path) {
  QByteArray text;
  QXmlStreamWriter writer(&text);
  writer.setAutoFormatting(true);
  writer.setAutoFormattingIndent(-1);  // one tab, as property lists have it
  writer.writeStartDocument();
  writer.writeDTD(
      QStringLiteral("<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                     "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"));
  writer.writeStartElement(QStringLiteral("plist"));
  writer.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
  writer.writeStartElement(QStringLiteral("array"));
  for (const QString& name : names) writer.writeTextElement(QStringLiteral("string"), name);
  writer.writeEndDocument();
  return writePlainFile(
      path, ByteView(reinterpret_cast<const std::uint8_t*>(text.constData()), static_cast<std::size_t>(text.size())));
}

// Only icons and lists are removed: a folder in which something else lies stays, and so does that.
void removeUnlisted(const fs::path& folder, const QStringList& names) {
  std::error_code ignored;
  for (const auto& entry : fs::directory_iterator(folder, ignored)) {
    const bool isOurs = entry.path().extension() == ".icns" || entry.path().filename() == "QVIcons.plist";
    if (isOurs && !names.contains(QString::fromStdString(entry.path().filename().string())))
      fs::remove(entry.path(), ignored);
  }
}

Result<IconFamily> familyOf(Sources& sources, const IconRow& icon) {
  struct Drawn {
    int pixels;
    std::initializer_list<FourCharCode> types;
  };
  IconFamily family;
  for (const Drawn& drawn :
       {Drawn{512, {"ic09"}}, Drawn{256, {"ic08"}}, Drawn{128, {"it32", "t8mk"}},
        Drawn{32, {"il32", "icl8", "l8mk", "ICN#"}}, Drawn{16, {"is32", "ics8", "s8mk", "ics#"}}}) {
    const QImage picture = TRY(drawPicture(sources, icon, drawn.pixels));
    const auto bitmap = BitmapImageRep::bitmapImageRepWithCGImageRef(picture);
    for (const FourCharCode type : drawn.types)
      if (!bitmap || !family.setIconFamilyElement(type, *bitmap))
        return Error::broken("a picture could not be stored as " + type.toString());
  }
  return family;
}

}  // namespace

Result<void> writeSet(Sources& sources, const SetRow& set, const fs::path& folder) {
  const fs::path place = folder / set.name.toStdString();
  std::error_code code;
  fs::create_directories(place, code);
  if (code) return Error::system(code.value(), "cannot be made").at(place);
  QStringList names;
  for (const IconRow& icon : set.icons) {
    auto family = familyOf(sources, icon);
    if (!family)
      return Error::invalidInput((set.name + QLatin1Char('/') + icon.name).toStdString() + ": " +
                                 family.error().message());
    names << icon.name + QStringLiteral(".icns");
    TRY_VOID(family->writeToFile(place / names.back().toStdString()));
  }
  const QString list = QStringLiteral("QVIcons.plist");
  removeUnlisted(place, names + QStringList{list});
  return writeList(names, place / list.toStdString());
}

Result<void> writeSetList(const std::vector<SetRow>& sets, const fs::path& folder) {
  std::error_code code;
  fs::create_directories(folder, code);
  if (code) return Error::system(code.value(), "cannot be made").at(folder);
  QStringList names;
  for (const SetRow& set : sets) names << set.name;
  for (const auto& entry : fs::directory_iterator(folder, code)) {
    if (!entry.is_directory() || names.contains(QString::fromStdString(entry.path().filename().string()))) continue;
    removeUnlisted(entry.path(), {});
    std::error_code notEmpty;
    fs::remove(entry.path(), notEmpty);
  }
  return writeList(names, folder / "sets.plist");
}

}  // namespace quorvane::baseicons
