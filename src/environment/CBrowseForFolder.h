#pragma once

#include <windows.h>
// behind windows.h
#include <shlobj.h>

#include "DriverLIB/CUString.h"

// The system's folder picker. It takes the thread's activation context: whoever selects stands in a scope of it. On a
// thread of the multi-threaded apartment it comes in its older style.
class CBrowseForFolder {
 public:
  // Both may be null: no owner window, and the desktop as root. The root stays the caller's.
  explicit CBrowseForFolder(HWND owner = nullptr, PCIDLIST_ABSOLUTE root = nullptr);
  virtual ~CBrowseForFolder() = default;
  CBrowseForFolder(const CBrowseForFolder&) = delete;
  CBrowseForFolder& operator=(const CBrowseForFolder&) = delete;

  // Called while the picker is up: when it has been made, and for each folder that the user selects.
  virtual void OnInitialized() {}
  virtual void OnSelChanged() {}

  // No effect while the picker is up.
  void SetOwner(HWND owner);
  void SetRoot(PCIDLIST_ABSOLUTE root);
  void SetTitle(const wchar_t* title);

  // Shows the picker. True when a folder was chosen.
  bool SelectFolder();

  // The path of the chosen folder.
  CUString GetFolder() const { return CUString(path_); }

  // No effect unless the picker is up.
  void EnableOk(bool enable);

 protected:
  HWND DialogWindow() const { return dialogWindow_; }  // null unless the picker is up

 private:
  struct ShellFunctions;

  static int CALLBACK OnMessage(HWND dialog, UINT message, LPARAM lParam, LPARAM self);
  void HandleMessage(HWND dialog, UINT message);
  bool RunPicker(const ShellFunctions& shell);

  CUString title_;
  BROWSEINFOW info_ = {};
  wchar_t path_[MAX_PATH] = {};

 public:
  CUString selectedFolder;  // the same path; empty when the chosen item was no folder of the file system

 private:
  HWND dialogWindow_ = nullptr;
};
