// Prints what the library costs as ratios against the bare platform, measured in the same run. Whole-number goals stand
// beside the ratios; a missed one makes the exit code 1.
#include "window/Windows.h"
// behind Windows.h
#include <cstdio>
#include <string>
#include <unordered_map>
#include <variant>

#include "DriverLIB/CUStringArray.h"
#include "DriverLIB/ModuleState.h"
#include "DriverLIB/TextLists.h"
#include "Measure.h"
#include "NemPdfUI.h"
#include "pages/EmbedFilenames.h"
#include "pages/OutlineTexts.h"
#include "pages/StationeryList.h"
#include "Sheets.h"

namespace {

bool allReached = true;

void PrintRow(const char* name, const Comparison& comparison, double goal) {
  const bool reached = comparison.Ratio() <= goal;
  allReached &= reached;
  std::printf("%-62s %11.2f us %11.2f us  ratio %6.2f  goal %4.2f  %s\n", name, comparison.ours, comparison.floor,
              comparison.Ratio(), goal, reached ? "reached" : "MISSED");
}

Comparison BenchSetAndGet(int rounds) {
  constexpr int kCalls = 20000;
  NemPdfUIHandle dialog = nullptr;
  NemPdfUICreateDialog(&dialog);
  std::unordered_map<std::wstring, std::variant<int, std::wstring>> map;
  for (const wchar_t* name : {L"GraphicJpegQuality", L"GraphicResolution", L"MailSubject", L"PaperSize"}) map[name] = 0;
  int sum = 0;
  const auto ours = [&] {
    return TimeOf([&] {
             for (int32_t i = 0; i < kCalls; ++i) {
               int32_t value = 0;
               NemPdfUISetPropertyW(dialog, 0, L"GraphicJpegQuality", &i);
               NemPdfUIGetPropertyW(dialog, 0, L"GraphicJpegQuality", &value, sizeof value);
               sum += value;
             }
           }) /
           kCalls;
  };
  const auto floor = [&] {
    return TimeOf([&] {
             for (int i = 0; i < kCalls; ++i) {
               map[L"GraphicJpegQuality"] = i;
               sum += std::get<int>(map[L"GraphicJpegQuality"]);
             }
           }) /
           kCalls;
  };
  const Comparison comparison = Compare(rounds, ours, floor);
  NemPdfUIFreeDialog(&dialog);
  if (sum == 42) std::printf(" ");  // the loops have a result
  return comparison;
}

// The time of reading a list of 20000 entries against that of 10000. `entry` gives an entry by its number, `read` reads
// a text and gives the time.
template <class Entry, class Read>
Comparison BenchParsing(int rounds, Entry entry, Read read) {
  const auto list = [&](int entries) {
    std::wstring text;
    for (int i = 0; i < entries; ++i) text += entry(std::to_wstring(i));
    return text;
  };
  const std::wstring twice = list(20000), once = list(10000);
  return Compare(
      rounds, [&] { return read(twice); }, [&] { return read(once); });
}

Comparison BenchQuotedList(int rounds) {
  return BenchParsing(
      rounds, [](const std::wstring& number) { return L"\"C:\\Documents\\attachment " + number + L".pdf\";"; },
      [](const std::wstring& text) {
        CUStringArray array;
        return TimeOf([&] { SplitQuotedList(text, array, L";"); });
      });
}

Comparison BenchEmbedFilenames(int rounds) {
  return BenchParsing(
      rounds, [](const std::wstring& number) { return L"\"C:\\Documents\\attachment " + number + L".pdf\";"; },
      [](const std::wstring& text) {
        CUStringArray paths;
        return TimeOf([&] {
          ReadEmbedFilenames(text, paths);
          EmbedFilenamesText(paths);
        });
      });
}

Comparison BenchStationeryList(int rounds) {
  return BenchParsing(
      rounds,
      [](const std::wstring& number) {
        return L"{NAME:\"Paper \\\"" + number + L"\\\"\";FILE:\"C:\\\\Paper\\\\a.pdf\";P:\"x\";TYPE:\"3\"}";
      },
      [](const std::wstring& entries) {
        const std::wstring text = L"{" + entries + L"}";
        StationeryFormats formats;
        return TimeOf([&] {
          ReadStationeryList(text, formats);
          StationeryListText(formats);
        });
      });
}

Comparison BenchOutlineStyles(int rounds) {
  return BenchParsing(
      rounds, [](const std::wstring& number) { return L"Style " + number + L";2;"; },
      [](const std::wstring& text) {
        OutlineStyles styles;
        return TimeOf([&] { ReadOutlineStyles(text, styles); });
      });
}

// All formats are in use, so that each is looked for among the styles.
Comparison BenchOutlineFormats(int rounds) {
  return BenchParsing(
      rounds,
      [](const std::wstring& number) { return L"{STYLE:Style " + number + L";1;{FONT:Arial;10.5;Bold;1.2.3}};"; },
      [](const std::wstring& text) {
        CBookmarkFormatArray formats;
        OutlineStyles used;
        ReadOutlineFormats(text, used, false, formats);
        for (int i = 0; i < formats.Count(); ++i) used.names.Add(formats.GetAt(i)->styleName);
        formats.RemoveAll();
        return TimeOf([&] {
          ReadOutlineFormats(text, used, false, formats);
          COutlineWriter writer;
          for (int i = 0; i < formats.Count(); ++i) writer.Add(*formats.GetAt(i));
        });
      });
}

std::wstring FolderOfProgram() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::wstring folder(path);
  return folder.substr(0, folder.find_last_of(L'\\') + 1);
}

