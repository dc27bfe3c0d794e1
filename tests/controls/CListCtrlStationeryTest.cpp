#include "controls/CListCtrlStationery.h"

#include "EditableListPage.h"
#include "PlatformSpy.h"
#include "support/Accessible.h"

namespace {

class Stationery final : public StationeryListEntry {
 public:
  Stationery(int& living, const wchar_t* stationeryName, const wchar_t* path)
      : name(stationeryName), file(path), living_(living) {
    ++living_;
  }
  ~Stationery() override { --living_; }
  CUString Name() const override { return name; }
  CUString File() const override { return file; }

  CUString name, file;

 private:
  int& living_;
};

class StationeryPage : public ReportPage {
 public:
  explicit StationeryPage(ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight) : ReportPage(layout) {
    list = std::make_unique<CListCtrlStationery>();
    EXPECT_TRUE(list->Attach(page, kReportId));
    list->InsertColumns(L"Description", L"Filename");
  }
  Stationery& Add(const wchar_t* name, const wchar_t* file) {
    auto entry = std::make_unique<Stationery>(living, name, file);
    Stationery& added = *entry;
    const int row = list->Count();
    EXPECT_EQ(row, list->AddEntry(std::move(entry)));
    return added;
  }
  std::wstring Rows() const {
    std::wstring rows;
    for (int row = 0; row < list->Count(); ++row)
      rows += std::wstring(row ? L"," : L"") + list->CellText(row, 0).Text() + L"=" + list->CellText(row, 1).Text();
    return rows;
  }

