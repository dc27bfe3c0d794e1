#include "controls/CListBoxST.h"

#include "ListPage.h"

namespace {

// --- Rows -----------------------------------------------------------------------------------------------------------

TEST(CListBoxST, AddsRowsWithPictureAndIndent) {
  ListPage test;
  EXPECT_EQ(0, test.list->AddItem(L"Arial", 3, 2));
  EXPECT_EQ(1, test.list->AddItem(L"Tahoma"));
  EXPECT_EQ(2, test.list->AddItem(nullptr, 0));
  EXPECT_STREQ(L"Arial", test.list->RowText(0).Text());
  EXPECT_STREQ(L"Tahoma", test.list->RowText(1).Text());
  EXPECT_STREQ(L"", test.list->RowText(2).Text());
  const struct { int image, indent; } rows[] = {{3, 2}, {-1, 0}, {0, 0}};
  for (int row = 0; row < 3; ++row) {
    EXPECT_EQ(rows[row].image, test.list->ItemImage(row)) << row;
    EXPECT_EQ(rows[row].indent, test.list->ItemIndent(row)) << row;
    EXPECT_EQ(0u, test.list->ItemData(row)) << row;
    EXPECT_EQ(nullptr, test.list->ItemPointer(row)) << row;
    EXPECT_TRUE(test.list->IsItemEnabled(row)) << row;
  }
}

TEST(CListBoxST, KeepsWhatRowsCarry) {
  ListPage test;
  int target = 0;
  test.list->AddItem(L"a");
  test.list->AddItem(L"b");
  EXPECT_TRUE(test.list->SetItemData(1, 0xFFFFFFFF));
  EXPECT_TRUE(test.list->SetItemPointer(1, &target));
  EXPECT_TRUE(test.list->SetItemImage(1, 4));
  EXPECT_TRUE(test.list->SetItemIndent(1, 3));
  EXPECT_TRUE(test.list->EnableItem(1, false));
  EXPECT_EQ(0xFFFFFFFFu, test.list->ItemData(1));
  EXPECT_EQ(&target, test.list->ItemPointer(1));
  EXPECT_EQ(4, test.list->ItemImage(1));
  EXPECT_EQ(3, test.list->ItemIndent(1));
  EXPECT_FALSE(test.list->IsItemEnabled(1));
  EXPECT_TRUE(test.list->EnableItem(1, true));
  EXPECT_TRUE(test.list->IsItemEnabled(1));
  EXPECT_EQ(0u, test.list->ItemData(0)) << "the other row is left alone";
  EXPECT_TRUE(test.list->IsItemEnabled(0));
}

TEST(CListBoxST, ANewRowMayCarryAValue) {
  ListPage test;
  test.list->AddItem(L"a", 1, 2, 42);
  EXPECT_EQ(42u, test.list->ItemData(0));
  EXPECT_EQ(1, test.list->ItemImage(0));
  EXPECT_EQ(2, test.list->ItemIndent(0));
}

TEST(CListBoxST, KnowsNoRowsThatAreNotThere) {
  ListPage test;
  test.list->AddItem(L"a");
  for (const int row : {-1, 1, 1000}) {
    EXPECT_FALSE(test.list->SetItemData(row, 1)) << row;
    EXPECT_FALSE(test.list->SetItemPointer(row, &test)) << row;
    EXPECT_FALSE(test.list->SetItemImage(row, 1)) << row;
    EXPECT_FALSE(test.list->SetItemIndent(row, 1)) << row;
    EXPECT_FALSE(test.list->EnableItem(row, true)) << row;
    EXPECT_FALSE(test.list->IsItemEnabled(row)) << row;
    EXPECT_EQ(0u, test.list->ItemData(row)) << row;
    EXPECT_EQ(nullptr, test.list->ItemPointer(row)) << row;
    EXPECT_EQ(-1, test.list->ItemImage(row)) << row;
    EXPECT_FALSE(test.list->DeleteItem(row)) << row;
  }
  EXPECT_EQ(1, test.list->Count());
  CListBoxST loose;
  EXPECT_LT(loose.AddItem(L"a"), 0 + 1);
  EXPECT_FALSE(loose.DeleteItem(0));
}

TEST(CListBoxST, RowsTakeTheirValuesAlong) {
  ListPage test(LBS_OWNERDRAWFIXED | LBS_SORT);
  for (const wchar_t* text : {L"c", L"a", L"b"}) {
    const int row = test.list->AddItem(text);
    test.list->SetItemData(row, text[0]);
  }
  for (int row = 0; row < 3; ++row)
    EXPECT_EQ(static_cast<uint32_t>(test.list->RowText(row)[0]), test.list->ItemData(row)) << row;
  EXPECT_TRUE(test.list->DeleteItem(0));
  for (int row = 0; row < 2; ++row)
    EXPECT_EQ(static_cast<uint32_t>(test.list->RowText(row)[0]), test.list->ItemData(row)) << row;
}

TEST(CListBoxST, FreesARecordWithItsRow) {
  for (const DWORD style : {DWORD{LBS_OWNERDRAWFIXED}, DWORD{LBS_OWNERDRAWVARIABLE}}) {
    ListPage test(style);
    for (const wchar_t* text : {L"a", L"b", L"c", L"d"}) test.list->AddItem(text);
    EXPECT_EQ(4u, test.list->RecordCount());
    EXPECT_TRUE(test.list->DeleteItem(1));
    EXPECT_EQ(3u, test.list->RecordCount());
    test.list->Delete(0);
    EXPECT_EQ(2u, test.list->RecordCount());
    test.list->Reset();
    EXPECT_EQ(0u, test.list->RecordCount());
    test.list->SetItemData(test.list->AddItem(L"e"), 7);
    EXPECT_EQ(7u, test.list->ItemData(0));
    ::DestroyWindow(test.control.Handle());
    EXPECT_EQ(0u, test.list->RecordCount());
  }
}

TEST(CListBoxST, MayEndBeforeItsControl) {
  ListPage test;
  test.list->AddItem(L"a");
  test.list->AddItem(L"b");
  test.list.reset();
  EXPECT_EQ(2, CListBox(test.control).Count());
  CListBox(test.control).Delete(0);
  CListBoxST next;
  ASSERT_TRUE(next.Attach(test.page, kListId));
  EXPECT_TRUE(next.IsItemEnabled(0)) << "a row of before has nothing but its text";
  EXPECT_EQ(0u, next.ItemData(0));
}

TEST(CListBoxST, RowsAddedPlainlyAreRowsAsWell) {
  ListPage test;
  test.list->AddString(L"plain");
  EXPECT_EQ(0u, test.list->RecordCount());
  EXPECT_TRUE(test.list->IsItemEnabled(0));
  EXPECT_EQ(-1, test.list->ItemImage(0));
  EXPECT_TRUE(test.list->SetItemData(0, 5));
  EXPECT_EQ(5u, test.list->ItemData(0));
  EXPECT_EQ(-1, test.list->ItemImage(0));
  EXPECT_EQ(1u, test.list->RecordCount());
  test.list->DeleteItem(0);
  EXPECT_EQ(0u, test.list->RecordCount());
}

// --- Row height -----------------------------------------------------------------------------------------------------

TEST(CListBoxST, RowsHaveRoomForTextAndPicture) {
  for (const DWORD style : {DWORD{LBS_OWNERDRAWFIXED}, DWORD{LBS_OWNERDRAWVARIABLE}}) {
    ListPage test(style);
    test.list->AddItem(L"before");
    const int text = test.TextHeight();
    ASSERT_LT(text, 18);
    EXPECT_EQ(text + 2, test.ItemHeight());
    EXPECT_TRUE(test.list->SetImages(kFontPictures, SecondHalf::Disabled));
    test.list->AddItem(L"after");
    for (const int row : {0, 1}) EXPECT_EQ(16 + 2 + 2, test.ItemHeight(row)) << row;
    const Squares squares;
    test.list->SetImageList(squares.images.Get());
    EXPECT_EQ(Squares::kSize + 2 + 2, test.ItemHeight());
    test.list->SetImageList(nullptr);
    for (const int row : {0, 1}) EXPECT_EQ(text + 2, test.ItemHeight(row)) << row;
  }
}

TEST(CListBoxST, RowsFollowTheFont) {
  ListPage test;
  test.list->AddItem(L"a");
  test.list->SetImages(kFontPictures, SecondHalf::Disabled);
  const GdiFont larger = DeriveFont(test.page.Font(), [](LOGFONTW& font) { font.lfHeight = -40; });
  test.control.SetFont(larger.Get());
  EXPECT_GT(test.TextHeight(), 30);
  EXPECT_EQ(test.TextHeight() + 2, test.ItemHeight());
}

TEST(CListBoxST, RowsGrowWithTheDpi) {
  const struct {
    UINT dpi;
    int height;
  } rows[] = {{96, 16 + 2 + 2}, {144, 24 + 3 + 3}, {192, 32 + 4 + 4}};
  for (const auto& row : rows) {
    const DpiScope dpi(row.dpi);
    ListPage test;
    test.list->SetImages(kFontPictures, SecondHalf::Disabled);
    EXPECT_EQ(row.height, test.ItemHeight()) << row.dpi;
  }
}

}  // namespace
