// A list box whose rows have a picture, an indent and values of their own, and may be disabled. The template gives it
// LBS_HASSTRINGS and LBS_OWNERDRAWFIXED (or LBS_OWNERDRAWVARIABLE), and the notifications of its dialog must be
// reflected.
#pragma once

#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

#include "controls/ListRowLayout.h"
#include "window/AlphaImage.h"
#include "window/CSubclassedControl.h"

// The numbers of a bitmap and its mask.
struct ListPicture {
  UINT bitmapId;
  UINT maskId;
};

class CListBoxST : public CSubclassed<CListBox> {
 public:
  // --- Rows ----------------------------------------------------------------------------------------------------------

  // Adds a row, sorted or at the end by the list's style. Gives its number, negative when it could not be added. -1
  // stands for no picture. `value` is what SetItemData would give the row.
  int AddItem(const wchar_t* text, int image = -1, int indent = 0, uint32_t value = 0);
  bool DeleteItem(int row);

  // What a row carries for its owner: a number and a pointer, which stays the owner's. The setters are false, and the
  // getters give 0 and null, when there is no such row.
  bool SetItemData(int row, uint32_t value);
  uint32_t ItemData(int row) const;
  bool SetItemPointer(int row, void* pointer);
  void* ItemPointer(int row) const;

  bool SetItemImage(int row, int image);
  int ItemImage(int row) const;  // -1 for none
  bool SetItemIndent(int row, int level);
  int ItemIndent(int row) const;

  // A disabled row is drawn grey. A row that is not there is not enabled.
  bool EnableItem(int row, bool enable);
  bool IsItemEnabled(int row) const;

  // How many rows carry more than a text.
  size_t RecordCount() const { return records_.size(); }

  // --- Look ----------------------------------------------------------------------------------------------------------

  // 0: whole rows are highlighted, 1: picture and text, 2: the text. Another mode is ignored.
  void SetHighlightMode(int mode);
  HighlightMode Highlight() const { return highlight_; }

  // The pictures of the rows, one of two kinds; the one that is set last counts. All have the size of the first.
  //
  // Pictures of the library, loaded at the list's dpi. False when one is missing: then the list has none.
  bool SetImages(std::span<const ListPicture> pictures, SecondHalf secondHalf);
  // An image list that stays the caller's and outlives this one; null for no pictures. It has no second half.
  void SetImageList(HIMAGELIST images);
  bool HasImages() const { return imageList_ || !images_.empty(); }

  // What one level of indent is worth, in pixels at 96 dpi.
  void SetIndent(int pixels);

 protected:
  void OnAttached() override { UpdateRowHeight(); }
  bool OnWindowMessage(WindowMessage& message) override;
  bool OnReflected(WindowMessage& message) override;

 private:
  static constexpr uint32_t kDisabled = 1;

  // What a row has beside its text.
  struct Record {
    uint32_t value = 0;
    void* pointer = nullptr;
    int image = -1;
    uint32_t flags = 0;
    int indent = 0;
  };
  const Record* Find(int row) const;
  template <class Change>
  bool ChangeRecord(int row, Change change);

  void SetImageSize(int width, int height);
  ListRowMeasures Measures(int indent) const;
  int RowHeight() const;
  void UpdateRowHeight() const;
  RECT ItemRect(int row) const;
  void EraseBelowRows(HDC dc) const;

  void DrawRow(HDC dc, const DRAWITEMSTRUCT& item) const;
  void DrawImage(HDC dc, const IntRect& rect, const Record& record, bool disabled, bool selected) const;
  bool ShowsFocus(UINT itemState) const;

  // The list box keeps the key of a row's record as the row's data, 0 for a row without one.
  std::unordered_map<ULONG_PTR, Record> records_;
  ULONG_PTR lastKey_ = 0;

  HighlightMode highlight_ = HighlightMode::Row;
  HIMAGELIST imageList_ = nullptr;
  std::vector<AlphaImage> images_;
  SecondHalf secondHalf_ = SecondHalf::None;
  int imageWidth_ = 0, imageHeight_ = 0;  // at the list's dpi
  int indent_ = 0;
};
