#pragma once

#include "DriverLIB/CUString.h"

// How a host application is called: `fileName`, with extension, and a blank and `version` unless that is empty. A
// `friendly` text has the name of a known office program and its year, if that is known, with the version behind.
CUString HostApplicationText(const CUString& fileName, const CUString& version, bool friendly);
