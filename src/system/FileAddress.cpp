// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/FileAddress.h"

#include <unistd.h>

#include <QByteArray>
#include <algorithm>
#include <array>
#include <cctype>

namespace quorvane {

namespace {

/// Without the beginning; nullopt when it begins otherwise. Letters' case does not matter.
std::optional<std::string_view> after(std::string_view beginning, std::string_view text) {
  const auto isSame = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
  if (text.size() < beginning.size() || !std::equal(beginning.begin(), beginning.end(), text.begin(), isSame))
    return std::nullopt;
  return text.substr(beginning.size());
}

bool isThisHost(std::string_view host) {
  if (host.empty() || host == "localhost") return true;
  std::array<char, 256> own{};
  return ::gethostname(own.data(), own.size() - 1) == 0 && host == own.data();
}

/// "scheme:" as in addresses, with at least two letters.
bool hasScheme(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos || colon < 2 || std::isalpha(static_cast<unsigned char>(text[0])) == 0)
    return false;
  return std::ranges::all_of(text.substr(0, colon), [](unsigned char letter) {
    return std::isalnum(letter) != 0 || letter == '+' || letter == '-' || letter == '.';
  });
}

}  // namespace

std::string fileAddress(const std::filesystem::path& path) {
  const std::string& bytes = path.native();
  return "file://" + QByteArray::fromStdString(bytes).toPercentEncoding("/").toStdString();
}

std::optional<std::filesystem::path> pathOfAddress(std::string_view address) {
  auto rest = after("file:", address);
  if (!rest) return std::nullopt;
  if (rest->starts_with("//")) {
    const std::size_t slash = rest->find('/', 2);
    if (slash == std::string_view::npos || !isThisHost(rest->substr(2, slash - 2))) return std::nullopt;
    rest = rest->substr(slash);
  }
  // A query and a fragment are no part of the path; in names these letters are escaped.
  rest = rest->substr(0, rest->find_first_of("?#"));
  const std::string path =
      QByteArray::fromPercentEncoding(QByteArray(rest->data(), static_cast<qsizetype>(rest->size()))).toStdString();
  if (!path.starts_with('/') || path.find('\0') != std::string::npos) return std::nullopt;
  return std::filesystem::path(path);
}

std::optional<std::filesystem::path> pathOfArgument(std::string_view argument) {
  if (argument.empty() || argument.find('\0') != std::string_view::npos) return std::nullopt;
  const std::filesystem::path path(argument);
  std::error_code error;
  if (path.is_relative() && hasScheme(argument) && !std::filesystem::exists(path, error))
    return pathOfAddress(argument);
  auto whole = std::filesystem::absolute(path, error);
  if (error) return std::nullopt;
  return whole;
}

}  // namespace quorvane
