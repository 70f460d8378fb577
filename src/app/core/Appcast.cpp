// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/Appcast.h"

#include <QXmlStreamReader>
#include <algorithm>

#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"

namespace quorvane::appcast {

namespace {

Error malformed(const std::string& why) {
  return Error::invalidInput("this is no list of versions: " + why);
}

/// Refuses what the XML reader takes far too long for: it compares all attributes of an element with each other. And
/// document types, which define entities.
Result<void> checkTags(QStringView text) {
  qsizetype at = 0;
  const auto skip = [&](QStringView begin, QStringView end) {
    if (!text.mid(at).startsWith(begin)) return false;
    const qsizetype found = text.indexOf(end, at + begin.size());
    at = found < 0 ? text.size() : found + end.size();
    return true;
  };
  while ((at = text.indexOf(u'<', at)) >= 0) {
    if (skip(u"<!--", u"-->") || skip(u"<![CDATA[", u"]]>") || skip(u"<?", u"?>")) continue;
    if (text.mid(at).startsWith(u"<!")) return malformed("it has a document type");
    int attributes = 0;
    QChar quote;
    for (++at; at < text.size() && (!quote.isNull() || text[at] != u'>'); ++at) {
      if (!quote.isNull()) {
        if (text[at] == quote) quote = QChar();
      } else if (text[at] == u'"' || text[at] == u'\'') {
        quote = text[at];
        if (++attributes > limits::feedAttributes) return Error::tooLarge("an element has too many attributes");
      }
    }
  }
  return {};
}

/// An item as it is read.
struct Draft {
  QString version, shortVersion, leastSystem, system, channel, title, description, published, link;
};

class Reader {
 public:
  explicit Reader(const QString& text) : _xml(text) {}

  Result<Appcast> read() {
    while (!_xml.atEnd()) {
      const auto token = _xml.readNext();
      if (token == QXmlStreamReader::StartElement) {
        TRY_VOID(begin());
      } else if (token == QXmlStreamReader::EndElement) {
        finish();
      } else if (token == QXmlStreamReader::Characters && _text) {
        // With the text of elements inside: some publishers do not escape theirs.
        *_text += _xml.text();
      }
    }
    if (_xml.hasError())
      return malformed(_xml.errorString().toStdString() + " (line " + std::to_string(_xml.lineNumber()) + ")");
    _list.page = page(_link);
    return std::move(_list);
  }

 private:
  Result<void> begin() {
    const QStringView name = _xml.name();
    const bool isPlain = _xml.namespaceUri().isEmpty();
    if (++_depth > limits::feedDepth) return Error::tooLarge("its elements are nested too deeply");
    if (_depth == 1 && name != u"rss") return malformed("its first element is not \"rss\"");
    if (_depth == 2) _isInChannel = isPlain && name == u"channel";
    if (!_isInChannel || _text) return {};
    if (_depth == 3) {
      _isInItem = isPlain && name == u"item";
      if (_isInItem && ++_items > limits::feedItems) return Error::tooLarge("it has too many versions");
      if (isPlain && name == u"link") capture(_link);
    } else if (_depth == 4 && _isInItem) {
      beginPart(name, isPlain);
    }
    return {};
  }

  void beginPart(QStringView name, bool isPlain) {
    if (isPlain) {
      if (name == u"title") capture(_draft.title);
      if (name == u"description") capture(_draft.description);
      if (name == u"pubDate") capture(_draft.published);
      if (name == u"link") capture(_draft.link);
      if (name == u"enclosure") readEnclosure();
      return;
    }
    if (QString* field = versionField(name)) capture(*field);
    if (name == u"channel") capture(_draft.channel);
  }

  QString* versionField(QStringView name) {
    if (name == u"version") return &_draft.version;
    if (name == u"shortVersionString") return &_draft.shortVersion;
    if (name == u"minimumSystemVersion") return &_draft.leastSystem;
    if (name == u"os") return &_draft.system;
    return nullptr;
  }

  void readEnclosure() {
    const QXmlStreamAttributes attributes = _xml.attributes();
    for (const auto& attribute : attributes)
      if (QString* field = versionField(attribute.name()); field && field->isEmpty())
        *field = attribute.value().toString();
  }

  void capture(QString& text) {
    text.clear();
    _text = &text;
    _textDepth = _depth;
  }

  void finish() {
    if (_text && _depth == _textDepth) _text = nullptr;
    if (_depth == 3 && _isInItem) {
      keep();
      _draft = {};
      _isInItem = false;
    }
    --_depth;
  }

  void keep() {
    const QString system = _draft.system.trimmed().toLower();
    if (!_draft.channel.trimmed().isEmpty() || (!system.isEmpty() && system != u"linux")) return;
    const QString shown = _draft.shortVersion.trimmed();
    const QString compared = _draft.version.trimmed().isEmpty() ? shown : _draft.version.trimmed();
    auto version = ProgramVersion::parse(compared.toStdString());
    if (!version) {
      _list.hasOdd = true;
      return;
    }
    _list.items.push_back({.version = std::move(*version),
                           .versionText = compared,
                           .shownVersion = shown.isEmpty() ? compared : shown,
                           .leastSystem = ProgramVersion::parse(_draft.leastSystem.trimmed().toStdString()),
                           .title = _draft.title.trimmed(),
                           .description = _draft.description,
                           .published = QDateTime::fromString(_draft.published.trimmed(), Qt::RFC2822Date),
                           .page = page(_draft.link)});
  }

  static QUrl page(const QString& text) {
    const QUrl address(text.trimmed(), QUrl::StrictMode);
    return isPage(address) ? address : QUrl();
  }

  QXmlStreamReader _xml;
  Appcast _list;
  QString _link;
  Draft _draft;
  int _depth = 0;
  std::size_t _items = 0;
  bool _isInChannel = false;
  bool _isInItem = false;
  QString* _text = nullptr;  ///< where the text of the element goes that began at _textDepth
  int _textDepth = 0;
};

}  // namespace

Result<Appcast> read(const QByteArray& bytes) {
  if (static_cast<std::size_t>(bytes.size()) > limits::feedBytes) return Error::tooLarge("the list is too long");
  if (!isUtf8({bytes.data(), static_cast<std::size_t>(bytes.size())})) return malformed("it is not in UTF-8");
  const QString text = QString::fromUtf8(bytes);
  TRY_VOID(checkTags(text));
  return Reader(text).read();
}

std::vector<Item> newerItems(const Appcast& list, const ProgramVersion& running,
                             const std::optional<ProgramVersion>& system) {
  std::vector<Item> newer;
  std::ranges::copy_if(list.items, std::back_inserter(newer), [&](const Item& item) {
    return item.version > running && !(system && item.leastSystem && *item.leastSystem > *system);
  });
  std::ranges::stable_sort(newer, std::ranges::greater(), &Item::version);
  const auto same = [](const Item& one, const Item& other) { return one.version == other.version; };
  newer.erase(std::unique(newer.begin(), newer.end(), same), newer.end());
  return newer;
}

bool isPage(const QUrl& address) {
  return address.isValid() && address.scheme() == u"https" && !address.host().isEmpty() && address.userInfo().isEmpty();
}

}  // namespace quorvane::appcast
