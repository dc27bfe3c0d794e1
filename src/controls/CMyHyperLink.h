// A static text that acts as a link: it opens an address, or tells its parent. It can be reached by Tab (give it
// WS_TABSTOP in the template) and followed by Enter and Space.
//
// The control shows a font that the link owns, and is given its own back only at the link's end. So a link stays with
// its control until one of them ends; it takes no other one before, and no other link takes the control.
#pragma once

#include "controls/LinkColors.h"
#include "window/CAccessibleControl.h"
#include "window/Gdi.h"

// Sent to the parent; the first argument is the link's control id. Pages answer it by opening the help. It goes to the
// parent only: to a property sheet the same number means another thing.
constexpr UINT kLinkClickedMessage = 0x465;

class CMyHyperLink : public CAccessibleControl<CStatic> {
 public:
  explicit CMyHyperLink(bool markVisited = false) : markVisited_(markVisited) {}
  ~CMyHyperLink() override;

  // The address to open.
  void SetUrl(const wchar_t* url) { url_ = url; }
  // A click sends the parent kLinkClickedMessage with the control's id instead of opening an address.
  void SetNotifyParent(bool notify) { notifyParent_ = notify; }
  // Pages ask for the line together with the above. Neither of these two does anything: links are underlined in any
  // case, and have no tool tip.
  void SetUnderline(bool underline) { underline_ = underline; }
  void SetToolTip(const wchar_t*) {}

  // What a click does. It may end the link, and its object.
  void Follow();

 protected:
  void OnAttached() override;
  bool OnWindowMessage(WindowMessage& message) override;
  bool OnReflected(WindowMessage& message) override;

 private:
  COLORREF Color() const;
  void Draw(HDC dc);
  void SetLinkFont(WindowMessage& message);

  bool IsOver(LPARAM point) const;
  void OnMouseMove(LPARAM point);
  void OnMouseGone();
  void SetHover(bool hover);

  CUString PartName(int) const override;
  int PartRole(int) const override;
  int PartState(int) const override;
  CUString PartValue(int) const override;
  CUString PartAction(int) const override;
  bool HasPartAction(int) const override { return true; }
  void DoPartAction(int) override { Follow(); }

  CUString url_;
  GdiFont linkFont_;
  HFONT baseFont_ = nullptr;  // the control's own, without the line
  HCURSOR cursor_ = nullptr;
  bool notifyParent_ = false;
  bool underline_ = false;
  bool hover_ = false;
  bool visited_ = false;
  const bool markVisited_;
};
