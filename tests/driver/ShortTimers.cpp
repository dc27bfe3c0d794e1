#include "driver/ShortTimers.h"

#include <map>
#include <mutex>
#include <utility>

#include "driver/ImportPatch.h"

namespace {

using TimerKey = std::pair<HWND, UINT_PTR>;

std::mutex mutex;
std::map<TimerKey, UINT> shortTimers;  // key: window and id, value: milliseconds

auto* const realSetTimer = RealFunction("user32.dll", "SetTimer", &SetTimer);
auto* const realKillTimer = RealFunction("user32.dll", "KillTimer", &KillTimer);

UINT_PTR WINAPI NotedSetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
  const UINT_PTR result = realSetTimer(window, id, milliseconds, procedure);
  if (window && result) {
    std::scoped_lock lock(mutex);
    if (milliseconds <= kShortTimer)
      shortTimers[{window, id}] = milliseconds;
    else
      shortTimers.erase({window, id});
  }
  return result;
}

BOOL WINAPI NotedKillTimer(HWND window, UINT_PTR id) {
  {
    std::scoped_lock lock(mutex);
    shortTimers.erase({window, id});
  }
  return realKillTimer(window, id);
}

}  // namespace

void WatchShortTimers() {
  PatchImport("user32.dll", "SetTimer", reinterpret_cast<void*>(&NotedSetTimer));
  PatchImport("user32.dll", "KillTimer", reinterpret_cast<void*>(&NotedKillTimer));
}

bool ShortTimerRuns(std::string* description) {
  std::scoped_lock lock(mutex);
  std::erase_if(shortTimers, [](const auto& timer) { return !IsWindow(timer.first.first); });
  for (const auto& [key, milliseconds] : shortTimers) {
    if (GetWindowThreadProcessId(key.first, nullptr) != GetCurrentThreadId()) continue;
    if (description)
      *description = "timer " + std::to_string(key.second) + " of " + std::to_string(milliseconds) + " ms";
    return true;
  }
  return false;
}

UINT_PTR SetUnseenTimer(HWND window, UINT_PTR id, UINT milliseconds) {
  return realSetTimer(window, id, milliseconds, nullptr);
}

void KillUnseenTimer(HWND window, UINT_PTR id) { realKillTimer(window, id); }