Comparison BenchLoading(int rounds) {
  const auto load = [](const std::wstring& path) {
    return TimeOf([&] {
      const HMODULE library = LoadLibraryW(path.c_str());
      if (!library) std::printf("cannot load %ls\n", path.c_str());
      FreeLibrary(library);
    });
  };
  const std::wstring folder = FolderOfProgram();
  return Compare(
      rounds, [&] { return load(folder + L"NemPdfUI64.dll"); }, [&] { return load(folder + L"nempdf_empty.dll"); });
}

unsigned long FileSize(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data);
  return data.nFileSizeLow;
}

}  // namespace

int wmain() {
  if (!InitModule(GetModuleHandleW(nullptr)) || !InitThreadState(GetModuleHandleW(nullptr))) return 2;
  std::printf("%-62s %14s %14s\n", "", "ours", "floor");
  PrintRow("opening the sheet / a bare sheet of the same templates", BenchOpeningSheet(21), 1.5);
  PrintRow("first show of the graphic page / a bare dialog of its template", BenchFirstShowOfGraphicPage(41), 1.5);
  PrintRow("first show of the fonts page with 1000 fonts / with 100", BenchFontsPage(11), 12.0);
  PrintRow("set and get a number by name / a hash map of variants", BenchSetAndGet(11), 1.0);
  PrintRow("loading the library / an empty one with the same imports", BenchLoading(101), 3.0);
  PrintRow("splitting 20000 quoted entries / 10000", BenchQuotedList(21), 2.3);
  PrintRow("reading and writing 20000 attachments / 10000", BenchEmbedFilenames(21), 2.3);
  PrintRow("reading and writing 20000 stationeries / 10000", BenchStationeryList(21), 2.3);
  PrintRow("reading 20000 styles in use / 10000", BenchOutlineStyles(21), 2.3);
  PrintRow("reading and writing 20000 bookmark formats / 10000", BenchOutlineFormats(21), 2.3);
  std::printf("\nNemPdfUI64.dll: %lu bytes; heap of one open sheet: %zu bytes\n",
              FileSize(FolderOfProgram() + L"NemPdfUI64.dll"), MemoryOfOpenSheet());
  return allReached ? 0 : 1;
}
