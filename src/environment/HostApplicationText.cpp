#include "environment/HostApplicationText.h"

#include "DriverLIB/Numbers.h"

namespace {

struct OfficeProgram {
  const wchar_t* fileName;
  const wchar_t* name;
};

constexpr OfficeProgram kOfficePrograms[] = {
    {L"WINWORD.EXE", L"Microsoft\u00AE Word"},
    {L"EXCEL.EXE", L"Microsoft\u00AE Excel"},
    {L"POWERPNT.EXE", L"Microsoft\u00AE PowerPoint\u00AE"},
    {L"MSACCESS.EXE", L"Microsoft\u00AE Access"},
    {L"OUTLOOK.EXE", L"Microsoft\u00AE Outlook\u00AE"},
};

struct OfficeYear {
  int majorVersion;
  const wchar_t* year;
};

constexpr OfficeYear kOfficeYears[] = {
    {8, L"97"}, {9, L"2000"}, {10, L"2002"}, {11, L"2003"}, {12, L"2007"}, {14, L"2010"}, {15, L"2013"},
};

const wchar_t* OfficeName(const CUString& fileName) {
  for (const OfficeProgram& program : kOfficePrograms)
    if (fileName.EqualsNoCase(program.fileName)) return program.name;
  return nullptr;
}

const wchar_t* YearOf(const CUString& version) {
  const int majorVersion = ParseDecimal(version);  // up to the first point
  for (const OfficeYear& row : kOfficeYears)
    if (row.majorVersion == majorVersion) return row.year;
  return nullptr;
}

}  // namespace

CUString HostApplicationText(const CUString& fileName, const CUString& version, bool friendly) {
  const wchar_t* const officeName = friendly ? OfficeName(fileName) : nullptr;
  const CUString name = officeName ? CUString(officeName) : fileName;
  if (version.IsEmpty()) return name;
  const wchar_t* const year = officeName ? YearOf(version) : nullptr;
  return year ? name + L" " + year + L"(" + version + L")" : name + L" " + version;
}
