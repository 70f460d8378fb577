// SPDX-License-Identifier: GPL-3.0-or-later
#include <QJsonArray>
#include <cstdio>

#include "app/core/BasePicture.h"
#include "cli/Commands.h"
#include "cli/PictureOutput.h"
#include "cli/Terminal.h"
#include "cli/Wish.h"
#include "foundation/FileReading.h"
#include "foundation/FileWriting.h"
#include "foundation/Folder.h"
#include "foundation/base/Limits.h"
#include "iconfamily/ElementStore.h"
#include "iconfamily/ElementTypes.h"
#include "iconfamily/format/IcnsContainer.h"
#include "imaging/PngCodec.h"

namespace quorvane::cli {

namespace {

/// The name that a rendered icon has in the place of a folder's.
Result<QString> outputName(const std::filesystem::path& out) {
  const std::string name = out.stem().string();
  if (out == "-" || !isUtf8(name)) return Error::invalidInput("there is no name for the label; give a --label");
  return QString::fromStdString(name);
}

Result<Bytes> composedFile(const Arguments& arguments, const Wish& wish, const IconServices& services) {
  const std::filesystem::path& out = arguments.paths.front();
  std::optional<Image> base;
  if (wish.base) {
    base = TRY(readBasePicture(*wish.base));
  } else {
    base = services.kinds.systemIcon("fldr");
  }
  if (!base) return Error(ErrorKind::NotFound, "there is no folder picture to draw on; give one with --base");
  const Image icon = TRY(composeIcon(TRY(wish.lookFor([&] { return outputName(out); })), *base));
  // That the name has an ending that we write was seen to with the arguments.
  return encodePicture(icon, pictureKindOf(out).value_or(PictureKind::Png), arguments.pixels, arguments.jpeg);
}

/// The wish as the look file at a path may hold it.
Result<SavedLook> lookToSave(const Wish& wish, const std::filesystem::path& path) {
  SavedLook saved = wish.saved;
  saved.base.reset();
  if (wish.base) saved.base = TRY(innerReference(*wish.base, path));
  return saved;
}

Result<IconFamily> familyOfFile(const std::filesystem::path& path) {
  const auto encode = [&]() -> Result<IconFamily> {
    return IconFamily::iconFamilyWithThumbnailsOfImage(
        TRY(pictureFromBytes(TRY(readPlainFile(path, limits::pictureFileBytes)))));
  };
  auto family = encode();
  if (!family) return std::move(family).error().at(path);
  return family;
}

void makeIcns(const Arguments& arguments, Reporter& reporter) {
  const auto& [from, to] = std::tie(arguments.paths[0], arguments.paths[1]);
  const auto family = familyOfFile(from);
  if (!family) return reporter.failed(from, family.error());
  if (const auto written = writeOutputFile(to, family->bytes()); !written) return reporter.failed(to, written.error());
  reporter.done(to, "made", printable(to) + ": " + std::to_string(family->bytes().size()) + " bytes",
                {{QStringLiteral("bytes"), static_cast<qint64>(family->bytes().size())}});
}

void listIcns(const std::filesystem::path& path, bool hasSeveral, Reporter& reporter) {
  const auto family = IconFamily::iconFamilyWithContentsOfFile(path);
  if (!family) return reporter.failed(path, family.error());
  const auto elements = icnsElements(family->bytes());
  if (!elements) return reporter.failed(path, elements.error());
  QJsonArray rows;
  for (const IcnsElement& element : *elements) {
    QJsonObject row{{QStringLiteral("type"), QString::fromStdString(element.type.toDisplayText())},
                    {QStringLiteral("bytes"), static_cast<qint64>(element.data.size())}};
    if (const ElementType* known = elementType(element.type)) {
      row[QLatin1String("width")] = known->pixelsWide;
      row[QLatin1String("height")] = known->pixelsHigh;
    }
    rows.append(row);
  }
  std::string words = (hasSeveral ? printable(path) + ":\n" : "") + describeIcns(family->bytes());
  while (words.ends_with('\n')) words.pop_back();
  reporter.done(path, "listed", words, {{QStringLiteral("elements"), rows}});
}

Result<Folder> makeFolder(const std::filesystem::path& path) {
  std::error_code error;
  std::filesystem::create_directory(path, error);
  if (error) return Error::system(error.value(), "cannot make the folder").at(path);
  return Folder::open(path, Folder::Access::Write);
}

void extractIcns(const Arguments& arguments, Reporter& reporter) {
  const auto& [from, to] = std::tie(arguments.paths[0], arguments.paths[1]);
  const auto family = IconFamily::iconFamilyWithContentsOfFile(from);
  if (!family) return reporter.failed(from, family.error());
  auto folder = makeFolder(to);
  if (!folder) return reporter.failed(to, folder.error());
  bool hasPictures = false;
  for (const ElementType& type : elementTypes()) {
    if (!type.isPicture() || !icnsElement(family->bytes(), type.type)) continue;
    hasPictures = true;
    const std::string name = type.type.toString() + ".png";
    const auto extract = [&]() -> Result<void> {
      const BitmapImageRep picture = TRY(decodeIconFamilyElement(family->bytes(), type.type));
      TRY_VOID(folder->writeFile(name, TRY(encodePng(picture))));
      return {};
    };
    if (const auto extracted = extract(); !extracted) {
      reporter.failed(from, extracted.error());
    } else {
      reporter.done(
          to / name, "extracted",
          printable(to / name) + ": " + std::to_string(type.pixelsWide) + " x " + std::to_string(type.pixelsHigh));
    }
  }
  if (!hasPictures) reporter.failed(from, Error::invalidInput("the icon family holds no picture"));
}

}  // namespace

Result<void> writeOutputFile(const std::filesystem::path& path, ByteView bytes) {
  if (path == "-") {
    const bool isWritten =
        std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0;
    return isWritten ? Result<void>() : Error::system(errno, "cannot write to standard output");
  }
  return writePlainFile(path, bytes);
}

void runRender(const Arguments& arguments, const IconServices& services, Reporter& reporter) {
  const std::filesystem::path& out = arguments.paths.front();
  auto wish = readWish(arguments);
  if (!wish) return reporter.failed(out, wish.error());
  IconMaker maker;
  if (const auto read = wish->readOverlay(maker); !read) return reporter.failed(read.error().where(), read.error());
  // Known before anything is written.
  std::optional<SavedLook> saved;
  if (arguments.savedLook) {
    auto look = lookToSave(*wish, *arguments.savedLook);
    if (!look) return reporter.failed(*arguments.savedLook, look.error());
    saved = *std::move(look);
  }
  const auto file = composedFile(arguments, *wish, services);
  if (!file) return reporter.failed(out, file.error());
  if (!arguments.isDryRun)
    if (const auto written = writeOutputFile(out, *file); !written) return reporter.failed(out, written.error());
  if (saved && !arguments.isDryRun)
    if (const auto written = writeLookFile(*arguments.savedLook, *saved); !written)
      return reporter.failed(*arguments.savedLook, written.error());
  if (out != "-") reporter.done(out, "rendered", printable(out) + ": " + std::to_string(file->size()) + " bytes");
}

void runIcns(const Arguments& arguments, Reporter& reporter) {
  if (arguments.command == Command::IcnsMake) return makeIcns(arguments, reporter);
  if (arguments.command == Command::IcnsExtract) return extractIcns(arguments, reporter);
  for (const auto& path : arguments.paths) listIcns(path, arguments.paths.size() > 1, reporter);
}

}  // namespace quorvane::cli
