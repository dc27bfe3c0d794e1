#include "driver/ResourceCounts.h"

#include <windows.h>
// behind windows.h
#include <winternl.h>

#include <vector>

namespace {

// The table of GDI objects that the system maps into each process, as Wine lays it out: there the documented
// counters of the system answer 0.
struct GdiTableEntry {
  UINT64 object;
  UINT owner;
  USHORT upper;
  BYTE extendedType;
  BYTE flags;
  UINT64 userData;
};
constexpr size_t kGdiTableSize = 0x4000;
constexpr size_t kGdiTableInProcessBlock = 0xF8;

template <typename Function>
Function* NtFunction(const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
}

int CountGdiObjects() {
  if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return static_cast<int>(count);
  PROCESS_BASIC_INFORMATION process = {};
  auto* const query = NtFunction<decltype(NtQueryInformationProcess)>("NtQueryInformationProcess");
  if (query(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof process, nullptr) != 0) return -1;
  const auto* block = reinterpret_cast<const BYTE*>(process.PebBaseAddress);
  const auto* table = *reinterpret_cast<GdiTableEntry* const*>(block + kGdiTableInProcessBlock);
  int count = 0;
  for (size_t i = 0; table && i < kGdiTableSize; ++i) count += table[i].extendedType != 0;
  return count;
}

BOOL CALLBACK CountChild(HWND, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

BOOL CALLBACK CountTopLevel(HWND window, LPARAM count) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != GetCurrentProcessId()) return TRUE;
  ++*reinterpret_cast<int*>(count);
  EnumChildWindows(window, CountChild, count);
  return TRUE;
}

int CountWindows() {
  int count = 0;
  const auto parameter = reinterpret_cast<LPARAM>(&count);
  EnumWindows(CountTopLevel, parameter);
  for (HWND window = FindWindowExW(HWND_MESSAGE, nullptr, nullptr, nullptr); window;
       window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr))
    CountTopLevel(window, parameter);
  return count;
}

struct HandleEntry {
  void* object;
  ULONG_PTR process;
  ULONG_PTR handle;
  ULONG access;
  USHORT traceIndex, typeIndex;
  ULONG attributes, reserved;
};
struct HandleTable {
  ULONG_PTR count, reserved;
  HandleEntry entries[1];
};

int CountHandles() {
  DWORD count = 0;
  if (GetProcessHandleCount(GetCurrentProcess(), &count) && count != 0) return static_cast<int>(count);

  constexpr auto kExtendedHandleInformation = static_cast<SYSTEM_INFORMATION_CLASS>(64);
  constexpr auto kTooSmall = static_cast<NTSTATUS>(0xC0000004);
  auto* const query = NtFunction<decltype(NtQuerySystemInformation)>("NtQuerySystemInformation");
  std::vector<BYTE> buffer(1 << 18);
  NTSTATUS status = kTooSmall;
  while ((status = query(kExtendedHandleInformation, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr)) ==
         kTooSmall)
    buffer.resize(buffer.size() * 2);
  if (status != 0) return -1;
  const auto* table = reinterpret_cast<const HandleTable*>(buffer.data());
  for (ULONG_PTR i = 0; i < table->count; ++i) count += table->entries[i].process == GetCurrentProcessId();
  return static_cast<int>(count);
}

size_t CountHeapBytes() {
  std::vector<HANDLE> heaps(64);
  heaps.resize(std::min<size_t>(heaps.size(), GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data())));
  size_t bytes = 0;
  for (HANDLE heap : heaps) {
    PROCESS_HEAP_ENTRY entry = {};
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
      if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    HeapUnlock(heap);
  }
  return bytes;
}

}  // namespace

ResourceCounts ResourceCounts::operator-(const ResourceCounts& other) const {
  return {gdiObjects - other.gdiObjects, windows - other.windows, handles - other.handles, heapBytes - other.heapBytes};
}

ResourceCounts Count() {
  ResourceCounts counts;
  counts.gdiObjects = CountGdiObjects();
  counts.windows = CountWindows();
  counts.handles = CountHandles();
  counts.heapBytes = CountHeapBytes();
  return counts;
}

std::string Describe(const ResourceCounts& counts) {
  return std::to_string(counts.gdiObjects) + " GDI objects, " + std::to_string(counts.windows) + " windows, " +
         std::to_string(counts.handles) + " handles, " + std::to_string(static_cast<ptrdiff_t>(counts.heapBytes)) +
         " heap bytes";
}
