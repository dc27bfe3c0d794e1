#include "sheet/BarModel.h"

#include <algorithm>

namespace {

// At 96 dpi.
constexpr int kTitleHeight = 35;
constexpr int kTitleGap = 4;     // below the title's gradient
constexpr int kRightMargin = 4;  // right of everything below the title
constexpr int kFolderHeight = 24;
constexpr int kCapHeight = 3;
constexpr int kFrame = 1;
constexpr int kHeaderGap = 7;  // above a header
constexpr int kHeaderHeight = 18;
constexpr int kFirstGap = 2;  // in place of the first group's line
constexpr int kLineGapAbove = 2;
constexpr int kLineHeight = 1;
constexpr int kLineGapBelow = 4;
constexpr int kEntryHeight = 15;
constexpr int kEntryExtra = 6;  // in a group without flag
constexpr int kSlideStart = 10;
constexpr int kSlideParts = 8;

bool IsEmpty(const IntRect& rect) { return rect.Width() <= 0 || rect.Height() <= 0; }

bool Contains(const IntRect& rect, IntPoint point) {
  return rect.left <= point.x && point.x < rect.right && rect.top <= point.y && point.y < rect.bottom;
}

template <class Array>
auto At(Array& array, int index) -> decltype(array.data()) {
  return index >= 0 && index < static_cast<int>(array.size()) ? &array[static_cast<size_t>(index)] : nullptr;
}

// -1 stands for the last one.
template <class Array>
auto AtOrLast(Array& array, int index) -> decltype(array.data()) {
  return At(array, index == -1 ? static_cast<int>(array.size()) - 1 : index);
}

}  // namespace

// --- Contents ------------------------------------------------------------------------------------------------------

COL2Folder& BarModel::AddFolder(WideView text, int commandId) {
  COL2Folder& folder = folders_.emplace_back();
  folder.text = text;
  folder.commandId = commandId;
  if (folders_.size() == 1) title_ = text;
  return folder;
}

COL2Item* BarModel::AddGroup(WideView text, int flag, int folder) {
  COL2Folder* parent = AtOrLast(folders_, folder);
  if (!parent) return nullptr;
  COL2Item& group = parent->groups.emplace_back();
  group.text = text;
  group.flag = flag;
  return &group;
}

COL2SubItem* BarModel::AddEntry(WideView text, BarEntryKind kind, int commandId, int folder, int group) {
  COL2Folder* parent = AtOrLast(folders_, folder);
  COL2Item* item = parent ? AtOrLast(parent->groups, group) : nullptr;
  if (!item) return nullptr;
  COL2SubItem& entry = item->entries.emplace_back();
  entry.text = text;
  entry.kind = kind;
  entry.commandId = commandId;
  return &entry;
}

const COL2Folder* BarModel::Folder(int folder) const { return At(folders_, folder); }

const COL2Item* BarModel::Group(int folder, int group) const {
  const COL2Folder* parent = Folder(folder);
  return parent ? At(parent->groups, group) : nullptr;
}

const COL2SubItem* BarModel::Entry(int folder, int group, int entry) const {
  const COL2Item* parent = Group(folder, group);
  return parent ? At(parent->entries, entry) : nullptr;
}

std::vector<BarTarget> BarModel::EntriesOf(int folder) const {
  std::vector<BarTarget> targets;
  const COL2Folder* parent = Folder(folder);
  if (!parent) return targets;
  for (size_t g = 0; g < parent->groups.size(); ++g)
    for (size_t e = 0; e < parent->groups[g].entries.size(); ++e)
      targets.push_back({BarHit::Entry, folder, static_cast<int>(g), static_cast<int>(e)});
  return targets;
}

BarTarget BarModel::FindEntry(int commandId) const {
  for (size_t f = 0; f < folders_.size(); ++f)
    for (const BarTarget& target : EntriesOf(static_cast<int>(f)))
      if (Entry(target)->HasCommand() && Entry(target)->commandId == commandId) return target;
  return {};
}

bool BarModel::Open(int folder) {
  const COL2Folder* opened = Folder(folder);
  if (!opened) return false;
  openFolder_ = folder;
  title_ = opened->text;
  return true;
}

// --- Layout --------------------------------------------------------------------------------------------------------

void BarModel::EmptyRectangles() {
  layout_ = {};
  for (COL2Folder& folder : folders_) {
    folder.rect = {};
    for (COL2Item& group : folder.groups) {
      group.rect = {};
      for (COL2SubItem& entry : group.entries) entry.rect = {};
    }
  }
}

