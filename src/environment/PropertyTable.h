#pragma once

// A property of the print component. An empty row divides groups; a row of null texts ends the table.
struct PropertyTableRow {
  const char* name;
  const char* kind;  // "S" text, "B" boolean, "L" number, "X" device mode
};

extern const PropertyTableRow kPrintPropertyTable[];
