#include "pages/StationeryList.h"

#include "DriverLIB/TextAlgorithms.h"

namespace {

constexpr std::wstring_view kListStart = L"{";
constexpr std::wstring_view kListEnd = L"}";
constexpr size_t kMinListLength = 2;

}  // namespace

bool ReadStationeryList(WideView text, StationeryFormats& formats) {
  formats.clear();
  if (text.size() < kMinListLength || !text.starts_with(kListStart)) return false;
  for (std::wstring_view rest = text.substr(kListStart.size()); rest != kListEnd;) {
    auto format = std::make_unique<CStationeryFormat>();
    if (!format->Read(rest)) return false;
    formats.push_back(std::move(format));
  }
  return !formats.empty();
}

CUString StationeryListText(std::span<const CStationeryFormat* const> formats) {
  size_t length = kListStart.size() + kListEnd.size();
  for (const CStationeryFormat* format : formats) length += format->TextLength();
  CUString text;
  // All at once: growing would leave blocks with passwords behind.
  text.EnsureCapacity(text::CheckedLength(length, CUString::kMaxLength));
  text.Append(kListStart);
  for (const CStationeryFormat* format : formats) format->AppendTo(text);
  text.Append(kListEnd);
  return text;
}

CUString StationeryListText(const StationeryFormats& formats) {
  std::vector<const CStationeryFormat*> pointers;
  for (const auto& format : formats) pointers.push_back(format.get());
  return StationeryListText(pointers);
}
