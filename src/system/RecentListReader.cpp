// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/RecentListReader.h"

#include <QXmlStreamReader>

namespace quorvane::recentlist {

namespace {

const QString bookmarkSpace = QStringLiteral("http://www.freedesktop.org/standards/desktop-bookmarks");
const QString mimeSpace = QStringLiteral("http://www.freedesktop.org/standards/shared-mime-info");
const QString metadataOwner = QStringLiteral("http://freedesktop.org");

Error malformed(const std::string& why) {
  return Error::invalidInput("is no list of recently used things: " + why);
}

/// Reads the list and notes where its elements stand.
class Reader {
 public:
  explicit Reader(const QString& text) : _text(text), _xml(text) {}

  Result<List> read() {
    while (!_xml.atEnd()) {
      const auto token = _xml.readNext();
      if (token == QXmlStreamReader::DTD && !_xml.entityDeclarations().isEmpty())
        return malformed("it defines entities");
      if (token != QXmlStreamReader::StartElement && token != QXmlStreamReader::EndElement) continue;
      // A tag has no other "<" in it. Where it begins is not told: the reader looks ahead now and then.
      const qsizetype end = _xml.characterOffset();
      const qsizetype start = end > 0 ? _text.lastIndexOf(u'<', end - 1) : -1;
      if (start < 0 || end > _text.size() || _text[end - 1] != u'>') return malformed("a tag is not found");
      if (token == QXmlStreamReader::StartElement) {
        TRY_VOID(begin(start, end));
      } else {
        finish(start, end);
      }
    }
    if (_xml.hasError()) return malformed(_xml.errorString().toStdString());
    return std::move(_list);
  }

 private:
  Result<void> begin(qsizetype start, qsizetype contents) {
    if (start >= contents || _text[start] != u'<' || _text[contents - 1] != u'>')
      return malformed("a tag is not found");
    const Element element{.start = start, .contents = contents, .name = _xml.qualifiedName().toString()};
    const std::size_t depth = _open.size();
    _open.push_back(element);
    const QXmlStreamAttributes attributes = _xml.attributes();
    const bool isPlain = _xml.namespaceUri().isEmpty();
    if (depth == 0) return checkRoot();
    if (depth == 1 && isPlain && _xml.name() == u"bookmark") {
      _list.bookmarks.emplace_back().address = attributes.value(QLatin1String("href")).toString();
      _bookmarkDepth = depth;
    }
    if (_bookmarkDepth == 0) return {};
    Bookmark& bookmark = _list.bookmarks.back();
    const bool isOurs = _xml.namespaceUri() == bookmarkSpace;
    const auto isIn = [&](std::size_t level) { return depth == level && _path == level - 1; };
    if (isIn(2) && isPlain && _xml.name() == u"info" && !bookmark.info) {
      _path = 2;
    } else if (isIn(3) && isPlain && _xml.name() == u"metadata" && !bookmark.metadata &&
               attributes.value(QLatin1String("owner")) == metadataOwner) {
      _path = 3;
    } else if (isIn(4) && isOurs && _xml.name() == u"applications" && !bookmark.applications) {
      _path = 4;
    } else if (isIn(5) && isOurs && _xml.name() == u"application") {
      _path = 5;
      bookmark.by.push_back({.element = {},
                             .name = attributes.value(QLatin1String("name")).toString(),
                             .count = attributes.value(QLatin1String("count")).toLongLong()});
    } else if (depth == 1) {
      _path = 1;
    }
    return {};
  }

  void finish(qsizetype start, qsizetype end) {
    Element element = _open.back();
    _open.pop_back();
    element.isEmptyTag = end == element.contents;
    element.closing = element.isEmptyTag ? element.contents : start;
    element.end = end;
    const std::size_t depth = _open.size();
    if (depth == 0) _list.root = element;
    if (_bookmarkDepth == 0 || depth != _path) return;
    Bookmark& bookmark = _list.bookmarks.back();
    if (depth == 1) bookmark.element = element;
    if (depth == 2) bookmark.info = element;
    if (depth == 3) bookmark.metadata = element;
    if (depth == 4) bookmark.applications = element;
    if (depth == 5) bookmark.by.back().element = element;
    _path = depth - 1;
    if (depth == 1) _bookmarkDepth = 0;
  }

  Result<void> checkRoot() {
    if (_xml.name() != u"xbel" || !_xml.namespaceUri().isEmpty()) return malformed("its first element is no list");
    const QString encoding = _xml.documentEncoding().toString().toLower();
    if (!encoding.isEmpty() && encoding != QLatin1String("utf-8") && encoding != QLatin1String("utf8"))
      return malformed("it is not in UTF-8");
    bool hasBookmark = false;
    bool hasMime = false;
    const auto declarations = _xml.namespaceDeclarations();
    for (const auto& declaration : declarations) {
      hasBookmark |= declaration.prefix() == u"bookmark" && declaration.namespaceUri() == bookmarkSpace;
      hasMime |= declaration.prefix() == u"mime" && declaration.namespaceUri() == mimeSpace;
    }
    if (!hasBookmark || !hasMime) return malformed("it has not the usual prefixes");
    return {};
  }

  const QString& _text;
  QXmlStreamReader _xml;
  List _list;
  std::vector<Element> _open;
  std::size_t _bookmarkDepth = 0;  ///< 1 within a bookmark
  std::size_t _path = 0;           ///< how many of the open elements lead from the bookmark to its applications
};

}  // namespace

Result<List> readList(const QString& text) {
  return Reader(text).read();
}

std::optional<std::pair<qsizetype, qsizetype>> attributeValue(const QString& text, const Element& element,
                                                              const QString& attribute) {
  qsizetype at = element.start + 1 + element.name.size();
  const auto skipBlanks = [&] {
    while (at < element.contents && text[at].isSpace()) ++at;
  };
  while (true) {
    skipBlanks();
    const qsizetype nameStart = at;
    while (at < element.contents && text[at] != u'=' && text[at] != u'>' && text[at] != u'/' && !text[at].isSpace())
      ++at;
    const QString name = text.mid(nameStart, at - nameStart);
    skipBlanks();
    if (at >= element.contents || text[at] != u'=') return std::nullopt;
    ++at;
    skipBlanks();
    const qsizetype first = at + 1;
    const qsizetype last = at < element.contents ? text.indexOf(text[at], first) : -1;
    if (last < 0 || last >= element.contents) return std::nullopt;
    if (name == attribute) return std::pair(first, last - first);
    at = last + 1;
  }
}

}  // namespace quorvane::recentlist
