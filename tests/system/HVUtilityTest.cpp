// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/HVUtility.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "foundation/base/Log.h"
#include "support/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

struct RecordingServices : SystemServices, AgentFlag {
  std::optional<std::uint32_t> version;
  int asked = 0, started = 0, ended = 0;
  bool canStart = true;
  std::vector<std::string> scripts;
  std::vector<LoginItem> items;
  std::map<std::uint32_t, ProcessInformation> processes;
  std::optional<fs::path> bundle;
  std::map<std::string, std::int64_t> integers;

  std::optional<std::uint32_t> fact(FourCharCode selector) override {
    EXPECT_EQ(selector, FourCharCode("sysv"));
    ++asked;
    return version;
  }
  Result<void> runScript(const std::string& script) override {
    scripts.push_back(script);
    return Error::broken("refused");
  }
  std::vector<LoginItem> loginItems() override { return items; }
  ProcessSerialNumber currentProcess() override { return {.high = 0, .low = 1}; }
  std::optional<ProcessInformation> processInformation(ProcessSerialNumber process) override {
    const auto found = processes.find(process.high << 8 | process.low);
    return found == processes.end() ? std::nullopt : std::optional(found->second);
  }
  std::optional<fs::path> applicationBundle() override { return bundle; }
  AgentFlag* agentFlag() override { return this; }
  Result<std::optional<std::int64_t>> integer(const fs::path& list, const std::string& key) override {
    const auto found = integers.find(list.string() + ":" + key);
    return found == integers.end() ? std::nullopt : std::optional(found->second);
  }
  Result<void> setInteger(const fs::path& list, const std::string& key, std::int64_t value) override {
    integers[list.string() + ":" + key] = value;
    return {};
  }
  Result<void> startOwnProgram() override {
    ++started;
    return canStart ? Result<void>() : Error::broken("none");
  }
  void requestTermination() override { ++ended; }
};

struct HVUtilityTest : testing::Test {
  RecordingServices services;
  SystemServices* former = HVUtility::setServices(&services);
  std::vector<std::string> log;
  LogSink sink = setLogSink([this](auto, auto line) { log.emplace_back(line); });
  ~HVUtilityTest() override {
    HVUtility::setServices(former);
    setLogSink(sink);
  }
};

TEST_F(HVUtilityTest, TheVersionIsAskedForUntilThereIsOne) {
  for (int count = 1; count <= 2; ++count) {
    EXPECT_EQ(HVUtility::systemVersion(), 0U);
    EXPECT_EQ(services.asked, count);
  }
  EXPECT_FALSE(HVUtility::isJaguar() || HVUtility::isPanther());
  services.version = 0x1068;
  services.asked = 0;
  for (int count = 0; count < 3; ++count) EXPECT_EQ(HVUtility::systemVersion(), 0x1068U);
  EXPECT_EQ(services.asked, 1);
  struct Row {
    std::uint32_t version;
    bool jaguar, panther;
  };
  for (const auto& [version, jaguar, panther] :
       {Row{0x101F, false, false}, Row{0x1020, true, false}, Row{0x102F, true, false}, Row{0x1030, false, true},
        Row{0x103F, false, true}, Row{0x1040, false, false}, Row{0xFFFFFFFF, false, false}}) {
    HVUtility::setServices(&services);
    services.version = version;
    EXPECT_EQ(HVUtility::isJaguar(), jaguar) << std::hex << version;
    EXPECT_EQ(HVUtility::isPanther(), panther) << std::hex << version;
  }
}

TEST_F(HVUtilityTest, LoginItemsAreScripts) {
  HVUtility::tellSystemEvents("%@");
  HVUtility::addAutoLaunchPath("/Applications/A %@.app", true);
  HVUtility::addAutoLaunchPath("/x\"\\\n", false);
  for (const char* name : {"A.app", "A", ".app", "A.b.c", "A.", "A\"}"}) HVUtility::removeAutoLaunchAppNamed(name);
  const std::string begin = "tell application \"System Events\"\n", end = "\nend tell";
  const std::string make = begin + "make new login item at end with properties ", drop = begin + "delete login item ";
  EXPECT_EQ(services.scripts,
            (std::vector<std::string>{
                begin + "%@" + end, make + "{path:\"/Applications/A %@.app\",hidden:true}\n" + end,
                make + "{path:\"/x\\\"\\\\\\n\",hidden:false}\n" + end, drop + "\"A\"" + end, drop + "\"A\"" + end,
                drop + "\".app\"" + end, drop + "\"A.b\"" + end, drop + "\"A.\"" + end, drop + "\"A\\\"}\"" + end}));
  services.items = {{{"Path", "/x/Other.app"}}, {{"Hide", "1"}}, {{"Path", "/x/A.app/"}}};
  EXPECT_TRUE(HVUtility::appAutoLaunches("A.app"));
  for (const char* name : {"a.app", "A", "", "x", "/x/A.app"}) EXPECT_FALSE(HVUtility::appAutoLaunches(name)) << name;
}

