// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FolderSource.h"

#include <memory>

#include "cli/Wish.h"

namespace quorvane::cli {

namespace {

// Reading more only to know how far along we are is not worth it.
constexpr std::uint64_t countedBytes = std::uint64_t{32} << 20;

const std::filesystem::path* listPath(const Arguments& arguments) {
  return arguments.rowsFrom ? &*arguments.rowsFrom : arguments.filesFrom ? &*arguments.filesFrom : nullptr;
}

}  // namespace

Result<FolderSource> FolderSource::open(const Arguments& arguments) {
  FolderSource source(arguments);
  const std::filesystem::path* list = listPath(arguments);
  if (list == nullptr) return source;
  const auto stream = std::make_shared<InputStream>(TRY(InputStream::open(*list)));
  source._listBytes = stream->size();
  const ByteSource bytes = [stream](std::span<char> to) { return stream->read(to); };
  if (arguments.rowsFrom) {
    source._list.emplace<RowReader>(bytes, rowColumns());
  } else {
    source._list.emplace<ListReader>(bytes, arguments.isNull ? '\0' : '\n');
  }
  return source;
}

Result<std::optional<FolderItem>> FolderSource::next() {
  std::optional<FolderItem> item;
  if (_given < _arguments->paths.size()) {
    item.emplace().folder = _arguments->paths[_given++];
  } else if (auto* list = std::get_if<ListReader>(&_list)) {
    if (auto path = TRY(list->next())) item.emplace().folder = *std::move(path);
    if (item && item->folder.empty()) item->fault = Error::invalidInput("an empty path names nothing");
  } else if (auto* rows = std::get_if<RowReader>(&_list)) {
    auto row = TRY(rows->next());
    if (!row) return item;
    item.emplace().line = row->line;
    if (row->row) {
      item->folder = std::move(row->row->folder);
      item->values = std::move(row->row->values);
    } else {
      item->fault = row->row.error();
    }
  }
  return item;
}

std::optional<std::size_t> FolderSource::total() const {
  const std::filesystem::path* list = listPath(*_arguments);
  if (list == nullptr) return _arguments->paths.size();
  // What standard input gave once is gone.
  if (*list == "-" || !_listBytes || *_listBytes > countedBytes) return std::nullopt;
  auto again = open(*_arguments);
  if (!again) return std::nullopt;
  std::size_t count = 0;
  for (auto item = again->next(); item && *item; item = again->next()) ++count;
  return count;
}

}  // namespace quorvane::cli
