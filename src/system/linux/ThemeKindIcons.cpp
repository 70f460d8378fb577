// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/linux/ThemeKindIcons.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QMimeDatabase>
#include <QPixmap>
#include <QSettings>
#include <QStandardPaths>

#include "foundation/FileManagerExtras.h"

namespace quorvane {

namespace {

// What an icon is asked for at, and the smallest answer that is worth more than our own picture.
constexpr int wantedPixels = 512;
constexpr int leastPixels = 128;
constexpr Size iconPoints{128, 128};

QStringList themeFolders() {
  QStringList folders{QDir::homePath() + QLatin1String("/.icons")};
  for (const QString& data : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
    folders << data + QLatin1String("/icons");
  return folders;
}

bool isInstalled(const QString& theme) {
  for (const QString& folder : themeFolders())
    if (QFileInfo::exists(folder + u'/' + theme + QLatin1String("/index.theme"))) return true;
  return false;
}

QString fromSettingsFile(const QString& name, const QString& key) {
  const QString file = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, name);
  return file.isEmpty() ? QString() : QSettings(file, QSettings::IniFormat).value(key).toString();
}

/// Names under which themes keep the icons of well-known folders of a home.
QString specialFolderIcon(const QString& path) {
  struct Special {
    QStandardPaths::StandardLocation location;
    const char* icon;
  };
  static constexpr Special specials[] = {
      {QStandardPaths::HomeLocation, "user-home"},           {QStandardPaths::DesktopLocation, "user-desktop"},
      {QStandardPaths::DownloadLocation, "folder-download"}, {QStandardPaths::DocumentsLocation, "folder-documents"},
      {QStandardPaths::MusicLocation, "folder-music"},       {QStandardPaths::PicturesLocation, "folder-pictures"},
      {QStandardPaths::MoviesLocation, "folder-videos"},
  };
  for (const Special& special : specials)
    if (QDir::cleanPath(QStandardPaths::writableLocation(special.location)) == path) return QLatin1String(special.icon);
  return {};
}

/// The first of these icons that the theme has large enough.
std::optional<Image> themeIcon(const QStringList& names) {
  for (const QString& name : names) {
    if (name.isEmpty() || !QIcon::hasThemeIcon(name)) continue;
    const QImage picture = QIcon::fromTheme(name).pixmap(QSize(wantedPixels, wantedPixels), 1.0).toImage();
    if (picture.width() < leastPixels && picture.height() < leastPixels) continue;
    if (auto bitmap = BitmapImageRep::bitmapImageRepWithCGImageRef(picture)) {
      Image image(iconPoints);
      image.setScalesWhenResized(true);
      image.addRepresentation(*std::move(bitmap));
      return image;
    }
  }
  return std::nullopt;
}

}  // namespace

QString sessionIconTheme() {
  const QString desktops = QString::fromLocal8Bit(qgetenv("XDG_CURRENT_DESKTOP")).toUpper();
  if (desktops.isEmpty()) return {};
  QStringList candidates;
  if (desktops.contains(QLatin1String("KDE"))) {
    candidates << fromSettingsFile(QStringLiteral("kdeglobals"), QStringLiteral("Icons/Theme"))
               << QStringLiteral("breeze");
  } else if (desktops.contains(QLatin1String("LXQT"))) {
    candidates << fromSettingsFile(QStringLiteral("lxqt/lxqt.conf"), QStringLiteral("icon_theme"))
               << QStringLiteral("breeze");
  } else {
    candidates << fromSettingsFile(QStringLiteral("gtk-3.0/settings.ini"),
                                   QStringLiteral("Settings/gtk-icon-theme-name"));
    if (desktops.contains(QLatin1String("MATE"))) candidates << QStringLiteral("menta") << QStringLiteral("mate");
    if (desktops.contains(QLatin1String("XFCE"))) candidates << QStringLiteral("elementary-xfce");
    candidates << QStringLiteral("Adwaita") << QStringLiteral("gnome");
  }
  for (const QString& theme : candidates)
    if (!theme.isEmpty() && isInstalled(theme)) return theme;
  return {};
}

ThemeKindIcons::ThemeKindIcons() {
  if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) return;
  // In a window the platform has set the theme; the offscreen platform of the command line has none of its own.
  const QString current = QIcon::themeName();
  if (!current.isEmpty() && current != QLatin1String("hicolor")) {
    _hasTheme = true;
    return;
  }
  const QString theme = sessionIconTheme();
  if (theme.isEmpty()) return;
  QIcon::setThemeSearchPaths(themeFolders());
  QIcon::setThemeName(theme);
  _hasTheme = true;
}

std::optional<Image> ThemeKindIcons::iconNamed(const QStringList& names) const {
  if (!_hasTheme) return std::nullopt;
  const std::lock_guard lock(_mutex);
  return _icons.get(QStringList(QIcon::themeName()) + names, [&] { return themeIcon(names); });
}

std::optional<Image> ThemeKindIcons::iconForKindOfFile(const std::filesystem::path& path) const {
  if (!_hasTheme) return std::nullopt;
  const QString name = QFile::decodeName(QByteArray::fromStdString(path.string()));
  if (isDirectory(path))
    return iconNamed(
        {specialFolderIcon(QDir::cleanPath(name)), QStringLiteral("folder"), QStringLiteral("inode-directory")});
  const QMimeType type = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension);
  return iconNamed({type.iconName(), type.genericIconName(), QStringLiteral("text-x-generic")});
}

std::optional<Image> ThemeKindIcons::systemIcon(FourCharCode type) const {
  if (type == FourCharCode("fldr")) return iconNamed({QStringLiteral("folder")});
  if (type == FourCharCode("ofld")) return iconNamed({QStringLiteral("folder-open")});
  if (type == FourCharCode("docu")) return iconNamed({QStringLiteral("text-x-generic")});
  if (type == FourCharCode("APPL")) return iconNamed({QStringLiteral("application-x-executable")});
  if (type == FourCharCode("hdsk")) return iconNamed({QStringLiteral("drive-harddisk")});
  if (type == FourCharCode("trsh")) return iconNamed({QStringLiteral("user-trash")});
  return std::nullopt;
}

}  // namespace quorvane
