// SPDX-License-Identifier: GPL-3.0-or-later
// GIO before Qt: its headers use names that Qt's macros take.
#include <gio/gio.h>

#include "system/BoundedMetadata.h"
#include "system/FolderMarks.h"

namespace quorvane {

namespace {

constexpr const char* iconAttribute = "metadata::custom-icon";
// Answers come within milliseconds; the daemons' first start takes longer. The bus itself would be waited for without
// end, and each call for 25 seconds.
constexpr std::chrono::seconds patience{5};

struct Unreference {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename T>
using Owned = std::unique_ptr<T, Unreference>;

Error takeError(GError* error, const std::filesystem::path& folder) {
  const bool isMissing = error != nullptr && error->code == G_IO_ERROR_NOT_FOUND;
  const std::string words = error != nullptr ? error->message : "no reason given";
  g_clear_error(&error);
  return Error(isMissing ? ErrorKind::NotFound : ErrorKind::Unsupported, "the desktop keeps no settings: " + words)
      .at(folder);
}

/// The store of the GNOME, Cinnamon and MATE file managers. A daemon on the session bus keeps it; without one every
/// call fails at once.
class GioMetadata : public FolderMetadata {
 public:
  [[nodiscard]] Result<std::optional<std::string>> customIcon(const std::filesystem::path& folder) const override {
    const Owned<GFile> file(g_file_new_for_path(folder.c_str()));
    GError* error = nullptr;
    // Reading says "nothing" also where nothing can be kept, so that is asked first.
    const std::unique_ptr<GFileAttributeInfoList, decltype(&g_file_attribute_info_list_unref)> writable(
        g_file_query_writable_namespaces(file.get(), nullptr, &error), g_file_attribute_info_list_unref);
    if (!writable) return takeError(error, folder);
    if (g_file_attribute_info_list_lookup(writable.get(), "metadata") == nullptr) return takeError(nullptr, folder);
    const Owned<GFileInfo> info(
        g_file_query_info(file.get(), iconAttribute, G_FILE_QUERY_INFO_NOFOLLOW_SYMLINKS, nullptr, &error));
    if (!info) return takeError(error, folder);
    const char* value = g_file_info_get_attribute_string(info.get(), iconAttribute);
    if (value == nullptr) return std::optional<std::string>();
    return std::optional<std::string>(value);
  }

  Result<void> setCustomIcon(const std::filesystem::path& folder, const std::optional<std::string>& picture) override {
    // The daemon's messages hold text only.
    if (picture && g_utf8_validate(picture->data(), static_cast<gssize>(picture->size()), nullptr) == FALSE)
      return Error::invalidInput("the icon's name is no text").at(folder);
    const Owned<GFile> file(g_file_new_for_path(folder.c_str()));
    GError* error = nullptr;
    const gboolean isSet = picture ? g_file_set_attribute_string(file.get(), iconAttribute, picture->c_str(),
                                                                 G_FILE_QUERY_INFO_NONE, nullptr, &error)
                                   : g_file_set_attribute(file.get(), iconAttribute, G_FILE_ATTRIBUTE_TYPE_INVALID,
                                                          nullptr, G_FILE_QUERY_INFO_NONE, nullptr, &error);
    if (!isSet) return takeError(error, folder);
    if (TRY(customIcon(folder)) != picture) return Error::broken("the desktop did not keep the icon's name").at(folder);
    return {};
  }
};

}  // namespace

std::unique_ptr<FolderMetadata> makeDesktopMetadata() {
  return makeBoundedMetadata(std::make_shared<GioMetadata>(), patience);
}

}  // namespace quorvane
