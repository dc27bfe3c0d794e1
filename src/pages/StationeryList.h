// The user's list of stationeries as the text of StationeryInfos: "{", the entries one after the other, "}".
//
// The text holds passwords. It may not be traced, and who has a copy wipes it.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "pages/CStationeryFormat.h"

using StationeryFormats = std::vector<std::unique_ptr<CStationeryFormat>>;

// Reads the list into `formats`, whose former entries go. Reading stops at the first thing that is no entry: the
// result is then false, and the entries in front of it are there. So the empty list "{}" gives false as well.
bool ReadStationeryList(WideView text, StationeryFormats& formats);

// The text of the entries in this order.
CUString StationeryListText(std::span<const CStationeryFormat* const> formats);
CUString StationeryListText(const StationeryFormats& formats);
