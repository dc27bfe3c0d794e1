// The system's dialogs in which the user chooses a file to open or a name to save under, bound at first use. They take
// the thread's activation context: whoever asks stands in a scope of it. A dialog can end the window that asked. The
// process's current directory is the same afterwards as before.
#pragma once

#include <windows.h>
// behind windows.h
#include <commdlg.h>

#include <optional>

#include "DriverLIB/CUString.h"

// OFN_ flags of a dialog that opens only what is there, without a box to open it for reading only.
constexpr DWORD kOpenExistingFile = OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;

struct FileDialogRequest {
  // Rows of a name and a pattern, each of the two closed by a bar: "Programs(*.exe)|*.exe|All files(*.*)|*.*|". The
  // first row is chosen at the start.
  CUString filter;
  DWORD flags = kOpenExistingFile;
  size_t pathRoom = MAX_PATH;  // characters with the closing zero: a longer path is not given
  CUString startName = {};     // may have a folder; what does not fit into the room is cut
  CUString startFolder = {};   // empty: the system's choice
  CUString defaultExtension = {};
};

struct ChosenFile {
  CUString path;
  CUString title;  // name and extension
};

// Nothing when the user cancelled, or when the system has no such dialog.
std::optional<ChosenFile> AskForFileToOpen(HWND owner, const FileDialogRequest& request);
std::optional<ChosenFile> AskForFileToSave(HWND owner, const FileDialogRequest& request);