TEST_F(HVUtilityTest, TheParentsCreatorIsFoundByItsNumber) {
  EXPECT_EQ(HVUtility::fileCreatorOfParentProcess(), std::nullopt);
  services.processes[1] = {{"ParentPSN", std::uint64_t{3} << 32 | 7}};
  EXPECT_EQ(HVUtility::fileCreatorOfParentProcess(), std::nullopt);
  services.processes[3 << 8 | 7] = {{"FileCreator", "MACS"}};
  EXPECT_EQ(HVUtility::fileCreatorOfParentProcess(), "MACS");
  services.processes[3 << 8 | 7] = {{"FileCreator", std::uint64_t{1}}};
  EXPECT_EQ(HVUtility::fileCreatorOfParentProcess(), std::nullopt);
}

TEST_F(HVUtilityTest, HeadlessIsAKeyOfTheBundle) {
  HVUtility::setHeadless(true);
  EXPECT_TRUE(services.integers.empty() && !HVUtility::isHeadless());
  const test::TemporaryFolder root;
  services.bundle = root.path();
  EXPECT_FALSE(HVUtility::isHeadless());
  const timespec old[2] = {{1, 0}, {1, 0}};
  ::utimensat(AT_FDCWD, root.path().c_str(), old, 0);
  HVUtility::setHeadless(true);
  EXPECT_EQ(services.integers,
            (std::map<std::string, std::int64_t>{{(root / "Contents/Info.plist").string() + ":LSUIElement", 1}}));
  EXPECT_TRUE(HVUtility::isHeadless());
  EXPECT_LT(fs::file_time_type::clock::now() - fs::last_write_time(root.path()), std::chrono::minutes(1));
  HVUtility::setHeadless(false);
  EXPECT_EQ(services.integers.begin()->second, 0);
  EXPECT_FALSE(HVUtility::isHeadless());
}

TEST_F(HVUtilityTest, RestartingEndsOnlyWhatWasStartedAnew) {
  HVUtility::restartApplication();
  EXPECT_EQ(log, std::vector<std::string>{"WARNING: Deprecated"});
  services.canStart = false;
  HVUtility::restartApplication();
  EXPECT_TRUE(services.started == 2 && services.ended == 1);
}

TEST_F(HVUtilityTest, CommandsGiveAllTheirOutputAndHowTheyEnded) {
  const test::TemporaryFolder root;
  const int kept = ::open("/dev/null", O_RDONLY);  // must not reach the program, though it is not close-on-exec
  ASSERT_GE(kept, 0);
  const auto sh = [](const std::string& script) { return std::vector<std::string>{"-c", script, "sh", "a b", "$x"}; };
  struct Row {
    std::string program;
    std::vector<std::string> arguments;
    std::string output;
    int status;
  };
  for (const auto& [program, arguments, output, status] :
       {Row{"/bin/sh", sh("printf '%s|' \"$@\"; exit 3"), "a b|$x|", 3}, Row{"/bin/sh", sh("kill -9 $$"), "", 137},
        Row{"/bin/cat", {}, "", 0}, Row{"/bin/sh", sh("pwd -P"), fs::canonical(root.path()).string() + "\n", 0},
        Row{"/bin/sh", sh("ls /proc/self/fd | tr '\\n' ' '"), "0 1 2 3 ", 0},
        Row{"/bin/sh", sh("head -c 3000000 /dev/zero >&2; printf x"), "x", 0}, Row{"/nowhere", {}, "", 127},
        Row{"/", {}, "", 127}, Row{"/bin/sh", {"-c", std::string("printf a\0b", 10)}, "", 127}}) {
    // What the program says on standard error is not what is tried here.
    const int error = ::dup(STDERR_FILENO), null = ::open("/dev/null", O_WRONLY);
    ::dup2(null, STDERR_FILENO);
    int told = -2;
    const QByteArray got = HVUtility::runCommand(program, arguments, root.path(), &told);
    ::dup2(error, STDERR_FILENO);
    ::close(error), ::close(null);
    EXPECT_EQ(got.toStdString(), output) << program;
    EXPECT_EQ(told, status) << program << " " << output;
  }
  EXPECT_EQ(HVUtility::runCommand("/bin/sh", sh("head -c 10000000 /dev/zero")).size(), 10'000'000);
  int told = 0;
  EXPECT_TRUE(HVUtility::runCommand("/bin/cat", {}, root / "gone", &told).isEmpty());
  EXPECT_EQ(told, 127);
  ::close(kept);
}

TEST_F(HVUtilityTest, TheMemoryThatWeHoldIsPlausible) {
  if (!fs::exists("/bin/ps")) {
    EXPECT_EQ(HVUtility::residentSetSize(), 0U);
    return;
  }
  const std::uint64_t before = HVUtility::residentSetSize();
  EXPECT_TRUE(before > 1000 && before < 10'000'000) << before;
  const std::vector<char> large(200 << 20, 'x');
  EXPECT_GT(HVUtility::residentSetSize(), before + 150'000 + large.size() % 2);
}

}  // namespace
}  // namespace quorvane
