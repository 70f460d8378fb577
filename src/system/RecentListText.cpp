// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/RecentListText.h"

#include <QString>
#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "foundation/base/Limits.h"
#include "foundation/base/Text.h"
#include "system/FileAddress.h"
#include "system/RecentListReader.h"

namespace quorvane::recentlist {

namespace {

const QString emptyList = QStringLiteral(
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xbel version=\"1.0\"\n"
    "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
    "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"\n"
    ">\n</xbel>\n");

QString textOf(std::string_view bytes) {
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// Changes to a text by places in the text as it was.
class Edits {
 public:
  void replace(qsizetype start, qsizetype length, const QString& by) { _edits.push_back({start, length, by}); }

  void setAttribute(const QString& text, const Element& element, const QString& name, const QString& value) {
    const QString escaped = value.toHtmlEscaped().replace(QLatin1Char('\''), QLatin1String("&apos;"));
    if (const auto span = attributeValue(text, element, name)) return replace(span->first, span->second, escaped);
    const qsizetype end = element.contents - (element.isEmptyTag ? 2 : 1);
    replace(end, 0, QLatin1Char(' ') + name + QLatin1String("=\"") + escaped + QLatin1Char('"'));
  }
  /// Behind the element's last contents: what is taken out again with the blanks in front leaves no trace.
  void append(const QString& text, const Element& to, const QString& what) {
    if (to.isEmptyTag)
      return replace(to.contents - 2, 2, QLatin1Char('>') + what + QLatin1String("</") + to.name + QLatin1Char('>'));
    qsizetype end = to.closing;
    while (end > to.contents && text[end - 1].isSpace()) --end;
    replace(end, 0, what);
  }

  [[nodiscard]] QString applied(QString text) {
    // From the back; at one place what replaces goes before what is put in front of it.
    std::ranges::stable_sort(_edits, std::greater(),
                             [](const Edit& edit) { return std::pair(edit.start, edit.length); });
    for (const Edit& edit : _edits) text.replace(edit.start, edit.length, edit.by);
    return text;
  }

 private:
  struct Edit {
    qsizetype start;
    qsizetype length;
    QString by;
  };
  std::vector<Edit> _edits;
};

QString applicationElement(const Application& by, const QString& now) {
  const auto escaped = [](const std::string& text) { return textOf(text).toHtmlEscaped(); };
  return QStringLiteral("<bookmark:application name=\"") + escaped(by.name) + QStringLiteral("\" exec=\"&apos;") +
         escaped(by.exec) + QStringLiteral("&apos;\" modified=\"") + now + QStringLiteral("\" count=\"1\"/>");
}

QString wrapped(const char* before, const QString& what, const char* after) {
  return QLatin1String(before) + what + QLatin1String(after);
}

/// What is missing around our application in a bookmark.
QString metadataElement(const QString& applications) {
  return wrapped("<metadata owner=\"http://freedesktop.org\"><mime:mime-type type=\"inode/directory\"/>", applications,
                 "</metadata>");
}

void addApplication(Edits& edits, const QString& before, const Bookmark& bookmark, const QString& application) {
  if (bookmark.applications) return edits.append(before, *bookmark.applications, application);
  const QString all = wrapped("<bookmark:applications>", application, "</bookmark:applications>");
  if (bookmark.metadata) return edits.append(before, *bookmark.metadata, all);
  if (bookmark.info) return edits.append(before, *bookmark.info, metadataElement(all));
  edits.append(before, bookmark.element, wrapped("<info>", metadataElement(all), "</info>"));
}

Result<QString> textOfList(std::string_view text) {
  if (text.size() > limits::recentListBytes)
    return Error::tooLarge("is longer than " + std::to_string(limits::recentListBytes) + " bytes");
  if (!isUtf8(text)) return Error::invalidInput("is no list of recently used things: it is not in UTF-8");
  return textOf(text);
}

Result<std::string> checked(const QString& text) {
  if (const auto again = readList(text); !again)
    return Error::broken("the list of recently used things would not be one any more: " + again.error().why());
  std::string bytes = text.toStdString();
  if (bytes.size() > limits::recentListBytes) return Error::tooLarge("the list of recently used things is full");
  return bytes;
}

}  // namespace

Result<std::string> withFolder(std::string_view text, const std::filesystem::path& folder, const Application& by,
                               std::string_view now) {
  const QString before = text.empty() ? emptyList : TRY(textOfList(text));
  const List list = TRY(readList(before));
  const QString date = textOf(now);
  Edits edits;
  const auto found = std::ranges::find_if(list.bookmarks, [&](const Bookmark& bookmark) {
    return pathOfAddress(bookmark.address.toStdString()) == folder;
  });
  if (found == list.bookmarks.end()) {
    const QString application = wrapped("<bookmark:applications>\n          ", applicationElement(by, date),
                                        "\n        </bookmark:applications>");
    edits.append(before, list.root,
                 QStringLiteral("\n  <bookmark href=\"%1\" added=\"%2\" modified=\"%2\" visited=\"%2\">\n"
                                "    <info>\n      %3\n    </info>\n  </bookmark>")
                     .arg(textOf(fileAddress(folder)).toHtmlEscaped(), date, metadataElement(application)));
    return checked(edits.applied(before));
  }
  edits.setAttribute(before, found->element, QStringLiteral("modified"), date);
  edits.setAttribute(before, found->element, QStringLiteral("visited"), date);
  const auto ours = std::ranges::find(found->by, textOf(by.name), &ApplicationEntry::name);
  if (ours == found->by.end()) {
    addApplication(edits, before, *found, applicationElement(by, date));
  } else {
    const qlonglong count = std::clamp(ours->count, 0LL, 1'000'000LL) + 1;
    edits.setAttribute(before, ours->element, QStringLiteral("exec"),
                       QLatin1Char('\'') + textOf(by.exec) + QLatin1Char('\''));
    edits.setAttribute(before, ours->element, QStringLiteral("modified"), date);
    edits.setAttribute(before, ours->element, QStringLiteral("count"), QString::number(count));
  }
  return checked(edits.applied(before));
}

Result<std::string> withoutApplication(std::string_view text, const Application& by) {
  if (text.empty()) return std::string();
  const QString before = TRY(textOfList(text));
  const List list = TRY(readList(before));
  Edits edits;
  // With the blanks in front, or each round would leave an empty line.
  const auto remove = [&](const Element& element) {
    qsizetype start = element.start;
    while (start > list.root.contents && before[start - 1].isSpace()) --start;
    edits.replace(start, element.end - start, {});
  };
  for (const Bookmark& bookmark : list.bookmarks) {
    const auto isOurs = [&](const ApplicationEntry& entry) { return entry.name == textOf(by.name); };
    if (std::ranges::none_of(bookmark.by, isOurs)) continue;
    if (std::ranges::all_of(bookmark.by, isOurs)) {
      remove(bookmark.element);
      continue;
    }
    for (const ApplicationEntry& entry : bookmark.by)
      if (isOurs(entry)) remove(entry.element);
  }
  return checked(edits.applied(before));
}

}  // namespace quorvane::recentlist
