// A stationery as a row of the page's list. The row owns it; the dialog of its properties only watches it, since a row
// can go under the dialog.
#pragma once

#include <memory>
#include <utility>

#include "controls/CListCtrlStationery.h"
#include "pages/CStationeryFormat.h"

class StationeryRow final : public StationeryListEntry {
 public:
  explicit StationeryRow(std::shared_ptr<CStationeryFormat> format) : format_(std::move(format)) {}
  CUString Name() const override { return format_->GetName(); }
  CUString File() const override { return format_->GetFile(); }
  const std::shared_ptr<CStationeryFormat>& Format() const { return format_; }

 private:
  const std::shared_ptr<CStationeryFormat> format_;
};
