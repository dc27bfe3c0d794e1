#include "environment/A4Country.h"

namespace {

struct CountryRange {
  int first, last;
};

// North, Central and South America.
constexpr CountryRange kLetterCountries[] = {{1, 2}, {50, 59}, {500, 599}};

}  // namespace

bool IsA4Country(int country) {
  for (const CountryRange& range : kLetterCountries)
    if (country >= range.first && country <= range.last) return false;
  return true;
}
