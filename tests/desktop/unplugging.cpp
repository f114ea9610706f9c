// Preloaded into a headless compositor: lets a test unplug an output and plug it in again under its old name, as a
// cable does. The command "output NAME subpixel vbgr" takes an output away, and the next one that is created gets its
// name.

#include <dlfcn.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <set>
#include <string>
#include <vector>

struct wlr_output;
struct wl_display;
struct wl_event_loop;
struct wl_event_source;

namespace {

// WL_OUTPUT_SUBPIXEL_VERTICAL_BGR, which no test needs for what it means.
constexpr int kUnplug = 5;

struct Outputs {
  std::map<wlr_output*, std::string> names;
  // The names that are free, and the outputs that were given one of them.
  std::vector<std::string> unplugged;
  std::set<wlr_output*> returned;
  wl_event_loop* loop = nullptr;
};

Outputs& All() {
  static Outputs outputs;
  return outputs;
}

template <typename Routine>
Routine* Next(const char* name) {
  return reinterpret_cast<Routine*>(dlsym(RTLD_NEXT, name));
}

// The compositor is still at work on the output when it is asked for this, so that it goes between two events.
void Unplug(void* output) {
  auto* gone = static_cast<wlr_output*>(output);
  All().unplugged.push_back(All().names[gone]);
  All().names.erase(gone);
  All().returned.erase(gone);
  Next<void(wlr_output*)>("wlr_output_destroy")(gone);
}

}  // namespace

extern "C" {

wl_event_loop* wl_display_get_event_loop(wl_display* display) {
  return All().loop = Next<wl_event_loop*(wl_display*)>("wl_display_get_event_loop")(display);
}

// The library names an output first and the compositor after it.
void wlr_output_set_name(wlr_output* output, const char* name) {
  Outputs& all = All();
  std::string& given = all.names[output];
  if (given.empty() && !all.unplugged.empty()) {
    given = all.unplugged.back();
    all.unplugged.pop_back();
    all.returned.insert(output);
  }
  if (all.returned.count(output) == 0) given = name;
  Next<void(wlr_output*, const char*)>("wlr_output_set_name")(output, given.c_str());
}

void wlr_output_set_subpixel(wlr_output* output, int subpixel) {
  if (subpixel == kUnplug && All().loop != nullptr) {
    Next<wl_event_source*(wl_event_loop*, void (*)(void*), void*)>("wl_event_loop_add_idle")(All().loop, Unplug,
                                                                                             output);
  } else {
    Next<void(wlr_output*, int)>("wlr_output_set_subpixel")(output, subpixel);
  }
}

// The compositor doesn't run as one who could become root again; in a container there may be nobody else.
int setuid(uid_t) {
  errno = EPERM;
  return -1;
}

int setgid(gid_t) {
  errno = EPERM;
  return -1;
}
}
