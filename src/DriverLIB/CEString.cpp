#include "DriverLIB/CEString.h"

#include "DriverLIB/Platform.h"
#include "DriverLIB/TextAlgorithms.h"

namespace {

bool IsSpace(char character) { return platform::IsNarrowSpace(static_cast<unsigned char>(character)); }

}  // namespace

CEString::CEString(std::string_view text) : CBasicString(text) {}
CEString::CEString(const CEString& other) = default;
CEString::CEString(CEString&& other) noexcept = default;
CEString::~CEString() = default;
CEString& CEString::operator=(const CEString& other) = default;
CEString& CEString::operator=(CEString&& other) noexcept = default;

void CEString::AssignWide(WideView text) {
  Assign({});
  if (text.empty()) return;
  const int count = text::CheckedLength(text.size(), kMaxLength);
  EnsureCapacity(count);
  SetLength(platform::WideToNarrow(text.data(), count, buffer_, count));
}

void CEString::TrimLeft() { CutLeft(text::CountLeading(View(), IsSpace)); }

void CEString::TrimRight() { CutRight(text::CountTrailing(View(), IsSpace)); }

void CEString::TrimBoth() {
  TrimRight();
  TrimLeft();
}
