// A static text that acts as a link: it opens an address, or tells its parent. It can be reached by Tab (give it
// WS_TABSTOP in the template) and followed by Enter and Space.
#pragma once

#include "window/CSubclassedControl.h"
#include "window/Gdi.h"

class CMyHyperLink : public CSubclassed<CStatic> {
 public:
  explicit CMyHyperLink(bool markVisited = false) : markVisited_(markVisited) {}

  // The address to open.
  void SetUrl(const wchar_t* url) { url_ = url; }
  // A click sends the parent kLinkClickedMessage with the control's id instead of opening an address.
  void SetNotifyParent(bool notify) { notifyParent_ = notify; }
  // Set by pages together with the above; links are underlined in any case.
  void SetUnderline(bool underline) { underline_ = underline; }
  // Links have no tool tip.
  void SetToolTip(const wchar_t*) {}

  // What a click does.
  void Follow();

 protected:
  void OnAttached() override;
  bool OnWindowMessage(WindowMessage& message) override;
  bool OnReflected(WindowMessage& message) override;

 private:
  COLORREF CurrentColor() const;
  void OnMouseMove(POINT point);
  void SetHover(bool hover);
  void DrawFocus() const;
  bool IsFollowKey(const MSG* key) const;

  CUString url_;
  GdiFont linkFont_;
  bool notifyParent_ = false;
  bool underline_ = false;
  bool hover_ = false;
  bool visited_ = false;
  const bool markVisited_;
};

// Sent to the parent; the first argument is the link's control id. Pages answer it by opening the help.
constexpr UINT kLinkClickedMessage = 0x465;