void BarModel::Arrange(int width, int height, int dpi) {
  dpi_ = dpi;
  EmptyRectangles();
  if (width <= Scale(kNarrowest)) return;
  const int titleBottom = Scale(kTitleHeight), right = width - Scale(kRightMargin), frame = Scale(kFrame);
  layout_.title = {0, 0, width - Scale(kStripWidth), titleBottom - Scale(kTitleGap)};
  const int areaBottom = ArrangeFolders(right, height);
  if (areaBottom <= titleBottom) return;
  layout_.area = {0, titleBottom, right, areaBottom};
  layout_.contents = {frame, titleBottom + frame, right - frame, areaBottom - frame};
  ArrangeGroups();
}

// Stacks the buttons up from the bottom, as long as they fit under the title. Gives the bottom of what remains.
int BarModel::ArrangeFolders(int right, int bottom) {
  const int ceiling = Scale(kTitleHeight), height = Scale(kFolderHeight);
  const int floor = bottom;
  for (auto folder = folders_.rbegin(); folder != folders_.rend() && bottom - height >= ceiling; ++folder) {
    folder->rect = {0, bottom - height, right, bottom};
    bottom -= height;
  }
  const int capTop = bottom - Scale(kCapHeight);
  if (bottom == floor || capTop < ceiling) return bottom;
  layout_.cap = {0, capTop, right, bottom};
  return capTop;
}

void BarModel::ArrangeGroups() {
  COL2Folder* folder = At(folders_, openFolder_);
  if (!folder) return;
  int top = layout_.contents.top;
  for (COL2Item& group : folder->groups) {
    ArrangeHeader(group, &group == &folder->groups.front(), top);
    for (COL2SubItem& entry : group.entries) ArrangeEntry(entry, EntryHeight(group), top);
  }
}

void BarModel::ArrangeHeader(COL2Item& group, bool isFirst, int& top) const {
  const bool isLine = group.text.IsEmpty();
  const IntRect& contents = layout_.contents;
  if (isLine && isFirst) {
    top += Scale(kFirstGap);
    return;
  }
  if (isLine)
    top += Scale(kLineGapAbove);
  else if (!isFirst)
    top += Scale(kHeaderGap);
  const int height = Scale(isLine ? kLineHeight : kHeaderHeight);
  if (top < contents.bottom) group.rect = {contents.left, top, contents.right, std::min(top + height, contents.bottom)};
  top += height;
  if (isLine) top += Scale(kLineGapBelow);
}

int BarModel::EntryHeight(const COL2Item& group) const {
  return Scale(group.flag == 0 ? kEntryHeight + kEntryExtra : kEntryHeight);
}

void BarModel::ArrangeEntry(COL2SubItem& entry, int height, int& top) const {
  const IntRect& contents = layout_.contents;
  if (top >= contents.bottom) return;
  if (entry.window)
    height =
        entry.commandId == COL2SubItem::kRemainingHeight ? contents.bottom - top : Scale(std::max(entry.commandId, 0));
  entry.rect = {contents.left, top, contents.right, std::min(top + height, contents.bottom)};
  top += height;
}

IntRect BarModel::RectOf(const BarTarget& target) const {
  const auto rectOf = [](const auto* part) { return part ? part->rect : IntRect(); };
  switch (target.hit) {
    case BarHit::Folder:
      return rectOf(Folder(target.folder));
    case BarHit::Group:
      return rectOf(Group(target.folder, target.group));
    case BarHit::Entry:
      return rectOf(Entry(target));
    default:
      return {};
  }
}

// --- Use -----------------------------------------------------------------------------------------------------------

BarTarget BarModel::HitTest(IntPoint point) const {
  for (size_t f = 0; f < folders_.size(); ++f)
    if (Contains(folders_[f].rect, point)) return {BarHit::Folder, static_cast<int>(f)};
  for (const BarTarget& target : EntriesOf(openFolder_))
    if (Contains(Entry(target)->rect, point)) return target;
  if (const COL2Folder* folder = Folder(openFolder_))
    for (size_t g = 0; g < folder->groups.size(); ++g)
      if (Contains(folder->groups[g].rect, point)) return {BarHit::Group, openFolder_, static_cast<int>(g)};
  return {};
}

bool BarModel::TakesClick(IntPoint point, int width) const {
  return width > Scale(kNarrowest) && point.x < width - Scale(kStripWidth);
}

std::vector<BarTarget> BarModel::Targets() const {
  std::vector<BarTarget> targets = EntriesOf(openFolder_);
  std::erase_if(targets, [this](const BarTarget& target) { return IsEmpty(Entry(target)->rect); });
  for (size_t f = 0; f < folders_.size(); ++f)
    if (!IsEmpty(folders_[f].rect)) targets.push_back({BarHit::Folder, static_cast<int>(f)});
  return targets;
}

std::vector<SlideStep> BarModel::SlideSteps() const {
  std::vector<SlideStep> steps;
  const int bottom = layout_.area.bottom, step = bottom / kSlideParts;
  int rows = Scale(kSlideStart);
  for (int top = bottom - rows; top > 0 && step > 0; top -= step, rows += step) steps.push_back({top, rows});
  return steps;
}
