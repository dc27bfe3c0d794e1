#pragma once

// Whether the default paper is A4 in the user's country, Letter otherwise and where the country is not known.
bool IsA4PaperDefault();
