#pragma once

// Whether the default paper is A4 in the country of that telephone code, Letter otherwise.
bool IsA4Country(int country);
