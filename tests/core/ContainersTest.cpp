#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "DriverLIB/CIntArray.h"
#include "DriverLIB/CPtr2Ptr.h"
#include "DriverLIB/CStr2Ptr.h"
#include "DriverLIB/CUStringArray.h"
#include "DriverLIB/NEMPrintMemoryException.h"
#include "support/FailingNew.h"
#include "support/PrintText.h"

// --- CPointerArray ---------------------------------------------------------------------------------------------------

namespace {

int CompareLowWords(const CIntArray& array, intptr_t left, intptr_t right) {
  return array.GetCompareFunction()(&left, &right);
}

bool ThrowsMemoryException(const std::function<void()>& action) {
  try {
    action();
  } catch (NEMPrintMemoryException* exhausted) {
    delete exhausted;
    return true;
  }
  return false;
}

}  // namespace

TEST(CPointerArray, StartsEmpty) {
  const CPointerArray array;
  EXPECT_EQ(0, array.Count());
  EXPECT_EQ(0, array.Capacity());
  EXPECT_EQ(nullptr, array.GetCompareFunction());
  EXPECT_EQ(0, array.GetFillValue());
}

TEST(CPointerArray, AddReturnsTheIndexAndDoublesTheCapacity) {
  CPointerArray array;
  for (int i = 0; i < 33; ++i) {
    EXPECT_EQ(i, array.Add(intptr_t{i} * 10));
    EXPECT_EQ(i < 8 ? 8 : i < 16 ? 16 : i < 32 ? 32 : 64, array.Capacity());
  }
  EXPECT_EQ(33, array.Count());
  for (int i = 0; i < 33; ++i) EXPECT_EQ(i * 10, array.GetAt(i));
}

