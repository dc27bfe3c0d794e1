#include "pages/CFontListBox.h"

// behind Windows.h
#include <oleacc.h>

#include "controls/LabelText.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "Pictures.h"

namespace {

constexpr ListPicture ToListPicture(PictureNumbers picture) {
  return {static_cast<UINT>(picture.bitmap), static_cast<UINT>(picture.mask)};
}

// By FontPermission: for the list as it is, then for a disabled one.
constexpr ListPicture kFontPictures[] = {
    ToListPicture(Pictures::kFont),
    ToListPicture(Pictures::kFontDevice),
    ToListPicture(Pictures::kFontRestricted),
    ToListPicture(Pictures::kFontBitmap),
    ToListPicture(Pictures::kFontPreview),
    ToListPicture(Pictures::kFontDisabled),
    ToListPicture(Pictures::kFontDeviceDisabled),
    ToListPicture(Pictures::kFontRestrictedDisabled),
    ToListPicture(Pictures::kFontBitmapDisabled),
    ToListPicture(Pictures::kFontPreviewDisabled),
};

// What the pictures say, by FontPermission, with the font's name in it; 0 for the name alone.
constexpr uint32_t kNames[] = {0, MSG_FONTS_NAME_DEVICE, MSG_FONTS_NAME_RESTRICTED, MSG_FONTS_NAME_BITMAP,
                               MSG_FONTS_NAME_PREVIEW};

}  // namespace

bool CFontListBox::LoadPictures() { return SetImages(kFontPictures, SecondHalf::Disabled); }

int CFontListBox::AddFont(const wchar_t* name, FontPermission permission, int font) {
  constexpr int kNoIndent = 0;
  return AddItem(name, static_cast<int>(permission), kNoIndent, static_cast<uint32_t>(font));
}

std::vector<int> CFontListBox::SelectedRows() const {
  const auto count = Send(LB_GETSELCOUNT);
  std::vector<int> rows(count > 0 ? static_cast<size_t>(count) : 0);
  if (!rows.empty()) Send(LB_GETSELITEMS, rows.size(), reinterpret_cast<LPARAM>(rows.data()));
  return rows;
}

bool CFontListBox::OnWindowMessage(WindowMessage& message) {
  return accessibility_.OnMessage(*this, message) || CListBoxST::OnWindowMessage(message);
}

// --- Screen readers -------------------------------------------------------------------------------------------------

CUString CFontListBox::PartName(int part) const {
  if (part == kSelf) return LabelBefore(*this);
  const CUString name = RowText(part - 1);
  const auto permission = static_cast<size_t>(PermissionIn(part - 1));
  const uint32_t id = permission < std::size(kNames) ? kNames[permission] : 0;
  return id ? MessageText(id, name) : name;
}

int CFontListBox::PartRole(int part) const { return part == kSelf ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM; }

int CFontListBox::PartState(int part) const {
  if (part == kSelf) return STATE_SYSTEM_MULTISELECTABLE | STATE_SYSTEM_EXTSELECTABLE;
  int state = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
  if (!IsEnabled()) state = STATE_SYSTEM_UNAVAILABLE;
  if (Send(LB_GETSEL, static_cast<WPARAM>(part - 1)) > 0) state |= STATE_SYSTEM_SELECTED;
  const RECT row = PartRect(part), client = ClientRect();
  if (row.bottom <= client.top || row.top >= client.bottom) state |= STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE;
  return state;
}

RECT CFontListBox::PartRect(int part) const {
  RECT rect{};
  Send(LB_GETITEMRECT, static_cast<WPARAM>(part - 1), reinterpret_cast<LPARAM>(&rect));
  return rect;
}

int CFontListBox::FocusedPart() const { return Count() > 0 ? static_cast<int>(Send(LB_GETCARETINDEX)) + 1 : kSelf; }

void CFontListBox::FocusPart(int part) { Send(LB_SETCARETINDEX, static_cast<WPARAM>(part - 1)); }