  int living = 0;
  std::unique_ptr<CListCtrlStationery> list;
};

TEST(CListCtrlStationery, HasItsColumns) {
  for (const UINT dpi : {96u, 144u, 192u}) {
    const DpiScope scope(dpi);
    StationeryPage test;
    ASSERT_EQ(2, test.list->ColumnCount());
    for (const int column : {0, 1})
      EXPECT_EQ(::MulDiv(180, static_cast<int>(dpi), 96), test.control.Send(LVM_GETCOLUMNWIDTH, column));
    EXPECT_TRUE(test.control.Send(LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_FULLROWSELECT);
    EXPECT_TRUE(test.control.Style() & LVS_SINGLESEL);
  }
}

TEST(CListCtrlStationery, ShowsDescriptionAndFile) {
  StationeryPage test;
  Stationery& letter = test.Add(L"Letter", L"C:\\Paper\\letter.pdf");
  test.Add(L"", L"plain.pdf");
  test.Add(L"Folder", L"C:\\Paper\\");
  EXPECT_EQ(L"Letter=letter.pdf,=plain.pdf,Folder=", test.Rows());
  letter.name = L"New";
  letter.file = L"C:\\new.pdf";
  test.list->RefreshRows();
  EXPECT_EQ(L"New=new.pdf,=plain.pdf,Folder=", test.Rows());
}

TEST(CListCtrlStationery, OwnsItsEntries) {
  StationeryPage test;
  for (const wchar_t* name : {L"a", L"b", L"c"}) test.Add(name, L"f");
  EXPECT_EQ(3, test.living);
  test.list->Clear();
  EXPECT_EQ(0, test.living);
  test.Add(L"d", L"f");
  ::DestroyWindow(test.control.Handle());
  EXPECT_EQ(0, test.living);
  StationeryPage other;
  other.Add(L"e", L"f");
  other.list.reset();
  EXPECT_EQ(0, other.living);
}

TEST(CListCtrlStationery, RemovesOneAndSelectsWhatIsInItsPlace) {
  StationeryPage test;
  test.Add(L"a", L"f");
  Stationery& b = test.Add(L"b", L"f");
  Stationery& c = test.Add(L"c", L"f");
  test.list->SelectRow(1);
  test.list->RemoveEntry(&b);
  EXPECT_EQ(L"a=f,c=f", test.Rows());
  EXPECT_EQ(2, test.living);
  EXPECT_EQ(1, test.list->SelectionMark());
  EXPECT_TRUE(test.list->RowState(1, LVIS_SELECTED));
  test.list->RemoveEntry(&c);
  EXPECT_EQ(L"a=f", test.Rows());
  EXPECT_EQ(0u, test.list->RowState(0, LVIS_SELECTED)) << "there is no row in its place";
  test.list->RemoveEntry(nullptr);
  EXPECT_EQ(1, test.living);
}

TEST(CListCtrlStationery, FindsRows) {
  StationeryPage test;
  Stationery& a = test.Add(L"a", L"f");
  Stationery& b = test.Add(L"b", L"f");
  EXPECT_EQ(0, test.list->RowOf(&a));
  EXPECT_EQ(1, test.list->RowOf(&b));
  EXPECT_EQ(&b, test.list->Entry(1));
  for (const int row : {-1, 2}) EXPECT_EQ(nullptr, test.list->Entry(row));
}

TEST(CListCtrlStationery, SortsWithoutRegardToCase) {
  StationeryPage test;
  test.Add(L"b", L"C:\\2\\a");
  test.Add(L"A", L"C:\\1\\c");
  test.Add(L"\x00E4", L"c:\\3\\b");
  test.Add(L"_", L"D:\\a");
  test.ClickHead(0, 1);
  EXPECT_EQ(-1, test.list->Sorting().column);
  test.ClickHead(0);
  EXPECT_EQ(L"A=c,b=a,_=a,\x00E4=b", test.Rows()) << "by code units of the upper-case texts";
  test.ClickHead(0);
  EXPECT_EQ(L"\x00E4=b,_=a,b=a,A=c", test.Rows());
  test.ClickHead(1);
  EXPECT_EQ(L"A=c,b=a,\x00E4=b,_=a", test.Rows()) << "by whole paths";
  test.ClickHead(1);
  EXPECT_EQ(L"_=a,\x00E4=b,b=a,A=c", test.Rows());
  test.ClickHead(0);
  EXPECT_EQ(L"A=c,b=a,_=a,\x00E4=b", test.Rows()) << "another column begins ascending";
}

TEST(CListCtrlStationery, SelectionGoesWithItsRow) {
  StationeryPage test;
  test.Add(L"b", L"f");
  test.Add(L"a", L"f");
  test.list->SelectRow(0);
  test.ClickHead(0);
  EXPECT_EQ(1, test.list->SelectionMark());
  EXPECT_TRUE(test.list->RowState(1, LVIS_SELECTED));
}

TEST(CListCtrlStationery, KeysReachThePage) {
  StationeryPage test;
  test.Add(L"a", L"f");
  test.list->Focus();
  test.list->SelectRow(0);
  test.Press(VK_RETURN);
  EXPECT_EQ(1, test.Count(NM_RETURN));
  EXPECT_FALSE(test.WasCommanded(IDOK));
  test.Press(VK_DELETE);
  EXPECT_GE(test.Count(LVN_KEYDOWN), 1);
  test.Press(VK_RETURN, kHeldKey);
  test.Press(VK_ESCAPE, kHeldKey);
  EXPECT_EQ(1, test.Count(NM_RETURN));
  EXPECT_FALSE(test.WasCommanded(IDCANCEL));
  test.Press(VK_ESCAPE);
  EXPECT_TRUE(test.WasCommanded(IDCANCEL));
}

TEST(CListCtrlStationery, RowsAreSpoken) {
  const ComScope com;
  StationeryPage test(ControlDialog::Layout::RightToLeft);
  test.Add(L"Letter", L"C:\\letter.pdf");
  const Accessible reader(test.control.Handle());
  ASSERT_TRUE(reader);
  EXPECT_EQ(1, reader.Count());
  EXPECT_EQ(L"Letter, letter.pdf", reader.Name(1));
}

}  // namespace
