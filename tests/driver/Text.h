// Small things about texts and windows that all of the driver needs.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

std::string ToUtf8(std::wstring_view text);
std::wstring ToWide(std::string_view utf8);

// The window's text as it is now; only for windows of the calling thread or of one that runs its messages.
std::wstring WindowText(HWND window);

std::wstring ClassNameOf(HWND window);
bool HasClass(HWND window, const wchar_t* className);

// "1141 (Button \"&PDF file size\")"
std::string DescribeWindow(HWND window);
