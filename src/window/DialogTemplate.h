// Dialog templates of the library, in the user's language.
#pragma once

#include <vector>

#include "window/Windows.h"

// A copy of template `id`: in the UI language, else its primary language, else English, else language-neutral. In an
// Arabic user interface it has the mirrored extended style whatever the template says. Empty when there is none.
std::vector<BYTE> LoadDialogTemplate(UINT id);

// Gives a template in memory the mirrored extended style.
void MirrorDialogTemplate(DLGTEMPLATE* dialogTemplate);

// The user interface's language is written from right to left.
bool IsRightToLeftLanguage();
