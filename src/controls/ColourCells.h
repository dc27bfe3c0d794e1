// The cells of a colour popup, and the way of the keyboard through them. In their order stand the default cell, the
// colours of the palette in rows of eight, and the custom cell; the first and the last are there if they have a text.
#pragma once

#include <cstdint>

#include "controls/ColourPalette.h"

// A cell of a colour has the number of its row in the palette. The others:
constexpr int kNoCell = -1;
constexpr int kCustomCell = -2;   // leads to the system's dialog for colours
constexpr int kDefaultCell = -3;  // no colour

constexpr int kColourColumns = 8;
constexpr int kColourRows = (kPaletteSize + kColourColumns - 1) / kColourColumns;

constexpr bool IsColourCell(int cell) { return cell >= 0 && cell < kPaletteSize; }

// A number past the colours counts as the custom cell.
constexpr int NormalizedCell(int cell) { return cell >= kPaletteSize ? kCustomCell : cell; }

// How far an arrow key leads, in cells.
enum class CellStep { Up = -kColourColumns, Left = -1, Right = 1, Down = kColourColumns };

struct ColourCells {
  bool hasDefault = false;
  bool hasCustom = false;

  // The cell that stands for a colour: its own, else the custom cell, else none.
  int CellOf(uint32_t colour) const;

  // Where an arrow key leads. The way goes round: past the last colour to the custom cell or whatever of default cell
  // and first colour there is, and back the same way.
  int Next(int cell, CellStep step) const;

  // The cells counted from 1 in their order, for screen readers. 0 for a cell that is not there.
  int Count() const { return kPaletteSize + hasDefault + hasCustom; }
  int PositionOf(int cell) const;
  int CellAtPosition(int position) const;  // `position` is from 1 to Count()

 private:
  int Forward(int cell, int distance) const;
  int Backward(int cell, int distance) const;
};
