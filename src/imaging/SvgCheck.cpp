// SPDX-License-Identifier: GPL-3.0-or-later
#include "imaging/SvgCheck.h"

#include <QByteArray>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>

#include "foundation/base/Limits.h"

namespace quorvane {

namespace {

/// Part of a picture that can be drawn again under its id.
struct Part {
  std::int64_t elements = 0;
  QStringList uses;
};

class SvgWalk {
 public:
  explicit SvgWalk(ByteView bytes)
      : _reader(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                        static_cast<qsizetype>(bytes.size()))) {
    _reader.setNamespaceProcessing(false);  // pictures with prefixes that were never declared are drawn all the same
  }

  Result<void> run() {
    while (!_reader.atEnd()) {
      switch (_reader.readNext()) {
        case QXmlStreamReader::StartElement:
          if (!enterElement()) return *_refusal;
          break;
        case QXmlStreamReader::EndElement:
          _open.removeLast();
          break;
        case QXmlStreamReader::Characters:
          if (refersOutside(_reader.text().toString())) return outside();
          break;
        case QXmlStreamReader::ProcessingInstruction:
          return outside();  // the only known one names a style sheet
        case QXmlStreamReader::DTD:
          if (!_reader.entityDeclarations().isEmpty()) return Error::invalidInput("vector picture defines entities");
          break;
        default:
          break;
      }
    }
    if (_reader.hasError()) return Error::invalidInput(_reader.errorString().toStdString());
    if (cost(QString()) > limits::svgElements) return tooMuch();
    return {};
  }

 private:
  static Error outside() { return Error::invalidInput("vector picture refers to other files"); }
  static Error tooMuch() { return Error::tooLarge("vector picture has too many parts"); }

  static QStringView localName(QStringView name) { return name.mid(name.lastIndexOf(QLatin1Char(':')) + 1); }

  /// Styles may name files by url() and @import.
  static bool refersOutside(const QString& text) {
    static const QRegularExpression reference(QStringLiteral(R"(@import|url\s*\(\s*(?!['"]?\s*#))"),
                                              QRegularExpression::CaseInsensitiveOption);
    return text.contains(reference);
  }

  /// False when the element is refused; _refusal then says why.
  bool enterElement() {
    QString id;
    QString target;
    for (const QXmlStreamAttribute& attribute : _reader.attributes()) {
      const QString value = attribute.value().toString();
      if (attribute.name() == QLatin1String("id")) id = value;
      if (localName(attribute.qualifiedName()) == QLatin1String("href")) {
        target = value.trimmed();
        // A link of a text leads outside by nature and is never followed.
        if (localName(_reader.qualifiedName()) != QLatin1String("a") && !target.startsWith(QLatin1Char('#')) &&
            !target.startsWith(QLatin1String("data:")))
          _refusal = outside();
      } else if (refersOutside(value)) {
        _refusal = outside();
      }
    }
    _open.append(_open.isEmpty() ? QString() : id);
    if (_open.size() > limits::svgDepth || ++_count > limits::svgElements) _refusal = tooMuch();
    if (_refusal) return false;
    for (const QString& open : QSet<QString>(_open.begin(), _open.end())) {
      Part& part = _parts[open];
      ++part.elements;
      if (localName(_reader.qualifiedName()) == QLatin1String("use")) part.uses.append(target.mid(1));
    }
    return true;
  }

  /// Elements drawn for one part, references followed; more than the limit also for one that draws itself.
  std::int64_t cost(const QString& id) {
    if (const auto known = _costs.constFind(id); known != _costs.cend()) return *known;
    _costs[id] = limits::svgElements + 1;  // as long as it is being counted: met again, it is within itself
    const Part part = _parts.value(id);
    std::int64_t sum = part.elements;
    for (const QString& use : part.uses)
      if (sum <= limits::svgElements) sum += use.isEmpty() ? limits::svgElements + 1 : cost(use);
    _costs[id] = sum;
    return sum;
  }

  QXmlStreamReader _reader;
  QStringList _open;  // ids of the elements that are open, the root's and missing ones empty
  QHash<QString, Part> _parts;
  QHash<QString, std::int64_t> _costs;
  std::int64_t _count = 0;
  std::optional<Error> _refusal;
};

}  // namespace

Result<void> checkSvg(ByteView bytes) {
  return SvgWalk(bytes).run();
}

}  // namespace quorvane
