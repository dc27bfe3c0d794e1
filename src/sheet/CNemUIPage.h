// The base of all settings pages. Two exchanges move a page's values, and they must not be confused: UpdateData moves
// them between the page's members and its controls, UpdateDataSuper between the members and the properties of the
// sheet. A page that was never shown has no window, and its properties keep the host's values.
#pragma once

#include <initializer_list>
#include <span>

#include "controls/CMyHyperLink.h"
#include "DriverLIB/MessageText.h"
#include "sheet/PageDescription.h"
#include "window/Controls.h"
#include "window/CPropertyPage.h"

// A link or another control of a page asks for help on the control with the id in the first argument. It is sent to
// the page alone: to a sheet the same number means something else.
constexpr UINT kShowHelpForControlMessage = kLinkClickedMessage;

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
  // Both bring the controls into the members first. No exception of that leaves them either, and nobody is kept on the
  // page without a word: a failure that has shown no box yet gets one here.
  bool OnKillActive() override;
  bool OnApply() override;
  bool OnHelpInfo(const HELPINFO& help) override;

  const CUString& Title() const { return title_; }
  const PageDescription& Description() const { return description_; }
  bool IsLoaded() const { return loaded_; }
  bool IsInitialized() const { return initialized_; }

  // The page serves the sister product, which makes TIFF files. Nothing in this library sets it.
  bool tiffVariant = false;
  // The page stands for the basic settings, not for those of a document. A page that has a placeholder on the tab of
  // the document keeps to it as well: what it holds cannot be set there.
  bool globalTab = true;

  // A number that has not been read from its property yet.
  static constexpr uint16_t kNotRead = 0xFFFF;

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
  bool IsChecked(int id) const { return CButton(Item(id)).IsChecked(); }
  // Nothing stands in an edit that the user sees and can fill.
  bool IsMissing(int edit) const;
  // Enables or disables each control of the page.
  void EnableAll(bool enable) const;
  void EnableControls(std::span<const int> controls, bool enable) const;
  void EnableControls(std::initializer_list<int> controls, bool enable) const {
    EnableControls(std::span(controls.begin(), controls.size()), enable);
  }
  void ShowControls(std::span<const int> controls, bool show) const;
  void ShowControls(std::initializer_list<int> controls, bool show) const {
    ShowControls(std::span(controls.begin(), controls.size()), show);
  }
  // Disables the controls where the condition holds, above all where an administrator has fixed what they set: the last
  // step of each rule about what is enabled.
  void Lock(bool fixed, std::span<const int> controls) const;
  void Lock(bool fixed, std::initializer_list<int> controls) const {
    Lock(fixed, std::span(controls.begin(), controls.size()));
  }
  // A box over the page, under the title of its boxes. Whoever ended the page while another one was up is told nothing
  // more: the answer is then IDCANCEL.
  template <class... Values>
  int Tell(uint32_t messageId, UINT flags, const Values&... inserts) {
    return TellWith(messageId, flags, MessageInserts(inserts...));
  }

 private:
  bool SaveControls();
  int TellWith(uint32_t messageId, UINT flags, const MessageInserts& inserts);

  const PageDescription description_;
  const CUString title_;
  CNemUIPage* host_ = nullptr;
  CMyHyperLink helpLink_;
  bool loaded_ = false;
  bool initialized_ = false;
  bool shownBefore_ = false;
};
