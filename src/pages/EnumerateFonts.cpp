#include "pages/EnumerateFonts.h"

#include <exception>

#include "window/Gdi.h"

namespace {

struct Visit {
  HDC dc;
  const FontVisitor& visit;
  std::exception_ptr thrown;
};

std::vector<uint8_t> ReadOs2Table(HDC dc, const LOGFONTW& description) {
  constexpr DWORD kOs2 = 0x322F534F;  // "OS/2", its first letter in the lowest byte
  const GdiFont font(::CreateFontIndirectW(&description));
  if (!font) return {};
  const SelectScope selected(dc, font.Get());
  const DWORD size = ::GetFontData(dc, kOs2, 0, nullptr, 0);
  if (size == GDI_ERROR) return {};
  std::vector<uint8_t> table(size);
  if (::GetFontData(dc, kOs2, 0, table.data(), size) != size) return {};
  return table;
}

// Nothing that is thrown crosses the platform, which called us.
int CALLBACK OnFont(const LOGFONTW* description, const TEXTMETRICW*, DWORD kinds, LPARAM data) noexcept {
  auto& visit = *reinterpret_cast<Visit*>(data);
  try {
    visit.visit(
        {.name = description->lfFaceName, .characterSet = description->lfCharSet, .kinds = kinds, .readOs2Table = [&] {
           return ReadOs2Table(visit.dc, *description);
         }});
    return TRUE;
  } catch (...) {
    visit.thrown = std::current_exception();
    return FALSE;
  }
}

}  // namespace

void EnumerateFonts(HDC dc, const FontVisitor& visit) {
  LOGFONTW all{};
  all.lfCharSet = DEFAULT_CHARSET;
  Visit state{dc, visit, nullptr};
  ::EnumFontFamiliesExW(dc, &all, OnFont, reinterpret_cast<LPARAM>(&state), 0);
  if (state.thrown) std::rethrow_exception(state.thrown);
}
