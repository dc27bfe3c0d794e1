#include "CockpitTest.h"

#include "environment/DefaultPaper.h"
#include "support/CockpitFields.h"

namespace cockpit_test {

bool Settings::IsA4() { return IsA4PaperDefault(); }

std::vector<std::unique_ptr<CNemUIPage>> MakeStandIns(Settings& settings) {
  using Record = CCockpitSettings;
  std::vector<std::unique_ptr<CNemUIPage>> pages;
  const auto add = [&]<class Page>(std::type_identity<Page>, int pageId) {
    pages.push_back(std::make_unique<Page>(pageId, settings));
  };
  add(std::type_identity<StandIn<GraphicCockpitValues, &Record::graphic>>(), 108);
  add(std::type_identity<StandIn<PaperCockpitValues, &Record::paper>>(), 100);
  add(std::type_identity<StandIn<AppearanceCockpitValues, &Record::appearance>>(), 109);
  add(std::type_identity<StandIn<FontsCockpitValues, &Record::fonts>>(), 110);
  add(std::type_identity<StandIn<WatermarkCockpitValues, &Record::watermark>>(), 101);
  add(std::type_identity<StandIn<LinksCockpitValues, &Record::links>>(), 113);
  add(std::type_identity<StandIn<AttachmentsCockpitValues, &Record::attachments>>(), 114);
  add(std::type_identity<StandIn<ZugferdCockpitValues, &Record::zugferd>>(), 112);
  add(std::type_identity<StandIn<BookmarkCockpitValues, &Record::bookmark>>(), 119);
  add(std::type_identity<StandIn<SavingCockpitValues, &Record::saving>>(), 103);
  add(std::type_identity<StandIn<FormatCockpitValues, &Record::format>>(), 118);
  add(std::type_identity<StandIn<ActionCockpitValues, &Record::action, 1 | 4 | 8>>(), 102);
  add(std::type_identity<StandIn<MailCockpitValues, &Record::action, 2>>(), 104);
  add(std::type_identity<StandIn<ColorsCockpitValues, &Record::colors>>(), 111);
  add(std::type_identity<StandIn<FormFieldsCockpitValues, &Record::formFields>>(), 115);
  add(std::type_identity<StandIn<FormFieldsColorCockpitValues, &Record::formFieldsColor>>(), 116);
  add(std::type_identity<StandIn<SecurityCockpitValues, &Record::security>>(), 117);
  add(std::type_identity<StandIn<DocInfoCockpitValues, &Record::docInfo>>(), 105);
  return pages;
}

CockpitTest::CockpitTest(int set) : page_(&sheet_, kCockpit, set) {
  for (const auto& page : pages_) sheet_.pages[page->GetPageId()] = page.get();
  sheet_.pages[page_.GetPageId()] = &page_;
  sheet_.properties.MsgBoxTitle.SetString(L"Host");
}

void CockpitTest::Open(CNemUICockpitPage& page) {
  ASSERT_TRUE(page.Create(parent_.Window()));
  page.Show(true);
}

const CCockpitDiff& CockpitTest::Square(int category) const {
  auto* square = dynamic_cast<CCockpitDiff*>(CSubclassedControl::FromHandle(Item(SquareId(category)).Handle()));
  EXPECT_NE(nullptr, square) << category;
  static const CCockpitDiff none;
  return square ? *square : none;
}

std::set<int> CockpitTest::MarkedRows() const {
  std::set<int> marked;
  for (int category = 1; category <= kCockpitCategoryCount; ++category)
    if (Square(category).FillColor() != kNoFillColor) marked.insert(category);
  return marked;
}

void CockpitTest::ChangeAll() {
  for (const Field& field : kFields) field.change(settings_.values);
  settings_.values.action.startAction = 2 | 4;
}

const CToolTipBox* CockpitTest::Note() const {
  return dynamic_cast<CToolTipBox*>(CSubclassedControl::FromHandle(Item(IDC_COCKPIT_NOTE).Handle()));
}

POINT CockpitTest::MiddleOf(int id) const {
  const RECT area = Item(id).RectIn(page_);
  return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

void CockpitRestore::Restore(int button) {
  popups_.ExpectBox({.title = L"Host",
                     .text = L"All settings will be set to default. Do you wish to continue?",
                     .icon = MB_ICONWARNING,
                     .button = button});
  Control(1444).Click();
  ASSERT_EQ(1u, popups_.Boxes().size());
  EXPECT_EQ((std::vector<int>{IDYES, IDNO}), popups_.Boxes().back().buttons);
}

}  // namespace cockpit_test
