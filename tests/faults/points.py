# SPDX-License-Identifier: GPL-3.0-or-later
"""The points at which a run can be killed or hindered: each call that changes a file system, counted by strace, if
it concerns the place that the run works on."""
import os
import re
import subprocess

# What each call can really say: first what the program tells apart, tried at every point; then what is all one to it,
# tried in turn unless all are asked for.
ERRORS = {
    "openat": (("EINTR",), ("EACCES", "ENOSPC", "EMFILE", "EROFS", "EDQUOT", "EIO", "ENAMETOOLONG", "ENFILE")),
    "write": (("EINTR",), ("ENOSPC", "EIO", "EDQUOT", "EFBIG")),
    "fsync": (("EINTR", "EINVAL"), ("EIO", "ENOSPC", "EDQUOT", "EROFS")),
    "linkat": (("EPERM", "EXDEV"), ("ENOSPC", "EIO", "EDQUOT", "EACCES", "EROFS", "EMLINK", "EOPNOTSUPP")),
    "renameat": ((), ("EIO", "ENOSPC", "EACCES", "EROFS", "EPERM", "EDQUOT", "EXDEV")),
    "renameat2": (("EINVAL",), ("EIO", "ENOSPC", "EACCES", "EROFS", "EPERM", "EDQUOT")),
    "unlinkat": ((), ("EIO", "EACCES", "EPERM", "EROFS", "EBUSY")),
    "mkdirat": ((), ("ENOSPC", "EACCES", "EROFS", "EDQUOT", "EMLINK", "EIO")),
    "fchmod": ((), ("EPERM", "EIO", "EROFS")),
    "fchown": (("EPERM",), ("EIO", "EROFS", "EINVAL")),
    "fsetxattr": (("EOPNOTSUPP",), ("ENOSPC", "EDQUOT", "EIO", "EPERM", "EACCES", "EROFS")),
    "fremovexattr": (("EOPNOTSUPP",), ("EIO", "EPERM", "EACCES", "EROFS")),
    "utimensat": (("EPERM",), ("EACCES", "EIO", "EROFS")),
    "ftruncate": ((), ("EIO", "ENOSPC", "EFBIG")),
    "close": (("EINTR",), ("EIO", "ENOSPC", "EDQUOT")),
}
# The same by their other names, should a library use them.
for others, known in (("open creat", "openat"), ("pwrite64 writev pwritev copy_file_range sendfile", "write"),
                      ("fdatasync syncfs", "fsync"), ("link symlink symlinkat", "linkat"), ("rename", "renameat"),
                      ("unlink rmdir", "unlinkat"), ("mkdir mknod mknodat", "mkdirat"), ("chmod fchmodat", "fchmod"),
                      ("chown lchown fchownat", "fchown"), ("setxattr lsetxattr", "fsetxattr"),
                      ("removexattr lremovexattr", "fremovexattr"), ("utime utimes futimesat", "utimensat"),
                      ("truncate fallocate", "ftruncate")):
    ERRORS.update(dict.fromkeys(others.split(), ERRORS[known]))

CALL = re.compile(r"^(\d+) +(\w+)\((.*)")


class Point:
    """One call, and what happens to it. `kind` is "kill", "fail" (once) or "stuck" (it and all later ones)."""

    def __init__(self, call, number, kind, error=None):
        self.call, self.number, self.kind, self.error = call, number, kind, error

    def options(self):
        """How strace is asked for it."""
        if self.kind == "kill":
            return ["-e", "trace=" + self.call, "-e", f"inject={self.call}:signal=KILL:when={self.number}"]
        # The filter in the kernel lets other calls run at full speed; it loses injected signals (measured).
        return ["--seccomp-bpf", "-e", "trace=" + self.call, "-e",
                f"inject={self.call}:error={self.error}:when={self.number}" + ("+" if self.kind == "stuck" else "")]

    def __str__(self):
        return f"{self.call} {self.number} {self.kind}" + (f" {self.error}" if self.error else "")


class Tracer:
    def __init__(self, program, environment, patience):
        self.program, self.patience = program, patience
        sanitizers = os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"  # cannot be looked for while traced
        self.environment = {**environment, "ASAN_OPTIONS": sanitizers}

    def run(self, options, arguments, cwd):
        return subprocess.run(["strace", "-f", *options, self.program, *arguments],
                              capture_output=True, timeout=self.patience, env=self.environment, cwd=cwd, check=False)

    def works(self):
        try:
            return self.run(["-e", "trace=close"], ["--version"], "/").returncode == 0
        except (OSError, subprocess.TimeoutExpired):
            return False

    def calls(self, arguments, cwd, place):
        """What a run ended with, and each (call, number) of it that concerns something below the folder `place`, be it
        by a path or by an open file. Calls are counted by thread, as strace counts them when it injects."""
        done = self.run(["-o", "/dev/stderr", "--decode-fds=path", "-e", "trace=" + ",".join("?" + call for call in ERRORS)], arguments, cwd)
        counts, found = {}, []
        for line in done.stderr.decode("utf-8", "replace").splitlines():
            match = CALL.match(line)
            if not match or match[2] not in ERRORS:
                continue
            thread, call = match[1], match[2]
            counts[thread, call] = counts.get((thread, call), 0) + 1
            if place in match[3]:
                found.append((call, counts[thread, call]))
        return done, found


def points(calls, kinds, every_error=False):
    """All points of these calls."""
    found = []
    for index, (call, number) in enumerate(calls):
        told_apart, alike = ERRORS[call]
        if "kill" in kinds:
            found.append(Point(call, number, "kill"))
        if "fail" in kinds:
            errors = told_apart + (alike if every_error else (alike[index % len(alike)],))
            found += [Point(call, number, "fail", error) for error in errors]
        if "stuck" in kinds and call not in ("openat", "close"):
            found.append(Point(call, number, "stuck", alike[index % len(alike)]))
    return found


def thin(all_points, stride):
    """Every `stride`-th point of each kind, evenly; always the same ones."""
    kept, seen = [], {}
    for point in all_points:
        seen[point.kind] = seen.get(point.kind, 0) + 1
        if seen[point.kind] % stride == 1 or stride == 1:
            kept.append(point)
    return kept