TEST(CPointerArray, ReadsOutsideGiveOneSharedZeroCell) {
  CPointerArray array, other;
  array.Add(intptr_t{7});
  for (const int index : {-1, 1, 7, 8, 1000, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(0, array.GetAt(index));
    EXPECT_EQ(&other.GetAt(0), &array.GetAt(index));
  }
}

TEST(CPointerArray, SetAtGrowOnAnEmptyArray) {
  CPointerArray array;
  EXPECT_EQ(100, array.SetAtGrow(100, 5));
  EXPECT_EQ(104, array.Capacity());
  EXPECT_EQ(101, array.Count());
  EXPECT_EQ(5, array.GetAt(100));
  for (int i = 0; i < 100; ++i) EXPECT_EQ(0, array.GetAt(i));
}

TEST(CPointerArray, SetAtGrowCapacities) {
  struct {
    int index, capacity;
  } const kCases[] = {{0, 8}, {6, 8}, {7, 16}, {8, 16}, {14, 16}, {15, 24}, {100, 104}};
  for (const auto& sample : kCases) {
    CPointerArray array;
    array.SetAtGrow(sample.index, 1);
    EXPECT_EQ(sample.capacity, array.Capacity()) << sample.index;
    EXPECT_EQ(sample.index + 1, array.Count());
  }
}

TEST(CPointerArray, SetAtGrowInsideTheCapacityStoresInPlace) {
  CPointerArray array;
  for (intptr_t i = 0; i < 3; ++i) array.Add(i);
  EXPECT_EQ(1, array.SetAtGrow(1, 50));
  EXPECT_EQ(3, array.Count());
  EXPECT_EQ(50, array.GetAt(1));
  array.SetAtGrow(7, 70);
  EXPECT_EQ(8, array.Count());
  EXPECT_EQ(8, array.Capacity());
  EXPECT_EQ(0, array.GetAt(5));
  EXPECT_EQ(2, array.GetAt(2));
}

TEST(CPointerArray, ANegativeIndexStoresNothing) {
  CPointerArray array;
  EXPECT_EQ(-1, array.SetAtGrow(-1, 5));
  EXPECT_EQ(0, array.Count());
  EXPECT_EQ(0, array.Capacity());
}

TEST(CPointerArray, ALengthThatNoArrayHasThrowsAPointer) {
  CPointerArray array;
  array.Add(intptr_t{1});
  EXPECT_TRUE(ThrowsMemoryException([&] { array.SetAtGrow(INT32_MAX, 5); }));
  EXPECT_EQ(1, array.Count());
  EXPECT_EQ(1, array.GetAt(0));
}

TEST(CPointerArray, ExhaustedMemoryThrowsAPointerAndChangesNothing) {
  CPointerArray array;
  for (intptr_t value = 1; value <= 8; ++value) array.Add(value);
  {
    const FailingNew exhausted;
    EXPECT_TRUE(ThrowsMemoryException([&] { array.Add(intptr_t{9}); }));
    EXPECT_TRUE(ThrowsMemoryException([&] { array.SetAtGrow(8, 9); }));
    EXPECT_TRUE(ThrowsMemoryException([] { CPointerArray().Add(intptr_t{1}); }));
  }
  EXPECT_EQ(8, array.Count());
  EXPECT_EQ(8, array.Capacity());
  for (int i = 0; i < 8; ++i) EXPECT_EQ(i + 1, array.GetAt(i));
  EXPECT_EQ(8, array.Add(intptr_t{9}));
}

TEST(CPointerArray, FindStartsWhereItIsTold) {
  CPointerArray array;
  for (const intptr_t value : {5, 6, 5, 7}) array.Add(value);
  EXPECT_EQ(0, array.Find(5));
  EXPECT_EQ(2, array.Find(5, 1));
  EXPECT_EQ(-1, array.Find(5, 3));
  EXPECT_EQ(-1, array.Find(5, 4));
  EXPECT_EQ(-1, array.Find(5, 400));
  EXPECT_EQ(0, array.Find(5, -3));
  EXPECT_EQ(-1, array.Find(0));
  EXPECT_EQ(-1, CPointerArray().Find(0));
}

TEST(CPointerArray, RemoveAllFreesTheBlockAndNothingElse) {
  static int target = 42;
  CPointerArray array;
  array.Add(&target);
  EXPECT_EQ(&target, array.PointerAt<int>(0));
  array.RemoveAll();
  EXPECT_EQ(0, array.Count());
  EXPECT_EQ(0, array.Capacity());
  EXPECT_EQ(42, target);
  EXPECT_EQ(nullptr, array.PointerAt<int>(0));
  array.Add(intptr_t{3});
  EXPECT_EQ(8, array.Capacity());
}

TEST(CPointerArray, SortWithoutComparisonKeepsTheOrder) {
  CPointerArray array;
  for (const intptr_t value : {3, 1, 2}) array.Add(value);
  array.Sort();
  EXPECT_EQ(3, array.GetAt(0));
  EXPECT_EQ(2, array.GetAt(2));
}

// --- CIntArray -------------------------------------------------------------------------------------------------------

TEST(CIntArray, FillsTheSlotsBetweenWithItsFillValue) {
  CIntArray array(-1);
  EXPECT_EQ(-1, array.GetFillValue());
  array.SetAtGrow(100, 5);
  EXPECT_EQ(104, array.Capacity());
  EXPECT_EQ(101, array.Count());
  for (int i = 0; i < 100; ++i) EXPECT_EQ(-1, array.GetAt(i));
  EXPECT_EQ(0, array.GetAt(101));  // outside the array the shared cell stays 0
}

TEST(CIntArray, FillsOnlyFromTheOldCapacityOn) {
  CIntArray array(-1);
  array.Add(intptr_t{1});  // a grown block is zero behind its element
  array.SetAtGrow(3, 30);  // inside the capacity: nothing is filled
  EXPECT_EQ(0, array.GetAt(2));
  array.SetAtGrow(20, 200);
  EXPECT_EQ(0, array.GetAt(5));
  EXPECT_EQ(0, array.GetAt(7));
  EXPECT_EQ(-1, array.GetAt(8));
  EXPECT_EQ(-1, array.GetAt(19));
  array.SetAtGrow(40, 400);  // what was filled stays filled
  EXPECT_EQ(-1, array.GetAt(22));
  EXPECT_EQ(200, array.GetAt(20));
}

TEST(CIntArray, WithoutFillValueTheSlotsAreZero) {
  CIntArray array;
  array.SetAtGrow(9, 1);
  for (int i = 0; i < 9; ++i) EXPECT_EQ(0, array.GetAt(i));
}

TEST(CIntArray, ComparesTheLow32Bits) {
  const CIntArray array;
  EXPECT_EQ(-3, CompareLowWords(array, 4, 7));
  EXPECT_EQ(3, CompareLowWords(array, 7, 4));
  EXPECT_EQ(0, CompareLowWords(array, 7, (intptr_t{1} << 32) + 7));
  EXPECT_EQ(1, CompareLowWords(array, INT32_MIN, INT32_MAX));  // a difference wraps
}

TEST(CIntArray, Sorts) {
  CIntArray array;
  for (const intptr_t value : {3, -1, 2, 2, 0}) array.Add(value);
  array.Sort();
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ((std::vector<intptr_t>{-1, 0, 2, 2, 3})[static_cast<size_t>(i)], array.GetAt(i));
}

// --- CUStringArray ---------------------------------------------------------------------------------------------------

TEST(CUStringArray, AddOwnsACopy) {
  CUString text(L"abc");
  CUStringArray array;
  EXPECT_EQ(0, array.Add(text));
  EXPECT_EQ(1, array.Add(L"def"));
  EXPECT_EQ(2, array.Add(nullptr));
  text = L"changed";
  EXPECT_EQ(3, array.Count());
  EXPECT_EQ(array.GetAt(0), L"abc");
  EXPECT_EQ(array[1], L"def");
  EXPECT_EQ(array[2], L"");
  EXPECT_NE(&array[2], &array[3]);  // an empty element is an element
}

TEST(CUStringArray, GetAtIsNeverNull) {
  CUStringArray array;
  array.Add(L"a");
  const CUString& before = array.GetAt(-1);
  const CUString& behind = array.GetAt(array.Count());
  EXPECT_EQ(&before, &behind);
  EXPECT_EQ(&before, &CUStringArray().GetAt(0));
  EXPECT_EQ(0, before.Length());
  EXPECT_STREQ(L"", before.Text());
}

TEST(CUStringArray, SetAtReplacesAndGrows) {
  CUStringArray array;
  array.SetAt(3, L"three");
  EXPECT_EQ(4, array.Count());
  EXPECT_EQ(8, array.Capacity());
  EXPECT_EQ(array[3], L"three");
  EXPECT_EQ(&array[1], &array[-1]);  // a slot that was never set
  array.SetAt(3, L"again");
  EXPECT_EQ(array[3], L"again");
  array.SetAt(3, array[3]);
  EXPECT_EQ(array[3], L"again");
  array.SetAt(0, nullptr);
  EXPECT_NE(&array[0], &array[-1]);
  array.SetAt(-1, L"nowhere");
  EXPECT_EQ(4, array.Count());
}

TEST(CUStringArray, FindsWithAndWithoutCase) {
  CUStringArray array;
  for (const wchar_t* text : {L"Abc", L"abc", L"ABC", L"x"}) array.Add(text);
  EXPECT_EQ(1, array.FindExact(L"abc"));
  EXPECT_EQ(0, array.FindNoCase(L"aBC"));
  EXPECT_EQ(-1, array.FindExact(L"aBC"));
  EXPECT_EQ(-1, array.FindNoCase(L"ab"));
  EXPECT_EQ(-1, array.FindExact(nullptr));
  array.Add(L"");
  EXPECT_EQ(4, array.FindExact(nullptr));
  EXPECT_EQ(-1, CUStringArray().FindExact(L""));
}

TEST(CUStringArray, AddAllAppendsCopies) {
  CUStringArray source, target;
  source.Add(L"a");
  source.Add(L"b");
  target.Add(L"first");
  target.AddAll(source);
  source.SetAt(0, L"changed");
  ASSERT_EQ(3, target.Count());
  EXPECT_EQ(target[1], L"a");
  EXPECT_EQ(target[2], L"b");
  target.AddAll(target);
  ASSERT_EQ(6, target.Count());
  EXPECT_EQ(target[3], L"first");
  EXPECT_EQ(target[5], L"b");
}

TEST(CUStringArray, RemoveAllDeletesTheElements) {  // the leak check of the sanitized build is the witness
  CUStringArray array;
  for (int i = 0; i < 20; ++i) array.Add(L"text");
  static_cast<CPointerArray&>(array).RemoveAll();
  EXPECT_EQ(0, array.Count());
  EXPECT_EQ(0, array.Capacity());
  array.Add(L"again");
  EXPECT_EQ(array[0], L"again");
}

TEST(CUStringArray, CopiesAndMoves) {
  CUStringArray source;
  source.Add(L"a");
  source.SetAt(2, L"c");
  CUStringArray copy(source);
  source.SetAt(0, L"changed");
  EXPECT_EQ(3, copy.Count());
  EXPECT_EQ(copy[0], L"a");
  EXPECT_EQ(copy[2], L"c");
  const CUString* element = &copy[0];
  CUStringArray moved(std::move(copy));
  EXPECT_EQ(element, &moved[0]);
  copy = source;  // NOLINT: a moved-from array can be used again
  EXPECT_EQ(copy[0], L"changed");
  copy = std::move(moved);
  EXPECT_EQ(element, &copy[0]);
  swap(copy, source);
  EXPECT_EQ(element, &source[0]);
}

TEST(CUStringArray, ComparesByCharacterValue) {
  CUString none, empty(L"x"), upper(L"B"), lower(L"a"), longer(L"aaaa"), high(L"\xFFFD"), surrogate(L"\xD800");
  empty.Assign(L"");
  const CPointerArray::CompareFunction compare = CUStringArray().GetCompareFunction();
  const auto order = [compare](const CUString* left, const CUString* right) { return compare(&left, &right); };
  EXPECT_EQ(-1, order(&upper, &lower));
  EXPECT_EQ(1, order(&lower, &upper));
  EXPECT_EQ(0, order(&lower, &lower));
  EXPECT_EQ(-1, order(&lower, &longer));
  EXPECT_EQ(1, order(&high, &surrogate));
  // A null text is equal only to a null text.
  EXPECT_EQ(0, order(nullptr, nullptr));
  EXPECT_EQ(0, order(&none, nullptr));
  EXPECT_EQ(-1, order(&none, &empty));
  EXPECT_EQ(1, order(&empty, &none));
  EXPECT_EQ(-1, order(nullptr, &lower));
}

TEST(CUStringArray, Sorts) {
  CUStringArray array;
  for (const wchar_t* text : {L"b", L"a", L"B", L"", L"aa"}) array.Add(text);
  array.Sort();
  const wchar_t* const kSorted[] = {L"", L"B", L"a", L"aa", L"b"};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(array[i], kSorted[i]);
}

// --- CPtr2Ptr --------------------------------------------------------------------------------------------------------

namespace {

void* Value(uintptr_t number) { return reinterpret_cast<void*>(number); }

// A map that tells which keys it copied and freed.
class CountingMap : public CPtr2Ptr {
 public:
  using CPtr2Ptr::CPtr2Ptr;
  ~CountingMap() override { RemoveAll(); }
  const void* CopyKey(const void* key) const override {
    held.insert(key);
    return key;
  }
  void FreeKey(const void* key) const override { held.erase(held.find(key)); }

  mutable std::multiset<const void*> held;
};

std::vector<std::pair<uintptr_t, uintptr_t>> Entries(const CPtr2Ptr& map) {
  std::vector<std::pair<uintptr_t, uintptr_t>> entries;
  CPtr2Ptr::Position position = CPtr2Ptr::StartPosition();
  const void* key = nullptr;
  void* value = nullptr;
  while (position && map.GetNextAssoc(position, key, value))
    entries.emplace_back(reinterpret_cast<uintptr_t>(key), reinterpret_cast<uintptr_t>(value));
  return entries;
}

}  // namespace

TEST(CPtr2Ptr, StartsWith17BucketsThatAreNotThere) {
  const CPtr2Ptr map;
  EXPECT_EQ(17u, map.BucketCount());
  EXPECT_FALSE(map.HasBuckets());
  EXPECT_EQ(0, map.Count());
  void* value = Value(7);
  EXPECT_FALSE(map.Lookup(Value(16), value));
  EXPECT_EQ(Value(7), value);
  EXPECT_TRUE(Entries(map).empty());
}

TEST(CPtr2Ptr, HashIsTheLowWordShiftedByFour) {
  const CPtr2Ptr map;
  EXPECT_EQ(0u, map.HashKey(nullptr));
  EXPECT_EQ(0u, map.HashKey(Value(15)));
  EXPECT_EQ(1u, map.HashKey(Value(16)));
  EXPECT_EQ(0x0ABCDEF0u, map.HashKey(Value(0x12345678ABCDEF0FULL)));
  EXPECT_TRUE(map.KeysEqual(Value(5), Value(5)));
  EXPECT_FALSE(map.KeysEqual(Value(5), Value(6)));
  EXPECT_EQ(Value(5), map.CopyKey(Value(5)));
}

TEST(CPtr2Ptr, SetAtInsertsAndReplaces) {
  CountingMap map;
  map.SetAt(Value(16), Value(1));
  map.SetAt(Value(17), Value(2));  // the same bucket
  map.SetAt(Value(16), Value(3));
  EXPECT_EQ(2, map.Count());
  EXPECT_EQ(2u, map.held.size());
  void* value = nullptr;
  EXPECT_TRUE(map.Lookup(Value(16), value));
  EXPECT_EQ(Value(3), value);
  EXPECT_TRUE(map.Lookup(Value(17), value));
  EXPECT_EQ(Value(2), value);
  EXPECT_FALSE(map.Lookup(Value(18), value));
}

TEST(CPtr2Ptr, ANullKeyIsAKeyThatIsNeverCopied) {
  CountingMap map;
  map.SetAt(Value(32), Value(1));
  map.SetAt(nullptr, Value(2));
  EXPECT_EQ(1u, map.held.size());
  void* value = nullptr;
  EXPECT_TRUE(map.Lookup(nullptr, value));
  EXPECT_EQ(Value(2), value);
  map.held.insert(nullptr);  // it is freed all the same, as null
  EXPECT_TRUE(map.RemoveKey(nullptr));
  EXPECT_EQ(1u, map.held.size());
}

TEST(CPtr2Ptr, IteratesBucketByBucketNewestFirst) {
  CPtr2Ptr map;
  for (const uintptr_t key : {5 * 16, 2 * 16, 2 * 16 + 1, 16 * 16, 2 * 16 + 17 * 16, 0})
    map.SetAt(Value(key), Value(key + 1));
  const std::vector<std::pair<uintptr_t, uintptr_t>> expected = {{0, 1},   {304, 305}, {33, 34},
                                                                 {32, 33}, {80, 81},   {256, 257}};
  EXPECT_EQ(expected, Entries(map));
}

TEST(CPtr2Ptr, AnIterationEndsWithANullPosition) {
  CPtr2Ptr map;
  map.SetAt(Value(16), Value(1));
  CPtr2Ptr::Position position = CPtr2Ptr::StartPosition();
  EXPECT_EQ(UINTPTR_MAX, reinterpret_cast<uintptr_t>(position));
  const void* key = nullptr;
  void* value = nullptr;
  EXPECT_TRUE(map.GetNextAssoc(position, key, value));
  EXPECT_EQ(nullptr, position);
  EXPECT_FALSE(map.GetNextAssoc(position, key, value));
  EXPECT_EQ(Value(16), key);
}

TEST(CPtr2Ptr, RemoveKeyTellsWhetherItWasThere) {
  CountingMap map;
  for (uintptr_t key = 1; key <= 5; ++key) map.SetAt(Value(key), Value(key));  // one chain
  EXPECT_TRUE(map.RemoveKey(Value(3)));
  EXPECT_FALSE(map.RemoveKey(Value(3)));
  EXPECT_FALSE(map.RemoveKey(Value(99)));
  EXPECT_TRUE(map.RemoveKey(Value(5)));  // the head of the chain
  EXPECT_TRUE(map.RemoveKey(Value(1)));  // its end
  EXPECT_EQ(2, map.Count());
  EXPECT_EQ((std::multiset<const void*>{Value(2), Value(4)}), map.held);
  EXPECT_FALSE(CPtr2Ptr().RemoveKey(Value(1)));
}

TEST(CPtr2Ptr, RemovingTheLastEntryFreesTheBuckets) {
  CountingMap map;
  map.SetAt(Value(16), Value(1));
  EXPECT_TRUE(map.HasBuckets());
  EXPECT_TRUE(map.RemoveKey(Value(16)));
  EXPECT_FALSE(map.HasBuckets());
  EXPECT_EQ(0, map.Count());
  EXPECT_EQ(17u, map.BucketCount());
  map.SetAt(Value(32), Value(2));
  EXPECT_TRUE(map.HasBuckets());
  void* value = nullptr;
  EXPECT_TRUE(map.Lookup(Value(32), value));
}

TEST(CPtr2Ptr, FreedEntriesAreUsedAgain) {
  CPtr2Ptr map(4);
  map.SetAt(Value(16), Value(1));
  map.SetAt(Value(32), Value(2));
  const auto entryOf = [&map](uintptr_t wanted) {  // a position is the entry behind the one taken
    CPtr2Ptr::Position position = CPtr2Ptr::StartPosition(), here;
    const void* key = nullptr;
    void* value = nullptr;
    do {
      here = position;
      map.GetNextAssoc(position, key, value);
    } while (reinterpret_cast<uintptr_t>(key) != wanted);
    return here;
  };
  const CPtr2Ptr::Position former = entryOf(32);
  map.RemoveKey(Value(32));
  map.SetAt(Value(48), Value(3));
  EXPECT_EQ(former, entryOf(48));
}

TEST(CPtr2Ptr, ABlockHoldsItsEntriesSideBySideAndTheFirstIsTheFirstUsed) {
  CPtr2Ptr map(4);
  for (uintptr_t key = 1; key <= 6; ++key) map.SetAt(Value(key * 16), Value(key));  // a bucket each
  std::vector<uintptr_t> entries;  // from the second on: a position is the entry behind the one taken
  CPtr2Ptr::Position position = CPtr2Ptr::StartPosition();
  const void* key = nullptr;
  void* value = nullptr;
  while (map.GetNextAssoc(position, key, value) && position) entries.push_back(reinterpret_cast<uintptr_t>(position));
  ASSERT_EQ(5u, entries.size());
  const auto step = [&](size_t i) { return static_cast<intptr_t>(entries[i + 1] - entries[i]); };
  EXPECT_GT(step(0), 0);
  EXPECT_EQ(step(0), step(1));
  EXPECT_NE(step(0), step(2)) << "the fifth begins another block";
  EXPECT_EQ(step(0), step(3));
}

TEST(CPtr2Ptr, RemoveAllFreesEveryKey) {
  CountingMap map(3);
  for (uintptr_t key = 1; key <= 100; ++key) map.SetAt(Value(key * 8), Value(key));
  EXPECT_EQ(100, map.Count());
  map.RemoveAll();
  EXPECT_TRUE(map.held.empty());
  EXPECT_EQ(0, map.Count());
  EXPECT_FALSE(map.HasBuckets());
  map.RemoveAll();
}

TEST(CPtr2Ptr, InitHashTableSetsTheBuckets) {
  CountingMap map;
  map.InitHashTable(29, false);
  EXPECT_EQ(29u, map.BucketCount());
  EXPECT_FALSE(map.HasBuckets());
  map.InitHashTable(5, true);
  EXPECT_EQ(5u, map.BucketCount());
  EXPECT_TRUE(map.HasBuckets());
  for (uintptr_t key = 1; key <= 20; ++key) map.SetAt(Value(key * 16), Value(key));
  EXPECT_EQ(20u, Entries(map).size());
  map.InitHashTable(7, true);
  EXPECT_TRUE(map.held.empty());
  EXPECT_EQ(0, map.Count());
  map.InitHashTable(0, true);
  map.SetAt(Value(16), Value(1));
  EXPECT_EQ(1u, Entries(map).size());
}

TEST(CPtr2Ptr, BehavesLikeTheStandardMap) {
  CPtr2Ptr map(10);
  std::map<uintptr_t, uintptr_t> standard;
  uint32_t random = 1;
  for (int step = 0; step < 20000; ++step) {
    random = random * 1664525 + 1013904223;
    const uintptr_t key = (random >> 8) % 300 * 8;
    if (random >> 31) {
      map.SetAt(Value(key), Value(random));
      standard[key] = random;
    } else {
      EXPECT_EQ(standard.erase(key) == 1, map.RemoveKey(Value(key)));
    }
    ASSERT_EQ(static_cast<int>(standard.size()), map.Count());
  }
  const auto entries = Entries(map);
  EXPECT_EQ(standard, (std::map<uintptr_t, uintptr_t>(entries.begin(), entries.end())));
  EXPECT_EQ(standard.size(), entries.size());
}

// --- CStr2Ptr --------------------------------------------------------------------------------------------------------

TEST(CStr2Ptr, HashIsTimes33PlusCharacter) {
  const CStr2Ptr map;
  EXPECT_EQ(0u, map.HashKey(nullptr));
  EXPECT_EQ(0u, map.HashKey(L""));
  EXPECT_EQ(97u, map.HashKey(L"a"));
  EXPECT_EQ(97u * 33 + 98, map.HashKey(L"ab"));
  uint32_t expected = 0;
  for (const wchar_t character : std::wstring_view(L"EmbedfilenamesConfirmed")) expected = expected * 33 + character;
  EXPECT_EQ(expected, map.HashKey(L"EmbedfilenamesConfirmed"));
}

TEST(CStr2Ptr, KeysAreTextsWithCase) {
  const CStr2Ptr map;
  const std::wstring copy = L"abc";
  EXPECT_TRUE(map.KeysEqual(L"abc", copy.c_str()));
  EXPECT_FALSE(map.KeysEqual(L"abc", L"Abc"));
  EXPECT_FALSE(map.KeysEqual(L"abc", L"ab"));
  EXPECT_FALSE(map.KeysEqual(L"ab", L"abc"));
  EXPECT_TRUE(map.KeysEqual(nullptr, L""));
  EXPECT_TRUE(map.KeysEqual(nullptr, nullptr));
  EXPECT_FALSE(map.KeysEqual(nullptr, L"a"));
}

TEST(CStr2Ptr, KeepsCopiesOfItsKeys) {
  CStr2Ptr map(10);
  map.InitHashTable(29, true);
  std::wstring key = L"Name";
  map.SetAt(key.c_str(), Value(1));
  key[0] = L'G';
  map.SetAt(key.c_str(), Value(2));
  map.SetAt(L"name", Value(3));
  EXPECT_EQ(3, map.Count());
  void* value = nullptr;
  EXPECT_TRUE(map.Lookup(L"Name", value));
  EXPECT_EQ(Value(1), value);
  EXPECT_TRUE(map.Lookup(L"Game", value));
  EXPECT_EQ(Value(2), value);
  EXPECT_TRUE(map.Lookup(L"name", value));
  EXPECT_EQ(Value(3), value);
  EXPECT_FALSE(map.Lookup(L"NAME", value));
  EXPECT_TRUE(map.RemoveKey(L"Name"));
  EXPECT_FALSE(map.Lookup(L"Name", value));
}

TEST(CStr2Ptr, NullAndEmptyAreOneKey) {
  CStr2Ptr map;
  map.SetAt(nullptr, Value(1));
  void* value = nullptr;
  EXPECT_TRUE(map.Lookup(L"", value));
  EXPECT_EQ(Value(1), value);
  map.SetAt(L"", Value(2));
  EXPECT_EQ(1, map.Count());
  EXPECT_TRUE(map.RemoveKey(L""));
  map.SetAt(L"", Value(3));
  EXPECT_TRUE(map.Lookup(nullptr, value));
  EXPECT_EQ(Value(3), value);
}

TEST(CStr2Ptr, IteratesWithItsKeys) {
  CStr2Ptr map;
  for (const wchar_t* key : {L"one", L"two", L"three"}) map.SetAt(key, const_cast<wchar_t*>(key));
  std::set<std::wstring> keys;
  CPtr2Ptr::Position position = CPtr2Ptr::StartPosition();
  const wchar_t* key = nullptr;
  void* value = nullptr;
  while (position && map.GetNextAssoc(position, key, value)) {
    EXPECT_STREQ(static_cast<const wchar_t*>(value), key);
    keys.insert(key);
  }
  EXPECT_EQ((std::set<std::wstring>{L"one", L"two", L"three"}), keys);
}
