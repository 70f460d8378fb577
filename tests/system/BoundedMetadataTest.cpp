// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/BoundedMetadata.h"

#include <gtest/gtest.h>

#include <future>

namespace quorvane {
namespace {

/// Answers no call before it is released.
class SilentMetadata : public FolderMetadata {
 public:
  [[nodiscard]] Result<std::optional<std::string>> customIcon(const std::filesystem::path&) const override {
    released.wait();
    return std::optional<std::string>("late");
  }
  Result<void> setCustomIcon(const std::filesystem::path&, const std::optional<std::string>&) override {
    released.wait();
    return {};
  }
  std::promise<void> release;
  std::shared_future<void> released = release.get_future().share();
};

TEST(BoundedMetadata, GivesUpASessionThatDoesNotAnswer) {
  const auto silent = std::make_shared<SilentMetadata>();
  const auto bounded = makeBoundedMetadata(silent, std::chrono::milliseconds(1));
  EXPECT_EQ(bounded->customIcon("/x").error().kind(), ErrorKind::Unsupported);
  silent->release.set_value();
  // Not asked again, whatever it would say now.
  EXPECT_FALSE(bounded->setCustomIcon("/x", "y").ok());
  const auto patient = makeBoundedMetadata(silent, std::chrono::minutes(1));
  EXPECT_EQ(*patient->customIcon("/x"), "late");
  EXPECT_TRUE(patient->setCustomIcon("/x", {}).ok());
}

}  // namespace
}  // namespace quorvane
