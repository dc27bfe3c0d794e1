// The predefined target of a conversion: DestinationDirectoryOrFilename as folder and name, and which characters are
// good in them.
#pragma once

#include <optional>

#include "DriverLIB/CEPathS.h"

struct DestinationPath {
  CUString directory;  // drive and folder
  CUString file;       // name and extension
};

DestinationPath SplitDestination(const CUString& path);

// The two as one path; a folder without a backslash at its end gets one.
CUString JoinDestination(const CUString& directory, const CUString& file);

// A path that the system's dialog has given with its file name: the folder comes without its last separator. Nothing
// when the name does not stand behind one.
std::optional<DestinationPath> SplitChosenFile(const CUString& path, const CUString& file);

// What a text is for decides which characters it may hold.
enum class PathTextRule {
  Strict,  // a file name: no colon and no separators
  Lenient  // a folder, or characters that are added to a name
};

// False when a character of `text` is refused. An empty text is valid.
bool IsValidPathText(WideView text, PathTextRule rule);
