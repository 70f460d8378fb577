// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/KindIcons.h"

#include <QFile>
#include <QString>
#include <array>

#include "foundation/FileManagerExtras.h"
#include "imaging/PngCodec.h"
#include "system/linux/ThemeKindIcons.h"

// A static library's resources are registered by hand, outside any namespace.
static void registerPictures() {
  Q_INIT_RESOURCE(pictures);
}

namespace quorvane {

namespace {

constexpr Size iconPoints{128, 128};
constexpr std::array pictureSizes{512, 256, 128, 64, 48, 32, 16};

const char* pictureName(FourCharCode type) {
  if (type == FourCharCode("fldr")) return "folder";
  if (type == FourCharCode("ofld")) return "folder-open";
  if (type == FourCharCode("docu")) return "document";
  if (type == FourCharCode("APPL")) return "application";
  if (type == FourCharCode("hdsk")) return "harddisk";
  if (type == FourCharCode("trsh")) return "trash";
  return nullptr;
}

std::optional<BitmapImageRep> readPicture(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray bytes = file.readAll();
  const ByteView view(reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size()));
  return decodePng(view, pictureSizes.front()).toOptional();
}

std::optional<Image> ownPicture(FourCharCode type) {
  const char* name = pictureName(type);
  if (name == nullptr) return std::nullopt;
  registerPictures();
  Image image(iconPoints);
  image.setScalesWhenResized(true);
  for (const int pixels : pictureSizes) {
    const QString file = QStringLiteral(":/pictures/%1-%2.png").arg(QLatin1String(name)).arg(pixels);
    if (QFile::exists(file))
      image.addRepresentation(ImageRep::pending(pixels, pixels, iconPoints, [file] { return readPicture(file); }));
  }
  if (image.representations().empty()) return std::nullopt;
  return image;
}

}  // namespace

std::optional<Image> OwnKindIcons::systemIcon(FourCharCode type) const {
  return _icons.get(type, [&] { return ownPicture(type); });
}

std::optional<Image> OwnKindIcons::iconForKindOfFile(const std::filesystem::path& path) const {
  return systemIcon(isDirectory(path) ? FourCharCode("fldr") : FourCharCode("docu"));
}

std::optional<Image> FirstKindIcons::iconForKindOfFile(const std::filesystem::path& path) const {
  for (const auto& source : _sources)
    if (auto icon = source->iconForKindOfFile(path)) return icon;
  return std::nullopt;
}

std::optional<Image> FirstKindIcons::systemIcon(FourCharCode type) const {
  for (const auto& source : _sources)
    if (auto icon = source->systemIcon(type)) return icon;
  return std::nullopt;
}

std::unique_ptr<KindIcons> makeDesktopKindIcons() {
  std::vector<std::unique_ptr<KindIcons>> sources;
  sources.push_back(std::make_unique<ThemeKindIcons>());
  sources.push_back(std::make_unique<OwnKindIcons>());
  return std::make_unique<FirstKindIcons>(std::move(sources));
}

}  // namespace quorvane
