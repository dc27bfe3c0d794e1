// A link on a page, with a sheet around it.
#pragma once

#include <memory>

#include "ControlDialog.h"
#include "controls/CMyHyperLink.h"
#include "PlatformSpy.h"

constexpr int kLinkId = 1144;
constexpr int kLinkWidth = 180, kLinkHeight = 20;
constexpr COLORREF kHover = 0x0000FF, kLink = 0xFF0000, kVisited = 0x8F2205;

class LinkPage {
 public:
  explicit LinkPage(ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight, DWORD style = 0,
                    const wchar_t* text = L"Help: What is this?",
                    ControlDialog::Kind kind = ControlDialog::Kind::Themed)
      : page(layout, outer.Handle()) {
    openedAddresses.clear();
    whileOpening = nullptr;
    page.ground = kMarkedGround;
    control = page.Add(L"STATIC", text, SS_LEFT | WS_TABSTOP | style, kLinkId,
                       {10, 10, 10 + kLinkWidth, 10 + kLinkHeight}, kind);
    link = std::make_unique<CMyHyperLink>();
    Attach();
  }
  ~LinkPage() { ::ReleaseCapture(); }

  void Attach() const { EXPECT_TRUE(link->Attach(page, kLinkId)); }
  void MarkVisited() {
    link = std::make_unique<CMyHyperLink>(true);
    Attach();
  }
  void MoveMouse(int x, int y) const { control.Send(WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }
  void Click(int x = 5, int y = 5) const {
    MoveMouse(x, y);
    control.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    control.Send(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
  }
  bool HasCapture() const { return ::GetCapture() == control.Handle(); }
  // The text's colour, as the control asks for it when it paints.
  COLORREF Color() const {
    const WindowDC dc(control.Handle());
    const LRESULT brush = page.Send(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(static_cast<HDC>(dc)),
                                    reinterpret_cast<LPARAM>(control.Handle()));
    EXPECT_EQ(::GetStockObject(HOLLOW_BRUSH), reinterpret_cast<HGDIOBJ>(brush));
    EXPECT_EQ(TRANSPARENT, ::GetBkMode(dc));
    return ::GetTextColor(dc);
  }

  ControlDialog outer;  // as a sheet around the page
  ControlDialog page;
  CWnd control;
  std::unique_ptr<CMyHyperLink> link;
};
