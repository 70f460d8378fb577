// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawing.h"

#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <set>

#include "Coverage.h"
#include "Emblem.h"
#include "foundation/FileReading.h"
#include "svg/PlainSvg.h"

namespace quorvane::baseicons {

namespace {

constexpr std::size_t longestSource = 1 << 20;

Error fault(const QString& what) {
  return Error::invalidInput(what.toStdString());
}

// A drawing with its marks filled in. `layer` is "body", or a shadow's mark, which is all that is drawn then.
Result<QByteArray> filledIn(const QString& drawing, const Tone& tone, const QString& layer) {
  static const QRegularExpression mark(QStringLiteral("\\{([^{}]*)\\}"));
  QString result;
  qsizetype done = 0;
  for (auto marks = mark.globalMatch(drawing); marks.hasNext();) {
    const auto match = marks.next();
    const QString wish = match.captured(1);
    result += QStringView(drawing).mid(done, match.capturedStart() - done);
    done = match.capturedEnd();
    if (wish == QLatin1String("body") || wish.startsWith(QLatin1String("shadow "))) {
      result += wish == layer ? QStringLiteral("inline") : QStringLiteral("none");
      continue;
    }
    const auto color = shade(tone, wish);
    if (!color) return fault(QStringLiteral("{%1} is no mark of a drawing").arg(wish));
    result += color->name();
  }
  result += QStringView(drawing).mid(done);
  return result.toUtf8();
}

// The standard deviations of the shadows' blurs, in units of the drawing, as the marks "shadow N" have them.
std::set<QString> shadowsOf(const QString& drawing) {
  static const QRegularExpression mark(QStringLiteral("\\{(shadow [0-9.]+)\\}"));
  std::set<QString> result;
  for (auto marks = mark.globalMatch(drawing); marks.hasNext();) result.insert(marks.next().captured(1));
  return result;
}

}  // namespace

Result<QByteArray> Sources::read(const QString& name) {
  const std::filesystem::path path = _folder / name.toStdString();
  const auto known = _files.find(path);
  if (known != _files.end()) return known->second;
  const Bytes bytes = TRY(readPlainFile(path, longestSource));
  return _files[path] = QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
}

bool Sources::has(const QString& name) const {
  return std::filesystem::exists(_folder / name.toStdString());
}

Result<QImage> drawPicture(Sources& sources, const IconRow& icon, int pixels) {
  const QString stem = QStringLiteral("library/drawings/") + icon.drawing;
  // What is shrunk so far is a blur: such a size has a drawing of its own.
  const bool isSmall = pixels < 128;
  const QString file =
      isSmall ? QStringLiteral("%1-%2.svg.in").arg(stem).arg(pixels) : stem + QStringLiteral(".svg.in");
  const QString drawing = QString::fromUtf8(TRY(sources.read(file)));
  // Fine samples close the joints between shapes; at many pixels the joints are too thin to be seen.
  const int samples = pixels > 128 ? 2 : 4;

  const QByteArray body = TRY(filledIn(drawing, icon.tone, QStringLiteral("body")));
  QSvgRenderer measures(body);
  if (!measures.isValid()) return fault(QStringLiteral("%1 is no picture").arg(file));
  const double unit = pixels / measures.viewBoxF().width();

  QImage picture(pixels, pixels, QImage::Format_RGBA64_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  for (const QString& shadow : shadowsOf(drawing)) {
    const QByteArray shape = TRY(filledIn(drawing, icon.tone, shadow));
    const QImage sharp = svg::renderPlainSvg(shape, picture.size(), 1);
    if (sharp.isNull()) return fault(QStringLiteral("%1 cannot be rendered whole").arg(file));
    const double deviation = shadow.mid(7).toDouble() * unit;
    painter.drawImage(0, 0, Coverage::ofAlpha(sharp).blurred(deviation).inColor(Qt::black));
  }
  const QImage shapes = svg::renderPlainSvg(body, picture.size(), samples);
  if (shapes.isNull()) return fault(QStringLiteral("%1 cannot be rendered whole").arg(file));
  painter.drawImage(0, 0, shapes);
  if (!icon.emblem.isEmpty()) {
    static const QRegularExpression mark(QStringLiteral("id=\"emblem\" data-depth=\"([0-9]+)\""));
    const auto depth = mark.match(drawing);
    if (!depth.hasMatch()) return fault(QStringLiteral("%1 has no room for an emblem").arg(file));
    const QRectF room = measures.boundsOnElement(QStringLiteral("emblem"));
    const QRect box(QPointF(room.topLeft() * unit).toPoint(), QSizeF(room.size() * unit).toSize());
    TRY_VOID(drawEmblem(painter, sources, icon, {box, depth.captured(1).toDouble()}, pixels));
  }
  painter.end();
  return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

}  // namespace quorvane::baseicons
