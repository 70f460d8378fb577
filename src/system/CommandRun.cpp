// SPDX-License-Identifier: GPL-3.0-or-later
#include "system/CommandRun.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include "foundation/FileDescriptor.h"
#include "foundation/base/Limits.h"

namespace quorvane::command {

namespace {

const std::string what = "cannot run";

struct Pipe {
  FileDescriptor read;
  FileDescriptor write;
};

Result<Pipe> makePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return Error::system(errno, what);
  Pipe pipe{.read = FileDescriptor(ends[0]), .write = FileDescriptor(ends[1])};
  // Out of the way of the standard ones, should this process have been started without them.
  for (FileDescriptor* end : {&pipe.read, &pipe.write}) {
    if (end->get() > STDERR_FILENO) continue;
    FileDescriptor moved(::fcntl(end->get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    if (!moved.isOpen()) return Error::system(errno, what);
    *end = std::move(moved);
  }
  return pipe;
}

/// What is done between the start of the process and that of the program.
class Preparation {
 public:
  Preparation() {
    ::posix_spawn_file_actions_init(&_actions);
    ::posix_spawnattr_init(&_attributes);
  }
  ~Preparation() {
    ::posix_spawn_file_actions_destroy(&_actions);
    ::posix_spawnattr_destroy(&_attributes);
  }
  Preparation(const Preparation&) = delete;
  Preparation& operator=(const Preparation&) = delete;

  /// 0 or an errno value.
  int lay(int input, int output, const std::filesystem::path& folder) {
    if (!folder.empty())
      if (const int code = ::posix_spawn_file_actions_addchdir_np(&_actions, folder.c_str()); code != 0) return code;
    if (const int code = ::posix_spawn_file_actions_adddup2(&_actions, input, STDIN_FILENO); code != 0) return code;
    if (const int code = ::posix_spawn_file_actions_adddup2(&_actions, output, STDOUT_FILENO); code != 0) return code;
    if (const int code = ::posix_spawn_file_actions_addclosefrom_np(&_actions, STDERR_FILENO + 1); code != 0)
      return code;
    // Signals that we ignore or hold back are our own affair.
    sigset_t none, usual;
    ::sigemptyset(&none);
    ::sigemptyset(&usual);
    for (const int signal : {SIGPIPE, SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGCHLD}) ::sigaddset(&usual, signal);
    ::posix_spawnattr_setsigmask(&_attributes, &none);
    ::posix_spawnattr_setsigdefault(&_attributes, &usual);
    return ::posix_spawnattr_setflags(&_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }

  [[nodiscard]] int start(pid_t& child, const char* program, char* const* arguments) const {
    return ::posix_spawn(&child, program, &_actions, &_attributes, arguments, environ);
  }

 private:
  posix_spawn_file_actions_t _actions{};
  posix_spawnattr_t _attributes{};
};

/// All there is until every writer has closed its end.
QByteArray readToEnd(int handle) {
  QByteArray all;
  std::array<char, 65536> piece{};
  for (;;) {
    const ssize_t got = ::read(handle, piece.data(), piece.size());
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return all;
    const auto room = static_cast<qsizetype>(limits::commandOutputBytes) - all.size();
    all.append(piece.data(), std::min<qsizetype>(got, room));
  }
}

int waitFor(pid_t child) {
  int status = 0;
  while (::waitpid(child, &status, 0) != child) {
    // Somebody else in this process has waited for it: how it ended is lost.
    if (errno != EINTR) return -1;
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace

Result<Run> run(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                const std::filesystem::path& folder) {
  const auto hasZero = [](const std::string& text) { return text.find('\0') != std::string::npos; };
  if (hasZero(program.native()) || hasZero(folder.native()) || std::ranges::any_of(arguments, hasZero))
    return Error::invalidInput(what + ": a zero byte in an argument");
  std::vector<char*> words{const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);

  Pipe input = TRY(makePipe());
  Pipe output = TRY(makePipe());
  Preparation preparation;
  pid_t child = 0;
  int code = preparation.lay(input.read.get(), output.write.get(), folder);
  if (code == 0) code = preparation.start(child, program.c_str(), words.data());
  if (code != 0) return Error::system(code, what).at(program);
  // Ours must be closed, or neither it nor we would ever see an end.
  input = {};
  output.write.close();
  Run run{.output = readToEnd(output.read.get()), .status = 0};
  output.read.close();
  run.status = waitFor(child);
  return run;
}

}  // namespace quorvane::command
