// The platform's headers, in the one order that works; every unit with windows includes this one first.
#pragma once

#include <windows.h>
#include <windowsx.h>
// behind windows.h
#include <commctrl.h>
#include <prsht.h>
#include <uxtheme.h>
