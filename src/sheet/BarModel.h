// What the navigation bar holds, and where each part of it stands. Window-free: lengths given at 96 dpi are scaled to
// the dpi of the last arrangement, coordinates are those of the client area.
#pragma once

#include <vector>

#include "sheet/COL2Folder.h"

// The numbers are those of the hit test.
enum class BarHit { Nothing = 0, Folder = 1, Group = 2, Entry = 4 };

// A part of the bar. What does not apply is -1.
struct BarTarget {
  BarHit hit = BarHit::Nothing;
  int folder = -1, group = -1, entry = -1;

  bool operator==(const BarTarget&) const = default;
  explicit operator bool() const { return hit != BarHit::Nothing; }
};

// The areas that belong to no element. All are empty when the bar is too narrow for anything but its ground.
struct BarLayout {
  IntRect title;     // the title's gradient
  IntRect cap;       // the gradient that ends the folder buttons at their top
  IntRect area;      // the folder area with its frame
  IntRect contents;  // the folder area inside its frame
};

// One step of the slide that opens a folder: so many rows from the top of the new picture, shown from row `top` on.
struct SlideStep {
  int top, rows;
  bool operator==(const SlideStep&) const = default;
};

class BarModel {
 public:
  static constexpr int kFixedWidth = 200;  // all at 96 dpi
  static constexpr int kStripWidth = 5;    // at the right edge; clicks there are ignored
  static constexpr int kNarrowest = 4;     // a bar of this width shows its ground only

  // --- Contents ----------------------------------------------------------------------------------------------------

  // The text of the first folder becomes the title.
  COL2Folder& AddFolder(WideView text, int commandId);
  // A folder or group of -1 is the last one. Null when there is no such folder or group. What these give is valid
  // until the next one is added.
  COL2Item* AddGroup(WideView text, int flag, int folder = -1);
  COL2SubItem* AddEntry(WideView text, BarEntryKind kind, int commandId, int folder = -1, int group = -1);

  const std::vector<COL2Folder>& Folders() const { return folders_; }
  // Null for indexes outside.
  const COL2Folder* Folder(int folder) const;
  const COL2Item* Group(int folder, int group) const;
  const COL2SubItem* Entry(int folder, int group, int entry) const;
  const COL2SubItem* Entry(const BarTarget& target) const { return Entry(target.folder, target.group, target.entry); }
  COL2SubItem* Entry(const BarTarget& target) {
    return const_cast<COL2SubItem*>(static_cast<const BarModel*>(this)->Entry(target));
  }
  // All entries of a folder, whether they can be seen or not.
  std::vector<BarTarget> EntriesOf(int folder) const;
  // The first entry that sends this command.
  BarTarget FindEntry(int commandId) const;

  // --- State -------------------------------------------------------------------------------------------------------

  int OpenFolder() const { return openFolder_; }
  // The open folder's text becomes the title. False when there is no such folder.
  bool Open(int folder);
  const CUString& Title() const { return title_; }

  // --- Layout ------------------------------------------------------------------------------------------------------

  // Gives every element its rectangle, or an empty one when it cannot be seen.
  void Arrange(int width, int height, int dpi);
  void EmptyRectangles();
  const BarLayout& Layout() const { return layout_; }
  int Scale(int pixelsAt96) const { return (pixelsAt96 * dpi_ + 48) / 96; }
  IntRect RectOf(const BarTarget& target) const;
  // The height that an entry of this group would like to have.
  int EntryHeight(const COL2Item& group) const;

  // Folders come before everything else.
  BarTarget HitTest(IntPoint point) const;
  // Clicks on this point of a bar of this width count.
  bool TakesClick(IntPoint point, int width) const;

  // What can be seen and used, from the top: the entries of the open folder, then the folder buttons.
  std::vector<BarTarget> Targets() const;

  std::vector<SlideStep> SlideSteps() const;

 private:
  int ArrangeFolders(int right, int bottom);
  void ArrangeGroups();
  void ArrangeHeader(COL2Item& group, bool isFirst, int& top) const;
  void ArrangeEntry(COL2SubItem& entry, int height, int& top) const;

  std::vector<COL2Folder> folders_;
  int openFolder_ = 0;
  CUString title_;
  int dpi_ = 96;
  BarLayout layout_;
};
