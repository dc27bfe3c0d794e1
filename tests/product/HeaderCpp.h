// What the strict C++ unit of these tests offers.
#pragma once

// Goes the way of a host, but for the sheet. True when all has gone well.
bool RunHostInCpp();
