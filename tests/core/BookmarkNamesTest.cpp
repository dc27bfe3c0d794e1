#include "pages/BookmarkNames.h"

#include <gtest/gtest.h>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "support/PrintText.h"
#include "support/TestMessages.h"

namespace {

class BookmarkNames : public testing::Test {
 protected:
  BookmarkNames() { SetModuleInstance(messages_.Module()); }
  ~BookmarkNames() override { SetModuleInstance(former_); }

  void* const former_ = ModuleInstance();
  const TestMessages messages_{{MSG_BOOKMARK_NEW_NAME, kEnglish, L"Style %1!d!%0"}};
};

TEST_F(BookmarkNames, CountFromOne) {
  EXPECT_EQ(FreeBookmarkName({}), L"Style 1");
  EXPECT_EQ(FreeBookmarkName({L"Style 1"}), L"Style 2");
  EXPECT_EQ(FreeBookmarkName({L"Style 3", L"Style 1"}), L"Style 2") << "the smallest number";
  EXPECT_EQ(FreeBookmarkName({L"Style 2", L"Style 3"}), L"Style 1");
  EXPECT_EQ(FreeBookmarkName({L"Style 1 ", L"xStyle 1", L"Style 10", L""}), L"Style 1");
}

TEST_F(BookmarkNames, CaseDoesNotCount) { EXPECT_EQ(FreeBookmarkName({L"style 1", L"STYLE 2"}), L"Style 3"); }

}  // namespace
