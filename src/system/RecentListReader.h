// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <utility>
#include <vector>

#include "foundation/base/Result.h"

namespace quorvane::recentlist {

/// Where an element stands in the text, in UTF-16 units.
struct Element {
  qsizetype start = 0;      ///< the "<" of its first tag
  qsizetype contents = 0;   ///< behind that tag
  qsizetype closing = 0;    ///< the "<" of its last tag; for an empty-element tag as `contents`
  qsizetype end = 0;        ///< behind it
  QString name;             ///< as it is written, with its prefix
  bool isEmptyTag = false;  ///< "<name/>"
};

struct ApplicationEntry {
  Element element;
  QString name;
  qlonglong count = 0;
};

struct Bookmark {
  Element element;
  QString address;
  std::optional<Element> info;
  std::optional<Element> metadata;  ///< the desktop's
  std::optional<Element> applications;
  std::vector<ApplicationEntry> by;
};

struct List {
  Element root;
  std::vector<Bookmark> bookmarks;
};

/// Fails on what is no well-formed list in UTF-8 with the usual prefixes, or defines entities.
Result<List> readList(const QString& text);

/// Where the value of an attribute stands in a first tag: start and length, without the quotes. The tag is well-formed.
std::optional<std::pair<qsizetype, qsizetype>> attributeValue(const QString& text, const Element& element,
                                                              const QString& attribute);

}  // namespace quorvane::recentlist
