// A bookmark format as a row of the page's list, which owns it.
#pragma once

#include <utility>

#include "controls/CListCtrlBookmark.h"
#include "controls/ColourPalette.h"
#include "pages/CBookmarkFormat.h"

class BookmarkRow final : public BookmarkListEntry {
 public:
  explicit BookmarkRow(CBookmarkFormat format) : format_(std::move(format)) {}

  const CBookmarkFormat& Format() const { return format_; }
  // Takes over what the dialog of a format changes; a name that is empty stays as it is.
  void Take(const CBookmarkFormat& values) {
    const CBookmarkFormat former = std::exchange(format_, values);
    format_.used = former.used;
    format_.kind = former.kind;
    format_.styleName = former.styleName;
    format_.displayName = former.displayName;
    if (!values.displayName.IsEmpty()) SetDisplayName(values.displayName);
  }

  bool IsUsed() const override { return format_.used != 0; }
  void SetUsed(bool used) override { format_.used = used; }
  CUString DisplayName() const override { return format_.displayName; }
  void SetDisplayName(const CUString& name) override {
    format_.displayName = name;
    if (format_.kind == kBookmarkUserDefined) format_.styleName = name;
  }
  CUString StyleName() const override { return format_.styleName; }
  int Level() const override { return format_.level; }
  void SetLevel(int level) override { format_.level = level; }
  CUString KindText() const override { return format_.GetKindText(); }
  CUString FormatText() const override { return format_.GetFormatText(ColourName(format_.colour)); }
  bool CanRename() const override { return format_.kind == kBookmarkStandard || format_.kind == kBookmarkUserDefined; }
  bool CanRemove() const override { return format_.kind == kBookmarkUserDefined; }

 private:
  CBookmarkFormat format_;
};
