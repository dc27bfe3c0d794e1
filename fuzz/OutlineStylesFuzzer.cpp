// The bookmark formats in use: any text, against a second reading.
#include "OutlineModel.h"
#include "pages/OutlineTexts.h"
#include "Require.h"
#include "WideInput.h"

namespace {

using namespace outline_model;

void RequireSame(const Styles& expected, const OutlineStyles& styles) {
  REQUIRE(static_cast<size_t>(styles.names.Count()) == expected.names.size());
  for (int i = 0; i < styles.names.Count(); ++i)
    REQUIRE(styles.names[i].View() == expected.names[static_cast<size_t>(i)]);
  REQUIRE(static_cast<size_t>(styles.levels.Count()) == expected.levels.size());
  for (int i = 0; i < styles.levels.Count(); ++i)
    REQUIRE(styles.levels.GetAt(i) == expected.levels[static_cast<size_t>(i)]);
}

// Formats of these styles are written as the same list, up to the limit of its length.
void RequireComesBack(const Styles& styles) {
  COutlineWriter writer;
  for (size_t i = 0; i < styles.names.size(); ++i) {
    CBookmarkFormat format;
    format.styleName = styles.names[i];
    format.level = i < styles.levels.size() ? styles.levels[i] : 0;
    writer.Add(format);
  }
  if (!writer.AllStylesFit()) return;
  OutlineStyles again;
  ReadOutlineStyles(writer.Styles(), again);
  Styles expected = styles;
  expected.levels.resize(styles.names.size());
  RequireSame(expected, again);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Text text = WideInput(data, size);
  OutlineStyles styles;
  ReadOutlineStyles(text, styles);  // of any script
  DropOtherScripts(text);
  const Styles expected = ReadStyles(text);
  ReadOutlineStyles(text, styles);
  RequireSame(expected, styles);
  RequireComesBack(expected);
  return 0;
}
