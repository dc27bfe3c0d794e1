// Edits that hold a password.
#pragma once

#include "DriverLIB/CSecretText.h"
#include "window/Controls.h"

// Shows the text itself, or an asterisk for each character. While it is hidden the platform hands the text to no screen
// reader. The template gives such an edit ES_PASSWORD, so that it is hidden from its first moment.
void ShowPassword(const CEdit& edit, bool visible);

// Sets the text in place of an earlier one, of which nothing is left.
void SetPassword(const CEdit& edit, const CSecretText& password);

// Empties the edit and overwrites its text in the edit's own memory, with what the edit keeps for Undo: the platform
// gives both back as they are. Call it before the edit dies. Parents are told of the changes as usual.
void WipePassword(const CEdit& edit);
