// Topics of the host's compiled help file.
#pragma once

#include <cstdint>

// The topic of a dialog or a link control, to be appended to the name of the help file; null when there is none.
const wchar_t* FindHelpTopic(uint32_t key, bool german);
