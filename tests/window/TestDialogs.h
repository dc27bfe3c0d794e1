// Dialogs of the test's own for the window layer, which takes its templates from the library's module by number: while
// this object lives, that module is a copy of the program with the test's templates added.
#pragma once

#include <windows.h>

#include <utility>

#include "driver/DialogTemplate.h"
#include "DriverLIB/MessageText.h"

class TestDialogs {
 public:
  struct Row {
    WORD id;
    WORD language;
    DialogTemplate dialog;
  };

  TestDialogs(std::initializer_list<Row> rows) : previous_(ModuleInstance()) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    CopyFileW(program, kCopy, FALSE);
    const HANDLE update = BeginUpdateResourceW(kCopy, FALSE);
    for (const Row& row : rows)
      UpdateResourceW(update, RT_DIALOG, MAKEINTRESOURCEW(row.id), row.language,
                      const_cast<DLGTEMPLATE*>(row.dialog.Get()), static_cast<DWORD>(row.dialog.Size()));
    EndUpdateResourceW(update, FALSE);
    module_ = LoadLibraryExW(kCopy, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    SetModuleInstance(module_);
  }
  ~TestDialogs() {
    SetModuleInstance(previous_);
    FreeLibrary(module_);
    DeleteFileW(kCopy);
  }
  TestDialogs(const TestDialogs&) = delete;
  TestDialogs& operator=(const TestDialogs&) = delete;

 private:
  static constexpr wchar_t kCopy[] = L"test_dialogs.dll";

  void* previous_;
  HMODULE module_ = nullptr;
};
