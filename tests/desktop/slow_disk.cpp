#include "slow_disk.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <mutex>

namespace pawnfield {

namespace {

struct Disk {
  std::mutex guard;
  std::vector<std::string> folders;
  std::vector<std::string> accesses;
  int milliseconds = 0;
};

// What stands in for the C library's calls has no other place to keep anything.
Disk& TheDisk() {
  static Disk disk;
  return disk;
}

void Access(const char* path) {
  if (path == nullptr) return;
  Disk& disk = TheDisk();
  int wait = 0;
  {
    const std::lock_guard lock(disk.guard);
    const std::string asked(path);
    for (const std::string& folder : disk.folders) {
      if (!asked.starts_with(folder)) continue;
      wait = disk.milliseconds;
      if (gettid() == getpid()) disk.accesses.push_back(asked);
      break;
    }
  }
  if (wait > 0) usleep(static_cast<useconds_t>(wait) * 1000);
}

template <typename Call>
Call Next(const char* name) {
  return reinterpret_cast<Call>(dlsym(RTLD_NEXT, name));
}

}  // namespace

void SlowDown(const std::vector<std::string>& folders, int milliseconds) {
  Disk& disk = TheDisk();
  const std::lock_guard lock(disk.guard);
  disk.folders = folders;
  disk.accesses.clear();
  disk.milliseconds = milliseconds;
}

std::vector<std::string> MainThreadAccesses() {
  Disk& disk = TheDisk();
  const std::lock_guard lock(disk.guard);
  return disk.accesses;
}

}  // namespace pawnfield

extern "C" {

int open(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = va_arg(more, mode_t);
  va_end(more);
  pawnfield::Access(path);
  return pawnfield::Next<int (*)(const char*, int, mode_t)>("open")(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = va_arg(more, mode_t);
  va_end(more);
  pawnfield::Access(path);
  return pawnfield::Next<int (*)(const char*, int, mode_t)>("open64")(path, flags, mode);
}

int statx(int folder, const char* __restrict path, int flags, unsigned mask, struct statx* __restrict out) noexcept {
  pawnfield::Access(path);
  return pawnfield::Next<int (*)(int, const char*, int, unsigned, struct statx*)>("statx")(folder, path, flags, mask,
                                                                                           out);
}

int access(const char* path, int mode) noexcept {
  pawnfield::Access(path);
  return pawnfield::Next<int (*)(const char*, int)>("access")(path, mode);
}

int stat(const char* __restrict path, struct stat* __restrict out) noexcept {
  pawnfield::Access(path);
  return pawnfield::Next<int (*)(const char*, struct stat*)>("stat")(path, out);
}

int stat64(const char* __restrict path, struct stat64* __restrict out) noexcept {
  pawnfield::Access(path);
  return pawnfield::Next<int (*)(const char*, struct stat64*)>("stat64")(path, out);
}

DIR* opendir(const char* path) {
  pawnfield::Access(path);
  return pawnfield::Next<DIR* (*)(const char*)>("opendir")(path);
}
}
