// The base of all settings pages. Two exchanges move a page's values, and they must not be confused: UpdateData moves
// them between the page's members and its controls, UpdateDataSuper between the members and the properties of the
// sheet. A page that was never shown has no window, and its properties keep the host's values.
#pragma once

#include <initializer_list>

#include "controls/CMyHyperLink.h"
#include "DriverLIB/CUString.h"
#include "sheet/PageDescription.h"
#include "window/CPropertyPage.h"

// A link or another control of a page asks for help on the control with the id in the first argument. It is sent to
// the page alone: to a sheet the same number means something else.
constexpr UINT kShowHelpForControlMessage = 0x465;

class CNemUIPage : public CPropertyPage {
 public:
  explicit CNemUIPage(const PageDescription& description);

  // Moves the properties into the members (once in the page's life) or, saving, the members into the properties. No
  // exception leaves it: one is traced and told the user.
  virtual bool UpdateDataSuper(bool save);
  virtual CUString GetHelpFilename() = 0;
  virtual CUString GetMsgBoxTitle() = 0;
  virtual int GetPageId() const { return description_.pageId; }
  virtual bool ActivatePage(int) { return false; }
  virtual CNemUIPage* FindPage(int) { return nullptr; }
  // The tab that the page is one of; it outlives the page.
  void SetHost(CNemUIPage& host) { host_ = &host; }
  virtual LRESULT ShowHelpForControl(WPARAM controlId, LPARAM);
  virtual bool ExchangeProperties(CDataExchange& exchange) = 0;

  // The property exchange of a settings page. Reading does nothing after the first time; writing may run several times
  // during one OK and gives the same result each time.
  virtual void ReadProperties() {}
  virtual void WriteProperties() {}

  bool OnSetActive() override;
  // Both bring the controls into the members first. No exception of that leaves them either.
  bool OnKillActive() override;
  bool OnApply() override;
  bool OnHelpInfo(const HELPINFO& help) override;

  const CUString& Title() const { return title_; }
  const PageDescription& Description() const { return description_; }
  bool IsLoaded() const { return loaded_; }
  bool IsInitialized() const { return initialized_; }

  // The page serves the sister product, which makes TIFF files. Nothing in this library sets it.
  bool tiffVariant = false;

 protected:
  BOOL OnInitDialog() override;
  bool OnWindowMessage(WindowMessage& message) override;
  const wchar_t* TabCaption() const override { return title_.Text(); }
  UINT TabIconId() const override { return description_.iconId; }
  // What can happen to the page beside its life: looked up before anything else. The table is constant.
  virtual MessageTable Messages() const { return {}; }
  // The link that opens the help on the page; 0 when there is none.
  virtual int HelpLinkId() const { return 0; }
  // Key of the help topic for controls without one of their own.
  virtual DWORD ContextHelpId() const { return description_.templateId; }
  void SetLoaded() { loaded_ = true; }
  // Null for a page that stands alone.
  CNemUIPage* Host() const { return host_; }
  // Enables or disables each control of the page.
  void EnableAll(bool enable) const;
  // Disables what an administrator has fixed: the last step of each rule about what is enabled.
  void Lock(bool fixed, std::initializer_list<int> controls) const;

 private:
  bool SaveControls();

  const PageDescription description_;
  const CUString title_;
  CNemUIPage* host_ = nullptr;
  CMyHyperLink helpLink_;
  bool loaded_ = false;
  bool initialized_ = false;
  bool shownBefore_ = false;
};
