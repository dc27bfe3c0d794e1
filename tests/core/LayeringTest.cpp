// A folder includes only folders below it, and window-free units include nothing of the platform.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kSources = fs::path(NEMPDF_SOURCE_DIR) / "src";

// Twice the floor; folders of one floor do not see each other. The cockpit's page is a page of the sheet's kind and
// stands a stair above it.
const std::map<std::string, int> kFloors = {{"DriverLIB", 0}, {"environment", 2}, {"window", 2},  {"ui", 4},
                                            {"controls", 4},  {"sheet", 6},       {"cockpit", 7}, {"pages", 8}};
constexpr int kRoof = 10;

// The units of ui/ that stand on the roof.
const std::set<std::string> kRoofUnits = {"NemUI.cpp",       "NemUIDoModal.cpp",  "NemUIShowVersion.cpp",
                                          "PageCatalogue.h", "PageCatalogue.cpp", "DllMain.cpp"};

struct Include {
  fs::path from;
  std::string name;  // as it is written between the quotation marks or the angle brackets
  bool own = false;  // quotation marks
};

std::vector<Include> IncludesOf(const fs::path& unit) {
  std::vector<Include> includes;
  std::ifstream file(kSources / unit);
  for (std::string line; std::getline(file, line);) {
    if (line.rfind("#include ", 0) != 0) continue;
    const size_t begin = line.find_first_of("\"<") + 1;
    includes.push_back({unit, line.substr(begin, line.find_first_of("\">", begin) - begin), line[begin - 1] == '"'});
  }
  return includes;
}

std::vector<Include> AllIncludes() {
  std::vector<Include> includes;
  for (const auto& entry : fs::recursive_directory_iterator(kSources)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    for (const Include& include : IncludesOf(fs::relative(entry.path(), kSources)))
      if (include.own) includes.push_back(include);
  }
  return includes;
}

// The units that the build lists as window-free.
std::set<fs::path> CoreUnits() {
  std::set<fs::path> units;
  for (const auto& [folder, floor] : kFloors) {
    std::ifstream file(kSources / folder / "CMakeLists.txt");
    bool core = false;
    for (std::string word; file >> word;) {
      if (word == "CORE")
        core = true;
      else if (word == "WINDOWS" || word == ")")
        core = false;
      else if (core)
        units.insert(fs::path(folder) / word);
    }
  }
  return units;
}

// The unit and all headers of the library that it includes, directly or not.
void AddWithHeaders(const fs::path& unit, std::set<fs::path>& all) {
  if (!all.insert(unit).second) return;
  for (const Include& include : IncludesOf(unit))
    if (include.own && fs::exists(kSources / include.name)) AddWithHeaders(include.name, all);
}

int FloorOf(const fs::path& unit) {
  const std::string folder = unit.begin()->string();
  if (folder == "ui" && kRoofUnits.count(unit.filename().string())) return kRoof;
  const auto found = kFloors.find(folder);
  return found == kFloors.end() ? -1 : found->second;
}

TEST(Layering, NoFolderIncludesOneThatIsNotBelow) {
  const std::vector<Include> includes = AllIncludes();
  ASSERT_GT(includes.size(), 100u);
  for (const Include& include : includes) {
    const fs::path target(include.name);
    if (!target.has_parent_path()) continue;  // generated, or public
    const std::string folder = target.begin()->string();
    if (folder == "resources") continue;  // numbers only
    const int from = FloorOf(include.from), to = FloorOf(target);
    ASSERT_GE(to, 0) << include.from << " includes " << include.name;
    if (folder == include.from.begin()->string() && to != kRoof) continue;
    EXPECT_TRUE(to < from || (from == kRoof && to == kRoof)) << include.from << " includes " << include.name;
  }
}

TEST(Layering, WindowFreeUnitsIncludeNothingOfThePlatform) {
  const std::set<fs::path> units = CoreUnits();
  ASSERT_GT(units.size(), 20u);
  std::set<fs::path> all;
  for (const fs::path& unit : units) {
    EXPECT_TRUE(fs::exists(kSources / unit)) << unit;
    AddWithHeaders(unit, all);
  }
  ASSERT_GT(all.size(), units.size());
  for (const fs::path& unit : all)
    for (const Include& include : IncludesOf(unit))
      EXPECT_TRUE(include.name != "windows.h" && include.name != "window/Windows.h") << unit;
}

TEST(Layering, EachUnitOfTheRoofIsThere) {
  for (const std::string& unit : kRoofUnits) EXPECT_TRUE(fs::exists(kSources / "ui" / unit)) << unit;
}

TEST(Layering, NoPageIncludesAnotherOnesClass) {
  // Shared models of pages have names without the class's C.
  for (const Include& include : AllIncludes()) {
    if (include.from.begin()->string() != "pages") continue;
    const fs::path target(include.name);
    const std::string name = target.stem().string();
    if (target.begin()->string() != "pages" || name.rfind("C", 0) != 0) continue;
    std::string own = include.from.stem().string();
    std::string other = name;
    for (std::string* unit : {&own, &other})
      if (unit->rfind("CNemUI", 0) == 0) *unit = "C" + unit->substr(6);
    const bool isPage = other.size() > 4 && other.substr(other.size() - 4) == "Page";
    EXPECT_TRUE(!isPage || own == other) << include.from << " includes " << include.name;
  }
}

}  // namespace
